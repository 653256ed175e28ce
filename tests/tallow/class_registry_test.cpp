// SPDX-License-Identifier: Apache-2.0
#include <tallow/class_registry.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <climits>
#include <thread>
#include <utility>

namespace {

using Names = std::vector<std::string>;
using testing::ElementsAre;
using testing::IsEmpty;

// Enters pairs (class, parent) and takes them out again at the end of the test.
class ClassRegistry : public testing::Test {
protected:
  ~ClassRegistry() override {
    for (const auto& [name, parent] : entered_)
      Tallow::unregisterClass(name, parent);
  }

  bool enter(const std::string& name, const std::string& parent) {
    const bool entered = Tallow::registerClass(name, parent);
    if (entered) entered_.emplace_back(name, parent);
    return entered;
  }

  static Names below(const char* root, int levels) {
    Names list{"left over"};
    const bool found = Tallow::getChildrenClassesList(root, list, levels);
    EXPECT_EQ(found, !list.empty());
    return list;
  }

private:
  std::vector<std::pair<std::string, std::string>> entered_;
};

TEST_F(ClassRegistry, ListsChildrenInTheOrderOfTheirRegistration) {
  enter("strip", "load");
  enter("area", "load");
  enter("line", "load");
  EXPECT_THAT(below("load", 1), ElementsAre("strip", "area", "line"));
}

TEST_F(ClassRegistry, GivesNothingForANullOrUnknownRoot) {
  enter("strip", "load");
  EXPECT_THAT(below(nullptr, 1), IsEmpty());
  EXPECT_THAT(below("anchor", 1), IsEmpty());
  EXPECT_THAT(below("", 1), IsEmpty());
  EXPECT_THAT(below("strip", 1), IsEmpty());
}

TEST_F(ClassRegistry, GivesNothingForLessThanOneLevel) {
  enter("strip", "load");
  EXPECT_THAT(below("load", 0), IsEmpty());
  EXPECT_THAT(below("load", -1), IsEmpty());
  EXPECT_THAT(below("load", INT_MIN), IsEmpty());
}

TEST_F(ClassRegistry, DescendsAsManyGenerationsAsAsked) {
  enter("short strip", "strip");  // registered before its parent has one
  enter("strip", "load");
  enter("tiny strip", "short strip");
  EXPECT_THAT(below("load", 1), ElementsAre("strip"));
  EXPECT_THAT(below("load", 2), ElementsAre("strip", "short strip"));
  EXPECT_THAT(below("load", 3), ElementsAre("strip", "short strip", "tiny strip"));
  EXPECT_THAT(below("load", INT_MAX), ElementsAre("strip", "short strip", "tiny strip"));
}

// The grandchildren follow each other as they were registered, not as their parents were.
TEST_F(ClassRegistry, PutsNearerGenerationsFirst) {
  enter("child of line", "line");
  enter("child of strip", "strip");
  enter("strip", "load");
  enter("line", "load");
  EXPECT_THAT(below("load", 2), ElementsAre("strip", "line", "child of line", "child of strip"));
}

// "both" is a child of the root and of another child: it counts where it is nearest.
TEST_F(ClassRegistry, ListsAClassOfSeveralParentsOnce) {
  enter("both", "strip");
  enter("strip", "load");
  enter("line", "load");
  enter("both", "line");
  EXPECT_THAT(below("load", 2), ElementsAre("strip", "line", "both"));
  EXPECT_THAT(below("strip", 1), ElementsAre("both"));
  EXPECT_THAT(below("line", 1), ElementsAre("both"));
  enter("both", "load");
  EXPECT_THAT(below("load", 2), ElementsAre("strip", "line", "both"));
  EXPECT_THAT(below("load", 1), ElementsAre("strip", "line", "both"));
}

TEST_F(ClassRegistry, RefusesEmptyNames) {
  EXPECT_FALSE(enter("", "load"));
  EXPECT_FALSE(enter("strip", ""));
  EXPECT_THAT(below("load", 1), IsEmpty());
  EXPECT_THAT(below("", 1), IsEmpty());
}

TEST_F(ClassRegistry, RefusesAPairItKnows) {
  EXPECT_TRUE(enter("strip", "load"));
  EXPECT_FALSE(enter("strip", "load"));
  EXPECT_TRUE(enter("strip", "other load"));
  EXPECT_THAT(below("load", 1), ElementsAre("strip"));
}

TEST_F(ClassRegistry, RefusesAClassAsItsOwnAncestor) {
  EXPECT_FALSE(enter("load", "load"));
  EXPECT_TRUE(enter("strip", "load"));
  EXPECT_FALSE(enter("load", "strip"));
  EXPECT_TRUE(enter("short strip", "strip"));
  EXPECT_FALSE(enter("load", "short strip"));
  EXPECT_THAT(below("load", INT_MAX), ElementsAre("strip", "short strip"));
  EXPECT_THAT(below("short strip", INT_MAX), IsEmpty());
}

TEST_F(ClassRegistry, TakesThePairThatWouldHaveClosedARingOnceTheRingIsOpen) {
  enter("strip", "load");
  EXPECT_TRUE(Tallow::unregisterClass("strip", "load"));
  EXPECT_TRUE(enter("load", "strip"));
  EXPECT_THAT(below("strip", 1), ElementsAre("load"));
}

TEST_F(ClassRegistry, TakesOutOnePairOnly) {
  enter("strip", "load");
  enter("line", "load");
  enter("strip", "other load");
  EXPECT_TRUE(Tallow::unregisterClass("strip", "load"));
  EXPECT_FALSE(Tallow::unregisterClass("strip", "load"));
  EXPECT_FALSE(Tallow::unregisterClass("unknown", "load"));
  EXPECT_THAT(below("load", 1), ElementsAre("line"));
  EXPECT_THAT(below("other load", 1), ElementsAre("strip"));
}

TEST_F(ClassRegistry, PutsAClassThatComesAgainLast) {
  enter("strip", "load");
  enter("line", "load");
  Tallow::unregisterClass("strip", "load");
  enter("strip", "load");
  EXPECT_THAT(below("load", 1), ElementsAre("line", "strip"));
}

TEST_F(ClassRegistry, MayBeAskedWithANameFromTheListItFills) {
  enter("strip", "load");
  Names list{"load"};
  EXPECT_TRUE(Tallow::getChildrenClassesList(list.front().c_str(), list, 1));
  EXPECT_THAT(list, ElementsAre("strip"));
}

TEST_F(ClassRegistry, ComparesNamesExactly) {
  enter("strip", "load");
  EXPECT_THAT(below("Load", 1), IsEmpty());
  EXPECT_TRUE(enter("Strip", "load"));
}

// Each thread enters 200 classes and asks in between; each finds its own in order.
TEST_F(ClassRegistry, IsSafeBetweenThreads) {
  constexpr int count = 200;
  const auto name = [](char kind, int i) { return kind + std::to_string(i); };
  const auto work = [&name](char kind) {
    for (int i = 0; i < count; ++i) {
      Tallow::registerClass(name(kind, i), "shared root");
      Names list;
      Tallow::getChildrenClassesList("shared root", list, 2);
    }
  };
  std::thread first(work, 'a');
  std::thread second(work, 'b');
  first.join();
  second.join();
  std::array<int, 2> next{};
  const Names all = below("shared root", 1);
  EXPECT_EQ(all.size(), 2U * count);
  for (const std::string& found : all) {
    int& i = next.at(found.front() == 'a' ? 0 : 1);
    EXPECT_EQ(found, name(found.front(), i++));
    EXPECT_TRUE(Tallow::unregisterClass(found, "shared root"));
  }
  EXPECT_THAT(next, ElementsAre(count, count));
}

}  // namespace
