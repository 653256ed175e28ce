// SPDX-License-Identifier: Apache-2.0
#include "ostrel/layer_pressure.h"

#include "model/water_weight.h"
#include "services/class_frame.h"
#include "soil/pressure_diagram.h"

#include <ostrel/design_soil.h>
#include <sorrel/interpolation.h>

#include <cmath>
#include <cstddef>
#include <utility>

namespace {

using ostrel::soil::StepEnds;

// From the start of a diagram towards its end; downwards where the two are the same point.
xPoint2d unit_vector(const xPoint2d& start, const xPoint2d& end) {
  constexpr double same_point = 2.220446049250313e-13;  // [mm]
  const double dx = end.x - start.x;
  const double dy = end.y - start.y;
  const double length = std::sqrt(dx * dx + dy * dy);
  if (!(length >= same_point)) return {0.0, -1.0};
  return {dx / length, dy / length};
}

// What all layers of an earth pressure share.
struct PressureCase {
  formulType formula = formulaAtRest;  // the one in force
  double gamma = 0.0;
  double theta = 0.0;
  arma::Col<double>::fixed<2> acc{arma::fill::zeros};
  double spacing = 0.0;
  bool active = true;
};

// The coefficient for a whole layer: none of what it depends on changes inside of it.
void set_coefficient(xDesignSoil& soil, const PressureCase& pressure, double slope) {
  if (pressure.formula == formulaWood) {
    soil.setK(soil.steady(pressure.theta, slope));
  } else {
    soil.compute_Coeff(pressure.formula, pressure.theta, slope, pressure.acc, pressure.active);
  }
}

StepEnds step_pressure(const xDesignSoil& soil, const PressureCase& pressure,
                       const StepEnds& stress, double unit_weight, double thickness) {
  const double K = soil.getK();
  if (pressure.formula == formulaWood) {
    const double seismic = unit_weight * pressure.acc[0] * thickness;
    return ostrel::soil::wood_pressure(stress, K, seismic, pressure.gamma);
  }
  const double sign = pressure.active ? 1.0 : -1.0;
  const double cohesion_term = sign * 2.0 * soil.soil.getCohesion() * std::sqrt(K);
  return ostrel::soil::earth_pressure(stress, K, cohesion_term, pressure.gamma);
}

// The diagram of one layer. One level makes one point without a value, no level none.
xLayerPress layer_diagram(const xSoilLayer& layer, const xDesignSoil& soil,
                          const PressureCase& pressure, ostrel::soil::Overburden& overburden) {
  const double unit_weight =
      ostrel::soil::effective_weight(soil.soil, layer.getUnderWater(), pressure.acc[1]);
  const double ratio = ostrel::soil::slope_ratio(pressure.theta, layer.getAngle());
  xLayerPress diagram = ostrel::soil::empty_diagram(layer);
  diagram.points.resize(layer.levels.size());
  for (std::size_t k = 0; k + 1 < layer.levels.size(); ++k) {
    const double a = layer.levels[k];
    const double b = layer.levels[k + 1];
    const StepEnds stress = overburden.add_step(b - a, unit_weight, ratio);
    const StepEnds ends = step_pressure(soil, pressure, stress, unit_weight, b - a);
    diagram.points[k] = {a - layer.getDepth(), ends.top * pressure.spacing};
    diagram.points[k + 1] = {b - layer.getDepth(), ends.bottom * pressure.spacing};
  }
  diagram.computeResultant(pressure.formula == formulaRankine
                               ? layer.getAngle()
                               : soil.soil.getInterfaceFriction() + pressure.theta);
  return diagram;
}

}  // namespace

void xLayerPress::reset() {
  *this = xLayerPress{};
}

void xLayerPress::computeResultant(double angle) {
  const auto [R, position] = ostrel::soil::resultant_of(points);
  pos = position;
  Rx = -std::cos(angle) * R;
  Ry = -std::sin(angle) * R;
}

double xLayerPress::getPressAt(double s) const {
  for (std::size_t i = 1; i < points.size(); ++i) {
    const diag_Point& above = points[i - 1];
    const diag_Point& below = points[i];
    if (above.s <= s && s <= below.s) {
      return linInterpol(s, above.s, below.s, above.value, below.value);
    }
  }
  return 0.0;
}

xPoint2d xLayerPress::getGlobalPos(const double* s) const {
  const double distance = s ? *s : pos;
  const xPoint2d axis = unit_vector(start, end);
  return {start.x + distance * axis.x, start.y + distance * axis.y};
}

