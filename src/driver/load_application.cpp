// SPDX-License-Identifier: Apache-2.0
// How the loads of one combination reach the beam.
#include "driver/fixed_end_reactions.h"
#include "model/pile_wall.h"
#include "ostrel/solver.h"

#include <cstddef>
#include <optional>

namespace {

using ostrel::driver::EndReactions;

// How far below its end an element still takes a load [mm].
constexpr double place_tolerance = 0.001;

// An element with the depths of its nodes.
struct PlacedElement {
  const xElemData* element;
  double y_start;
  double y_end;
};

std::optional<PlacedElement> placed(const xFemData& fem, const xElemData& element) {
  const auto depth_of = [&fem](int node) {
    return node >= 0 && static_cast<std::size_t>(node) < fem.nodes.size()
             ? std::optional<double>(fem.nodes[static_cast<std::size_t>(node)].y)
             : std::nullopt;
  };
  const auto start = depth_of(element.getStartNode());
  const auto end = depth_of(element.getEndNode());
  if (!start || !end) return std::nullopt;
  return PlacedElement{&element, *start, *end};
}

// The first element that ends no more than the tolerance above `depth`.
std::optional<PlacedElement> element_at(const xFemData& fem, double depth) {
  for (const xElemData& element : fem.elements) {
    const auto candidate = placed(fem, element);
    if (candidate && depth - candidate->y_end <= place_tolerance) return candidate;
  }
  return std::nullopt;
}

void add(const PlacedElement& place, const EndReactions& ends,
         std::map<int, xFemNodeData>& nodal_forces) {
  nodal_forces[place.element->getStartNode()] += ends.start;
  nodal_forces[place.element->getEndNode()] += ends.end;
}

}  // namespace

OstrelErrorType xSolver::applyDeadLoad_new(xFemData* fem, double& w, double spacing,
                                           std::map<int, PressAtEnds>& pressures,
                                           std::map<int, xFemNodeData>& nodal_forces) {
  pressures.clear();
  if (!fem) return errNoFemElements;
  std::optional<PlacedElement> top;
  for (std::size_t e = 0; e < fem->elements.size(); ++e) {
    const xElemData& element = fem->elements[e];
    PressAtEnds& weight = pressures[static_cast<int>(e)];
    weight.aStart = element.getArea() * w;
    weight.aEnd = weight.aStart;

    const auto here = placed(*fem, element);
    if (!here) return errFemNodeNotFound;
    if (!top || (here->y_start + here->y_end) / 2.0 < (top->y_start + top->y_end) / 2.0) top = here;
  }
  nodal_forces.clear();
  const xPile_Sheetpiling* wall = ostrel::model::pile_wall(data);
  if (!wall) return errNoWall;
  if (!top) return ostrel::ok;

  const xElemData& element = *top->element;
  const int head = top->y_start < top->y_end ? element.getStartNode() : element.getEndNode();
  const double cap_beam_area = spacing * wall->getBtrave() - element.getArea();
  const double cap_beam_weight = cap_beam_area * wall->getHtrave() * w;
  nodal_forces[head].x = cap_beam_weight <= 0.0 ? 0.0 : cap_beam_weight;  // NaN stays NaN
  return ostrel::ok;
}

OstrelErrorType xSolver::applyDeadLoad_old(xFemData* fem, double& w,
                                           std::map<int, xFemNodeData>& nodal_forces) {
  if (!fem) return errNoFemElements;
  for (const xElemData& element : fem->elements) {
    const double half = element.getArea() * element.getL() * w / 2.0;
    nodal_forces[element.getStartNode()].x += half;
    nodal_forces[element.getEndNode()].x += half;
  }
  return ostrel::ok;
}

OstrelErrorType xSolver::applyPress(const std::vector<xLayerPress>& press,
                                    std::map<int, PressAtEnds>& pressures) {
  int e = 0;
  for (const xLayerPress& layer : press) {
    for (std::size_t i = 1; i < layer.points.size(); ++i, ++e) {
      const double p1 = layer.points[i - 1].value;
      const double p2 = layer.points[i].value;
      const auto [entry, is_first] = pressures.try_emplace(e, -p1, -p2);
      if (is_first) continue;
      PressAtEnds& on_element = entry->second;
      on_element.pStart = p1 - on_element.pStart;
      on_element.pEnd = p2 - on_element.pEnd;
    }
  }
  return ostrel::ok;
}

OstrelErrorType xSolver::applyShpileLoads(double spacing, xAction& action, xFemData* fem,
                                          xShpileLoad* load,
                                          std::map<int, xFemNodeData>& nodal_forces) {
  if (!fem) return errLoadUndefined;
  const double f = action.getFactor(actSecond);
  if (const auto* force = dynamic_cast<const xConcenterdLoad*>(load)) {
    const auto place = element_at(*fem, force->getPosition());
    if (!place) return errLoadUndefined;
    const double c = dynamic_cast<const xDistribuitedLoad*>(load) ? spacing : 1.0;
    const double a = force->getPosition() - place->y_start;
    add(*place,
        ostrel::driver::fixed_end_force(c * f * force->force[0], c * f * force->force[1], a,
                                        place->element->getL()),
        nodal_forces);
    return ostrel::ok;
  }
  if (const auto* torque = dynamic_cast<const xTorqueLoad*>(load)) {
    const auto place = element_at(*fem, torque->getPosition());
    if (!place) return errLoadUndefined;
    const double c = dynamic_cast<const xDistribuitedTorque*>(load) ? spacing : 1.0;
    const double a = torque->getPosition() - place->y_start;
    add(*place,
        ostrel::driver::fixed_end_moment(c * f * torque->getValue(), a, place->element->getL()),
        nodal_forces);
    return ostrel::ok;
  }
  return errLoadUndefined;
}
