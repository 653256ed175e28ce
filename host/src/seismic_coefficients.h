#pragma once
/// @file  Seismic coefficients of a wall by NTC 2008 and by EN 1998-5. Room: host
// SPDX-License-Identifier: Apache-2.0
//
// Accelerations are parts of gravity [-]. ag is that on rigid ground.

#include "project.h"
#include "texts.h"

#include <ostrel/seismic_action.h>

#include <string>

namespace ostrel::host {

/// Horizontal and vertical coefficient, and what they come from [-].
struct SeismicCoefficients {
  double stratigraphic_factor = 1.0;  ///< Ss; of Eurocode 8 the soil factor S
  double topographic_factor = 1.0;    ///< St; 1 in Eurocode 8, where S holds it
  double acceleration = 0.0;          ///< the greatest expected at the site
  double kh = 0.0;
  double kv = 0.0;
};

/// Factor of the ground of a class, 'A' to 'E'; not a number for any other.
///
///     A: 1      B: 1 <= 1.40 - 0.40 F0 ag <= 1.20      C: 1 <= 1.70 - 0.60 F0 ag <= 1.50
///     D: 0.90 <= 2.40 - 1.50 F0 ag <= 1.80             E: 1 <= 2.00 - 1.10 F0 ag <= 1.60
///
/// @source NTC 2008, table 3.2.V
double stratigraphic_factor(char ground_class, double f0, double ag);

/// Factor of a site of category 1 to 4: 1, 1.2, 1.2, 1.4; not a number for any other.
/// @source NTC 2008, table 3.2.VI
double topographic_factor(int category);

/// Horizontal coefficient of a wall: alpha beta a_max, and never below 0.2 a_max.
/// @source NTC 2008, 7.11.6.3.1
double horizontal_coefficient_ntc2008(double alpha, double beta, double a_max);

/// Vertical over horizontal coefficient: 0.5 where avg is above 0.6 of ag, else 0.33.
/// @source EN 1998-5, 7.3.2.2
double vertical_ratio_en1998(double avg_over_ag);

/// The coefficients of a site.
///
/// NTC 2008: a_max = Ss St ag, kh = alpha beta a_max, kv = 0. EN 1998-5: kh = (gamma ag) S / r.
SeismicCoefficients seismic_coefficients(const SeismicSiteInput& site);

/// The coefficients with the data they come from.
xSeismicActionNTC2008 ntc2008_action(const SeismicSiteInput& site);
xSeismicActionEC8 en1998_action(const SeismicSiteInput& site);
/// The part of either that a combination takes.
xSeismicAction seismic_action(const SeismicSiteInput& site);

/// The rule, the data and the coefficients, in one line.
std::string seismic_line(const SeismicSiteInput& site, const Texts& texts);

}  // namespace ostrel::host
