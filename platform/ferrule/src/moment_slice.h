#pragma once
/// @file  The ultimate domain at one axial force. Library: ferrule
// SPDX-License-Identifier: Apache-2.0
//
// At an axial force N between uniform compression and uniform tension every direction has one
// ultimate plane with that force. Their moments, one for each direction, are the border of the
// slice of the ultimate domain at N. The uniform plane with the force N is within the limits, and
// its moment R is within the slice.
//
// Strain planes with the force N are the gradient map of a convex function of (d1, d2): the stress
// laws never fall. So (A - R) . a >= 0 for the moment A of the ultimate plane along the direction
// a, which is less than a right angle away from the direction of A - R. Seen from R, the border in
// a direction d belongs to a plane whose gradient is turned by less than a right angle from d, and
// that angle has a bracket.

#include "section_model.h"

#include <optional>

namespace Ferrule::internal {

/// A strain plane with its forces.
struct StrainState {
  Direction gradient;
  Plane plane;  ///< along the gradient
  Deform deform;
  Moment moment;
};

inline Moment operator-(Moment a, Moment b) {
  return {.x = a.x - b.x, .y = a.y - b.y};
}
/// The part of a moment in a direction.
inline double along(Moment m, Direction d) {
  return m.x * d.cosine + m.y * d.sine;
}
/// The part of a moment at right angles to a direction, positive towards larger angles.
inline double across(Moment m, Direction d) {
  return m.y * d.cosine - m.x * d.sine;
}

class MomentSlice {
public:
  MomentSlice(SectionModel& model, double axial) : model_(model), axial_(axial) {}

  /// The ultimate plane whose strain gradient has the direction.
  std::optional<StrainState> ultimate_along(
      Direction gradient, UltimatePath::Choice choice = UltimatePath::Choice::steeper);

  /// The plane without a gradient that has the axial force.
  StrainState uniform();

  /// The ultimate plane whose moment lies on the ray from `from` in a direction. Of several the
  /// nearest one when `from` lies within the slice, the farthest one otherwise; one behind `from`
  /// when only the line behind the ray crosses the slice.
  std::optional<StrainState> border(Moment from, Direction ray);

private:
  double beside(Moment from, Direction ray, double turn,
                UltimatePath::Choice choice = UltimatePath::Choice::steeper);
  std::optional<StrainState> border_by_samples(Moment from, Direction ray);

  SectionModel& model_;
  double axial_;
};

}  // namespace Ferrule::internal
