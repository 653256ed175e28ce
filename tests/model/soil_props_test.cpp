// SPDX-License-Identifier: Apache-2.0
#include "ostrel/soil_props.h"

#include "support/random_contents.h"
#include "support/stream_round_trip.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using ostrel::testing::bytes_of;
using ostrel::testing::frame_bytes;
using ostrel::testing::RandomContents;
using ostrel::testing::read_stored;
using ostrel::testing::stored;
using ostrel::testing::through_memory;

constexpr auto other_type = static_cast<geoFactorType>(2);

void fill(xElasticProps& material, RandomContents& random) {
  material.setName(random.text());
  material.setElasticityModulus(random.number());
  material.setShearModulus(random.number());
  material.setPoissonRatio(random.number());
}

xSoilProps random_soil(RandomContents& random) {
  xSoilProps soil;
  fill(soil, random);
  soil.setUnitWeight(random.number());
  soil.setSaturatedUnitWeight(random.number());
  soil.set_InternalFriction(random.number());
  soil.setInterfaceFriction(random.number());
  soil.setCohesion(random.number());
  soil.setAdhesion(random.number());
  soil.setOCR(random.number());
  soil.setConstrModulus(random.number());
  soil.setKPerm(random.number());
  soil.setIsDense(random.yes());
  return soil;
}

void expect_equal(const xElasticProps& a, const xElasticProps& b) {
  EXPECT_EQ(a.getName(), b.getName());
  EXPECT_EQ(a.getElasticityModulus(), b.getElasticityModulus());
  EXPECT_EQ(a.getShearModulus(), b.getShearModulus());
  EXPECT_EQ(a.getPoissonRatio(), b.getPoissonRatio());
}

void expect_equal(const xSoilProps& a, const xSoilProps& b) {
  expect_equal(static_cast<const xElasticProps&>(a), static_cast<const xElasticProps&>(b));
  EXPECT_EQ(a.getUnitWeight(), b.getUnitWeight());
  EXPECT_EQ(a.getSaturatedUnitWeight(), b.getSaturatedUnitWeight());
  EXPECT_EQ(a.getInternalFriction(), b.getInternalFriction());
  EXPECT_EQ(a.getInterfaceFriction(), b.getInterfaceFriction());
  EXPECT_EQ(a.getCohesion(), b.getCohesion());
  EXPECT_EQ(a.getAdhesion(), b.getAdhesion());
  EXPECT_EQ(a.getOCR(), b.getOCR());
  EXPECT_EQ(a.getConstrModulus(), b.getConstrModulus());
  EXPECT_EQ(a.getKPerm(), b.getKPerm());
  EXPECT_EQ(a.getIsDense(), b.getIsDense());
}

// A soil with friction: tan(phi) = 0.5, tan(delta) = 0.25.
xSoilProps frictional() {
  xSoilProps soil;
  soil.set_InternalFriction(std::atan(0.5));
  soil.setInterfaceFriction(std::atan(0.25));
  soil.setCohesion(0.042);
  soil.setAdhesion(0.03);
  soil.setUnitWeight(18e-6);
  soil.setSaturatedUnitWeight(21e-6);
  soil.setKPerm(6.0);
  return soil;
}

// Six factors, all different, in the first set; ten times as large in the second.
std::vector<GeoCombFactor> six_factors() {
  return {{1.25, 12.5}, {2.0, 20.0}, {1.4, 14.0}, {1.5, 15.0}, {1.2, 12.0}, {3.0, 30.0}};
}

TEST(GeoFactor, GivesTheFirstNumberForType0AndTheSecondForType1) {
  const GeoCombFactor factor{1.25, 1.4};
  EXPECT_EQ(factor.getF(geoFactorPressure), 1.25);
  EXPECT_EQ(factor.getF(geoFactorResistance), 1.4);
  EXPECT_EQ(static_cast<int>(geoFactorPressure), 0);
  EXPECT_EQ(static_cast<int>(geoFactorResistance), 1);
}

TEST(GeoFactor, IsOneForEveryOtherType) {
  const GeoCombFactor factor{1.25, 1.4};
  EXPECT_EQ(factor.getF(other_type), 1.0);
  EXPECT_EQ(factor.getF(static_cast<geoFactorType>(-1)), 1.0);
}

TEST(ElasticProps, AreZeroWhenNewAndAfterReset) {
  RandomContents random(1);
  xElasticProps material;
  expect_equal(material, xElasticProps{});
  EXPECT_EQ(material.getName(), "");
  EXPECT_EQ(material.getElasticityModulus(), 0.0);
  EXPECT_EQ(material.getShearModulus(), 0.0);
  EXPECT_EQ(material.getPoissonRatio(), 0.0);
  fill(material, random);
  material.reset();
  expect_equal(material, xElasticProps{});
}

// G = 30000 / (2 (1 + 0.25)) = 12000 N/mm².
TEST(ElasticProps, DeriveTheShearModulus) {
  xElasticProps material;
  material.setElasticityModulus(30e3);
  material.setPoissonRatio(0.25);
  material.computeShearModulus();
  EXPECT_DOUBLE_EQ(material.getShearModulus(), 12e3);
}

