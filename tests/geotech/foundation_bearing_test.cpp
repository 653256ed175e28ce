// SPDX-License-Identifier: Apache-2.0
#include "ostrel/foundation_bearing.h"

#include "support/relative.h"
#include "support/tolerances_guard.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>
#include <vector>

namespace {

using ostrel::testing::expect_relative;
using ostrel::testing::TolerancesGuard;
using std::numbers::pi;
using std::numbers::sqrt2;
using std::numbers::sqrt3;

constexpr double two_plus_pi = 5.141592653589793;
constexpr double deg30 = pi / 6.0;
constexpr double deg45 = pi / 4.0;  // t = 1
constexpr double nan_value = std::numeric_limits<double>::quiet_NaN();

// exp(pi) (1 + sin 45°) / (1 - sin 45°) = 23.1406926327793 (3 + 2 sqrt(2)); Nc = Nq - 1.
constexpr double nq_45 = 134.873840626305;

// c = 0.01 N/mm², 20 kN/m³ (22 saturated), B = 1 m, sigma_v = 0.1 N/mm².
xBearCapacityData strip(double phi) {
  xBearCapacityData data;
  data.soil.set_InternalFriction(phi);
  data.soil.setCohesion(0.01);
  data.soil.setUnitWeight(2e-5);
  data.soil.setSaturatedUnitWeight(2.2e-5);
  data.geometry.setWidth(1000.0);
  data.setDepthStress(0.1);
  return data;
}

double limit_load(const xBearCapacityData& data) {
  xBearCapacityFound found;
  EXPECT_EQ(found.compute_BearCapacity(data), ostrel::ok);
  return found.getLimitLoad_Nmmq();
}

// The factors of one calculation from new.
xBearCapacityFound factors(const xBearCapacityData& data) {
  xBearCapacityFound found;
  EXPECT_EQ(found.compute_Factors(data), ostrel::ok);
  return found;
}

// Getter and setter of each number of a foundation, and its default.
struct FoundField {
  double (xBearCapacityFound::*get)() const;
  void (xBearCapacityFound::*set)(double);
  double initial;
};

std::vector<FoundField> found_fields() {
  using F = xBearCapacityFound;
  return {{&F::getNc, &F::setNc, 1.0},
          {&F::getNq, &F::setNq, 1.0},
          {&F::getNg, &F::setNg, 1.0},
          {&F::getIc, &F::setIc, 1.0},
          {&F::getIq, &F::setIq, 1.0},
          {&F::getIg, &F::setIg, 1.0},
          {&F::getBc, &F::setBc, 1.0},
          {&F::getBq, &F::setBq, 1.0},
          {&F::getBg, &F::setBg, 1.0},
          {&F::getSc, &F::setSc, 1.0},
          {&F::getSq, &F::setSq, 1.0},
          {&F::getSg, &F::setSg, 1.0},
          {&F::getDc, &F::setDc, 1.0},
          {&F::getDq, &F::setDq, 1.0},
          {&F::getDg, &F::setDg, 1.0},
          {&F::getGc, &F::setGc, 1.0},
          {&F::getGq, &F::setGq, 1.0},
          {&F::getGg, &F::setGg, 1.0},
          {&F::getIrc, &F::setIrc, 0.0},
          {&F::getIr, &F::setIr, 0.0},
          {&F::getPSIc, &F::setPSIc, 1.0},
          {&F::getPSIq, &F::setPSIq, 1.0},
          {&F::getPSIg, &F::setPSIg, 1.0},
          {&F::getZc, &F::setZc, 1.0},
          {&F::getZq, &F::setZq, 1.0},
          {&F::getZg, &F::setZg, 1.0},
          {&F::getLimitLoad_Nmmq, &F::setLimitLoad, 0.0}};
}

TEST(FoundationGeometry, KeepsEachValueUntilReset) {
  xGeomPropsFound geometry;
  geometry.setWidth(1.0);
  geometry.setLength(2.0);
  geometry.setDepth(3.0);
  geometry.setAlpha(4.0);
  geometry.setBeta(5.0);
  EXPECT_EQ(geometry.getWidth(), 1.0);
  EXPECT_EQ(geometry.getLength(), 2.0);
  EXPECT_EQ(geometry.getDepth(), 3.0);
  EXPECT_EQ(geometry.getAlpha(), 4.0);
  EXPECT_EQ(geometry.getBeta(), 5.0);
  geometry.reset();
  for (const double value : {geometry.getWidth(), geometry.getLength(), geometry.getDepth(),
                             geometry.getAlpha(), geometry.getBeta()}) {
    EXPECT_EQ(value, 0.0);
  }
}

struct DataFlag {
  bool (xBearCapacityData::*get)() const;
  void (xBearCapacityData::*set)(bool);
};

std::vector<DataFlag> data_flags() {
  using D = xBearCapacityData;
  return {{&D::getInclinFactIsActive, &D::setInclinFactIsActive},
          {&D::getShapeFactIsActive, &D::setShapeFactIsActive},
          {&D::getDepthFactIsActive, &D::setDepthFactIsActive},
          {&D::getBaseFactIsActive, &D::setBaseFactIsActive},
          {&D::getGroundFactIsActive, &D::setGroundFactIsActive},
          {&D::getPunchingFactIsActive, &D::setPunchingFactIsActive},
          {&D::getInertialFactIsActive, &D::setInertialFactIsActive},
          {&D::getUnderWater, &D::setUnderWater}};
}

TEST(BearingData, HasEightFlagsOfTheirOwn) {
  for (std::size_t i = 0; i < data_flags().size(); ++i) {
    xBearCapacityData data;
    (data.*data_flags()[i].set)(true);
    for (std::size_t k = 0; k < data_flags().size(); ++k)
      EXPECT_EQ((data.*data_flags()[k].get)(), i == k) << i << " " << k;
  }
}

TEST(BearingData, KeepsEachValueUntilReset) {
  xBearCapacityData data = strip(deg30);
  data.setWedgeStress(2.0);
  data.setFormulation(3);
  data.acceleration = {4.0, 5.0};
  data.loads = {6.0, 7.0};
  for (const DataFlag& flag : data_flags())
    (data.*flag.set)(true);
  EXPECT_EQ(data.getDepthStress(), 0.1);
  EXPECT_EQ(data.getWedgeStress(), 2.0);
  EXPECT_EQ(data.getFormulation(), 3);

  data.reset();
  EXPECT_EQ(data.getDepthStress(), 0.0);
  EXPECT_EQ(data.getWedgeStress(), 0.0);
  EXPECT_EQ(data.getFormulation(), 0);
  EXPECT_EQ(data.geometry.getWidth(), 0.0);
  EXPECT_EQ(data.soil.getCohesion(), 0.0);
  for (const arma::Col<double>::fixed<2>& pair : {data.acceleration, data.loads}) {
    EXPECT_EQ(pair[0], 0.0);
    EXPECT_EQ(pair[1], 0.0);
  }
  for (const DataFlag& flag : data_flags())
    EXPECT_FALSE((data.*flag.get)());
}

TEST(BearingData, StartsAsAfterAReset) {
  const xBearCapacityData data;
  EXPECT_EQ(data.getDepthStress() + data.getWedgeStress(), 0.0);
  EXPECT_EQ(data.acceleration[0] + data.acceleration[1] + data.loads[0] + data.loads[1], 0.0);
  EXPECT_EQ(data.getFormulation(), 0);
}

// Coulomb at 30 degrees without wall friction: K = 3.
TEST(PassivePressure, IsTheCoefficientTimesTheStressAtTheBase) {
  EXPECT_NEAR(strip(deg30).getPassivePress(formulaCoulomb, 0.0, 0.0), 0.3, 1e-13);
  EXPECT_NEAR(strip(deg30).getPassivePress(formulaRankine, 0.0, 0.0), 0.3, 1e-13);
}

// Coulomb without friction is 1; at rest nu / (1 - nu) = 1/3 for nu = 1/4, by 1 + sin(30°) = 1.5 on
// the slope.
TEST(PassivePressure, AtRestIsThatOfTheSoilAtRest) {
  xBearCapacityData data = strip(0.0);
  data.soil.setPoissonRatio(0.25);
  EXPECT_NEAR(data.getPassivePress(formulaAtRest, 0.0, deg30), 0.05, 1e-15);
  EXPECT_EQ(data.getPassivePress(formulaCoulomb, 0.0, deg30), 0.1);
}

// kh = tan(15°) = 2 - sqrt(3): N = C² = cos²(psi), r² = tan(15°) / 2 = ((sqrt(3) - 1) / 2)², so
// K = 1 / (1 - r)² = 2 / (6 - 3 sqrt(3)).
TEST(PassivePressure, TakesTheAcceleration) {
  xBearCapacityData data = strip(deg30);
  data.acceleration = {2.0 - sqrt3, 0.0};
  expect_relative(data.getPassivePress(formulaMononobeOkabe, 0.0, 0.0), 0.2 / (6.0 - 3.0 * sqrt3));
}

TEST(Foundation, StartsWithFactorsOf1AndResetsToThem) {
  xBearCapacityFound found;
  for (const FoundField& field : found_fields())
    EXPECT_EQ((found.*field.get)(), field.initial);
  for (const FoundField& field : found_fields())
    (found.*field.set)(9.0);
  found.reset();
  for (const FoundField& field : found_fields())
    EXPECT_EQ((found.*field.get)(), field.initial);
}

TEST(Foundation, KeepsEachNumberForItself) {
  xBearCapacityFound found;
  double value = 2.0;
  for (const FoundField& field : found_fields())
    (found.*field.set)(value++);
  value = 2.0;
  for (const FoundField& field : found_fields())
    EXPECT_EQ((found.*field.get)(), value++);
}

// 0.01 Nc + 0.1 Nq + 0.5 * 2e-5 * 1000 Ng, with Nc = Nq - 1 and Ng = 2 (Nq + 1).
TEST(Foundation, WithAllFlagsOffTakesTheBearingFactorsAlone) {
  expect_relative(limit_load(strip(deg45)),
                  0.01 * (nq_45 - 1.0) + 0.1 * nq_45 + 0.01 * 2.0 * (nq_45 + 1.0));
}

// 0.01 (2 + pi) + 0.1 * 1 + 0.
TEST(Foundation, WithoutFrictionStandsOnCohesionAndOverburden) {
  EXPECT_DOUBLE_EQ(limit_load(strip(0.0)), 0.15141592653589793);
}

// 0.5 * (2.2e-5 - 1e-5) * 1000 Ng.
TEST(Foundation, UnderWaterTakesTheBuoyantWeight) {
  xBearCapacityData data = strip(deg45);
  data.setUnderWater(true);
  expect_relative(limit_load(data),
                  0.01 * (nq_45 - 1.0) + 0.1 * nq_45 + 0.006 * 2.0 * (nq_45 + 1.0));
}

TEST(Foundation, TakesEurocode7ForTheFormulation1Alone) {
  for (const int formulation : {0, 2, -1}) {
    xBearCapacityData data = strip(deg45);
    data.setFormulation(formulation);
    expect_relative(factors(data).getNg(), 2.0 * (nq_45 + 1.0));
  }
  xBearCapacityData data = strip(deg45);
  data.setFormulation(1);
  const xBearCapacityFound found = factors(data);
  expect_relative(found.getNg(), 2.0 * (nq_45 - 1.0));
  expect_relative(found.getNq(), nq_45);
  expect_relative(found.getNc(), nq_45 - 1.0);
}

TEST(Foundation, CountsAFrictionBelowTheToleranceAsNone) {
  for (const double phi : {0.9e-6, -0.9e-6}) {
    for (const int formulation : {0, 1}) {
      xBearCapacityData data = strip(phi);
      data.setFormulation(formulation);
      const xBearCapacityFound found = factors(data);
      EXPECT_EQ(found.getNc(), two_plus_pi);
      EXPECT_DOUBLE_EQ(found.getNq(), 1.0);
      EXPECT_EQ(found.getNg(), 0.0);
    }
  }
  // At the tolerance itself there is friction: Ng = 2 (1 + 1) * 1e-6, but for its square.
  expect_relative(factors(strip(1e-6)).getNg(), 4e-6, 1e-5);
}

TEST(Foundation, TakesTheEighthToleranceOfTheProcess) {
  const TolerancesGuard guard;
  xTolerances tolerances;
  tolerances.values[7] = 0.1;
  setTolerances(tolerances);
  EXPECT_EQ(factors(strip(0.09)).getNc(), two_plus_pi);
  EXPECT_NE(factors(strip(0.11)).getNc(), two_plus_pi);
}

// Nc = 133.87..., Nq = 134.87..., Ng = 271.7...; the other factors are primes.
TEST(Foundation, MultipliesEachTermByItsOwnFactors) {
  const double Nc = nq_45 - 1.0;
  const double Ng = 2.0 * (nq_45 + 1.0);
  const auto with = [](void (xBearCapacityFound::*set)(double)) {
    xBearCapacityFound found;
    (found.*set)(3.0);
    EXPECT_EQ(found.compute_BearCapacity(strip(deg45)), ostrel::ok);
    return found.getLimitLoad_Nmmq();
  };
  using F = xBearCapacityFound;
  const double all = 0.01 * Nc + 0.1 * nq_45 + 0.01 * Ng;
  for (const auto set :
       {&F::setIc, &F::setBc, &F::setSc, &F::setDc, &F::setGc, &F::setPSIc, &F::setZc}) {
    expect_relative(with(set), all + 0.02 * Nc);
  }
  for (const auto set :
       {&F::setIq, &F::setBq, &F::setSq, &F::setDq, &F::setGq, &F::setPSIq, &F::setZq}) {
    expect_relative(with(set), all + 0.2 * nq_45);
  }
  for (const auto set :
       {&F::setIg, &F::setBg, &F::setSg, &F::setDg, &F::setGg, &F::setPSIg, &F::setZg}) {
    expect_relative(with(set), all + 0.02 * Ng);
  }
}

TEST(Foundation, KeepsFactorsWhoseFlagIsOff) {
  xBearCapacityFound found;
  for (const FoundField& field : found_fields())
    (found.*field.set)(7.0);
  ASSERT_EQ(found.compute_Factors(strip(deg45)), ostrel::ok);
  for (std::size_t i = 3; i < found_fields().size(); ++i)  // after the bearing factors
    EXPECT_EQ((found.*found_fields()[i].get)(), 7.0) << i;
}

// A strip: A = B = 1000, A c / t + V = 10 + 10, H = 10: Iq = 1/4, Ig = 1/8.
TEST(Foundation, TakesTheInclinationOnAStripWithoutTheShapeFactors) {
  xBearCapacityData data = strip(deg45);
  data.setInclinFactIsActive(true);
  data.geometry.setLength(1000.0);
  data.loads = {10.0, 10.0};
  const xBearCapacityFound found = factors(data);
  expect_relative(found.getIq(), 0.25);
  expect_relative(found.getIg(), 0.125);
  expect_relative(found.getIc(), 0.25 - 0.75 / (nq_45 - 1.0));
  EXPECT_EQ(found.getSq(), 1.0);
}

// A square of 1000: A c / t + V = 10 000 + 10 000, H = 10 000, m = 3/2: Iq = 2^-1.5, Ig = 2^-2.5;
// Sq = 1 + t and Sg = 0.6.
TEST(Foundation, TakesTheInclinationOnARectangleWithThem) {
  for (const int formulation : {0, 1}) {
    xBearCapacityData data = strip(deg45);
    data.setFormulation(formulation);
    data.setInclinFactIsActive(true);
    data.setShapeFactIsActive(true);
    data.geometry.setLength(1000.0);
    data.loads = {10'000.0, 10'000.0};
    const xBearCapacityFound found = factors(data);
    expect_relative(found.getIq(), 0.5 / sqrt2);
    expect_relative(found.getIg(), 0.25 / sqrt2);
    expect_relative(found.getSq(), formulation == 1 ? 1.0 + 1.0 / sqrt2 : 2.0);
    EXPECT_DOUBLE_EQ(found.getSg(), formulation == 1 ? 0.7 : 0.6);
  }
}

// H = A c = 10 without friction: 1 - 2 * 10 / (10 (2 + pi)) by Terzaghi's form, 1/2 by Eurocode 7.
TEST(Foundation, TakesTheInclinationOfItsFormulationWithoutFriction) {
  xBearCapacityData data = strip(0.0);
  data.setInclinFactIsActive(true);
  data.loads = {10.0, 50.0};
  EXPECT_DOUBLE_EQ(factors(data).getIc(), 1.0 - 2.0 / two_plus_pi);
  data.setFormulation(1);
  EXPECT_EQ(factors(data).getIc(), 0.5);
}

// 1 - H / (A c / t + V) = 1 - 30 / 20 = -1/2: its square is positive, its cube negative.
TEST(Foundation, RefusesALoadThatIsTooInclined) {
  for (const int formulation : {0, 1}) {
    xBearCapacityData data = strip(deg45);
    data.setFormulation(formulation);
    data.setInclinFactIsActive(true);
    data.setBaseFactIsActive(true);
    data.setShapeFactIsActive(false);
    data.geometry.setAlpha(0.5);
    data.loads = {30.0, 10.0};
    xBearCapacityFound found;
    found.setLimitLoad(5.0);
    EXPECT_EQ(found.compute_BearCapacity(data), errLoadTooInclined);
    EXPECT_EQ(errLoadTooInclined, 2);
    EXPECT_EQ(found.getLimitLoad_Nmmq(), 5.0);
    EXPECT_EQ(found.getBq(), 1.0);  // what comes after the inclination was not reached
    EXPECT_EQ(found.compute_Factors(data), errLoadTooInclined);
  }
}

// Each of the three on its own: Ic of Terzaghi's form without friction is 1 - 2 * 26 / (10 * 5.14)
// = -0.01; Ic with friction and 1 - H / (A c / t + V) = 0 is -1 / Nc.
TEST(Foundation, RefusesANegativeFactorOfTheCohesion) {
  xBearCapacityData data = strip(0.0);
  data.setInclinFactIsActive(true);
  data.loads = {26.0, 10.0};
  EXPECT_EQ(xBearCapacityFound{}.compute_Factors(data), errLoadTooInclined);
  data.setFormulation(1);
  EXPECT_EQ(xBearCapacityFound{}.compute_Factors(data), ostrel::ok);

  data.soil.set_InternalFriction(deg45);
  data.loads = {20.0, 10.0};
  EXPECT_EQ(xBearCapacityFound{}.compute_Factors(data), errLoadTooInclined);
}

// A square has m = 3/2, and (-1/2)^1.5 is not a number; nor is 0 / 0 on sand without a load.
TEST(Foundation, RefusesAnInclinationThatIsNotANumber) {
  xBearCapacityData data = strip(deg45);
  data.setInclinFactIsActive(true);
  data.setShapeFactIsActive(true);
  data.geometry.setLength(1000.0);
  data.loads = {30'000.0, 10'000.0};
  EXPECT_EQ(xBearCapacityFound{}.compute_Factors(data), errLoadTooInclined);

  xBearCapacityData sand = strip(deg45);
  sand.soil.setCohesion(0.0);
  sand.setInclinFactIsActive(true);
  EXPECT_EQ(xBearCapacityFound{}.compute_Factors(sand), errLoadTooInclined);
  sand.loads = {nan_value, 1.0};
  EXPECT_EQ(xBearCapacityFound{}.compute_Factors(sand), errLoadTooInclined);
}

TEST(Foundation, TakesTheBaseFactorsUnderTheirFlag) {
  xBearCapacityData data = strip(deg45);
  data.setBaseFactIsActive(true);
  data.geometry.setAlpha(0.5);
  const xBearCapacityFound found = factors(data);
  expect_relative(found.getBq(), 0.25);
  expect_relative(found.getBg(), 0.25);
  expect_relative(found.getBc(), 0.25 - 0.75 / (nq_45 - 1.0));
}

// D = B: Dq = 1 + 2 (1 - 1/sqrt(2))², without the arc.
TEST(Foundation, TakesTheDepthFactorsUnderTheirFlagAndLeavesThatOfTheWeight) {
  xBearCapacityData data = strip(deg45);
  data.setDepthFactIsActive(true);
  data.geometry.setDepth(1000.0);
  xBearCapacityFound found;
  found.setDg(7.0);
  ASSERT_EQ(found.compute_Factors(data), ostrel::ok);
  const double Dq = 4.0 - 2.0 * sqrt2;
  expect_relative(found.getDq(), Dq);
  expect_relative(found.getDc(), Dq - (1.0 - Dq) / (nq_45 - 1.0));
  EXPECT_EQ(found.getDg(), 7.0);
}

TEST(Foundation, TakesTheGroundFactorsUnderTheirFlag) {
  xBearCapacityData data = strip(0.0);
  data.setGroundFactIsActive(true);
  data.geometry.setBeta(deg30);
  const xBearCapacityFound found = factors(data);
  expect_relative(found.getGg(), 4.0 / 3.0 - 2.0 / sqrt3);
  expect_relative(found.getGq(), 2.0 / sqrt3 - 1.0);
  EXPECT_DOUBLE_EQ(found.getGc(), 1.0 - pi / 3.0 / two_plus_pi);
}

// phi = 0, c = 0.5, G = 5: Ir = 10, just below Irc = exp(3) / 2 = 10.04 for B / L = 2/3:
// PSIc = 0.32 + 0.08 + 0.6.
TEST(Foundation, IsPunchedWhereTheSoilIsLessRigidThanCritical) {
  xBearCapacityData data = strip(0.0);
  data.setPunchingFactIsActive(true);
  data.geometry.setLength(1500.0);
  data.soil.setCohesion(0.5);
  data.soil.setShearModulus(5.0);
  const xBearCapacityFound found = factors(data);
  expect_relative(found.getIrc(), 10.0427684615938);
  EXPECT_EQ(found.getIr(), 10.0);
  EXPECT_DOUBLE_EQ(found.getPSIc(), 1.0);
  data.soil.setShearModulus(0.5);  // Ir = 1: PSIc = 0.4
  EXPECT_DOUBLE_EQ(factors(data).getPSIc(), 0.4);
}

TEST(Foundation, KeepsThePunchingFactorsOfARigidSoil) {
  xBearCapacityData data = strip(0.0);
  data.setPunchingFactIsActive(true);
  data.geometry.setLength(1500.0);
  data.soil.setCohesion(0.5);
  data.soil.setShearModulus(5.05);  // Ir = 10.1
  xBearCapacityFound found;
  found.setPSIc(7.0);
  found.setPSIq(8.0);
  ASSERT_EQ(found.compute_Factors(data), ostrel::ok);
  EXPECT_EQ(found.getPSIc(), 7.0);
  EXPECT_EQ(found.getPSIq(), 8.0);
  EXPECT_DOUBLE_EQ(found.getIr(), 10.1);
}

// t = 1: Ir = 12 / (0.01 + 0.05).
TEST(Foundation, TakesTheStressInTheWedgeForItsRigidity) {
  xBearCapacityData data = strip(deg45);
  data.setPunchingFactIsActive(true);
  data.geometry.setLength(1500.0);
  data.soil.setShearModulus(12.0);
  data.setWedgeStress(0.05);
  expect_relative(factors(data).getIr(), 200.0);
}

// Neither stiffness nor strength: 0 / 0.
TEST(Foundation, DoesNotTakeARigidityThatIsNotANumberForAStiffSoil) {
  xBearCapacityData data = strip(deg45);
  data.setPunchingFactIsActive(true);
  data.geometry.setLength(1500.0);
  data.soil.setCohesion(0.0);
  EXPECT_TRUE(std::isnan(limit_load(data)));
}

// t = 1, k = 1/2: (1/2)^0.35, 1 - 0.16.
TEST(Foundation, TakesTheInertiaFactorsUnderTheFlagOfThePunching) {
  xBearCapacityData data = strip(deg45);
  data.setPunchingFactIsActive(true);
  data.geometry.setLength(1500.0);
  data.soil.setShearModulus(1e9);
  data.acceleration = {0.5, 0.9};
  const xBearCapacityFound found = factors(data);
  expect_relative(found.getZq(), 0.784584097896751);
  expect_relative(found.getZg(), 0.784584097896751);
  EXPECT_DOUBLE_EQ(found.getZc(), 0.84);
}

TEST(Foundation, ReadsNothingFromTheFlagOfTheInertia) {
  xBearCapacityData data = strip(deg45);
  data.setInertialFactIsActive(true);
  data.acceleration = {0.5, 0.0};
  const xBearCapacityFound found = factors(data);
  EXPECT_EQ(found.getZq(), 1.0);
  EXPECT_EQ(found.getZg(), 1.0);
  EXPECT_EQ(found.getZc(), 1.0);
}

TEST(Foundation, ComputesFactorsWithoutTouchingTheLimitLoad) {
  xBearCapacityFound found;
  found.setLimitLoad(5.0);
  ASSERT_EQ(found.compute_Factors(strip(deg45)), ostrel::ok);
  EXPECT_EQ(found.getLimitLoad_Nmmq(), 5.0);
}

TEST(Foundation, GivesNoNumberForASoilWithoutOne) {
  EXPECT_TRUE(std::isnan(limit_load(strip(nan_value))));
}

// The formulations are open to classes derived from it.
class EitherForm : public xBearCapacityFound {
public:
  using xBearCapacityFound::eurocode7;
  using xBearCapacityFound::terzaghi;
};

TEST(Foundation, OffersBothFormulationsToItsHeirs) {
  const xBearCapacityData data = strip(deg45);
  EitherForm found;
  ASSERT_EQ(found.eurocode7(data), ostrel::ok);
  expect_relative(found.getNg(), 2.0 * (nq_45 - 1.0));
  ASSERT_EQ(found.terzaghi(data), ostrel::ok);
  expect_relative(found.getNg(), 2.0 * (nq_45 + 1.0));
}

}  // namespace
