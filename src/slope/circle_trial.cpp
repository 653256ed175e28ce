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
    if (!(std::abs(outline[k].x) < farthest_place && std::abs(outline[k].y) < farthest_place)) {
      return false;
    }
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
  while (kept > 1 && near(outline[kept - 1], outline.front())) {
    --kept;
  }
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
    add_stripe(stripe, comb, gamma_water);
  }
}

void CircleTrial::add_stripe(const Stripe& stripe, const xLoadComb& comb, double gamma_water) {
  constexpr double infinity = std::numeric_limits<double>::infinity();
  StripeRange range{
      .first = pieces_.size(), .xmin = infinity, .xmax = -infinity, .ymax = -infinity};
  for (const osg::ref_ptr<sliceSeg>& piece : stripe) {
    add_piece(*piece, comb, gamma_water);
    range.xmin = std::min(range.xmin, piece->xmin);
    range.xmax = std::max(range.xmax, piece->xmax);
    range.ymax = std::max(range.ymax, piece->ymax);
  }
  range.end = pieces_.size();
  const auto begin = static_cast<std::ptrdiff_t>(range.first);
  range.layered = std::is_sorted(tops_.begin() + begin, tops_.end())
               && std::is_sorted(bottoms_.begin() + begin, bottoms_.end())
               && std::all_of(pieces_.begin() + begin, pieces_.end(),
                              [](const Piece& piece) { return piece.regular; });
  stripes_.push_back(range);
  add_columns(range);
}

