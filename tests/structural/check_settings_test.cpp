// SPDX-License-Identifier: Apache-2.0
#include "ostrel/check_settings.h"

#include "support/hostile_stream.h"
#include "support/random_bits.h"
#include "support/stream_round_trip.h"

#include <gtest/gtest.h>

#include <limits>
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

osg::ref_ptr<xReinforcement_Settings> circular(double cover) {
  osg::ref_ptr<xReinforcement_Settings> settings = new xCircularReinfSettings;
  settings->setCover(cover);
  return settings;
}

std::string description_bytes(const std::string& text) {
  return frame_bytes(1, bytes_of([&text](outstream& out) { out << text; }));
}

TEST(CheckSettings, AreEmptyWhenNewAndAfterReset) {
  xCheckSettings settings;
  EXPECT_FALSE(settings.reinforcementSettings.valid());
  EXPECT_DOUBLE_EQ(settings.getHeadDispLim(), 0.0);
  EXPECT_DOUBLE_EQ(settings.getJtsDispLim(), 0.0);
  settings.set_Description("wall");
  settings.setHeadDispLim(20.0);
  settings.setJtsDispLim(10.0);
  settings.pileSettings.setCsi3(1.7);
  const auto shared = circular(60.0);
  settings.reinforcementSettings = shared;
  EXPECT_EQ(shared->referenceCount(), 2);
  settings.reset();
  EXPECT_EQ(shared->referenceCount(), 1);
  EXPECT_FALSE(settings.reinforcementSettings.valid());
  EXPECT_DOUBLE_EQ(settings.getHeadDispLim(), 0.0);
  EXPECT_DOUBLE_EQ(settings.getJtsDispLim(), 0.0);
  EXPECT_DOUBLE_EQ(settings.pileSettings.getCsi3(), 0.0);
  EXPECT_EQ(settings.get_Description(), "");
}

TEST(CheckSettings, ShareTheReinforcementSettingsWithACopy) {
  xCheckSettings settings;
  settings.reinforcementSettings = circular(60.0);
  settings.pileSettings.setCsi3(1.7);
  const xCheckSettings copy = settings;
  EXPECT_EQ(copy.reinforcementSettings, settings.reinforcementSettings);
  EXPECT_EQ(settings.reinforcementSettings->referenceCount(), 2);
  settings.pileSettings.setCsi3(1.4);
  EXPECT_DOUBLE_EQ(copy.pileSettings.getCsi3(), 1.7);
}

TEST(CheckSettings, WithoutReinforcementAreStoredWithTheNameOfNothing) {
  xCheckSettings settings;
  settings.set_Description("wall");
  const std::string fields =
      description_bytes("wall") + bytes_of([](outstream& out) { out << "NullIoClass"; });
  EXPECT_EQ(stored(settings), frame_bytes(4, fields));
  xCheckSettings copy;
  copy.reinforcementSettings = circular(60.0);
  read_stored(copy, frame_bytes(4, fields));
  EXPECT_EQ(copy.get_Description(), "wall");
  EXPECT_FALSE(copy.reinforcementSettings.valid());
  EXPECT_EQ(copy.getIOClass(), "xCheckSettings");
}

TEST(CheckSettings, NameTheReinforcementSettingsTwiceWhenStored) {
  xCheckSettings settings;
  settings.reinforcementSettings = circular(60.0);
  const std::string fields = description_bytes("") + bytes_of([&settings](outstream& out) {
                               out << "xCircularReinfSettings" << 1 << "xCircularReinfSettings";
                               settings.reinforcementSettings->pub_write(out);
                             });
  EXPECT_EQ(stored(settings), frame_bytes(4, fields));
  const xCheckSettings copy = through_memory(settings);
  ASSERT_TRUE(copy.reinforcementSettings.valid());
  EXPECT_NE(copy.reinforcementSettings, settings.reinforcementSettings);
  EXPECT_EQ(copy.reinforcementSettings->getIOClass(), "xCircularReinfSettings");
  EXPECT_DOUBLE_EQ(copy.reinforcementSettings->getCover(), 60.0);
}

