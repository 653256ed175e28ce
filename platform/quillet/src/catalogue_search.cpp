// SPDX-License-Identifier: Apache-2.0
#include "catalogue_search.h"

#include <dlfcn.h>
#include <link.h>
#include <system_error>

namespace quillet {

std::filesystem::path module_file() {
  Dl_info info{};
  link_map* module = nullptr;
  if (dladdr1(reinterpret_cast<void*>(&module_file), &info, reinterpret_cast<void**>(&module),
              RTLD_DL_LINKMAP)
      == 0) {
    return {};
  }
  // The program itself has no name here, and the name it was started by need not lead to it.
  const bool is_program = module == nullptr || module->l_name == nullptr || *module->l_name == '\0';
  std::error_code failure;
  return std::filesystem::canonical(is_program ? "/proc/self/exe" : module->l_name, failure);
}

std::filesystem::path find_catalogue_folder(const std::filesystem::path& module) {
  auto beside = module.parent_path();
  for (int climbed = 0; climbed <= folders_climbed; ++climbed) {
    if (beside.empty()) break;
    auto candidate = beside / "share" / "locale";
    std::error_code failure;
    if (std::filesystem::is_directory(candidate, failure)) return candidate;
    beside = beside.has_relative_path() ? beside.parent_path() : std::filesystem::path{};
  }
  return {};
}

}  // namespace quillet
