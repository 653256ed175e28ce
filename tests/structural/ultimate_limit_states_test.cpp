// SPDX-License-Identifier: Apache-2.0
#include "ostrel/ultimate_limit_states.h"

#include "support/hostile_stream.h"
#include "support/stream_round_trip.h"

#include <gmock/gmock.h>

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace {

using ostrel::testing::bytes_of;
using ostrel::testing::expect_cuts_refused;
using ostrel::testing::frame_bytes;
using ostrel::testing::read_stored;
using ostrel::testing::refused_mutations;
using ostrel::testing::stored;
using ostrel::testing::through_memory;
using ::testing::ElementsAre;

// One failure each in the combination "A", each factor half of the one before: a wall with
// |Mrd / Md| = 1 / 2, a slope with 1/4, a tendon with 1/8, a bulb with 1/16, a pile with
// |Rd / Fd| = 1 / 32, a rigid body with |Hres / Hdest| = 1 / 64, a cap beam with 1/128, and piping
// with the gradient 1 against a critical one of 1/256.
xUltimateLimitStates with_failures() {
  xSectionCheck section;
  section.flex.Md = 2.0;
  section.flex.Mrd = 1.0;
  xUltimateLimitStates states;
  xBendShearCombResults& wall = states.structuralDesign.bendShear.combinations.emplace_back();
  wall.setxCombName("A");
  wall.sections = {section};
  xSlopeStability& slope = states.slopeStabilityDesign.getResults().emplace_back();
  slope.setxCombName("A");
  slope.setSf(0.25);
  xStrAnchorCombRes& tendon =
      states.structuralAnchorDesign.anchors.emplace_back().combinations.emplace_back();
  tendon.setxCombName("A");
  tendon.setSf(0.125);
  xGeoAnchorCombRes& bulb =
      states.geotechnicalAnchorDesign.anchors.emplace_back().combinations.emplace_back();
  bulb.setxCombName("A");
  bulb.setSf(0.0625);
  xBearCapacityPile& pile = states.geotechnicalPileDesign.results.emplace_back();
  pile.setxCombName("A");
  pile.setFd(32.0);
  pile.setRd(1.0);
  rigidBodyMotionCheck& motion = states.rigidBodyDesign.results.emplace_back();
  motion.setxCombName("A");
  motion.Hdest = 64.0;
  motion.Hres = 1.0;
  section.flex.Md = 128.0;
  xBendShearCombResults& beam = states.traveResults.bendShear.combinations.emplace_back();
  beam.setxCombName("A");
  beam.sections = {section};
  verificaSifonamento& piping = states.hydraulicChecks.piping.emplace_back();
  piping.setxCombName("A");
  piping.dH = piping.Ld = piping.gammaR = 1.0;
  piping.iCrit = 1.0 / 256.0;
  return states;
}

TEST(UltimateLimitStates, WithoutAnyVerificationAreUnlimited) {
  EXPECT_DOUBLE_EQ(xUltimateLimitStates{}.getSfMin(nullptr), 1e10);
}

TEST(UltimateLimitStates, TakeTheSmallestFactorAndTheFailuresInTheirOrder) {
  xUltimateLimitStates states = with_failures();
  EXPECT_DOUBLE_EQ(states.getSfMin(nullptr), 1.0 / 256.0);
  std::vector<osg::ref_ptr<xCheckInfo>> failures;
  EXPECT_DOUBLE_EQ(states.getSfMin(&failures), 1.0 / 256.0);
  std::vector<double> factors;
  for (const auto& failure : failures)
    factors.push_back(failure->sf);
  EXPECT_THAT(factors, ElementsAre(1.0 / 2, 1.0 / 4, 1.0 / 8, 1.0 / 16, 1.0 / 32, 1.0 / 64,
                                   1.0 / 128, 1.0 / 256));
}

TEST(UltimateLimitStates, TakeASmallerFactorFromAnyVerification) {
  xUltimateLimitStates states = with_failures();
  states.slopeStabilityDesign.getResults()[0].setSf(0.001);
  EXPECT_DOUBLE_EQ(states.getSfMin(nullptr), 0.001);
}

// Results of anchors with these ids, two to an anchor.
template <class Design>
void add_results(Design& design, const std::vector<std::int64_t>& ids) {
  for (std::size_t i = 0; i < ids.size(); ++i) {
    if (i % 2 == 0) design.anchors.emplace_back();
    design.anchors.back().combinations.emplace_back().setIdObj(ids[i]);
  }
}

TEST(UltimateLimitStates, TellEveryAnchorOnce) {
  xUltimateLimitStates states;
  add_results(states.structuralAnchorDesign, {7, 3, 7});
  add_results(states.geotechnicalAnchorDesign, {5});
  std::vector<std::int64_t> ids;
  states.getAnchorsID(true, ids);
  EXPECT_THAT(ids, ElementsAre(3, 7));
  ids.clear();
  states.getAnchorsID(false, ids);
  EXPECT_THAT(ids, ElementsAre(5));
  states.getAnchorsID(true, ids);
  EXPECT_THAT(ids, ElementsAre(3, 5, 7));
}

TEST(UltimateLimitStates, ResetForgetsTheVerifications) {
  xUltimateLimitStates states = with_failures();
  states.reset();
  EXPECT_DOUBLE_EQ(states.getSfMin(nullptr), 1e10);
  EXPECT_EQ(stored(states), stored(xUltimateLimitStates{}));
}

TEST(UltimateLimitStates, AreStoredMemberByMember) {
  const xUltimateLimitStates states = with_failures();
  EXPECT_EQ(states.getIOClass(), "xUltimateLimitStates");
  EXPECT_EQ(stored(states), frame_bytes(4, bytes_of([&states](outstream& out) {
                                          states.structuralDesign.pub_write(out);
                                          states.slopeStabilityDesign.pub_write(out);
                                          states.structuralAnchorDesign.pub_write(out);
                                          states.geotechnicalAnchorDesign.pub_write(out);
                                          states.geotechnicalPileDesign.pub_write(out);
                                          states.rigidBodyDesign.pub_write(out);
                                          states.traveResults.pub_write(out);
                                          states.hydraulicChecks.pub_write(out);
                                        })));
  EXPECT_EQ(stored(through_memory(states)), stored(states));
}

TEST(UltimateLimitStates, OfEarlierVersionsAreRefused) {
  xUltimateLimitStates states;
  try {
    read_stored(states, frame_bytes(3, ""));
    FAIL() << "version 3 was read";
  } catch (int version) {
    EXPECT_EQ(version, 3);
  }
}

TEST(UltimateLimitStates, FromADamagedStreamAreRefused) {
  expect_cuts_refused(with_failures());
  EXPECT_GT(refused_mutations(with_failures(), 500), 0);
}

TEST(UltimateLimitStates, AreCopiedAndMoved) {
  xUltimateLimitStates states = with_failures();
  xUltimateLimitStates copy = states;
  EXPECT_EQ(stored(copy), stored(states));
  const xUltimateLimitStates moved = std::move(copy);
  EXPECT_EQ(stored(moved), stored(states));
}

}  // namespace
