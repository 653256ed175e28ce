// SPDX-License-Identifier: Apache-2.0
#include "core_case.h"

#include "core_case_parts.h"
#include "json_text.h"

#include <string>
#include <utility>
#include <vector>

namespace ostrel::host {

namespace {

template <class Enumeration>
Enumeration number_of(ObjectReader& fields, const char* name) {
  return static_cast<Enumeration>(fields.integer(name));
}

void read_spring_interval(const ValueReader& value, xSheetpilingData& data) {
  ObjectReader fields = value.object();
  xSpringInterval interval;
  interval.type = number_of<xSpringInterval::QlimSpring>(fields, "type");
  interval.start = fields.number("start");
  interval.end = fields.number("end");
  interval.factor = fields.number("factor");
  data.springIntervals.push_back(interval);
}

xBoundSoilLayer read_layer(const ValueReader& value) {
  ObjectReader fields = value.object();
  xBoundSoilLayer layer;
  layer.setAngle(fields.number("angle"));
  for (const ValueReader& polygon : fields.items("polygons")) {
    std::vector<arma::Col<double>::fixed<2>> vertices;
    for (const ValueReader& vertex : polygon.items()) {
      const std::vector<ValueReader> xy = vertex.items(2);
      if (xy.size() == 2) vertices.push_back({xy[0].number(), xy[1].number()});
    }
    layer.polygons.push_back(std::move(vertices));
  }
  if (const auto soil = fields.required("soil")) layer.soil = read_core_soil(*soil);
  return layer;
}

void read_water(const ValueReader& value, xWaterTable& water) {
  ObjectReader fields = value.object();
  water.setIsDefined(fields.flag("defined"));
  water.setLivelloMonte(fields.number("monte"));
  water.setLivelloValle(fields.number("valle"));
}

void read_node_constraint(ObjectReader& fields, const char* name, xNodeConstraint& part) {
  const auto value = fields.required(name);
  if (!value || value->is_null()) return;
  part.setActive(true);
  part.setValue(value->number());
}

xConstraint read_constraint(const ValueReader& value) {
  ObjectReader fields = value.object();
  xConstraint constraint;
  constraint.setPosition(fields.number("position"));
  read_node_constraint(fields, "axial", constraint.axial);
  read_node_constraint(fields, "horizontal", constraint.horizontal);
  read_node_constraint(fields, "rotation", constraint.rotation);
  return constraint;
}

xAnchor read_anchor(const ValueReader& value) {
  ObjectReader fields = value.object();
  xAnchor anchor;
  anchor.setIdObj(fields.integer("id"));
  anchor.z = fields.number("z");
  anchor.modeFlag = fields.flag("mode_flag");
  anchor.material.setElasticityModulus(fields.number("E"));
  anchor.setcableDiam(fields.number("cable_diam"));
  anchor.setbulbDiam(fields.number("bulb_diam"));
  anchor.setAlphaD(fields.number("alpha_d"));
  anchor.setAngleRad(fields.number("angle"));
  anchor.setFreeLength(fields.number("free_length"));
  anchor.setBulbLength(fields.number("bulb_length"));
  anchor.setNumber(fields.integer("number"));
  anchor.setPreStress(fields.number("prestress"));
  anchor.settings.setuse_soil(fields.flag("use_soil"));
  anchor.settings.setadesione(fields.number("adesione"));
  anchor.settings.setattrito(fields.number("attrito"));
  anchor.settings.setFyk(fields.number("fyk"));
  anchor.settings.setGammaS(fields.number("gamma_s"));
  anchor.settings.setCsi3(fields.number("csi3"));
  anchor.settings.setCsi4(fields.number("csi4"));
  anchor.settings.set_ValueType(number_of<AnchorCsiData>(fields, "value_type"));
  anchor.settings.setSoilCoeffType(fields.integer("soil_coeff_type"));
  return anchor;
}

void read_slope(const ValueReader& value, xSlopeStabilitySettings& slope) {
  ObjectReader fields = value.object();
  slope.setFormulation(fields.integer("formulation"));
  slope.setWidthstripe(fields.number("width_stripe"));
  slope.setStepradius(fields.number("step_radius"));
  for (const ValueReader& entry : fields.items("grid")) {
    ObjectReader centre = entry.object();
    xGridPoint point;
    point.center = {centre.number("x"), centre.number("y")};
    point.setMinRadius(centre.number("rmin"));
    point.setMaxRadius(centre.number("rmax"));
    slope.grid.points.push_back(point);
  }
}

void read_settings(const ValueReader& value, xCalcSettings& settings) {
  ObjectReader fields = value.object();
  settings.setEpFormuls(false, number_of<formulType>(fields, "ep_formula"));
  settings.setEpFormuls(true, number_of<formulType>(fields, "ep_formula_seismic"));
  settings.setStepMolle(fields.number("step_molle"));
  settings.setDispLim(fields.number("disp_lim"));
  if (const auto slope = fields.required("slope")) read_slope(*slope, settings.slope);
}

void read_solver_options(const ValueReader& value, xFemSolverOptions& options) {
  ObjectReader fields = value.object();
  options.linear = fields.flag("linear");
  options.tolerance = fields.number("tolerance");
  options.maxIterations = fields.integer("max_iterations");
}

void read_ground(ObjectReader& fields, xSheetpilingData& data) {
  for (const ValueReader& interval : fields.items("spring_intervals")) {
    read_spring_interval(interval, data);
  }
  for (const ValueReader& layer : fields.items("soil_layers")) {
    data.soilLayers.push_back(read_layer(layer));
  }
  if (const auto layer = fields.required("bound_layer")) data.boundLayer = read_layer(*layer);
  if (const auto water = fields.required("water")) read_water(*water, data.waterTable);
}

Job read_job(ObjectReader& fields) {
  Job job;
  job.name = fields.text("name");
  job.data.calcSettings.setCalcName(job.name);
  if (const auto wall = fields.required("wall"); wall && !wall->is_null()) {
    job.data.props = read_core_wall(*wall);
  }
  read_ground(fields, job.data);
  for (const ValueReader& condition : fields.items("load_conds")) {
    job.data.loadConds.push_back(read_core_condition(condition));
  }
  for (const ValueReader& combination : fields.items("load_combs")) {
    job.data.loadCombs.push_back(read_core_combination(combination));
  }
  for (const ValueReader& constraint : fields.items("imposed")) {
    job.data.restriction.imposed.push_back(read_constraint(constraint));
  }
  for (const ValueReader& constraint : fields.items("springs")) {
    job.data.restriction.springs.push_back(read_constraint(constraint));
  }
  for (const ValueReader& anchor : fields.items("anchors")) {
    job.data.anchors.push_back(read_anchor(anchor));
  }
  if (const auto calc = fields.required("calc")) read_settings(*calc, job.data.calcSettings);
  if (const auto fem = fields.required("fem")) read_solver_options(*fem, job.fem);
  return job;
}

}  // namespace

std::optional<Job> read_core_case(std::string_view text, Problems& problems) {
  const auto json = parse_json(quote_words_for_numbers(text), problems);
  if (!json) return std::nullopt;
  const ReadingRules rules{.any_number = true, .tolerate_unknown = true};
  Job job;
  {
    ObjectReader fields = ValueReader(*json, "", problems, rules).object();
    job = read_job(fields);
  }
  if (!problems.empty()) return std::nullopt;
  return job;
}

}  // namespace ostrel::host
