// SPDX-License-Identifier: Apache-2.0
#include "verification.h"

#include "verification_testing.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>

namespace ostrel::host {
namespace {

constexpr double no_number = std::numeric_limits<double>::quiet_NaN();
const Texts english{Language::english};

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

}  // namespace
}  // namespace ostrel::host
