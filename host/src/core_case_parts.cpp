// SPDX-License-Identifier: Apache-2.0
#include "core_case_parts.h"

#include "json_text.h"

#include <ostrel/reinforcement_settings.h>
#include <sorrel/cross_section.h>

#include <charconv>
#include <string>
#include <utility>
#include <vector>

namespace ostrel::host {

namespace {

osg::ref_ptr<xCrossSecProp> read_section(const ValueReader& value) {
  ObjectReader fields = value.object();
  const auto type = fields.required("type");
  if (!type) return nullptr;
  osg::ref_ptr<xCrossSecProp> section;
  if (type->choice({"circ", "rect"}) == 0) {
    auto* circle = new xCircSecProp;
    section = circle;
    circle->setRadius(fields.number("radius"));
  } else {
    auto* rectangle = new xRectSecProp;
    section = rectangle;
    rectangle->setFirst(fields.number("first"));
    rectangle->setSecond(fields.number("second"));
  }
  section->computeProp();
  return section;
}

void read_bracket(const ValueReader& value, xBracketSettings& bracket) {
  ObjectReader fields = value.object();
  bracket.bar.setDiameter(fields.number("diam"));
  bracket.setMinStep(fields.number("min_step"));
  bracket.setMaxStep(fields.number("max_step"));
  bracket.setStepIncr(fields.number("step_incr"));
  bracket.setNArms(fields.integer("n_arms"));
}

void read_concrete(const ValueReader& value, xConcreteProps& concrete) {
  ObjectReader fields = value.object();
  concrete.setRck(fields.number("Rck"));
  concrete.setEc2(fields.number("Ec2"));
  concrete.setEcu(fields.number("Ecu"));
  concrete.setAlfaCC(fields.number("AlfaCC"));
  concrete.setGammaC(fields.number("GammaC"));
  concrete.setEta(fields.number("Eta"));
}

void read_steel(const ValueReader& value, xSteelProps& steel) {
  ObjectReader fields = value.object();
  steel.setFyk(fields.number("Fyk"));
  steel.setEs(fields.number("Es"));
  steel.setEuk(fields.number("Euk"));
  steel.setK(fields.number("K"));
  steel.setGammaS(fields.number("GammaS"));
}

void read_cap_beam(const ValueReader& value, xReinforcement_SettingsTrave& beam) {
  ObjectReader fields = value.object();
  beam.Cover = fields.number("cover");
  beam.Step = fields.integer("step");
  beam.BarDiam = fields.integer("bar_diam");
  beam.minRatio = fields.number("min_ratio");
  beam.maxRatio = fields.number("max_ratio");
  if (const auto bracket = fields.required("bracket")) read_bracket(*bracket, beam.bracket);
}

osg::ref_ptr<xReinforcement_Settings> read_shape(ObjectReader& fields, std::size_t kind) {
  if (kind == 0) {
    osg::ref_ptr<xCircularReinfSettings> circle = new xCircularReinfSettings;
    circle->setMinRatio(fields.number("min_ratio"));
    circle->setMaxRatio(fields.number("max_ratio"));
    return circle;
  }
  osg::ref_ptr<xRectReinfSettings> rectangle = new xRectReinfSettings;
  rectangle->minValle = fields.number("min_valle");
  rectangle->maxValle = fields.number("max_valle");
  rectangle->minMonte = fields.number("min_monte");
  rectangle->maxMonte = fields.number("max_monte");
  rectangle->ratio = fields.number("ratio");
  rectangle->useVertexBars = fields.flag("use_vertex_bars");
  return rectangle;
}

osg::ref_ptr<xReinforcement_Settings> read_reinforcement(const ValueReader& value) {
  ObjectReader fields = value.object();
  const auto kind = fields.required("kind");
  if (!kind) return nullptr;
  osg::ref_ptr<xReinforcement_Settings> settings =
      read_shape(fields, kind->choice({"circ", "rect"}));
  settings->setBarDiam(fields.number("bar_diam"));
  settings->setCover(fields.number("cover"));
  settings->setStep(static_cast<std::uint32_t>(
      fields.integer("step", 0, std::numeric_limits<std::int32_t>::max())));
  if (const auto part = fields.required("bracket")) read_bracket(*part, settings->bracket);
  if (const auto part = fields.required("concrete")) {
    read_concrete(*part, settings->material.concrete);
  }
  if (const auto part = fields.required("steel")) read_steel(*part, settings->material.steel);
  settings->material.setAlfaC(fields.number("alfa_c"));
  if (const auto part = fields.required("trave")) read_cap_beam(*part, settings->trave);
  return settings;
}

void read_pile_settings(const ValueReader& value, xBearCapacityPileSettings& pile) {
  ObjectReader fields = value.object();
  pile.setDiamMethod(static_cast<bearSecPile::evalDiamMethod>(fields.integer("diam_method")));
  pile.setTechnologyType(static_cast<xtechPiles>(fields.integer("technology")));
  pile.setApplyKishida(fields.flag("kishida"));
  pile.setEta(fields.number("eta"));
  pile.setCsi3(fields.number("csi3"));
  pile.setCsi4(fields.number("csi4"));
  pile.setValueType(fields.integer("value_type"));
}

void read_check_settings(const ValueReader& value, xCheckSettings& check) {
  ObjectReader fields = value.object();
  check.setHeadDispLim(fields.number("head_disp_lim"));
  check.setJtsDispLim(fields.number("jts_disp_lim"));
  if (const auto part = fields.required("reinforcement"); part && !part->is_null()) {
    check.reinforcementSettings = read_reinforcement(*part);
  }
  if (const auto part = fields.required("pile")) read_pile_settings(*part, check.pileSettings);
}

void read_material(const ValueReader& value, xSheetpilingMaterial& material) {
  ObjectReader fields = value.object();
  material.setElasticityModulus(fields.number("E"));
  material.setPoissonRatio(fields.number("nu"));
  material.computeShearModulus();
  material.setUnitWeight(fields.number("unit_weight"));
}

osg::ref_ptr<xSoilLoad> read_localized(ObjectReader& fields, xLocalizedLoad* load) {
  osg::ref_ptr<xSoilLoad> kept = load;
  load->setPosition(fields.number("position"));
  load->setValue(fields.number("value"));
  return kept;
}

osg::ref_ptr<xSoilLoad> read_soil_load(const ValueReader& value) {
  ObjectReader fields = value.object();
  const auto type = fields.required("class");
  if (!type) return nullptr;
  osg::ref_ptr<xSoilLoad> load;
  switch (type->choice({"xUniformLoad", "xNastriformLoad", "xLinearLoad", "xPuntiformLoad"})) {
    case 0: {
      osg::ref_ptr<xUniformLoad> uniform = new xUniformLoad;
      uniform->setValue(fields.number("value"));
      load = uniform;
      break;
    }
    case 1: {
      osg::ref_ptr<xNastriformLoad> strip = new xNastriformLoad;
      strip->setStartValue(fields.number("start_value"));
      strip->setEndValue(fields.number("end_value"));
      strip->setPosition(fields.number("position"));
      strip->setExtension(fields.number("extension"));
      load = strip;
      break;
    }
    case 2:
      load = read_localized(fields, new xLinearLoad);
      break;
    default:
      load = read_localized(fields, new xPuntiformLoad);
  }
  load->setObjectID(fields.integer("id"), fields.text("name"));
  return load;
}

osg::ref_ptr<xShpileLoad> read_force(ObjectReader& fields, xConcenterdLoad* load) {
  osg::ref_ptr<xShpileLoad> kept = load;
  load->setPosition(fields.number("position"));
  if (const auto force = fields.required("force")) {
    const std::vector<ValueReader> parts = force->items(2);
    if (parts.size() == 2) load->force = {parts[0].number(), parts[1].number()};
  }
  return kept;
}

osg::ref_ptr<xShpileLoad> read_torque(ObjectReader& fields, xTorqueLoad* load) {
  osg::ref_ptr<xShpileLoad> kept = load;
  load->setPosition(fields.number("position"));
  load->setValue(fields.number("value"));
  return kept;
}

osg::ref_ptr<xShpileLoad> read_wall_load(const ValueReader& value) {
  ObjectReader fields = value.object();
  const auto type = fields.required("class");
  if (!type) return nullptr;
  osg::ref_ptr<xShpileLoad> load;
  switch (type->choice(
      {"xConcenterdLoad", "xDistribuitedLoad", "xTorqueLoad", "xDistribuitedTorque"})) {
    case 0:
      load = read_force(fields, new xConcenterdLoad);
      break;
    case 1:
      load = read_force(fields, new xDistribuitedLoad);
      break;
    case 2:
      load = read_torque(fields, new xTorqueLoad);
      break;
    default:
      load = read_torque(fields, new xDistribuitedTorque);
  }
  load->setObjectID(fields.integer("id"), fields.text("name"));
  return load;
}

void read_checks(const ValueReader& value, xLoadComb& combination) {
  if (value.is_null()) {
    combination.checks.clear();
    return;
  }
  for (const ValueReader& check : value.items()) {
    combination.checks[static_cast<pCheckTypes>(check.integer())] = true;
  }
}

void read_geo_factors(ObjectReader& fields, xLoadComb& combination) {
  for (const ValueReader& factor : fields.items("geo_factors")) {
    const std::vector<ValueReader> pair = factor.items(2);
    if (pair.size() != 2) continue;
    combination.geoFactors.push_back({.first = pair[0].number(), .second = pair[1].number()});
  }
}

void read_uls_factors(ObjectReader& fields, const ReadingRules& rules, xLoadComb& combination) {
  const auto value = fields.required("uls_factors");
  if (!value) return;
  if (!value->json().is_object()) {
    value->refuse(std::string(fields.problems().texts()(Text::an_object)));
    return;
  }
  for (const auto& [name, factor] : value->json().items()) {
    const ValueReader entry(factor, child_path(value->path(), name), fields.problems(), rules);
    std::int32_t key = 0;
    const auto [end, error] = std::from_chars(name.data(), name.data() + name.size(), key);
    if (error != std::errc() || end != name.data() + name.size()) {
      entry.refuse(std::string(fields.problems().texts()(Text::a_number_as_name)));
      continue;
    }
    combination.ulsFactors[static_cast<checkUlsFactors>(key)] = entry.number();
  }
}

void read_actions(ObjectReader& fields, xLoadComb& combination) {
  for (const ValueReader& entry : fields.items("actions")) {
    ObjectReader action_fields = entry.object();
    xAction action;
    action.set(action_fields.text("name"), action_fields.flag("active"), action_fields.number("f0"),
               action_fields.number("f1"));
    combination.actions.push_back(action);
  }
}

}  // namespace

xSoilProps read_core_soil(const ValueReader& value) {
  ObjectReader fields = value.object();
  xSoilProps soil;
  soil.setName(fields.text("name"));
  soil.setElasticityModulus(fields.number("E"));
  soil.setShearModulus(fields.number("G"));
  soil.setPoissonRatio(fields.number("nu"));
  soil.setUnitWeight(fields.number("unit_weight"));
  soil.setSaturatedUnitWeight(fields.number("sat_unit_weight"));
  soil.set_InternalFriction(fields.number("phi"));
  soil.setInterfaceFriction(fields.number("delta"));
  soil.setCohesion(fields.number("cohesion"));
  soil.setAdhesion(fields.number("adhesion"));
  soil.setOCR(fields.number("OCR"));
  soil.setConstrModulus(fields.number("constr_modulus"));
  soil.setKPerm(fields.number("kperm"));
  soil.setIsDense(fields.flag("dense"));
  return soil;
}

osg::ref_ptr<xPile_Sheetpiling> read_core_wall(const ValueReader& value) {
  ObjectReader fields = value.object();
  osg::ref_ptr<xPile_Sheetpiling> wall = new xPile_Sheetpiling;
  wall->setIdObj(fields.integer("id"));
  wall->setLength(fields.number("length"));
  wall->setDepth(fields.number("depth"));
  wall->setExtension(fields.number("extension"));
  wall->set_NumPiles(fields.integer("num_piles"));
  wall->setSpacing(fields.number("spacing"));
  wall->setHtrave(fields.number("htrave"));
  wall->setBtrave(fields.number("btrave"));
  if (const auto section = fields.required("section")) wall->section = read_section(*section);
  if (const auto material = fields.required("material")) read_material(*material, wall->material);
  if (const auto check = fields.required("check")) read_check_settings(*check, wall->checkSettings);
  return wall;
}

xLoadCond read_core_condition(const ValueReader& value) {
  ObjectReader fields = value.object();
  xLoadCond condition;
  condition.setObjectID(fields.integer("id"), fields.text("name"));
  for (const ValueReader& load : fields.items("soil_loads")) {
    condition.soilLoads.push_back(read_soil_load(load));
  }
  for (const ValueReader& load : fields.items("wall_loads")) {
    condition.shpileLoads.push_back(read_wall_load(load));
  }
  return condition;
}

xLoadComb read_core_combination(const ValueReader& value) {
  ObjectReader fields = value.object();
  xLoadComb combination;
  combination.setCombName(fields.text("name"));
  combination.setcombIndex(fields.integer("index"));
  combination.setCombType(static_cast<pCombinationTypes>(fields.integer("type")));
  combination.setSeismFact(fields.number("seism_fact"));
  combination.seismic.coefficients = {fields.number("kh"), fields.number("kv")};
  combination.seismic.setSt(fields.number("st"));
  if (const auto checks = fields.required("checks")) read_checks(*checks, combination);
  read_geo_factors(fields, combination);
  read_uls_factors(fields, value.rules(), combination);
  read_actions(fields, combination);
  return combination;
}

}  // namespace ostrel::host
