// SPDX-License-Identifier: Apache-2.0
#include "ostrel/soil_spring.h"

#include "model/water_weight.h"
#include "services/class_frame.h"
#include "services/exact.h"

#include <ostrel/foundation_bearing.h>

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace {

constexpr double same_level = 1e-6;       // two levels nearer than this are one [mm]
constexpr double interval_margin = 1e-6;  // an interval is longer by this at both ends [-]

// The layers [first, last) of a column whose springs count.
struct LayerRange {
  std::size_t first = 0;
  std::size_t last = 0;
};

LayerRange embedded_layers(const std::vector<xSoilLayer>& layers, double depth, double length) {
  LayerRange range;
  bool found = false;
  for (std::size_t i = 0; i < layers.size(); ++i) {
    const double bottom = layers[i].getDepth() + layers[i].getThickness();
    if (!(bottom - depth >= same_level)) continue;
    if (!found) range.first = i;
    found = true;
    range.last = i;
    if (length - layers[i].getDepth() < same_level) break;
  }
  return range;
}

// What is the same for all springs of one combination.
struct Embedment {
  formulType formula;
  double theta;     // inclination of the wall's back [rad]
  double top;       // depth of the first embedded layer [mm]
  double embedded;  // embedded length of the wall [mm]
  double spacing;   // of the piles [mm]
  double limit;     // displacement at the limit load [mm]
  geoFactorType factor_type;
  const std::vector<GeoCombFactor>& factors;
  const std::vector<xSpringInterval>& intervals;
};

// One layer by its design values, as the foundation at any of its levels sees it.
struct DesignLayer {
  xBearCapacityData data;
  double weight = 0.0;               // effective unit weight [N/mm³]
  double passive_coefficient = 0.0;  // [-]
};

DesignLayer design_layer(const Embedment& wall, const xSoilLayer& layer) {
  DesignLayer design;
  xBearCapacityData& data = design.data;
  data.geometry.setWidth(wall.spacing);
  data.soil = layer.soil;
  data.soil.applyGeoFactors(wall.factor_type, wall.factors);
  data.setUnderWater(layer.getUnderWater());
  design.weight = layer.getUnderWater()
                    ? data.soil.getSaturatedUnitWeight() - ostrel::model::water_unit_weight
                    : data.soil.getUnitWeight();
  // The pressure under a stress of 1 is the coefficient, to the last bit, and one for all levels.
  data.setDepthStress(1.0);
  design.passive_coefficient = data.getPassivePress(wall.formula, wall.theta, layer.getAngle());
  return design;
}

// The soil above a layer as a height of the layer's own soil [mm].
class Overburden {
public:
  double height() const { return height_; }

  // Goes on to a layer of the given unit weight [N/mm³] and thickness [mm].
  void enter(double weight, double thickness) {
    if (below_another_) height_ = weight_ / weight * (thickness_ + height_);
    below_another_ = true;
    weight_ = weight;
    thickness_ = thickness;
  }

private:
  bool below_another_ = false;
  double weight_ = 0.0;     // of the layer entered last [N/mm³]
  double thickness_ = 0.0;  // likewise [mm]
  double height_ = 0.0;
};

// No pressure is reached without displacement, whatever the modulus.
double passive_limit(double pressure, double modulus) {
  const bool undefined =
      ostrel::exactly_equal(pressure, 0.0) && ostrel::exactly_equal(modulus, 0.0);
  return undefined ? 0.0 : pressure / modulus;
}

NodeModulus spring_at(const Embedment& wall, const DesignLayer& layer,
                      const xSpringInterval& interval, double limit_load) {
  NodeModulus spring;
  spring.type = interval.type;
  spring.ultimate_limit = wall.limit;
  spring.modulus = limit_load / wall.limit * interval.factor;
  spring.passive_limit =
      passive_limit(layer.passive_coefficient * layer.data.getDepthStress(), spring.modulus);
  return spring;
}

// Adds the springs of one layer whose top lies on `node`, under the overburden `height` [mm].
OstrelErrorType add_springs(const Embedment& wall, const xSoilLayer& layer, double height,
                            DesignLayer& design, std::int64_t node,
                            std::map<int, NodeModulus>& springs) {
  xBearCapacityFound foundation;
  for (const double level : layer.levels) {
    const double z = level - layer.getDepth();
    design.data.setDepthStress((z + height) * design.weight);
    design.data.geometry.setDepth(z);
    const auto code = foundation.compute_BearCapacity(design.data);
    if (code != ostrel::ok) return code;
    const xSpringInterval* interval = xSubgradeReactionModulus::find_SprInterval(
        wall.intervals, (level - wall.top) / wall.embedded);
    if (interval == nullptr) return errNoUltimatePressure;
    NodeModulus spring = spring_at(wall, design, *interval, foundation.getLimitLoad_Nmmq());
    spring.node = static_cast<std::int32_t>(node);
    spring.position = level;
    springs.insert_or_assign(springs.end(), spring.node, spring);
    ++node;
  }
  return ostrel::ok;
}

}  // namespace

