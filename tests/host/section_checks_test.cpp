// SPDX-License-Identifier: Apache-2.0
#include "section_checks.h"

#include "checks_testing.h"

namespace ostrel::host {
namespace {

using Json = nlohmann::json;

Json with_cap_beam(double height_m, double width_m, double cover_mm) {
  Json project = with("/wall/cap_beam", {{"height_m", height_m}, {"width_m", width_m}});
  project["wall"]["reinforcement"]["cap_beam"] = {
      {"cover_mm", cover_mm},
      {"bar_diameter_mm", 20},
      {"least_ratio_percent", 0.2},
      {"largest_ratio_percent", 4},
      {"stirrups", project["wall"]["reinforcement"]["stirrups"]}};
  return project;
}

// Bars of 20 mm on stirrups of 10 mm in a pile of 600 mm: 10 + 20 / 2 = 20 mm at least, and less
// than (600 - 20) / 2 = 290 mm.
TEST(SectionChecks, LeaveTheBarsOfAPileALeverArm) {
  for (const double cover : {290.0, 300.0, 5000.0, 19.0}) {
    expect_error(with("/wall/reinforcement/cover_mm", cover), "wall.reinforcement.cover_mm",
                 "at least 20 mm, stirrup and half a bar, and below 290 mm: in the section of 600");
  }
  EXPECT_TRUE(read(with("/wall/reinforcement/cover_mm", 20)).project.has_value());
  EXPECT_TRUE(read(with("/wall/reinforcement/cover_mm", 200)).project.has_value());
}

// A panel of 800 mm: (800 - 20) / 2 = 390 mm. A panel narrower than thick is bounded by its width.
TEST(SectionChecks, LeaveTheBarsOfAPanelALeverArm) {
  Json project = sound_diaphragm();
  project["wall"]["reinforcement"]["cover_mm"] = 390;
  expect_error(project, "wall.reinforcement.cover_mm", "below 390 mm");
  project["wall"]["panel_width_m"] = 0.6;
  project["wall"]["reinforcement"]["cover_mm"] = 290;
  expect_error(project, "wall.reinforcement.cover_mm", "below 290 mm: in the section of 600 mm");
}

// The smaller side of the beam counts: (700 - 20) / 2 = 340 mm.
TEST(SectionChecks, LeaveTheBarsOfACapBeamALeverArm) {
  expect_error(with_cap_beam(0.7, 1.0, 340), "wall.reinforcement.cap_beam.cover_mm",
               "below 340 mm");
  expect_error(with_cap_beam(1.0, 0.7, 340), "wall.reinforcement.cap_beam.cover_mm",
               "below 340 mm");
  expect_nothing(with_cap_beam(0.7, 1.0, 60));
}

// 0.5 % of a circle of 600 mm are 0.005 x 600² = 1800 circles of 1 mm; on the circle of the bars,
// 480 mm, there are 1508 mm.
TEST(SectionChecks, WantTheLeastBarsToFit) {
  expect_error(with("/wall/reinforcement/bar_diameter_mm", 0.024),
               "wall.reinforcement.bar_diameter_mm", "whose bars fit");
  expect_error(with("/wall/reinforcement/bar_diameter_mm", 1), "wall.reinforcement.bar_diameter_mm",
               "wants 1800 of them, 1507 fit");
}

// On the sides of a panel of 2500 mm there are 2380 mm. 0.2 % of 2500 x 800 mm are 4000 mm²: 5093
// bars of 1 mm.
TEST(SectionChecks, WantTheLeastBarsOfAPanelToFit) {
  Json project = sound_diaphragm();
  project["wall"]["reinforcement"]["bar_diameter_mm"] = 1;
  expect_error(project, "wall.reinforcement.bar_diameter_mm", "wants 5093 of them, 2000 fit");
}

}  // namespace
}  // namespace ostrel::host
