// SPDX-License-Identifier: Apache-2.0
// Readers of the wall, its reinforcement and its anchors. A run designs the reinforcement, so that
// it is obligatory.
#include "project_parts.h"

#include <limits>

namespace ostrel::host {

namespace {

const Range positive = Range::above(0.0);
const Range not_negative = Range::at_least(0.0);
const Range percent = Range::between(0.0, 100.0);
const Range least_one = Range::at_least(1.0);
const Range section_mm = {.least = 0.0, .most = 1e5, .least_included = false};
const Range length_m = {.least = 0.0, .most = 1e3, .least_included = false};
constexpr std::int32_t most_pieces = 1000;  // piles, panels, anchors, bars

StirrupsInput read_stirrups(const ValueReader& value) {
  ObjectReader fields = value.object();
  StirrupsInput stirrups;
  stirrups.diameter_mm = fields.number("diameter_mm", section_mm);
  stirrups.least_spacing_mm = fields.number("least_spacing_mm", positive);
  stirrups.largest_spacing_mm =
      fields.number("largest_spacing_mm", Range::at_least(stirrups.least_spacing_mm));
  stirrups.spacing_step_mm = fields.number("spacing_step_mm", positive);
  stirrups.legs = fields.integer_or("legs", 2, 1, most_pieces);
  return stirrups;
}

ConcreteInput read_concrete(const ValueReader& value) {
  ObjectReader fields = value.object();
  ConcreteInput concrete;
  concrete.cube_strength_MPa = fields.number("cube_strength_MPa", positive);
  concrete.alpha_cc = fields.number_or("alpha_cc", concrete.alpha_cc, positive);
  concrete.partial_factor = fields.number_or("partial_factor", concrete.partial_factor, positive);
  concrete.strain_at_peak = fields.number_or("strain_at_peak", concrete.strain_at_peak, positive);
  concrete.ultimate_strain =
      fields.number_or("ultimate_strain", concrete.ultimate_strain, positive);
  concrete.bond_factor = fields.number_or("bond_factor", concrete.bond_factor, positive);
  return concrete;
}

SteelInput read_steel(const ValueReader& value) {
  ObjectReader fields = value.object();
  SteelInput steel;
  steel.yield_strength_MPa = fields.number("yield_strength_MPa", positive);
  steel.partial_factor = fields.number_or("partial_factor", steel.partial_factor, positive);
  steel.E_GPa = fields.number_or("E_GPa", steel.E_GPa, positive);
  steel.ultimate_strain = fields.number_or("ultimate_strain", steel.ultimate_strain, positive);
  steel.hardening_ratio = fields.number_or("hardening_ratio", steel.hardening_ratio, least_one);
  return steel;
}

CapBeamReinforcementInput read_cap_beam_reinforcement(const ValueReader& value) {
  ObjectReader fields = value.object();
  CapBeamReinforcementInput beam;
  beam.cover_mm = fields.number("cover_mm", section_mm);
  beam.bar_diameter_mm = fields.integer("bar_diameter_mm", 1, most_pieces);
  beam.bars_per_step = fields.integer_or("bars_per_step", 1, 1, most_pieces);
  beam.least_ratio_percent = fields.number("least_ratio_percent", percent);
  beam.largest_ratio_percent =
      fields.number("largest_ratio_percent", Range::between(beam.least_ratio_percent, 100.0));
  if (const auto part = fields.required("stirrups")) beam.stirrups = read_stirrups(*part);
  return beam;
}

void read_circle_ratios(ObjectReader& fields, ReinforcementInput& reinforcement) {
  reinforcement.least_ratio_percent = fields.number("least_ratio_percent", percent);
  reinforcement.largest_ratio_percent = fields.number(
      "largest_ratio_percent", Range::between(reinforcement.least_ratio_percent, 100.0));
}

void read_rectangle_ratios(ObjectReader& fields, ReinforcementInput& reinforcement) {
  reinforcement.least_excavation_ratio_percent =
      fields.number("least_excavation_ratio_percent", percent);
  reinforcement.largest_excavation_ratio_percent =
      fields.number("largest_excavation_ratio_percent",
                    Range::between(reinforcement.least_excavation_ratio_percent, 100.0));
  reinforcement.least_retained_ratio_percent =
      fields.number("least_retained_ratio_percent", percent);
  reinforcement.largest_retained_ratio_percent =
      fields.number("largest_retained_ratio_percent",
                    Range::between(reinforcement.least_retained_ratio_percent, 100.0));
  reinforcement.retained_to_excavation_percent =
      fields.number_or("retained_to_excavation_percent", 100.0, percent);
  reinforcement.corner_bars = fields.flag_or("corner_bars", true);
}

ReinforcementInput read_reinforcement(const ValueReader& value, bool rectangle, bool has_cap_beam) {
  ObjectReader fields = value.object();
  ReinforcementInput reinforcement;
  reinforcement.cover_mm = fields.number("cover_mm", section_mm);
  reinforcement.bar_diameter_mm = fields.number("bar_diameter_mm", section_mm);
  reinforcement.bars_per_step = fields.integer_or("bars_per_step", 1, 1, most_pieces);
  reinforcement.modular_ratio = fields.number_or("modular_ratio", 15.0, positive);
  if (rectangle) {
    read_rectangle_ratios(fields, reinforcement);
  } else {
    read_circle_ratios(fields, reinforcement);
  }
  if (const auto part = fields.required("stirrups")) reinforcement.stirrups = read_stirrups(*part);
  if (const auto part = fields.required("concrete")) reinforcement.concrete = read_concrete(*part);
  if (const auto part = fields.required("steel")) reinforcement.steel = read_steel(*part);
  const auto beam = has_cap_beam ? fields.required("cap_beam") : fields.optional("cap_beam");
  if (beam) reinforcement.cap_beam = read_cap_beam_reinforcement(*beam);
  return reinforcement;
}

PileBearingInput read_bearing(const ValueReader& value) {
  ObjectReader fields = value.object();
  PileBearingInput bearing;
  if (const auto way = fields.required("technology")) {
    bearing.technology = way->choice({"driven", "bored", "augered"});
  }
  if (const auto side = fields.optional("equivalent_diameter")) {
    bearing.equivalent_diameter = side->choice({"smaller_side", "larger_side", "equal_area"});
  }
  bearing.reduce_friction_angle = fields.flag_or("reduce_friction_angle", false);
  bearing.group_efficiency = fields.number_or("group_efficiency", 1.0, positive);
  bearing.xi_3 = fields.number("xi_3", least_one);
  bearing.xi_4 = fields.number("xi_4", least_one);
  bearing.minimum_values = fields.flag_or("minimum_values", false);
  return bearing;
}

void read_section(ObjectReader& fields, WallInput& wall) {
  if (const auto type = fields.required("type")) {
    wall.is_diaphragm = type->choice({"pile_row", "diaphragm"}) == 1;
  }
  if (wall.is_diaphragm) {
    wall.thickness_mm = fields.number("thickness_mm", section_mm);
    wall.spacing_m = fields.number("panel_width_m", length_m);
    wall.count = fields.integer_or("panels", 1, 1, most_pieces);
  } else {
    wall.diameter_mm = fields.number("diameter_mm", section_mm);
    wall.spacing_m = fields.number("spacing_m", length_m);
    wall.count = fields.integer_or("piles", 1, 1, most_pieces);
  }
}

void read_bond(const ValueReader& value, AnchorInput& anchor) {
  ObjectReader fields = value.object();
  anchor.bond_adhesion_kPa = fields.number("adhesion_kPa", not_negative);
  anchor.bond_friction_angle_deg =
      fields.number("friction_angle_deg", Range::from_below(0.0, 90.0));
}

void read_anchor_checks(ObjectReader& fields, AnchorInput& anchor) {
  anchor.bond_diameter_mm = fields.number_or("bond_diameter_mm", 0.0, section_mm);
  anchor.bond_enlargement = fields.number_or("bond_enlargement", 1.0, positive);
  anchor.yield_strength_MPa = fields.number_or("yield_strength_MPa", 0.0, positive);
  anchor.steel_factor = fields.number_or("steel_factor", anchor.steel_factor, positive);
  anchor.xi_3 = fields.number_or("xi_3", 0.0, least_one);
  anchor.xi_4 = fields.number_or("xi_4", 0.0, least_one);
  anchor.minimum_values = fields.flag_or("minimum_values", false);
  if (const auto coefficient = fields.optional("pressure_coefficient")) {
    anchor.pressure_coefficient = coefficient->choice({"at_rest", "active", "mean"});
  }
  if (const auto bond = fields.unless_null("bond")) read_bond(*bond, anchor);
}

}  // namespace

WallInput read_wall(const ValueReader& value) {
  ObjectReader fields = value.object();
  WallInput wall;
  read_section(fields, wall);
  wall.length_m = fields.number("length_m", length_m);
  wall.E_GPa = fields.number("E_GPa", positive);
  wall.poisson_ratio = fields.number_or("poisson_ratio", 0.2, Range::between(0.0, 0.5));
  wall.unit_weight_kN_m3 = fields.number("unit_weight_kN_m3", not_negative);
  if (const auto part = fields.unless_null("cap_beam")) {
    ObjectReader beam = part->object();
    wall.cap_beam_height_m = beam.number("height_m", length_m);
    wall.cap_beam_width_m = beam.number("width_m", length_m);
  }
  if (const auto part = fields.unless_null("displacement_limits")) {
    ObjectReader limits = part->object();
    wall.head_limit_mm = limits.number("head_mm", positive);
    wall.excavation_limit_mm = limits.number("excavation_mm", positive);
  }
  if (const auto part = fields.required("reinforcement")) {
    wall.reinforcement = read_reinforcement(*part, wall.is_diaphragm, wall.cap_beam_height_m > 0.0);
  }
  if (const auto part = fields.unless_null("vertical_bearing")) wall.bearing = read_bearing(*part);
  return wall;
}

AnchorInput read_anchor(const ValueReader& value) {
  ObjectReader fields = value.object();
  AnchorInput anchor;
  anchor.name = fields.text_or("name", "");
  anchor.level_m = fields.number("level_m", Range::between(-1e3, 0.0));
  anchor.inclination_deg = fields.number("inclination_deg", Range::inside(-90.0, 90.0));
  anchor.free_length_m = fields.number("free_length_m", length_m);
  anchor.bond_length_m = fields.number_or("bond_length_m", 0.0, length_m);
  anchor.count = fields.integer("number", 1, most_pieces);
  anchor.tendon_area_mm2 = fields.number("tendon_area_mm2", positive);
  anchor.E_GPa = fields.number("E_GPa", positive);
  anchor.permanent = fields.flag_or("permanent", true);
  anchor.prestress_kN = fields.number_or("prestress_kN", 0.0, not_negative);
  read_anchor_checks(fields, anchor);
  return anchor;
}

}  // namespace ostrel::host
