// SPDX-License-Identifier: Apache-2.0
#include "ostrel/solver.h"

#include "ostrel/language.h"
#include "soil/surcharge_laws.h"
#include "support/relative.h"
#include "support/stream_round_trip.h"
#include "support/wall_builder.h"

#include <gmock/gmock.h>

#include <cmath>
#include <numbers>
#include <tuple>
#include <vector>

namespace {

using ostrel::testing::expect_relative;
using ostrel::testing::sand;
using ostrel::testing::stored;
using ostrel::testing::unfactored;
using ostrel::testing::WallBuilder;
using ::testing::StartsWith;

// A wall of 12 m in 6 m of excavation in sand that stands.
WallBuilder standing_wall() {
  return WallBuilder{}.excavation(3000.0).layer(sand());
}

// A load on the ground that no law knows.
osg::ref_ptr<xSoilLoad> load_without_a_law() {
  return new xLocalizedLoad;
}

std::vector<double> passive_limits(const xSubgradeReactionModulus& soil) {
  std::vector<double> limits;
  for (const auto& [node, spring] : soil.springs) {
    limits.push_back(spring.passive_limit);
  }
  return limits;
}

class Run : public ::testing::Test {
protected:
  void SetUp() override { ASSERT_TRUE(ostrel::set_language("it")); }
  void TearDown() override { ostrel::set_language(""); }

  xVeldErrorsType run(const xSheetpilingData& data) {
    solver.data = data;
    return solver.solve(results, uls, sls, errors);
  }