TEST(ElasticProps, AreStoredInTheirOrder) {
  xElasticProps material;
  material.setName("steel");
  material.setElasticityModulus(1.0);
  material.setShearModulus(2.0);
  material.setPoissonRatio(3.0);
  EXPECT_EQ(material.getIOClass(), "xElasticProps");
  EXPECT_EQ(stored(material),
            frame_bytes(1, bytes_of([](outstream& out) { out << "steel" << 1.0 << 2.0 << 3.0; })));
}

TEST(ElasticProps, SurviveMemoryWithRandomContents) {
  RandomContents random(2);
  for (int i = 0; i < 50; ++i) {
    xElasticProps material;
    fill(material, random);
    expect_equal(through_memory(material), material);
  }
}

TEST(SoilProps, AreZeroAndNotDenseWhenNewAndAfterReset) {
  const xSoilProps fresh;
  EXPECT_EQ(fresh.getUnitWeight(), 0.0);
  EXPECT_EQ(fresh.getSaturatedUnitWeight(), 0.0);
  EXPECT_EQ(fresh.getInternalFriction(), 0.0);
  EXPECT_EQ(fresh.getInterfaceFriction(), 0.0);
  EXPECT_EQ(fresh.getCohesion(), 0.0);
  EXPECT_EQ(fresh.getAdhesion(), 0.0);
  EXPECT_EQ(fresh.getOCR(), 0.0);
  EXPECT_EQ(fresh.getConstrModulus(), 0.0);
  EXPECT_EQ(fresh.getKPerm(), 0.0);
  EXPECT_FALSE(fresh.getIsDense());

  RandomContents random(3);
  xSoilProps soil = random_soil(random);
  soil.setIsDense(true);
  soil.reset();
  expect_equal(soil, fresh);
}

TEST(SoilProps, AreStoredInTheirOrderWithTheBaseLast) {
  xSoilProps soil;
  soil.setName("silt");
  soil.setElasticityModulus(20.0);
  soil.setUnitWeight(1.0);
  soil.setSaturatedUnitWeight(2.0);
  soil.set_InternalFriction(3.0);
  soil.setInterfaceFriction(4.0);
  soil.setCohesion(5.0);
  soil.setAdhesion(6.0);
  soil.setOCR(7.0);
  soil.setConstrModulus(8.0);
  soil.setIsDense(true);
  soil.setKPerm(9.0);
  xElasticProps base;
  base.setName("silt");
  base.setElasticityModulus(20.0);

  EXPECT_EQ(soil.getIOClass(), "xSoilProps");
  EXPECT_EQ(stored(soil), frame_bytes(2, bytes_of([](outstream& out) {
                                           out << 1.0 << 2.0 << 3.0 << 4.0 << 5.0 << 6.0 << 7.0
                                               << 8.0 << true << 9.0;
                                         }) + stored(base)));
}

TEST(SoilProps, SurviveMemoryWithRandomContents) {
  RandomContents random(4);
  for (int i = 0; i < 50; ++i) {
    const xSoilProps soil = random_soil(random);
    expect_equal(through_memory(soil), soil);
  }
}

TEST(SoilProps, OfVersion1LeaveThePermeabilityAsItIs) {
  const std::string fields = bytes_of(
      [](outstream& out) { out << 1.0 << 2.0 << 3.0 << 4.0 << 5.0 << 6.0 << 7.0 << 8.0 << true; });
  xElasticProps base;
  base.setName("old clay");
  xSoilProps soil;
  soil.setKPerm(0.5);
  read_stored(soil, frame_bytes(1, fields + stored(base)));
  EXPECT_EQ(soil.getKPerm(), 0.5);
  EXPECT_EQ(soil.getConstrModulus(), 8.0);
  EXPECT_TRUE(soil.getIsDense());
  EXPECT_EQ(soil.getName(), "old clay");
}

TEST(SoilProps, CutShortAnywhereEndInAnException) {
  RandomContents random(5);
  const std::string whole = stored(random_soil(random));
  for (std::size_t size = 0; size < whole.size(); ++size) {
    xSoilProps soil;
    EXPECT_THROW(read_stored(soil, whole.substr(0, size)), std::runtime_error) << size;
  }
}

// tan(phi) / 1.25 = 0.4, tan(delta) / 2 = 0.125, c / 1.4 = 0.03, weights / 1.2 = 15e-6 and
// 17.5e-6, k / 3 = 2.
TEST(DesignSoil, DividesByTheFactorsOfTheFirstSet) {
  xSoilProps soil = frictional();
  soil.applyGeoFactors(geoFactorPressure, six_factors());
  EXPECT_NEAR(std::tan(soil.getInternalFriction()), 0.4, 1e-15);
  EXPECT_NEAR(std::tan(soil.getInterfaceFriction()), 0.125, 1e-15);
  EXPECT_DOUBLE_EQ(soil.getCohesion(), 0.03);
  EXPECT_DOUBLE_EQ(soil.getUnitWeight(), 15e-6);
  EXPECT_DOUBLE_EQ(soil.getSaturatedUnitWeight(), 17.5e-6);
  EXPECT_DOUBLE_EQ(soil.getKPerm(), 2.0);
}

