// SPDX-License-Identifier: Apache-2.0
#include "golden/result_comparison_testing.h"

#include <gmock/gmock.h>

#include <limits>

namespace ostrel::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using Json = nlohmann::json;

Json combination(const char* field, const Json& value) {
  return {{"combinations", {{{field, value}}}}};
}

std::vector<std::string> compared(const char* field, const Json& expected, const Json& actual) {
  return differences(combination(field, expected), combination(field, actual), {"combinations"});
}

TEST(ResultComparison, TellsABlockThatIsMissing) {
  EXPECT_THAT(differences({{"mesh", 1}}, {{"other", 1}}, {"mesh"}), ElementsAre("mesh: missing"));
}

TEST(ResultComparison, AsksForTenDigitsBeforeTheSolution) {
  EXPECT_THAT(compared("earth", {{1.0, 1.0}}, {{1.0, 1.0 + 9e-11}}), IsEmpty());
  EXPECT_THAT(compared("earth", {{1.0, 1.0}}, {{1.0, 1.0 + 2e-10}}), SizeIs(1));
}

TEST(ResultComparison, AsksForSixDigitsAfterIt) {
  EXPECT_THAT(compared("moment", {{1.0, 1.0}}, {{1.0, 1.0 + 9e-7}}), IsEmpty());
  EXPECT_THAT(compared("moment", {{1.0, 1.0}}, {{1.0, 1.0 + 2e-6}}), SizeIs(1));
}

TEST(ResultComparison, JudgesANumberByItsColumn) {
  EXPECT_THAT(compared("moment", {{0.0, 0.0}, {1.0, 1e6}}, {{0.0, 0.5}, {1.0, 1e6}}), IsEmpty());
  EXPECT_THAT(compared("moment", {{0.0, 0.0}, {1.0, 1e6}}, {{0.5, 0.0}, {1.0, 1e6}}),
              ElementsAre(HasSubstr("moment[0][0]")));
}

TEST(ResultComparison, TakesAnAbsentForceOnANodeForZero) {
  EXPECT_THAT(compared("nodal_forces", {{"1", {0.009, 0.0, 9.0}}}, Json::object()), IsEmpty());
  EXPECT_THAT(compared("nodal_forces", {{"1", {0.011, 0.0, 11.0}}}, Json::object()), SizeIs(2));
}

TEST(ResultComparison, TellsSpringsThatAreMoreOrFewer) {
  const Json one = {{"12", {{"modulus", 1.0}}}};
  const Json two = {{"12", {{"modulus", 1.0}}}, {"13", {{"modulus", 1.0}}}};
  EXPECT_THAT(compared("springs", one, two), SizeIs(1));
  EXPECT_THAT(compared("springs", two, one), SizeIs(2));
}

TEST(ResultComparison, TakesNullForANumberThatIsNotFinite) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  EXPECT_THAT(compared("earth", nan, nullptr), IsEmpty());
  EXPECT_THAT(compared("earth", 1.0, nullptr), SizeIs(1));
}

TEST(ResultComparison, TellsAListOfAnotherLength) {
  EXPECT_THAT(compared("cond_names", {"a", "b"}, {"a"}), SizeIs(1));
  EXPECT_THAT(compared("cond_names", {"a", "b"}, {"a", "c"}), SizeIs(1));
}

TEST(ResultComparison, ComparesAPartOfABlock) {
  const Json expected = {{"uls", {{"wall", 1.0}, {"slope", 2.0}}}};
  const Json actual = {{"uls", {{"wall", 1.0 + 9e-7}, {"slope", 3.0}}}};
  EXPECT_THAT(differences(expected, actual, {"uls/wall"}), IsEmpty());
  EXPECT_THAT(differences(expected, actual, {"uls/slope"}), SizeIs(1));
  EXPECT_THAT(differences(expected, actual, {"uls/piles"}), ElementsAre("uls/piles: missing"));
  EXPECT_THAT(differences({{"uls", nullptr}}, {{"uls", nullptr}}, {"uls"}), IsEmpty());
}

Json sections(double upper_moment, double lower_moment, std::size_t worst) {
  Json list;
  for (const double moment : {0.0, upper_moment, lower_moment})
    list.push_back({{"z", list.empty() ? 0.0 : 500.0}, {"Md", moment}});
  return {{"worst", worst}, {"sections", list}};
}

std::vector<std::string> verified(const Json& expected, const Json& actual) {
  return differences({{"uls", expected}}, {{"uls", actual}}, {"uls"});
}

TEST(ResultComparison, JudgesAForceByThoseOfTheOtherSections) {
  EXPECT_THAT(verified(sections(1.0, 1e6, 2), sections(1.5, 1e6, 2)), IsEmpty());
  EXPECT_THAT(verified(sections(1.0, 1e6, 2), sections(2.5, 1e6, 2)),
              ElementsAre(HasSubstr("sections[1].Md")));
}

TEST(ResultComparison, TakesTheTwoSectionsOfANodeForOne) {
  EXPECT_THAT(verified(sections(1.0, 1.0, 1), sections(1.0, 1.0, 2)), IsEmpty());
  EXPECT_THAT(verified(sections(1.0, 1.0, 1), sections(1.0, 1.0, 0)),
              ElementsAre(HasSubstr("worst")));
}

TEST(ResultComparison, CountsARepeatedFailureOnce) {
  EXPECT_THAT(compared("failures", {"a", "a", "b"}, {"a", "b"}), IsEmpty());
  EXPECT_THAT(compared("failures", {"a", "b"}, {"b", "a"}), SizeIs(2));
  EXPECT_THAT(compared("failures", {"a"}, {"a", "b"}), SizeIs(1));
}

}  // namespace
}  // namespace ostrel::testing
