// SPDX-License-Identifier: Apache-2.0
#include "core_result.h"

#include "core_ultimate.h"

#include <string>

namespace ostrel::host {

namespace {

using Json = nlohmann::ordered_json;

Json points_of(const xDiagram& diagram) {
  Json points = Json::array();
  for (const diag_Point& point : diagram.points) {
    points.push_back({point.s, point.value});
  }
  return points;
}

Json pressures_of(const std::vector<xLayerPress>& diagrams) {
  Json list = Json::array();
  for (const xLayerPress& diagram : diagrams) {
    Json points = Json::array();
    for (const diag_Point& point : diagram.points) {
      points.push_back({point.s, point.value});
    }
    list.push_back({{"start_y", diagram.start.y},
                    {"end_y", diagram.end.y},
                    {"points", std::move(points)},
                    {"rx", diagram.Rx},
                    {"ry", diagram.Ry},
                    {"pos", diagram.pos}});
  }
  return list;
}

Json load_pressures_of(const std::vector<xLoadCondPress>& conditions) {
  Json list = Json::array();
  for (const xLoadCondPress& condition : conditions) {
    Json loads = Json::array();
    for (const xLoadPress& load : condition.loads) {
      loads.push_back(pressures_of(load.diagrams));
    }
    list.push_back({{"name", condition.name}, {"loads", std::move(loads)}});
  }
  return list;
}

Json springs_of(const xSubgradeReactionModulus& modulus) {
  Json list = Json::object();
  for (const auto& [node, spring] : modulus.springs) {
    list[std::to_string(node)] = {{"type", static_cast<int>(spring.type)},
                                  {"position", spring.position},
                                  {"ultimate", spring.ultimate_limit},
                                  {"passive", spring.passive_limit},
                                  {"modulus", spring.modulus}};
  }
  return list;
}

Json displacements_of(const xFemResults& results) {
  Json list = Json::array();
  for (std::size_t i = 0; i < results.dispAxial.points.size(); ++i) {
    list.push_back({results.dispAxial.points[i].value, results.dispTrans.points[i].value,
                    results.rotation.points[i].value});
  }
  return list;
}

Json nodal_forces_of(const xFemResults& results) {
  Json list = Json::object();
  for (const auto& [node, force] : results.nodalForces) {
    list[std::to_string(node)] = {force.x, force.y, force.r};
  }
  return list;
}

Json soil_forces_of(const xFemResults& results) {
  Json list = Json::object();
  for (const auto& [node, force] : results.soilForces) {
    list[std::to_string(node)] = {force.elevation, force.springForce, force.limitForce,
                                  force.limitMoment};
  }
  return list;
}

Json applied_of(const xFemResults& results) {
  Json list = Json::array();
  for (const xFemNodeData_pos& entry : results.appliedForces) {
    list.push_back({entry.pos, entry.data.x, entry.data.y, entry.data.r});
  }
  return list;
}

Json anchor_forces_of(const xFemResults& results) {
  Json list = Json::array();
  for (const AnchorSoll& anchor : results.anchorSoll) {
    const auto& points = anchor.axial.points;
    list.push_back(points.empty() ? Json() : Json(points.front().value));
  }
  return list;
}

Json condition_names_of(const xCombResults& combination) {
  Json list = Json::array();
  for (const xFemLoadCond& condition : combination.femLoadConds) {
    list.push_back(condition.getCondName());
  }
  return list;
}

Json combination_of(const xCombResults& combination) {
  const xFemResults& results = combination.femResults;
  return {{"name", combination.getCombName()},
          {"index", combination.getcombIndex()},
          {"springs", springs_of(combination.subgradeModulus)},
          {"earth", pressures_of(combination.earthPress.diagrams)},
          {"hydro", pressures_of(combination.hydroPress.diagrams)},
          {"load_press", load_pressures_of(combination.loadCondPress)},
          {"cond_names", condition_names_of(combination)},
          {"disp", displacements_of(results)},
          {"soil_reaction", points_of(results.soilReaction)},
          {"axial", points_of(results.axial)},
          {"shear", points_of(results.shear)},
          {"moment", points_of(results.moment)},
          {"nodal_forces", nodal_forces_of(results)},
          {"soil_forces", soil_forces_of(results)},
          {"applied", applied_of(results)},
          {"anchor_forces", anchor_forces_of(results)}};
}

Json messages_of(const std::vector<xVeldError>& messages) {
  Json list = Json::array();
  for (const xVeldError& message : messages) {
    list.push_back({{"code", static_cast<int>(message.getID())},
                    {"id_obj", message.getIdObj()},
                    {"message", message.GetErrorStr()}});
  }
  return list;
}

Json layers_of(const xSheetpilingModel& model) {
  Json list = Json::array();
  for (const xSoilLayer& layer : model.layers) {
    list.push_back({{"depth", layer.getDepth()},
                    {"thickness", layer.getThickness()},
                    {"under_water", layer.getUnderWater()},
                    {"angle", layer.getAngle()},
                    {"soil_name", layer.soil.getName()},
                    {"levels", layer.levels}});
  }
  return list;
}

Json mesh_of(const xSheetpilingModel& model) {
  Json nodes = Json::array();
  for (const xPoint2d& node : model.fem.nodes) {
    nodes.push_back(node.y);
  }
  Json lengths = Json::array();
  for (const xElemData& element : model.fem.elements) {
    lengths.push_back(element.getL());
  }
  Json anchor_nodes = Json::array();
  for (const info_Fem_anchor& anchor : model.anchors) {
    anchor_nodes.push_back(anchor.node);
  }
  return {{"nodes", std::move(nodes)},
          {"element_L", std::move(lengths)},
          {"jtsoil", model.fem.getJtsoil()},
          {"dembin", model.fem.getDembin()},
          {"anchor_nodes", std::move(anchor_nodes)}};
}

Json displacement_checks_of(const xServiceabilityLimitStates& serviceability) {
  Json list = Json::array();
  for (const xServiceLimitDispCombRes& result : serviceability.displacements.results) {
    list.push_back({{"name", result.getCombName()},
                    {"index", result.getCombIndex()},
                    {"head_pos", result.getHeadPos()},
                    {"head_disp", result.getHeaddisp()},
                    {"jts_pos", result.getJtsPos()},
                    {"jts_disp", result.getJtsdisp()},
                    {"head_lim", result.getHeadLim()},
                    {"jts_lim", result.getJtsLim()}});
  }
  return list;
}

double least_factor_of(xServiceabilityLimitStates serviceability) {
  return serviceability.getSfMin(nullptr);
}

}  // namespace

Json core_result(const Outcome& outcome) {
  Json combinations = Json::array();
  for (const xCombResults& combination : outcome.results.combResults) {
    combinations.push_back(combination_of(combination));
  }
  const bool through = outcome.verdict != veldError;
  return {{"return", static_cast<int>(outcome.verdict)},
          {"errors", messages_of(outcome.messages)},
          {"layers", layers_of(outcome.model)},
          {"mesh", mesh_of(outcome.model)},
          {"combinations", std::move(combinations)},
          {"uls", outcome.verified ? core_ultimate(outcome.ultimate) : Json()},
          {"sls", through ? displacement_checks_of(outcome.serviceability) : Json()},
          {"sls_sf_min", through ? Json(least_factor_of(outcome.serviceability)) : Json()}};
}

}  // namespace ostrel::host
