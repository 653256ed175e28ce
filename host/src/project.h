#pragma once
/// @file  A project as an engineer writes it. Room: host
// SPDX-License-Identifier: Apache-2.0
//
// Units stand in the names. Levels are elevations with 0 at the head of the wall, positive upwards;
// x is horizontal with the wall at 0 and the retained side at x > 0. Horizontal forces and
// displacements count positive towards the excavation, vertical ones downwards, and a moment or a
// rotation where it turns the head towards the excavation.

#include <ostrel/spring_interval.h>
#include <ostrel/vocabulary.h>

#include <array>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace ostrel::host {

struct SoilInput {
  std::string name;
  double unit_weight_kN_m3 = 0.0;
  double saturated_unit_weight_kN_m3 = 0.0;
  double friction_angle_deg = 0.0;
  double wall_friction_angle_deg = 0.0;
  double cohesion_kPa = 0.0;
  double adhesion_kPa = 0.0;
  double E_MPa = 0.0;
  double poisson_ratio = 0.3;
  std::optional<double> constrained_modulus_MPa;  ///< from E and the ratio where not given
  double overconsolidation_ratio = 1.0;
  double permeability_m_s = 0.0;
  bool dense = false;
};

using PolygonInput = std::vector<std::array<double, 2>>;  ///< vertices x, y [m]

struct LayerInput {
  std::size_t soil = 0;                  ///< index of its soil
  std::vector<PolygonInput> polygons_m;  ///< closed or not
  double surface_slope_deg = 0.0;
  double top_level_m = 0.0;  ///< of a layer without polygons
};

struct GroundInput {
  bool by_levels = false;
  std::vector<LayerInput> layers;  ///< from the top down
  /// @name Of layers by levels
  ///@{
  double bottom_level_m = 0.0;
  double retained_width_m = 0.0;
  double excavated_width_m = 0.0;
  ///@}
};

struct StirrupsInput {
  double diameter_mm = 0.0;
  double least_spacing_mm = 0.0;
  double largest_spacing_mm = 0.0;
  double spacing_step_mm = 0.0;
  std::int32_t legs = 2;
};

struct CapBeamReinforcementInput {
  double cover_mm = 0.0;
  std::int32_t bar_diameter_mm = 0;
  std::int32_t bars_per_step = 1;
  double least_ratio_percent = 0.0;
  double largest_ratio_percent = 0.0;
  StirrupsInput stirrups;
};

struct ConcreteInput {
  double cube_strength_MPa = 30.0;
  double alpha_cc = 0.85;
  double partial_factor = 1.5;
  double strain_at_peak = 0.002;
  double ultimate_strain = 0.0035;
  double bond_factor = 1.0;
};

struct SteelInput {
  double yield_strength_MPa = 450.0;
  double partial_factor = 1.15;
  double E_GPa = 210.0;
  double ultimate_strain = 0.075;
  double hardening_ratio = 1.2;
};

struct ReinforcementInput {
  double cover_mm = 0.0;
  double bar_diameter_mm = 0.0;
  std::int32_t bars_per_step = 1;
  StirrupsInput stirrups;
  ConcreteInput concrete;
  SteelInput steel;
  double modular_ratio = 15.0;
  /// @name Of a circle; of a rectangle on each side, excavation and retained
  ///@{
  double least_ratio_percent = 0.0;
  double largest_ratio_percent = 0.0;
  double least_excavation_ratio_percent = 0.0;
  double largest_excavation_ratio_percent = 0.0;
  double least_retained_ratio_percent = 0.0;
  double largest_retained_ratio_percent = 0.0;
  double retained_to_excavation_percent = 100.0;
  bool corner_bars = true;
  ///@}
  CapBeamReinforcementInput cap_beam;
};

struct PileBearingInput {
  std::size_t technology = 0;           ///< driven, bored, augered
  std::size_t equivalent_diameter = 2;  ///< smaller side, larger side, equal area
  bool reduce_friction_angle = false;
  double group_efficiency = 1.0;
  double xi_3 = 0.0;
  double xi_4 = 0.0;
  bool minimum_values = false;
};

struct WallInput {
  bool is_diaphragm = false;
  double diameter_mm = 0.0;   ///< of a pile
  double thickness_mm = 0.0;  ///< of a diaphragm
  double spacing_m = 0.0;     ///< between pile axes; the width of a panel of a diaphragm
  std::int32_t count = 1;     ///< piles or panels of the stretch of wall considered
  double length_m = 0.0;
  double E_GPa = 0.0;
  double poisson_ratio = 0.2;
  double unit_weight_kN_m3 = 0.0;
  double cap_beam_height_m = 0.0;
  double cap_beam_width_m = 0.0;
  double head_limit_mm = 0.0;        ///< 0 for none
  double excavation_limit_mm = 0.0;  ///< 0 for none
  std::optional<ReinforcementInput> reinforcement;
  std::optional<PileBearingInput> bearing;
};

struct WaterInput {
  double retained_level_m = 0.0;
  double excavated_level_m = 0.0;
};

struct AnchorInput {
  std::string name;
  double level_m = 0.0;
  double inclination_deg = 0.0;
  double free_length_m = 0.0;
  double bond_length_m = 0.0;
  std::int32_t count = 1;  ///< at this level in the stretch of wall considered
  double tendon_area_mm2 = 0.0;
  double E_GPa = 0.0;
  double prestress_kN = 0.0;
  bool permanent = true;
  double bond_diameter_mm = 0.0;
  double bond_enlargement = 1.0;
  double yield_strength_MPa = 0.0;
  double steel_factor = 1.15;
  double xi_3 = 0.0;
  double xi_4 = 0.0;
  bool minimum_values = false;
  std::size_t pressure_coefficient = 0;     ///< at rest, active, mean
  std::optional<double> bond_adhesion_kPa;  ///< instead of the soil's, with the next
  std::optional<double> bond_friction_angle_deg;
};

