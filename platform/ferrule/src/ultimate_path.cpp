// SPDX-License-Identifier: Apache-2.0
#include "ultimate_path.h"

#include "bracketed_root.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace Ferrule::internal {

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

/// A plane this steep, times the section's depth, is as good as a step. Only bars beside or beyond
/// the most compressed fibre lead there [-].
constexpr double step_slope = 1e6;

/// The slope at which two limits give the same plane; infinite when `later` does not lie on the
/// side that `turn` tells, 1 for larger and -1 for smaller depths.
double crossing(const StrainLimit& now, const StrainLimit& later, double turn) {
  if (!(turn * (later.depth - now.depth) > 0.0)) return infinity;
  return (later.strain - now.strain) / (later.depth - now.depth);
}

/// Which limit takes over from another when the slope grows, and where.
struct Takeover {
  double slope = infinity;
  StrainLimit limit;
};

Takeover takeover(std::span<const StrainLimit> limits, const StrainLimit& now, double slope,
                  double turn) {
  Takeover first;
  for (const StrainLimit& limit : limits) {
    const double at = std::max(slope, crossing(now, limit, turn));
    if (at < first.slope) first = {.slope = at, .limit = limit};
  }
  return first;
}

bool is_smaller(const StrainLimit& a, const StrainLimit& b) {
  return a.strain < b.strain;
}

}  // namespace

Plane UltimatePath::Leg::plane(double part) const {
  double slope = slope_from + part * (slope_to - slope_from);
  if (slope_from > 0.0 && slope_to > 0.0) {
    slope = 1.0 / ((1.0 - part) / slope_from + part / slope_to);
  }
  return {.top = pivot.strain - slope * pivot.depth + (1.0 - part) * lift, .slope = slope};
}

/// Derivatives of the plane's top strain and slope with `part`.
Plane UltimatePath::Leg::change(double part) const {
  double slope = slope_to - slope_from;
  if (slope_from > 0.0 && slope_to > 0.0) {
    const double here = plane(part).slope;
    slope = here * here * (1.0 / slope_from - 1.0 / slope_to);
  }
  return {.top = -slope * pivot.depth - lift, .slope = slope};
}

Sample UltimatePath::Leg::axial(const DirectedSection& section, double part) const {
  const Response response = section.respond(plane(part));
  const Plane by_part = change(part);
  return {.value = response.axial,
          .slope = response.axial_by_top * by_part.top + response.axial_by_slope * by_part.slope};
}

void UltimatePath::build(const DirectedSection& section) {
  legs_.clear();
  const double steepest = section.has_bars() ? walk_stretch_limits(section) : infinity;
  walk_crush_limits(section, steepest);
  double axial = section.has_bars() ? section.respond(legs_.front().plane(0.0)).axial : 0.0;
  for (Leg& leg : legs_) {
    leg.axial_from = axial;
    leg.axial_to = axial = section.respond(leg.plane(1.0)).axial;
  }
}

/// The upper chain; returns the slope at which it meets the lower one.
double UltimatePath::walk_stretch_limits(const DirectedSection& section) {
  const auto limits = section.stretch_limits();
  StrainLimit now = *std::min_element(limits.begin(), limits.end(), is_smaller);
  const double step = step_slope / section.depth();
  double slope = 0.0;
  while (true) {
    const Takeover next = takeover(limits, now, slope, 1.0);
    const Takeover met = takeover(section.crush_limits(), now, slope, -1.0);
    const double end = std::min({next.slope, met.slope, step});
    legs_.push_back({.pivot = now, .slope_from = slope, .slope_to = end});
    if (!(next.slope < met.slope && next.slope < step)) return end;
    slope = end;
    now = next.limit;
  }
}

