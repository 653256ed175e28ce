// SPDX-License-Identifier: Apache-2.0
#include "section_view.h"

#include "host_testing.h"
#include "project_conversion.h"
#include "section_drawing.h"

#include <fmt/format.h>
#include <gmock/gmock.h>

#include <string>

namespace ostrel::host {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;
using Json = nlohmann::json;

// The wall is 10 m long with 4 m above the excavation, and the ground goes on for 30 m and 40 m:
// in view are 8 m in front of the wall and 11 m behind it, from -13 m to 0.2 m. The 19 m take
// 1000 - 124 - 16 = 860 of the sheet: 45.263 by metre. One load takes 44 above the ground.
constexpr double by_metre = 860.0 / 19.0;
constexpr double top = 14.0 + 44.0;

class SectionOfAWall : public ::testing::Test {
protected:
  void make(const Json& json) {
    project_ = project_of(json);
    job_ = to_job(project_);
  }
  SectionView view() const { return {project_, job_, nullptr}; }
  std::string drawing() const { return section_drawing(project_, job_, Outcome{}); }

  Project project_;
  Job job_;
};

TEST_F(SectionOfAWall, ShowsTheWallAndAStretchAroundIt) {
  make(sound_project());
  const SectionView shown = view();
  EXPECT_DOUBLE_EQ(shown.window().left, -8.0);
  EXPECT_DOUBLE_EQ(shown.window().right, 11.0);
  EXPECT_DOUBLE_EQ(shown.window().bottom, -13.0);
  EXPECT_DOUBLE_EQ(shown.window().top, 0.2);
  EXPECT_DOUBLE_EQ(shown.scale(), by_metre);
  EXPECT_DOUBLE_EQ(shown.height(), top + 13.2 * by_metre + 34.0);
}

TEST_F(SectionOfAWall, DoesNotGoBeyondTheGround) {
  Json json = sound_project();
  json["ground"]["retained_width_m"] = 9;
  json["ground"]["excavated_width_m"] = 5;
  json["ground"]["bottom_level_m"] = -11;
  make(json);
  EXPECT_DOUBLE_EQ(view().window().left, -5.0);
  EXPECT_DOUBLE_EQ(view().window().right, 9.0);
  EXPECT_DOUBLE_EQ(view().window().bottom, -11.0);
}

// A level anchor of 20 m: 1.08 * 20.
TEST_F(SectionOfAWall, ReachesBehindTheAnchors) {
  Json json = sound_project();
  json["anchors"] = {{{"level_m", -1},
                      {"inclination_deg", 0},
                      {"free_length_m", 20},
                      {"number", 2},
                      {"tendon_area_mm2", 500},
                      {"E_GPa", 195}}};
  make(json);
  EXPECT_DOUBLE_EQ(view().window().right, 21.6);
}

TEST_F(SectionOfAWall, PutsEachLevelWhereItIs) {
  make(sound_project());
  const Spot head = view().at(0.0, 0.0);
  EXPECT_DOUBLE_EQ(head.x, 124.0 + 8.0 * by_metre);
  EXPECT_DOUBLE_EQ(head.y, top + 0.2 * by_metre);
  EXPECT_DOUBLE_EQ(view().at(0.0, -10.0).y, top + 10.2 * by_metre);
  EXPECT_DOUBLE_EQ(view().foot_of_load(0), 14.0 + 44.0 - 4.0);
  EXPECT_DOUBLE_EQ(view().foot_of_load(2), 14.0 + 3.0 * 44.0 - 4.0);
}

// The water behind the wall at -1 m: 58 + 1.2 * 45.263 = 112.32, from the wall at 124 + 8 * 45.263 =
// 486.11 to the end of the view at 984. In front of it at -3.5 m: 58 + 3.7 * 45.263 = 225.47; its
// mark stands 6 in 100 of the 362.11 from the edge, at 145.73, and its text 12 and 17 from the mark.
TEST_F(SectionOfAWall, DrawsTheWaterAtItsLevels) {
  Json json = sound_project();
  json["water"] = {{"retained_level_m", -1}, {"excavated_level_m", -3.5}};
  make(json);
  EXPECT_THAT(drawing(), HasSubstr("<line class=\"water\" x1=\"486.11\" y1=\"112.32\" "
                                   "x2=\"984.00\" y2=\"112.32\"/>"));
  EXPECT_THAT(drawing(), HasSubstr("<line class=\"water\" x1=\"124.00\" y1=\"225.47\" "
                                   "x2=\"486.11\" y2=\"225.47\"/>"));
  EXPECT_THAT(drawing(), HasSubstr("lang=\"it\" x=\"157.73\" y=\"242.47\" "
                                   "text-anchor=\"start\">−3,50 m<"));
}

// Half a metre of water stands on the bottom of the excavation: from 225.47 to 248.11.
TEST_F(SectionOfAWall, FillsTheExcavationWithWaterThatStandsAboveIt) {
  Json json = sound_project();
  json["water"] = {{"retained_level_m", -1}, {"excavated_level_m", -3.5}};
  make(json);
  EXPECT_THAT(drawing(), HasSubstr("<rect class=\"pool\" x=\"124.00\" y=\"225.47\" "
                                   "width=\"362.11\" height=\"22.63\"/>"));
  json["water"]["excavated_level_m"] = -4;
  make(json);
  EXPECT_THAT(drawing(), Not(HasSubstr("class=\"pool\"")));
}

// A pile of 600 mm: 0.3 m before the axis, 486.11 - 13.58 = 472.53; 27.16 by 452.63 on the sheet.
TEST_F(SectionOfAWall, DrawsTheWallAsThickAsItIs) {
  make(sound_project());
  EXPECT_THAT(drawing(), HasSubstr("<rect class=\"concrete\" x=\"472.53\" y=\"67.05\" "
                                   "width=\"27.16\" height=\"452.63\"/>"));
}

TEST_F(SectionOfAWall, WritesNumbersAsEachLanguageDoes) {
  make(with("/loads/0/on_ground/0/value_kPa", 12.5));
  EXPECT_THAT(drawing(), HasSubstr(">Q, 12,5 kPa<"));
  EXPECT_THAT(drawing(), HasSubstr(">Q, 12.5 kPa<"));
  EXPECT_THAT(drawing(), HasSubstr(">infissione 6,00 m<"));
  EXPECT_THAT(drawing(), HasSubstr(">embedment 6.00 m<"));
}

// The bond goes from (8, -1) to (10, -1): its middle is 9 + 8 = 17 m from the edge. It is half a
// metre thick, and the text stands 5 above it.
TEST_F(SectionOfAWall, WritesAlongEachBond) {
  Json json = sound_project();
  json["anchors"] = {{{"name", "Row A"},
                      {"level_m", -1},
                      {"inclination_deg", 0},
                      {"free_length_m", 8},
                      {"number", 2},
                      {"tendon_area_mm2", 500},
                      {"E_GPa", 195},
                      {"bond_length_m", 2},
                      {"bond_diameter_mm", 500}}};
  make(json);
  const double middle = 124.0 + 17.0 * by_metre;
  const double height = top + 1.2 * by_metre - 0.25 * by_metre - 5.0;
  EXPECT_THAT(drawing(), HasSubstr(fmt::format("x=\"{0:.2f}\" y=\"{1:.2f}\" "
                                               "text-anchor=\"middle\" transform=\"rotate(0 "
                                               "{0:.2f} {1:.2f})\">Row A 8,00 + 2,00 m, 0°<",
                                               middle, height)));
}

// The text stands in front of the wall, 46 from its axis at 486.11 and 6 above its level.
TEST_F(SectionOfAWall, WritesLoadsOnTheWallInFrontOfIt) {
  Json json = sound_project();
  json["loads"].push_back(
      {{"name", "R"}, {"on_wall", {{{"level_m", 0}, {"per", "metre"}, {"horizontal_kN", 1.5}}}}});
  make(json);
  EXPECT_THAT(drawing(), HasSubstr("x=\"440.11\" y=\"61.05\" text-anchor=\"end\">R, H 1,5 kN/m<"));
}

TEST_F(SectionOfAWall, EscapesNames) {
  Json json = sound_project();
  json["soils"][0]["name"] = "<i>\"sand\" & 'silt'";
  json["ground"]["layers"][0]["soil"] = json["soils"][0]["name"];
  make(json);
  EXPECT_THAT(drawing(), HasSubstr(">&lt;i&gt;&quot;sand&quot; &amp; &#39;silt&#39;<"));
  EXPECT_THAT(drawing(), Not(HasSubstr("<i>")));
}

TEST(LevelText, TellsTheSign) {
  EXPECT_EQ(level_text(-4.0), "−4.00");
  EXPECT_EQ(level_text(1.505), "+1.50");
  EXPECT_EQ(level_text(0.004), "±0.00");
}

}  // namespace
}  // namespace ostrel::host