void CircleTrial::add_columns(const StripeRange& range) {
  columns_.resize(pieces_.size());
  Column column;
  for (std::size_t i = range.end; i-- > range.first;) {
    column.raw_weight += pieces_[i].raw_weight;
    column.raw_moment += pieces_[i].raw_weight * (range.xmin - pieces_[i].centroid.x);
    columns_[i] = column;
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
  const OutlineView outline = OutlineView(vertices_).subspan(piece.first, piece.vertices);
  piece.regular = sides_are_regular(outline);
  piece.clean = piece.regular && is_clean(outline);
  const Soil& soil = soils_[piece.soil];
  piece.gamma = clip.belowWater ? soil.wet_gamma : soil.dry_gamma;
  piece.raw_weight = piece.gamma * (spacing_ * clip.area);
  piece.middle = 0.5 * (piece.xmin + piece.xmax);
  for (const actType act : {actFirst, actSecond}) {
    piece.middle_loads[act == actFirst ? 0 : 1] =
        loads_on_stripe(ground_loads_, piece.middle, clip.width, spacing_, act).total();
  }
  pieces_.push_back(piece);
  tops_.push_back(piece.ymax);
  bottoms_.push_back(piece.ymin);
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

/// By the levels that the circle has over the two edges of a stripe, with room for rounding errors.
CircleTrial::Doubtful CircleTrial::doubtful_pieces(const StripeRange& stripe) const {
  constexpr double clear = 1e-9;
  constexpr double level_clear = 1e-6;  // [mm]
  Doubtful doubtful{.first = stripe.first, .end = stripe.end};
  if (!(stripe.layered && stripe.ymax <= center_.y && radius_ > 0.0)) return doubtful;
  const double to_left = center_.x - stripe.xmin;
  const double to_right = stripe.xmax - center_.x;
  const double nearest = std::max({-to_left, -to_right, 0.0});
  const double farthest = std::max(to_left, to_right);
  const double limit = radius_ * radius_;
  const double deepest = limit * (1.0 + clear) - nearest * nearest;
  const double shallowest = limit * (1.0 - clear) - farthest * farthest;
  const double outside = center_.y - std::sqrt(std::max(deepest, 0.0)) - level_clear;
  while (doubtful.first < doubtful.end && tops_[doubtful.first] < outside) {
    ++doubtful.first;
  }
  if (!(shallowest > 0.0)) return doubtful;
  const double inside = center_.y - std::sqrt(shallowest) + level_clear;
  doubtful.end = doubtful.first;
  while (doubtful.end < stripe.end && bottoms_[doubtful.end] < inside) {
    ++doubtful.end;
  }
  return doubtful;
}

bool CircleTrial::cut(Place center, double radius) {
  center_ = center;
  radius_ = radius;
  rim_ = rim_of(center, radius, tolerance_);
  cuts_.clear();
  for (const StripeRange& stripe : stripes_) {
    // All corners of such a stripe are farther away than the radius.
    if (stripe.xmin > center.x + radius || stripe.xmax < center.x - radius) continue;
    if (!cut_stripe(stripe)) return false;
  }
  return true;
}

bool CircleTrial::cut_stripe(const StripeRange& stripe) {
  StripeCut cut;
  const Doubtful doubtful = doubtful_pieces(stripe);
  for (std::size_t i = doubtful.first; i < doubtful.end; ++i) {
    if (!cut_piece(pieces_[i], cut)) return false;
  }
  if (doubtful.end < stripe.end) take_columns_from(doubtful.end, stripe, cut);
  if (cut.base) cuts_.push_back(cut);
  return true;
}

bool CircleTrial::cut_piece(const Piece& piece, StripeCut& cut) {
  CutKind kind = classify(piece);
  if (kind == CutKind::part) {
    const OutlineView outline = OutlineView(vertices_).subspan(piece.first, piece.vertices);
    if (piece.clean && cut_cleanly(outline, piece.centroid, rim_, kind, clean_cut_)) {
      if (kind == CutKind::part) {
        take_part(piece, clean_cut_.part(), clean_cut_.chord_mid, clean_cut_.chord_length, cut);
      }
    } else {
      kind = cut_by_circle(outline, piece.centroid, center_, radius_, tolerance_, piece.regular,
                           buffers_);
      if (kind == CutKind::part) {
        merge_coincident(buffers_.part);
        take_part(piece, buffers_.part, buffers_.chord_mid, buffers_.chord_length, cut);
      }
    }
  }
  if (kind == CutKind::whole) take_whole(piece, cut);
  return kind != CutKind::above_centre;
}

/// As the lowest piece it keeps the base that it already has.
void CircleTrial::take_whole(const Piece& piece, StripeCut& cut) const {
  if (!cut.base) {
    const xClipData& clip = piece.source->clip;
    cut.base = &piece;
    cut.base_is_whole = true;
    cut.base_length = clip.baseLength;
    cut.base_mid = place(clip.baseMid);
  }
  cut.raw_weight += piece.raw_weight;
  cut.raw_moment += piece.raw_weight * (center_.x - piece.centroid.x);
}

void CircleTrial::take_columns_from(std::size_t lowest, const StripeRange& stripe,
                                    StripeCut& cut) const {
  if (!cut.base) take_whole(pieces_[lowest++], cut);
  if (lowest == stripe.end) return;
  const Column& column = columns_[lowest];
  cut.raw_weight += column.raw_weight;
  cut.raw_moment += column.raw_weight * (center_.x - stripe.xmin) + column.raw_moment;
}

/// A part that is too small to be a piece is nothing.
void CircleTrial::take_part(const Piece& piece, OutlineView part, Place chord_mid,
                            double chord_length, StripeCut& cut) const {
  double area = 0.0;
  Place centroid;
  if (!weigh(part, area, centroid)) {
    const Polygon polygon = polygon_of(part);
    area = polyArea(polygon);
    if (!(area >= smallest_area)) return;
    Vector2 point(arma::fill::zeros);
    polyBaricenter(polygon, point);
    centroid = place(point);
  }
  if (!(area >= smallest_area)) return;
  if (!cut.base) {
    cut.base = &piece;
    cut.base_length = chord_length;
    cut.base_mid = chord_mid;
  }
  const double raw = piece.gamma * (spacing_ * area);
  cut.raw_weight += raw;
  cut.raw_moment += raw * (center_.x - centroid.x);
}

CircleMoments CircleTrial::moments(bool bishop) {
  CircleMoments moments;
  for (const StripeCut& cut : cuts_) {
    add_moments(cut, bishop, moments);
  }
  double stab = 0.0;
  double destab = 0.0;
  add_wall_moments(wall_loads_, center_, stab, destab);
  moments.destab -= destab;
  moments.stab += stab;
  return moments;
}

void CircleTrial::add_moments(const StripeCut& cut, bool bishop, CircleMoments& moments) const {
  const double arm = center_.x - cut.base_mid.x;
  const actType act = arm > 0.0 ? actFirst : actSecond;
  const double factor = weight_factor_[act == actFirst ? 0 : 1];
  const double driving_loads = stripe_loads(cut, act);
  const double loads = act == actFirst ? driving_loads : stripe_loads(cut, actFirst);
  const StripeSums sums{.weight = cut.raw_weight * factor,
                        .seismic = cut.raw_weight * seismic_.kh * weight_factor_[1],
                        .moment = cut.raw_moment * factor + arm * driving_loads};
  moments.stab += base_resistance_of(cut, sums, loads, bishop) * radius_;
  moments.destab += sums.moment;
}

/// The loads on a stripe; a shared piece notes them.
double CircleTrial::stripe_loads(const StripeCut& cut, actType act) const {
  xClipData& clip = cut.base->source->clip;
  if (!has_conditions_ || !takes_ground_loads(cut.base_mid.x, clip.width)) return 0.0;
  if (!cut.base_is_whole && exactly_equal(cut.base_mid.x, cut.base->middle)) {
    return cut.base->middle_loads[act == actFirst ? 0 : 1];
  }
  const StripeLoads loads =
      loads_on_stripe(ground_loads_, cut.base_mid.x, clip.width, spacing_, act);
  return cut.base_is_whole ? note_loads(loads, act, clip) : loads.total();
}

double CircleTrial::base_resistance_of(const StripeCut& cut, const StripeSums& sums, double loads,
                                       bool bishop) const {
  const Soil& soil = soils_[cut.base->soil];
  // alpha = -atan(slant): its sine and cosine without the angle.
  const double slant = (center_.x - cut.base_mid.x) / (center_.y - cut.base_mid.y);
  const double cos_alpha = 1.0 / std::sqrt(1.0 + slant * slant);
  BaseResistance resistance{.length = cut.base_length,
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
  if (cut.base->source->clip.belowWater) {
    resistance.pore_pressure =
        (water_level(water_, cut.base_mid.x) - cut.base_mid.y) * gamma_water_;
  }
  if (cut.base_is_whole) note_base(cut, resistance);
  return base_resistance(resistance, sums, loads, seismic_.kv, spacing_, 1.0, bishop);
}

void CircleTrial::note_base(const StripeCut& cut, const BaseResistance& resistance) const {
  xClipData& clip = cut.base->source->clip;
  const Soil& soil = soils_[cut.base->soil];
  clip.phi = soil.design_phi;
  clip.cohesion = soil.design_cohesion;
  clip.alpha = -std::atan((center_.x - cut.base_mid.x) / (center_.y - cut.base_mid.y));
  clip.porePressure = resistance.pore_pressure;
}

}  // namespace ostrel::slope
