// SPDX-License-Identifier: Apache-2.0
#include "ostrel/fem_results.h"

#include "services/class_frame.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <optional>

namespace {

// The depth of a node that the beam has.
std::optional<double> depth_of(const xFemData& fem, int node) {
  if (!(node >= 0 && static_cast<std::size_t>(node) < fem.nodes.size())) return std::nullopt;
  return fem.nodes[static_cast<std::size_t>(node)].y;
}

// Lets the axis of `diagram` run down the wall between its first and its last point.
void run_down_the_wall(xDiagram& diagram) {
  diagram.start.set(0.0, -diagram.points.front().s);
  diagram.end.set(0.0, -diagram.points.back().s);
}

void set_values(xDiagram& diagram, std::size_t point, double value) {
  if (point < diagram.points.size()) diagram.points[point].value = value;
}

// One point for each node; the reaction of the soil only from the excavation level down.
void lay_out_nodes(xFemResults& results, const xFemData& fem) {
  const int first_spring = fem.getJtsoil();
  const double excavation = depth_of(fem, first_spring).value_or(0.0);
  for (std::size_t i = 0; i < fem.nodes.size(); ++i) {
    const double y = fem.nodes[i].y;
    results.dispAxial.points.emplace_back(y, 0.0);
    results.dispTrans.points.emplace_back(y, 0.0);
    results.rotation.points.emplace_back(y, 0.0);
    if (static_cast<int>(i) >= first_spring) {
      results.soilReaction.points.emplace_back(y - excavation, 0.0);
    }
  }
  run_down_the_wall(results.dispAxial);
  run_down_the_wall(results.dispTrans);
  run_down_the_wall(results.rotation);
}

// Two points for each element.
OstrelErrorType lay_out_elements(xFemResults& results, const xFemData& fem) {
  for (const xElemData& element : fem.elements) {
    for (const int node : {element.getStartNode(), element.getEndNode()}) {
      const auto y = depth_of(fem, node);
      if (!y) return errFemNodeNotFound;
      results.axial.points.emplace_back(*y, 0.0);
      results.shear.points.emplace_back(*y, 0.0);
      results.moment.points.emplace_back(*y, 0.0);
    }
  }
  return ostrel::ok;
}

void set_axes(xFemResults& results, const xFemData& fem) {
  const auto first_spring = static_cast<std::size_t>(fem.getJtsoil());
  if (fem.getJtsoil() >= 0 && first_spring < fem.nodes.size()) {
    results.soilReaction.start = -fem.nodes[first_spring];
  }
  results.soilReaction.end = -fem.nodes.back();
  run_down_the_wall(results.axial);
  run_down_the_wall(results.shear);
  run_down_the_wall(results.moment);
}

void fill_nodes(xFemResults& results, const xFemData& fem, const xCombRes& raw) {
  for (std::size_t i = 0; i < raw.displacements.size(); ++i) {
    set_values(results.dispAxial, i, raw.displacements[i].x);
    set_values(results.dispTrans, i, raw.displacements[i].y);
    set_values(results.rotation, i, raw.displacements[i].r);
  }
  for (std::size_t j = 0; j < results.soilReaction.points.size(); ++j) {
    const auto reaction = raw.soilReactions.find(fem.getJtsoil() + static_cast<int>(j));
    if (reaction != raw.soilReactions.end()) {
      results.soilReaction.points[j].value = reaction->second.reaction;
    }
  }
}

void fill_elements(xFemResults& results, const xCombRes& raw) {
  std::size_t k = 0;
  for (const xBeamStress& stress : raw.beamStress) {
    for (const xPointStress& point : stress.points) {
      set_values(results.axial, k, point.N);
      set_values(results.shear, k, point.T);
      set_values(results.moment, k, point.M);
      ++k;
    }
  }
}

OstrelErrorType fill_applied_forces(xFemResults& results, const xFemData& fem,
                                    const xCombRes& raw) {
  results.appliedForces.clear();
  for (const auto& [node, force] : raw.appliedForces) {
    const auto y = depth_of(fem, node);
    if (!y) return errFemNodeNotFound;
    xFemNodeData_pos& applied = results.appliedForces.emplace_back();
    applied.pos = *y;
    applied.data = force;
  }
  std::stable_sort(results.appliedForces.begin(), results.appliedForces.end());
  return ostrel::ok;
}

}  // namespace

OstrelErrorType xFemResults::getData(const xSheetpilingData& data,
                                     const std::vector<info_Fem_anchor>& anchors, xFemData& fem,
                                     xCombRes& raw) {
  reset();
  if (fem.nodes.empty()) return errNoFemNodes;
  lay_out_nodes(*this, fem);
  if (fem.elements.empty()) return errNoFemElements;
  if (const auto code = lay_out_elements(*this, fem); code != ostrel::ok) return code;
  set_axes(*this, fem);

  fill_nodes(*this, fem, raw);
  fill_elements(*this, raw);
  nodalForces = raw.nodalForces;
  soilForces = raw.soilForces;
  if (const auto code = fill_applied_forces(*this, fem, raw); code != ostrel::ok) return code;

  anchorSoll.resize(anchors.size());
  for (std::size_t i = 0; i < anchors.size(); ++i) {
    getAnchorDiag(data, anchorSoll[i], anchors[i]);
  }
  return ostrel::ok;
}

void xFemResults::getAnchorDiag(const xSheetpilingData& data, AnchorSoll& out,
                                const info_Fem_anchor& link) const {
  out.reset();
  if (!(link.id >= 0 && static_cast<std::size_t>(link.id) < data.anchors.size())) return;
  const xAnchor& anchor = data.anchors[static_cast<std::size_t>(link.id)];
  out.idObj = anchor.getIdObj();

  double along = 0.0;
  double across = 0.0;
  double turn = 0.0;
  std::ignore = getDispNode(link.node, along, across, turn);  // without a node both stay 0
  const double force = link.get_Force(along, across) + anchor.getPreStress();

  const double free_length = anchor.getFreeLength();
  const double angle = anchor.getAngleRad();
  for (xDiagram* diagram : {&out.axial, &out.shear, &out.moment}) {
    diagram->start.set(0.0, link.level);
    diagram->end.set(free_length * std::cos(angle), link.level - free_length * std::sin(angle));
  }
  out.axial.points = {{0.0, force}, {free_length, force}};
}

bool xFemResults::getDispNode(int node, double& axial_disp, double& trans_disp, double& rot) const {
  axial_disp = 0.0;
  trans_disp = 0.0;
  rot = 0.0;
  const auto i = static_cast<std::size_t>(node);
  if (!(node >= 0 && i < dispAxial.points.size())) return false;
  const auto value_at = [i](const xDiagram& diagram) {
    return i < diagram.points.size() ? diagram.points[i].value : 0.0;
  };
  axial_disp = value_at(dispAxial);
  trans_disp = value_at(dispTrans);
  rot = value_at(rotation);
  return true;
}

void xFemResults::reset() {
  *this = xFemResults{};
}

std::string xFemResults::getIOClass() const {
  return "xFemResults";
}
void xFemResults::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xFemResults::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 6.
void xFemResults::Read(instream& in, int version) {
  ostrel::refuse_older_than(6, version);
  ostrel::read_fields(in, dispAxial, dispTrans, rotation, soilReaction, axial, shear, moment,
                      nodalForces, soilForces, appliedForces, anchorSoll);
}
void xFemResults::Write(outstream& out) const {
  ostrel::write_fields(out, dispAxial, dispTrans, rotation, soilReaction, axial, shear, moment,
                       nodalForces, soilForces, appliedForces, anchorSoll);
}
