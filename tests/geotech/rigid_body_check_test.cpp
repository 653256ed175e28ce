// SPDX-License-Identifier: Apache-2.0
#include "ostrel/rigid_body_check.h"

#include "ostrel/language.h"
#include "ostrel/results.h"
#include "ostrel/sheetpiling_model.h"
#include "support/hostile_stream.h"
#include "support/stream_round_trip.h"
#include "support/wall_builder.h"

#include <gtest/gtest.h>

#include <limits>
#include <numbers>

namespace {

using ostrel::testing::bytes_of;
using ostrel::testing::expect_cuts_refused;
using ostrel::testing::frame_bytes;
using ostrel::testing::read_stored;
using ostrel::testing::refused_mutations;
using ostrel::testing::stored;
using ostrel::testing::through_memory;
using ostrel::testing::unfactored;
using ostrel::testing::WallBuilder;
using Failures = std::vector<osg::ref_ptr<xCheckInfo>>;

xLoadComb combination(const std::string& name, bool wanted) {
  xLoadComb comb = unfactored(name);
  comb.checks[checkRigidMotion] = wanted;
  return comb;
}

Fsoil spring(double elevation, double force, double limit) {
  Fsoil soil;
  soil.elevation = elevation;
  soil.springForce = force;
  soil.limitForce = limit;
  return soil;
}

// 1000 N at a depth of 1 m; 3000 N from the soil at 7 m, which can give 9000 N, and -2000 N at 9 m,
// where it can give 4000 N and has a moment of 500 Nmm.
xCombResults result_of(const std::string& name) {
  xCombResults result;
  result.setCombName(name);
  result.setcombIndex(5);
  xFemResults& beam = result.femResults;
  xFemNodeData_pos& load = beam.appliedForces.emplace_back();
  load.pos = 1000.0;
  load.data.y = 1000.0;
  beam.soilForces[3] = spring(-7000.0, 3000.0, 9000.0);
  beam.soilForces[4] = spring(-9000.0, -2000.0, 4000.0);
  beam.soilForces[4].limitMoment = 500.0;
  for (xDiagram* diagram : {&beam.dispAxial, &beam.dispTrans, &beam.rotation}) {
    diagram->points.assign(2, diag_Point(0.0, 2.0));
  }
  return result;
}

class RigidBody : public ::testing::Test {
protected:
  RigidBody() { data = WallBuilder{}.combination(combination("A", true)).build(); }
  void SetUp() override { ASSERT_TRUE(ostrel::set_language("it")); }
  void TearDown() override { ostrel::set_language(""); }

  void anchor_at(double depth) {
    xAnchor& anchor = data.anchors.emplace_back(ostrel::testing::anchor_at(depth));
    anchor.setcableDiam(20.0);
    anchor.settings.setFyk(1000.0);
    anchor.settings.setGammaS(1.25);
    info_Fem_anchor& link = model.anchors.emplace_back();
    link.level = -depth;
    link.id = static_cast<int>(data.anchors.size()) - 1;
    link.node = 1;
  }

