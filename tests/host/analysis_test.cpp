// SPDX-License-Identifier: Apache-2.0
#include "analysis.h"

#include "host_testing.h"
#include "project_conversion.h"

#include <gmock/gmock.h>

#include <cmath>

namespace ostrel::host {
namespace {

using Json = nlohmann::json;

Outcome outcome_of(const Json& project) {
  return analyse(to_job(project_of(project)));
}

double scale_of(const xDiagram& diagram) {
  double scale = 0.0;
  for (const diag_Point& point : diagram.points)
    scale = std::max(scale, std::abs(point.value));
  return scale;
}

// Each value of `b` is `factor` times that of `a`, at `length_factor` times its depth.
void expect_scaled(const xDiagram& a, const xDiagram& b, double length_factor, double factor) {
  ASSERT_EQ(a.points.size(), b.points.size());
  const double near = 1e-7 * factor * scale_of(a);
  for (std::size_t i = 0; i < a.points.size(); ++i) {
    EXPECT_NEAR(b.points[i].s, length_factor * a.points[i].s, 1e-6);
    EXPECT_NEAR(b.points[i].value, factor * a.points[i].value, near);
  }
}

TEST(Analysis, LeavesItsJobAsItIs) {
  const Job job = to_job(project_of(sound_project()));
  analyse(job);
  EXPECT_TRUE(job.data.restriction.imposed.empty());
  EXPECT_EQ(job.data.soilLayers.size(), 1u);
}

TEST(Analysis, GivesTheSameTwice) {
  const Job job = to_job(project_of(sound_project()));
  const Outcome first = analyse(job);
  const Outcome second = analyse(job);
  const xDiagram& a = first.results.combResults.at(0).femResults.moment;
  const xDiagram& b = second.results.combResults.at(0).femResults.moment;
  ASSERT_EQ(a.points.size(), b.points.size());
  for (std::size_t i = 0; i < a.points.size(); ++i) {
    EXPECT_EQ(a.points[i].value, b.points[i].value);
  }
}

// Twice the size of everything in dry sand without cohesion, by dimensions: pressures grow with the
// depth, by 2, and so forces per metre by 4, forces by 8, moments by 16. Displacements grow by 2 as
// all lengths do if the soil reaches its limit at twice the displacement and the wall bends alike:
// M = E J u'' asks for E J times 32, and J grows by 16, so E by 2.
TEST(Analysis, OfAWallTwiceTheSizeGivesTheResultsOfDimensions) {
  Json small = sound_project();
  small["loads"] = Json::array();
  small["combinations"][0]["actions"] = Json::object();
  Json large = small;
  large["wall"]["diameter_mm"] = 1200;
  large["wall"]["spacing_m"] = 2.0;
  large["wall"]["length_m"] = 20;
  large["wall"]["E_GPa"] = 60;
  large["excavation_depth_m"] = 8;
  large["soils"][0]["E_MPa"] = 60;
  large["ground"]["bottom_level_m"] = -60;
  large["calculation"]["node_spacing_mm"] = 500;
  large["calculation"]["spring_limit_mm"] = 50.8;
  large["calculation"]["tolerance_mm"] = 0.002;
  const Outcome one = outcome_of(small);
  const Outcome two = outcome_of(large);
  const xFemResults& a = one.results.combResults.at(0).femResults;
  const xFemResults& b = two.results.combResults.at(0).femResults;
  expect_scaled(a.dispTrans, b.dispTrans, 2.0, 2.0);
  expect_scaled(a.rotation, b.rotation, 2.0, 1.0);
  expect_scaled(a.soilReaction, b.soilReaction, 2.0, 2.0);
  expect_scaled(a.axial, b.axial, 2.0, 8.0);
  expect_scaled(a.shear, b.shear, 2.0, 8.0);
  expect_scaled(a.moment, b.moment, 2.0, 16.0);
}

// A panel carries the pressure on its own width.
TEST(Analysis, OfAPanelTwiceAsWideHasTwiceThePressureOnIt) {
  const auto panel = [](double width) {
    Json project = sound_diaphragm();
    project["wall"]["panel_width_m"] = width;
    return outcome_of(project);
  };
  const Outcome one = panel(1.0);
  const Outcome two = panel(2.0);
  const auto& a = one.results.combResults.at(0).earthPress.diagrams;
  const auto& b = two.results.combResults.at(0).earthPress.diagrams;
  ASSERT_EQ(a.size(), b.size());
  for (std::size_t i = 0; i < a.size(); ++i) {
    EXPECT_NEAR(b[i].Rx, 2.0 * a[i].Rx, 1e-9 * std::abs(a[i].Rx));
  }
}

TEST(Analysis, ReportsACombinationThatFailsAndSolvesTheOthers) {
  Json project = sound_project();
  project["combinations"].push_back(
      {{"name", "too much"}, {"type", "ultimate"}, {"actions", {{"earth_pressure", 80}}}});
  project["combinations"].push_back({{"name", "last"}, {"type", "rare"}});
  const Outcome outcome = outcome_of(project);
  EXPECT_EQ(outcome.verdict, veldError);
  EXPECT_EQ(outcome.results.combResults.size(), 2u);
  ASSERT_EQ(outcome.messages.size(), 1u);
  EXPECT_THAT(outcome.messages[0].GetErrorStr(), ::testing::HasSubstr("'too much'"));
}

}  // namespace
}  // namespace ostrel::host
