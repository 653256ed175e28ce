// SPDX-License-Identifier: Apache-2.0
#include "seismic_coefficients.h"

#include "units.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <limits>

namespace ostrel::host {

namespace {

constexpr double gravity_m_s2 = 9.81;
constexpr double least_share = 0.2;  // of a_max in kh, NTC 2008

// Ss = least <= start - slope F0 ag <= most
struct GroundRow {
  double start;
  double slope;
  double least;
  double most;
};

constexpr std::array<GroundRow, 5> ground_rows{{{1.00, 0.00, 1.00, 1.00},
                                                {1.40, 0.40, 1.00, 1.20},
                                                {1.70, 0.60, 1.00, 1.50},
                                                {2.40, 1.50, 0.90, 1.80},
                                                {2.00, 1.10, 1.00, 1.60}}};
constexpr std::array<double, 4> topographic_factors{1.0, 1.2, 1.2, 1.4};

bool by_eurocode(const SeismicSiteInput& site) {
  return site.rule == SeismicSiteInput::Rule::en1998;
}

template <class Action>
Action with_coefficients(const SeismicSiteInput& site) {
  const SeismicCoefficients found = seismic_coefficients(site);
  Action action;
  action.coefficients = {found.kh, found.kv};
  action.setAdimensAcc(found.acceleration);
  action.setSt(found.topographic_factor);
  action.setSoilType(std::string(1, site.ground_class));
  return action;
}

}  // namespace

double stratigraphic_factor(char ground_class, double f0, double ag) {
  if (ground_class < 'A' || ground_class > 'E') return std::numeric_limits<double>::quiet_NaN();
  const GroundRow& row = ground_rows[static_cast<std::size_t>(ground_class - 'A')];
  return std::clamp(row.start - row.slope * f0 * ag, row.least, row.most);
}

double topographic_factor(int category) {
  if (category < 1 || category > 4) return std::numeric_limits<double>::quiet_NaN();
  return topographic_factors[static_cast<std::size_t>(category - 1)];
}

double horizontal_coefficient_ntc2008(double alpha, double beta, double a_max) {
  return std::max(alpha * beta, least_share) * a_max;
}

double vertical_ratio_en1998(double avg_over_ag) {
  return avg_over_ag > 0.6 ? 0.5 : 0.33;
}

SeismicCoefficients seismic_coefficients(const SeismicSiteInput& site) {
  SeismicCoefficients found;
  if (by_eurocode(site)) {
    found.stratigraphic_factor = site.soil_factor;
    found.acceleration = site.importance_factor * site.ag_g * site.soil_factor;
    found.kh = found.acceleration / site.r;
    found.kv = vertical_ratio_en1998(site.vertical_to_horizontal) * found.kh;
    return found;
  }
  found.stratigraphic_factor = stratigraphic_factor(site.ground_class, site.f0, site.ag_g);
  found.topographic_factor = topographic_factor(site.topographic_category);
  found.acceleration = found.stratigraphic_factor * found.topographic_factor * site.ag_g;
  found.kh = horizontal_coefficient_ntc2008(site.alpha, site.beta, found.acceleration);
  return found;
}

xSeismicActionNTC2008 ntc2008_action(const SeismicSiteInput& site) {
  auto action = with_coefficients<xSeismicActionNTC2008>(site);
  action.setTopographicType(fmt::format("T{}", site.topographic_category));
  action.setF0(site.f0);
  action.setSs(stratigraphic_factor(site.ground_class, site.f0, site.ag_g));
  action.setAlpha(site.alpha);
  action.setBeta(site.beta);
  return action;
}

xSeismicActionEC8 en1998_action(const SeismicSiteInput& site) {
  auto action = with_coefficients<xSeismicActionEC8>(site);
  action.setSoilType({});
  action.setAgR(site.ag_g * gravity_m_s2);
  action.setGammaI(site.importance_factor);
  action.setAg(site.importance_factor * site.ag_g * gravity_m_s2);
  action.setR(site.r);
  return action;
}

xSeismicAction seismic_action(const SeismicSiteInput& site) {
  if (by_eurocode(site)) return en1998_action(site);
  return ntc2008_action(site);
}

std::string seismic_line(const SeismicSiteInput& site, const Texts& texts) {
  const SeismicCoefficients found = seismic_coefficients(site);
  if (by_eurocode(site)) {
    return texts(Text::seismic_line_en1998, site.importance_factor * site.ag_g, site.soil_factor,
                 site.r, found.kh, found.kv);
  }
  return texts(Text::seismic_line_ntc2008, site.ag_g, found.stratigraphic_factor,
               found.topographic_factor, found.acceleration, site.alpha, site.beta, found.kh,
               found.kv);
}

}  // namespace ostrel::host
