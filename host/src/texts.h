#pragma once
/// @file  The texts of the program in its two languages. Room: host
// SPDX-License-Identifier: Apache-2.0
//
// The library's own messages and labels come translated from its catalogues; what the program says
// beside them stands in one table here, Italian and English side by side.

#include <fmt/format.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace ostrel::host {

enum class Language : std::int32_t { italian, english };

/// "it" and "en" give a language, any other text the second argument.
Language language_of(std::string_view code, Language otherwise);
/// "it" or "en".
const char* code_of(Language language);
/// Italian where the environment (LC_ALL, else LC_MESSAGES, else LANG) asks for it, else English.
Language language_of_environment();

/// What the program can say. The comments tell what takes the place of {} in a text.
enum class Text : std::int32_t {
  // Lines about a file
  error_line,    // place, found, allowed
  warning_line,  // place, message
  more_errors,   // count
  // What was found
  cannot_read,  // reason
  file_too_large,
  too_deep,
  repeated_field,
  missing,
  unknown_field,
  ignored_field,
  an_object,
  a_list_of,  // count
  // What is allowed
  a_readable_file,
  at_most_megabytes,  // count
  valid_json,
  json_byte,  // the byte as a number
  json_in_utf8,
  json_end,
  json_the_rest,
  json_comma_or_brace,
  json_comma_or_bracket,
  json_nothing_more,
  json_name,
  json_colon,
  json_value,
  json_number,
  once,
  this_field,
  perhaps,  // name of a field
  one_of,   // choices
  a_list,
  a_text,
  a_text_not_empty,
  true_or_false,
  a_number,
  a_number_in,  // range
  an_integer,
  an_integer_in,  // range
  a_number_as_name,
  above,     // number
  at_least,  // number
  below,     // number
  at_most,   // number
  both,      // range, range
  // The program
  cannot_write,  // file, reason
  program_line,
  run_line,
  core_line,
  file_of_project,
  file_of_case,
  folder_for_results,
  file_for_results,
  language_line,
  help_line,
  version_line,
  // A project
  a_list_not_empty,
  three_vertices,
  a_name_of_its_own,
  fewer_centres,
  centres_above_circles,
  a_level_on_the_wall,
  above_the_foot,
  number_of_nodes,
  misses_the_wall,
  across_the_wall,
  no_thickness,
  tops_downwards,
  layer_begins,
  layer_must_begin,
  not_above_head,
  ground_ends,
  ground_to_foot,
  needs_slope,
  needs_water,
  needs_bearing,
  piles_overlap,
  wall_rougher_than_soil,
  saturated_lighter,
  soil_not_used,
  water_below_head,
  water_above_head,
  water_higher_in_front,
  ground_below_head,
  ground_ends_at_foot,
  springs_missing,
  seismic_at_rest,
  shaken_not_seismic,
  // Numbers, sections and places that do not fit
  unusual_number,   // number, range from, to
  cover_that_fits,  // least, below, depth of the section
  bars_that_fit,    // bars, most
  load_never_acts,
  loads_left_out,           // names
  favourable_exceeds,       // favourable, unfavourable
  nodes_for_springs,        // half the embedded length
  anchor_below_excavation,  // level
  support_holds_nothing,
  intervals_overlap,   // from, to, path of the other
  load_beyond_ground,  // end of the load, of the ground
  bulb_outside,        // x, level
  bulb_in_ground,
  no_room_for_circles,
  wider_ground,
  // Before you sign
  see_before_signing,  // remark
  wood_hardly_shakes,
  rankine_too_steep,  // angle
  bearing_limit,
  springs_not_shaken,  // combinations
  kv_favourable,       // combinations
  passive_too_high,    // friction of the wall, of the soil
  circles_and_water,
  circles_and_earthquake,  // combinations
  rigid_with_two_levels,   // combinations
  rigid_with_few_anchors,  // combinations
  beam_without_anchors,    // combinations
  active_on_bulb,
  front_factor_not_read,   // combinations
  uplift_factor_not_read,  // combinations
  bearing_by_hand,         // combinations
  pile_row_line,
  diaphragm_line,
  geometry_line,
  forces_of_a_pile,
  forces_of_a_panel,
  signs_line,
  heading_value,
  heading_unit,
  heading_depth,
  moment_row,
  shear_row,
  axial_row,
  displacement_row,
  spring_row,
  yielding_row,
  mobilised_row,
  anchor_row,
  no_result,
  // Verifications
  verifications_title,
  heading_check,
  heading_factor,
  heading_combination,
  heading_place,
  heading_outcome,
  check_wall,
  check_cap_beam,
  check_anchor_tendon,
  check_anchor_pullout,
  check_bearing,
  check_rigid_body,
  check_slope,
  check_uplift,
  check_piping,
  check_displacements,
  place_bending,  // depth
  place_shear,    // depth
  in_bending,
  in_shear,
  by_sliding,
  by_rotation,
  at_head,
  at_excavation,
  satisfied,
  not_satisfied,
  not_determined,
  not_made,
  unlimited_note,
  not_made_note,
  checks_incomplete,
  failures_title,
  below_limit,               // check, factor, limit, combination
  below_limit_undetermined,  // check, combination
  bishop_on_cohesion,        // angle, names of soils
  // Tables of the wall and of the slip circles
  sections_title,
  sections_note,
  reinforcement_title,
  reinforcement_note,
  cap_beam_title,      // width, height
  ring_line,           // bars, spiral
  sides_line,          // bars, stirrups
  excavation_bars,     // bars
  retained_bars,       // bars
  corner_bars,         // bars
  stirrups_with_legs,  // stirrups, legs
  no_stirrups,
  circles_title,
  heading_radius,
  heading_resisting,
  heading_driving,
  // A file of results
  show_line,
  file_of_results,
  file_to_save,
  limit_line,
  saved_to,  // file
  foreign_results,
  results_of_version,  // version
  damaged_results,
  saved_results,
  written_to,
  support_horizontal_row,
  support_vertical_row,
  support_moment_row,
  moment_sign_line,
  no_names,
  // Slip circles and verifications
  slope_or_false,
  needed_by_check,  // name of a verification
  limits_not_given,
  as_in_the_schema,  // what the schema says
  stripes_too_wide,  // width, length of the wall
  circles_above_foot,
  circles_leave_ground,
  // Standards and seismic coefficients
  seismic_line_ntc2008,
  seismic_line_en1998,
  needs_seismic_site,
  needs_displacement,
  share_of_the_wall,         // displacement
  standard_expanded,         // name, number of combinations
  standard_expanded_by_one,  // name, 1
  near_standard_name,        // name
  circles_of_standard_left_out,
  standard_unconfirmed,  // clauses
  a_file_of_presets,
  // Commands about project files
  check_line,
  expand_line,
  new_line,
  schema_line,
  file_to_write,
  template_line,
  force_line,
  presets_line,
  file_exists,       // file
  file_written,      // file
  nothing_wrong,     // file
  problems_counted,  // file, errors, warnings, in words
  one_error,
  errors_counted,  // number
  one_warning,
  warnings_counted,  // number
  // Reasons of the system
  no_such_file,
  permission_denied,
  is_a_folder,
  not_a_folder,
  no_space,
  read_only,
  // Comments
  a_text_or_lines,
  // A report
  report_line,
  file_for_report,
  report_written,  // file
  count_
};

/// The texts of one language.
class Texts {
public:
  explicit Texts(Language language) : language_(language) {}

  Language language() const { return language_; }
  std::string_view operator()(Text text) const;

  template <class... Arguments>
  std::string operator()(Text text, const Arguments&... arguments) const {
    return fmt::format(fmt::runtime((*this)(text)), arguments...);
  }

private:
  Language language_;
};

}  // namespace ostrel::host