double NodeModulus::getDyLim() const {
  if (type == xSpringInterval::limitUltimate) return ultimate_limit;
  if (type == xSpringInterval::limitPassive) return passive_limit;
  if (std::isnan(ultimate_limit)) return ultimate_limit;
  return ultimate_limit < passive_limit ? ultimate_limit : passive_limit;
}

double NodeModulus::getKmolla(double displacement) const {
  const double L = getDyLim();
  const double d = std::abs(displacement);
  return L >= d ? modulus : modulus * L / d;
}

double NodeModulus::q(double displacement) const {
  const double L = getDyLim();
  if (std::isnan(displacement) || std::abs(displacement) < L) return modulus * displacement;
  // Without this an unlimited spring that has no modulus would carry 0 times infinity.
  if (ostrel::exactly_equal(modulus, 0.0)) return 0.0;
  return displacement >= 0.0 ? modulus * L : -(modulus * L);
}

std::string NodeModulus::getIOClass() const {
  return "NodeModulus";
}
void NodeModulus::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void NodeModulus::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1.
void NodeModulus::Read(instream& in, int) {
  ostrel::read_fields(in, type, node, position, modulus, ultimate_limit);
}
void NodeModulus::Write(outstream& out) const {
  ostrel::write_fields(out, type, node, position, modulus, ultimate_limit);
}

OstrelErrorType xSubgradeReactionModulus::compute_SkSpring(
    int first_node, formulType formula, double theta, const std::vector<xSpringInterval>& intervals,
    geoFactorType factor_type, const std::vector<GeoCombFactor>& factors,
    const std::vector<xSoilLayer>& layers, double depth, double length, double spacing,
    double disp_limit) {
  clear();
  const LayerRange range = embedded_layers(layers, depth, length);
  if (range.first >= range.last) return ostrel::ok;

  const Embedment wall{.formula = formula,
                       .theta = theta,
                       .top = layers[range.first].getDepth(),
                       .embedded = length - depth,
                       .spacing = spacing,
                       .limit = disp_limit,
                       .factor_type = factor_type,
                       .factors = factors,
                       .intervals = intervals};
  Overburden above;
  std::int64_t node = first_node;
  for (std::size_t i = range.first; i < range.last; ++i) {
    const xSoilLayer& layer = layers[i];
    DesignLayer design = design_layer(wall, layer);
    above.enter(design.weight, layer.getThickness());
    const auto code = add_springs(wall, layer, above.height(), design, node, springs);
    if (code != ostrel::ok) return code;
    // The last level is the first of the next layer, whose spring replaces this one's.
    if (!layer.levels.empty()) node += static_cast<std::int64_t>(layer.levels.size()) - 1;
  }
  return ostrel::ok;
}

const xSpringInterval* xSubgradeReactionModulus::find_SprInterval(
    const std::vector<xSpringInterval>& intervals, double x) {
  const auto found =
      std::find_if(intervals.begin(), intervals.end(), [x](const xSpringInterval& interval) {
        return x >= interval.start - interval_margin && interval.end + interval_margin >= x;
      });
  return found == intervals.end() ? nullptr : &*found;
}

std::string xSubgradeReactionModulus::getIOClass() const {
  return "xSubgradeReactionModulus";
}
void xSubgradeReactionModulus::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xSubgradeReactionModulus::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1.
void xSubgradeReactionModulus::Read(instream& in, int) {
  ostrel::read_fields(in, springs);
}
void xSubgradeReactionModulus::Write(outstream& out) const {
  ostrel::write_fields(out, springs);
}
