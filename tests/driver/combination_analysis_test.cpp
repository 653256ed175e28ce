// SPDX-License-Identifier: Apache-2.0
#include "ostrel/solver.h"
#include "support/wall_builder.h"

#include <gmock/gmock.h>

#include <cmath>
#include <initializer_list>
#include <limits>
#include <numbers>

namespace {

using ostrel::testing::sand;
using ostrel::testing::unfactored;
using ostrel::testing::WallBuilder;
using ::testing::ElementsAre;

// A solver after its first two stages, on a wall of 12 m that stands in 3 m of excavation.
class Combination : public ::testing::Test {
protected:
  explicit Combination(WallBuilder builder = WallBuilder{}.excavation(3000.0).layer(sand())) {
    solver.data = builder.build();
  }

  void build() {
    ASSERT_EQ(solver.model.create_Stratigraphy(&solver.data), ostrel::ok);
    xConstraint foot;
    foot.setPosition(12000.0);
    foot.axial.setActive(true);
    solver.data.restriction.imposed.push_back(foot);
    ASSERT_EQ(solver.model.create_FemModel(&solver.data), ostrel::ok);
    ASSERT_EQ(result.subgradeModulus.compute_SkSpring(
                  solver.model.fem.getJtsoil(), formulaAtRest, 0.0, solver.data.springIntervals,
                  geoFactorResistance, comb.geoFactors, solver.model.layers, 3000.0, 12000.0,
                  1000.0, 25.4),
              ostrel::ok);
  }

  OstrelErrorType solve() { return solver.solveForCombination(&comb, result); }

  std::vector<std::string> condition_names() const {
    std::vector<std::string> names;
    for (const xFemLoadCond& cond : result.femLoadConds)
      names.push_back(cond.getCondName());
    return names;
  }

  void set_active(const std::vector<bool>& active) {
    for (std::size_t i = 0; i < active.size(); ++i)
      comb.actions[i].setIsActive(active[i]);
  }

