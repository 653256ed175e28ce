// SPDX-License-Identifier: Apache-2.0
#include "driver/soil_limit_forces.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace {

using ostrel::driver::add_soil_limit_forces;

// A spring whose limit pressure is `pressure`: it yields at 1 mm.
NodeModulus spring_at(double depth, double pressure) {
  NodeModulus spring;
  spring.type = xSpringInterval::limitUltimate;
  spring.ultimate_limit = 1.0;
  spring.modulus = pressure;
  spring.position = depth;
  return spring;
}

// Lower spring a at 500 mm with q = 3 * 2 = 6 N/mm, upper spring b at 300 mm with q = 2 * 2 = 4,
// L = 200. a: (7 * 6 + 3 * 4) * 200 / 20 = 540, -(4 / 3 + 6 / 2) * 200² / 10 = -17333 1/3;
// b: (7 * 4 + 3 * 6) * 200 / 20 = 460, (4 / 2 + 6 / 3) * 200² / 10 = 16000.
TEST(SoilLimitForces, ShareTheTrapezoidBetweenTwoSprings) {
  const std::map<int, NodeModulus> modulus{{4, spring_at(300.0, 2.0)}, {5, spring_at(500.0, 3.0)}};
  std::map<int, Fsoil> forces{{4, {}}, {5, {}}};
  add_soil_limit_forces(modulus, 2.0, forces);
  EXPECT_DOUBLE_EQ(forces.at(5).limitForce, 540.0);
  EXPECT_DOUBLE_EQ(forces.at(5).limitMoment, -52000.0 / 3.0);
  EXPECT_DOUBLE_EQ(forces.at(4).limitForce, 460.0);
  EXPECT_DOUBLE_EQ(forces.at(4).limitMoment, 16000.0);
  // The resultant: (6 + 4) / 2 * 200 = 1000.
  EXPECT_DOUBLE_EQ(forces.at(4).limitForce + forces.at(5).limitForce, 1000.0);
}

TEST(SoilLimitForces, AddUpAtAnInnerSpring) {
  const std::map<int, NodeModulus> modulus{
      {0, spring_at(0.0, 1.0)}, {1, spring_at(100.0, 1.0)}, {2, spring_at(300.0, 1.0)}};
  std::map<int, Fsoil> forces{{0, {}}, {1, {}}, {2, {}}};
  add_soil_limit_forces(modulus, 1.0, forces);
  EXPECT_DOUBLE_EQ(forces.at(0).limitForce, 50.0);
  EXPECT_DOUBLE_EQ(forces.at(1).limitForce, 150.0);
  EXPECT_DOUBLE_EQ(forces.at(2).limitForce, 100.0);
}

TEST(SoilLimitForces, OfASingleSpringAreNothing) {
  const std::map<int, NodeModulus> modulus{{3, spring_at(300.0, 2.0)}};
  std::map<int, Fsoil> forces{{3, {}}};
  add_soil_limit_forces(modulus, 1.0, forces);
  EXPECT_DOUBLE_EQ(forces.at(3).limitForce, 0.0);
}

TEST(SoilLimitForces, NeedASpringForEveryForce) {
  std::map<int, Fsoil> forces{{3, {}}};
  EXPECT_THROW(add_soil_limit_forces({}, 1.0, forces), std::out_of_range);
}

}  // namespace
