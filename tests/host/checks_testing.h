#pragma once
/// @file  Expectations of the tests that check projects. Room: host tests
// SPDX-License-Identifier: Apache-2.0

#include "host_testing.h"

#include <gmock/gmock.h>

#include <string>

namespace ostrel::host {

/// The project is refused for one field alone.
inline void expect_error(const nlohmann::json& project, const std::string& path,
                         const std::string& allowed) {
  const ReadingOutcome outcome = read(project);
  EXPECT_FALSE(outcome.project.has_value());
  ASSERT_THAT(outcome.errors, ::testing::SizeIs(1)) << path;
  EXPECT_EQ(outcome.errors[0].path, path);
  EXPECT_THAT(outcome.errors[0].allowed, ::testing::HasSubstr(allowed));
}

/// The project is accepted, with one remark alone.
inline void expect_remark(const nlohmann::json& project, const std::string& path,
                          const std::string& message) {
  const ReadingOutcome outcome = read(project);
  EXPECT_TRUE(outcome.project.has_value());
  EXPECT_THAT(outcome.errors, ::testing::IsEmpty());
  ASSERT_THAT(outcome.remarks, ::testing::SizeIs(1)) << path;
  EXPECT_EQ(outcome.remarks[0].path, path);
  EXPECT_THAT(outcome.remarks[0].message, ::testing::HasSubstr(message));
}

/// The project is accepted, and nothing is remarked upon.
inline void expect_nothing(const nlohmann::json& project) {
  const ReadingOutcome outcome = read(project);
  EXPECT_THAT(outcome.errors, ::testing::IsEmpty());
  EXPECT_THAT(outcome.remarks, ::testing::IsEmpty());
}

/// A row of so many anchors on a level of the sound project, with all that its verifications read.
inline nlohmann::json sound_anchor(double level_m, int number) {
  return {{"level_m", level_m},
          {"inclination_deg", 20},
          {"free_length_m", 8},
          {"bond_length_m", 6},
          {"number", number},
          {"tendon_area_mm2", 500},
          {"E_GPa", 195},
          {"xi_3", 1.8},
          {"bond_diameter_mm", 180},
          {"yield_strength_MPa", 1600}};
}

}  // namespace ostrel::host
