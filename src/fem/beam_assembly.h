#pragma once
/// @file  Stiffness and loads of one beam element, and where they go. Room: fem
// SPDX-License-Identifier: Apache-2.0
//
// Notation
//
//   The wall is a straight chain of plane beam elements, numbered with its nodes from the head
//   down:
//
//        o  node 0, the head, depth 0       Each node has three dofs; dof k of node n has the
//        |                                  global number 3n + k:
//        |  element 0
//        |                                    k = 0  displacement along the wall, positive downwards
//        o  node 1                            k = 1  displacement across the wall
//        |                                    k = 2  rotation, the derivative of dof 1 by the depth
//        |  element 1
//        |                                  Element e joins the nodes e (start) and e + 1 (end); its
//        o  node 2                          local dofs 0..5 are the global dofs 3e..3e + 5.
//        :
//        o  node Ne, the foot
//
//   E  elastic modulus [N/mm²]      A  cross-section area [mm²]
//   L  length [mm]                  J  second moment of area for bending across the wall [mm⁴]
//
//   A load acts in the direction of the displacement of its dof; a positive moment turns like a
//   positive rotation. All elements share the axes of the wall, so nothing is transformed. Shear
//   does not deform the beam (Euler and Bernoulli).

#include "ostrel/fem_load.h"

#include <armadillo>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace ostrel::fem {

inline constexpr std::uint32_t dofs_per_node = 3;
inline constexpr std::uint32_t dofs_per_element = 6;

/// How far from the diagonal the matrix of the beam has entries: an element joins neighbours only.
inline constexpr std::size_t half_band_width = dofs_per_element - 1;

/// The rows of a column of the beam's matrix that can hold anything, from `first` to before `end`.
struct BandRows {
  std::size_t first = 0;
  std::size_t end = 0;
};

/// @param size  number of rows and columns
constexpr BandRows band_rows(std::size_t column, std::size_t size) {
  return {.first = column > half_band_width ? column - half_band_width : 0,
          .end = std::min(size, column + half_band_width + 1)};
}

/// A row and a column for each dof of an element.
using ElementMatrix = arma::Mat<double>::fixed<dofs_per_element, dofs_per_element>;

/// What the stiffness of an element depends on.
struct BeamElement {
  double elastic_modulus = 0.0;  ///< E [N/mm²]
  double area = 0.0;             ///< A [mm²]
  double second_moment = 0.0;    ///< J [mm⁴]
  double length = 0.0;           ///< L [mm]
};

/// The global numbers of the six dofs of an element: 3e, 3e + 1, ... 3e + 5.
std::vector<std::uint32_t> element_dofs(std::uint32_t element);

/// The 6 x 6 stiffness matrix of a plane beam element [N/mm], [N], [Nmm]:
///
///     along:    (E A / L)   |  1  -1 |
///                           | -1   1 |
///
///     across:   (E J / L³)  |  12    6L   -12    6L  |
///                           |  6L   4L²   -6L   2L²  |
///                           | -12   -6L    12   -6L  |
///                           |  6L   2L²   -6L   4L²  |
///
/// A length of zero gives entries that are not finite.
ElementMatrix element_stiffness(const BeamElement& element);

/// The six nodal loads of a load that varies linearly along an element: its fixed-end reactions,
/// reversed [N], [Nmm].
///
///     across:   start  (7 pStart + 3 pEnd) L / 20,   moment   (pStart / 2 + pEnd / 3) L² / 10
///               end    (3 pStart + 7 pEnd) L / 20,   moment  -(pStart / 3 + pEnd / 2) L² / 10
///     along:    the first and the third with aStart and aEnd
///
/// @oddity The load along the wall is shared between the ends by the rule of the load across it
/// (7 and 3 twentieths), where a bar takes (2 aStart + aEnd) L / 6. Stored results depend on it.
///
/// @param length  L [mm]
arma::Col<double> equivalent_nodal_loads(const PressAtEnds& load, double length);

/// Adds the 6 x 6 matrix of an element to that of the beam, at the dofs of the element.
void add_at_dofs(const arma::Mat<double>& element_matrix, const std::vector<std::uint32_t>& dofs,
                 arma::Mat<double>& beam_matrix);

}  // namespace ostrel::fem
