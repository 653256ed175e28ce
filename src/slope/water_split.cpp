// SPDX-License-Identifier: Apache-2.0
#include "slope/water_split.h"

#include <sorrel/polygon.h>
#include <sorrel/polygon_boolean.h>

#include <cstddef>
#include <cstdint>
#include <tuple>
#include <utility>

namespace ostrel::slope {

namespace {

constexpr std::uint64_t water_clip_scale = 1'000'000;  // the interface's grid
constexpr double far = 1'000'000.0;                    // bounds the two half-planes [mm]

/// The parts above the level, then those below it.
std::vector<Polygon> parts_at(double level, const Polygon& polygon) {
  const Polygon upper{{-far, level}, {far, level}, {far, far}, {-far, far}, {-far, level}};
  const Polygon lower{{far, level}, {-far, level}, {-far, -far}, {far, -far}, {far, level}};
  std::vector<Polygon> parts;
  const std::vector<Polygon> whole{polygon};
  std::ignore = PolyIntersect(upper, whole, parts, water_clip_scale, iPolyOp::Intersection);
  std::ignore = PolyIntersect(lower, whole, parts, water_clip_scale, iPolyOp::Intersection);
  return parts;
}

/// The pieces that a piece across the water falls into, from the lowest up. The first part, usually
/// that above the water, stands on the water surface; the others keep the base of the whole.
Stripe split(double level, const sliceSeg& whole) {
  Stripe pieces;
  bool first = true;
  for (Polygon& part : parts_at(level, whole.clip.polygon)) {
    mergeCoincidentVertices(part, coincidence);
    const bool on_water = std::exchange(first, false);
    const Vector2 surface_mid{0.5 * (whole.xmin + whole.xmax), level};
    const osg::ref_ptr<sliceSeg> piece = new sliceSeg;
    if (!initSlice(nullptr, part, whole.clip.width,
                   on_water ? whole.clip.width : whole.clip.baseLength,
                   on_water ? surface_mid : whole.clip.baseMid, *piece)) {
      continue;
    }
    piece->clip.soil = whole.clip.soil;
    piece->clip.belowWater = classifyAgainstWater(level, piece->clip) == WaterClass::below;
    pieces.push_back(piece);
  }
  sort_by_level(pieces);
  return pieces;
}

}  // namespace

WaterClass classifyAgainstWater(double level, const xClipData& clip) {
  Vector2 min(arma::fill::zeros);
  Vector2 max(arma::fill::zeros);
  polyBBox(clip.polygon, min, max);
  if (min[1] >= level) return WaterClass::above;
  return level >= max[1] ? WaterClass::below : WaterClass::across;
}

void splitAtWater(const xWaterTable& water, Stripe& stripe) {
  if (!water.getIsDefined() || stripe.empty()) return;
  const double level =
      stripe.front()->xmax >= 0.0 ? water.getLivelloMonte() : water.getLivelloValle();
  for (std::size_t i = 0; i < stripe.size(); ++i) {
    const osg::ref_ptr<sliceSeg> whole = stripe[i];
    const WaterClass side = classifyAgainstWater(level, whole->clip);
    if (side != WaterClass::across) {
      whole->clip.belowWater = side == WaterClass::below;
      continue;
    }
    const Stripe pieces = split(level, *whole);
    if (pieces.empty()) continue;
    stripe[i] = pieces.front();
    stripe.insert(stripe.begin() + static_cast<std::ptrdiff_t>(i) + 1, pieces.begin() + 1,
                  pieces.end());
  }
  sort_by_level(stripe);
}

}  // namespace ostrel::slope
