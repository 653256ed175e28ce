// SPDX-License-Identifier: Apache-2.0
#include "ultimate_domain.h"

#include "strain_balance.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace Ferrule::internal {

namespace {

/// The share of the section's own forces by which forces may lie outside [-].
constexpr double slack = 1e-9;

double length(Moment m) {
  return std::hypot(m.x, m.y);
}

/// The axial force by which forces may lie outside.
double axial_slack(const SectionModel& model) {
  return slack * model.axial_force();
}

/// The same of a moment.
double moment_slack(const SectionModel& model) {
  return slack * model.moment_force();
}

/// Whether no plane within the limits has the axial force. Below uniform compression this is a
/// bound only, for bars within the concrete: every fibre at the ultimate strain.
bool is_out_of_reach(SectionModel& model, double axial) {
  const View& view = model.along({});
  if (!(axial <= view.path.largest_axial() + axial_slack(model))) return true;
  if (axial >= view.path.uniform_compression()) return false;
  const double least = view.section.respond({.top = -model.ultimate_strain()}).axial;
  return !(axial >= least - axial_slack(model));
}

/// One query.
class Equilibrium {
public:
  Equilibrium(SectionModel& model, double axial, Moment moment)
      : model_(model),
        axial_(axial),
        moment_(moment),
        axial_slack_(axial_slack(model)),
        moment_slack_(moment_slack(model)) {}

  /// A plane within the limits that has the forces, if there is one.
  std::optional<Deform> balance();
  /// The ultimate plane at the axial force on the side of the moment, if there is one.
  std::optional<Deform> ultimate();

private:
  std::optional<Deform> within_slice();
  bool exceeds(const StrainState& ultimate, Moment centre) const;
  std::optional<Deform> within_limits(const StrainState& state);

  SectionModel& model_;
  double axial_;
  Moment moment_;
  double axial_slack_;
  double moment_slack_;
};

/// Uniform tension and uniform compression are the same along all directions. Below the latter the
/// slice does not hold the uniform plane, and the plane that has the forces tells by itself.
std::optional<Deform> Equilibrium::balance() {
  if (is_out_of_reach(model_, axial_)) return std::nullopt;
  const UltimatePath& path = model_.along({}).path;
  if (axial_ < path.uniform_compression() - axial_slack_) {
    const StrainState uniform = MomentSlice(model_, axial_).uniform();
    return within_limits(balanced_state(model_, axial_, moment_, uniform));
  }
  axial_ = std::clamp(axial_, path.uniform_compression(), path.largest_axial());
  return within_slice();
}

/// Most often the plane that has the forces tells by itself. On the border it may be hard to tell
/// from its neighbours or not be found: there the ultimate plane decides. It also does, and at
/// once, where it has no moment beside the wanted one, as under symmetry.
std::optional<Deform> Equilibrium::within_slice() {
  MomentSlice slice(model_, axial_);
  const StrainState uniform = slice.uniform();
  if (length(moment_ - uniform.moment) <= moment_slack_) return uniform.deform;
  const Direction ahead = direction_of(moment_ - uniform.moment);
  const auto ultimate = slice.ultimate_along(ahead);
  if (ultimate && exceeds(*ultimate, uniform.moment)) return std::nullopt;
  const auto inner = within_limits(balanced_state(model_, axial_, moment_, uniform));
  if (inner) return inner;
  const auto border = slice.border(uniform.moment, ahead);
  if (!border || !(length(moment_ - border->moment) <= moment_slack_)) return std::nullopt;
  return border->deform;
}

/// Whether the ultimate moment lies on the way from the centre of the slice to the wanted one.
bool Equilibrium::exceeds(const StrainState& ultimate, Moment centre) const {
  const double beside = across(ultimate.moment - centre, ultimate.gradient);
  const double beyond = along(moment_ - ultimate.moment, ultimate.gradient);
  return std::abs(beside) <= moment_rounding * model_.moment_force() && beyond > moment_slack_;
}

/// The state's plane, drawn back to the limits when it exceeds them, if it has the forces.
std::optional<Deform> Equilibrium::within_limits(const StrainState& state) {
  const DirectedSection& section = model_.along(state.gradient).section;
  const double excess = std::max(1.0, utilisation(section, state.plane));
  const Plane plane{.top = state.plane.top / excess, .slope = state.plane.slope / excess};
  const bool balanced = std::abs(section.respond(plane).axial - axial_) <= axial_slack_
                     && length(section.moment(plane) - moment_) <= moment_slack_;
  if (!balanced) return std::nullopt;
  return section.deform(plane);
}

std::optional<Deform> Equilibrium::ultimate() {
  if (is_out_of_reach(model_, axial_)) return std::nullopt;
  MomentSlice slice(model_, axial_);
  const Direction side = direction_of(moment_);
  auto state = slice.border({}, side);
  const auto faces = [&side](const Direction& gradient) {
    return gradient.cosine * side.cosine + gradient.sine * side.sine > 0.0;
  };
  if (!state || !faces(state->gradient)) state = slice.ultimate_along(side);
  if (!state) return std::nullopt;
  return state->deform;
}

}  // namespace

std::optional<StrainState> resisting_state(SectionModel& model, double axial, Direction direction) {
  if (is_out_of_reach(model, axial)) return std::nullopt;
  const double uniform_compression = model.along({}).path.uniform_compression();
  if (axial >= uniform_compression - axial_slack(model)) {
    axial = std::max(axial, uniform_compression);
  }
  auto state = MomentSlice(model, axial).border({}, direction);
  const bool found = state && along(state->moment, direction) >= -moment_slack(model)
                  && std::abs(across(state->moment, direction)) <= moment_slack(model);
  if (!found) return std::nullopt;
  return state;
}

bool find_equilibrium(SectionModel& model, double axial, Moment moment, Deform& plane) {
  Equilibrium query(model, axial, moment);
  if (const auto balanced = query.balance()) {
    plane = *balanced;
    return true;
  }
  plane = query.ultimate().value_or(model.elastic_plane(axial, moment));
  return false;
}

}  // namespace Ferrule::internal
