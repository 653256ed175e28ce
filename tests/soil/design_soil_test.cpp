// SPDX-License-Identifier: Apache-2.0
#include "ostrel/design_soil.h"

#include "support/stream_round_trip.h"

#include <ostrel/tolerances.h>

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace {

using ostrel::testing::bytes_of;
using ostrel::testing::frame_bytes;
using ostrel::testing::stored;
using ostrel::testing::through_memory;
using std::numbers::pi;

constexpr bool active = true;
constexpr bool passive = false;
constexpr double deg30 = pi / 6.0;
const arma::Col<double>::fixed<2> still{0.0, 0.0};

// phi = 30°, without wall friction.
xDesignSoil sand() {
  xDesignSoil soil;
  soil.soil.set_InternalFriction(deg30);
  soil.soil.setPoissonRatio(0.25);
  soil.soil.setOCR(1.0);
  return soil;
}

double chosen(xDesignSoil soil, int type, const arma::Col<double>::fixed<2>& acc, bool side) {
  soil.compute_Coeff(static_cast<formulType>(type), 0.1, 0.2, acc, side);
  return soil.getK();
}

// The process's tolerances as they were, at the end of a test.
class TolerancesGuard {
public:
  TolerancesGuard() = default;
  ~TolerancesGuard() { setTolerances(before_); }
  TolerancesGuard(const TolerancesGuard&) = delete;
  TolerancesGuard& operator=(const TolerancesGuard&) = delete;

private:
  xTolerances before_ = *getTolerances();
};

TEST(DesignSoil, StartsWithoutACoefficientAndResetsToThat) {
  xDesignSoil soil;
  EXPECT_EQ(soil.getK(), 0.0);
  soil.setK(0.4);
  soil.soil.setCohesion(3.0);
  EXPECT_EQ(soil.getK(), 0.4);
  soil.reset();
  EXPECT_EQ(soil.getK(), 0.0);
  EXPECT_EQ(soil.soil.getCohesion(), 0.0);
}

TEST(DesignSoil, KnowsTheClassicalValues) {
  const xDesignSoil soil = sand();
  EXPECT_NEAR(soil.steady(0.0, 0.0), 0.5, 1e-15);
  EXPECT_NEAR(soil.rankine(active, 0.0), 1.0 / 3.0, 1e-15);
  EXPECT_NEAR(soil.rankine(passive, 0.0), 3.0, 1e-14);
  EXPECT_NEAR(soil.coulomb(active, 0.0, 0.0), 1.0 / 3.0, 1e-15);
  EXPECT_NEAR(soil.coulomb(passive, 0.0, 0.0), 3.0, 1e-14);
  EXPECT_NEAR(soil.mononobeOkabe(active, 0.0, 0.0, still), 1.0 / 3.0, 1e-15);
  EXPECT_NEAR(soil.mononobeOkabe(passive, 0.0, 0.0, still), 3.0, 1e-14);
}

TEST(DesignSoil, KeepsItsCoefficientWhenAFormulaIsAsked) {
  xDesignSoil soil = sand();
  soil.setK(7.0);
  EXPECT_GT(soil.steady(0.0, 0.0) + soil.rankine(active, 0.0) + soil.coulomb(active, 0.0, 0.0)
                + soil.mononobeOkabe(active, 0.0, 0.0, still),
            0.0);
  EXPECT_EQ(soil.getK(), 7.0);
}

TEST(DesignSoil, AtRestHeedsNeitherSideNorEarthquake) {
  const double K = sand().steady(0.1, 0.2);
  EXPECT_EQ(chosen(sand(), 0, {0.3, 0.1}, active), K);
  EXPECT_EQ(chosen(sand(), 0, {0.0, 0.0}, passive), K);
}

TEST(DesignSoil, RankineHeedsNeitherTheBackNorAnEarthquake) {
  EXPECT_EQ(chosen(sand(), 1, {0.3, 0.1}, active), sand().rankine(active, 0.2));
  EXPECT_EQ(chosen(sand(), 1, {0.3, 0.1}, passive), sand().rankine(passive, 0.2));
}

TEST(DesignSoil, CoulombHeedsNoEarthquake) {
  EXPECT_EQ(chosen(sand(), 2, {0.3, 0.1}, active), sand().coulomb(active, 0.1, 0.2));
  EXPECT_EQ(chosen(sand(), 2, {0.3, 0.1}, passive), sand().coulomb(passive, 0.1, 0.2));
}

TEST(DesignSoil, EveryOtherFormulaIsMononobeOkabe) {
  const arma::Col<double>::fixed<2> acc{0.1, 0.05};
  for (const int type : {3, 4, 5, 99, -1}) {
    EXPECT_EQ(chosen(sand(), type, acc, active), sand().mononobeOkabe(active, 0.1, 0.2, acc));
    EXPECT_EQ(chosen(sand(), type, acc, passive), sand().mononobeOkabe(passive, 0.1, 0.2, acc));
  }
}

TEST(DesignSoil, MononobeOkabeTakesKhThenKv) {
  // phi = 60°, psi = atan(0.5 sqrt(3) / (1 + 0.5)) = 30°, active 1 / (1 + sqrt(1/2))².
  xDesignSoil soil;
  soil.soil.set_InternalFriction(pi / 3.0);
  const double expected = 1.0 / std::pow(1.0 + std::sqrt(0.5), 2.0);
  EXPECT_NEAR(soil.mononobeOkabe(active, 0.0, 0.0, {0.5 * std::numbers::sqrt3, 0.5}), expected,
              1e-14);
}

TEST(DesignSoil, HasACoefficientOfOneWithoutFriction) {
  xDesignSoil clay;
  clay.soil.setInterfaceFriction(0.3);
  clay.soil.setPoissonRatio(0.25);
  for (const bool side : {active, passive}) {
    EXPECT_EQ(clay.rankine(side, 0.1), 1.0);
    EXPECT_EQ(clay.coulomb(side, 0.2, 0.1), 1.0);
    EXPECT_EQ(clay.mononobeOkabe(side, 0.2, 0.1, {0.2, 0.1}), 1.0);
  }
  EXPECT_NEAR(clay.steady(0.0, 0.0), 1.0 / 3.0, 1e-15);
}

TEST(DesignSoil, OnlyCoulombTakesTheZeroOfFrictionFromTheTolerances) {
  const TolerancesGuard guard;
  xTolerances tolerances;
  tolerances.values[7] = 0.1;
  setTolerances(tolerances);
  xDesignSoil soil = sand();
  soil.soil.set_InternalFriction(0.05);
  soil.soil.setInterfaceFriction(0.02);
  EXPECT_EQ(soil.coulomb(active, 0.0, 0.0), 1.0);
  EXPECT_EQ(soil.coulomb(passive, 0.0, 0.0), 1.0);
  EXPECT_NE(soil.rankine(active, 0.0), 1.0);
  EXPECT_NE(soil.mononobeOkabe(active, 0.0, 0.0, still), 1.0);
  EXPECT_NEAR(soil.steady(0.0, 0.0), 1.0 - std::sin(0.05), 1e-15);

  // And the other way round: 0.5e-6 rad counts as friction once the tolerance is smaller.
  tolerances.values[7] = 1e-9;
  setTolerances(tolerances);
  soil.soil.set_InternalFriction(0.5e-6);
  EXPECT_NE(soil.coulomb(active, 0.0, 0.0), 1.0);
  EXPECT_EQ(soil.mononobeOkabe(active, 0.0, 0.0, still), 1.0);
  EXPECT_EQ(soil.rankine(active, 0.0), 1.0);
}

// EN 1997-1:2004, table A.4, note a, with 1.25: 32° become 26.5603° and 30° become 24.79°.
TEST(DesignSoil, WorksWithFactoredFriction) {
  const std::vector<GeoCombFactor> factors(6, GeoCombFactor{1.25, 1.0});
  xDesignSoil soil = sand();
  soil.soil.applyGeoFactors(geoFactorPressure, factors);
  EXPECT_NEAR(soil.soil.getInternalFriction() * 180.0 / pi, 24.79, 5e-3);
  // Rankine's tan²(45° - phi / 2) with tan(phi) = tan(30°) / 1.25.
  const double phi = std::atan(std::tan(deg30) / 1.25);
  EXPECT_NEAR(soil.rankine(active, 0.0), std::pow(std::tan(pi / 4.0 - phi / 2.0), 2.0), 1e-14);
  soil.soil.set_InternalFriction(32.0 * pi / 180.0);
  soil.soil.applyGeoFactors(geoFactorPressure, factors);
  EXPECT_NEAR(soil.soil.getInternalFriction() * 180.0 / pi, 26.5603, 5e-3);
}

TEST(DesignSoil, IsStoredAsTheCoefficientThenTheSoil) {
  xDesignSoil soil = sand();
  soil.setK(0.4);
  EXPECT_EQ(soil.getIOClass(), "xDesignSoil");
  EXPECT_EQ(stored(soil), frame_bytes(1, bytes_of([&soil](outstream& out) {
                                        out << 0.4;
                                        soil.soil.pub_write(out);
                                      })));
  const xDesignSoil read = through_memory(soil);
  EXPECT_EQ(read.getK(), 0.4);
  EXPECT_EQ(read.soil.getInternalFriction(), deg30);
}

}  // namespace
