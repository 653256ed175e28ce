// SPDX-License-Identifier: Apache-2.0
#include "project_conversion.h"

#include "seismic_coefficients.h"
#include "units.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <numbers>
#include <utility>

namespace ostrel::host {

namespace {

using Vertex = arma::Col<double>::fixed<2>;
using Polygon = std::vector<Vertex>;

constexpr int first_anchor_id = 101;

xSoilProps to_soil(const SoilInput& input) {
  const double nu = input.poisson_ratio;
  const double elastic_constrained = input.E_MPa * (1.0 - nu) / ((1.0 + nu) * (1.0 - 2.0 * nu));
  xSoilProps soil;
  soil.setName(input.name);
  soil.setElasticityModulus(n_mm2_of_mpa(input.E_MPa));
  soil.setPoissonRatio(nu);
  soil.computeShearModulus();
  soil.setUnitWeight(n_mm3_of_kn_m3(input.unit_weight_kN_m3));
  soil.setSaturatedUnitWeight(n_mm3_of_kn_m3(input.saturated_unit_weight_kN_m3));
  soil.set_InternalFriction(rad_of_deg(input.friction_angle_deg));
  soil.setInterfaceFriction(rad_of_deg(input.wall_friction_angle_deg));
  soil.setCohesion(n_mm2_of_kpa(input.cohesion_kPa));
  soil.setAdhesion(n_mm2_of_kpa(input.adhesion_kPa));
  soil.setOCR(input.overconsolidation_ratio);
  soil.setConstrModulus(n_mm2_of_mpa(input.constrained_modulus_MPa.value_or(elastic_constrained)));
  soil.setKPerm(mm_s_of_m_s(input.permeability_m_s));
  soil.setIsDense(input.dense);
  return soil;
}

Polygon closed(Polygon polygon) {
  if (!polygon.empty()
      && !xPoint2d::samePoint({polygon.front()(0), polygon.front()(1)},
                              {polygon.back()(0), polygon.back()(1)}, 1e-9)) {
    polygon.push_back(polygon.front());
  }
  return polygon;
}

Polygon to_polygon(const PolygonInput& vertices) {
  Polygon polygon;
  for (const auto& [x, y] : vertices) {
    polygon.push_back({level_mm_of_m(x), level_mm_of_m(y)});
  }
  return closed(std::move(polygon));
}

// A layer between two levels, right of the wall and, below the excavation, left of it as well.
Polygon polygon_between(double top, double bottom, double excavation, double left, double right) {
  if (bottom >= excavation) {
    return closed({{0.0, bottom}, {right, bottom}, {right, top}, {0.0, top}});
  }
  if (top <= excavation) {
    return closed({{left, bottom}, {right, bottom}, {right, top}, {left, top}});
  }
  return closed({{left, bottom},
                 {right, bottom},
                 {right, top},
                 {0.0, top},
                 {0.0, excavation},
                 {left, excavation}});
}

xAnchor to_anchor(const AnchorInput& input, int id) {
  xAnchor anchor;
  anchor.setIdObj(id);
  anchor.z = -level_mm_of_m(input.level_m);
  anchor.modeFlag = true;  // it holds a wall that moves towards the excavation
  anchor.material.setElasticityModulus(n_mm2_of_gpa(input.E_GPa));
  anchor.setcableDiam(std::sqrt(4.0 * input.tendon_area_mm2 / std::numbers::pi));
  anchor.setbulbDiam(input.bond_diameter_mm);
  anchor.setAlphaD(input.bond_enlargement);
  anchor.setAngleRad(rad_of_deg(input.inclination_deg));
  anchor.setFreeLength(mm_of_m(input.free_length_m));
  anchor.setBulbLength(mm_of_m(input.bond_length_m));
  anchor.setNumber(input.count);
  anchor.setPreStress(n_of_kn(input.prestress_kN));
  xAnchorSettings& settings = anchor.settings;
  settings.setuse_soil(!input.bond_adhesion_kPa.has_value());
  settings.setadesione(n_mm2_of_kpa(input.bond_adhesion_kPa.value_or(0.0)));
  settings.setattrito(rad_of_deg(input.bond_friction_angle_deg.value_or(0.0)));
  settings.setFyk(n_mm2_of_mpa(input.yield_strength_MPa));
  settings.setGammaS(input.steel_factor);
  settings.setCsi3(input.xi_3);
  settings.setCsi4(input.xi_4);
  settings.set_ValueType(input.minimum_values ? csiMinimumValues : csiMeanValues);
  settings.setSoilCoeffType(static_cast<int>(input.pressure_coefficient));
  return anchor;
}

void activate(xNodeConstraint& part, const std::optional<double>& value, double factor) {
  part.setActive(value.has_value());
  part.setValue(value.value_or(0.0) * factor);
}

// The library counts a displacement across the wall positive towards the retained side, and an
// imposed one along it positive upwards.
xConstraint to_fixed_support(const SupportInput& input) {
  xConstraint support;
  support.setPosition(-level_mm_of_m(input.level_m));
  activate(support.horizontal, input.horizontal, -1.0);
  activate(support.axial, input.vertical, -1.0);
  activate(support.rotation, input.rotation, rad_of_mrad(1.0));
  return support;
}

xConstraint to_elastic_support(const SupportInput& input) {
  xConstraint support;
  support.setPosition(-level_mm_of_m(input.level_m));
  activate(support.horizontal, input.horizontal, n_mm_of_kn_m(1.0));
  activate(support.axial, input.vertical, n_mm_of_kn_m(1.0));
  activate(support.rotation, input.rotation, nmm_of_knm(1.0));
  return support;
}

void convert_slope(const SlopeInput& input, xSlopeStabilitySettings& slope) {
  slope.setFormulation(input.formulation);
  slope.setWidthstripe(mm_of_m(input.stripe_width_m));
  slope.setStepradius(mm_of_m(input.radius_step_m));
  for (const SlopeCentreInput& centre : input.centres) {
    xGridPoint point;
    point.center = {level_mm_of_m(centre.x_m), level_mm_of_m(centre.y_m)};
    point.setMinRadius(mm_of_m(centre.least_radius_m));
    point.setMaxRadius(mm_of_m(centre.largest_radius_m));
    slope.grid.points.push_back(point);
  }
}

void convert_calculation(const Project& project, Job& job) {
  const CalculationInput& input = project.calculation;
  xCalcSettings& settings = job.data.calcSettings;
  settings.setCalcName(project.name);
  settings.setEpFormuls(false, input.earth_pressure);
  settings.setEpFormuls(true, input.seismic_earth_pressure);
  settings.setStepMolle(input.node_spacing_mm);
  settings.setDispLim(input.spring_limit_mm);
  if (project.slope) convert_slope(*project.slope, settings.slope);
  job.fem.linear = input.linear;
  job.fem.tolerance = input.tolerance_mm;
  job.fem.maxIterations = input.max_iterations;
}

void convert_ground(const Project& project, xSheetpilingData& data) {
  for (const SpringIntervalInput& interval : project.spring_intervals) {
    data.springIntervals.emplace_back(interval.start, interval.end, interval.limit,
                                      interval.stiffness_factor);
  }
  data.soilLayers = to_soil_layers(project);
  data.boundLayer.soil = data.soilLayers.back().soil;
  data.waterTable.setIsDefined(project.water.has_value());
  if (project.water) {
    data.waterTable.setLivelloMonte(level_mm_of_m(project.water->retained_level_m));
    data.waterTable.setLivelloValle(level_mm_of_m(project.water->excavated_level_m));
  }
}

void convert_loads(const Project& project, xSheetpilingData& data) {
  std::int32_t id = 0;
  for (const LoadInput& load : project.loads) {
    for (xLoadCond& condition : to_conditions(load)) {
      condition.id = ++id;
      data.loadConds.push_back(std::move(condition));
    }
  }
  int index = 0;
  for (const CombinationInput& combination : project.combinations) {
    data.loadCombs.push_back(to_combination(combination, project.loads, ++index));
    if (combination.of_site && project.seismic) {
      data.loadCombs.back().seismic = seismic_action(*project.seismic);
    }
  }
}

}  // namespace

std::vector<xBoundSoilLayer> to_soil_layers(const Project& project) {
  const GroundInput& ground = project.ground;
  const double excavation = -level_mm_of_m(project.excavation_depth_m);
  std::vector<xBoundSoilLayer> layers;
  for (std::size_t i = 0; i < ground.layers.size(); ++i) {
    const LayerInput& input = ground.layers[i];
    xBoundSoilLayer layer;
    if (input.soil < project.soils.size()) layer.soil = to_soil(project.soils[input.soil]);
    if (ground.by_levels) {
      const double bottom_m =
          i + 1 < ground.layers.size() ? ground.layers[i + 1].top_level_m : ground.bottom_level_m;
      layer.polygons.push_back(polygon_between(
          level_mm_of_m(input.top_level_m), level_mm_of_m(bottom_m), excavation,
          -level_mm_of_m(ground.excavated_width_m), level_mm_of_m(ground.retained_width_m)));
    }
    for (const PolygonInput& polygon : input.polygons_m) {
      layer.polygons.push_back(to_polygon(polygon));
    }
    layer.setAngle(rad_of_deg(input.surface_slope_deg));
    layers.push_back(std::move(layer));
  }
  return layers;
}

Job to_job(const Project& project) {
  Job job;
  job.name = project.name;
  job.data.props = to_wall(project);
  convert_ground(project, job.data);
  convert_loads(project, job.data);
  for (const SupportInput& support : project.fixed_supports) {
    job.data.restriction.imposed.push_back(to_fixed_support(support));
  }
  for (const SupportInput& support : project.elastic_supports) {
    job.data.restriction.springs.push_back(to_elastic_support(support));
  }
  int id = first_anchor_id;
  for (const AnchorInput& anchor : project.anchors) {
    job.data.anchors.push_back(to_anchor(anchor, id++));
  }
  convert_calculation(project, job);
  return job;
}

}  // namespace ostrel::host
