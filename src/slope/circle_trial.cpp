// SPDX-License-Identifier: Apache-2.0
#include "slope/circle_trial.h"

#include "ostrel/tolerances.h"
#include "services/exact.h"

#include <sorrel/polygon.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace ostrel::slope {

namespace {

constexpr double shortest_side = 1.0;   // [mm]
constexpr double longest_side = 1e5;    // [mm]
constexpr double farthest_place = 1e6;  // from the origin, along an axis [mm]
constexpr double smallest_area = 0.01;  // [mm²]

bool sides_are_regular(OutlineView outline) {
  if (outline.size() < 4) return false;
  for (std::size_t k = 0; k + 1 < outline.size(); ++k) {
    const double length = distance(outline[k], outline[k + 1]);
    if (!(length > shortest_side && length < longest_side)) return false;
    if (!(std::abs(outline[k].x) < farthest_place && std::abs(outline[k].y) < farthest_place))
      return false;
  }
  return true;
}

/// `mergeCoincidentVertices` in place.
void merge_coincident(Outline& outline) {
  const auto near = [](Place a, Place b) {
    return std::abs(b.x - a.x) < coincidence && std::abs(b.y - a.y) < coincidence
        && distance(a, b) < coincidence;
  };
  const auto same = [](Place a, Place b) {
    return exactly_equal(a.x, b.x) && exactly_equal(a.y, b.y);
  };
  if (outline.size() > 1 && same(outline.front(), outline.back())) outline.pop_back();
  std::size_t kept = 1;
  for (std::size_t i = 1; i < outline.size(); ++i) {
    if (!near(outline[kept - 1], outline[i])) outline[kept++] = outline[i];
  }
  while (kept > 1 && near(outline[kept - 1], outline.front()))
    --kept;
  outline.resize(kept);
  outline.push_back(outline.front());
}

/// Area and centroid from the first vertex. @return false where the centroid falls out of the box,
/// as it may for an outline that crosses itself
bool weigh(OutlineView outline, double& area, Place& centroid) {
  const Place origin = outline.front();
  double twice_area = 0.0;
  double moment_x = 0.0;
  double moment_y = 0.0;
  Place low = origin;
  Place high = origin;
  for (std::size_t i = 1; i < outline.size(); ++i) {
    const Place a{.x = outline[i - 1].x - origin.x, .y = outline[i - 1].y - origin.y};
    const Place b{.x = outline[i].x - origin.x, .y = outline[i].y - origin.y};
    const double cross = a.x * b.y - b.x * a.y;
    twice_area += cross;
    moment_x += (a.x + b.x) * cross;
    moment_y += (a.y + b.y) * cross;
    low = {.x = std::min(low.x, outline[i].x), .y = std::min(low.y, outline[i].y)};
    high = {.x = std::max(high.x, outline[i].x), .y = std::max(high.y, outline[i].y)};
  }
  area = 0.5 * std::abs(twice_area);
  centroid = {.x = origin.x + moment_x / (3.0 * twice_area),
              .y = origin.y + moment_y / (3.0 * twice_area)};
  return centroid.x >= low.x && centroid.x <= high.x && centroid.y >= low.y && centroid.y <= high.y;
}

}  // namespace

CircleTrial::CircleTrial(const Stripes& stripes, double spacing, double gamma_water,
                         const std::vector<xLoadCond>& conds, const xLoadComb& comb,
                         const xWaterTable& water)
    : spacing_(spacing),
      gamma_water_(gamma_water),
      tolerance_((*getTolerances())[xTolerances::partial_factor]),
      has_conditions_(!conds.empty()),
      seismic_(slice_seismic(comb)),
      weight_factor_{weight_action(comb).getFactor(actFirst),
                     weight_action(comb).getFactor(actSecond)},
      water_(water),
      ground_loads_(slope::ground_loads(conds, comb)),
      wall_loads_(slope::wall_loads(conds, comb, spacing)) {
  for (const Stripe& stripe : stripes) {
    StripeRange range{.first = pieces_.size(),
                      .xmin = std::numeric_limits<double>::infinity(),
                      .xmax = -std::numeric_limits<double>::infinity()};
    for (const osg::ref_ptr<sliceSeg>& piece : stripe) {
      add_piece(*piece, comb, gamma_water);
      range.xmin = std::min(range.xmin, piece->xmin);
      range.xmax = std::max(range.xmax, piece->xmax);
    }
    range.end = pieces_.size();
    stripes_.push_back(range);
  }
}