  xSheetpilingData data;
  xSheetpilingModel model;
  std::vector<xCombResults> results{result_of("A")};
  xrigidBodyDesign design;
};

TEST_F(RigidBody, TurnsAboutTheSignChangeOfTheSoilWithoutAnchors) {
  ASSERT_EQ(design.check(model, data, results), ostrel::ok);
  ASSERT_EQ(design.results.size(), 1U);
  const rigidBodyMotionCheck& found = design.results[0];
  EXPECT_DOUBLE_EQ(found.rotCenter, -8200.0);  // 3000 / 5000 of the way from -7000 to -9000
  EXPECT_DOUBLE_EQ(found.Hdest, -1000.0);      // 1000 - 2000
  EXPECT_DOUBLE_EQ(found.Hres, 9000.0);
  EXPECT_DOUBLE_EQ(found.Mdest, -7.2e6);  // -(-1000 + 8200) * 1000
  // -(-7000 + 8200) * 9000 = -10.8e6; (-9000 + 8200) * 4000 + 500 = -3.2e6 + 500.
  EXPECT_DOUBLE_EQ(found.Mres, -14e6 + 500.0);
  EXPECT_DOUBLE_EQ(found.SFTrasl(), 9.0);
  EXPECT_DOUBLE_EQ(found.SfRot(), 13'999'500.0 / 7.2e6);
  EXPECT_DOUBLE_EQ(found.getSf(), 13'999'500.0 / 7.2e6);
  EXPECT_EQ(found.getIdObj(), 7);
  EXPECT_EQ(found.getCombIndex(), 5);
  EXPECT_EQ(found.getCombName(), "A");
}

TEST_F(RigidBody, TurnsAboutItsAnchors) {
  anchor_at(2000.0);
  anchor_at(2000.00005);  // the same level
  ASSERT_EQ(design.check(model, data, results), ostrel::ok);
  ASSERT_EQ(design.results.size(), 1U);
  const rigidBodyMotionCheck& found = design.results[0];
  EXPECT_DOUBLE_EQ(found.rotCenter, -2000.0);
  EXPECT_DOUBLE_EQ(found.Mdest, -1e6);  // -(-1000 + 2000) * 1000
  // Two tendons of pi * 20² / 4 * 1000 / 1.25.
  EXPECT_DOUBLE_EQ(found.Hres, 9000.0 + 160e3 * std::numbers::pi);
  // 5000 * 9000 - 7000 * 4000 + 500 = 17 000 500, and 0.00005 mm below the point one tendon.
  EXPECT_NEAR(found.Mres, 17'000'500.0 + 0.00005 * 80e3 * std::numbers::pi, 1e-6);
}

TEST_F(RigidBody, MovesNotWithAnchorsAtTwoLevels) {
  anchor_at(2000.0);
  anchor_at(5000.0);
  EXPECT_EQ(design.check(model, data, results), ostrel::ok);
  EXPECT_TRUE(design.results.empty());
}

TEST_F(RigidBody, HasNoResultWithNeitherAnchorsNorSoil) {
  results[0].femResults.soilForces.clear();
  EXPECT_EQ(design.check(model, data, results), ostrel::ok);
  EXPECT_TRUE(design.results.empty());
  EXPECT_DOUBLE_EQ(design.getSfMin(nullptr), 1e10);
}

TEST_F(RigidBody, LeavesOutACombinationThatDoesNotAsk) {
  data.loadCombs = {combination("A", false), combination("B", true), combination("C", false)};
  data.loadCombs[2].checks.clear();
  results = {result_of("A"), result_of("B"), result_of("C")};
  ASSERT_EQ(design.check(model, data, results), ostrel::ok);
  ASSERT_EQ(design.results.size(), 1U);
  EXPECT_EQ(design.results[0].getCombName(), "B");
}

TEST_F(RigidBody, NeedsAResultForEachCombination) {
  results.push_back(result_of("B"));
  EXPECT_EQ(design.check(model, data, results), errResultCount);
  EXPECT_TRUE(design.results.empty());
  results.clear();
  EXPECT_EQ(design.check(model, data, results), errResultCount);
  data.loadCombs.clear();
  EXPECT_EQ(design.check(model, data, results), ostrel::ok);
}

TEST_F(RigidBody, AppendsToWhatStands) {
  ASSERT_EQ(design.check(model, data, results), ostrel::ok);
  ASSERT_EQ(design.check(model, data, results), ostrel::ok);
  EXPECT_EQ(design.results.size(), 2U);
}

TEST_F(RigidBody, SpeaksOfNoObjectWithoutAWall) {
  data.props = nullptr;
  ASSERT_EQ(design.check(model, data, results), ostrel::ok);
  EXPECT_EQ(design.results[0].getIdObj(), -1);
}

// Factors by translation and rotation.
rigidBodyMotionCheck moved(const std::string& name, double translation, double rotation) {
  rigidBodyMotionCheck record;
  record.setCheckID(7, 8, name);
  record.Hdest = -100.0;
  record.Hres = 100.0 * translation;
  record.Mdest = 1000.0;
  record.Mres = -1000.0 * rotation;
  return record;
}

TEST_F(RigidBody, ListsEveryFailure) {
  design.results = {moved("A", 0.5, 2.0), moved("B", 2.0, 0.75), moved("C", 0.875, 0.625),
                    moved("D", 1.0, 1.0)};
  Failures failed;
  EXPECT_DOUBLE_EQ(design.getSfMin(&failed), 0.5);
  ASSERT_EQ(failed.size(), 3U);
  EXPECT_EQ(failed[0]->getString(),
            "A: Verifica atto di moto rigido non soddisfatta, SF_Trasl. = 0.5");
  EXPECT_EQ(failed[1]->getString(),
            "B: Verifica atto di moto rigido non soddisfatta, SF_Rot. = 0.75");
  EXPECT_EQ(failed[2]->getString(),
            "C: Verifica atto di moto rigido non soddisfatta, SF_Trasl. = 0.875, SF_Rot. = 0.625");
  EXPECT_DOUBLE_EQ(failed[1]->sf, 2.0);
  EXPECT_EQ(failed[1]->idObj, 7);
  EXPECT_EQ(failed[1]->combIndex, 8);
  EXPECT_DOUBLE_EQ(design.getSfMin(nullptr), 0.5);
}

TEST_F(RigidBody, SpeaksEnglish) {
  ASSERT_TRUE(ostrel::set_language("en"));
  const osg::ref_ptr<xCheckInfo> info = moved("A", 0.5, 0.25).getCheckInfo();
  EXPECT_EQ(info->getString(),
            "A: Rigid body motion verification not satisfied, SF_transl. = 0.5, SF_rot. = 0.25");
}

TEST(RigidBodyMotionCheck, IsUnlimitedWhereNothingDrives) {
  rigidBodyMotionCheck record = moved("A", 0.5, 2.0);
  record.Hdest = 0.0;
  EXPECT_DOUBLE_EQ(record.SFTrasl(), 1e10);
  EXPECT_DOUBLE_EQ(record.getSf(), 2.0);
  record.Mdest = 0.0;
  EXPECT_DOUBLE_EQ(record.getSf(), 1e10);
}

TEST(RigidBodyMotionCheck, GoesByTheOtherFactorWhereOneIsNone) {
  rigidBodyMotionCheck record = moved("A", 0.5, 2.0);
  record.Mres = std::numeric_limits<double>::quiet_NaN();
  EXPECT_DOUBLE_EQ(record.getSf(), 0.5);
  record = moved("A", 0.5, 0.25);
  record.Hres = std::numeric_limits<double>::quiet_NaN();
  EXPECT_DOUBLE_EQ(record.getSf(), 0.25);
}

TEST(RigidBodyMotionCheckInfo, IsClonedWhole) {
  const osg::ref_ptr<rigidBodyMotionCheckInfo> info = new rigidBodyMotionCheckInfo;
  EXPECT_DOUBLE_EQ(info->SfRot, 1e10);
  info->SfRot = 0.25;
  info->sf = 0.5;
  const osg::ref_ptr<rigidBodyMotionCheckInfo> copy = info->clone();
  EXPECT_NE(copy, info);
  EXPECT_DOUBLE_EQ(copy->SfRot, 0.25);
  EXPECT_DOUBLE_EQ(copy->sf, 0.5);
}

rigidBodyMotionCheck filled_record() {
  rigidBodyMotionCheck record;
  record.setCheckID(7, 8, "SLU");
  record.rotCenter = 1.0;
  record.Hdest = 2.0;
  record.Hres = 3.0;
  record.Mdest = 4.0;
  record.Mres = 5.0;
  return record;
}

std::string record_fields() {
  return bytes_of([](outstream& out) {
    xCheckCombID base;
    base.setCheckID(7, 8, "SLU");
    base.pub_write(out);
    out << 2.0 << 3.0 << 4.0 << 5.0 << 1.0;
  });
}

TEST(RigidBodyMotionCheck, IsStoredAfterItsBaseInItsOwnOrder) {
  const rigidBodyMotionCheck record = filled_record();
  EXPECT_EQ(stored(record), frame_bytes(2, record_fields()));
  EXPECT_EQ(stored(through_memory(record)), stored(record));
  EXPECT_EQ(record.getIOClass(), "rigidBodyMotionCheck");
  rigidBodyMotionCheck emptied = record;
  emptied.reset();
  EXPECT_EQ(stored(emptied), stored(rigidBodyMotionCheck{}));
}

TEST(RigidBodyMotionCheck, RefusesVersionOne) {
  rigidBodyMotionCheck record;
  try {
    read_stored(record, frame_bytes(1, record_fields()));
    FAIL() << "an old version was read";
  } catch (int version) {
    EXPECT_EQ(version, 1);
  }
  read_stored(record, frame_bytes(3, record_fields()));
  EXPECT_EQ(stored(record), stored(filled_record()));
}

TEST(RigidBodyDesign, IsStoredAsItsResults) {
  xrigidBodyDesign design;
  design.results = {filled_record(), filled_record()};
  EXPECT_EQ(stored(design), frame_bytes(1, bytes_of([](outstream& out) {
                                          out << 2;
                                          filled_record().pub_write(out);
                                          filled_record().pub_write(out);
                                        })));
  xrigidBodyDesign read = through_memory(design);
  EXPECT_EQ(stored(read), stored(design));
  EXPECT_EQ(read.getIOClass(), "xrigidBodyDesign");
  read.reset();
  EXPECT_TRUE(read.results.empty());
}

TEST(RigidBodyDesign, SurvivesDamagedStreams) {
  xrigidBodyDesign design;
  design.results = {filled_record(), filled_record()};
  expect_cuts_refused(design);
  EXPECT_GT(refused_mutations(design, 500), 50);
}

}  // namespace
