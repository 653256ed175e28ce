// SPDX-License-Identifier: Apache-2.0
#include "figures.h"

#include "host_testing.h"
#include "plot.h"
#include "project_conversion.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>

namespace ostrel::host {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::Not;
using Json = nlohmann::json;

TEST(InLanguage, PutsOneTextInThePlaceOfBoth) {
  const OrderedJson value = {{"a", Both{"uno", "one"}}, {"b", {1, Both{"due", "two"}}}, {"c", "x"}};
  EXPECT_EQ(in_language(value, Language::italian),
            OrderedJson({{"a", "uno"}, {"b", {1, "due"}}, {"c", "x"}}));
  EXPECT_EQ(in_language(value, Language::english),
            OrderedJson({{"a", "one"}, {"b", {1, "two"}}, {"c", "x"}}));
}

TEST(Profile, LeavesAGapWhereAValueIsNotFinite) {
  Line line;
  line.add(1.0, 0.0);
  line.add(std::nan(""), 1.0);
  line.add(std::numeric_limits<double>::infinity(), 2.0);
  const OrderedJson trace = profile(line, same("q"), "kN", 1, {.colour = "#000000"});
  EXPECT_EQ(trace["x"], OrderedJson({1.0, nullptr, nullptr}));
  EXPECT_EQ(trace["y"], OrderedJson({0.0, 1.0, 2.0}));
  EXPECT_EQ(trace["hovertemplate"], "%{x:.1f} kN");
}

TEST(ProfileLayout, ShowsTheWholeWallWithDepthDownwards) {
  const OrderedJson layout = profile_layout(
      {.quantity = {"Taglio", "Shear"}, .unit = "kN", .wall_m = 10.0, .excavation_m = 4.0}, false);
  // Two hundredths of the wall beyond both ends.
  EXPECT_EQ(layout["yaxis"]["range"], OrderedJson({10.2, -0.2}));
  EXPECT_EQ(layout["shapes"][0]["y0"], 4.0);
  EXPECT_EQ(layout["xaxis"]["title"]["text"]["en"], "Shear [kN]");
}

class Figures : public ::testing::Test {
protected:
  void draw(const Json& json) {
    project_ = project_of(json);
    const Job job = to_job(project_);
    outcome_ = analyse(job);
    figures_ = figures(project_, job, outcome_);
  }
  std::vector<std::string> ids() const {
    std::vector<std::string> ids;
    for (const Figure& figure : figures_)
      ids.push_back(figure.id);
    return ids;
  }
  OrderedJson plot(const std::string& id) const {
    for (const Figure& figure : figures_) {
      if (figure.id == id) return figure.plot;
    }
    return {};
  }