double xLayerPress::getLocalPos(const xPoint2d& point) const {
  const xPoint2d axis = unit_vector(start, end);
  return (point.x - start.x) * axis.x + (point.y - start.y) * axis.y;
}

std::string xLayerPress::getIOClass() const {
  return "xLayerPress";
}
void xLayerPress::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xLayerPress::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1.
void xLayerPress::Read(instream& in, int) {
  ostrel::read_fields(in, start, end, points, Rx, Ry, pos);
}
void xLayerPress::Write(outstream& out) const {
  ostrel::write_fields(out, start, end, points, Rx, Ry, pos);
}

void packLayerPress(std::vector<xLayerPress>& list) {
  if (list.size() < 2) return;
  for (xLayerPress& entry : list) {
    for (diag_Point& point : entry.points) {
      point.s += -entry.start.y;
    }
  }
  xLayerPress& whole = list.front();
  whole.end = list.back().end;
  for (std::size_t i = 1; i < list.size(); ++i) {
    whole.points.insert(whole.points.end(), list[i].points.begin(), list[i].points.end());
  }
  for (diag_Point& point : whole.points) {
    point.s -= -whole.start.y;
  }
  whole.computeResultant(0.0);
  list.erase(list.begin() + 1, list.end());
}

void xEarthPress::reset() {
  diagrams.clear();
}

OstrelErrorType xEarthPress::computeActiveEarthPress(geoFactorType type,
                                                     const std::vector<GeoCombFactor>& factors,
                                                     double gamma, formulType formula, double theta,
                                                     const std::vector<xSoilLayer>& layers,
                                                     arma::Col<double>::fixed<2> acc, double bottom,
                                                     double spacing) {
  if (layers.empty()) return ostrel::ok;
  const double top = layers.front().getDepth() - 1000.0;  // lets every layer in
  return compute_EarthPress(type, factors, gamma, formula, theta, layers, acc, spacing, true, top,
                            bottom, diagrams);
}

OstrelErrorType xEarthPress::compute_EarthPress(
    geoFactorType type, const std::vector<GeoCombFactor>& factors, double gamma, formulType formula,
    double theta, const std::vector<xSoilLayer>& layers, arma::Col<double>::fixed<2> acc,
    double spacing, bool active, double top, double bottom, std::vector<xLayerPress>& out) {
  const PressureCase pressure{.formula = active ? formula : formulaCoulomb,
                              .gamma = gamma,
                              .theta = theta,
                              .acc = acc,
                              .spacing = spacing,
                              .active = active};
  ostrel::soil::Overburden overburden;
  for (const xSoilLayer& layer : layers) {
    if (!ostrel::soil::ends_below(layer, top)) continue;
    if (!ostrel::soil::begins_above(layer, bottom)) break;
    xDesignSoil soil;
    soil.soil = layer.soil;
    soil.soil.applyGeoFactors(type, factors);
    set_coefficient(soil, pressure, layer.getAngle());
    out.push_back(layer_diagram(layer, soil, pressure, overburden));
  }
  return ostrel::ok;
}

std::string xEarthPress::getIOClass() const {
  return "xEarthPress";
}
void xEarthPress::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xEarthPress::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1.
void xEarthPress::Read(instream& in, int) {
  ostrel::read_fields(in, diagrams);
}
void xEarthPress::Write(outstream& out) const {
  ostrel::write_fields(out, diagrams);
}

void xHydrostaticPress::reset() {
  diagrams.clear();
}

int xHydrostaticPress::computeHydroPress(double water_depth, double gamma,
                                         const std::vector<xSoilLayer>& layers, double bottom,
                                         double spacing) {
  for (const xSoilLayer& layer : layers) {
    if (!ostrel::soil::begins_above(layer, bottom)) return 0;
    if (!layer.getUnderWater()) continue;
    xLayerPress diagram = ostrel::soil::empty_diagram(layer);
    for (const double z : layer.levels) {
      const double head = z - water_depth;
      diagram.points.emplace_back(
          z - layer.getDepth(),
          z > water_depth ? head * spacing * ostrel::model::water_unit_weight * gamma : 0.0);
    }
    diagram.computeResultant(layer.getAngle());
    diagrams.push_back(std::move(diagram));
  }
  return 0;
}

std::string xHydrostaticPress::getIOClass() const {
  return "xHydrostaticPress";
}
void xHydrostaticPress::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xHydrostaticPress::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1.
void xHydrostaticPress::Read(instream& in, int) {
  ostrel::read_fields(in, diagrams);
}
void xHydrostaticPress::Write(outstream& out) const {
  ostrel::write_fields(out, diagrams);
}