  xSolver solver;
  xSheetpilingRes results;
  xUltimateLimitStates uls;
  xServiceabilityLimitStates sls;
  std::vector<xVeldError> errors;
};

TEST_F(Run, WithoutAWallReportsItAndNothingElse) {
  EXPECT_EQ(run(xSheetpilingData{}), veldError);
  ASSERT_EQ(errors.size(), 1U);
  EXPECT_EQ(errors[0].getID(), errNoWall);
  EXPECT_EQ(errors[0].getIdObj(), -1);
  EXPECT_EQ(errors[0].MakeErrStr(), "Errore: Nessuna paratia di pali definita");
  EXPECT_TRUE(results.combResults.empty());
}

TEST_F(Run, WithoutCombinationsGoesThrough) {
  EXPECT_EQ(run(standing_wall().build()), veldNothing);
  EXPECT_TRUE(errors.empty());
  EXPECT_TRUE(results.combResults.empty());
  EXPECT_FALSE(solver.model.fem.nodes.empty());
}

TEST_F(Run, OfAGroundThatMissesTheWallCarriesTheIdOfTheWall) {
  xSheetpilingData data = standing_wall().build();
  xBoundSoilLayer beside;
  beside.polygons = {ostrel::testing::rectangle(1000.0, 2000.0, -500.0, 0.0)};
  data.soilLayers.push_back(beside);
  EXPECT_EQ(run(data), veldError);
  ASSERT_EQ(errors.size(), 1U);
  EXPECT_EQ(errors[0].getID(), errNoLayerIntersection);
  EXPECT_EQ(errors[0].getIdObj(), 7);
}

TEST_F(Run, OfAnExcavationBelowTheFootFindsNoNode) {
  EXPECT_EQ(run(WallBuilder{}.excavation(13000.0).layer(sand()).build()), veldError);
  ASSERT_EQ(errors.size(), 1U);
  EXPECT_EQ(errors[0].getID(), errNoExcavationNode);
  EXPECT_EQ(errors[0].GetErrorStr(), "Nodo corrispondente alla quota di fondo scavo non trovato");
}

TEST_F(Run, HoldsTheFootOfTheWallEachTime) {
  const xSheetpilingData data = standing_wall().build();
  ASSERT_EQ(run(data), veldNothing);
  ASSERT_EQ(solver.data.restriction.imposed.size(), 1U);
  const xConstraint& foot = solver.data.restriction.imposed[0];
  EXPECT_DOUBLE_EQ(foot.getPosition(), 12000.0);
  EXPECT_TRUE(foot.axial.getActive());
  EXPECT_DOUBLE_EQ(foot.axial.getValue(), 0.0);
  EXPECT_FALSE(foot.horizontal.getActive());
  EXPECT_FALSE(foot.rotation.getActive());
  EXPECT_TRUE(data.restriction.imposed.empty());
  solver.model.reset();
  ASSERT_EQ(solver.solve(results, uls, sls, errors), veldNothing);
  EXPECT_EQ(solver.data.restriction.imposed.size(), 2U);
}

TEST_F(Run, AppendsTheGroundToTheModel) {
  ASSERT_EQ(run(standing_wall().build()), veldNothing);
  const std::size_t layers = solver.model.layers.size();
  ASSERT_EQ(layers, 3U);  // cut at the excavation and at the foot
  ASSERT_EQ(solver.solve(results, uls, sls, errors), veldNothing);
  EXPECT_EQ(solver.model.layers.size(), 2 * layers);
}

TEST_F(Run, RefusesACombinationWithTooFewActions) {
  xSheetpilingData data = standing_wall().combination(unfactored("A1")).build();
  data.loadConds.resize(1);
  EXPECT_EQ(run(data), veldError);
  ASSERT_EQ(errors.size(), 1U);
  EXPECT_EQ(errors[0].getID(), errCondListMismatch);
  EXPECT_EQ(errors[0].getIdObj(), -1);
  EXPECT_THAT(errors[0].GetErrorStr(), StartsWith("Numero di condizioni"));
}

TEST_F(Run, StopsAtACombinationWithTooManyActionsAndKeepsTheEarlierResults) {
  xLoadComb crowded = unfactored("B");
  crowded.actions.emplace_back();
  const xSheetpilingData data = standing_wall()
                                    .combination(unfactored("A"))
                                    .combination(crowded)
                                    .combination(unfactored("C"))
                                    .build();
  EXPECT_EQ(run(data), veldError);
  ASSERT_EQ(errors.size(), 1U);
  EXPECT_EQ(errors[0].getID(), errCondListMismatch);
  ASSERT_EQ(results.combResults.size(), 1U);
  EXPECT_EQ(results.combResults[0].getCombName(), "A");
}

TEST_F(Run, ReportsAFailedCombinationByNameAndGoesOn) {
  xSheetpilingData data = standing_wall().build();
  data.loadConds.resize(1);
  data.loadConds[0].soilLoads.push_back(load_without_a_law());
  for (const char* name : {"first", "second"}) {
    xLoadComb comb = unfactored(name);
    comb.setcombIndex(static_cast<int>(data.loadCombs.size()) + 10);
    comb.actions.emplace_back().set("Q", data.loadCombs.empty(), 1.0, 1.0);
    comb.checks[checkWallStructure] = true;
    data.loadCombs.push_back(comb);
  }
  EXPECT_EQ(run(data), veldError);
  ASSERT_EQ(errors.size(), 1U);
  EXPECT_EQ(errors[0].getID(), errLoadUndefined);
  EXPECT_EQ(errors[0].getIdObj(), 7);
  EXPECT_EQ(errors[0].GetErrorStr(), "Combinazione 'first': Carico non definito");
  ASSERT_EQ(results.combResults.size(), 1U);
  EXPECT_EQ(results.combResults[0].getCombName(), "second");
  EXPECT_EQ(results.combResults[0].getcombIndex(), 11);
  EXPECT_TRUE(uls.structuralDesign.combResults.empty());  // the verifications have not run
}

// To the last bit, although the matrices of the beam pass from one combination to the next; the
// first here is pushed beyond what the soil can give and fails.
TEST_F(Run, GivesEveryCombinationTheResultsOfARunOfItsOwn) {
  xLoadComb pushed = unfactored("pushed");
  pushed.seismic.coefficients = {0.9, 0.0};
  pushed.actions[1].set("earth", true, 50.0, 50.0);
  xLoadComb heavy = unfactored("heavy");
  heavy.actions[1].set("earth", true, 1.3, 1.3);
  const std::vector<xLoadComb> combs{pushed, heavy, unfactored("plain")};
  WallBuilder together = standing_wall();
  for (const xLoadComb& comb : combs)
    together.combination(comb);
  ASSERT_EQ(run(together.build()), veldError);
  ASSERT_EQ(errors.size(), 1U);
  ASSERT_EQ(errors[0].getID(), errNonLinearNotConverged);
  ASSERT_EQ(results.combResults.size(), 2U);
  for (std::size_t i = 0; i < 2; ++i) {
    xSolver alone;
    xSheetpilingRes own;
    alone.data = standing_wall().combination(combs[i + 1]).build();
    ASSERT_EQ(alone.solve(own, uls, sls, errors), veldNothing);
    EXPECT_EQ(stored(results.combResults[i]), stored(own.combResults.at(0)));
    uls.reset();
  }
}

// The wall with a line of 10 N/mm 1500 mm behind it and a point of 90 kN 600 mm behind it, each in a
// condition of its own. All four combinations have the factors 1, but 1.5 where the line acts.
xSheetpilingData wall_beside_loads() {
  xSheetpilingData data = standing_wall().build();
  data.loadConds.resize(2);
  const osg::ref_ptr<xLinearLoad> line = new xLinearLoad;
  line->setValue(10.0);
  line->setPosition(1500.0);
  data.loadConds[0].soilLoads = {line};
  const osg::ref_ptr<xPuntiformLoad> point = new xPuntiformLoad;
  point->setValue(90e3);
  point->setPosition(600.0);
  data.loadConds[1].soilLoads = {point};
  for (const auto& [name, has_line, has_point] : {std::tuple{"none", false, false},
                                                  {"line", true, false},
                                                  {"point", false, true},
                                                  {"both", true, true}}) {
    xLoadComb comb = unfactored(name);
    comb.actions.emplace_back().set("line", has_line, 7.0, 1.5);
    comb.actions.emplace_back().set("point", has_point, 7.0, 1.0);
    data.loadCombs.push_back(comb);
  }
  return data;
}

// H = 3000 and at the depth 1500 n = 0.5, the end of the sixth element of 250 mm. The line has
// m = 0.5: 4 / (pi H) m² n / (n² + m²)² = 4 / (3000 pi) * 0.125 / 0.25 = 2 / (3000 pi), by 10 N/mm,
// 1000 mm of wall and 1.5: 10 / pi. The point has m = 0.2: 0.28 n² / (n² + 0.16)³ = 0.07 / 0.068921,
// by 90e3 / H² = 0.01 and the width over which it spreads.
TEST_F(Run, PressesTheBeamWithALineAndAPointOnTheGround) {
  ASSERT_EQ(run(wall_beside_loads()), veldNothing);
  ASSERT_EQ(results.combResults.size(), 4U);
  const std::vector<xFemLoadCond>& conditions = results.combResults[3].femLoadConds;
  ASSERT_EQ(conditions.size(), 4U);
  EXPECT_EQ(conditions[2].getCondName(), "line");
  EXPECT_EQ(conditions[2].pressures.size(), 12U);
  expect_relative(conditions[2].pressures.at(5).pEnd, -10.0 / std::numbers::pi);
  EXPECT_EQ(conditions[3].getCondName(), "point");
  EXPECT_EQ(conditions[3].pressures.size(), 12U);
  const double width = ostrel::soil::point_spread(600.0, 1000.0);
  expect_relative(conditions[3].pressures.at(5).pEnd, -0.01 * 0.07 / 0.068921 * width);
}

// What presses on the 3 m above the excavation, element by element a trapezoid of 250 mm, is what the
// springs below hold, in force and in moment about the head.
TEST_F(Run, HoldsALineAndAPointOnTheGroundByTheSoil) {
  ASSERT_EQ(run(wall_beside_loads()), veldNothing);
  for (const xCombResults& combination : results.combResults) {
    double pushed = 0.0;
    double moment = 0.0;
    for (const xFemLoadCond& condition : combination.femLoadConds) {
      for (const auto& [element, pressure] : condition.pressures) {
        const double top = 250.0 * element;
        const double start = -pressure.pStart;
        const double end = -pressure.pEnd;
        pushed += 250.0 * (start + end) / 2.0;
        moment += 250.0 * (start * (top + 250.0 / 3.0) + end * (top + 500.0 / 3.0)) / 2.0;
      }
    }
    double held = 0.0;
    double held_moment = 0.0;
    for (const auto& [node, spring] : combination.femResults.soilForces) {
      held += spring.springForce;
      held_moment += spring.springForce * -spring.elevation;
    }
    EXPECT_GT(pushed, 0.0);
    EXPECT_NEAR(held, pushed, 1e-6 * pushed) << combination.getCombName();
    EXPECT_NEAR(held_moment, moment, 1e-6 * moment) << combination.getCombName();
  }
}

// With springs that have no limit the wall moves by the sum of what each load moves it.
TEST_F(Run, WithoutLimitsAddsUpWhatALineAndAPointDo) {
  solver.femOptions.linear = true;
  ASSERT_EQ(run(wall_beside_loads()), veldNothing);
  ASSERT_EQ(results.combResults.size(), 4U);
  const auto displacement = [this](std::size_t combination, std::size_t node) {
    return results.combResults[combination].femResults.dispTrans.points.at(node).value;
  };
  const std::size_t nodes = results.combResults[0].femResults.dispTrans.points.size();
  const double head = std::abs(displacement(0, 0));
  for (const std::size_t load : {1U, 2U}) {
    EXPECT_GT(std::abs(displacement(load, 0)), 1.01 * head);
  }
  for (std::size_t node = 0; node < nodes; ++node) {
    EXPECT_NEAR(displacement(3, node) + displacement(0, node),
                displacement(1, node) + displacement(2, node), 1e-7 * head);
  }
}

TEST_F(Run, ReportsACombinationWhoseSpringsFindNoInterval) {
  xLoadComb comb = unfactored("A");
  comb.seismic.coefficients = {0.2, 0.1};
  xSheetpilingData data = standing_wall().combination(comb).build();
  data.springIntervals.clear();
  EXPECT_EQ(run(data), veldError);
  ASSERT_EQ(errors.size(), 1U);
  EXPECT_EQ(errors[0].getID(), errNoUltimatePressure);
  EXPECT_THAT(errors[0].GetErrorStr(), StartsWith("Combinazione 'A': "));
  // The sign is switched after the springs only.
  EXPECT_DOUBLE_EQ(solver.data.loadCombs[0].seismic.coefficients[1], 0.1);
}

TEST_F(Run, KeepsTheWordsOfThePrefixInEveryLanguage) {
  ASSERT_TRUE(ostrel::set_language("en"));
  xSheetpilingData data = standing_wall().combination(unfactored("A")).build();
  data.springIntervals.clear();
  EXPECT_EQ(run(data), veldError);
  EXPECT_THAT(errors[0].GetErrorStr(), StartsWith("Combinazione 'A': "));
  EXPECT_THAT(errors[0].MakeErrStr(), StartsWith("Error: Combinazione 'A': "));
}

TEST_F(Run, KeepsTheMessagesThatWereThere) {
  errors.emplace_back(std::string("before"), 1, xVeldError::typeError);
  EXPECT_EQ(run(standing_wall().combination(unfactored("A")).build()), veldNothing);
  ASSERT_EQ(errors.size(), 1U);
  EXPECT_EQ(xVeldError::getWorstErr(errors), veldError);
}

TEST_F(Run, SwitchesTheVerticalSeismicCoefficientForGood) {
  xLoadComb comb = unfactored("S");
  comb.seismic.coefficients = {0.2, 0.1};
  const xSheetpilingData data = standing_wall().combination(comb).build();
  ASSERT_EQ(run(data), veldNothing);
  EXPECT_DOUBLE_EQ(solver.data.loadCombs[0].seismic.coefficients[0], 0.2);
  EXPECT_DOUBLE_EQ(solver.data.loadCombs[0].seismic.coefficients[1], -0.1);
  EXPECT_DOUBLE_EQ(data.loadCombs[0].seismic.coefficients[1], 0.1);
  // A second run on the same input analyses the opposite sign.
  solver.model.reset();
  results.reset();
  ASSERT_EQ(solver.solve(results, uls, sls, errors), veldNothing);
  EXPECT_DOUBLE_EQ(solver.data.loadCombs[0].seismic.coefficients[1], 0.1);
}

// A = pi 300² and w = 25e-6 (1 - kv), the sign of kv = 0.1 switched before: 1.1 times the weight.
TEST_F(Run, WeighsTheWallWithTheSwitchedVerticalCoefficient) {
  xLoadComb comb = unfactored("S");
  comb.seismic.coefficients = {0.0, 0.1};
  ASSERT_EQ(run(standing_wall().combination(comb).build()), veldNothing);
  ASSERT_EQ(results.combResults.size(), 1U);
  expect_relative(results.combResults[0].femLoadConds[0].pressures.at(0).aStart,
                  std::numbers::pi * 300.0 * 300.0 * 25e-6 * 1.1, 1e-12);
}

TEST_F(Run, TakesTheSeismicFormulaForTheSpringsOfASeismicCombination) {
  xLoadComb comb = unfactored("S");
  comb.setCombType(combSeismic);
  xSheetpilingData data = standing_wall().combination(comb).build();
  data.calcSettings.setEpFormuls(false, formulaRankine);
  data.calcSettings.setEpFormuls(true, formulaAtRest);
  ASSERT_EQ(run(data), veldNothing);
  ASSERT_EQ(results.combResults.size(), 1U);
  const auto limits_by = [&](formulType formula) {
    xSubgradeReactionModulus soil;
    EXPECT_EQ(soil.compute_SkSpring(
                  solver.model.fem.getJtsoil(), formula, 0.0, data.springIntervals,
                  geoFactorResistance, comb.geoFactors, solver.model.layers, data.props->getDepth(),
                  data.props->getLength(), 1000.0, data.calcSettings.getDispLim()),
              ostrel::ok);
    return passive_limits(soil);
  };
  const std::vector<double> found = passive_limits(results.combResults[0].subgradeModulus);
  EXPECT_EQ(found, limits_by(formulaAtRest));
  EXPECT_NE(found, limits_by(formulaRankine));
}

// The verifications then meet more results than combinations and say so.
TEST_F(Run, AppendsToTheResults) {
  const xSheetpilingData data = standing_wall().combination(unfactored("A")).build();
  ASSERT_EQ(run(data), veldNothing);
  solver.reset();
  EXPECT_EQ(run(data), veldError);
  EXPECT_EQ(results.combResults.size(), 2U);
  ASSERT_EQ(errors.size(), 1U);
  EXPECT_EQ(errors[0].getID(), errResultCount);
  EXPECT_EQ(errors[0].getIdObj(), 7);
}

TEST_F(Run, VerifiesTheDisplacementsInTheEnd) {
  xLoadComb comb = unfactored("SLE");
  comb.checks[checkDisplacements] = true;
  ASSERT_EQ(run(standing_wall().combination(comb).build()), veldNothing);
  ASSERT_EQ(sls.displacements.results.size(), 1U);
  EXPECT_DOUBLE_EQ(sls.displacements.results[0].getJtsPos(), 3000.0);
  EXPECT_EQ(sls.displacements.results[0].getIdObj(), 7);
}

TEST_F(Run, WithAnEmptyTableOfVerificationsFailsInTheEnd) {
  xLoadComb comb = unfactored("A");
  comb.checks.clear();
  EXPECT_EQ(run(standing_wall().combination(comb).build()), veldError);
  ASSERT_EQ(errors.size(), 1U);
  EXPECT_EQ(errors[0].getID(), errNoCheckEnabled);
  EXPECT_EQ(results.combResults.size(), 1U);
}

TEST_F(Run, SharesTheWallAndDoesNotWriteToIt) {
  const xSheetpilingData data = standing_wall().combination(unfactored("A")).build();
  ASSERT_EQ(run(data), veldNothing);
  EXPECT_EQ(solver.data.props.get(), data.props.get());
  EXPECT_DOUBLE_EQ(data.props->getLength(), 12000.0);
}

TEST(Solver, HasTheDefaultOptionsWhenNew) {
  const xSolver solver;
  EXPECT_FALSE(solver.femOptions.linear);
  EXPECT_DOUBLE_EQ(solver.femOptions.tolerance, 0.001);
  EXPECT_EQ(solver.femOptions.maxIterations, 100);
  EXPECT_FALSE(solver.data.props.valid());
}

TEST(Solver, ResetLeavesTheOptionsAlone) {
  xSolver solver;
  solver.femOptions.maxIterations = 5;
  solver.data = standing_wall().build();
  solver.model.layers.resize(1);
  solver.reset();
  EXPECT_EQ(solver.femOptions.maxIterations, 5);
  EXPECT_FALSE(solver.data.props.valid());
  EXPECT_TRUE(solver.model.layers.empty());
}

TEST(Solver, CopiesAndMovesAllItsMembers) {
  xSolver solver;
  solver.femOptions.tolerance = 0.5;
  solver.data = standing_wall().build();
  solver.model.layers.resize(2);
  xSolver copy = solver;
  EXPECT_DOUBLE_EQ(copy.femOptions.tolerance, 0.5);
  EXPECT_EQ(copy.model.layers.size(), 2U);
  EXPECT_EQ(copy.data.props, solver.data.props);
  const xSolver moved = std::move(copy);
  EXPECT_EQ(moved.model.layers.size(), 2U);
  EXPECT_EQ(moved.data.soilLayers.size(), solver.data.soilLayers.size());
}

}  // namespace