  Project project_;
  Outcome outcome_;
  std::vector<Figure> figures_;
};

TEST_F(Figures, OfOneCombinationStandAlone) {
  draw(sound_project());
  EXPECT_THAT(ids(), ElementsAre("01-pressures", "01-displacement", "01-moment", "01-shear",
                                 "01-axial", "01-reaction", "all-bars", "all-stirrups"));
}

TEST_F(Figures, OfSeveralCombinationsAreAlsoDrawnTogether) {
  Json project = sound_project();
  project["combinations"].push_back({{"name", "Second"}, {"type", "rare"}});
  draw(project);
  EXPECT_THAT(ids(), Contains("all-moment"));
  EXPECT_THAT(ids(), Contains("02-moment"));
  const OrderedJson together = plot("all-moment");
  ASSERT_EQ(together["data"].size(), 2U);
  EXPECT_EQ(together["data"][0]["name"]["it"], "C");
  EXPECT_EQ(together["data"][1]["name"]["en"], "Second");
}

// Displacements are turned towards the excavation, moments go from Nmm to kNm.
TEST_F(Figures, HoldTheDiagramsInEngineeringUnits) {
  draw(sound_project());
  const xFemResults& results = outcome_.results.combResults.at(0).femResults;
  const OrderedJson moment = plot("01-moment")["data"][0];
  ASSERT_EQ(moment["x"].size(), results.moment.points.size());
  EXPECT_DOUBLE_EQ(moment["x"][7].get<double>(), results.moment.points[7].value / 1e6);
  EXPECT_DOUBLE_EQ(moment["y"][7].get<double>(), results.moment.points[7].s / 1e3);
  const OrderedJson displacement = plot("01-displacement")["data"][0];
  EXPECT_DOUBLE_EQ(displacement["x"][0].get<double>(), -results.dispTrans.points[0].value);
}

// Piles every 2 m: a force of 1 kN on each metre of a pile is a pressure of 0.5 kPa.
TEST_F(Figures, ShowThePressureOverTheWholeDistanceBetweenAxes) {
  draw(with("/wall/spacing_m", 2.0));
  const xLayerPress& diagram = outcome_.results.combResults.at(0).earthPress.diagrams.at(0);
  const OrderedJson earth = plot("01-pressures")["data"][0];
  EXPECT_DOUBLE_EQ(earth["x"][1].get<double>(), diagram.points.at(1).value / 2.0);
}

TEST_F(Figures, ShowTheLimitOfTheSoilOnBothSides) {
  draw(sound_project());
  const OrderedJson data = plot("01-reaction")["data"];
  ASSERT_EQ(data.size(), 3U);
  const double limit = data[0]["x"][3].get<double>();
  EXPECT_GT(limit, 0.0);
  EXPECT_DOUBLE_EQ(data[1]["x"][3].get<double>(), -limit);
}

// A circle of 5 m about (-4, 1) m with slices from -8 to -1 m: at -4 it is deepest, at -4 m, and both
// ends are 4 and 3 m from the centre, 3 and 4 m below it. In view are the centres, the arc and the
// wall of 10 m, and 4 in 100 more: x from -8 to 0, y from -10 to 1.
TEST_F(Figures, ShowTheGoverningCircleAlongItsSlices) {
  project_ = project_of(sound_project());
  const Job job = to_job(project_);
  xSlopeStability result;
  result.setCheckID(7, 1, "C");
  stabChekData& data = result.getstabChekData();
  data.xc = -4000.0;
  data.yc = 1000.0;
  data.radius = 5000.0;
  data.sf = 2.0;
  xGridPointResults centre;
  centre.center = xPoint2d(-4000.0, 1000.0);
  centre.radius = 5000.0;
  centre.sf = 2.0;
  result.get_gridPointRes() = {centre};
  xClipData piece;
  piece.polygon = {arma::vec2{-8000.0, -2000.0}, arma::vec2{-1000.0, -3000.0}};
  result.getStripesMin() = {{piece}};
  outcome_.ultimate.slopeStabilityDesign.getResults() = {result};
  figures_ = figures(project_, job, outcome_);
  const OrderedJson drawn = plot("01-slip-circles");
  const OrderedJson arc = drawn["data"][2];
  EXPECT_DOUBLE_EQ(arc["x"].front().get<double>(), -8.0);
  EXPECT_DOUBLE_EQ(arc["y"].front().get<double>(), -2.0);
  EXPECT_DOUBLE_EQ(arc["x"].back().get<double>(), -1.0);
  EXPECT_DOUBLE_EQ(arc["y"].back().get<double>(), -3.0);
  const auto range = [&](const char* axis, std::size_t end) {
    return drawn["layout"][axis]["range"][end].get<double>();
  };
  EXPECT_DOUBLE_EQ(range("xaxis", 0), -8.0 - 0.32);
  EXPECT_DOUBLE_EQ(range("xaxis", 1), 0.32);
  EXPECT_DOUBLE_EQ(range("yaxis", 0), -10.0 - 0.44);
  EXPECT_DOUBLE_EQ(range("yaxis", 1), 1.0 + 0.44);
}

TEST_F(Figures, AreNotThereForACombinationWithoutResult) {
  Json project = sound_project();
  project["combinations"].push_back(
      {{"name", "too much"}, {"type", "ultimate"}, {"actions", {{"earth_pressure", 80}}}});
  draw(project);
  ASSERT_EQ(outcome_.results.combResults.size(), 1U);
  EXPECT_THAT(ids(), Contains("01-moment"));
  EXPECT_THAT(ids(), Not(Contains("02-moment")));
}

}  // namespace
}  // namespace ostrel::host