/// The lower chain from `steepest` to slope 0, and before it the step from the upper chain, if
/// there is one.
void UltimatePath::walk_crush_limits(const DirectedSection& section, double steepest) {
  const auto limits = section.crush_limits();
  const std::size_t upper_legs = legs_.size();
  StrainLimit now = *std::max_element(limits.begin(), limits.end(), is_smaller);
  double slope = 0.0;
  while (true) {
    const Takeover next = takeover(limits, now, slope, -1.0);
    const double end = std::min(next.slope, steepest);
    add_crush_leg(now, end, slope, section.depth());
    if (!(next.slope < steepest)) break;
    slope = end;
    now = next.limit;
  }
  if (upper_legs > 0 && !(steepest < step_slope / section.depth())) {
    const Leg lower = legs_.back();
    const double lift = legs_[upper_legs - 1].plane(1.0).top - lower.plane(0.0).top;
    legs_.push_back(
        {.pivot = lower.pivot, .slope_from = steepest, .slope_to = steepest, .lift = lift});
  }
  std::reverse(legs_.begin() + static_cast<std::ptrdiff_t>(upper_legs), legs_.end());
}

/// A turn from a plane as steep as any to a uniform one is cut in two: neither the slope nor its
/// inverse tells all of it.
void UltimatePath::add_crush_leg(const StrainLimit& pivot, double from, double to, double depth) {
  if (!(to > 0.0) && !(from < infinity)) {
    const double between = -pivot.strain / depth;
    legs_.push_back({.pivot = pivot, .slope_from = between, .slope_to = to});
    to = between;
  }
  legs_.push_back({.pivot = pivot, .slope_from = from, .slope_to = to});
}

std::optional<Plane> UltimatePath::plane_with(const DirectedSection& section, double axial,
                                              Choice choice) const {
  // Uniform compression is the same along all directions, but for rounding.
  const double rounding = 1e3 * section.axial_tolerance(axial);
  if (axial < uniform_compression() - rounding) {
    return beyond_uniform_compression(section, axial, choice);
  }
  if (choice == Choice::flatter) return std::nullopt;
  if (axial >= largest_axial()) {
    return section.has_bars() ? legs_.front().plane(0.0) : Plane{};
  }
  const auto ends_below = [axial](const Leg& leg) { return leg.axial_to <= axial; };
  const Leg& leg = *std::find_if(legs_.begin(), legs_.end() - 1, ends_below);
  const auto surplus = [&](double part) {
    const Sample s = leg.axial(section, part);
    return Sample{.value = axial - s.value, .slope = -s.slope};
  };
  const double guess = (leg.axial_from - axial) / (leg.axial_from - leg.axial_to);
  return leg.plane(growing_root(surplus, 0.0, 1.0, guess, section.axial_tolerance(axial)));
}

/// The last leg falls to its lowest axial force and rises again; one plane is on either side.
std::optional<Plane> UltimatePath::beyond_uniform_compression(const DirectedSection& section,
                                                              double axial, Choice choice) const {
  const Leg& leg = legs_.back();
  const auto growth = [&](double part) { return leg.axial(section, part).slope; };
  const double growth_from = growth(0.0);
  const double growth_to = growth(1.0);
  if (!(growth_from < 0.0 && growth_to > 0.0)) return std::nullopt;
  const double lowest = sign_change(growth, 0.0, growth_from, 1.0, growth_to, 0.0, finest);
  if (!(leg.axial(section, lowest).value <= axial)) return std::nullopt;
  const double sign = choice == Choice::steeper ? -1.0 : 1.0;
  const auto surplus = [&](double part) {
    const Sample s = leg.axial(section, part);
    return Sample{.value = sign * (s.value - axial), .slope = sign * s.slope};
  };
  const double low = choice == Choice::steeper ? 0.0 : lowest;
  const double high = choice == Choice::steeper ? lowest : 1.0;
  const double guess = 0.5 * (low + high);
  return leg.plane(growing_root(surplus, low, high, guess, section.axial_tolerance(axial)));
}

double utilisation(const DirectedSection& section, Plane plane) {
  double largest = 0.0;
  for (const auto limits : {section.stretch_limits(), section.crush_limits()}) {
    for (const StrainLimit& limit : limits) {
      largest = std::max(largest, plane.at(limit.depth) / limit.strain);
    }
  }
  return largest;
}

}  // namespace Ferrule::internal
