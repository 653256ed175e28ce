// SPDX-License-Identifier: Apache-2.0
#include "slope/stripes.h"
#include "support/hostile_stream.h"
#include "support/slope_ground.h"
#include "support/stream_round_trip.h"

#include <gmock/gmock.h>

#include <cmath>

namespace {

using ostrel::testing::box;
using ostrel::testing::ground;

xClipData filled() {
  xClipData clip;
  clip.soil = ground(box(0, 0, 1, 1), 2e-5, 2.1e-5, 0.01, 0.5);
  clip.polygon = box(1, 2, 3, 4);
  clip.ownerFlag = true;
  clip.hasLoad = {false, true};
  clip.width = 6;
  clip.baseLength = 7;
  clip.baseMid = {8, 9};
  clip.belowWater = true;
  clip.area = 11;
  clip.baricenter = {12, 13};
  clip.volume = 14;
  clip.weight = 15;
  clip.seismicForce = 16;
  clip.verticalWeight = 17;
  clip.armY = 18;
  clip.phi = 19;
  clip.cohesion = 20;
  clip.alpha = 21;
  clip.porePressure = 22;
  clip.uniformLoad = {23, 27};
  clip.stripLoad = {24, 28};
  clip.lineLoad = {25, 29};
  clip.pointLoad = {26, 30};
  return clip;
}

TEST(ClipData, IsStoredInItsOrder) {
  const xClipData clip = filled();
  const std::string fields = ostrel::testing::bytes_of([&](outstream& out) {
    clip.soil.pub_write(out);
    write_vec(clip.polygon, out);
    out << true << false << true << 6.0 << 7.0 << 8.0 << 9.0 << true;
    for (int field = 11; field <= 30; ++field) {
      out << static_cast<double>(field);
    }
  });
  EXPECT_EQ(ostrel::testing::stored(clip), ostrel::testing::frame_bytes(2, fields));
}

TEST(ClipData, ComesBackAsItWas) {
  const xClipData clip = filled();
  EXPECT_EQ(ostrel::testing::stored(ostrel::testing::through_memory(clip)),
            ostrel::testing::stored(clip));
  EXPECT_EQ(clip.getIOClass(), "xClipData");
}

TEST(ClipData, RefusesItsFirstVersion) {
  xClipData clip;
  try {
    ostrel::testing::read_stored(clip, ostrel::testing::frame_bytes(1, ""));
    FAIL() << "version 1 was read";
  } catch (int version) {
    EXPECT_EQ(version, 1);
  }
}

TEST(ClipData, SurvivesDamagedStreams) {
  ostrel::testing::expect_cuts_refused(filled());
  EXPECT_GT(ostrel::testing::refused_mutations(filled(), 300), 0);
}

TEST(ClipData, ResetsToNothing) {
  xClipData clip = filled();
  clip.reset();
  EXPECT_EQ(ostrel::testing::stored(clip), ostrel::testing::stored(xClipData{}));
  EXPECT_TRUE(clip.polygon.empty());
}

// From (0, 0) to the corners of 3..6 by 4..8: hypot(3, 4) = 5 and hypot(6, 8) = 10.
TEST(PseudoDistance, IsThatOfTheCornersOfTheBox) {
  const osg::ref_ptr<sliceSeg> piece = new sliceSeg;
  ASSERT_TRUE(ostrel::slope::initSlice(nullptr, box(3, 4, 6, 8), 3, 0, {0, 0}, *piece));
  double nearest = 0.0;
  double farthest = 0.0;
  piece->getPseudoMinDist({0, 0}, nearest, farthest);
  EXPECT_DOUBLE_EQ(nearest, 5.0);
  EXPECT_DOUBLE_EQ(farthest, 10.0);
}

// The centre lies in the middle of the piece, and yet the nearest corner is sqrt(50) away.
TEST(PseudoDistance, DoesNotSeeTheMiddleOfASide) {
  const osg::ref_ptr<sliceSeg> piece = new sliceSeg;
  ASSERT_TRUE(ostrel::slope::initSlice(nullptr, box(0, 0, 10, 10), 10, 0, {0, 0}, *piece));
  double nearest = 0.0;
  double farthest = 0.0;
  piece->getPseudoMinDist({5, 5}, nearest, farthest);
  EXPECT_DOUBLE_EQ(nearest, std::sqrt(50.0));
  osg::ref_ptr<sliceSeg> out = piece;
  EXPECT_TRUE(piece->iIntersect({5, 5}, 6.0, out));
  EXPECT_FALSE(out.valid());
}

TEST(CopyStripes, FreezesThePieces) {
  const osg::ref_ptr<sliceSeg> piece = new sliceSeg;
  piece->clip = filled();
  const ostrel::slope::Stripes stripes{{piece}, {piece, piece}};
  std::vector<std::vector<xClipData>> copies(5);
  ostrel::slope::copyStripes(stripes, copies);
  piece->clip.reset();
  ASSERT_EQ(copies.size(), 2U);
  ASSERT_EQ(copies[1].size(), 2U);
  EXPECT_EQ(ostrel::testing::stored(copies[1][1]), ostrel::testing::stored(filled()));
}

}  // namespace
