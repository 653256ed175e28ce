// SPDX-License-Identifier: Apache-2.0
// What acts on the wall is in balance, in every combination of every example and of some walls that
// hold what the examples lack.
#include "equilibrium.h"

#include "host_testing.h"
#include "project_conversion.h"
#include "run_data.h"
#include "texts_testing.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <limits>

namespace ostrel::host {
namespace {

using Json = nlohmann::json;

// The residual against the size of what is summed: the equations are solved to about 1e-7.
void expect_balance(const Project& project, const Job& job, const Outcome& outcome) {
  ASSERT_EQ(outcome.results.combResults.size(), project.combinations.size());
  for (const xCombResults& combination : outcome.results.combResults) {
    SCOPED_TRACE(combination.getCombName());
    const Balance balance = balance_of(job, outcome, combination);
    const ForceSum rest = balance.residual();
    EXPECT_GT(std::abs(balance.loads.across), 1.0);
    EXPECT_NEAR(rest.across, 0.0, 1e-6 * std::abs(balance.loads.across));
    EXPECT_NEAR(rest.along, 0.0, 1e-6 * std::abs(balance.loads.along));
    EXPECT_NEAR(rest.moment, 0.0, 1e-6 * std::abs(balance.loads.moment));
  }
}

void expect_balance(const Project& project) {
  const Job job = to_job(project);
  expect_balance(project, job, analyse(job));
}

class ExampleBalance : public ::testing::TestWithParam<std::string> {};

TEST_P(ExampleBalance, HoldsAndNoResultIsQuestionable) {
  Problems problems{Texts(Language::english)};
  const auto project = read_project(contents_of(GetParam()), problems);
  ASSERT_TRUE(project.has_value());
  for (const Remark& remark : problems.remarks())
    EXPECT_NE(remark.message.find("Before you sign"), std::string::npos) << remark.message;
  const Job job = to_job(*project);
  const Outcome outcome = analyse(job);
  expect_balance(*project, job, outcome);
  EXPECT_THAT(result_warnings(*project, job, outcome, Texts(Language::english)),
              ::testing::IsEmpty());
}

std::vector<std::string> examples() {
  std::vector<std::string> files;
  for (const auto& entry : std::filesystem::directory_iterator(OSTREL_EXAMPLES)) {
    if (entry.path().extension() == ".json") files.push_back(entry.path().string());
  }
  std::sort(files.begin(), files.end());
  return files;
}

INSTANTIATE_TEST_SUITE_P(Examples, ExampleBalance, ::testing::ValuesIn(examples()),
                         [](const ::testing::TestParamInfo<std::string>& test) {
                           return std::filesystem::path(test.param).stem().string();
                         });

TEST(ExampleBalances, AreThoseOfThreeWallsAtLeast) {
  EXPECT_GE(examples().size(), 3u);
}

TEST(Balance, HoldsWithFixedAndElasticSupportsInAllDirections) {
  expect_balance(project_of(with("/supports", {{"fixed",
                                                {{{"level_m", -1}, {"horizontal_mm", 3}},
                                                 {{"level_m", -9.3}, {"rotation_mrad", 1}}}},
                                               {"elastic",
                                                {{{"level_m", -2.2},
                                                  {"horizontal_kN_m", 5000},
                                                  {"vertical_kN_m", 3000},
                                                  {"rotation_kNm", 800}}}}})));
}

TEST(Balance, HoldsWithLoadsOnTheWall) {
  expect_balance(project_of(
      with("/loads/0/on_wall", {{{"level_m", 0}, {"horizontal_kN", 20}, {"vertical_kN", 50}},
                                {{"level_m", -1.13}, {"moment_kNm", 30}},
                                {{"level_m", -3.3}, {"per", "metre"}, {"horizontal_kN", -5}}})));
}

TEST(Balance, HoldsWithAnAnchorOffEveryNode) {
  expect_balance(project_of(with("/anchors", {{{"level_m", -1.313},
                                               {"inclination_deg", 25},
                                               {"free_length_m", 9},
                                               {"number", 2},
                                               {"tendon_area_mm2", 500},
                                               {"E_GPa", 195},
                                               {"prestress_kN", 100}}})));
}

// 100 kN on the head, all of it held by a support there: the sums of both are equal and opposite.
TEST(Balance, SumsEachKindOfForceByItself) {
  Outcome outcome;
  outcome.model.fem.nodes = {{0.0, 0.0}, {0.0, 1000.0}};
  outcome.model.fem.springDof1[1] = 50.0;
  xCombResults combination;
  xFemResults& results = combination.femResults;
  results.dispAxial.points = {{0.0, 0.0}, {1000.0, 0.0}};
  results.dispTrans.points = {{0.0, 0.0}, {1000.0, 2.0}};
  results.rotation.points = {{0.0, 0.0}, {1000.0, 0.0}};
  results.appliedForces.resize(1);
  results.appliedForces[0].pos = 1000.0;
  results.appliedForces[0].data = xFemNodeData(7.0, 100.0, 3.0);
  results.soilForces[1].springForce = -30.0;
  const Balance balance = balance_of(Job{}, outcome, combination);
  EXPECT_EQ(balance.loads.across, 100.0);
  EXPECT_EQ(balance.loads.along, 7.0);
  // 100 N * 1000 mm + 3 Nmm
  EXPECT_EQ(balance.loads.moment, 100'003.0);
  EXPECT_EQ(balance.soil.across, -30.0);
  EXPECT_EQ(balance.soil.moment, -30'000.0);
  // 50 N/mm * 2 mm against the displacement
  EXPECT_EQ(balance.elastic_supports.across, -100.0);
  EXPECT_EQ(balance.residual().across, -30.0);
  EXPECT_EQ(balance.load_sizes.across, 100.0);
  EXPECT_EQ(balance.load_sizes.moment, 100'003.0);
}

ForceSum forces(double across, double along, double moment) {
  return {.across = across, .along = along, .moment = moment};
}

// Loads of 30 N across and 40 N along, 50 N together. A residual of 3 N and 4 N is 5 N, a tenth; one
// of 600 Nmm of 2000 Nmm is more.
TEST(RelativeResidual, IsThatOfForcesOrOfMomentsWhicheverIsMore) {
  Balance balance{.loads = forces(3, 4, 100), .load_sizes = forces(30, 40, 2000)};
  EXPECT_DOUBLE_EQ(balance.relative_residual(), 0.1);
  balance.loads.moment = -600.0;
  EXPECT_DOUBLE_EQ(balance.relative_residual(), 0.3);
}

TEST(RelativeResidual, TakesLoadsThatCancelEachOtherByTheirSizes) {
  xCombResults combination;
  combination.femResults.appliedForces.resize(2);
  combination.femResults.appliedForces[0].data = xFemNodeData(0.0, 500.0, 0.0);
  combination.femResults.appliedForces[1].data = xFemNodeData(0.0, -499.0, 0.0);
  // 1 N of 999 N is left over.
  EXPECT_DOUBLE_EQ(balance_of(Job{}, Outcome{}, combination).relative_residual(), 1.0 / 999.0);
}

TEST(RelativeResidual, IsNothingWithoutForcesAndInfiniteWithoutLoads) {
  EXPECT_EQ(Balance{}.relative_residual(), 0.0);
  EXPECT_EQ(Balance{.soil = forces(1, 0, 0)}.relative_residual(),
            std::numeric_limits<double>::infinity());
}

TEST(BalanceSentence, StandsWhereTheResidualIsNotSmall) {
  EXPECT_EQ(balance_sentence(0.001, english), "");
  EXPECT_THAT(balance_sentence(0.0123, english), ::testing::HasSubstr("1.2 % of the loads"));
  const double none = std::numeric_limits<double>::quiet_NaN();
  for (const ForceSum& part : {forces(none, 0, 0), forces(0, none, 0), forces(0, 0, none)}) {
    const Balance balance{.loads = forces(1, 1, 1), .soil = part, .load_sizes = forces(1, 1, 1)};
    EXPECT_THAT(balance_sentence(balance.relative_residual(), english),
                ::testing::HasSubstr("cannot be told"));
  }
  EXPECT_THAT(balance_sentence(std::numeric_limits<double>::infinity(), english),
              ::testing::HasSubstr("cannot be told"));
}

}  // namespace
}  // namespace ostrel::host
