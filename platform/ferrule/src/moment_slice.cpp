// SPDX-License-Identifier: Apache-2.0
#include "moment_slice.h"

#include "bracketed_root.h"

#include <cmath>
#include <limits>
#include <numbers>
#include <utility>

namespace Ferrule::internal {

namespace {

/// Where a ray crosses the border of a slice.
class RayCrossings {
public:
  RayCrossings(Moment from, Direction ray) : from_(from), ray_(ray) {}

  void add(const StrainState& state) {
    const double distance = along(state.moment - from_, ray_);
    if (!farthest_ || distance > along(farthest_->moment - from_, ray_)) farthest_ = state;
    if (!(distance > 0.0)) return;
    ++ahead_;
    if (!nearest_ || distance < along(nearest_->moment - from_, ray_)) nearest_ = state;
  }

  /// With the start of the ray inside, the first crossing; with the start outside, the last.
  std::optional<StrainState> end_of_slice() const { return ahead_ % 2 == 1 ? nearest_ : farthest_; }

private:
  Moment from_;
  Direction ray_;
  int ahead_ = 0;
  std::optional<StrainState> nearest_;   ///< ahead of the start
  std::optional<StrainState> farthest_;  ///< ahead or behind
};

/// A turn and the value of a function there.
struct TurnEnd {
  double turn = 0.0;
  double value = 0.0;
};

/// Where f is a number at one of two turns only, the other is drawn to the last turn that has one.
template <class Function>
std::pair<TurnEnd, TurnEnd> drawn_to_numbers(const Function& f, TurnEnd a, TurnEnd b) {
  if (std::isnan(a.value) == std::isnan(b.value)) return {a, b};
  TurnEnd number = std::isnan(a.value) ? b : a;
  TurnEnd none = std::isnan(a.value) ? a : b;
  const TurnEnd kept = number;
  for (int i = 0; i < 50; ++i) {
    const double middle = number.turn + 0.5 * (none.turn - number.turn);
    const double value = f(middle);
    (std::isnan(value) ? none : number) = {.turn = middle, .value = value};
  }
  return {kept, number};
}

}  // namespace

std::optional<StrainState> MomentSlice::ultimate_along(Direction gradient,
                                                       UltimatePath::Choice choice) {
  const View& view = model_.along(gradient);
  const auto plane = view.path.plane_with(view.section, axial_, choice);
  if (!plane) return std::nullopt;
  return StrainState{.gradient = gradient,
                     .plane = *plane,
                     .deform = view.section.deform(*plane),
                     .moment = view.section.moment(*plane)};
}

StrainState MomentSlice::uniform() {
  const DirectedSection& section = model_.along({}).section;
  const auto surplus = [&](double strain) {
    const Response response = section.respond({.top = strain});
    return Sample{.value = response.axial - axial_, .slope = response.axial_by_top};
  };
  const double shortest = -model_.ultimate_strain();
  const double longest = model_.stretch_limit();
  const double tolerance = section.axial_tolerance(axial_);
  const Plane plane{.top = growing_root(surplus, shortest, longest, 0.0, tolerance)};
  return {.gradient = {},
          .plane = plane,
          .deform = section.deform(plane),
          .moment = section.moment(plane)};
}

std::optional<StrainState> MomentSlice::border(Moment from, Direction ray) {
  const auto first = ultimate_along(ray);
  if (!first) return border_by_samples(from, ray);
  const double tolerance = moment_rounding * model_.moment_force();
  const double beside_first = across(first->moment - from, ray);
  if (std::abs(beside_first) <= tolerance) return first;
  const auto turn = turning_root([&](double by) { return beside(from, ray, by); }, beside_first,
                                 along(first->moment - from, ray), tolerance, finest);
  if (!turn) return border_by_samples(from, ray);
  const auto state = ultimate_along(turned(ray, *turn));
  const Moment centre = uniform().moment;
  const double eccentricity = std::abs(across(centre - from, ray));
  const bool central = state && eccentricity <= 0.5 * along(state->moment - centre, ray);
  return central ? state : border_by_samples(from, ray);
}

/// How far the moment of the ultimate plane along the turned ray lies beside the ray; not a number
/// where there is no such plane.
double MomentSlice::beside(Moment from, Direction ray, double turn, UltimatePath::Choice choice) {
  const auto state = ultimate_along(turned(ray, turn), choice);
  return state ? across(state->moment - from, ray) : std::numeric_limits<double>::quiet_NaN();
}

/// The changes of sign between neighbours of a full turn. Far from the middle of the slice a ray
/// may cross the border several times; near the ends of the ultimate domain there may be no plane
/// for some directions, or two.
std::optional<StrainState> MomentSlice::border_by_samples(Moment from, Direction ray) {
  constexpr int samples = 96;
  constexpr double step = 2.0 * std::numbers::pi / samples;
  const double tolerance = moment_rounding * model_.moment_force();
  RayCrossings crossings(from, ray);
  for (const auto choice : {UltimatePath::Choice::steeper, UltimatePath::Choice::flatter}) {
    const auto across_ray = [&](double by) { return beside(from, ray, by, choice); };
    TurnEnd before{.turn = -step, .value = across_ray(-step)};
    for (int i = 0; i < samples; ++i) {
      const TurnEnd here{.turn = i * step, .value = across_ray(i * step)};
      const auto [a, b] = drawn_to_numbers(across_ray, before, here);
      before = here;
      if (!(a.value * b.value <= 0.0)) continue;
      const double root =
          sign_change(across_ray, a.turn, a.value, b.turn, b.value, tolerance, finest);
      if (const auto state = ultimate_along(turned(ray, root), choice)) crossings.add(*state);
    }
  }
  return crossings.end_of_slice();
}

}  // namespace Ferrule::internal
