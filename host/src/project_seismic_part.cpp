// SPDX-License-Identifier: Apache-2.0
// Reader of the seismic site.
#include "project_parts.h"

namespace ostrel::host {

namespace {

const Range share = {.least = 0.0, .most = 1.0, .least_included = false};

void read_ntc2008(ObjectReader& fields, SeismicSiteInput& site) {
  site.f0 = fields.number("F0", Range::between(2.2, 10.0));
  if (const auto ground = fields.required("ground_class")) {
    site.ground_class = static_cast<char>('A' + ground->choice({"A", "B", "C", "D", "E"}));
  }
  if (const auto category = fields.optional("topographic_category")) {
    site.topographic_category = 1 + static_cast<int>(category->choice({"T1", "T2", "T3", "T4"}));
  }
  site.alpha = fields.number_or("alpha", site.alpha, share);
  site.beta = fields.number_or("beta", site.beta, share);
  site.admissible_displacement_mm =
      fields.number_or("admissible_displacement_mm", 0.0, Range::at_least(0.0));
}

void read_en1998(ObjectReader& fields, SeismicSiteInput& site) {
  site.importance_factor = fields.number_or("importance_factor", site.importance_factor,
                                            {.least = 0.0, .most = 3.0, .least_included = false});
  site.soil_factor = fields.number("soil_factor", Range::between(1.0, 3.0));
  site.r = fields.number_or("r", site.r, Range::between(1.0, 2.0));
  site.vertical_to_horizontal =
      fields.number_or("vertical_to_horizontal", site.vertical_to_horizontal, share);
}

}  // namespace

SeismicSiteInput read_seismic_site(const ValueReader& value) {
  ObjectReader fields = value.object();
  SeismicSiteInput site;
  if (const auto rule = fields.required("standard")) {
    site.rule = static_cast<SeismicSiteInput::Rule>(rule->choice({"NTC2008", "EN1998-5"}));
  }
  site.ag_g = fields.number("ag_g", Range::inside(0.0, 1.0));
  if (site.rule == SeismicSiteInput::Rule::en1998) {
    read_en1998(fields, site);
  } else {
    read_ntc2008(fields, site);
  }
  return site;
}

}  // namespace ostrel::host
