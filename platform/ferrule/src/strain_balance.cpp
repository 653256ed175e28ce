// SPDX-License-Identifier: Apache-2.0
#include "strain_balance.h"

#include "bracketed_root.h"

#include <algorithm>
#include <cmath>

namespace Ferrule::internal {

namespace {

/// The planes along one direction that have a given axial force.
class DirectedBalance {
public:
  DirectedBalance(const SectionModel& model, const DirectedSection& section, double axial)
      : section_(section),
        axial_(axial),
        shortest_(-model.ultimate_strain()),
        longest_(model.stretch_limit()),
        axial_tolerance_(section.axial_tolerance(axial)),
        moment_tolerance_(moment_rounding * model.moment_force()) {}

  /// The plane with the moment `along` about depth 0, the uniform plane when that one exceeds it
  /// already, or a very steep one when none has it.
  ///
  /// @param steep  a plane with about the axial force, and a slope from which to look
  Plane with_moment(double along, double uniform_strain, Plane steep);

private:
  void turn_to(double slope);
  Sample moment() const;

  const DirectedSection& section_;
  double axial_;
  double shortest_;
  double longest_;
  double axial_tolerance_;
  double moment_tolerance_;
  Plane plane_;        ///< the last one
  Response response_;  ///< of that
};

/// Goes on to the plane with the axial force that has a slope, looked for from where the one before
/// points to.
void DirectedBalance::turn_to(double slope) {
  const auto surplus = [&](double top) {
    plane_ = {.top = top, .slope = slope};
    response_ = section_.respond(plane_);
    return Sample{.value = response_.axial - axial_, .slope = response_.axial_by_top};
  };
  const double low = shortest_ - slope * section_.last_depth();
  const double high = longest_ - slope * section_.first_depth();
  const double turn = (slope - plane_.slope) * response_.axial_by_slope;
  const double guess = plane_.top - turn / response_.axial_by_top;
  growing_root(surplus, low, high, guess, axial_tolerance_);
}

/// The moment about depth 0 and its derivative with the slope at a constant axial force.
Sample DirectedBalance::moment() const {
  const Response& r = response_;
  const double lever = r.axial_by_top > 0.0 ? r.axial_by_slope / r.axial_by_top : 0.0;
  return {.value = r.along, .slope = r.along_by_slope - r.axial_by_slope * lever};
}

Plane DirectedBalance::with_moment(double along, double uniform_strain, Plane steep) {
  constexpr double steepest = 1e4;  // times `steep`; beyond it a section has spent its moment
  const auto surplus = [&](double slope) {
    turn_to(slope);
    const Sample s = moment();
    return Sample{.value = s.value - along, .slope = s.slope};
  };
  plane_ = {.top = uniform_strain};
  response_ = section_.respond(plane_);
  double low = 0.0;
  double at_low = response_.along - along;
  if (!(at_low < 0.0)) return plane_;
  plane_ = steep;
  response_ = section_.respond(plane_);
  double high = steep.slope;
  Sample at_high = surplus(high);
  while (at_high.value < 0.0 && high < steepest * steep.slope) {
    low = high;
    at_low = at_high.value;
    // The moment grows ever more slowly, so that the tangent falls short.
    const double reach = at_high.slope > 0.0 ? -2.0 * at_low / at_high.slope : 1e3 * high;
    high += std::clamp(reach, high, 1e3 * high);
    at_high = surplus(high);
  }
  if (at_high.value < 0.0) return plane_;
  const double guess = low + (high - low) * (at_low / (at_low - at_high.value));
  growing_root(surplus, low, high, guess, moment_tolerance_);
  return plane_;
}

/// One query: the planes along single directions that balance all but the moment across them.
class NestedBalance {
public:
  NestedBalance(SectionModel& model, double axial, Moment moment, const StrainState& uniform)
      : model_(model), axial_(axial), moment_(moment), uniform_(uniform) {}

  StrainState along_gradient(Direction gradient);

  /// What the moment of the plane along a gradient has across it beside the wanted one.
  double beside(Direction gradient) {
    return across(along_gradient(gradient).moment - moment_, gradient);
  }

  /// How far to close in on a direction: where the last two planes are far beyond the limits, those
  /// between them cannot be within.
  double narrowest() const { return std::min(strained_, strained_before_) > 2.0 ? 1e-3 : finest(); }

private:
  SectionModel& model_;
  double axial_;
  Moment moment_;
  const StrainState& uniform_;
  double strained_ = 0.0;  ///< utilisation of the last plane [-]
  double strained_before_ = 0.0;
};

StrainState NestedBalance::along_gradient(Direction gradient) {
  const View& view = model_.along(gradient);
  const DirectedSection& section = view.section;
  const auto ultimate = view.path.plane_with(section, axial_);
  Plane steep{.top = uniform_.plane.top, .slope = model_.ultimate_strain() / section.depth()};
  if (ultimate && ultimate->slope > 0.0) steep = *ultimate;
  DirectedBalance balance(model_, section, axial_);
  // The uniform plane is the same along every direction.
  const Plane plane = balance.with_moment(section.about_top(along(moment_, gradient), axial_),
                                          uniform_.plane.top, steep);
  strained_before_ = strained_;
  strained_ = utilisation(section, plane);
  return {.gradient = gradient,
          .plane = plane,
          .deform = section.deform(plane),
          .moment = section.moment(plane)};
}

}  // namespace

StrainState balanced_state(SectionModel& model, double axial, Moment moment,
                           const StrainState& uniform) {
  NestedBalance balance(model, axial, moment, uniform);
  const Direction ahead = direction_of(moment - uniform.moment);
  const StrainState first = balance.along_gradient(ahead);
  const double tolerance = moment_rounding * model.moment_force();
  const double beside = across(first.moment - moment, ahead);
  if (std::abs(beside) <= tolerance) return first;
  const auto turn = turning_root([&](double by) { return balance.beside(turned(ahead, by)); },
                                 beside, along(moment - uniform.moment, ahead), tolerance,
                                 [&] { return balance.narrowest(); });
  return turn ? balance.along_gradient(turned(ahead, *turn)) : first;
}

}  // namespace Ferrule::internal
