// SPDX-License-Identifier: Apache-2.0
#include "ostrel/slope_settings.h"

#include <gmock/gmock.h>

#include <limits>

namespace {

using ::testing::ElementsAre;

TEST(CentersGrid, RunsAlongXFirstFromTheLowerLeft) {
  xCentersGrid grid;
  grid.origin = {-1000.0, 5000.0};
  grid.setStep(500.0);
  grid.setXsteps(2);
  grid.setYsteps(1);
  grid.buildCentersGrid();
  ASSERT_EQ(grid.points.size(), 6U);  // (2 + 1) x (1 + 1)
  EXPECT_THAT(grid.points[0].center, ElementsAre(-1000.0, 5000.0));
  EXPECT_THAT(grid.points[1].center, ElementsAre(-500.0, 5000.0));
  EXPECT_THAT(grid.points[2].center, ElementsAre(0.0, 5000.0));
  EXPECT_THAT(grid.points[3].center, ElementsAre(-1000.0, 5500.0));
  EXPECT_THAT(grid.points[5].center, ElementsAre(0.0, 5500.0));
  for (const xGridPoint& point : grid.points) {
    EXPECT_DOUBLE_EQ(point.getMinRadius(), 0.0);
    EXPECT_DOUBLE_EQ(point.getMaxRadius(), 0.0);
  }
}

TEST(CentersGrid, WithoutStepsIsItsOrigin) {
  xCentersGrid grid;
  grid.origin = {1.0, 2.0};
  grid.buildCentersGrid();
  ASSERT_EQ(grid.points.size(), 1U);
  EXPECT_THAT(grid.points[0].center, ElementsAre(1.0, 2.0));
}

TEST(CentersGrid, AppendsToThePointsThatAreThere) {
  xCentersGrid grid;
  grid.points.resize(2);
  grid.buildCentersGrid();
  EXPECT_EQ(grid.points.size(), 3U);
}

TEST(CentersGrid, BeyondAMillionCentresStaysEmpty) {
  for (const int steps : {-1, 1'000'000, std::numeric_limits<int>::max()}) {
    xCentersGrid grid;
    grid.setXsteps(steps);
    grid.setYsteps(std::numeric_limits<int>::max());
    grid.buildCentersGrid();
    EXPECT_TRUE(grid.points.empty()) << steps;
  }
}

TEST(CentersGrid, ResetKeepsOriginAndPointsAndClearDoesNot) {
  xCentersGrid grid;
  grid.origin = {1.0, 2.0};
  grid.setStep(10.0);
  grid.setXsteps(1);
  grid.buildCentersGrid();
  grid.reset();
  EXPECT_DOUBLE_EQ(grid.getSteps(), 0.0);
  EXPECT_EQ(grid.getXsteps(), 0);
  EXPECT_EQ(grid.points.size(), 2U);
  EXPECT_THAT(grid.origin, ElementsAre(1.0, 2.0));
  grid.clear();
  EXPECT_TRUE(grid.points.empty());
  EXPECT_THAT(grid.origin, ElementsAre(0.0, 0.0));
}

TEST(GridPoint, ResetKeepsTheCentre) {
  xGridPoint point;
  point.center = {1.0, 2.0};
  point.setMinRadius(3.0);
  point.setMaxRadius(4.0);
  point.clear();
  EXPECT_DOUBLE_EQ(point.getMinRadius(), 0.0);
  EXPECT_DOUBLE_EQ(point.getMaxRadius(), 0.0);
  EXPECT_THAT(point.center, ElementsAre(1.0, 2.0));
}

TEST(SlopeStabilitySettings, ResetZeroesTheNumbersAndClearsTheGrid) {
  xSlopeStabilitySettings settings;
  settings.setFormulation(1);
  settings.setWidthstripe(500.0);
  settings.setStepradius(100.0);
  settings.grid.points.resize(1);
  settings.reset();
  EXPECT_EQ(settings.getFormulation(), 0);
  EXPECT_DOUBLE_EQ(settings.getWidthstripe(), 0.0);
  EXPECT_DOUBLE_EQ(settings.getStepradius(), 0.0);
  EXPECT_TRUE(settings.grid.points.empty());
}

}  // namespace
