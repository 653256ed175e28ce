#pragma once
/// @file  Walls and columns of layers for tests of the beam, and what a beam consists of
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/sheetpiling_data.h"
#include "ostrel/sheetpiling_model.h"
#include "support/wall_builder.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <vector>

namespace ostrel::testing {

/// A wall of panels 600 mm deep and 400 mm wide: A = 240 000 mm², J = 400 * 600³ / 12 = 7.2e9 mm⁴;
/// E = 30 000 N/mm².
inline xSheetpilingData wall_of(double length, double excavation) {
  return WallBuilder{}.panel(600.0, 400.0, length).excavation(excavation).build();
}

inline xPile_Sheetpiling& pile_wall(xSheetpilingData& data) {
  return dynamic_cast<xPile_Sheetpiling&>(*data.props);
}

/// A model whose layers have these levels; each layer begins at its first level.
inline xSheetpilingModel column_of(const std::vector<std::vector<double>>& levels) {
  xSheetpilingModel model;
  for (const std::vector<double>& of_layer : levels) {
    xSoilLayer layer;
    layer.setDepth(of_layer.front());
    layer.levels = of_layer;
    model.layers.push_back(layer);
  }
  return model;
}

inline xConstraint at(double depth) {
  xConstraint constraint;
  constraint.setPosition(depth);
  return constraint;
}

/// A constraint along the wall alone.
inline xConstraint along(double depth, double value) {
  xConstraint constraint = at(depth);
  constraint.axial.setActive(true);
  constraint.axial.setValue(value);
  return constraint;
}

inline std::vector<double> depths(const xSheetpilingModel& model) {
  std::vector<double> found;
  for (const xPoint2d& node : model.fem.nodes)
    found.push_back(node.y);
  return found;
}

inline std::vector<double> lengths(const xSheetpilingModel& model) {
  std::vector<double> found;
  for (const xElemData& element : model.fem.elements)
    found.push_back(element.getL());
  return found;
}

inline std::vector<int> anchor_nodes(const xSheetpilingModel& model) {
  std::vector<int> found;
  for (const info_Fem_anchor& link : model.anchors)
    found.push_back(link.node);
  return found;
}

inline void expect_chain(const xSheetpilingModel& model) {
  const xFemData& fem = model.fem;
  ASSERT_EQ(fem.nodes.size(), fem.elements.size() + 1);
  for (std::size_t e = 0; e < fem.elements.size(); ++e) {
    EXPECT_EQ(fem.elements[e].getStartNode(), static_cast<int>(e));
    EXPECT_EQ(fem.elements[e].getEndNode(), static_cast<int>(e) + 1);
  }
  for (const xPoint2d& node : fem.nodes)
    EXPECT_EQ(node.x, 0.0);
}

}  // namespace ostrel::testing
