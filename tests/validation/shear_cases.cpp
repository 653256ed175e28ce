// SPDX-License-Identifier: Apache-2.0
#include "structural/shear_truss.h"
#include "validation/chapters.h"
#include "validation/units.h"

#include <algorithm>
#include <sstream>

namespace ostrel::validation {
namespace {

using structural::truss_strength;
using structural::TrussStrength;

/// A truss with the lever arm `z` [mm].
TrussStrength truss(double b, double z, double asw_st, double fyd, double fcd) {
  constexpr double cover = 40.0;
  return truss_strength({b, z / 0.9 + cover}, cover, asw_st, fyd, fcd);
}

constexpr double two_bars(double diameter) {
  return 2.0 * std::numbers::pi * diameter * diameter / 4.0;
}

/// A web of 150 mm of fcd 14 N/mm² makes sn 0.82 and more, and so the cotangent 1.
Case stirrups_at_45_degrees() {
  constexpr double fyd = 400 / 1.15;
  const auto stirrups = [](double section) {
    return truss(150, 4880, section / 200, fyd, 14).stirrups / kN;
  };
  const Tolerance digits{.relative = 1e-3};
  return {.id = "SH-01",
          .subject = "Stirrups with struts of 45°",
          .source = "structuralcodes of the fib, test_ec2_2004_shear.py",
          .inputs = "2 bars of 16 and of 20 mm every 200 mm, z 4880 mm, fyk 400 N/mm²",
          .figures = {{"VRds, 16 mm", "kN", 3413, stirrups(two_bars(16)), digits},
                      {"VRds, 20 mm", "kN", 5332, stirrups(two_bars(20)), digits}}};
}

/// At fck = 41.667 the factor 0.6 (1 - fck / 250) of the standard is 0.5.
Case struts() {
  constexpr double fck = 125.0 / 3.0;
  constexpr double fcd = 0.85 * fck / 1.5;
  const auto by_standard = [](double ct) {
    return 0.6 * (1 - fck / 250) * fcd * 100 * 300 / (ct + 1 / ct) / kN;
  };
  const Tolerance exact{.relative = 1e-12};
  const double steep = truss(100, 300, 100.0, 400, fcd).struts / kN;
  const double flat = truss(100, 300, 1e-6, 400, fcd).struts / kN;
  return {.id = "SH-02",
          .subject = "Struts",
          .source = "EN 1992-1-1:2004, (6.9)",
          .inputs = "b 100 mm, z 300 mm, fck 41.667 N/mm², where the standard has the factor 0.5",
          .figures = {{"VRdmax, cotangent 1", "kN", by_standard(1.0), steep, exact},
                      {"VRdmax, cotangent 2.5", "kN", by_standard(2.5), flat, exact}}};
}

Case light_stirrups() {
  const TrussStrength strength =
      truss_strength({300, 500}, 40, two_bars(8) / 200, 450 / 1.15, 0.85 * 25 / 1.5);
  const Tolerance digits{.relative = 1e-7};
  return {.id = "SH-03",
          .subject = "Light stirrups, the flattest struts",
          .source = "NTC 2008, 4.1.2.1.3.2, (4.1.18) and (4.1.19)",
          .inputs = "300 x 500 mm, cover 40 mm, fck 25, fyk 450 N/mm², 2 bars of 8 mm every 200 mm",
          .figures = {{"VRds", "kN", 203.5752, strength.stirrups / kN, digits},
                      {"VRdmax", "kN", 303.36207, strength.struts / kN, digits}}};
}

struct Web {
  double fck;
  double fyk;
  double published;  // [kN]
  double by_rule;    // sqrt(1 - sn) / sn and 0.5 fcd, by hand [kN]
};

Case balanced_truss() {
  std::vector<Figure> figures;
  for (const Web& web : {Web{30, 450, 382.913, 295.03653}, Web{60, 450, 562.64, 496.26843},
                         Web{30, 500, 390.086, 327.81836}}) {
    const TrussStrength strength =
        truss(150, 500, two_bars(12) / 150, web.fyk / 1.15, web.fck / 1.5);
    std::ostringstream what;
    what << "VRd, fck " << web.fck << ", fyk " << web.fyk;
    figures.push_back({what.str(),
                       "kN",
                       web.published,
                       std::min(strength.stirrups, strength.struts) / kN,
                       {.relative = 1e-7},
                       web.by_rule});
  }
  return {.id = "SH-04",
          .subject = "Heavier stirrups, struts from equal strengths",
          .source =
              "European Concrete Platform, EC2 worked examples (2008, revised 2017), 6.4 and "
              "6.4b; quoted in the tests of XC",
          .inputs = "b 150 mm, z 500 mm, 2 bars of 12 mm every 150 mm, alpha_cc 1",
          .likeness = Likeness::same_physics,
          .figures = figures,
          .reason =
              "This system takes the cotangent sqrt(1 - sn)/sn, where equal strengths give "
              "sqrt(1 - sn²)/sn, and struts of 0.5 fcd, where the standard has "
              "0.6 (1 - fck/250) fcd. Both cotangents are cut at 2.5 up to sn 0.328 and at 1 from "
              "sn 0.707 on; between, the first makes the stirrups up to 21 % weaker, and the "
              "struts add what is left of the difference."};
}

}  // namespace

Chapter shear_strength() {
  return {"Shear",
          "The truss of stirrups and struts.",
          {stirrups_at_45_degrees(), struts(), light_stirrups(), balanced_truss()}};
}

}  // namespace ostrel::validation