void CircleTrial::add_piece(sliceSeg& source, const xLoadComb& comb, double gamma_water) {
  const xClipData& clip = source.clip;
  Piece piece{.xmin = source.xmin,
              .ymin = source.ymin,
              .xmax = source.xmax,
              .ymax = source.ymax,
              .centroid = place(clip.baricenter),
              .first = vertices_.size(),
              .vertices = clip.polygon.size(),
              .soil = soil_of(clip.soil.soil, comb, gamma_water),
              .source = &source};
  for (const Vector2& vertex : clip.polygon) {
    vertices_.push_back(place(vertex));
  }
  piece.regular = sides_are_regular(OutlineView(vertices_).subspan(piece.first, piece.vertices));
  const Soil& soil = soils_[piece.soil];
  piece.gamma = clip.belowWater ? soil.wet_gamma : soil.dry_gamma;
  piece.raw_weight = piece.gamma * (spacing_ * clip.area);
  pieces_.push_back(piece);
}

/// The soils with equal values are factored once.
std::size_t CircleTrial::soil_of(const xSoilProps& soil, const xLoadComb& comb,
                                 double gamma_water) {
  const auto known = std::find_if(soils_.begin(), soils_.end(), [&soil](const Soil& each) {
    return exactly_equal(each.unit_weight, soil.getUnitWeight())
        && exactly_equal(each.saturated_unit_weight, soil.getSaturatedUnitWeight())
        && exactly_equal(each.friction, soil.getInternalFriction())
        && exactly_equal(each.cohesion, soil.getCohesion());
  });
  if (known != soils_.end()) return static_cast<std::size_t>(known - soils_.begin());
  xSoilProps pressing = soil;
  pressing.applyGeoFactors(geoFactorPressure, comb.geoFactors);
  xSoilProps resisting = soil;
  resisting.applyGeoFactors(geoFactorResistance, comb.geoFactors);
  soils_.push_back({.unit_weight = soil.getUnitWeight(),
                    .saturated_unit_weight = soil.getSaturatedUnitWeight(),
                    .friction = soil.getInternalFriction(),
                    .cohesion = soil.getCohesion(),
                    .dry_gamma = pressing.getUnitWeight(),
                    .wet_gamma = pressing.getSaturatedUnitWeight() - gamma_water,
                    .design_phi = resisting.getInternalFriction(),
                    .tan_phi = std::tan(resisting.getInternalFriction()),
                    .design_cohesion = resisting.getCohesion()});
  return soils_.size() - 1;
}

/// By the corners of the box alone: nothing, all, or a part. Where squares are too near to the
/// radius to tell, the corners are measured as for any piece.
CutKind CircleTrial::classify(const Piece& piece) const {
  constexpr double clear = 1e-12;
  const double left = (piece.xmin - center_.x) * (piece.xmin - center_.x);
  const double right = (piece.xmax - center_.x) * (piece.xmax - center_.x);
  const double low = (piece.ymin - center_.y) * (piece.ymin - center_.y);
  const double high = (piece.ymax - center_.y) * (piece.ymax - center_.y);
  const double nearest = std::min(left, right) + std::min(low, high);
  const double farthest = std::max(left, right) + std::max(low, high);
  const double limit = radius_ * radius_;
  if (radius_ > 0.0) {
    if (nearest > limit * (1.0 + clear)) return CutKind::none;
    if (farthest < limit * (1.0 - clear) && farthest > 0.0) return CutKind::whole;
    if (nearest < limit * (1.0 - clear) && farthest > limit * (1.0 + clear)) return CutKind::part;
  }
  double dmin = 0.0;
  double dmax = 0.0;
  piece.source->getPseudoMinDist(vector2(center_), dmin, dmax);
  if (exactly_equal(dmax, 0.0) || dmin >= radius_) return CutKind::none;
  return radius_ >= dmax ? CutKind::whole : CutKind::part;
}

bool CircleTrial::cut(Place center, double radius) {
  center_ = center;
  radius_ = radius;
  slices_.clear();
  stripe_ends_.clear();
  for (const StripeRange& stripe : stripes_) {
    // All corners of such a stripe are farther away than the radius.
    if (stripe.xmin > center.x + radius || stripe.xmax < center.x - radius) continue;
    const std::size_t before = slices_.size();
    for (std::size_t i = stripe.first; i < stripe.end; ++i) {
      if (!cut_piece(pieces_[i])) return false;
    }
    if (slices_.size() > before) stripe_ends_.push_back(slices_.size());
  }
  return true;
}

bool CircleTrial::cut_piece(const Piece& piece) {
  CutKind kind = classify(piece);
  if (kind == CutKind::none) return true;
  if (kind == CutKind::part) {
    const OutlineView outline = OutlineView(vertices_).subspan(piece.first, piece.vertices);
    kind = cut_by_circle(outline, piece.centroid, center_, radius_, tolerance_, piece.regular,
                         buffers_);
  }
  if (kind == CutKind::above_centre) return false;
  if (kind == CutKind::none) return true;
  Slice slice;
  slice.piece = &piece;
  slice.whole = kind == CutKind::whole;
  if (slice.whole) {
    const xClipData& clip = piece.source->clip;
    slice.centroid = piece.centroid;
    slice.base_length = clip.baseLength;
    slice.base_mid = place(clip.baseMid);
  } else if (!weigh_part(slice)) {
    return true;
  }
  slices_.push_back(slice);
  return true;
}

