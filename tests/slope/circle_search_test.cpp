// SPDX-License-Identifier: Apache-2.0
#include "ostrel/slope_stability.h"
#include "slope/circle_cut.h"
#include "slope/stripes.h"
#include "support/slope_ground.h"
#include "support/stream_round_trip.h"
#include "support/tolerances_guard.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

using ostrel::testing::ground;
using ostrel::testing::plain_combination;

constexpr double nan = std::numeric_limits<double>::quiet_NaN();

/// A cutting 6 m deep: the retained ground 20 m wide on the right, the excavation on the left.
struct Search {
  Search() {
    layers.push_back(ground({{0, 0},
                             {0, -6'000},
                             {-20'000, -6'000},
                             {-20'000, -20'000},
                             {20'000, -20'000},
                             {20'000, 0},
                             {0, 0}},
                            2e-5, 2e-5, 0.02, 0.4));
    settings.setWidthstripe(1'000);
    settings.setStepradius(1'000);
  }

  void add(double x, double y, double min_radius, double max_radius) {
    xGridPoint point;
    point.center = {x, y};
    point.setMinRadius(min_radius);
    point.setMaxRadius(max_radius);
    settings.grid.points.push_back(point);
  }

  OstrelErrorType run() {
    return result.check(1'000, 1e-5, settings, layers, {}, {}, comb, {}, stripes, ignored);
  }

  std::vector<xBoundSoilLayer> layers;
  xSlopeStabilitySettings settings;
  xLoadComb comb = plain_combination();
  xSlopeStability::Stripes stripes;
  std::vector<err_circle> ignored;
  xSlopeStability result;
};

// All circles about a centre 3 m below the ground level on the retained side, reaching up to it,
// are left out, and so tell which radii were tried.
TEST(CircleSearch, TriesOneCircleForOneRadius) {
  Search search;
  search.add(5'000, -3'000, 8'000, 8'000);
  EXPECT_EQ(search.run(), errEmptyCentersGrid);
  ASSERT_EQ(search.ignored.size(), 1U);
  EXPECT_DOUBLE_EQ(search.ignored[0].Rmin, 8'000.0);
  EXPECT_DOUBLE_EQ(search.ignored[0].Rmax, 8'000.0);
}

TEST(CircleSearch, NeedsNoStepForOneRadius) {
  for (const double step : {0.0, -1'000.0, nan}) {
    Search search;
    search.add(5'000, -3'000, 8'000, 8'000);
    search.settings.setStepradius(step);
    EXPECT_EQ(search.run(), errEmptyCentersGrid) << step;
    ASSERT_EQ(search.ignored.size(), 1U) << step;
    EXPECT_DOUBLE_EQ(search.ignored[0].Rmax, 8'000.0) << step;
  }
}

// -1500 / 2000 without its decimals is 0, so 1 radius; -1500 / 1000 is -1, so none, and -1500 / 400
// is -3, so none either.
TEST(CircleSearch, PassesOverACentreThatAStepAgainstTheRangeLeavesNoRadius) {
  for (const auto& [step, circles] : {std::pair{-2'000.0, 1U}, {-1'000.0, 0U}, {-400.0, 0U}}) {
    Search search;
    search.add(5'000, -3'000, 8'000, 9'500);
    search.settings.setStepradius(step);
    EXPECT_EQ(search.run(), errEmptyCentersGrid) << step;
    ASSERT_EQ(search.ignored.size(), circles) << step;
    for (const err_circle& only : search.ignored) {
      EXPECT_DOUBLE_EQ(only.Rmax, 8'000.0);
    }
  }
}

// 3000 / 1000 + 1 = 4 radii by a step of 3000 / 4: 8000, 8750, 9500, 10 250.
TEST(CircleSearch, DoesNotTryTheLargestRadius) {
  Search search;
  search.add(5'000, -3'000, 8'000, 11'000);
  EXPECT_EQ(search.run(), errEmptyCentersGrid);
  ASSERT_EQ(search.ignored.size(), 1U);
  EXPECT_DOUBLE_EQ(search.ignored[0].Rmin, 8'000.0);
  EXPECT_DOUBLE_EQ(search.ignored[0].Rmax, 10'250.0);
}

// 2600 / 1000 without its decimals is 2, so 3 radii by a step of 2600 / 3: 8000, 8866.7, 9733.3.
TEST(CircleSearch, DividesARangeThatIsNoMultipleOfTheStep) {
  Search search;
  search.add(5'000, -3'000, 8'000, 10'600);
  EXPECT_EQ(search.run(), errEmptyCentersGrid);
  ASSERT_EQ(search.ignored.size(), 1U);
  EXPECT_DOUBLE_EQ(search.ignored[0].Rmin, 8'000.0);
  EXPECT_DOUBLE_EQ(search.ignored[0].Rmax, 8'000.0 + 2.0 * 2'600.0 / 3.0);
}

TEST(CircleSearch, RefusesWrongRadii) {
  for (const auto& [low, high] : {std::pair{2.0, 1.0}, {nan, 1.0}, {1.0, nan}}) {
    Search search;
    search.add(0, 5'000, low, high);
    EXPECT_EQ(search.run(), errCircleBounds) << low << " to " << high;
  }
}

TEST(CircleSearch, RefusesAStepThatIsNoneOrMakesMoreThanAMillionRadii) {
  for (const double step : {0.0, -0.0, nan, 1e-4}) {
    Search search;
    search.add(0, 5'000, 1'000, 2'000);
    search.settings.setStepradius(step);
    EXPECT_EQ(search.run(), errCircleBounds) << step;
  }
}

TEST(CircleSearch, RefusesWidthsOfStripes) {
  Search search;
  search.settings.setWidthstripe(0.0);
  EXPECT_EQ(search.run(), errEmptyPolygons);
  search.settings.setWidthstripe(1'000);
  search.layers[0].polygons.emplace_back();
  EXPECT_EQ(search.run(), errEmptyPolygons);
}

TEST(CircleSearch, RefusesAnEmptyGrid) {
  Search search;
  EXPECT_EQ(search.run(), errEmptyCentersGrid);
}

TEST(CircleSearch, RefusesOtherFormulationsBeforeTheFactorOfResistance) {
  Search search;
  search.add(-2'000, 3'000, 12'000, 12'000);
  search.comb.ulsFactors.clear();
  search.settings.setFormulation(2);
  EXPECT_EQ(search.run(), errStabilityFormula);
  search.settings.setFormulation(1);
  EXPECT_EQ(search.run(), errStabilityFactors);
}

TEST(CircleSearch, RefusesAFactorOfResistanceBelowTheTolerance) {
  const ostrel::testing::TolerancesGuard guard;
  xTolerances tolerances;
  tolerances.values[1] = 0.5;
  setTolerances(tolerances);
  Search search;
  search.add(-2'000, 3'000, 12'000, 12'000);
  search.comb.ulsFactors[factorGlobalStability] = 0.4;
  EXPECT_EQ(search.run(), errStabilityFactors);
  search.comb.ulsFactors[factorGlobalStability] = nan;
  EXPECT_EQ(search.run(), errStabilityFactors);
  search.comb.ulsFactors[factorGlobalStability] = 0.5;
  EXPECT_EQ(search.run(), ostrel::ok);
}

// Both are looked at only once a circle has slices.
TEST(CircleSearch, LeavesOutAllCirclesBeforeItMindsTheFormulation) {
  Search search;
  search.add(5'000, -3'000, 8'000, 8'000);
  search.settings.setFormulation(7);
  EXPECT_EQ(search.run(), errEmptyCentersGrid);
}

TEST(CircleSearch, DividesFactorAndStabilisingMomentByTheFactorOfResistance) {
  Search plain;
  plain.add(-2'000, 3'000, 12'000, 12'000);
  ASSERT_EQ(plain.run(), ostrel::ok);
  Search factored = plain;
  factored.result.reset();
  factored.comb.ulsFactors[factorGlobalStability] = 2.0;
  ASSERT_EQ(factored.run(), ostrel::ok);
  EXPECT_DOUBLE_EQ(factored.result.getSf(), plain.result.getSf() / 2.0);
  EXPECT_DOUBLE_EQ(factored.result.getMstab(), plain.result.getMstab() / 2.0);
  EXPECT_DOUBLE_EQ(factored.result.getMdestab(), plain.result.getMdestab());
}

// Circles far above the ground have no slices: each has a factor of 1e10 / 1.25, which is below the
// 1e10 of no circle at all. The radii are 100, 133.3 and 166.7 at either centre.
TEST(CircleSearch, KeepsTheEarliestOfEqualCircles) {
  Search search;
  search.comb.ulsFactors[factorGlobalStability] = 1.25;
  search.settings.setStepradius(50);
  search.add(0, 50'000, 100, 200);
  search.add(1'000, 50'000, 100, 200);
  ASSERT_EQ(search.run(), ostrel::ok);
  ASSERT_EQ(search.result.get_gridPointRes().size(), 2U);
  for (const xGridPointResults& at_centre : search.result.get_gridPointRes()) {
    EXPECT_DOUBLE_EQ(at_centre.sf, 8e9);
    EXPECT_DOUBLE_EQ(at_centre.radius, 100.0);
  }
  EXPECT_DOUBLE_EQ(search.result.getSf(), 8e9);
  EXPECT_DOUBLE_EQ(search.result.getXC(), 0.0);
  EXPECT_DOUBLE_EQ(search.result.getRadius(), 100.0);
  EXPECT_TRUE(search.result.getStripesMin().empty());
}

// The centre is far above the ground: no slices, a factor of 1e10, which replaces nothing.
TEST(CircleSearch, CountsACircleThatMeetsNoGround) {
  Search search;
  search.add(0, 50'000, 100, 100);
  ASSERT_EQ(search.run(), ostrel::ok);
  ASSERT_EQ(search.result.get_gridPointRes().size(), 1U);
  EXPECT_DOUBLE_EQ(search.result.get_gridPointRes()[0].sf, 1e10);
  EXPECT_DOUBLE_EQ(search.result.get_gridPointRes()[0].radius, 0.0);
  EXPECT_DOUBLE_EQ(search.result.get_gridPointRes()[0].center.y, 50'000.0);
  EXPECT_DOUBLE_EQ(search.result.getSf(), 1e10);
  EXPECT_TRUE(search.result.getStripesMin().empty());
}

// A second search forgets the factor and the radius of the first, but not its centre and moments.
TEST(CircleSearch, LeavesCentreAndMomentsOfAnEarlierSearch) {
  Search search;
  search.add(-2'000, 3'000, 12'000, 12'000);
  ASSERT_EQ(search.run(), ostrel::ok);
  const double moment = search.result.getMstab();
  ASSERT_GT(moment, 0.0);
  search.settings.grid.points[0].center = {5'000, -3'000};  // meets the ground above its centre
  ASSERT_EQ(search.run(), ostrel::ok);
  EXPECT_DOUBLE_EQ(search.result.getSf(), 1e10);
  EXPECT_DOUBLE_EQ(search.result.getRadius(), 0.0);
  EXPECT_TRUE(search.result.getStripesMin().empty());
  EXPECT_DOUBLE_EQ(search.result.getXC(), -2'000.0);
  EXPECT_DOUBLE_EQ(search.result.getMstab(), moment);
  EXPECT_EQ(search.result.get_gridPointRes().size(), 1U);
}

TEST(CircleSearch, AppendsToTheResultsOfCentres) {
  Search search;
  search.add(-2'000, 3'000, 12'000, 12'000);
  ASSERT_EQ(search.run(), ostrel::ok);
  ASSERT_EQ(search.run(), ostrel::ok);
  EXPECT_EQ(search.result.get_gridPointRes().size(), 2U);
}

TEST(CircleSearch, TakesCutGroundAsItStands) {
  Search search;
  search.add(-2'000, 3'000, 12'000, 12'000);
  search.stripes.resize(1);  // one stripe without a piece
  search.settings.setWidthstripe(-1.0);
  ASSERT_EQ(search.run(), ostrel::ok);
  EXPECT_DOUBLE_EQ(search.result.getSf(), 1e10);
}

// What the governing circle leaves behind is what cutting and summing by hand leave in the pieces.
TEST(CircleSearch, KeepsTheSlicesOfTheGoverningCircle) {
  Search search;
  search.add(-2'000, 3'000, 9'500, 14'000);
  search.add(-4'000, 3'000, 9'500, 14'000);
  ASSERT_EQ(search.run(), ostrel::ok);
  const stabChekData found = search.result.getstabChekData();
  const xSlopeStability::Center center{found.xc, found.yc};
  xSlopeStability::Stripes slices;
  ASSERT_TRUE(ostrel::slope::intersectStripes(center, found.radius, search.stripes, slices));
  double stab = 0.0;
  double destab = 0.0;
  const double factor = xSlopeStability{}.fellenius_new(center, found.radius, 1'000, 1e-5, {},
                                                        search.comb, {}, slices, stab, destab);
  EXPECT_NEAR(found.sf, factor, 1e-12 * factor);
  EXPECT_NEAR(found.Mstab, stab, 1e-12 * stab);
  EXPECT_NEAR(found.Mdestab, destab, 1e-12 * std::abs(destab));
  const auto& kept = search.result.getStripesMin();
  ASSERT_EQ(kept.size(), slices.size());
  for (std::size_t k = 0; k < kept.size(); ++k) {
    ASSERT_EQ(kept[k].size(), slices[k].size());
    for (std::size_t i = 0; i < kept[k].size(); ++i)
      EXPECT_EQ(ostrel::testing::stored(kept[k][i]), ostrel::testing::stored(slices[k][i]->clip));
  }
  for (const xGridPointResults& each : search.result.get_gridPointRes())
    EXPECT_GE(each.sf, found.sf);
}

xSheetpilingData input(const Search& search, int combinations) {
  xSheetpilingData data;
  auto* wall = new xPile_Sheetpiling;
  wall->setSpacing(1'000);
  wall->setIdObj(42);
  data.props = wall;
  data.soilLayers = search.layers;
  data.calcSettings.slope = search.settings;
  for (int i = 0; i < combinations; ++i) {
    data.loadCombs.push_back(search.comb);
    data.loadCombs.back().setcombIndex(i + 1);
    data.loadCombs.back().setCombName("C" + std::to_string(i));
  }
  return data;
}

TEST(SlopeDesign, NeedsARowOfPiles) {
  xSheetpilingData data = input(Search{}, 1);
  data.props = nullptr;
  std::vector<xVeldError> errors;
  xSlopeStabilityDesign design;
  EXPECT_EQ(design.check(data, errors), errNoWall);
  data.props = new xSheetpiling_Props;
  EXPECT_EQ(design.check(data, errors), errNoWall);
}

TEST(SlopeDesign, SearchesForTheCombinationsThatAskForIt) {
  Search search;
  search.add(-2'000, 3'000, 12'000, 12'000);
  xSheetpilingData data = input(search, 3);
  data.loadCombs[1].checks[checkGlobalStability] = false;
  data.loadCombs[2].ulsFactors[factorGlobalStability] = 1.25;
  std::vector<xVeldError> errors;
  xSlopeStabilityDesign design;
  ASSERT_EQ(design.check(data, errors), ostrel::ok);
  ASSERT_EQ(design.getResults().size(), 2U);
  EXPECT_EQ(design.getResults()[1].getIdObj(), 42);
  EXPECT_EQ(design.getResults()[1].getCombIndex(), 3);
  EXPECT_EQ(design.getResults()[1].getCombName(), "C2");
  EXPECT_DOUBLE_EQ(design.getIndex(), 1.0);
  EXPECT_DOUBLE_EQ(design.getSf(), design.getResults()[0].getSf() / 1.25);
  EXPECT_TRUE(errors.empty());
}

TEST(SlopeDesign, WithoutSuchACombinationHasNoResult) {
  xSheetpilingData data = input(Search{}, 1);
  data.loadCombs[0].checks.clear();
  std::vector<xVeldError> errors;
  xSlopeStabilityDesign design;
  EXPECT_EQ(design.check(data, errors), ostrel::ok);
  EXPECT_TRUE(design.getResults().empty());
  EXPECT_DOUBLE_EQ(design.getSf(), 1e10);
}

TEST(SlopeDesign, WarnsOnceOfACentreWhateverTheCombinations) {
  Search search;
  search.add(-2'000, 3'000, 12'000, 12'000);
  search.add(5'000, -3'000, 8'000, 11'000);
  std::vector<xVeldError> errors;
  xSlopeStabilityDesign design;
  ASSERT_EQ(design.check(input(search, 3), errors), ostrel::ok);
  ASSERT_EQ(design.getResults().size(), 3U);
  EXPECT_EQ(design.getResults()[2].get_gridPointRes().size(), 1U);
  ASSERT_EQ(errors.size(), 1U);
  EXPECT_EQ(errors[0].getErr(), veldWarning);
  EXPECT_NE(errors[0].GetErrorStr().find("[8.00,10.25]"), std::string::npos);
}

TEST(SlopeDesign, EndsWithTheFirstCombinationThatFails) {
  Search search;
  search.add(-2'000, 3'000, 12'000, 12'000);
  search.add(5'000, -3'000, 8'000, 8'000);
  xSheetpilingData data = input(search, 3);
  data.loadCombs[1].ulsFactors.clear();
  std::vector<xVeldError> errors;
  xSlopeStabilityDesign design;
  EXPECT_EQ(design.check(data, errors), errStabilityFactors);
  EXPECT_EQ(design.getResults().size(), 1U);
  EXPECT_TRUE(errors.empty());
}

TEST(SlopeDesign, SurvivesCentresThatAreNoPlaces) {
  Search search;
  for (const double wrong : {nan, std::numeric_limits<double>::infinity(), -1e300}) {
    search.add(wrong, 3'000, 12'000, 12'000);
    search.add(0, wrong, 12'000, 12'000);
  }
  search.add(0, 3'000, 0, 0);
  search.add(0, 3'000, -5'000, -5'000);
  std::vector<xVeldError> errors;
  xSlopeStabilityDesign design;
  EXPECT_EQ(design.check(input(search, 1), errors), ostrel::ok);
  EXPECT_DOUBLE_EQ(design.getSf(), 1e10);
}

TEST(SlopeDesign, SurvivesGroundThatOverlapsOrLeavesGaps) {
  Search search;
  search.layers.push_back(ground(ostrel::testing::box(-30'000, -12'000, -10'000, 2'000), 1.8e-5));
  search.layers.push_back(ground(ostrel::testing::box(25'000, -12'000, 30'000, -3'000), 1.8e-5));
  search.layers.push_back(ground({{0, 0}, {9'000, -9'000}, {9'000, 0}, {0, -9'000}, {0, 0}}, 1e-5));
  search.layers.push_back(ground({{0, 0}, {nan, -9'000}, {9'000, 0}, {0, 0}}, 1e-5));
  for (int i = 0; i < 20; ++i)
    search.add(-6'000 + 700 * i, 3'000, 5'000, 25'000);
  std::vector<xVeldError> errors;
  xSlopeStabilityDesign design;
  EXPECT_EQ(design.check(input(search, 1), errors), ostrel::ok);
  EXPECT_GE(design.getSf(), 0.0);  // a NaN is not
}

}  // namespace