  xSolver solver;
  xLoadComb comb = unfactored("A");
  xCombResults result;
};

TEST_F(Combination, WithoutAWallFails) {
  solver.data.props = nullptr;
  EXPECT_EQ(solve(), errNoWall);
}

TEST_F(Combination, WithAnActionTooFewIsRefusedBeforeAnythingIsRead) {
  build();
  comb.actions.pop_back();
  EXPECT_EQ(solve(), errCondListMismatch);
  EXPECT_TRUE(result.femLoadConds.empty());
}

TEST_F(Combination, WithoutACombinationIsRefused) {
  build();
  EXPECT_EQ(solver.solveForCombination(nullptr, result), errCondListMismatch);
  xAction action;
  const osg::ref_ptr<xUniformLoad> load = new xUniformLoad;
  EXPECT_TRUE(solver.computeLoadPress(action, nullptr, load.get(), 1000.0).diagrams.empty());
}

// Nothing but the ground holds the wall across.
TEST_F(Combination, PassesTheCodeOfTheEquationsOn) {
  build();
  result.subgradeModulus.clear();
  EXPECT_EQ(solve(), errEquationSolve);
}

TEST_F(Combination, RefusesACapBeamWhoseWeightIsNotANumber) {
  dynamic_cast<xPile_Sheetpiling&>(*solver.data.props)
      .setHtrave(std::numeric_limits<double>::quiet_NaN());
  build();
  EXPECT_EQ(solve(), errEquationSolve);
}

// A limit pressure without a limit has no resultant.
TEST_F(Combination, RefusesSpringsWithoutALimit) {
  build();
  for (auto& [node, spring] : result.subgradeModulus.springs) {
    spring.type = xSpringInterval::limitUltimate;
    spring.ultimate_limit = std::numeric_limits<double>::infinity();
  }
  EXPECT_EQ(solve(), errEquationSolve);
}

TEST_F(Combination, WithEveryActionOffMovesNothing) {
  build();
  set_active({false, false, false});
  ASSERT_EQ(solve(), ostrel::ok);
  EXPECT_TRUE(result.femLoadConds.empty());
  ASSERT_FALSE(result.femResults.dispTrans.points.empty());
  for (const diag_Point& point : result.femResults.dispTrans.points) {
    EXPECT_DOUBLE_EQ(point.value, 0.0);
  }
}

TEST_F(Combination, WithoutWaterSkipsItsAction) {
  build();
  ASSERT_EQ(solve(), ostrel::ok);
  EXPECT_THAT(condition_names(), ElementsAre(getPredefined_CondName(0), getPredefined_CondName(1)));
  EXPECT_TRUE(result.hydroPress.diagrams.empty());
}

TEST_F(Combination, TakesTheActionsInTheirOrder) {
  solver.data.waterTable.setIsDefined(true);
  solver.data.waterTable.setLivelloMonte(-2750.0);
  solver.data.loadConds.resize(2);
  comb.actions.emplace_back().set("Q1", true, 1.0, 1.0);
  comb.actions.emplace_back().set("Q2", true, 1.0, 1.0);
  build();
  ASSERT_EQ(solve(), ostrel::ok);
  EXPECT_THAT(condition_names(), ElementsAre(getPredefined_CondName(0), getPredefined_CondName(1),
                                             getPredefined_CondName(2), "Q1", "Q2"));
  EXPECT_FALSE(result.hydroPress.diagrams.empty());
}

TEST_F(Combination, KeepsAnEmptyConditionThatIsActive) {
  solver.data.loadConds.resize(2);
  solver.data.loadConds[1].setObjectID(5, "crane");
  comb.actions.emplace_back().set("off", false, 1.0, 1.0);
  comb.actions.emplace_back().set("on", true, 1.0, 1.0);
  build();
  set_active({false, false, false});
  ASSERT_EQ(solve(), ostrel::ok);
  ASSERT_EQ(result.femLoadConds.size(), 1U);
  EXPECT_EQ(result.femLoadConds[0].getCondName(), "on");
  EXPECT_TRUE(result.femLoadConds[0].pressures.empty());
  EXPECT_TRUE(result.femLoadConds[0].nodalForces.empty());
  ASSERT_EQ(result.loadCondPress.size(), 1U);
  EXPECT_EQ(result.loadCondPress[0].id, 5);
  EXPECT_EQ(result.loadCondPress[0].name, "crane");
  EXPECT_TRUE(result.loadCondPress[0].loads.empty());
}

// A = pi 300² and w = 25e-6 * 2 * (1 - kv); kv is -0.1 once its sign is switched, so times 1.1.
TEST_F(Combination, WeighsTheWallWithTheSwitchedVerticalCoefficient) {
  build();
  comb.seismic.coefficients = {0.0, 0.1};
  comb.seismic.switchSign();
  comb.actions[0].set("weight", true, 2.0, 9.0);
  set_active({true, false, false});
  ASSERT_EQ(solve(), ostrel::ok);
  const double along = std::numbers::pi * 300.0 * 300.0 * 25e-6 * 2.0 * 1.1;
  EXPECT_NEAR(result.femLoadConds[0].pressures.at(0).aStart, along, 1e-12 * along);
}

// At rest K0 = 1 - sin 30° = 0.5; at the depth 3000 mm 18e-6 * 3000 * 0.5 * 1000 * 1.5 = 40.5 N/mm
// at the end of element 11, which presses towards the excavation: negative on the beam.
TEST_F(Combination, PressesWithTheEarthByItsSecondFactor) {
  build();
  comb.actions[1].set("earth", true, 7.0, 1.5);
  set_active({false, true, false});
  ASSERT_EQ(solve(), ostrel::ok);
  EXPECT_NEAR(result.femLoadConds[0].pressures.at(11).pEnd, -40.5, 1e-12 * 40.5);
  EXPECT_EQ(result.femLoadConds[0].pressures.size(), 12U);
}

// Water at 2750 mm: at the excavation 250 * 1000 * 1e-5 * 1.5 = 3.75 N/mm. The one element of that
// diagram is the first of the wall, at the head.
TEST_F(Combination, PressesWithTheWaterByItsSecondFactorFromTheHeadOn) {
  solver.data.waterTable.setIsDefined(true);
  solver.data.waterTable.setLivelloMonte(-2750.0);
  build();
  comb.actions[2].set("water", true, 7.0, 1.5);
  set_active({false, false, true});
  ASSERT_EQ(solve(), ostrel::ok);
  ASSERT_EQ(result.femLoadConds.size(), 1U);
  ASSERT_EQ(result.femLoadConds[0].pressures.size(), 1U);
  EXPECT_DOUBLE_EQ(result.femLoadConds[0].pressures.at(0).pStart, 0.0);
  EXPECT_NEAR(result.femLoadConds[0].pressures.at(0).pEnd, -3.75, 1e-12 * 3.75);
}

// Whatever the law, the pressure grows with the second factor and with 1 - kv: 3 * 1.1 = 3.3 times.
TEST_F(Combination, TakesLoadsOnTheGroundByTheSecondFactorAndTheVerticalCoefficient) {
  build();
  osg::ref_ptr<xUniformLoad> uniform = new xUniformLoad;
  uniform->setValue(0.01);
  osg::ref_ptr<xNastriformLoad> strip = new xNastriformLoad;
  strip->setStartValue(0.01);
  strip->setEndValue(0.02);
  strip->setPosition(500.0);
  strip->setExtension(1000.0);
  osg::ref_ptr<xLinearLoad> line = new xLinearLoad;
  osg::ref_ptr<xPuntiformLoad> point = new xPuntiformLoad;
  const auto place = [](xLocalizedLoad& load) {
    load.setValue(1e4);
    load.setPosition(1500.0);
  };
  place(*line);
  place(*point);
  const auto at_1000_mm = [this](xSoilLoad* load, double second, double kv) {
    xAction action;
    action.set("Q", true, 7.0, second);
    comb.seismic.coefficients = {0.0, kv};
    return solver.computeLoadPress(action, &comb, load, 1000.0).diagrams.at(0).points.at(4).value;
  };
  for (xSoilLoad* load :
       std::initializer_list<xSoilLoad*>{uniform.get(), strip.get(), line.get(), point.get()}) {
    const double plain = at_1000_mm(load, 1.0, 0.0);
    EXPECT_GT(plain, 0.0) << load->getIOClass();
    EXPECT_NEAR(at_1000_mm(load, 3.0, -0.1), 3.3 * plain, 1e-12 * 3.3 * plain)
        << load->getIOClass();
  }
}

TEST_F(Combination, FailsForALoadOnTheGroundWithoutALaw) {
  solver.data.loadConds.resize(1);
  solver.data.loadConds[0].soilLoads.push_back(new xLocalizedLoad);
  comb.actions.emplace_back().set("Q", true, 1.0, 1.0);
  build();
  EXPECT_EQ(solve(), errLoadUndefined);
  EXPECT_TRUE(result.loadCondPress.empty());
}

TEST_F(Combination, FailsForALoadBelowTheFoot) {
  solver.data.loadConds.resize(1);
  osg::ref_ptr<xConcenterdLoad> deep = new xConcenterdLoad;
  deep->setPosition(12001.0);
  solver.data.loadConds[0].shpileLoads.push_back(deep);
  comb.actions.emplace_back().set("Q", true, 1.0, 1.0);
  build();
  EXPECT_EQ(solve(), errLoadUndefined);
  // The pressures of the condition were kept before its wall loads were looked at.
  EXPECT_EQ(result.loadCondPress.size(), 1U);
}

// Two uniform loads of one condition, 0.01 and 0.03 N/mm²: p1 + p2 on the beam with the sign turned,
// K0 = 0.5: 0.04 * 0.5 * 1000 = 20; one alone gives -5.
TEST_F(Combination, TurnsTheSignOfTheSecondLoadOnTheGround) {
  solver.data.loadConds.resize(1);
  for (const double value : {0.01, 0.03}) {
    osg::ref_ptr<xUniformLoad> load = new xUniformLoad;
    load->setValue(value);
    solver.data.loadConds[0].soilLoads.push_back(load);
  }
  comb.actions.emplace_back().set("Q", true, 1.0, 1.0);
  build();
  set_active({false, false, false, true});
  ASSERT_EQ(solve(), ostrel::ok);
  EXPECT_NEAR(result.femLoadConds[0].pressures.at(0).pStart, 20.0, 1e-12 * 20.0);
  ASSERT_EQ(result.loadCondPress[0].loads.size(), 2U);
  EXPECT_NEAR(result.loadCondPress[0].loads[0].diagrams[0].points[0].value, 5.0, 1e-11);
}

TEST_F(Combination, GivesEverySpringItsLimitForce) {
  build();
  ASSERT_EQ(solve(), ostrel::ok);
  const auto& springs = result.subgradeModulus.springs;
  double trapezoids = 0.0;
  for (auto below = std::next(springs.begin()); below != springs.end(); ++below) {
    const NodeModulus& a = std::prev(below)->second;
    const NodeModulus& b = below->second;
    trapezoids +=
        (a.q(a.getDyLim()) + b.q(b.getDyLim())) * 1000.0 / 2.0 * (b.position - a.position);
  }
  double sum = 0.0;
  for (const auto& [node, force] : result.femResults.soilForces)
    sum += force.limitForce;
  EXPECT_GT(trapezoids, 0.0);
  EXPECT_NEAR(sum, trapezoids, 1e-12 * trapezoids);
}

// Loads, soil and supports of the whole wall balance across it and in moments about the head.
TEST_F(Combination, IsInEquilibrium) {
  solver.data.loadConds.resize(1);
  osg::ref_ptr<xConcenterdLoad> push = new xConcenterdLoad;
  push->force = {0.0, -5000.0};
  push->setPosition(1300.0);
  solver.data.loadConds[0].shpileLoads.push_back(push);
  comb.actions.emplace_back().set("Q", true, 1.0, 1.0);
  build();
  ASSERT_EQ(solve(), ostrel::ok);
  double force = 0.0;
  double moment = 0.0;
  double applied = 0.0;
  for (const xFemNodeData_pos& load : result.femResults.appliedForces) {
    force += load.data.y;
    applied += std::abs(load.data.y);
    moment += load.data.y * load.pos + load.data.r;
  }
  for (const auto& [node, spring] : result.femResults.soilForces) {
    force += spring.springForce;
    moment += spring.springForce * -spring.elevation;
  }
  EXPECT_NEAR(force, 0.0, 1e-7 * applied);
  EXPECT_NEAR(moment, 0.0, 1e-7 * applied * 12000.0);
}

TEST_F(Combination, ChoosesTheSeismicFormulaByItsType) {
  solver.data.calcSettings.setEpFormuls(true, formulaRankine);
  build();
  comb.setCombType(combSeismic);
  set_active({false, true, false});
  ASSERT_EQ(solve(), ostrel::ok);
  // Rankine's 1/3 in place of 0.5: 18e-6 * 3000 / 3 * 1000 = 18 N/mm.
  EXPECT_NEAR(result.femLoadConds[0].pressures.at(11).pEnd, -18.0, 1e-12 * 18.0);
}

TEST_F(Combination, KnowsFourLawsOfLoadsOnTheGround) {
  build();
  xAction action;
  const auto diagrams = [&](const osg::ref_ptr<xSoilLoad>& load) {
    return solver.computeLoadPress(action, &comb, load.get(), 1000.0).diagrams.size();
  };
  EXPECT_EQ(diagrams(new xUniformLoad), 1U);
  EXPECT_EQ(diagrams(new xNastriformLoad), 1U);
  EXPECT_EQ(diagrams(new xLinearLoad), 1U);
  EXPECT_EQ(diagrams(new xPuntiformLoad), 1U);
  EXPECT_EQ(diagrams(new xLocalizedLoad), 0U);
  EXPECT_EQ(diagrams(nullptr), 0U);
}

}  // namespace