/// @return false for a part that is too small to be a piece
bool CircleTrial::weigh_part(Slice& slice) {
  slice.base_length = buffers_.chord_length;
  slice.base_mid = buffers_.chord_mid;
  merge_coincident(buffers_.part);
  if (!weigh(buffers_.part, slice.area, slice.centroid)) {
    const Polygon part = polygon_of(buffers_.part);
    slice.area = polyArea(part);
    if (!(slice.area >= smallest_area)) return false;
    Vector2 centroid(arma::fill::zeros);
    polyBaricenter(part, centroid);
    slice.centroid = place(centroid);
  }
  return slice.area >= smallest_area;
}

CircleMoments CircleTrial::moments(bool bishop) {
  CircleMoments moments;
  std::size_t first = 0;
  for (const std::size_t end : stripe_ends_) {
    add_stripe(first, end, bishop, moments);
    first = end;
  }
  double stab = 0.0;
  double destab = 0.0;
  add_wall_moments(wall_loads_, center_, stab, destab);
  moments.destab -= destab;
  moments.stab += stab;
  return moments;
}

void CircleTrial::add_stripe(std::size_t first, std::size_t end, bool bishop,
                             CircleMoments& moments) {
  const Slice& base = slices_[first];
  const actType act = center_.x - base.base_mid.x > 0.0 ? actFirst : actSecond;
  const double factor = weight_factor_[act == actFirst ? 0 : 1];
  StripeSums sums;
  for (std::size_t i = first; i < end; ++i) {
    const Slice& slice = slices_[i];
    const double raw =
        slice.whole ? slice.piece->raw_weight : slice.piece->gamma * (spacing_ * slice.area);
    const double weight = raw * factor;
    sums.weight += weight;
    sums.seismic += raw * seismic_.kh * weight_factor_[1];
    sums.moment += weight * (center_.x - slice.centroid.x);
  }
  const double driving_loads = stripe_loads(base, act);
  sums.moment -= (base.base_mid.x - center_.x) * driving_loads;
  const double loads = act == actFirst ? driving_loads : stripe_loads(base, actFirst);
  moments.stab += base_resistance_of(base, sums, loads, bishop) * radius_;
  moments.destab += sums.moment;
}

/// The loads on a stripe; a shared piece notes them.
double CircleTrial::stripe_loads(const Slice& base, actType act) {
  xClipData& clip = base.piece->source->clip;
  if (!has_conditions_ || !takes_ground_loads(base.base_mid.x, clip.width)) return 0.0;
  if (ground_loads_.empty() && !base.whole) return 0.0;
  const StripeLoads loads =
      loads_on_stripe(ground_loads_, base.base_mid.x, clip.width, spacing_, act);
  return base.whole ? note_loads(loads, act, clip) : loads.total();
}

double CircleTrial::base_resistance_of(const Slice& base, const StripeSums& sums, double loads,
                                       bool bishop) const {
  const Soil& soil = soils_[base.piece->soil];
  // alpha = -atan(slant): its sine and cosine without the angle.
  const double slant = (center_.x - base.base_mid.x) / (center_.y - base.base_mid.y);
  const double cos_alpha = 1.0 / std::sqrt(1.0 + slant * slant);
  BaseResistance resistance{.length = base.base_length,
                            .cohesion = soil.design_cohesion,
                            .tan_phi = soil.tan_phi,
                            .sin_alpha = -slant * cos_alpha,
                            .cos_alpha = cos_alpha,
                            .tan_abs_alpha = std::abs(slant)};
  if (!(std::abs(slant) < 1e8)) {
    const double alpha = -std::atan(slant);
    resistance.sin_alpha = std::sin(alpha);
    resistance.cos_alpha = std::cos(alpha);
    resistance.tan_abs_alpha = std::tan(std::abs(alpha));
  }
  if (base.piece->source->clip.belowWater) {
    resistance.pore_pressure =
        (water_level(water_, base.base_mid.x) - base.base_mid.y) * gamma_water_;
  }
  if (base.whole) note_base(base, resistance);
  return base_resistance(resistance, sums, loads, seismic_.kv, spacing_, 1.0, bishop);
}

void CircleTrial::note_base(const Slice& base, const BaseResistance& resistance) const {
  xClipData& clip = base.piece->source->clip;
  const Soil& soil = soils_[base.piece->soil];
  clip.phi = soil.design_phi;
  clip.cohesion = soil.design_cohesion;
  clip.alpha = -std::atan((center_.x - base.base_mid.x) / (center_.y - base.base_mid.y));
  clip.porePressure = resistance.pore_pressure;
}

}  // namespace ostrel::slope
