// SPDX-License-Identifier: Apache-2.0
#include "ostrel/language.h"
#include "ostrel/solver.h"
#include "support/tolerances_guard.h"
#include "support/wall_builder.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <initializer_list>
#include <limits>

namespace {

using ostrel::testing::anchor_at;
using ostrel::testing::ring_of_bars;
using ostrel::testing::rows_of_bars;
using ostrel::testing::sand;
using ostrel::testing::TolerancesGuard;
using ostrel::testing::unfactored;
using ostrel::testing::WallBuilder;
using ::testing::HasSubstr;

// A combination that asks for some verifications, all factors of resistance 1.
xLoadComb asking_for(std::initializer_list<pCheckTypes> checks) {
  xLoadComb comb = unfactored("A");
  comb.setcombIndex(3);
  for (const pCheckTypes check : checks) {
    comb.checks[check] = true;
  }
  for (int factor = factorDownhillSoil; factor <= factorUplift; ++factor) {
    comb.ulsFactors[static_cast<checkUlsFactors>(factor)] = 1.0;
  }
  return comb;
}

// One circle from a centre 5 m above the head and 2 m before the wall.
void search_one_circle(xSheetpilingData& data) {
  xSlopeStabilitySettings& slope = data.calcSettings.slope;
  slope.setWidthstripe(1000.0);
  slope.setStepradius(1000.0);
  xGridPoint point;
  point.center = {-2000.0, 5000.0};
  point.setMinRadius(18000.0);
  point.setMaxRadius(18000.0);
  slope.grid.points = {point};
}

class Verifications : public ::testing::Test {
protected:
  void SetUp() override { ASSERT_TRUE(ostrel::set_language("it")); }
  void TearDown() override { ostrel::set_language(""); }

  // A wall of 12 m in 3 m of excavation in sand, its one combination solved.
  void solve(const xLoadComb& comb, WallBuilder wall = {}) {
    solver.data = wall.excavation(3000.0).layer(sand()).combination(comb).step(1000.0).build();
    search_one_circle(solver.data);
    xUltimateLimitStates unused;
    ASSERT_EQ(solver.solve(results, unused, sls, errors), veldNothing);
    ASSERT_TRUE(errors.empty());
  }
  // The same wall with anchors 1 m below the head.
  void solve_anchored(const xLoadComb& comb) {
    solve(comb, WallBuilder{}.anchor(anchor_at(1000.0)));
  }
  // Water 1 m below the head behind the wall, and at the bottom of the excavation.
  void seep() {
    solver.data.waterTable.setIsDefined(true);
    solver.data.waterTable.setLivelloMonte(-1000.0);
    solver.data.waterTable.setLivelloValle(-3000.0);
  }
  OstrelErrorType check() { return solver.checkULS(results, uls, errors); }

