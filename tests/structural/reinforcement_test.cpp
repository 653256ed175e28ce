// SPDX-License-Identifier: Apache-2.0
#include "ostrel/reinforcement.h"

#include "ostrel/language.h"
#include "support/hostile_stream.h"
#include "support/random_bits.h"
#include "support/stream_round_trip.h"

#include <gtest/gtest.h>

#include <limits>
#include <numbers>
#include <stdexcept>

namespace {

using ostrel::testing::bytes_of;
using ostrel::testing::expect_cuts_refused;
using ostrel::testing::frame_bytes;
using ostrel::testing::RandomBits;
using ostrel::testing::read_stored;
using ostrel::testing::refused_mutations;
using ostrel::testing::stored;
using ostrel::testing::through_memory;
using std::numbers::pi;

xReinforcementBar bars(std::uint32_t number, double diameter) {
  xReinforcementBar group;
  group.setNumber(number);
  group.setDiameter(diameter);
  return group;
}

xBracket stirrups(double diameter, int arms, double step) {
  xBracket stirrup;
  stirrup.setDiameter(diameter);
  stirrup.setNArms(arms);
  stirrup.setStep(step);
  return stirrup;
}

/// Corners 4D16 (256 pi), valley 3D20 (300 pi), uphill 2D10 (50 pi).
osg::ref_ptr<xReinfRectSection> rectangle() {
  osg::ref_ptr<xReinfRectSection> section = new xReinfRectSection;
  section->SetAfVertex(bars(4, 16.0));
  section->SetAfValle(bars(3, 20.0));
  section->SetAfMonte(bars(2, 10.0));
  section->setBracket(stirrups(8.0, 4, 200.0));
  section->setAbscissa(1500.0);
  return section;
}

osg::ref_ptr<xReinfCircSection> ring() {
  osg::ref_ptr<xReinfCircSection> section = new xReinfCircSection;
  section->SetAfValle(bars(16, 24.0));
  section->setBracket(stirrups(8.0, 4, 200.0));
  section->setAbscissa(2500.0);
  return section;
}

std::string uphill_text(const xReinfCrossSection& section, const char* prefix) {
  std::string uphill = "old";
  std::string valley = "old";
  section.getBarString(prefix, uphill, valley);
  return uphill;
}

std::string valley_text(const xReinfCrossSection& section, const char* prefix) {
  std::string uphill = "old";
  std::string valley = "old";
  section.getBarString(prefix, uphill, valley);
  return valley;
}

std::string base_frame_bytes(double abscissa, const xBracket& stirrup) {
  return frame_bytes(1, bytes_of([=](outstream& out) { out << abscissa; }) + stored(stirrup));
}

TEST(ReinfRectSection, KeepsItsThreeGroups) {
  const auto section = rectangle();
  EXPECT_EQ(section->AVerticeEff().getNumber(), 4U);
  EXPECT_DOUBLE_EQ(section->AVerticeEff().getDiameter(), 16.0);
  EXPECT_EQ(section->AValleEff().getNumber(), 3U);
  EXPECT_DOUBLE_EQ(section->AValleEff().getDiameter(), 20.0);
  EXPECT_EQ(section->AMonteEff().getNumber(), 2U);
  EXPECT_DOUBLE_EQ(section->AMonteEff().getDiameter(), 10.0);
  section->AMonteEff().addBars(5);
  EXPECT_EQ(section->AMonteEff().getNumber(), 7U);
}

TEST(ReinfRectSection, NamesItsGroupsByKind) {
  const auto section = rectangle();
  EXPECT_EQ(&section->getAf(barsValley), &section->AValleEff());
  EXPECT_EQ(&section->getAf(barsUphill), &section->AMonteEff());
  EXPECT_EQ(&section->getAf(barsVertex), &section->AVerticeEff());
  EXPECT_EQ(&section->getAf(static_cast<TipoFerro2d>(-1)), &section->AVerticeEff());
  EXPECT_EQ(static_cast<int>(barsValley), 0);
  EXPECT_EQ(static_cast<int>(barsUphill), 1);
}

// 256 pi + 300 pi + 50 pi; on a side half of the 256 pi.
TEST(ReinfRectSection, SharesTheCornersBetweenItsSides) {
  const auto section = rectangle();
  EXPECT_NEAR(section->Atot(), 606.0 * pi, 1e-9);
  EXPECT_NEAR(section->AValle(), 428.0 * pi, 1e-9);
  EXPECT_NEAR(section->AMonte(), 178.0 * pi, 1e-9);
}

TEST(ReinfRectSection, HasCornerBarsOnlyWithASection) {
  const auto section = rectangle();
  EXPECT_TRUE(section->hasAfVertex());
  section->SetAfVertex(bars(0, 16.0));  // to be counted yet
  EXPECT_TRUE(section->hasAfVertex());
  section->SetAfVertex(bars(4, 0.0));
  EXPECT_TRUE(section->vertexBars);
  EXPECT_FALSE(section->hasAfVertex());
  section->SetAfVertex(bars(4, 16.0));
  section->vertexBars = false;
  EXPECT_FALSE(section->hasAfVertex());
}

TEST(ReinfRectSection, ReadsHalfOfTheCornersOnEitherSide) {
  const auto section = rectangle();
  EXPECT_EQ(valley_text(*section, "D"), "2D16+3D20");
  EXPECT_EQ(uphill_text(*section, "D"), "2D16+2D10");
  EXPECT_EQ(uphill_text(*section, nullptr), "216+210");
}

TEST(ReinfRectSection, LeavesEmptyPartsOutOfItsText) {
  const auto section = rectangle();
  section->SetAfMonte(bars(0, 20.0));
  EXPECT_EQ(uphill_text(*section, "D"), "2D16");
  section->SetAfVertex(bars(1, 16.0));  // half of one bar is none
  EXPECT_EQ(uphill_text(*section, "D"), "");
  EXPECT_EQ(valley_text(*section, "D"), "3D20");
  section->SetAfVertex(bars(5, 16.0));
  EXPECT_EQ(valley_text(*section, "D"), "2D16+3D20");
}

TEST(ReinfRectSection, ReadsItsStirrupsWithTheirArms) {
  EXPECT_EQ(rectangle()->getBracketString("D", 0.1), "1D8/20/4");
  EXPECT_EQ(rectangle()->getBracketString(nullptr, 0.1), "18/20/4");
}

TEST(ReinfRectSection, ResetsToAnEmptyRecord) {
  const auto section = rectangle();
  section->vertexBars = false;
  section->reset();
  EXPECT_EQ(stored(*section), stored(xReinfRectSection{}));
  EXPECT_TRUE(section->vertexBars);
  EXPECT_DOUBLE_EQ(section->Atot(), 0.0);
  EXPECT_DOUBLE_EQ(section->getAbscissa(), 0.0);
  EXPECT_DOUBLE_EQ(section->getBracket().getStep(), 0.0);
  EXPECT_EQ(section->referenceCount(), 1);
}

TEST(ReinfRectSection, IsStoredCornersFirst) {
  const auto section = rectangle();
  section->vertexBars = false;
  const std::string fields = base_frame_bytes(1500.0, stirrups(8.0, 4, 200.0))
                           + bytes_of([](outstream& out) { out << false; }) + stored(bars(4, 16.0))
                           + stored(bars(3, 20.0)) + stored(bars(2, 10.0));
  EXPECT_EQ(stored(*section), frame_bytes(2, fields));
  xReinfRectSection copy;
  read_stored(copy, frame_bytes(2, fields));
  EXPECT_FALSE(copy.vertexBars);
  EXPECT_DOUBLE_EQ(copy.getAbscissa(), 1500.0);
  EXPECT_EQ(copy.getBracket().getNArms(), 4);
  EXPECT_EQ(copy.AVerticeEff().getNumber(), 4U);
  EXPECT_EQ(copy.AValleEff().getNumber(), 3U);
  EXPECT_EQ(copy.AMonteEff().getNumber(), 2U);
  EXPECT_EQ(copy.getIOClass(), "xReinfRectSection");
}

TEST(ReinfRectSection, OfTheFirstVersionIsRefused) {
  const std::string fields = stored(*rectangle()).substr(8);
  xReinfRectSection section;
  try {
    read_stored(section, frame_bytes(1, fields));
    FAIL() << "read";
  } catch (int refused) {
    EXPECT_EQ(refused, 1);
  }
}

TEST(ReinfCircSection, HasOneRingForEveryGroup) {
  const auto section = ring();
  EXPECT_EQ(&section->AValleEff(), &section->AMonteEff());
  EXPECT_EQ(&section->AValleEff(), &section->AVerticeEff());
  EXPECT_EQ(section->AMonteEff().getNumber(), 16U);
  section->SetAfMonte(bars(17, 24.0));
  EXPECT_EQ(section->AValleEff().getNumber(), 17U);
  section->SetAfVertex(bars(18, 24.0));
  EXPECT_EQ(section->AValleEff().getNumber(), 18U);
  section->SetAfValle(bars(19, 24.0));
  EXPECT_EQ(section->AVerticeEff().getNumber(), 19U);
}

// 16 * 24² pi / 4 = 2304 pi.
TEST(ReinfCircSection, HasTheAreaOfItsRing) {
  EXPECT_NEAR(ring()->Atot(), 2304.0 * pi, 1e-9);
}

TEST(ReinfCircSection, HasStirrupsOfTwoArmsAlways) {
  const auto section = ring();
  EXPECT_EQ(section->getBracket().getNArms(), 2);
  EXPECT_DOUBLE_EQ(section->getBracket().getDiameter(), 8.0);
  EXPECT_DOUBLE_EQ(section->getBracket().getStep(), 200.0);
}

TEST(ReinfCircSection, ReadsItsRingAsTheUphillText) {
  EXPECT_EQ(uphill_text(*ring(), "D"), "16D24");
  EXPECT_EQ(valley_text(*ring(), "D"), "--");
  EXPECT_EQ(uphill_text(xReinfCircSection{}, "D"), "");
  EXPECT_EQ(ring()->getBracketString("D", 0.1), "1D8/20");
}

TEST(ReinfCircSection, ResetsToAnEmptyRecord) {
  const auto section = ring();
  section->reset();
  EXPECT_EQ(stored(*section), stored(xReinfCircSection{}));
  EXPECT_DOUBLE_EQ(section->Atot(), 0.0);
}

TEST(ReinfCircSection, IsStoredAsBaseAndRing) {
  const std::string bytes =
      frame_bytes(1, base_frame_bytes(2500.0, stirrups(8.0, 2, 200.0)) + stored(bars(16, 24.0)));
  EXPECT_EQ(stored(*ring()), bytes);
  EXPECT_EQ(stored(through_memory(*ring())), bytes);
  EXPECT_EQ(ring()->getIOClass(), "xReinfCircSection");
}

TEST(Reinforcement, FindsTheFirstRecordStrictlyNearer) {
  xReinforcement reinforcement;
  for (const double abscissa : {0.0, 1000.0, 1000.5, 2000.0}) {
    reinforcement.sections.push_back(new xReinfCircSection);
    reinforcement.sections.back()->setAbscissa(abscissa);
  }
  EXPECT_EQ(reinforcement.getAt(1000.25, 1.0), reinforcement.sections[1]);
  EXPECT_EQ(reinforcement.getAt(1000.5, 0.5), reinforcement.sections[2]);  // 0.5 is not near
  EXPECT_EQ(reinforcement.getAt(2000.0, 1e-6), reinforcement.sections[3]);
  EXPECT_FALSE(reinforcement.getAt(1500.0, 1e-6).valid());
  EXPECT_FALSE(reinforcement.getAt(2000.0, 0.0).valid());
  EXPECT_FALSE(reinforcement.getAt(std::numeric_limits<double>::quiet_NaN(), 1.0).valid());
}

TEST(Reinforcement, PassesOverAbsentRecords) {
  xReinforcement reinforcement;
  reinforcement.sections = {nullptr, ring()};
  EXPECT_EQ(reinforcement.getAt(2500.0, 1.0), reinforcement.sections[1]);
  xReinforcement copy;
  copy.deepcopy(reinforcement);
  ASSERT_EQ(copy.sections.size(), 2U);
  EXPECT_FALSE(copy.sections[0].valid());
  EXPECT_EQ(through_memory(reinforcement).sections.size(), 1U);
}

TEST(Reinforcement, CopiesDeepOnlyWhenAsked) {
  xReinforcement original;
  original.sections = {rectangle(), ring()};
  const xReinforcement shared = original;
  EXPECT_EQ(shared.sections[0], original.sections[0]);
  xReinforcement deep;
  deep.sections = {ring(), ring(), ring()};
  deep.deepcopy(original);
  ASSERT_EQ(deep.sections.size(), 2U);
  EXPECT_NE(deep.sections[0], original.sections[0]);
  EXPECT_EQ(deep.sections[0]->getIOClass(), "xReinfRectSection");
  EXPECT_EQ(stored(deep), stored(original));
  deep.sections[0]->AValleEff().addBars(1);
  EXPECT_EQ(original.sections[0]->AValleEff().getNumber(), 3U);
}

TEST(Reinforcement, CopiesDeepFromItself) {
  xReinforcement reinforcement;
  reinforcement.sections = {rectangle(), ring()};
  const std::string before = stored(reinforcement);
  const auto first = reinforcement.sections[0];
  reinforcement.deepcopy(reinforcement);
  EXPECT_EQ(stored(reinforcement), before);
  EXPECT_NE(reinforcement.sections[0], first);
}

TEST(Reinforcement, IsStoredWithTheClassOfEachRecord) {
  xReinforcement reinforcement;
  reinforcement.sections = {rectangle(), ring()};
  const std::string fields = bytes_of([](outstream& out) {
    out << 2 << "xReinfRectSection";
    rectangle()->pub_write(out);
    out << "xReinfCircSection";
    ring()->pub_write(out);
  });
  EXPECT_EQ(stored(reinforcement), frame_bytes(2, fields));
  EXPECT_EQ(reinforcement.getIOClass(), "xReinforcement");
  const auto copy = through_memory(reinforcement);
  ASSERT_EQ(copy.sections.size(), 2U);
  EXPECT_NE(dynamic_cast<xReinfRectSection*>(copy.sections[0].get()), nullptr);
  EXPECT_NE(dynamic_cast<xReinfCircSection*>(copy.sections[1].get()), nullptr);
  EXPECT_EQ(stored(copy), stored(reinforcement));
  reinforcement.reset();
  EXPECT_TRUE(reinforcement.sections.empty());
}

TEST(Reinforcement, OfUnknownClassEndsTheReading) {
  for (const char* name : {"xReinfCrossSection", "xreinfrectsection", "NullIoClass", ""}) {
    const std::string fields = bytes_of([name](outstream& out) {
      out << 2 << "xReinfCircSection";
      ring()->pub_write(out);
      out << name;
      ring()->pub_write(out);
    });
    xReinforcement reinforcement;
    ASSERT_TRUE(ostrel::set_language("it"));
    try {
      read_stored(reinforcement, frame_bytes(2, fields));
      FAIL() << name;
    } catch (const std::runtime_error& refusal) {
      EXPECT_STREQ(refusal.what(), "classe armatura sconosciuta");
    }
    ostrel::set_language("");
  }
}

TEST(Reinforcement, OfTheFirstVersionIsRefused) {
  xReinforcement reinforcement;
  try {
    read_stored(reinforcement, frame_bytes(1, bytes_of([](outstream& out) { out << 0; })));
    FAIL() << "read";
  } catch (int refused) {
    EXPECT_EQ(refused, 1);
  }
}

TEST(Reinforcement, RefusesACountThatTheStreamDoesNotHold) {
  for (const int count : {-1, 1, std::numeric_limits<int>::max()}) {
    xReinforcement reinforcement;
    EXPECT_THROW(read_stored(reinforcement,
                             frame_bytes(2, bytes_of([count](outstream& out) { out << count; }))),
                 std::runtime_error)
        << count;
    EXPECT_LE(reinforcement.sections.size(), 1U);
  }
}

TEST(Reinforcement, ComesBackAsItWasStored) {
  RandomBits random(8);
  for (int i = 0; i < 200; ++i) {
    xReinforcement reinforcement;
    for (std::size_t records = random.below(5); records > 0; --records) {
      if (random.flag()) {
        osg::ref_ptr<xReinfRectSection> section = new xReinfRectSection;
        section->vertexBars = random.flag();
        section->SetAfVertex(bars(random.natural(), random.number()));
        reinforcement.sections.emplace_back(section);
      } else {
        reinforcement.sections.push_back(new xReinfCircSection);
      }
      auto& section = *reinforcement.sections.back();
      section.SetAfValle(bars(random.natural(), random.number()));
      section.SetAfMonte(bars(random.natural(), random.number()));
      section.setBracket(stirrups(random.number(), random.integer(), random.number()));
      section.setAbscissa(random.number());
    }
    EXPECT_EQ(stored(through_memory(reinforcement)), stored(reinforcement));
  }
}

TEST(Reinforcement, RefusesDamagedStreams) {
  xReinforcement reinforcement;
  reinforcement.sections = {rectangle(), ring()};
  expect_cuts_refused(reinforcement);
  EXPECT_GT(refused_mutations(reinforcement, 2000), 0);
}

}  // namespace
