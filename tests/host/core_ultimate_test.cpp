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

TEST(CoreUltimate, HoldsTheSlipCircles) {
  xUltimateLimitStates ultimate;
  xSlopeStability circle = circle_of("A", 3);
  circle.get_gridPointRes().resize(1);
  xGridPointResults& centre = circle.get_gridPointRes()[0];
  centre.center = xPoint2d(1.0, 2.0);
  centre.sf = 3.0;
  centre.radius = 4.0;
  centre.Mstab = 5.0;
  centre.Mdestab = 6.0;
  ultimate.slopeStabilityDesign.getResults() = {circle};
  ultimate.slopeStabilityDesign.computeSfMin();
  const Json slope = blocks_of(ultimate)["slope"];
  EXPECT_EQ(slope["sf"], 2.0);
  EXPECT_EQ(slope["index"], 0);
  EXPECT_EQ(slope["combs"][0], (Json{{"name", "A"},
                                     {"index", 3},
                                     {"sf", 2.0},
                                     {"xc", -4000.0},
                                     {"yc", 4500.0},
                                     {"radius", 21000.0},
                                     {"mstab", 6e10},
                                     {"mdestab", -3e10},
                                     {"grid", {{1.0, 2.0, 3.0, 4.0, 5.0, 6.0}}}}));
}

TEST(CoreUltimate, HoldsTendonsAndBondOfTheAnchors) {
  xUltimateLimitStates ultimate;
  ultimate.structuralAnchorDesign.anchors.resize(1);
  ultimate.structuralAnchorDesign.anchors[0].combinations = {
      anchor_result<xStrAnchorCombRes>("A", 1.5)};
  xGeoAnchorCombRes bond = anchor_result<xGeoAnchorCombRes>("A", 0.5);
  bond.bulbs.resize(1);
  bond.bulbs[0].setDepthStress(0.1);
  bond.bulbs[0].set_Area(5e6);
  bond.bulbs[0].setSoilCoeff(0.4);
  bond.bulbs[0].setAlphaD(1.2);
  ultimate.geotechnicalAnchorDesign.anchors.resize(1);
  ultimate.geotechnicalAnchorDesign.anchors[0].combinations = {bond};
  const Json blocks = blocks_of(ultimate);
  EXPECT_EQ(blocks["anchors_str"], Json::array({{{"sf", 1.5},
                                                 {"index", 0},
                                                 {"combs", Json::array({{{"name", "A"},
                                                                         {"index", 1},
                                                                         {"depth", 2000.0},
                                                                         {"Rd", 300e3},
                                                                         {"Fd", 200e3},
                                                                         {"sf", 1.5}}})}}}));
  EXPECT_EQ(blocks["anchors_geo"][0]["sf"], 0.5);
  EXPECT_EQ(blocks["anchors_geo"][0]["combs"][0]["Rd"], 100e3);
  EXPECT_EQ(blocks["anchors_geo"][0]["combs"][0]["bulbs"],
            Json::array({{{"stress", 0.1}, {"area", 5e6}, {"coeff", 0.4}, {"alpha_d", 1.2}}}));
}

TEST(CoreUltimate, HoldsTheBearingOfThePiles) {
  xBearCapacityPile result;
  result.setCheckID(7, 2, "A");
  result.setDepthStress(1.0);
  result.setNq(2.0);
  result.setNc(3.0);
  result.setPlim(4.0);
  result.setSlim(5.0);
  result.setFd(6.0);
  result.setRd(7.0);
  xUltimateLimitStates ultimate;
  ultimate.geotechnicalPileDesign.results = {result};
  EXPECT_EQ(blocks_of(ultimate)["piles"], Json::array({{{"name", "A"},
                                                        {"index", 2},
                                                        {"stress", 1.0},
                                                        {"Nq", 2.0},
                                                        {"Nc", 3.0},
                                                        {"Plim", 4.0},
                                                        {"Slim", 5.0},
                                                        {"Fd", 6.0},
                                                        {"Rd", 7.0}}}));
}