  xSolver solver;
  xSheetpilingRes results;
  xUltimateLimitStates uls;
  xServiceabilityLimitStates sls;
  std::vector<xVeldError> errors;
};

TEST_F(Verifications, WithoutAnActiveCombinationStoreNothing) {
  solve_anchored(asking_for({}));
  seep();
  EXPECT_EQ(check(), ostrel::ok);
  EXPECT_TRUE(uls.structuralDesign.combResults.empty());
  EXPECT_TRUE(uls.structuralDesign.bendShear.combinations.empty());
  EXPECT_TRUE(uls.slopeStabilityDesign.getResults().empty());
  EXPECT_TRUE(uls.structuralAnchorDesign.anchors.empty());
  EXPECT_TRUE(uls.geotechnicalAnchorDesign.anchors.empty());
  EXPECT_TRUE(uls.geotechnicalPileDesign.results.empty());
  EXPECT_TRUE(uls.rigidBodyDesign.results.empty());
  EXPECT_TRUE(uls.traveResults.bendShear.combinations.empty());
  EXPECT_FALSE(uls.traveResults.done);
  EXPECT_TRUE(uls.hydraulicChecks.piping.empty());
  EXPECT_TRUE(uls.hydraulicChecks.uplift.empty());
  EXPECT_DOUBLE_EQ(uls.getSfMin(nullptr), 1e10);
}

TEST_F(Verifications, DesignTheWallAndVerifyIt) {
  solve(asking_for({checkWallStructure}));
  ASSERT_EQ(check(), ostrel::ok);
  ASSERT_EQ(uls.structuralDesign.bendShear.combinations.size(), 1U);
  const xBendShearCombResults& wall = uls.structuralDesign.bendShear.combinations[0];
  EXPECT_EQ(wall.getIdObj(), 7);
  EXPECT_EQ(wall.getCombIndex(), 3);
  EXPECT_EQ(wall.getCombName(), "A");
  // 12 elements of 1 m have two sections each and 13 different abscissae.
  EXPECT_EQ(wall.sections.size(), 24U);
  EXPECT_EQ(uls.structuralDesign.designedReinforcement.sections.size(), 13U);
  const diag_Point& shear = results.combResults[0].femResults.shear.points[10];
  EXPECT_DOUBLE_EQ(wall.sections[10].abscissa, shear.s);
  EXPECT_DOUBLE_EQ(wall.sections[10].shear.getVd(), shear.value);
  EXPECT_TRUE(uls.slopeStabilityDesign.getResults().empty());
}

TEST_F(Verifications, SearchTheWorstCircle) {
  solve(asking_for({checkGlobalStability}));
  ASSERT_EQ(check(), ostrel::ok);
  EXPECT_TRUE(uls.structuralDesign.bendShear.combinations.empty());
  ASSERT_EQ(uls.slopeStabilityDesign.getResults().size(), 1U);
  const xSlopeStability& worst = uls.slopeStabilityDesign.getResults()[0];
  EXPECT_EQ(worst.getIdObj(), 7);
  EXPECT_DOUBLE_EQ(worst.getRadius(), 18000.0);
  EXPECT_DOUBLE_EQ(uls.getSfMin(nullptr), worst.getSf());
}

TEST_F(Verifications, EndFirstWhereResultsAndCombinationsDifferInNumber) {
  solve(asking_for({checkWallStructure}));
  solver.data.props = nullptr;  // which would be found next
  results.combResults.clear();
  EXPECT_EQ(check(), errResultCount);
}

TEST_F(Verifications, EndAtAnEmptyTableOfVerifications) {
  solve(asking_for({checkWallStructure}));
  solver.data.props = nullptr;
  solver.data.loadCombs[0].checks.clear();
  EXPECT_EQ(check(), errNoCheckEnabled);
}

TEST_F(Verifications, MissTheWallAfterItsForcesAreCollected) {
  solve(asking_for({checkWallStructure}));
  solver.data.props = nullptr;
  EXPECT_EQ(check(), errNoWall);
  ASSERT_EQ(uls.structuralDesign.combResults.size(), 1U);
  EXPECT_EQ(uls.structuralDesign.combResults[0].getIdObj(), -1);
  EXPECT_TRUE(uls.structuralDesign.designedReinforcement.sections.empty());
}

// Also where no combination asks for the wall's verification.
TEST_F(Verifications, NeedReinforcementSettingsThatSuitTheSection) {
  solve(asking_for({checkGlobalStability}));
  solver.data.props->checkSettings.reinforcementSettings = nullptr;
  EXPECT_EQ(check(), errInvalidSection);
  solver.data.props->checkSettings.reinforcementSettings = rows_of_bars();
  EXPECT_EQ(check(), errInvalidSection);
  EXPECT_TRUE(uls.slopeStabilityDesign.getResults().empty());
  solver.data.props->checkSettings.reinforcementSettings = ring_of_bars();
  EXPECT_EQ(check(), ostrel::ok);
}

// With no tolerance on abscissae a record fits none, not even its own.
TEST_F(Verifications, KeepTheDesignOfAWallThatCannotBeVerified) {
  solve(asking_for({checkWallStructure, checkGlobalStability}));
  const TolerancesGuard as_before;
  xTolerances strict = *getTolerances();
  strict.values[xTolerances::position_identity] = 0.0;
  setTolerances(strict);
  EXPECT_EQ(check(), errNoReinfAtAbscissa);
  EXPECT_EQ(uls.structuralDesign.designedReinforcement.sections.size(), 13U);
  EXPECT_TRUE(uls.structuralDesign.bendShear.combinations.empty());
  EXPECT_TRUE(uls.slopeStabilityDesign.getResults().empty());
}

TEST_F(Verifications, KeepTheWallWhereTheSlopeCannotBeVerified) {
  solve_anchored(asking_for({checkWallStructure, checkGlobalStability, checkAnchorStructure}));
  solver.data.calcSettings.slope.setFormulation(2);
  EXPECT_EQ(check(), errStabilityFormula);
  EXPECT_EQ(uls.structuralDesign.bendShear.combinations.size(), 1U);
  EXPECT_TRUE(uls.slopeStabilityDesign.getResults().empty());
  EXPECT_TRUE(uls.structuralAnchorDesign.anchors.empty());
}

TEST_F(Verifications, TakeTheForcesOfTheAnchors) {
  solve_anchored(asking_for({checkAnchorStructure, checkAnchorPullout}));
  ASSERT_EQ(check(), ostrel::ok);
  ASSERT_EQ(uls.structuralAnchorDesign.anchors.size(), 1U);
  ASSERT_EQ(uls.geotechnicalAnchorDesign.anchors.size(), 1U);
  const xStrAnchorCombRes& tendon = uls.structuralAnchorDesign.anchors[0].combinations.at(0);
  EXPECT_EQ(tendon.getIdObj(), 101);
  EXPECT_EQ(tendon.getCombName(), "A");
  EXPECT_GT(tendon.getFd(), 0.0);
  const xGeoAnchorCombRes& bulb = uls.geotechnicalAnchorDesign.anchors[0].combinations.at(0);
  EXPECT_EQ(bulb.getIdObj(), 101);
  EXPECT_DOUBLE_EQ(bulb.getFd(), tendon.getFd());
  EXPECT_DOUBLE_EQ(uls.getSfMin(nullptr), std::min(tendon.getSf(), bulb.getSf()));
}

TEST_F(Verifications, KeepTheSlopeWhereTheTendonsCannotBeVerified) {
  solve_anchored(asking_for({checkGlobalStability, checkAnchorStructure, checkAnchorPullout}));
  solver.data.anchors[0].settings.setGammaS(0.0);
  EXPECT_EQ(check(), errSteelFactorZero);
  EXPECT_EQ(uls.slopeStabilityDesign.getResults().size(), 1U);
  EXPECT_TRUE(uls.structuralAnchorDesign.anchors.empty());
  EXPECT_TRUE(uls.geotechnicalAnchorDesign.anchors.empty());
}

TEST_F(Verifications, KeepTheTendonsWhereTheBulbsCannotBeVerified) {
  solve_anchored(asking_for({checkAnchorStructure, checkAnchorPullout, checkVerticalLimitLoad}));
  solver.data.anchors[0].setBulbLength(0.0);
  EXPECT_EQ(check(), errNoBulb);
  EXPECT_EQ(uls.structuralAnchorDesign.anchors.size(), 1U);
  EXPECT_TRUE(uls.geotechnicalAnchorDesign.anchors.empty());
  EXPECT_TRUE(uls.geotechnicalPileDesign.results.empty());
}

TEST_F(Verifications, FollowTheNodesAndTheGroundToThePiles) {
  solve(asking_for({checkVerticalLimitLoad}));
  ASSERT_EQ(check(), ostrel::ok);
  ASSERT_EQ(uls.geotechnicalPileDesign.results.size(), 1U);
  const xBearCapacityPile& pile = uls.geotechnicalPileDesign.results[0];
  EXPECT_EQ(pile.getIdObj(), 7);
  EXPECT_GT(pile.getFd(), 0.0);
  EXPECT_GT(pile.getRd(), 0.0);
  EXPECT_DOUBLE_EQ(uls.getSfMin(nullptr), pile.getSf());
}

TEST_F(Verifications, KeepTheAnchorsWhereThePilesCannotBeVerified) {
  solve_anchored(asking_for({checkAnchorPullout, checkVerticalLimitLoad, checkPiping}));
  seep();
  results.combResults[0].femResults.nodalForces[999].x = 1.0;  // no such node
  EXPECT_EQ(check(), errFemNodeNotFound);
  EXPECT_EQ(uls.geotechnicalAnchorDesign.anchors.size(), 1U);
  EXPECT_TRUE(uls.geotechnicalPileDesign.results.empty());
  EXPECT_TRUE(uls.hydraulicChecks.piping.empty());
}

TEST_F(Verifications, MoveTheWallAboutItsAnchors) {
  solve_anchored(asking_for({checkRigidMotion}));
  ASSERT_EQ(check(), ostrel::ok);
  ASSERT_EQ(uls.rigidBodyDesign.results.size(), 1U);
  const rigidBodyMotionCheck& motion = uls.rigidBodyDesign.results[0];
  EXPECT_EQ(motion.getIdObj(), 7);
  EXPECT_DOUBLE_EQ(motion.rotCenter, -1000.0);
  EXPECT_DOUBLE_EQ(uls.getSfMin(nullptr), motion.getSf());
}

// An anchor 0.5 m below the head bears on the beam of 0.8 m; its force comes from its own
// verification: with F on every one of the two anchors on 10 m of wall, q = F / 5000 mm.
TEST_F(Verifications, HandTheForcesOfTheAnchorsToTheCapBeam) {
  solve(asking_for({checkAnchorStructure, checkCapBeamStructure}),
        WallBuilder{}.anchor(anchor_at(500.0)));
  ASSERT_EQ(check(), ostrel::ok);
  EXPECT_TRUE(uls.traveResults.done);
  ASSERT_EQ(uls.traveResults.bendShear.combinations.size(), 1U);
  const xSectionCheck& beam = uls.traveResults.bendShear.combinations[0].sections.at(0);
  const double force = uls.structuralAnchorDesign.anchors.at(0).combinations.at(0).getFd();
  ASSERT_GT(force, 0.0);
  // q l² / 8 over the span of two piles, 2 m.
  EXPECT_DOUBLE_EQ(beam.flex.Md, force / 5000.0 * 2000.0 * 2000.0 / 8.0);
}

TEST_F(Verifications, KeepTheMotionWhereTheCapBeamCannotBeVerified) {
  solve_anchored(asking_for({checkRigidMotion, checkCapBeamStructure, checkPiping}));
  seep();
  dynamic_cast<xPile_Sheetpiling&>(*solver.data.props)
      .setBtrave(std::numeric_limits<double>::infinity());
  EXPECT_EQ(check(), errInvalidSection);
  EXPECT_EQ(uls.rigidBodyDesign.results.size(), 1U);
  EXPECT_FALSE(uls.traveResults.done);
  EXPECT_TRUE(uls.hydraulicChecks.piping.empty());
}

// The wall's foot lies 12 m below the head, the excavation 3 m: the water goes down 11 m and up 9 m.
TEST_F(Verifications, FollowTheWaterAroundTheFoot) {
  solve(asking_for({checkPiping, checkUplift}));
  seep();
  ASSERT_EQ(check(), ostrel::ok);
  ASSERT_EQ(uls.hydraulicChecks.piping.size(), 1U);
  ASSERT_EQ(uls.hydraulicChecks.uplift.size(), 1U);
  EXPECT_EQ(uls.hydraulicChecks.piping[0].getIdObj(), 7);
  EXPECT_EQ(uls.hydraulicChecks.piping[0].getCombName(), "A");
  EXPECT_DOUBLE_EQ(uls.hydraulicChecks.piping[0].Ld, 9000.0);
}

TEST_F(Verifications, EndWithTheWaterWhoseCodeIsThatOfAll) {
  solve(asking_for({checkVerticalLimitLoad, checkCapBeamStructure, checkUplift}));
  seep();
  solver.data.loadCombs[0].actions.clear();
  EXPECT_EQ(check(), errCondListMismatch);
  EXPECT_EQ(uls.geotechnicalPileDesign.results.size(), 1U);
  EXPECT_TRUE(uls.traveResults.done);
  EXPECT_TRUE(uls.hydraulicChecks.uplift.empty());
}

// Nothing is emptied before.
TEST_F(Verifications, AppendToWhatStands) {
  solve(asking_for({checkWallStructure, checkGlobalStability}));
  ASSERT_EQ(check(), ostrel::ok);
  ASSERT_EQ(check(), ostrel::ok);
  EXPECT_EQ(uls.structuralDesign.combResults.size(), 2U);
  EXPECT_EQ(uls.slopeStabilityDesign.getResults().size(), 2U);
}

TEST_F(Verifications, MakeNoErrorOfASafetyFactorBelowOne) {
  xSheetpilingData data = WallBuilder{}
                              .excavation(3000.0)
                              .layer(sand())
                              .combination(asking_for({checkWallStructure}))
                              .build();
  data.props->checkSettings.reinforcementSettings->material.steel.setFyk(1.0);
  solver.data = data;
  EXPECT_EQ(solver.solve(results, uls, sls, errors), veldNothing);
  EXPECT_TRUE(errors.empty());
  EXPECT_LT(uls.getSfMin(nullptr), 1.0);
}

TEST_F(Verifications, ReportACodeWithTheWallAndRunNoFurther) {
  xSheetpilingData data = WallBuilder{}
                              .excavation(3000.0)
                              .layer(sand())
                              .combination(asking_for({checkDisplacements}))
                              .build();
  data.props->checkSettings.reinforcementSettings = nullptr;
  solver.data = data;
  EXPECT_EQ(solver.solve(results, uls, sls, errors), veldError);
  ASSERT_EQ(errors.size(), 1U);
  EXPECT_EQ(errors[0].getIdObj(), 7);
  EXPECT_EQ(errors[0].GetErrorStr(), "Sezione non valida");
  EXPECT_EQ(results.combResults.size(), 1U);
  EXPECT_TRUE(sls.displacements.results.empty());
}

// A centre 1 m below the head: its circle of 15 m meets the ground behind the wall above it.
TEST_F(Verifications, WarnOfCirclesLeftOutAndGoOn) {
  xSheetpilingData data = WallBuilder{}
                              .excavation(3000.0)
                              .layer(sand())
                              .combination(asking_for({checkGlobalStability}))
                              .build();
  search_one_circle(data);
  xGridPoint low;
  low.center = {-2000.0, -1000.0};
  low.setMinRadius(15000.0);
  low.setMaxRadius(15000.0);
  data.calcSettings.slope.grid.points.push_back(low);
  solver.data = data;
  EXPECT_EQ(solver.solve(results, uls, sls, errors), veldNothing);
  ASSERT_EQ(errors.size(), 1U);
  EXPECT_EQ(errors[0].getErr(), veldWarning);
  EXPECT_EQ(errors[0].getID(), errFreeText);
  EXPECT_THAT(errors[0].GetErrorStr(), HasSubstr("(-2.00,-1.00)"));
  EXPECT_EQ(xVeldError::getWorstErr(errors), veldWarning);
  EXPECT_EQ(uls.slopeStabilityDesign.getResults().size(), 1U);
}

TEST_F(Verifications, WithoutCombinationsRunOnEmptyResults) {
  solver.data = WallBuilder{}.excavation(3000.0).layer(sand()).build();
  EXPECT_EQ(solver.solve(results, uls, sls, errors), veldNothing);
  EXPECT_EQ(uls.structuralDesign.designedReinforcement.sections.size(), 1U);
  EXPECT_DOUBLE_EQ(uls.getSfMin(nullptr), 1e10);
}

}  // namespace
