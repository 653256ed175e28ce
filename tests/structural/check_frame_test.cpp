// SPDX-License-Identifier: Apache-2.0
#include "ostrel/check_frame.h"

#include "ostrel/language.h"
#include "support/hostile_stream.h"
#include "support/random_bits.h"
#include "support/stream_round_trip.h"

#include <gtest/gtest.h>
#include <osg/ref_ptr>

#include <cmath>
#include <limits>
#include <type_traits>

namespace {

using ostrel::testing::bytes_of;
using ostrel::testing::expect_cuts_refused;
using ostrel::testing::frame_bytes;
using ostrel::testing::RandomBits;
using ostrel::testing::read_stored;
using ostrel::testing::refused_mutations;
using ostrel::testing::stored;
using ostrel::testing::through_memory;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double not_a_number = std::numeric_limits<double>::quiet_NaN();

TEST(CalculateSF, DividesResistanceByDemandWithoutSigns) {
  EXPECT_DOUBLE_EQ(CalculateSF(4.0, 6.0), 1.5);
  EXPECT_DOUBLE_EQ(CalculateSF(-4.0, 6.0), 1.5);
  EXPECT_DOUBLE_EQ(CalculateSF(4.0, -6.0), 1.5);
  EXPECT_DOUBLE_EQ(CalculateSF(-4.0, -6.0), 1.5);
}

TEST(CalculateSF, IsUnlimitedForADemandOfZeroWhateverTheResistance) {
  for (const double resistance : {0.0, 1.0, -1.0, infinity, not_a_number}) {
    EXPECT_DOUBLE_EQ(CalculateSF(0.0, resistance), 1e10);
    EXPECT_DOUBLE_EQ(CalculateSF(-0.0, resistance), 1e10);
  }
}

TEST(CalculateSF, IsZeroForAResistanceOfZero) {
  EXPECT_DOUBLE_EQ(CalculateSF(5.0, 0.0), 0.0);
  EXPECT_DOUBLE_EQ(CalculateSF(infinity, 1.0), 0.0);
}

TEST(CalculateSF, IsCappedAtTheUnlimitedFactor) {
  EXPECT_DOUBLE_EQ(CalculateSF(1.0, 9.9e9), 9.9e9);
  EXPECT_DOUBLE_EQ(CalculateSF(1.0, 1.1e10), 1e10);
  EXPECT_DOUBLE_EQ(CalculateSF(1e-300, 1e300), 1e10);
  EXPECT_DOUBLE_EQ(CalculateSF(1.0, infinity), 1e10);
}

TEST(CalculateSF, DoesNotHideANumberThatIsNone) {
  EXPECT_TRUE(std::isnan(CalculateSF(1.0, not_a_number)));
  EXPECT_TRUE(std::isnan(CalculateSF(not_a_number, 1.0)));
}

TEST(BaseResults, AreUnlimitedWhenNewAndAfterReset) {
  xBaseResults results;
  EXPECT_DOUBLE_EQ(results.getSf(), 1e10);
  EXPECT_DOUBLE_EQ(results.getIndex(), 0.0);
  results.setSf(0.9);
  results.setIndex(3);
  results.reset();
  EXPECT_DOUBLE_EQ(results.getSf(), 1e10);
  EXPECT_DOUBLE_EQ(results.getIndex(), 0.0);
}

TEST(BaseResults, HandOutTheirIndexAsADouble) {
  static_assert(std::is_same_v<decltype(xBaseResults{}.getIndex()), double>);
  xBaseResults results;
  results.setIndex(-7);
  EXPECT_DOUBLE_EQ(results.getIndex(), -7.0);
}

TEST(BaseResults, AreStoredFactorFirst) {
  const std::string bytes = frame_bytes(1, bytes_of([](outstream& out) { out << 0.75 << 12; }));
  xBaseResults results;
  read_stored(results, bytes);
  EXPECT_DOUBLE_EQ(results.getSf(), 0.75);
  EXPECT_DOUBLE_EQ(results.getIndex(), 12.0);
  EXPECT_EQ(stored(results), bytes);
  EXPECT_EQ(results.getIOClass(), "xBaseResults");
}

TEST(CheckCombID, SpeaksOfNothingWhenNewAndAfterReset) {
  xCheckCombID id;
  EXPECT_EQ(id.getIdObj(), -1);
  EXPECT_EQ(id.getCombIndex(), 0);
  EXPECT_EQ(id.getCombName(), "");
  id.setCheckID(7, 3, "A1");
  id.reset();
  EXPECT_EQ(id.getIdObj(), -1);
  EXPECT_EQ(id.getCombIndex(), 0);
  EXPECT_EQ(id.getCombName(), "");
}

TEST(CheckCombID, TakesItsFieldsOneByOneOrTogether) {
  xCheckCombID id;
  id.setIdObj(1LL << 40);
  id.setCombIndex(2);
  id.setxCombName("A1");
  EXPECT_EQ(id.getIdObj(), 1LL << 40);
  EXPECT_EQ(id.getCombIndex(), 2);
  EXPECT_EQ(id.getCombName(), "A1");
  xCheckCombID other;
  other.setCheckID(id);
  EXPECT_EQ(stored(other), stored(id));
  id.setCheckID(id);
  EXPECT_EQ(stored(other), stored(id));
  other.setCheckID(5, 6, "A2");
  EXPECT_EQ(other.getIdObj(), 5);
  EXPECT_EQ(other.getCombIndex(), 6);
  EXPECT_EQ(other.getCombName(), "A2");
}

TEST(CheckCombID, IsStoredWithTheObjectLast) {
  const std::string bytes = frame_bytes(
      1, bytes_of([](outstream& out) { out << 3 << "A1" << std::int64_t{1} * 5'000'000'000; }));
  xCheckCombID id;
  read_stored(id, bytes);
  EXPECT_EQ(id.getCombIndex(), 3);
  EXPECT_EQ(id.getCombName(), "A1");
  EXPECT_EQ(id.getIdObj(), 5'000'000'000);
  EXPECT_EQ(stored(id), bytes);
  EXPECT_EQ(id.getIOClass(), "xCheckCombID");
}

TEST(ResultsAndIds, ComeBackAsTheyWereStored) {
  RandomBits random(15);
  for (int i = 0; i < 200; ++i) {
    xBaseResults results;
    results.setSf(random.number());
    results.setIndex(random.integer());
    EXPECT_EQ(stored(through_memory(results)), stored(results));
    xCheckCombID id;
    id.setCheckID(random.id(), random.integer(), random.text());
    EXPECT_EQ(stored(through_memory(id)), stored(id));
  }
}

TEST(ResultsAndIds, RefuseDamagedStreams) {
  xCheckCombID id;
  id.setCheckID(7, 3, "A1");
  expect_cuts_refused(id);
  expect_cuts_refused(xBaseResults{});
  EXPECT_GT(refused_mutations(id, 500), 0);
}

concreteCheckInfo concrete_failure() {
  concreteCheckInfo failure;
  failure.sf = 0.875;
  failure.combName = "A1+M1";
  failure.abscissa = 1234.5;
  return failure;
}

anchorCheckInfo anchor_failure() {
  anchorCheckInfo failure;
  failure.sf = 0.5;
  failure.combName = "SLV";
  failure.depth = 2000.0;
  return failure;
}

/// Sets a language for the length of a test.
class InLanguage {
public:
  explicit InLanguage(const char* language) { EXPECT_TRUE(ostrel::set_language(language)); }
  ~InLanguage() { ostrel::set_language(""); }
  InLanguage(const InLanguage&) = delete;
  InLanguage& operator=(const InLanguage&) = delete;
};

TEST(CheckInfo, IsAnUnlimitedFactorOfNothingWhenNew) {
  const concreteCheckInfo concrete;
  EXPECT_DOUBLE_EQ(concrete.sf, 1e10);
  EXPECT_EQ(concrete.combIndex, 0);
  EXPECT_EQ(concrete.combName, "");
  EXPECT_EQ(concrete.idObj, 0);
  EXPECT_FALSE(concrete.isShear);
  EXPECT_DOUBLE_EQ(concrete.abscissa, 0.0);
  const anchorCheckInfo anchor;
  EXPECT_FALSE(anchor.isResistance);
  EXPECT_DOUBLE_EQ(anchor.depth, 0.0);
}

TEST(CheckInfo, TellsWhatFailedInConcrete) {
  const InLanguage italian("it");
  concreteCheckInfo failure = concrete_failure();
  EXPECT_EQ(failure.getString(),
            "Verifica a pressoflessione non soddisfatta: comb=A1+M1, sf=0.875, sezione=1234.5");
  failure.isShear = true;
  EXPECT_EQ(failure.getString(),
            "Verifica a taglio non soddisfatta: comb=A1+M1, sf=0.875, sezione=1234.5");
}

TEST(CheckInfo, TellsWhatFailedAtAnAnchor) {
  const InLanguage italian("it");
  anchorCheckInfo failure = anchor_failure();
  EXPECT_EQ(failure.getString(),
            "Verifica sfilamento ancoraggio non soddisfatta comb:SLV, sf=0.5, quota=2000");
  failure.isResistance = true;
  EXPECT_EQ(failure.getString(),
            "Verifica resistenza ancoraggio non soddisfatta comb:SLV, sf=0.5, quota=2000");
}

// Six significant digits, as a text stream writes by default: 1234567.8 and 2 / 3.
TEST(CheckInfo, WritesNumbersWithSixDigits) {
  const InLanguage italian("it");
  anchorCheckInfo failure = anchor_failure();
  failure.sf = 2.0 / 3.0;
  failure.depth = 1234567.8;
  EXPECT_EQ(failure.getString(),
            "Verifica sfilamento ancoraggio non soddisfatta comb:SLV, sf=0.666667, "
            "quota=1.23457e+06");
}

TEST(CheckInfo, SpeaksTheLanguageInForce) {
  const InLanguage english("en");
  EXPECT_EQ(concrete_failure().getString(),
            "Verification in bending and axial force not satisfied: comb=A1+M1, sf=0.875, "
            "section=1234.5");
  EXPECT_EQ(anchor_failure().getString(),
            "Anchor pull-out verification not satisfied comb:SLV, sf=0.5, level=2000");
}

TEST(CheckInfo, ClonesWithItsClass) {
  osg::ref_ptr<xCheckInfo> failure = new anchorCheckInfo(anchor_failure());
  failure->idObj = 12;
  failure->combIndex = 4;
  const osg::ref_ptr<xCheckInfo> copy = failure->clone();
  EXPECT_NE(copy, failure);
  EXPECT_EQ(copy->idObj, 12);
  EXPECT_EQ(copy->combIndex, 4);
  EXPECT_EQ(copy->getString(), failure->getString());
  failure = new concreteCheckInfo(concrete_failure());
  const osg::ref_ptr<xCheckInfo> other = failure->clone();
  EXPECT_EQ(other->getString(), failure->getString());
}

}  // namespace
