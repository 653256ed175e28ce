// SPDX-License-Identifier: Apache-2.0
#include "model/anchor_link.h"
#include "model/beam_split.h"
#include "ostrel/sheetpiling_data.h"
#include "ostrel/sheetpiling_model.h"
#include "ostrel/tolerances.h"

#include <cmath>
#include <utility>

namespace {

using ostrel::model::find_or_make_node;
using ostrel::model::find_place;

constexpr double place_tolerance = 0.001;  // [mm]
constexpr double foot_tolerance = 1e-6;    // [mm]

enum ConstraintKind : int { kind_imposed = 0, kind_spring = 1 };

// Takes away the beam of an earlier call; what no mesh writes stays.
void clear_beam(xFemData& beam) {
  xFemData fresh;
  fresh.setDembinc(beam.getDembinc());
  fresh.setRedfac(beam.getRedfac());
  beam = std::move(fresh);
}

// An element of this wall, not yet between nodes.
xElemData element_of(const xPile_Sheetpiling& wall) {
  xElemData element;
  element.setE(wall.material.getElasticityModulus());
  if (!wall.section) return element;
  element.setArea(wall.section->getArea());
  element.setJ(wall.section->getBendingJ());
  return element;
}

// One node for each level down to the foot, one element between neighbours.
void mesh_layers(const std::vector<xSoilLayer>& layers, const xPile_Sheetpiling& wall,
                 xFemData& beam) {
  const double length = wall.getLength();
  xElemData element = element_of(wall);
  std::int32_t node = 0;
  beam.nodes.emplace_back(0.0, 0.0);
  for (const xSoilLayer& layer : layers) {
    if (!(length - layer.getDepth() >= foot_tolerance)) break;
    for (std::size_t i = 1; i < layer.levels.size(); ++i) {
      const double depth = layer.levels[i] > length ? length : layer.levels[i];
      beam.nodes.emplace_back(0.0, depth);
      element.setL(depth - layer.levels[i - 1]);
      element.setStartNode(node);
      element.setEndNode(++node);
      beam.elements.push_back(element);
    }
  }
}

// The first node within the tolerance of the excavation, -1 for none.
std::int32_t excavation_node(const xFemData& beam, double excavation) {
  for (std::size_t n = 0; n < beam.nodes.size(); ++n) {
    if (std::abs(excavation - beam.nodes[n].y) < place_tolerance) {
      return static_cast<std::int32_t>(n);
    }
  }
  return -1;
}

// One link for each anchor, and a node for each that lies on the beam. A later anchor may split the
// beam above an earlier one: only when all have their nodes are the indices settled.
std::vector<info_Fem_anchor> link_anchors(const std::vector<xAnchor>& anchors, std::int32_t piles,
                                          xFemData& beam, std::vector<xSoilLayer>& layers) {
  std::vector<info_Fem_anchor> links;
  for (const xAnchor& anchor : anchors) {
    const auto index = static_cast<std::int32_t>(links.size());
    links.push_back(ostrel::model::anchor_link(anchor, index, piles));
    find_or_make_node(anchor.z, place_tolerance, beam, layers);
  }
  for (info_Fem_anchor& link : links) {
    link.node = find_place(beam, -link.level, place_tolerance).node;
  }
  return links;
}

}  // namespace

OstrelErrorType xSheetpilingModel::create_FemModel(xSheetpilingData* data) {
  const auto* wall = data ? dynamic_cast<const xPile_Sheetpiling*>(data->props.get()) : nullptr;
  if (!wall) return errNoWall;

  clear_beam(fem);
  mesh_layers(layers, *wall, fem);
  for (const xConstraint& constraint : data->restriction.imposed) {
    applyConstraints(kind_imposed, constraint);
  }
  for (const xConstraint& constraint : data->restriction.springs) {
    applyConstraints(kind_spring, constraint);
  }
  anchors = link_anchors(data->anchors, wall->getNumPiles(), fem, layers);

  const std::int32_t node = excavation_node(fem, wall->getDepth());
  if (node == -1) return errNoExcavationNode;
  fem.setJtsoil(node);
  fem.setDembin(wall->getLength() - wall->getDepth());
  return ostrel::ok;
}

void xSheetpilingModel::splitBeam(int element, double depth) {
  ostrel::model::split_element(element, depth, fem, layers);
}

void xSheetpilingModel::applyConstraints(int kind, const xConstraint& constraint) {
  const int node = find_or_make_node(constraint.getPosition(), place_tolerance, fem, layers);
  if (node != -1) applyConstrToNode(kind, node, constraint);
}

void xSheetpilingModel::applyConstrToNode(int kind, int node, const xConstraint& constraint) {
  const xNodeConstraint& along = constraint.axial;
  const xNodeConstraint& across = constraint.horizontal;
  const xNodeConstraint& rotation = constraint.rotation;
  if (kind == kind_imposed) {
    if (along.getActive()) fem.constrDof0[node] = -along.getValue();
    if (across.getActive()) fem.constrDof1[node] = across.getValue();
    if (rotation.getActive()) fem.constrDof2[node] = rotation.getValue();
  }
  if (kind == kind_spring) {
    if (along.getActive()) fem.springDof0[node] += along.getValue();
    if (across.getActive()) fem.springDof1[node] += across.getValue();
    if (rotation.getActive()) fem.springDof2[node] += rotation.getValue();
  }
}

int xSheetpilingModel::findFemNode(double x, double y) const {
  const double tolerance = (*getTolerances())[xTolerances::position_identity];
  for (std::size_t n = 0; n < fem.nodes.size(); ++n) {
    if (xPoint2d::samePoint(fem.nodes[n], xPoint2d(x, y), tolerance)) return static_cast<int>(n);
  }
  return -1;
}

int xSheetpilingModel::findFemElement(double depth, double tolerance, int& node) const {
  const auto place = find_place(fem, depth, tolerance);
  node = place.node;
  return place.element;
}
