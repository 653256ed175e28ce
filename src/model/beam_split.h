#pragma once
/// @file  Places on the beam, and nodes put inside its elements. Room: model
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/fem_data.h"
#include "ostrel/soil_layer.h"

#include <cstdint>
#include <vector>

namespace ostrel::model {

/// Where a depth lies on the beam; -1 for no such element or node.
struct BeamPlace {
  std::int32_t element = -1;
  std::int32_t node = -1;
};

/// The first element with depth >= y(start) - tolerance and y(end) + tolerance >= depth, and its
/// node within the tolerance of the depth: the end node if both are. A depth on the end of an
/// element is found on that element and not on the next one.
///
/// @param depth      [mm]
/// @param tolerance  [mm]
BeamPlace find_place(const xFemData& beam, double depth, double tolerance);

/// Puts a node into an element: the nodes and elements below move up by one index, and so do the
/// keys of all supports and springs below. The depth becomes a level too, in the first layer that
/// has a level of at least that depth, so that the levels go on telling the nodes.
///
/// @oddity Both halves keep the length of the whole element, and nothing corrects it: loads and
/// stiffness of a split element are those of two elements of its full length. Stored results
/// depend on it.
///
/// @param element  nothing happens if there is no such element
/// @param depth    of the new node [mm]
void split_element(std::int32_t element, double depth, xFemData& beam,
                   std::vector<xSoilLayer>& layers);

/// The node at a depth: one within the tolerance, or else a new one inside an element.
/// @param depth      [mm]
/// @param tolerance  [mm]
/// @return its index; -1 for a depth outside of the beam
std::int32_t find_or_make_node(double depth, double tolerance, xFemData& beam,
                               std::vector<xSoilLayer>& layers);

}  // namespace ostrel::model
