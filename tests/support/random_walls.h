#pragma once
/// @file  Walls of random sizes in random ground, the same ones at each run, for tests
// SPDX-License-Identifier: Apache-2.0

#include "support/random_contents.h"
#include "support/wall_builder.h"

#include <cstdint>

namespace ostrel::testing {

/// A wall that stands: 10 to 18 m long, dug for three sixteenths to a quarter of its length, in sand
/// over clay over sand, with two combinations. About half of them have water and about half an
/// anchor.
/// All sizes lie on a grid of 2^-10 mm.
inline xSheetpilingData random_wall(std::uint64_t seed) {
  RandomContents random(seed);
  const double length = random.on_grid(10000.0, 18000.0);
  const double dug = length * random.on_grid(0.1875, 0.25);
  const double depth = static_cast<double>(static_cast<std::int64_t>(dug));

  xSoilProps top = sand();
  top.setElasticityModulus(random.on_grid(20.0, 60.0));
  top.set_InternalFriction(random.on_grid(0.5, 0.65));
  top.setInterfaceFriction(random.on_grid(0.125, 0.375));
  top.setUnitWeight(random.on_grid(16.0, 19.0) * 1e-6);
  xSoilProps middle = clay();
  middle.setCohesion(random.on_grid(0.03125, 0.125));

  WallBuilder wall;
  wall.pile(random.on_grid(500.0, 1000.0), length).excavation(depth);
  wall.spacing(random.on_grid(1100.0, 2000.0)).step(250.0);
  wall.layer(top, depth + random.on_grid(500.0, 1500.0));
  wall.layer(middle, random.on_grid(1000.0, 2000.0));
  wall.layer(top);
  if (random.yes()) {
    wall.water(random.on_grid(250.0, 750.0) - depth, -depth);
  }
  if (random.yes()) wall.anchor(anchor_at(random.on_grid(500.0, 1500.0)));
  xLoadComb comb = unfactored("A");
  for (xAction& action : comb.actions)
    action.set(action.getCondName(), true, random.on_grid(0.9, 1.1), random.on_grid(1.0, 1.3));
  wall.combination(comb).combination(unfactored("B"));
  return wall.build();
}

}  // namespace ostrel::testing
