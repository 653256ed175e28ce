#pragma once
/// @file  A reinforced concrete section at the ultimate limit state. Library: ferrule
// SPDX-License-Identifier: Apache-2.0

#include "ferrule/concrete_domain.h"
#include "ferrule/deform.h"

#include <memory>
#include <vector>

namespace Ferrule {

namespace internal {
class SectionModel;
}

/// A section of one or several polygons of concrete with bars.
///
/// Signs: strains, stresses and N are positive in tension; Mx = ∫ stress y dA, so that a positive
/// Mx stretches y > 0, and My = ∫ stress x dA. Moments are taken about (0, 0).
///
/// The ultimate domain is the set of forces (N, Mx, My) of all strain planes within the limits:
///
/// - no bar is stretched beyond the limit strain of steel,
/// - no fibre of concrete is shortened beyond the ultimate strain Ecu,
/// - the fibre at the depth (1 - Ec2 / Ecu) h from the most compressed one is not shortened beyond
///   the peak strain Ec2, h being the extent of the concrete along the strain gradient. This one
///   has a say only when all of the section is compressed.
///
/// Bars are thought to lie within the concrete, whose ultimate strain then bounds their shortening.
///
/// Results do not depend on a start or on what was asked before, and every search is bracketed: it
/// ends after a bounded number of steps whatever the section. Asking allocates memory only the
/// first time and after a change of the components. The operations keep working memory in the
/// section: one section serves one thread.
class Section {
public:
  Section();
  ~Section();
  Section(const Section&) = delete;
  Section& operator=(const Section&) = delete;

  /// Adds a component and takes ownership of it; null, or one that is there already, adds nothing.
  void Add_Domain(BaseDomain* domain);
  /// The component at `index`, counted from 0; null when there is none.
  BaseDomain* getComponent(int index) const;
  int getNumComponents() const;

  /// Looks for the strain plane that balances the forces.
  ///
  /// The rounding slack is 1e-9 of the section's own forces: that of the crushed concrete plus that
  /// of the yielding bars for N, the sum of their moments for Mx and My.
  ///
  /// @param N      axial force, tension positive [N]
  /// @param Mx     moment ∫ stress y dA [N mm]
  /// @param My     moment ∫ stress x dA [N mm]
  /// @param plane  the start, which has no influence, and the result: on 1 a plane within the
  ///               limits that balances the forces. On 0 the ultimate plane at that N on the side
  ///               of the moment (of Mx > 0 when there is none); where N itself is out of reach,
  ///               and on -1 where there is an outline, the plane (N / A, M / J) of a plain elastic
  ///               section of modulus 1 N/mm². Otherwise zero.
  /// @param tol, max_iterations  kept for the interface; the result is exact but for rounding
  /// @retval 1   the forces lie within the ultimate domain
  /// @retval 0   they lie outside
  /// @retval -1  a force is not finite, or the section is empty or unusable
  int solveEquilibrium(double N, double Mx, double My, Deform& plane, double tol,
                       int max_iterations);

  /// The moment at which a direction leaves the ultimate domain at N, with no moment at right angles
  /// to it. The neutral axis turns where outline or bars are not symmetric about the plane of
  /// bending. Where the domain is indented and the direction leaves it several times, this is the
  /// first time, or the last one when the section carries N only together with some moment.
  ///
  /// @param N       axial force, tension positive [N]
  /// @param angle   direction of the moment: Mx = moment cos(angle), My = moment sin(angle) [rad]
  /// @param moment  the moment, >= 0 in every direction; 0 on false [N mm]
  /// @param second  what is left of the moment at right angles, 0 but for rounding [N mm]
  /// @param work    the ultimate strain plane; left alone on false
  /// @param tol, max_iterations, flag  kept for the interface; the result is exact but for rounding
  /// @return false when N lies outside the axial capacity, when the section carries N only with a
  ///         moment that does not lie in this direction, when an argument is not finite, and when
  ///         the section is empty or unusable
  bool resistingMoment(double N, double angle, double& moment, double& second, double tol,
                       Deform& work, int max_iterations, bool flag);

private:
  std::vector<std::unique_ptr<BaseDomain>> components_;
  std::unique_ptr<internal::SectionModel> model_;
};

}  // namespace Ferrule
