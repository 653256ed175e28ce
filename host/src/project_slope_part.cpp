// SPDX-License-Identifier: Apache-2.0
// Reader of the slip circles.
#include "project_parts.h"
#include "slope_grid.h"

#include <string>
#include <utility>

namespace ostrel::host {

namespace {

constexpr double farthest_m = 1e4;    // of anything from the wall
constexpr double most_centres = 1e5;  // of slip circles

const Range position = Range::between(-farthest_m, farthest_m);
const Range length = {.least = 0.0, .most = farthest_m, .least_included = false};

std::vector<SlopeCentreInput> read_centres(const ValueReader& value) {
  std::vector<SlopeCentreInput> centres;
  for (const ValueReader& entry : value.items()) {
    ObjectReader fields = entry.object();
    SlopeCentreInput centre;
    centre.x_m = fields.number("x_m", position);
    centre.y_m = fields.number("y_m", position);
    centre.least_radius_m = fields.number("least_radius_m", length);
    centre.largest_radius_m =
        fields.number("largest_radius_m", {.least = centre.least_radius_m, .most = farthest_m});
    centres.push_back(centre);
  }
  if (value.json().is_array() && centres.empty()) {
    value.refuse(std::string(value.problems().texts()(Text::a_list_not_empty)));
  }
  return centres;
}

// From, and not below it, to.
std::array<double, 2> read_span(const ValueReader& value, const Range& range) {
  const std::vector<ValueReader> ends = value.items(2);
  if (ends.size() != 2) return {0.0, 0.0};
  const double from = ends[0].number(range);
  return {from, ends[1].number({.least = from, .most = farthest_m})};
}

std::array<double, 2> read_span(ObjectReader& fields, const std::string& name) {
  const auto value = fields.required(name);
  return value ? read_span(*value, position) : std::array<double, 2>{};
}

// The first that is given of three ways to name the circles of a centre.
CircleRange read_range(ObjectReader& fields) {
  using Kind = CircleRange::Kind;
  const auto radii = fields.optional("radii_m");
  const auto below_foot = fields.optional("depths_below_foot_m");
  if (radii) return {.kind = Kind::radii, .span_m = read_span(*radii, length)};
  if (below_foot) {
    return {.kind = Kind::below_foot,
            .span_m = read_span(*below_foot, Range::between(0.0, farthest_m))};
  }
  return {.kind = Kind::tangent_levels, .span_m = read_span(fields, "tangent_levels_m")};
}

SlopeInput::Source source_of(CircleRange::Kind kind) {
  using Kind = CircleRange::Kind;
  if (kind == Kind::radii) return SlopeInput::Source::radii;
  return kind == Kind::below_foot ? SlopeInput::Source::below_foot
                                  : SlopeInput::Source::tangent_levels;
}

std::vector<SlopeCentreInput> read_centre_box(const ValueReader& value, double wall_length,
                                              SlopeInput::Source& source) {
  ObjectReader fields = value.object();
  CentreBox box;
  box.x_m = read_span(fields, "x_m");
  box.y_m = read_span(fields, "y_m");
  box.spacing_m = fields.number("spacing_m", length);
  const CircleRange range = read_range(fields);
  source = source_of(range.kind);
  if (!(box.spacing_m > 0.0)) return {};
  if (number_of_centres(box) > most_centres) {
    value.refuse(value.problems().texts()(Text::fewer_centres, most_centres));
    return {};
  }
  const bool tangent = range.kind == CircleRange::Kind::tangent_levels;
  if (tangent && box.y_m[0] <= range.span_m[1]) {
    value.refuse(std::string(value.problems().texts()(Text::centres_above_circles)));
    return {};
  }
  return centres_of(box, range, wall_length);
}

}  // namespace

SlopeInput default_slope(const Project& project) {
  return {.formulation = 0,
          .stripe_width_m = default_stripe_width_m(project),
          .radius_step_m = default_radius_step_m(project),
          .centres = default_centres(project)};
}

std::optional<SlopeInput> read_slope(const ValueReader& value, const Project& project) {
  if (value.json().is_boolean()) {
    return value.json().get<bool>() ? std::optional(default_slope(project)) : std::nullopt;
  }
  if (!value.json().is_object()) {
    value.refuse(std::string(value.problems().texts()(Text::slope_or_false)));
    return std::nullopt;
  }
  ObjectReader fields = value.object();
  SlopeInput slope;
  if (const auto method = fields.optional("method")) {
    slope.formulation = static_cast<int>(method->choice({"fellenius", "bishop"}));
  }
  slope.stripe_width_m =
      fields.number_or("stripe_width_m", default_stripe_width_m(project), length);
  slope.radius_step_m = fields.number_or("radius_step_m", default_radius_step_m(project), length);
  const auto box = fields.optional("centre_box");
  const auto centres = fields.optional("centres");
  if (box) {
    slope.centres = read_centre_box(*box, project.wall.length_m, slope.source);
  } else if (centres) {
    slope.source = SlopeInput::Source::centre_list;
    slope.centres = read_centres(*centres);
  } else {
    slope.centres = default_centres(project);
  }
  return slope;
}

}  // namespace ostrel::host
