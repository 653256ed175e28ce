// SPDX-License-Identifier: Apache-2.0
#include "validation/chapters.h"
#include "validation/slope_circles.h"

#include <sstream>

namespace ostrel::validation {
namespace {

/// A slope of 40 ft at 2:1, and the circle about (120, 90) ft.
Case fredlund_and_krahn() {
  testing::Outline outline{{0, 60}, {0, -20}, {200, -20}, {200, 20}, {140, 20}, {60, 60}, {0, 60}};
  for (auto& vertex : outline)
    vertex *= foot;
  const xBoundSoilLayer layer =
      testing::ground(outline, 120 * pcf, 120 * pcf, 600 * psf, 20 * degree);
  const double factor = smallest_factor(layer, 0.25 * foot, {{120 * foot, 90 * foot, 80 * foot}});
  return {.id = "SL-01",
          .subject = "Slope of a soil with friction and cohesion",
          .source =
              "Fredlund and Krahn (1977), Comparison of slope stability methods of analysis, "
              "case 1",
          .inputs = "40 ft at 2:1, 120 pcf, 600 psf, phi 20, radius 80 ft, stripes of 0.25 ft",
          .figures = {{"factor of safety", "", 1.928, factor, {.absolute = 5e-4}}}};
}

/// His numbers have three digits.
Case taylor() {
  std::vector<Figure> figures;
  for (const TaylorSlope& slope : {steep_slope, flat_slope}) {
    std::ostringstream what;
    what << "factor of safety, slope " << std::round(slope.slope / degree) << "°";
    figures.push_back({what.str(),
                       "",
                       1.0,
                       smallest_factor(slope.soil(), 50.0, {slope.critical_circle()}),
                       {.absolute = 3e-3}});
  }
  return {.id = "SL-02",
          .subject = "Critical circles through the toe of frictionless slopes",
          .source = "Taylor (1937), Stability of earth slopes",
          .inputs =
              "slopes of 75° and 45°, 10 m high, c 0.219 and 0.170 gamma H, chord 41.8° and "
              "28.2°, half central angle 25.9° and 44.7°",
          .figures = figures};
}

}  // namespace

Chapter slip_circles() {
  return {
      "Slip circles",
      "The ordinary method on one given circle, without water. The second method of this system "
      "is a single pass in a form like Bishop's with the normal force of the ordinary method; "
      "no published factor of the simplified Bishop method compares with it.",
      {fredlund_and_krahn(), taylor()}};
}

}  // namespace ostrel::validation
