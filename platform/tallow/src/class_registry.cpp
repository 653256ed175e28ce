// SPDX-License-Identifier: Apache-2.0
#include "tallow/class_registry.h"

#include <algorithm>
#include <mutex>
#include <string_view>
#include <unordered_set>
#include <utility>

namespace {

struct Kinship {
  std::string name;
  std::string parent;

  bool operator==(const Kinship&) const = default;
};

struct Registry {
  std::mutex mutex;
  std::vector<Kinship> kinships;  // in the order of their registration
};

Registry& registry() {
  static Registry the_registry;
  return the_registry;
}

// The classes below `root`, down to `levels` generations. Each generation walks the kinships once,
// which is what keeps the order of registration within it.
std::vector<std::string> classes_below(const std::vector<Kinship>& kinships,
                                       const std::string& root, int levels) {
  std::vector<std::string> found;
  std::unordered_set<std::string_view> known;
  std::unordered_set<std::string_view> parents{root};
  for (int level = 0; level < levels && !parents.empty(); ++level) {
    std::unordered_set<std::string_view> children;
    for (const Kinship& kinship : kinships) {
      if (!parents.contains(kinship.parent) || !known.insert(kinship.name).second) continue;
      found.push_back(kinship.name);
      children.insert(kinship.name);
    }
    parents = std::move(children);
  }
  return found;
}

bool is_below(const std::vector<Kinship>& kinships, const std::string& name,
              const std::string& root) {
  const std::vector<std::string> below =
      classes_below(kinships, root, static_cast<int>(kinships.size()));
  return std::find(below.begin(), below.end(), name) != below.end();
}

}  // namespace

namespace Tallow {

bool registerClass(const std::string& name, const std::string& parent) {
  if (name.empty() || parent.empty() || name == parent) return false;
  Registry& registry = ::registry();
  const std::lock_guard lock(registry.mutex);
  const Kinship kinship{name, parent};
  auto& kinships = registry.kinships;
  if (std::find(kinships.begin(), kinships.end(), kinship) != kinships.end()) return false;
  if (is_below(kinships, parent, name)) return false;
  kinships.push_back(kinship);
  return true;
}

bool unregisterClass(const std::string& name, const std::string& parent) {
  Registry& registry = ::registry();
  const std::lock_guard lock(registry.mutex);
  return std::erase(registry.kinships, Kinship{name, parent}) > 0;
}

bool getChildrenClassesList(const char* root_class, std::vector<std::string>& list, int levels) {
  std::vector<std::string> found;
  if (root_class) {
    Registry& registry = ::registry();
    const std::lock_guard lock(registry.mutex);
    found = classes_below(registry.kinships, root_class, levels);
  }
  list = std::move(found);
  return !list.empty();
}

}  // namespace Tallow