TEST(CoreUltimate, HoldsTheMotionAsARigidBody) {
  rigidBodyMotionCheck result;
  result.setCheckID(7, 2, "A");
  result.rotCenter = 1.0;
  result.Hdest = 2.0;
  result.Hres = 3.0;
  result.Mdest = 4.0;
  result.Mres = 5.0;
  xUltimateLimitStates ultimate;
  ultimate.rigidBodyDesign.results = {result};
  EXPECT_EQ(blocks_of(ultimate)["rigid"], Json::array({{{"name", "A"},
                                                        {"index", 2},
                                                        {"rot_center", 1.0},
                                                        {"Hdest", 2.0},
                                                        {"Hres", 3.0},
                                                        {"Mdest", 4.0},
                                                        {"Mres", 5.0}}}));
}

TEST(CoreUltimate, HoldsTheCapBeam) {
  xUltimateLimitStates ultimate;
  EXPECT_EQ(blocks_of(ultimate)["cap_beam"], (Json{{"done", false},
                                                   {"B", 0.0},
                                                   {"H", 0.0},
                                                   {"bars", nullptr},
                                                   {"bracket", nullptr},
                                                   {"combs", Json::array()}}));
  TraveResults& beam = ultimate.traveResults;
  beam.done = true;
  beam.B = 1000.0;
  beam.H = 800.0;
  beam.bendShear.combinations = {sections_of("A", 1, {section_at(0, 100, 50)})};
  beam.checked = new xReinfRectSection;
  EXPECT_EQ(blocks_of(ultimate)["cap_beam"],
            (Json{{"done", true},
                  {"B", 1000.0},
                  {"H", 800.0},
                  {"bars", {0, 0, 0}},
                  {"bracket", {{"diam", 0.0}, {"arms", 2}, {"step", 0.0}}},
                  {"combs", Json::array({{{"name", "A"},
                                          {"index", 1},
                                          {"Md", 100e6},
                                          {"Mrd", 300e6},
                                          {"Vd", 50e3},
                                          {"VRd", 200e3}}})}}));
}

TEST(CoreUltimate, HoldsUpliftAndPiping) {
  xUltimateLimitStates ultimate;
  ultimate.hydraulicChecks.uplift.resize(1);
  verificaSollevamento& uplift = ultimate.hydraulicChecks.uplift[0];
  uplift.setCheckID(7, 1, "A");
  uplift.Udst = 100.0;
  uplift.Gstb = 300.0;
  uplift.gammaStb = 1.0;
  uplift.gammaDst = 1.5;
  uplift.gammaR = 1.25;
  uplift.i = 0.125;
  uplift.iCrit = 0.5;
  ultimate.hydraulicChecks.piping.resize(1);
  verificaSifonamento& piping = ultimate.hydraulicChecks.piping[0];
  piping.setCheckID(7, 2, "B");
  piping.dH = 1.0;
  piping.Ld = 4.0;
  piping.iCrit = 1.0;
  piping.gammaR = 1.0;
  const Json hydraulic = blocks_of(ultimate)["hydraulic"];
  EXPECT_EQ(hydraulic["uplift"], Json::array({{{"name", "A"},
                                               {"index", 1},
                                               {"Udst", 100.0},
                                               {"Gstb", 300.0},
                                               {"gammaStb", 1.0},
                                               {"gammaDst", 1.5},
                                               {"gammaR", 1.25},
                                               {"i", 0.125},
                                               {"iCrit", 0.5},
                                               {"sf", 2.0}}}));
  EXPECT_EQ(hydraulic["piping"], Json::array({{{"name", "B"},
                                               {"index", 2},
                                               {"dH", 1.0},
                                               {"Ld", 4.0},
                                               {"iCrit", 1.0},
                                               {"gammaR", 1.0},
                                               {"sf", 4.0}}}));
}

}  // namespace
}  // namespace ostrel::host
