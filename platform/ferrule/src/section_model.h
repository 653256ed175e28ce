#pragma once
/// @file  A section made ready for analysis, seen along the directions asked for. Library: ferrule
// SPDX-License-Identifier: Apache-2.0

#include "ultimate_path.h"

#include <array>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

namespace Ferrule::internal {

/// The direction at an angle; multiples of a right angle but for rounding are taken as such.
Direction direction_at(double angle);

/// The direction of a moment, that of Mx > 0 when it is zero.
Direction direction_of(Moment moment);

/// A direction turned by an angle [rad].
Direction turned(Direction direction, double by);

struct View {
  DirectedSection section;
  UltimatePath path;
};

/// Area, first and second moments of the outlines about the origin.
struct GrossSection {
  double area = 0.0;  ///< [mm²]
  double x = 0.0;     ///< ∫ x dA [mm³]
  double y = 0.0;     ///< ∫ y dA [mm³]
  double xx = 0.0;    ///< ∫ x² dA [mm⁴]
  double yy = 0.0;    ///< ∫ y² dA [mm⁴]
  double xy = 0.0;    ///< ∫ x y dA [mm⁴]
};

class SectionModel {
public:
  /// Brings the model up to the components: nothing is done when they are as they were, and only
  /// the bars are taken anew when only those changed.
  /// @return false when there is no component or one that is unusable
  bool refresh(std::span<const std::unique_ptr<BaseDomain>> components);

  /// The section along a direction. It stays until the next call with another direction, or, along
  /// y, until the next `refresh`.
  const View& along(Direction direction);

  double axial_force() const { return axial_force_; }    ///< crushed concrete and yielding bars [N]
  double moment_force() const { return moment_force_; }  ///< the sum of their moments [N mm]
  double ultimate_strain() const { return ultimate_strain_; }  ///< largest of the concretes [-]
  double stretch_limit() const { return stretch_limit_; }  ///< largest of the bars, 0 without [-]

  /// The plane of a plain elastic section with the modulus 1 N/mm²; zero without an outline.
  Deform elastic_plane(double axial, Moment moment) const;

private:
  struct Seen {
    std::uint64_t revision = 0;
    std::uint64_t outline_revision = 0;
  };
  enum class State { stale, outlined, ready };
  struct Held {
    View view;
    State state = State::stale;
  };

  bool take_outlines(std::span<const std::unique_ptr<BaseDomain>> components);
  void take_bars(std::span<const std::unique_ptr<BaseDomain>> components);
  void sum_forces();

  std::vector<Seen> seen_;
  std::vector<SectionPart> parts_;
  std::vector<GrossSection> gross_parts_;
  GrossSection gross_;
  bool usable_ = false;
  double axial_force_ = 0.0;
  double moment_force_ = 0.0;
  double ultimate_strain_ = 0.0;
  double stretch_limit_ = 0.0;
  std::array<Held, 3> held_;  ///< along +y, along -y, along the last other direction
};

}  // namespace Ferrule::internal
