// SPDX-License-Identifier: Apache-2.0
// What holds for every run, whatever the wall: random walls, the same ones at each run of the tests.
#include "ostrel/solver.h"
#include "support/random_walls.h"
#include "support/stream_round_trip.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <string>
#include <vector>

namespace ostrel::testing {
namespace {

constexpr std::uint64_t walls = 12;

// All that a run leaves, as it is stored.
struct RunOutcome {
  xVeldErrorsType verdict = veldNothing;
  xSheetpilingRes results;
  xUltimateLimitStates ultimate;
  xServiceabilityLimitStates serviceability;
  std::vector<xVeldError> errors;

  std::string bytes() const { return stored(results) + stored(ultimate) + stored(serviceability); }
};

RunOutcome run_on(xSolver& solver, const xSheetpilingData& data) {
  RunOutcome outcome;
  solver.reset();
  solver.data = data;
  outcome.verdict =
      solver.solve(outcome.results, outcome.ultimate, outcome.serviceability, outcome.errors);
  return outcome;
}

RunOutcome run(const xSheetpilingData& data) {
  xSolver solver;
  return run_on(solver, data);
}

TEST(Runs, GiveTheSameBytesWhateverRanBefore) {
  xSolver used;
  for (std::uint64_t seed = 1; seed <= walls; ++seed) {
    SCOPED_TRACE(seed);
    const std::string first = run(random_wall(seed)).bytes();
    EXPECT_TRUE(run(random_wall(seed)).bytes() == first);
    run_on(used, random_wall(seed + 100));  // another wall, whose solver serves again
    EXPECT_TRUE(run_on(used, random_wall(seed)).bytes() == first);
  }
}

TEST(Runs, LeaveResultsThatReadAsTheyWereStored) {
  for (std::uint64_t seed = 1; seed <= walls; ++seed) {
    SCOPED_TRACE(seed);
    const RunOutcome outcome = run(random_wall(seed));
    ASSERT_EQ(outcome.verdict, veldNothing);
    ASSERT_EQ(outcome.results.combResults.size(), 2U);
    const std::string bytes = stored(outcome.results);
    EXPECT_TRUE(stored(through_memory(outcome.results)) == bytes);
  }
}

// The order in which combinations are told does not change any of them.
TEST(Runs, GiveEachCombinationWhatItHasByItself) {
  for (std::uint64_t seed = 1; seed <= walls; ++seed) {
    SCOPED_TRACE(seed);
    const xSheetpilingData both = random_wall(seed);
    xSheetpilingData turned = both;
    std::swap(turned.loadCombs[0], turned.loadCombs[1]);
    xSheetpilingData alone = both;
    alone.loadCombs.pop_back();
    const RunOutcome one = run(both);
    const RunOutcome two = run(turned);
    EXPECT_TRUE(stored(one.results.combResults.at(0)) == stored(two.results.combResults.at(1)));
    EXPECT_TRUE(stored(one.results.combResults.at(1)) == stored(two.results.combResults.at(0)));
    EXPECT_TRUE(stored(one.results.combResults.at(0))
                == stored(run(alone).results.combResults.at(0)));
  }
}

// The wall and its ground with all lengths multiplied by `k`, and so, with the same unit weights,
// stresses by k, forces by k³. All numbers stay exact where k is a power of 2.
void enlarge(xSoilProps& soil, double k) {
  soil.setElasticityModulus(k * soil.getElasticityModulus());
  soil.computeShearModulus();
  soil.setConstrModulus(k * soil.getConstrModulus());
  soil.setCohesion(k * soil.getCohesion());
  soil.setAdhesion(k * soil.getAdhesion());
}

void enlarge(xAnchor& anchor, double k) {
  anchor.z *= k;
  anchor.material.setElasticityModulus(k * anchor.material.getElasticityModulus());
  anchor.setcableDiam(k * anchor.getcableDiam());
  anchor.setbulbDiam(k * anchor.getbulbDiam());
  anchor.setFreeLength(k * anchor.getFreeLength());
  anchor.setBulbLength(k * anchor.getBulbLength());
}

xSheetpilingData enlarged(xSheetpilingData data, double k) {
  auto* wall = dynamic_cast<xPile_Sheetpiling*>(data.props.get());
  const auto* circle = dynamic_cast<const xCircSecProp*>(wall->section.get());
  osg::ref_ptr<xCircSecProp> section = new xCircSecProp;
  section->setRadius(k * circle->getRadius());
  section->computeProp();
  wall->section = section;
  wall->setLength(k * wall->getLength());
  wall->setDepth(k * wall->getDepth());
  wall->setSpacing(k * wall->getSpacing());
  wall->setHtrave(k * wall->getHtrave());
  wall->setBtrave(k * wall->getBtrave());
  wall->material.setElasticityModulus(k * wall->material.getElasticityModulus());
  wall->material.computeShearModulus();
  for (xBoundSoilLayer& layer : data.soilLayers) {
    enlarge(layer.soil, k);
    for (auto& polygon : layer.polygons) {
      for (PolygonPoint& point : polygon)
        point *= k;
    }
  }
  for (xAnchor& anchor : data.anchors)
    enlarge(anchor, k);
  data.waterTable.setLivelloMonte(k * data.waterTable.getLivelloMonte());
  data.waterTable.setLivelloValle(k * data.waterTable.getLivelloValle());
  data.calcSettings.setStepMolle(k * data.calcSettings.getStepMolle());
  data.calcSettings.setDispLim(k * data.calcSettings.getDispLim());
  return data;
}

// Each value of `b` is `factor` times that of `a` at `k` times its depth, within 1e-7 of the
// largest: what the conditioning of the equations leaves.
void expect_scaled(const xDiagram& a, const xDiagram& b, double k, double factor) {
  ASSERT_EQ(a.points.size(), b.points.size());
  double scale = 0.0;
  for (const diag_Point& point : a.points)
    scale = std::max(scale, std::abs(point.value));
  EXPECT_GT(scale, 0.0);
  for (std::size_t i = 0; i < a.points.size(); ++i) {
    EXPECT_DOUBLE_EQ(b.points[i].s, k * a.points[i].s);
    EXPECT_NEAR(b.points[i].value, factor * a.points[i].value, 1e-7 * factor * scale);
  }
}

TEST(Runs, OfAnEnlargedWallGiveEnlargedResults) {
  for (const double k : {0.5, 4.0}) {
    for (std::uint64_t seed = 1; seed <= walls; ++seed) {
      SCOPED_TRACE(seed);
      const xSheetpilingData data = random_wall(seed);
      xSolver large;
      large.femOptions.tolerance *= k;
      const RunOutcome one = run(data);
      const RunOutcome two = run_on(large, enlarged(data, k));
      ASSERT_EQ(two.results.combResults.size(), one.results.combResults.size());
      for (std::size_t i = 0; i < one.results.combResults.size(); ++i) {
        const xFemResults& a = one.results.combResults[i].femResults;
        const xFemResults& b = two.results.combResults[i].femResults;
        expect_scaled(a.dispTrans, b.dispTrans, k, k);
        expect_scaled(a.rotation, b.rotation, k, 1.0);
        expect_scaled(a.soilReaction, b.soilReaction, k, k);
        expect_scaled(a.axial, b.axial, k, k * k * k);
        expect_scaled(a.shear, b.shear, k, k * k * k);
        expect_scaled(a.moment, b.moment, k, k * k * k * k);
      }
    }
  }
}

// A random wall with the verifications that have a factor of resistance wanted.
xSheetpilingData verified_wall(std::uint64_t seed, double resistance_factor) {
  xSheetpilingData data = random_wall(seed);
  auto& wall = dynamic_cast<xPile_Sheetpiling&>(*data.props);
  wall.checkSettings.pileSettings.setCsi3(1.7);
  wall.checkSettings.pileSettings.setCsi4(1.7);
  for (xLoadComb& comb : data.loadCombs) {
    for (const auto check : {checkVerticalLimitLoad, checkAnchorPullout, checkPiping})
      comb.checks[check] = true;
    for (const auto key : {factorPileBase, factorPileShaftCompression, factorPileShaftTension,
                           factorAnchors, factorPiping})
      comb.ulsFactors[key] = resistance_factor;
  }
  return data;
}

// A resistance divided by twice the factor is half of it: exactly, since 2 does not round.
TEST(Runs, HalveTheirSafetyFactorsWithTwiceTheFactorsOfResistance) {
  std::size_t anchors = 0;
  std::size_t seepages = 0;
  for (std::uint64_t seed = 1; seed <= walls; ++seed) {
    SCOPED_TRACE(seed);
    const RunOutcome once = run(verified_wall(seed, 1.1));
    const RunOutcome twice = run(verified_wall(seed, 2.2));
    const auto& piles = once.ultimate.geotechnicalPileDesign.results;
    ASSERT_EQ(piles.size(), 2U);
    for (std::size_t i = 0; i < piles.size(); ++i) {
      EXPECT_GT(piles[i].getSf(), 0.0);
      EXPECT_EQ(twice.ultimate.geotechnicalPileDesign.results.at(i).getSf(),
                piles[i].getSf() / 2.0);
    }
    const auto& bulbs = once.ultimate.geotechnicalAnchorDesign.anchors;
    for (std::size_t i = 0; i < bulbs.size(); ++i, ++anchors) {
      const auto& halved = twice.ultimate.geotechnicalAnchorDesign.anchors.at(i);
      for (std::size_t j = 0; j < bulbs[i].combinations.size(); ++j) {
        EXPECT_GT(bulbs[i].combinations[j].getSf(), 0.0);
        EXPECT_EQ(halved.combinations.at(j).getSf(), bulbs[i].combinations[j].getSf() / 2.0);
      }
    }
    const auto& piping = once.ultimate.hydraulicChecks.piping;
    for (std::size_t i = 0; i < piping.size(); ++i, ++seepages) {
      EXPECT_GT(piping[i].getSf(), 0.0);
      EXPECT_EQ(twice.ultimate.hydraulicChecks.piping.at(i).getSf(), piping[i].getSf() / 2.0);
    }
  }
  EXPECT_GT(anchors, 2U);
  EXPECT_GT(seepages, 2U);
}

}  // namespace
}  // namespace ostrel::testing
