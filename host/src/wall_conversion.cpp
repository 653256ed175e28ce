// SPDX-License-Identifier: Apache-2.0
// Wall and reinforcement, from the project to the library.
#include "project_conversion.h"
#include "units.h"

#include <sorrel/cross_section.h>

#include <cstdint>

namespace ostrel::host {

namespace {

constexpr int wall_id = 1;

osg::ref_ptr<xCrossSecProp> to_section(const WallInput& wall) {
  osg::ref_ptr<xCrossSecProp> section;
  if (wall.is_diaphragm) {
    auto* panel = new xRectSecProp;
    section = panel;
    panel->setFirst(wall.thickness_mm);
    panel->setSecond(mm_of_m(wall.spacing_m));
  } else {
    auto* pile = new xCircSecProp;
    section = pile;
    pile->setRadius(wall.diameter_mm / 2.0);
  }
  section->computeProp();
  return section;
}

void convert_stirrups(const StirrupsInput& input, xBracketSettings& bracket) {
  bracket.bar.setDiameter(input.diameter_mm);
  bracket.setMinStep(input.least_spacing_mm);
  bracket.setMaxStep(input.largest_spacing_mm);
  bracket.setStepIncr(input.spacing_step_mm);
  bracket.setNArms(input.legs);
}

void convert_materials(const ReinforcementInput& input, xMaterialProps& material) {
  material.concrete.setRck(n_mm2_of_mpa(input.concrete.cube_strength_MPa));
  material.concrete.setAlfaCC(input.concrete.alpha_cc);
  material.concrete.setGammaC(input.concrete.partial_factor);
  material.concrete.setEc2(input.concrete.strain_at_peak);
  material.concrete.setEcu(input.concrete.ultimate_strain);
  material.concrete.setEta(input.concrete.bond_factor);
  material.steel.setFyk(n_mm2_of_mpa(input.steel.yield_strength_MPa));
  material.steel.setGammaS(input.steel.partial_factor);
  material.steel.setEs(n_mm2_of_gpa(input.steel.E_GPa));
  material.steel.setEuk(input.steel.ultimate_strain);
  material.steel.setK(input.steel.hardening_ratio);
  material.setAlfaC(input.modular_ratio);
}

void convert_cap_beam(const CapBeamReinforcementInput& input, xReinforcement_SettingsTrave& beam) {
  beam.Cover = input.cover_mm;
  beam.BarDiam = input.bar_diameter_mm;
  beam.Step = input.bars_per_step;
  beam.minRatio = input.least_ratio_percent;
  beam.maxRatio = input.largest_ratio_percent;
  convert_stirrups(input.stirrups, beam.bracket);
}

osg::ref_ptr<xReinforcement_Settings> to_shape(const ReinforcementInput& input, bool rectangle) {
  if (!rectangle) {
    osg::ref_ptr<xCircularReinfSettings> circle = new xCircularReinfSettings;
    circle->setMinRatio(input.least_ratio_percent);
    circle->setMaxRatio(input.largest_ratio_percent);
    return circle;
  }
  osg::ref_ptr<xRectReinfSettings> settings = new xRectReinfSettings;
  settings->minValle = input.least_excavation_ratio_percent;
  settings->maxValle = input.largest_excavation_ratio_percent;
  settings->minMonte = input.least_retained_ratio_percent;
  settings->maxMonte = input.largest_retained_ratio_percent;
  settings->ratio = input.retained_to_excavation_percent;
  settings->useVertexBars = input.corner_bars;
  return settings;
}

osg::ref_ptr<xReinforcement_Settings> to_reinforcement(const ReinforcementInput& input,
                                                       bool rectangle) {
  osg::ref_ptr<xReinforcement_Settings> settings = to_shape(input, rectangle);
  settings->setBarDiam(input.bar_diameter_mm);
  settings->setCover(input.cover_mm);
  settings->setStep(static_cast<std::uint32_t>(input.bars_per_step));
  convert_stirrups(input.stirrups, settings->bracket);
  convert_materials(input, settings->material);
  convert_cap_beam(input.cap_beam, settings->trave);
  return settings;
}

void convert_bearing(const PileBearingInput& input, xBearCapacityPileSettings& settings) {
  settings.setDiamMethod(static_cast<bearSecPile::evalDiamMethod>(input.equivalent_diameter));
  settings.setTechnologyType(static_cast<xtechPiles>(input.technology));
  settings.setApplyKishida(input.reduce_friction_angle);
  settings.setEta(input.group_efficiency);
  settings.setCsi3(input.xi_3);
  settings.setCsi4(input.xi_4);
  settings.setValueType(input.minimum_values ? 1 : 0);
}

}  // namespace

osg::ref_ptr<xPile_Sheetpiling> to_wall(const Project& project) {
  const WallInput& input = project.wall;
  osg::ref_ptr<xPile_Sheetpiling> wall = new xPile_Sheetpiling;
  wall->setIdObj(wall_id);
  wall->setLength(level_mm_of_m(input.length_m));
  wall->setDepth(level_mm_of_m(project.excavation_depth_m));
  wall->set_NumPiles(input.count);
  wall->setSpacing(mm_of_m(input.spacing_m));
  wall->setExtension(input.count * mm_of_m(input.spacing_m));
  wall->setHtrave(mm_of_m(input.cap_beam_height_m));
  wall->setBtrave(mm_of_m(input.cap_beam_width_m));
  wall->section = to_section(input);
  wall->material.setElasticityModulus(n_mm2_of_gpa(input.E_GPa));
  wall->material.setPoissonRatio(input.poisson_ratio);
  wall->material.computeShearModulus();
  wall->material.setUnitWeight(n_mm3_of_kn_m3(input.unit_weight_kN_m3));
  wall->checkSettings.setHeadDispLim(input.head_limit_mm);
  wall->checkSettings.setJtsDispLim(input.excavation_limit_mm);
  if (input.reinforcement) {
    wall->checkSettings.reinforcementSettings =
        to_reinforcement(*input.reinforcement, input.is_diaphragm);
  }
  if (input.bearing) convert_bearing(*input.bearing, wall->checkSettings.pileSettings);
  return wall;
}

}  // namespace ostrel::host