TEST(CheckSettings, KeepPilesAndLimitsWhenRead) {
  xCheckSettings settings;
  settings.setHeadDispLim(20.0);
  settings.setJtsDispLim(10.0);
  settings.pileSettings.setCsi3(1.7);
  xCheckSettings written;
  written.setHeadDispLim(99.0);
  read_stored(settings, stored(written));
  EXPECT_DOUBLE_EQ(settings.getHeadDispLim(), 20.0);
  EXPECT_DOUBLE_EQ(settings.getJtsDispLim(), 10.0);
  EXPECT_DOUBLE_EQ(settings.pileSettings.getCsi3(), 1.7);
}

TEST(CheckSettings, KeepTheFirstOfSeveralReinforcementSettings) {
  const std::string fields = description_bytes("") + bytes_of([](outstream& out) {
                               out << "xRectReinfSettings" << 2 << "xCircularReinfSettings";
                               circular(60.0)->pub_write(out);
                               out << "xRectReinfSettings";
                               xRectReinfSettings{}.pub_write(out);
                             });
  xCheckSettings settings;
  read_stored(settings, frame_bytes(4, fields));
  ASSERT_TRUE(settings.reinforcementSettings.valid());
  EXPECT_DOUBLE_EQ(settings.reinforcementSettings->getCover(), 60.0);
}

TEST(CheckSettings, HaveNoReinforcementFromAnEmptyList) {
  const std::string fields =
      description_bytes("") + bytes_of([](outstream& out) { out << "xRectReinfSettings" << 0; });
  xCheckSettings settings;
  settings.reinforcementSettings = circular(60.0);
  read_stored(settings, frame_bytes(4, fields));
  EXPECT_FALSE(settings.reinforcementSettings.valid());
}

TEST(CheckSettings, RefuseUnknownReinforcementSettings) {
  const std::string fields = description_bytes("") + bytes_of([](outstream& out) {
                               out << "xRectReinfSettings" << 1 << "xHexReinfSettings";
                             });
  xCheckSettings settings;
  EXPECT_THROW(read_stored(settings, frame_bytes(4, fields)), std::runtime_error);
}

TEST(CheckSettings, RefuseACountThatTheStreamDoesNotHold) {
  for (const int count : {-1, std::numeric_limits<int>::max()}) {
    const std::string fields = description_bytes("") + bytes_of([count](outstream& out) {
                                 out << "xRectReinfSettings" << count;
                               });
    xCheckSettings settings;
    EXPECT_THROW(read_stored(settings, frame_bytes(4, fields)), std::runtime_error);
  }
}

TEST(CheckSettings, BeforeTheFourthVersionAreRefused) {
  const std::string fields =
      description_bytes("wall") + bytes_of([](outstream& out) { out << "NullIoClass"; });
  for (const int version : {1, 2, 3}) {
    xCheckSettings settings;
    try {
      read_stored(settings, frame_bytes(version, fields));
      FAIL() << version;
    } catch (int refused) {
      EXPECT_EQ(refused, version);
    }
  }
}

TEST(CheckSettings, ComeBackAsTheyWereStored) {
  RandomBits random(14);
  for (int i = 0; i < 100; ++i) {
    xCheckSettings settings;
    settings.set_Description(random.text());
    if (random.flag()) settings.reinforcementSettings = circular(random.number());
    EXPECT_EQ(stored(through_memory(settings)), stored(settings));
  }
}

TEST(CheckSettings, RefuseDamagedStreams) {
  xCheckSettings settings;
  settings.set_Description("wall");
  settings.reinforcementSettings = circular(60.0);
  expect_cuts_refused(settings);
  EXPECT_GT(refused_mutations(settings, 500), 0);
}

}  // namespace