struct GroundLoadInput {
  enum class Kind : std::int32_t { uniform, strip, line, point };
  Kind kind = Kind::uniform;
  double value = 0.0;      ///< [kPa], [kN/m] or [kN]
  double end_value = 0.0;  ///< of a strip, at its far edge [kPa]
  double distance_m = 0.0;
  double width_m = 0.0;
};

struct WallLoadInput {
  double level_m = 0.0;
  bool per_metre = false;  ///< for each metre of wall instead of for one pile or panel
  double horizontal_kN = 0.0;
  double vertical_kN = 0.0;
  double moment_kNm = 0.0;
};

struct LoadInput {
  std::string name;
  /// @name Read by the combinations of a standard
  ///@{
  bool permanent = false;
  double psi_1 = 1.0;
  double psi_2 = 1.0;
  ///@}
  std::vector<GroundLoadInput> on_ground;
  std::vector<WallLoadInput> on_wall;
};

struct ActionInput {
  bool active = false;
  bool named = false;  ///< the file speaks of it, if only to switch it off
  double favourable = 1.0;
  double unfavourable = 1.0;
};

struct CombinationInput {
  std::string name;
  pCombinationTypes kind = combUltimate;
  std::array<std::array<double, 2>, 6> soil_factors{
      {{1, 1}, {1, 1}, {1, 1}, {1, 1}, {1, 1}, {1, 1}}};
  std::map<checkUlsFactors, double> resistance_factors;
  ActionInput self_weight{.active = true};
  ActionInput earth_pressure{.active = true};
  ActionInput water_pressure{.active = true};
  std::vector<ActionInput> loads;  ///< one for each load of the project
  double kh = 0.0;
  double kv = 0.0;
  bool of_site = false;  ///< kh and kv come from the site of the project
  double slope_factor = 1.0;
  double topographic_factor = 1.0;
  std::vector<pCheckTypes> checks;
  std::vector<std::string> to_be_confirmed;  ///< clauses of factors
};

struct SpringIntervalInput {
  double start = 0.0;
  double end = 1.0;
  xSpringInterval::QlimSpring limit = xSpringInterval::limitSmaller;
  double stiffness_factor = 1.0;
};

/// A support: of each part that is given, the displacement or the stiffness.
struct SupportInput {
  double level_m = 0.0;
  std::optional<double> horizontal;  ///< [mm] or [kN/m]
  std::optional<double> vertical;    ///< [mm] or [kN/m]
  std::optional<double> rotation;    ///< [mrad] or [kNm]
};

struct SlopeCentreInput {
  double x_m = 0.0;
  double y_m = 0.0;
  double least_radius_m = 0.0;
  double largest_radius_m = 0.0;
};

struct SlopeInput {
  /// Which field of the project names the circles.
  enum class Source : std::int32_t { chosen, tangent_levels, radii, below_foot, centre_list };
  int formulation = 0;
  Source source = Source::chosen;  ///< chosen from the geometry where no field names them
  double stripe_width_m = 0.0;
  double radius_step_m = 0.0;
  std::vector<SlopeCentreInput> centres;
};

/// What the seismic coefficients of a standard are worked out from.
struct SeismicSiteInput {
  enum class Rule : std::int32_t { ntc2008, en1998 };
  Rule rule = Rule::ntc2008;
  double ag_g = 0.0;
  /// @name NTC 2008
  ///@{
  double f0 = 0.0;
  char ground_class = 'A';
  int topographic_category = 1;
  double alpha = 1.0;
  double beta = 1.0;
  double admissible_displacement_mm = 0.0;
  ///@}
  /// @name EN 1998-5
  ///@{
  double importance_factor = 1.0;
  double soil_factor = 1.0;
  double r = 1.0;
  double vertical_to_horizontal = 0.9;
  ///@}
};

struct CalculationInput {
  formulType earth_pressure = formulaAtRest;
  formulType seismic_earth_pressure = formulaMononobeOkabe;
  double node_spacing_mm = 250.0;
  double spring_limit_mm = 25.4;
  bool linear = false;
  double tolerance_mm = 0.001;
  std::int32_t max_iterations = 100;
};

/// What looks odd in the file, though it may be meant, in both languages.
struct OddPlace {
  std::string path;  ///< as "water.retained_level_m"
  std::string italian;
  std::string english;
};

struct Project {
  std::string name;
  std::string description;
  WallInput wall;
  double excavation_depth_m = 0.0;
  std::vector<SoilInput> soils;
  GroundInput ground;
  std::optional<WaterInput> water;
  std::vector<AnchorInput> anchors;
  std::vector<LoadInput> loads;
  std::optional<SeismicSiteInput> seismic;
  std::string standard;              ///< of which combinations were added; empty for none
  std::vector<std::string> notes;    ///< what a user of that standard shall know
  std::vector<OddPlace> odd_places;  ///< what a check of the file warns of
  std::vector<CombinationInput> combinations;
  std::vector<SpringIntervalInput> spring_intervals;
  std::vector<SupportInput> fixed_supports;
  std::vector<SupportInput> elastic_supports;
  std::optional<SlopeInput> slope;
  CalculationInput calculation;
};

}  // namespace ostrel::host
