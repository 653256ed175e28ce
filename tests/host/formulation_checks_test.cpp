// SPDX-License-Identifier: Apache-2.0
#include "formulation_checks.h"

#include "host_testing.h"

#include <gmock/gmock.h>

namespace ostrel::host {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

// A layer of clay, and the method that is odd on it.
Project on_clay() {
  Project project;
  project.soils.resize(2);
  project.soils[0].name = "Sand";
  project.soils[0].friction_angle_deg = 30.0;
  project.soils[1].name = "Clay";
  project.soils[1].friction_angle_deg = 14.9;
  project.soils[1].cohesion_kPa = 20.0;
  project.ground.layers.resize(2);
  project.ground.layers[1].soil = 1;
  project.slope.emplace();
  project.slope->formulation = 1;
  return project;
}

std::vector<Remark> remarks_on(const Project& project) {
  Problems problems{Texts(Language::english)};
  check_formulation(project, problems);
  EXPECT_TRUE(problems.empty());
  return problems.remarks();
}

TEST(FormulationChecks, WarnOfBishopOnCohesiveSoilOfLittleFriction) {
  const std::vector<Remark> remarks = remarks_on(on_clay());
  ASSERT_THAT(remarks, SizeIs(1));
  EXPECT_EQ(remarks[0].path, "slope.method");
  EXPECT_THAT(remarks[0].message, AllOf(HasSubstr("15°"), HasSubstr("(Clay)"),
                                        HasSubstr("half more"), HasSubstr("fellenius")));
}

TEST(FormulationChecks, SayNothingOfOtherMethodsAndSoils) {
  Project project = on_clay();
  project.slope->formulation = 0;
  EXPECT_THAT(remarks_on(project), IsEmpty());
  project = on_clay();
  project.slope.reset();
  EXPECT_THAT(remarks_on(project), IsEmpty());
  project = on_clay();
  project.soils[1].friction_angle_deg = 15.0;
  EXPECT_THAT(remarks_on(project), IsEmpty());
  project = on_clay();
  project.soils[1].cohesion_kPa = 0.0;
  EXPECT_THAT(remarks_on(project), IsEmpty());
  project = on_clay();
  project.ground.layers.pop_back();
  EXPECT_THAT(remarks_on(project), IsEmpty());
}

}  // namespace
}  // namespace ostrel::host
