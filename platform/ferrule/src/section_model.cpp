// SPDX-License-Identifier: Apache-2.0
#include "section_model.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace Ferrule::internal {

namespace {

/// Coordinates and radii beyond it are none: their powers would overflow [mm].
constexpr double farthest = 1e30;

/// What encloses less of its square than this is a line.
constexpr double thinnest = 1e-12;

bool is_coordinate(double x) {
  return std::abs(x) <= farthest;
}

bool is_vertex(Point p) {
  return is_coordinate(p.x) && is_coordinate(p.y);
}

/// Sums over the edges by Green's theorem; negative for a clockwise outline.
GrossSection gross_section(std::span<const Point> outline) {
  GrossSection sum;
  if (outline.empty()) return sum;
  Point a = outline.back();
  for (const Point b : outline) {
    const double cross = a.x * b.y - b.x * a.y;
    sum.area += cross / 2.0;
    sum.x += cross * (a.x + b.x) / 6.0;
    sum.y += cross * (a.y + b.y) / 6.0;
    sum.xx += cross * (a.x * a.x + a.x * b.x + b.x * b.x) / 12.0;
    sum.yy += cross * (a.y * a.y + a.y * b.y + b.y * b.y) / 12.0;
    sum.xy += cross * (2.0 * (a.x * a.y + b.x * b.y) + a.x * b.y + b.x * a.y) / 24.0;
    a = b;
  }
  return sum;
}

void add(GrossSection& sum, const GrossSection& part, double times) {
  sum.area += times * part.area;
  sum.x += times * part.x;
  sum.y += times * part.y;
  sum.xx += times * part.xx;
  sum.yy += times * part.yy;
  sum.xy += times * part.xy;
}

bool encloses_area(std::span<const Point> outline, const GrossSection& gross) {
  if (!std::all_of(outline.begin(), outline.end(), is_vertex)) return false;
  double size = 0.0;
  for (const Point p : outline) {
    size = std::max({size, std::abs(p.x - outline[0].x), std::abs(p.y - outline[0].y)});
  }
  return std::abs(gross.area) > thinnest * size * size;
}

bool counts(const SteelBar& bar) {
  return is_vertex({.x = bar.getX(), .y = bar.getY()}) && bar.getRadius() > 0.0
      && is_coordinate(bar.getRadius());
}

bool is_zero(double x) {
  return !(x < 0.0 || x > 0.0);
}

}  // namespace

Direction direction_at(double angle) {
  constexpr double rounding = 1e-15;
  const Direction direction{.cosine = std::cos(angle), .sine = std::sin(angle)};
  if (std::abs(direction.sine) < rounding) {
    return {.cosine = std::copysign(1.0, direction.cosine), .sine = 0.0};
  }
  if (std::abs(direction.cosine) < rounding) {
    return {.cosine = 0.0, .sine = std::copysign(1.0, direction.sine)};
  }
  return direction;
}

Direction direction_of(Moment moment) {
  const double larger = std::max(std::abs(moment.x), std::abs(moment.y));
  if (!(larger > 0.0)) return {};
  const double x = moment.x / larger;
  const double y = moment.y / larger;
  const double length = std::hypot(x, y);
  return {.cosine = x / length, .sine = y / length};
}

Direction turned(Direction direction, double by) {
  if (is_zero(by)) return direction;
  const double c = std::cos(by);
  const double s = std::sin(by);
  return {.cosine = direction.cosine * c - direction.sine * s,
          .sine = direction.sine * c + direction.cosine * s};
}

bool SectionModel::refresh(std::span<const std::unique_ptr<BaseDomain>> components) {
  bool same_outlines = components.size() == seen_.size();
  bool same_bars = same_outlines;
  seen_.resize(components.size());
  for (std::size_t i = 0; i < components.size(); ++i) {
    const BaseDomain& domain = *components[i];
    same_outlines = same_outlines && seen_[i].outline_revision == domain.outlineRevision();
    same_bars = same_bars && seen_[i].revision == domain.revision();
    seen_[i] = {.revision = domain.revision(), .outline_revision = domain.outlineRevision()};
  }
  if (same_outlines && same_bars) return usable_;
  if (!same_outlines) usable_ = take_outlines(components);
  if (usable_) {
    take_bars(components);
    sum_forces();
  }
  return usable_;
}

