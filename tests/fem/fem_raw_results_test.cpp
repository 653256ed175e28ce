// SPDX-License-Identifier: Apache-2.0
#include "ostrel/fem_results.h"
#include "support/stream_round_trip.h"

#include <gtest/gtest.h>

namespace {

using ostrel::testing::bytes_of;
using ostrel::testing::frame_bytes;
using ostrel::testing::read_stored;
using ostrel::testing::stored;
using ostrel::testing::through_memory;

xPointStress point(double N, double T, double M) {
  xPointStress stress;
  stress.N = N;
  stress.T = T;
  stress.M = M;
  return stress;
}

Fsoil soil_force() {
  Fsoil force;
  force.elevation = -1.0;
  force.springForce = 2.0;
  force.limitForce = 3.0;
  force.limitMoment = 4.0;
  return force;
}

reacTerr soil_reaction() {
  reacTerr reaction;
  reaction.reaction = 5.0;
  reaction.limited = 6.0;
  return reaction;
}

xBeamStress beam_stress() {
  xBeamStress stress;
  stress.setStartNode(3);
  stress.setEndNode(4);
  stress.points = {point(1.0, 2.0, 3.0), point(4.0, 5.0, 6.0)};
  return stress;
}

xCombRes raw_results() {
  xCombRes raw;
  raw.resName = "name";
  raw.displacements = {{1.0, 2.0, 3.0}, {4.0, 5.0, 6.0}};
  raw.nodalForces[1] = {7.0, 8.0, 9.0};
  raw.soilReactions[2] = soil_reaction();
  raw.beamStress = {beam_stress()};
  raw.soilForces[5] = soil_force();
  raw.appliedForces[6] = {10.0, 11.0, 12.0};
  return raw;
}

template <class T>
void expect_refused(int version) {
  T object;
  try {
    read_stored(object, frame_bytes(version, ""));
    FAIL() << object.getIOClass() << " of version " << version << " was read";
  } catch (int refused) {
    EXPECT_EQ(refused, version);
  }
}

TEST(PointStress, IsStoredAsAxialShearMoment) {
  EXPECT_EQ(stored(point(1.0, 2.0, 3.0)),
            frame_bytes(1, bytes_of([](outstream& out) { out << 1.0 << 2.0 << 3.0; })));
  xPointStress stress = through_memory(point(1.0, 2.0, 3.0));
  EXPECT_DOUBLE_EQ(stress.T, 2.0);
  stress.reset();
  EXPECT_EQ(stored(stress), stored(xPointStress{}));
}

TEST(BeamStress, IsStoredAsItsNodesThenItsPoints) {
  EXPECT_EQ(stored(beam_stress()), frame_bytes(1, bytes_of([](outstream& out) {
                                                 out << 3 << 4 << 2;
                                                 point(1.0, 2.0, 3.0).pub_write(out);
                                                 point(4.0, 5.0, 6.0).pub_write(out);
                                               })));
  xBeamStress stress = through_memory(beam_stress());
  EXPECT_EQ(stored(stress), stored(beam_stress()));
  stress.reset();
  EXPECT_EQ(stress.getStartNode(), 0);
  EXPECT_EQ(stress.getEndNode(), 0);
  EXPECT_TRUE(stress.points.empty());
}

TEST(SoilReaction, IsStoredInItsOrder) {
  EXPECT_EQ(stored(soil_reaction()),
            frame_bytes(1, bytes_of([](outstream& out) { out << 5.0 << 6.0; })));
  EXPECT_DOUBLE_EQ(through_memory(soil_reaction()).limited, 6.0);
}

TEST(SoilForce, IsStoredInItsOrder) {
  EXPECT_EQ(stored(soil_force()),
            frame_bytes(2, bytes_of([](outstream& out) { out << -1.0 << 2.0 << 3.0 << 4.0; })));
  EXPECT_DOUBLE_EQ(through_memory(soil_force()).limitMoment, 4.0);
  expect_refused<Fsoil>(1);
}

TEST(CombRes, IsStoredInItsOrder) {
  EXPECT_EQ(stored(raw_results()), frame_bytes(2, bytes_of([](outstream& out) {
                                                 out << "name" << 2;
                                                 xFemNodeData(1.0, 2.0, 3.0).pub_write(out);
                                                 xFemNodeData(4.0, 5.0, 6.0).pub_write(out);
                                                 out << 1 << 1;
                                                 xFemNodeData(7.0, 8.0, 9.0).pub_write(out);
                                                 out << 1 << 2;
                                                 soil_reaction().pub_write(out);
                                                 out << 1;
                                                 beam_stress().pub_write(out);
                                                 out << 1 << 5;
                                                 soil_force().pub_write(out);
                                                 out << 1 << 6;
                                                 xFemNodeData(10.0, 11.0, 12.0).pub_write(out);
                                               })));
  EXPECT_EQ(stored(through_memory(raw_results())), stored(raw_results()));
  expect_refused<xCombRes>(1);
}

TEST(CombRes, ResetEmptiesIt) {
  xCombRes raw = raw_results();
  raw.reset();
  EXPECT_EQ(stored(raw), stored(xCombRes{}));
}

TEST(AnchorForce, IsStoredAsItsIdAndThreeDiagrams) {
  AnchorSoll anchor;
  EXPECT_EQ(anchor.idObj, -1);
  anchor.idObj = std::int64_t{1} << 40;
  anchor.axial.points = {{0.0, 1.0}};
  EXPECT_EQ(stored(anchor), frame_bytes(1, bytes_of([&anchor](outstream& out) {
                                          out << (std::int64_t{1} << 40);
                                          anchor.axial.pub_write(out);
                                          anchor.shear.pub_write(out);
                                          anchor.moment.pub_write(out);
                                        })));
  EXPECT_EQ(stored(through_memory(anchor)), stored(anchor));
  anchor.reset();
  EXPECT_EQ(stored(anchor), stored(AnchorSoll{}));
}

}  // namespace