// The second set is ten times the first: 0.04, 0.0125, 0.003, 1.5e-6, 1.75e-6, 0.2.
TEST(DesignSoil, DividesByTheFactorsOfTheSecondSet) {
  xSoilProps soil = frictional();
  soil.applyGeoFactors(geoFactorResistance, six_factors());
  EXPECT_NEAR(std::tan(soil.getInternalFriction()), 0.04, 1e-15);
  EXPECT_NEAR(std::tan(soil.getInterfaceFriction()), 0.0125, 1e-15);
  EXPECT_DOUBLE_EQ(soil.getCohesion(), 0.003);
  EXPECT_DOUBLE_EQ(soil.getUnitWeight(), 1.5e-6);
  EXPECT_DOUBLE_EQ(soil.getSaturatedUnitWeight(), 1.75e-6);
  EXPECT_DOUBLE_EQ(soil.getKPerm(), 0.2);
}

TEST(DesignSoil, LeavesTheAdhesionAndAllElseAlone) {
  xSoilProps soil = frictional();
  soil.setElasticityModulus(30.0);
  soil.setOCR(1.5);
  soil.setConstrModulus(40.0);
  soil.setIsDense(true);
  soil.applyGeoFactors(geoFactorPressure, six_factors());
  EXPECT_EQ(soil.getAdhesion(), 0.03);
  EXPECT_EQ(soil.getElasticityModulus(), 30.0);
  EXPECT_EQ(soil.getOCR(), 1.5);
  EXPECT_EQ(soil.getConstrModulus(), 40.0);
  EXPECT_TRUE(soil.getIsDense());
}

// c / 1.5 = 0.042 / 1.5 = 0.028: a soil without friction takes the undrained factor.
TEST(DesignSoil, WithoutFrictionDividesTheCohesionByTheUndrainedFactor) {
  xSoilProps soil = frictional();
  soil.set_InternalFriction(0.0);
  soil.applyGeoFactors(geoFactorPressure, six_factors());
  EXPECT_EQ(soil.getInternalFriction(), 0.0);
  EXPECT_DOUBLE_EQ(soil.getCohesion(), 0.028);
}

// 1.2e-6 / 1.25 = 0.96e-6 rad counts as no friction, 1.3e-6 / 1.25 = 1.04e-6 rad as friction.
TEST(DesignSoil, JudgesTheFrictionAfterItsOwnFactor) {
  xSoilProps soil = frictional();
  soil.set_InternalFriction(1.2e-6);
  soil.applyGeoFactors(geoFactorPressure, six_factors());
  EXPECT_DOUBLE_EQ(soil.getCohesion(), 0.028);

  soil = frictional();
  soil.set_InternalFriction(-1.3e-6);
  soil.applyGeoFactors(geoFactorPressure, six_factors());
  EXPECT_DOUBLE_EQ(soil.getCohesion(), 0.03);
}

TEST(DesignSoil, OfAnotherTypeEqualsTheInput) {
  xSoilProps soil = frictional();
  soil.applyGeoFactors(other_type, six_factors());
  EXPECT_NEAR(soil.getInternalFriction(), std::atan(0.5), 1e-15);
  EXPECT_NEAR(soil.getInterfaceFriction(), std::atan(0.25), 1e-15);
  EXPECT_EQ(soil.getCohesion(), 0.042);
  EXPECT_EQ(soil.getUnitWeight(), 18e-6);
  EXPECT_EQ(soil.getSaturatedUnitWeight(), 21e-6);
  EXPECT_EQ(soil.getKPerm(), 6.0);
}

TEST(DesignSoil, TakesAFactorBeyondTheListForOne) {
  for (std::size_t size = 0; size < 6; ++size) {
    auto factors = six_factors();
    factors.resize(size);
    xSoilProps soil = frictional();
    soil.applyGeoFactors(geoFactorPressure, factors);
    EXPECT_NEAR(std::tan(soil.getInternalFriction()), size > 0 ? 0.4 : 0.5, 1e-15);
    EXPECT_NEAR(std::tan(soil.getInterfaceFriction()), size > 1 ? 0.125 : 0.25, 1e-15);
    EXPECT_DOUBLE_EQ(soil.getCohesion(), size > 2 ? 0.03 : 0.042);
    EXPECT_DOUBLE_EQ(soil.getUnitWeight(), size > 4 ? 15e-6 : 18e-6);
    EXPECT_DOUBLE_EQ(soil.getSaturatedUnitWeight(), size > 4 ? 17.5e-6 : 21e-6);
    EXPECT_EQ(soil.getKPerm(), 6.0);
  }
}

}  // namespace