/// False when a component is unusable; the gross section is that of the outlines there are.
bool SectionModel::take_outlines(std::span<const std::unique_ptr<BaseDomain>> components) {
  for (Held& held : held_) {
    held.state = State::stale;
  }
  parts_.clear();
  gross_parts_.clear();
  gross_ = {};
  bool usable = !components.empty();
  for (const auto& component : components) {
    const auto outline = component->externBoundary();
    const GrossSection gross = gross_section(outline);
    const double scale = component->getScaleCoefficient();
    const bool bounded = encloses_area(outline, gross);
    const bool scaled = scale > 0.0 && scale <= farthest;
    const double orientation = gross.area < 0.0 ? -1.0 : 1.0;
    if (bounded) add(gross_, gross, scaled ? orientation * scale : orientation);
    if (!(bounded && scaled && component->laws())) {
      usable = false;
      continue;
    }
    parts_.push_back({.outline = outline,
                      .orientation = orientation,
                      .laws = *component->laws(),
                      .scale = scale,
                      .bars = {}});
    gross_parts_.push_back(gross);
  }
  return usable;
}

void SectionModel::take_bars(std::span<const std::unique_ptr<BaseDomain>> components) {
  for (Held& held : held_) {
    held.state = std::min(held.state, State::outlined);
  }
  for (std::size_t i = 0; i < components.size(); ++i) {
    parts_[i].bars.clear();
    for (const SteelBar& bar : components[i]->bars()) {
      if (!counts(bar)) continue;
      const double radius = bar.getRadius();
      parts_[i].bars.push_back(
          {.axis = {.x = bar.getX(), .y = bar.getY()}, .area = std::numbers::pi * radius * radius});
    }
  }
}

/// Concrete counts with the mean of its distances from the origin, the quadratic one, bars with
/// their own.
void SectionModel::sum_forces() {
  axial_force_ = moment_force_ = ultimate_strain_ = stretch_limit_ = 0.0;
  for (std::size_t i = 0; i < parts_.size(); ++i) {
    const SectionPart& part = parts_[i];
    const GrossSection& gross = gross_parts_[i];
    const double crushed = part.laws.concrete.strength * part.scale * std::abs(gross.area);
    axial_force_ += crushed;
    moment_force_ += crushed * std::sqrt((gross.xx + gross.yy) / gross.area);
    ultimate_strain_ = std::max(ultimate_strain_, part.laws.concrete.ultimate_strain);
    for (const BarPoint& bar : part.bars) {
      const double force = part.laws.steel.yield_stress * part.scale * bar.area;
      axial_force_ += force;
      const Point axis = bar.axis;  // its square cannot overflow
      moment_force_ += force * std::sqrt(axis.x * axis.x + axis.y * axis.y);
      stretch_limit_ = std::max(stretch_limit_, part.laws.steel.limit_strain);
    }
  }
}

const View& SectionModel::along(Direction direction) {
  std::size_t index = 2;
  if (is_zero(direction.sine)) index = direction.cosine > 0.0 ? 0 : 1;
  Held& held = held_[index];
  DirectedSection& section = held.view.section;
  const bool same = is_zero(direction.cosine - section.direction().cosine)
                 && is_zero(direction.sine - section.direction().sine);
  if (held.state == State::ready && same) return held.view;
  if (held.state == State::outlined && same) {
    section.place_bars(parts_);
  } else {
    section.build(parts_, direction);
  }
  held.view.path.build(section);
  held.state = State::ready;
  return held.view;
}

/// The plane whose stresses d0 + d1 y + d2 x have the forces, solved about the centroid.
Deform SectionModel::elastic_plane(double axial, Moment moment) const {
  if (!(gross_.area > 0.0)) return {};
  const double x = gross_.x / gross_.area;
  const double y = gross_.y / gross_.area;
  const double xx = gross_.xx - x * gross_.x;
  const double yy = gross_.yy - y * gross_.y;
  const double xy = gross_.xy - x * gross_.y;
  const double mx = moment.x - axial * y;
  const double my = moment.y - axial * x;
  const double determinant = xx * yy - xy * xy;
  const double d1 = (mx * xx - my * xy) / determinant;
  const double d2 = (my * yy - mx * xy) / determinant;
  const Deform plane{.d0 = axial / gross_.area - d1 * y - d2 * x, .d1 = d1, .d2 = d2};
  const bool finite = std::isfinite(plane.d0) && std::isfinite(d1) && std::isfinite(d2);
  return finite ? plane : Deform{};
}

}  // namespace Ferrule::internal
