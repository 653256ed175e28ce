#pragma once
/// @file  The forces of strain planes that vary along one direction. Library: ferrule
// SPDX-License-Identifier: Apache-2.0
//
// Notation: direction, level s, depth z and u as in outline_profile.h; here z is counted from the
// most compressed fibre of the concrete of the whole section. A plane has the strain
// top + slope z with slope >= 0, so that depth 0 is shortened most.

#include "ferrule/deform.h"
#include "outline_profile.h"

#include <cmath>
#include <span>
#include <vector>

namespace Ferrule::internal {

/// What rounding leaves of a moment, in relation to the moments that make it up [-].
inline constexpr double moment_rounding = 4e-15;

/// A bar that counts.
struct BarPoint {
  Point axis;         ///< [mm]
  double area = 0.0;  ///< [mm²]
};

/// A component as the analysis needs it. The outline stays with its domain.
struct SectionPart {
  std::span<const Point> outline;
  double orientation = 1.0;  ///< 1 when the outline is counter-clockwise, -1 otherwise
  MaterialLaws laws;
  double scale = 1.0;  ///< factor on the forces [-]
  std::vector<BarPoint> bars;
};

/// A strain plane along a direction.
struct Plane {
  double top = 0.0;    ///< strain at depth 0 [-]
  double slope = 0.0;  ///< [1/mm]

  double at(double depth) const { return top + slope * depth; }
};

/// A plane is within the limits when its strain at this depth does not exceed `strain`, where that
/// is positive, or does not fall below it, where it is negative.
struct StrainLimit {
  double depth = 0.0;   ///< [mm]
  double strain = 0.0;  ///< [-]
};

/// Axial force and moment along the direction, the latter about depth 0, with their derivatives.
struct Response {
  double axial = 0.0;           ///< [N]
  double along = 0.0;           ///< ∫ stress z dA [N mm]
  double axial_by_top = 0.0;    ///< [N]
  double axial_by_slope = 0.0;  ///< [N mm]; also that of `along` by the top strain
  double along_by_slope = 0.0;  ///< [N mm²]
};

/// A moment in the axes of the section, about its origin.
struct Moment {
  double x = 0.0;  ///< Mx = ∫ stress y dA [N mm]
  double y = 0.0;  ///< My = ∫ stress x dA [N mm]
};

class DirectedSection {
public:
  /// Takes outlines, laws and bars. Sets memory aside only for more parts, vertices or bars than
  /// there have been before.
  void build(std::span<const SectionPart> parts, Direction direction);
  /// Takes the bars anew; outlines and laws are those of the last `build`.
  void place_bars(std::span<const SectionPart> parts);

  const Direction& direction() const { return direction_; }
  double depth() const { return depth_; }  ///< extent of the concrete along the direction [mm]
  bool has_bars() const { return !stretch_limits_.empty(); }
  double first_depth() const { return first_; }  ///< smallest one of concrete and bars [mm]
  double last_depth() const { return last_; }    ///< largest one of concrete and bars [mm]

  /// What rounding leaves of an axial force of this size [N].
  double axial_tolerance(double axial) const {
    return axial_rounding * (std::abs(axial) + bar_force_);
  }

  /// A moment along the direction, carried from the origin to depth 0 [N mm].
  double about_top(double along, double axial) const { return along - start_ * axial; }

  /// Of the bars in tension, one for each part that has bars.
  std::span<const StrainLimit> stretch_limits() const { return stretch_limits_; }
  /// Of the concrete in compression, two for each part.
  std::span<const StrainLimit> crush_limits() const { return crush_limits_; }

  Response respond(Plane plane) const;
  Moment moment(Plane plane) const;
  Deform deform(Plane plane) const;

private:
  static constexpr double axial_rounding = 4e-16;

  struct Part {
    OutlineProfile profile;
    ConcreteLaw concrete;  ///< its strength times the scale of the domain
    SteelLaw steel;
    double scale = 1.0;
    double offset = 0.0;  ///< depth of the part's own top [mm]
    // Bars that follow one another at the same depth, as those of a row, count as one.
    std::vector<double> bar_depth;   ///< [mm]
    std::vector<double> bar_area;    ///< times the scale of the domain [mm²]
    std::vector<double> bar_across;  ///< first moment of that area across the direction [mm³]

    void add_bar(double depth, double across, double area);
  };

  void set_crush_limits();
  static void add_concrete(const Part& part, Plane plane, Response& response);
  static void add_bars(const Part& part, Plane plane, Response& response);
  static double across_of(const Part& part, Plane plane);

  Direction direction_;
  double start_ = 0.0;  ///< level of depth 0 [mm]
  double depth_ = 0.0;
  double first_ = 0.0;
  double last_ = 0.0;
  double bar_force_ = 0.0;  ///< of all bars at their yield stress [N]
  std::vector<Part> parts_;
  std::vector<StrainLimit> stretch_limits_;
  std::vector<StrainLimit> crush_limits_;
};

}  // namespace Ferrule::internal
