// SPDX-License-Identifier: Apache-2.0
#include "plot.h"

#include <gmock/gmock.h>

#include <set>
#include <string>

namespace ostrel::host {
namespace {

Line slanted() {
  Line line;
  line.add(1.0, 0.0);
  line.add(-2.0, 3.0);
  return line;
}

ProfileFrame frame() {
  return {.quantity = same("q"), .unit = "kPa", .wall_m = 12.0, .excavation_m = 7.5};
}

TEST(ColourOf, IsAnotherForEachOfEight) {
  std::set<std::string> colours;
  for (std::size_t place = 0; place < colour_count; ++place)
    colours.insert(colour_of(place));
  EXPECT_EQ(colours.size(), 8u);
  EXPECT_EQ(colour_of(8), colour_of(0));
}

TEST(Profile, JoinsThePointsInTheirOrder) {
  const OrderedJson trace = profile(slanted(), {"Taglio", "Shear"}, "kN", 2, {.colour = "#102030"});
  EXPECT_EQ(trace["x"], OrderedJson({1.0, -2.0}));
  EXPECT_EQ(trace["y"], OrderedJson({0.0, 3.0}));
  EXPECT_EQ(trace["mode"], "lines");
  EXPECT_EQ(trace["name"]["it"], "Taglio");
  EXPECT_EQ(trace["hovertemplate"], "%{x:.2f} kN");
  EXPECT_EQ(trace["line"]["color"], "#102030");
  EXPECT_EQ(trace["line"]["dash"], "solid");
  EXPECT_FALSE(trace.contains("fill"));
  EXPECT_FALSE(trace.contains("marker"));
}

// 22 of 255 parts, as the colour's fourth pair of digits.
TEST(Profile, IsFilledToTheAxisInAFaintShadeOfItsColour) {
  const OrderedJson trace =
      profile(slanted(), same("q"), "kPa", 1, {.colour = "#102030", .filled = true});
  EXPECT_EQ(trace["fill"], "tozerox");
  EXPECT_EQ(trace["fillcolor"], "#10203022");
}

TEST(Profile, ShowsItsPointsOnRequest) {
  const OrderedJson trace =
      profile(slanted(), same("q"), "kPa", 1, {.colour = "#102030", .marked = true});
  EXPECT_EQ(trace["mode"], "lines+markers");
  EXPECT_EQ(trace["marker"]["color"], "#102030");
}

TEST(ProfileLayout, NamesAQuantityWithoutUnit) {
  const OrderedJson layout = profile_layout(
      {.quantity = {"Sfruttamento", "Use"}, .unit = "", .wall_m = 5.0, .excavation_m = 2.0}, true);
  EXPECT_EQ(layout["xaxis"]["title"]["text"]["it"], "Sfruttamento [-]");
  EXPECT_EQ(layout["showlegend"], true);
  EXPECT_TRUE(layout.contains("legend"));
  EXPECT_FALSE(profile_layout(frame(), false).contains("legend"));
}

TEST(ProfileLayout, MarksTheExcavationOverTheWholeWidth) {
  const OrderedJson layout = profile_layout(frame(), false);
  const OrderedJson& line = layout["shapes"][0];
  EXPECT_EQ(line["xref"], "paper");
  EXPECT_EQ(line["x0"], 0);
  EXPECT_EQ(line["x1"], 1);
  EXPECT_EQ(line["y0"], 7.5);
  EXPECT_EQ(line["y1"], 7.5);
}

TEST(PlaneLayout, HasOneScaleForBothAxes) {
  const OrderedJson layout = plane_layout({"x [m]", "x [m]"}, {"y [m]", "y [m]"});
  EXPECT_EQ(layout["yaxis"]["scaleanchor"], "x");
  EXPECT_EQ(layout["yaxis"]["title"]["text"]["en"], "y [m]");
}

// Paper and letters take the colours of the page.
TEST(PlaneLayout, LeavesThePaperToThePage) {
  for (const OrderedJson& layout :
       {plane_layout(same("x"), same("y")), profile_layout(frame(), false)}) {
    EXPECT_EQ(layout["paper_bgcolor"], "rgba(0,0,0,0)");
    EXPECT_EQ(layout["plot_bgcolor"], "rgba(0,0,0,0)");
  }
}

}  // namespace
}  // namespace ostrel::host
