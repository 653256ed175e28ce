// SPDX-License-Identifier: Apache-2.0
#include "ostrel/load_pressure.h"

#include "services/class_frame.h"
#include "soil/pressure_diagram.h"
#include "soil/surcharge_laws.h"

#include <numbers>
#include <utility>

using ostrel::base_frame;

namespace {

// Lays a pressure over the layers above `depth`. `law_of(layer, ratio)` gives for each layer, with
// its slope ratio, a function from a depth [mm] to the value there [N/mm].
template <class LawOfLayer>
xLoadPress over_layers(const xObjectID& load, double theta, const std::vector<xSoilLayer>& layers,
                       double depth, const LawOfLayer& law_of) {
  xLoadPress press;
  press.copy(load);
  for (const xSoilLayer& layer : layers) {
    if (!ostrel::soil::begins_above(layer, depth)) break;
    const auto value_at = law_of(layer, ostrel::soil::slope_ratio(theta, layer.getAngle()));
    xLayerPress diagram = ostrel::soil::empty_diagram(layer);
    for (const double z : layer.levels) {
      diagram.points.emplace_back(z - layer.getDepth(), value_at(z));
    }
    diagram.computeResultant(layer.getAngle());
    press.diagrams.push_back(std::move(diagram));
  }
  return press;
}

}  // namespace

void xLoadPress::reset() {
  xObjectID::reset();
  diagrams.clear();
}

std::string xLoadPress::getIOClass() const {
  return "xLoadPress";
}
void xLoadPress::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xLoadPress::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1.
void xLoadPress::Read(instream& in, int) {
  ostrel::read_fields(in, base_frame<xObjectID>(*this), diagrams);
}
void xLoadPress::Write(outstream& out) const {
  ostrel::write_fields(out, base_frame<xObjectID>(*this), diagrams);
}

void xLoadCondPress::reset() {
  xObjectID::reset();
  loads.clear();
}

std::string xLoadCondPress::getIOClass() const {
  return "xLoadCondPress";
}
void xLoadCondPress::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xLoadCondPress::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1.
void xLoadCondPress::Read(instream& in, int) {
  ostrel::read_fields(in, base_frame<xObjectID>(*this), loads);
}
void xLoadCondPress::Write(outstream& out) const {
  ostrel::write_fields(out, base_frame<xObjectID>(*this), loads);
}

void xUniform::reset() {
  designSoil.reset();
}

xLoadPress xUniform::compute_LoadPress(xUniformLoad* load, geoFactorType type,
                                       const std::vector<GeoCombFactor>& factors, double gamma,
                                       formulType formula, double theta,
                                       const std::vector<xSoilLayer>& layers,
                                       arma::Col<double>::fixed<2> acc, double depth,
                                       double spacing) {
  if (!load) return {};
  const double kv = acc[1];
  return over_layers(*load, theta, layers, depth, [&](const xSoilLayer& layer, double ratio) {
    designSoil.soil = layer.soil;
    designSoil.soil.applyGeoFactors(type, factors);
    designSoil.compute_Coeff(formula, theta, layer.getAngle(), acc, true);
    const double value =
        gamma * spacing * ratio * load->getValue() * designSoil.getK() * (1.0 - kv);
    return [value](double) { return value; };
  });
}

xLoadPress xNastriform::computeLoadPress(xNastriformLoad* load, double gamma, double theta,
                                         const std::vector<xSoilLayer>& layers,
                                         const arma::Col<double>::fixed<2>& acc, double depth,
                                         double spacing) {
  if (!load) return {};
  const double kv = acc[1];
  const double mean = (load->getStartValue() + load->getEndValue()) * (1.0 - kv) / 2.0;
  return over_layers(*load, theta, layers, depth, [&](const xSoilLayer&, double ratio) {
    return [&, ratio](double z) {
      return ostrel::soil::strip_influence(load->getPosition(), load->getExtension(), z)
           * (2.0 * gamma * spacing) * mean * ratio / std::numbers::pi;
    };
  });
}

xLoadPress xLinear::computeLoadPress(xLinearLoad* load, double gamma, double theta,
                                     const std::vector<xSoilLayer>& layers,
                                     arma::Col<double>::fixed<2> acc, double depth,
                                     double spacing) {
  if (!load) return {};
  const double kv = acc[1];
  return over_layers(*load, theta, layers, depth, [&](const xSoilLayer&, double ratio) {
    return [&, ratio](double z) {
      return ostrel::soil::line_influence(load->getPosition(), depth, z) * load->getValue() * ratio
           * spacing * (1.0 - kv) * gamma;
    };
  });
}

xLoadPress xPuntiform::computeLoadPress(xPuntiformLoad* load, double gamma, double theta,
                                        const std::vector<xSoilLayer>& layers,
                                        arma::Col<double>::fixed<2> acc, double depth,
                                        double spacing) {
  if (!load) return {};
  const double kv = acc[1];
  const double width = ostrel::soil::point_spread(load->getPosition(), spacing);
  return over_layers(*load, theta, layers, depth, [&](const xSoilLayer&, double ratio) {
    return [&, ratio](double z) {
      return ratio * (1.0 - kv) * load->getValue() / (depth * depth) * gamma * width
           * ostrel::soil::point_influence(load->getPosition(), depth, z);
    };
  });
}
