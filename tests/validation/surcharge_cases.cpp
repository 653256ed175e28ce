// SPDX-License-Identifier: Apache-2.0
#include "soil/surcharge_laws.h"
#include "validation/chapters.h"
#include "validation/diagram_sums.h"
#include "validation/units.h"

#include <ostrel/load_pressure.h>
#include <ostrel/soil_load.h>

#include <algorithm>
#include <sstream>

namespace ostrel::validation {
namespace {

/// Ground down to `height` [mm] in a thousand steps.
std::vector<xSoilLayer> fine_column(double height) {
  return {testing::layer_of(testing::smooth_soil(), levels_between(0.0, height, 1000))};
}

Case budhu_strip() {
  constexpr double H = 19 * metre;
  const osg::ref_ptr<xNastriformLoad> load = new xNastriformLoad;
  load->setStartValue(100 * kPa);
  load->setEndValue(100 * kPa);
  load->setPosition(3 * metre);
  load->setExtension(2 * metre);
  std::vector<xSoilLayer> layers = fine_column(H);
  layers[0].levels.push_back(5 * metre);  // a level where the source has its figure
  std::sort(layers[0].levels.begin(), layers[0].levels.end());
  const auto diagrams =
      xNastriform{}.computeLoadPress(load.get(), 1.0, 0.0, layers, {0.0, 0.0}, H, 1.0).diagrams;
  const Tolerance digits{.relative = 5e-4};
  return {.id = "SU-01",
          .subject = "Strip load",
          .source =
              "Budhu, Soil Mechanics and Foundations (2011); groundhog, "
              "test_stressdistributions.py",
          .inputs = "100 kPa from 3 to 5 m behind a wall of 19 m",
          .figures = {
              {"pressure at 5 m", "kPa", 11.85, diagrams[0].getPressAt(5 * metre) / kPa, digits},
              {"thrust", "kN/m", 121.83, sum_of(diagrams).force / kN * metre, digits}}};
}

std::string at_distance(const char* what, double m) {
  std::ostringstream text;
  text << what << ", m " << m;
  return text.str();
}

struct Resultant {
  double m;          // distance over height [-]
  double published;  // P / Q, or P H / Q
  double height;     // above the base, over the height of the wall [-]
};

Case terzaghi_line() {
  constexpr double H = 10 * metre;
  constexpr double Q = 50.0;  // [N/mm]
  std::vector<Figure> figures;
  for (const Resultant& each : {Resultant{0.1, 0.55, 0.60}, Resultant{0.3, 0.55, 0.60},
                                Resultant{0.5, 0.512, 0.56}, Resultant{0.7, 0.4295, 0.48}}) {
    const osg::ref_ptr<xLinearLoad> load = new xLinearLoad;
    load->setPosition(each.m * H);
    load->setValue(Q);
    const DiagramSum sum =
        sum_of(xLinear{}
                   .computeLoadPress(load.get(), 1.0, 0.0, fine_column(H), {0.0, 0.0}, H, 1.0)
                   .diagrams);
    figures.push_back(
        {at_distance("P/Q", each.m), "", each.published, sum.force / Q, {.relative = 0.01}});
    figures.push_back({at_distance("height/H", each.m),
                       "",
                       each.height,
                       1.0 - sum.moment / sum.force / H,
                       {.absolute = 0.012}});
  }
  return {.id = "SU-03",
          .subject = "Line load: thrust and its height above the base",
          .source = "Terzaghi (1954); NAVFAC DM-7.02, figure 11, carried over from memory",
          .inputs = "m is the distance over the height",
          .figures = figures};
}

/// The pressure opposite to the load; P is its sum over the height for a unit of width.
Case terzaghi_point() {
  constexpr double H = 10 * metre;
  constexpr int steps = 1000;
  std::vector<Figure> figures;
  for (const Resultant& each :
       {Resultant{0.2, 0.78, 0.59}, Resultant{0.4, 0.78, 0.59}, Resultant{0.6, 0.45, 0.48}}) {
    double force = 0.0;
    double moment = 0.0;
    for (int i = 0; i < steps; ++i) {
      const double n = (i + 0.5) / steps;
      const double influence = soil::point_influence(each.m * H, H, n * H);
      force += influence / steps;
      moment += influence * n / steps;
    }
    figures.push_back(
        {at_distance("P H/Q", each.m), "", each.published, force, {.relative = 0.025}});
    figures.push_back({at_distance("height/H", each.m),
                       "",
                       each.height,
                       1.0 - moment / force,
                       {.absolute = 0.005}});
  }
  return {.id = "SU-04",
          .subject = "Point load: thrust opposite to it and its height above the base",
          .source = "NAVFAC DM-7.02, figure 11, carried over from memory",
          .inputs = "m is the distance over the height",
          .figures = figures};
}

}  // namespace

Chapter surcharges() {
  return {
      "Loads on the ground",
      "The figures of the line and the point load are read from a chart of two to three digits; "
      "the laws beside them are the same.",
      {budhu_strip(), terzaghi_line(), terzaghi_point()}};
}

}  // namespace ostrel::validation
