// SPDX-License-Identifier: Apache-2.0
#include "ostrel/geotechnical_anchor_check.h"
#include "support/hostile_stream.h"
#include "support/stream_round_trip.h"

#include <gtest/gtest.h>

#include <numbers>

namespace {

using ostrel::testing::bytes_of;
using ostrel::testing::frame_bytes;
using ostrel::testing::stored;
using ostrel::testing::through_memory;

constexpr double pi = std::numbers::pi;

// phi 30°, delta 45°, overconsolidated 4 times.
xBulbAnchor bulb() {
  xBulbAnchor stretch;
  stretch.soil.setName("sand");
  stretch.soil.set_InternalFriction(pi / 6.0);
  stretch.soil.setInterfaceFriction(pi / 4.0);
  stretch.soil.setAdhesion(0.05);
  stretch.soil.setOCR(4.0);
  stretch.setDepthStress(0.2);
  stretch.set_Area(1000.0);
  stretch.setSoilCoeff(0.5);
  stretch.setAlphaD(1.5);
  return stretch;
}

xGeoAnchorCombRes record(double factor) {
  xGeoAnchorCombRes outcome;
  outcome.setCheckID(101, 3, "A1");
  outcome.depth = 1500.0;
  outcome.setSf(factor);
  outcome.bulbs = {bulb(), xBulbAnchor{}};
  return outcome;
}

xGeoAnchorResults group(const std::vector<double>& factors) {
  xGeoAnchorResults outcome;
  for (const double factor : factors) {
    outcome.combinations.push_back(record(factor));
  }
  return outcome;
}

TEST(AnchorPartialFactors, ResetToNone) {
  xAnchorPartialFactors factors;
  EXPECT_EQ(factors.gammaR, 0.0);
  factors.gammaR = 1.2;
  factors.geoFactors.resize(6);
  factors.reset();
  EXPECT_EQ(factors.gammaR, 0.0);
  EXPECT_TRUE(factors.geoFactors.empty());
}

TEST(BulbAnchor, IsNotEnlargedAtFirst) {
  xBulbAnchor stretch = bulb();
  EXPECT_EQ(stretch.getDepthStress(), 0.2);
  EXPECT_EQ(stretch.getArea(), 1000.0);
  EXPECT_EQ(stretch.getSoilCoeff(), 0.5);
  EXPECT_EQ(stretch.getAlphaD(), 1.5);
  stretch.reset();
  EXPECT_EQ(stretch.getDepthStress(), 0.0);
  EXPECT_EQ(stretch.getArea(), 0.0);
  EXPECT_EQ(stretch.getSoilCoeff(), 0.0);
  EXPECT_EQ(stretch.getAlphaD(), 1.0);
  EXPECT_TRUE(stretch.soil.getName().empty());
}

// (1 - sin 30°) · sqrt(1), and twice that for an overconsolidation of 4.
TEST(SoilCoefficient, AtRestIsThatOfTheSoil) {
  xBulbAnchor stretch = bulb();
  stretch.soil.setOCR(1.0);
  stretch.calcSoilCoeff(coeffAtRest);
  EXPECT_NEAR(stretch.getSoilCoeff(), 0.5, 1e-15);
  stretch.soil.setOCR(4.0);
  stretch.calcSoilCoeff(coeffAtRest);
  EXPECT_NEAR(stretch.getSoilCoeff(), 1.0, 1e-15);
}

// tan²(45° - 15°) = 1/3 for delta = 30°, whatever phi.
TEST(SoilCoefficient, ActiveTakesTheFrictionOnTheInterface) {
  xBulbAnchor stretch = bulb();
  stretch.soil.setInterfaceFriction(pi / 6.0);
  stretch.soil.set_InternalFriction(0.1);
  stretch.calcSoilCoeff(coeffActive);
  EXPECT_NEAR(stretch.getSoilCoeff(), 1.0 / 3.0, 1e-15);
}

// (1/3 + 1) / 2.
TEST(SoilCoefficient, IsTheMeanForAnyOtherType) {
  xBulbAnchor stretch = bulb();
  stretch.soil.setInterfaceFriction(pi / 6.0);
  for (const int type : {2, 3, -1}) {
    stretch.calcSoilCoeff(type);
    EXPECT_NEAR(stretch.getSoilCoeff(), 2.0 / 3.0, 1e-15) << type;
  }
}

// (1 · 0.5 · 0.2 + 0.05) · 1000 · 1.5.
TEST(AnchorageStrength, AddsFrictionAndAdhesionOnTheEnlargedSurface) {
  EXPECT_NEAR(bulb().anchorageStrength(), 225.0, 1e-10);
}

TEST(GeoAnchorCombRes, TellsOfBeingPulledOut) {
  const auto failure = record(0.75).getCheckInfo();
  EXPECT_FALSE(failure->isResistance);
  EXPECT_EQ(failure->sf, 0.75);
  EXPECT_EQ(failure->depth, 1500.0);
  EXPECT_EQ(failure->idObj, 101);
  EXPECT_EQ(failure->combIndex, 3);
  EXPECT_EQ(failure->combName, "A1");
}

TEST(GeoAnchorResults, ListTheSuccessiveMinima) {
  xGeoAnchorResults outcome = group({0.9, 0.95, 0.8, 0.8, 3.0});
  std::vector<osg::ref_ptr<xCheckInfo>> failures;
  EXPECT_EQ(outcome.getSfMin(&failures), 0.8);
  EXPECT_EQ(outcome.getIndex(), 2.0);
  ASSERT_EQ(failures.size(), 2U);
  EXPECT_EQ(failures[0]->sf, 0.9);
  EXPECT_FALSE(dynamic_cast<const anchorCheckInfo&>(*failures[0]).isResistance);
  EXPECT_EQ(failures[1]->sf, 0.8);
  outcome = group({1.0});
  failures.clear();
  EXPECT_EQ(outcome.getSfMin(&failures), 1.0);
  EXPECT_TRUE(failures.empty());
  outcome.combinations.clear();
  outcome.computeSfMin();
  EXPECT_EQ(outcome.getSf(), 1e10);
}

TEST(GeotechnicalAnchorDesign, GivesATieToTheLaterAnchor) {
  xGeotechnicalAnchorDesign design;
  EXPECT_EQ(design.getSfMin(nullptr), 1e10);
  design.anchors = {group({0.5}), group({2.0, 0.5}), group({0.75})};
  std::vector<osg::ref_ptr<xCheckInfo>> failures;
  EXPECT_EQ(design.getSfMin(&failures), 0.5);
  EXPECT_EQ(design.getIndex(), 1.0);
  EXPECT_EQ(failures.size(), 3U);
  design.reset();
  EXPECT_TRUE(design.anchors.empty());
  EXPECT_EQ(design.getSf(), 1e10);
}

TEST(BulbAnchor, IsStoredWithItsSoilFirst) {
  EXPECT_EQ(bulb().getIOClass(), "xBulbAnchor");
  EXPECT_EQ(stored(bulb()), frame_bytes(1, bytes_of([](outstream& out) {
                                          bulb().soil.pub_write(out);
                                          out << 0.2 << 1000.0 << 0.5 << 1.5;
                                        })));
  EXPECT_EQ(stored(through_memory(bulb())), stored(bulb()));
}

TEST(GeoAnchorCombRes, IsStoredAfterItsBase) {
  const xGeoAnchorCombRes outcome = record(0.75);
  EXPECT_EQ(outcome.getIOClass(), "xGeoAnchorCombRes");
  EXPECT_EQ(stored(outcome), frame_bytes(1, bytes_of([](outstream& out) {
                                           xAnchorResults base;
                                           base.setCheckID(101, 3, "A1");
                                           base.depth = 1500.0;
                                           base.setSf(0.75);
                                           base.pub_write(out);
                                           out << 2;
                                           bulb().pub_write(out);
                                           xBulbAnchor{}.pub_write(out);
                                         })));
  EXPECT_EQ(stored(through_memory(outcome)), stored(outcome));
  xGeoAnchorCombRes emptied = outcome;
  emptied.reset();
  EXPECT_EQ(stored(emptied), stored(xGeoAnchorCombRes{}));
}

TEST(GeoAnchorResults, AreStoredAfterTheirBase) {
  xGeoAnchorResults outcome = group({2.0, 0.5});
  outcome.computeSfMin();
  EXPECT_EQ(outcome.getIOClass(), "xGeoAnchorResults");
  EXPECT_EQ(stored(outcome), frame_bytes(1, bytes_of([](outstream& out) {
                                           xBaseResults base;
                                           base.setSf(0.5);
                                           base.setIndex(1);
                                           base.pub_write(out);
                                           out << 2;
                                           record(2.0).pub_write(out);
                                           record(0.5).pub_write(out);
                                         })));
  EXPECT_EQ(stored(through_memory(outcome)), stored(outcome));
  outcome.reset();
  EXPECT_EQ(stored(outcome), stored(xGeoAnchorResults{}));
}

TEST(GeotechnicalAnchorDesign, IsStoredAfterItsBase) {
  xGeotechnicalAnchorDesign design;
  design.anchors = {group({0.5})};
  design.getSfMin(nullptr);
  EXPECT_EQ(design.getIOClass(), "xGeotechnicalAnchorDesign");
  EXPECT_EQ(stored(design), frame_bytes(1, bytes_of([&design](outstream& out) {
                                          xBaseResults base;
                                          base.setSf(0.5);
                                          base.pub_write(out);
                                          out << 1;
                                          design.anchors[0].pub_write(out);
                                        })));
  EXPECT_EQ(stored(through_memory(design)), stored(design));
}

TEST(GeotechnicalAnchorDesign, RefusesDamagedStreams) {
  xGeotechnicalAnchorDesign design;
  design.anchors = {group({0.5}), group({})};
  ostrel::testing::expect_cuts_refused(design);
  EXPECT_GT(ostrel::testing::refused_mutations(design, 300), 0);
}

}  // namespace
