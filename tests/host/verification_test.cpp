// SPDX-License-Identifier: Apache-2.0
#include "verification.h"

#include "texts_testing.h"
#include "verification_testing.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>

namespace ostrel::host {
namespace {

constexpr double no_number = std::numeric_limits<double>::quiet_NaN();

Verification found(Check check, const xUltimateLimitStates& ultimate,
                   const xServiceabilityLimitStates& serviceability = {}) {
  for (const Verification& verification : verifications_of(ultimate, serviceability, english)) {
    if (verification.check == check) return verification;
  }
  ADD_FAILURE() << "no such verification";
  return {};
}

TEST(Verification, IsNotMadeWithoutResults) {
  const std::vector<Verification> verifications = verifications_of({}, {}, english);
  int place = 0;
  for (const Verification& verification : verifications) {
    EXPECT_EQ(static_cast<int>(verification.check), place++);
    EXPECT_FALSE(verification.made) << name_of(verification.check, english);
    EXPECT_FALSE(is_below(verification, 1e9));
  }
  EXPECT_EQ(place, 10);
}

TEST(Verification, OfTheWallIsItsWorstSection) {
  xUltimateLimitStates ultimate;
  ultimate.structuralDesign = verified_wall();
  const Verification wall = found(Check::wall, ultimate);
  EXPECT_TRUE(wall.made);
  EXPECT_DOUBLE_EQ(wall.factor, 0.8);
  EXPECT_EQ(wall.combination, "B");
  EXPECT_EQ(wall.place, "6.00 m, shear");
  ultimate.structuralDesign.bendShear.combinations.pop_back();
  EXPECT_EQ(found(Check::wall, ultimate).place, "4.00 m, bending");
}

TEST(Verification, IsAlsoToldForEachCombination) {
  xUltimateLimitStates ultimate;
  ultimate.structuralDesign = verified_wall();
  // The second anchor of a combination counts for the same.
  ultimate.structuralAnchorDesign.anchors.resize(2);
  ultimate.structuralAnchorDesign.anchors[0].combinations = {
      anchor_result<xStrAnchorCombRes>("A", 3.0)};
  ultimate.structuralAnchorDesign.anchors[1].combinations = {
      anchor_result<xStrAnchorCombRes>("A", 0.5)};
  const auto all = verifications_by_combination(ultimate, {}, english);
  ASSERT_EQ(all.size(), 3u);
  EXPECT_EQ(all[0].combination, "A");
  EXPECT_DOUBLE_EQ(all[0].factor, 1.2);
  EXPECT_EQ(all[0].places, 3);
  EXPECT_EQ(all[0].failing, 0);
  EXPECT_EQ(all[1].combination, "B");
  EXPECT_EQ(all[1].index, 2);
  EXPECT_DOUBLE_EQ(all[1].factor, 0.8);
  EXPECT_EQ(all[1].places, 2);
  EXPECT_EQ(all[1].failing, 1);
  EXPECT_EQ(all[2].check, Check::anchor_tendon);
  EXPECT_EQ(all[2].factor, 0.5);
  EXPECT_EQ(all[2].places, 2);
}

TEST(Verification, IsNotToldForACombinationWithoutResults) {
  EXPECT_TRUE(verifications_by_combination({}, {}, english).empty());
}

TEST(Verification, OfTheDisplacementsIsTheSmallerFactorOfHeadAndExcavation) {
  const Verification verification = found(Check::displacements, {}, verified_displacements());
  EXPECT_DOUBLE_EQ(verification.factor, 2.0);
  EXPECT_EQ(verification.combination, "S");
  EXPECT_EQ(verification.place, "excavation level");
}

// The library passes a factor that is not a number over: nothing is smaller than it. Here it counts
// as the worst, wherever it stands.
TEST(Verification, TakesWhatIsNoNumberForTheWorst) {
  xUltimateLimitStates ultimate;
  ultimate.structuralDesign = verified_wall();
  ultimate.structuralDesign.bendShear.combinations[0].sections[1].flex.Mrd = no_number;
  const Verification wall = found(Check::wall, ultimate);
  EXPECT_TRUE(std::isnan(wall.factor));
  EXPECT_EQ(wall.combination, "A");
  EXPECT_TRUE(is_below(wall, 1e-9));
}

TEST(Verification, IsBelowALimitThatItDoesNotReach) {
  Verification verification{.made = true, .factor = 1.0};
  EXPECT_FALSE(is_below(verification, 1.0));
  EXPECT_TRUE(is_below(verification, 1.1));
}

TEST(FactorText, RoundsDownSoThatNoFailureLooksLikeTheLimit) {
  EXPECT_EQ(factor_text(0.9999), "0.99");
  EXPECT_EQ(factor_text(1.0), "1.00");
  EXPECT_EQ(factor_text(1.1), "1.10");
  EXPECT_EQ(factor_text(0.29), "0.29");
  EXPECT_EQ(factor_text(2.5678), "2.56");
  EXPECT_EQ(factor_text(0.0), "0.00");
}

TEST(FactorText, HasWordsForWhatIsBeyondNumbers) {
  EXPECT_EQ(factor_text(1e10), "∞");
  EXPECT_EQ(factor_text(1000.0), ">999");
  EXPECT_EQ(factor_text(no_number), "?");
}

TEST(Verification, OfTheSlopeIsTheWorstCircle) {
  xUltimateLimitStates ultimate;
  ultimate.slopeStabilityDesign.getResults() = {circle_of("A", 1), circle_of("B", 2)};
  ultimate.slopeStabilityDesign.getResults()[0].setSf(2.5);
  const Verification slope = found(Check::slope, ultimate);
  EXPECT_EQ(slope.factor, 2.0);
  EXPECT_EQ(slope.combination, "B");
  EXPECT_EQ(slope.place, "x -4.0 y 4.5 R 21.0 m");
}

TEST(Verification, OfTheAnchorsIsTheWorstOfAll) {
  xUltimateLimitStates ultimate;
  ultimate.structuralAnchorDesign.anchors.resize(2);
  ultimate.structuralAnchorDesign.anchors[0].combinations = {
      anchor_result<xStrAnchorCombRes>("A", 3.0), anchor_result<xStrAnchorCombRes>("B", 1.5)};
  ultimate.structuralAnchorDesign.anchors[1].combinations = {
      anchor_result<xStrAnchorCombRes>("C", 2.0)};
  ultimate.geotechnicalAnchorDesign.anchors.resize(1);
  ultimate.geotechnicalAnchorDesign.anchors[0].combinations = {
      anchor_result<xGeoAnchorCombRes>("D", 0.5)};
  const Verification tendon = found(Check::anchor_tendon, ultimate);
  EXPECT_EQ(tendon.factor, 1.5);
  EXPECT_EQ(tendon.combination, "B");
  EXPECT_EQ(tendon.place, "2.00 m");
  const Verification pullout = found(Check::anchor_pullout, ultimate);
  EXPECT_EQ(pullout.factor, 0.5);
  EXPECT_EQ(pullout.combination, "D");
}

// 300 / 200 and 240 / 200.
TEST(Verification, OfTheBearingIsTheWorstCombination) {
  xUltimateLimitStates ultimate;
  ultimate.geotechnicalPileDesign.results.resize(2);
  for (xBearCapacityPile& result : ultimate.geotechnicalPileDesign.results)
    result.setFd(200e3);
  ultimate.geotechnicalPileDesign.results[0].setRd(300e3);
  ultimate.geotechnicalPileDesign.results[1].setRd(240e3);
  ultimate.geotechnicalPileDesign.results[1].setxCombName("B");
  const Verification bearing = found(Check::bearing, ultimate);
  EXPECT_DOUBLE_EQ(bearing.factor, 1.2);
  EXPECT_EQ(bearing.combination, "B");
  EXPECT_EQ(bearing.place, "");
}

// Sliding 300 / 200 = 1.5, rotation 120 / 100 = 1.2.
TEST(Verification, OfTheRigidBodyTellsSlidingFromRotation) {
  xUltimateLimitStates ultimate;
  ultimate.rigidBodyDesign.results.resize(1);
  rigidBodyMotionCheck& result = ultimate.rigidBodyDesign.results[0];
  result.Hdest = -200.0;
  result.Hres = 300.0;
  result.Mdest = 100.0;
  result.Mres = 120.0;
  EXPECT_DOUBLE_EQ(found(Check::rigid_body, ultimate).factor, 1.2);
  EXPECT_EQ(found(Check::rigid_body, ultimate).place, "rotation");
  result.Mres = 200.0;
  EXPECT_DOUBLE_EQ(found(Check::rigid_body, ultimate).factor, 1.5);
  EXPECT_EQ(found(Check::rigid_body, ultimate).place, "sliding");
}

// Bending 300 / 100, shear 200 / 100.
TEST(Verification, OfTheCapBeamTellsBendingFromShear) {
  xUltimateLimitStates ultimate;
  ultimate.traveResults.bendShear.combinations = {sections_of("A", 1, {section_at(0, 100, 100)})};
  EXPECT_DOUBLE_EQ(found(Check::cap_beam, ultimate).factor, 2.0);
  EXPECT_EQ(found(Check::cap_beam, ultimate).place, "shear");
}

// Uplift (1 * 300) / (1.5 * 100) = 2; piping (1 / 1.25) / (1 / 4) = 3.2.
TEST(Verification, OfTheWaterAreUpliftAndPiping) {
  xUltimateLimitStates ultimate;
  ultimate.hydraulicChecks.uplift.resize(1);
  verificaSollevamento& uplift = ultimate.hydraulicChecks.uplift[0];
  uplift.Udst = 100.0;
  uplift.Gstb = 300.0;
  uplift.gammaStb = 1.0;
  uplift.gammaDst = 1.5;
  ultimate.hydraulicChecks.piping.resize(1);
  verificaSifonamento& piping = ultimate.hydraulicChecks.piping[0];
  piping.dH = 1.0;
  piping.Ld = 4.0;
  piping.iCrit = 1.0;
  piping.gammaR = 1.25;
  EXPECT_DOUBLE_EQ(found(Check::uplift, ultimate).factor, 2.0);
  EXPECT_DOUBLE_EQ(found(Check::piping, ultimate).factor, 3.2);
}

}  // namespace
}  // namespace ostrel::host
