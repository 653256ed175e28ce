// SPDX-License-Identifier: Apache-2.0
#include "core_ultimate.h"

#include "verification_testing.h"

#include <ostrel/language.h>

#include <gmock/gmock.h>

namespace ostrel::host {
namespace {

using Json = nlohmann::json;

// As another program would read it.
Json blocks_of(const xUltimateLimitStates& ultimate) {
  ostrel::set_language("it");
  return Json::parse(core_ultimate(ultimate).dump());
}

TEST(CoreUltimate, OfNothingHasEmptyBlocksWithUnlimitedFactors) {
  const Json blocks = blocks_of({});
  EXPECT_EQ(
      blocks["wall"],
      (Json{
          {"sf", 1e10}, {"index", 0}, {"combs", Json::array()}, {"reinforcement", Json::array()}}));
  EXPECT_EQ(blocks["sf_min"], 1e10);
  EXPECT_EQ(blocks["failures"], Json::array());
}

TEST(CoreUltimate, HoldsTheSectionsOfTheWall) {
  xUltimateLimitStates ultimate;
  ultimate.structuralDesign = verified_wall();
  const Json wall = blocks_of(ultimate)["wall"];
  // The worst combination is the second, its worst section too: 200 / 250.
  EXPECT_EQ(wall["sf"], 0.8);
  EXPECT_EQ(wall["index"], 1);
  EXPECT_EQ(wall["combs"][1]["name"], "B");
  EXPECT_EQ(wall["combs"][1]["index"], 2);
  EXPECT_EQ(wall["combs"][1]["sf"], 0.8);
  EXPECT_EQ(wall["combs"][1]["worst"], 1);
  EXPECT_EQ(wall["combs"][0]["sections"][1], (Json{{"z", 4000.0},
                                                   {"Nd", -50e3},
                                                   {"Md", 250e6},
                                                   {"Mrd", 300e6},
                                                   {"Vd", 100e3},
                                                   {"VRds", 0.0},
                                                   {"VRdmax", 0.0},
                                                   {"VRd", 200e3}}));
}

TEST(CoreUltimate, HoldsTheReinforcement) {
  xUltimateLimitStates ultimate;
  ultimate.structuralDesign = verified_wall();
  const Json records = blocks_of(ultimate)["wall"]["reinforcement"];
  EXPECT_EQ(records.size(), 4u);
  EXPECT_EQ(records[2], (Json{{"abscissa", 6000.0},
                              {"n_bars", {10}},
                              {"bar_diam", 20.0},
                              {"bracket", {{"diam", 10.0}, {"arms", 2}, {"step", 150.0}}}}));
}

// Corners, valley side, uphill side; the diameter is that of the first group with bars.
TEST(CoreUltimate, CountsTheBarsOfARectangleByGroups) {
  const osg::ref_ptr<xReinfRectSection> section = new xReinfRectSection;
  xReinforcementBar bars;
  bars.setNumber(5);
  bars.setDiameter(18.0);
  section->SetAfValle(bars);
  xUltimateLimitStates ultimate;
  ultimate.structuralDesign.checkedReinforcement.sections = {
      osg::ref_ptr<xReinfCrossSection>(section.get())};
  const Json record = blocks_of(ultimate)["wall"]["reinforcement"][0];
  EXPECT_EQ(record["n_bars"], (Json{0, 5, 0}));
  EXPECT_EQ(record["bar_diam"], 18.0);
}

TEST(CoreUltimate, HoldsTheTextsOfWhatIsNotSatisfied) {
  xUltimateLimitStates ultimate;
  ultimate.structuralDesign = verified_wall();
  const Json blocks = blocks_of(ultimate);
  EXPECT_EQ(blocks["sf_min"], 0.8);
  EXPECT_EQ(blocks["failures"],
            Json::array({"Verifica a taglio non soddisfatta: comb=B, sf=0.8, sezione=6000"}));
}

}  // namespace
}  // namespace ostrel::host
