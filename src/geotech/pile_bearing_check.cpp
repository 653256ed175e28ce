// SPDX-License-Identifier: Apache-2.0
#include "ostrel/pile_bearing_check.h"

#include "geotech/pile_resistance.h"
#include "model/pile_wall.h"
#include "ostrel/results.h"
#include "ostrel/tolerances.h"
#include "services/class_frame.h"
#include "services/exact.h"
#include "structural/verification_frame.h"

#include <quillet/translation.h>
#include <sorrel/cross_section.h>

#include <cmath>
#include <cstddef>
#include <map>
#include <numbers>

namespace geotech = ostrel::geotech;

namespace {

xSoilProps design_soil(const xSoilProps& soil, const std::vector<GeoCombFactor>& factors) {
  xSoilProps design = soil;
  design.applyGeoFactors(geoFactorResistance, factors);
  return design;
}

// The friction angle with which the charts are entered.
double chart_angle(double phi, const xBearCapacityPileSettings& settings) {
  if (!settings.getApplyKishida()) return phi;
  return geotech::angle_after_installation(phi * 180.0 / std::numbers::pi,
                                           settings.getTechnologyType());
}

// The vertical stress at the lower end of the layers, with design weights [N/mm²].
double stress_at_tip(const xBearCapacityPileData& data, const std::vector<GeoCombFactor>& factors) {
  double stress = data.getTopStress();
  for (const xSoilLayer& layer : data.layers) {
    stress +=
        geotech::effective_weight(design_soil(layer.soil, factors), layer) * layer.getThickness();
  }
  return stress;
}

double friction_angle(const xSoilProps& soil) {
  const double phi = soil.getInternalFriction();
  return std::abs(phi) < (*getTolerances())[xTolerances::friction_angle] ? 0.0 : phi;
}

bool has_size(const bearSecPile& section) {
  return section.getArea() > 0.0 && section.d > 0.0 && std::isfinite(section.getArea());
}

// @return false for a section that a pile cannot have
bool set_section(xBearCapacityPileData& pile, const xPile_Sheetpiling& wall) {
  const xCrossSecProp* section = wall.section.get();
  if (const auto* circle = dynamic_cast<const xCircSecProp*>(section)) {
    pile.setSectionCirc(2.0 * circle->getRadius());
  } else if (const auto* rectangle = dynamic_cast<const xRectSecProp*>(section)) {
    pile.setSectionRect(rectangle->getFirst(), rectangle->getSecond(),
                        wall.checkSettings.pileSettings.getDiamMethod());
  } else {
    return false;
  }
  return has_size(pile.getSection());
}

std::vector<xSoilLayer> embedded_layers(const std::vector<xSoilLayer>& layers, double excavation,
                                        double foot) {
  std::vector<xSoilLayer> embedded;
  for (const xSoilLayer& layer : layers) {
    if (!(layer.getDepth() >= excavation)) continue;
    if (!(layer.getDepth() + layer.getThickness() <= foot)) break;
    embedded.push_back(layer);
    embedded.back().setDepth(layer.getDepth() - excavation);
  }
  return embedded;
}

// The force at the deepest node that has one, reversed: compression is positive [N].
OstrelErrorType axial_load(const std::vector<xPoint2d>& nodes,
                           const std::map<int, xFemNodeData>& forces, double& load) {
  load = 0.0;
  double deepest = 0.0;
  for (const auto& [node, force] : forces) {
    if (!(node >= 0 && static_cast<std::size_t>(node) < nodes.size())) return errFemNodeNotFound;
    const double depth = nodes[static_cast<std::size_t>(node)].y;
    if (!(depth > deepest)) continue;
    deepest = depth;
    load = -force.x;
  }
  return ostrel::ok;
}

double factor_of(const xLoadComb& comb, checkUlsFactors key) {
  const auto entry = comb.ulsFactors.find(key);
  return entry == comb.ulsFactors.end() ? 1.0 : entry->second;
}

xPilePartialFactors partial_factors(const xLoadComb& comb) {
  xPilePartialFactors factors;
  factors.factors = comb.geoFactors;
  factors.setGammaB(factor_of(comb, factorPileBase));
  factors.setGammaS(factor_of(comb, factorPileShaftCompression));
  factors.setGammaST(factor_of(comb, factorPileShaftTension));
  return factors;
}

}  // namespace

void xBearCapacityPileData::reset() {
  *this = xBearCapacityPileData{};
}

void xBearCapacityPileData::setSectionCirc(double diameter) {
  section_.reset();
  section_.d = diameter;
}

void xBearCapacityPileData::setSectionRect(double first, double second,
                                           bearSecPile::evalDiamMethod method) {
  section_.type = 1;
  section_.method = method;
  section_.d = first;
  section_.h = second;
}

void xPilePartialFactors::reset() {
  GammaB = 1.0;
  GammaS = 1.0;
  GammaST = 1.0;
}

void xPilePartialFactors::clear() {
  factors.clear();
}

bearCapacityCheckInfo* bearCapacityCheckInfo::clone() const {
  return new bearCapacityCheckInfo(*this);
}

std::string bearCapacityCheckInfo::getString() const {
  return ostrel::structural::failure_text(
      quillet::translatable("Verifica a carico limite non soddisfatta: comb="), *this);
}

OstrelErrorType xBearCapacityPile::check(const xBearCapacityPileData& data,
                                         const xBearCapacityPileSettings& settings,
                                         const xPilePartialFactors& factors) {
  if (const auto code = computeResistances(data, settings, factors); code != ostrel::ok) {
    return code;
  }
  Fd = data.getLoad() + data.getPileWeight();
  const double gl = factors.getGammaLatSurf(Fd);
  const double xi = settings.getValueType() == 0 ? settings.getCsi3() : settings.getCsi4();
  Rd = Slim / (gl * xi) + Plim / (factors.getGammaB() * xi);
  return ostrel::ok;
}

OstrelErrorType xBearCapacityPile::computeResistances(const xBearCapacityPileData& data,
                                                      const xBearCapacityPileSettings& settings,
                                                      const xPilePartialFactors& factors) {
  if (data.layers.empty()) return ostrel::ok;
  const xSoilProps tip = design_soil(data.layers.back().soil, factors.factors);
  const double phi = chart_angle(tip.getInternalFriction(), settings);
  Nq = computeNq(data, phi);
  Nc = computeNc(data, phi);
  DepthStress = stress_at_tip(data, factors.factors);
  Plim = (tip.getCohesion() * Nc + DepthStress * Nq) * data.pile_Area();
  compute_shaft(data, settings.getTechnologyType(), tip, factors.factors);
  return ostrel::ok;
}

double xBearCapacityPile::computeNq(const xBearCapacityPileData& data, double phi) const {
  return geotech::tip_factor_overburden(phi, data.getSection().getEqvDiam(), data.getLength());
}

double xBearCapacityPile::computeNc(const xBearCapacityPileData& data, double phi) const {
  return geotech::tip_factor_cohesion(phi, data.getSection().getEqvDiam(), data.getLength());
}

void xBearCapacityPile::compute_shaft(const xBearCapacityPileData& data, xtechPiles technology,
                                      xSoilProps tip, const std::vector<GeoCombFactor>& factors) {
  const double perimeter = data.pile_Perim();
  const double K = geotech::shaft_pressure_coefficient(technology, tip.getIsDense());
  for (const xSoilLayer& layer : data.layers) {
    tip.applyGeoFactors(geoFactorResistance, factors);
    const double phi = friction_angle(tip);
    const double c = tip.getCohesion();
    if (ostrel::exactly_equal(phi, 0.0)) {
      Slim = perimeter * layer.getThickness() * geotech::adhesion_factor(c, technology) * c;
      continue;
    }
    const auto shaft =
        geotech::shaft_friction(layer, perimeter, K * std::tan(phi), data.getTopStress());
    Slim = shaft.resistance;
    DepthStress = shaft.stress;
  }
}

osg::ref_ptr<bearCapacityCheckInfo> xBearCapacityPile::getCheckInfo() const {
  osg::ref_ptr<bearCapacityCheckInfo> info = new bearCapacityCheckInfo;
  ostrel::structural::identify(*info, *this, getSf());
  return info;
}

void xBearCapacityPile::reset() {
  *this = xBearCapacityPile{};
}

std::string xBearCapacityPile::getIOClass() const {
  return "xBearCapacityPile";
}
void xBearCapacityPile::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xBearCapacityPile::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1, after its base.
void xBearCapacityPile::Read(instream& in, int) {
  ostrel::read_fields(in, ostrel::base_frame<xCheckCombID>(*this), DepthStress, Nq, Nc, Plim, Slim,
                      Fd, Rd);
}
void xBearCapacityPile::Write(outstream& out) const {
  ostrel::write_fields(out, ostrel::base_frame<xCheckCombID>(*this), DepthStress, Nq, Nc, Plim,
                       Slim, Fd, Rd);
}

OstrelErrorType xGeotechnicalPileDesign::check(const std::vector<xPoint2d>& nodes,
                                               const xSheetpilingData& data,
                                               const std::vector<xSoilLayer>& layers,
                                               const std::vector<xCombResults>& combinations) {
  const xPile_Sheetpiling* wall = ostrel::model::pile_wall(data);
  if (!wall) return errNoWall;
  xBearCapacityPileData pile;
  if (!set_section(pile, *wall)) return errInvalidSection;
  pile.setLength(wall->getLength() - wall->getDepth());
  pile.setPileWeight(wall->material.getUnitWeight() * wall->getLength());
  pile.layers = embedded_layers(layers, wall->getDepth(), wall->getLength());
  if (!(combinations.size() <= data.loadCombs.size())) return errResultCount;
  for (std::size_t i = 0; i < combinations.size(); ++i) {
    if (!data.loadCombs[i].checkActive(checkVerticalLimitLoad)) continue;
    const auto code = append_result(nodes, *wall, data.loadCombs[i], combinations[i], pile);
    if (code != ostrel::ok) return code;
  }
  computeSfMin();
  return ostrel::ok;
}

OstrelErrorType xGeotechnicalPileDesign::append_result(const std::vector<xPoint2d>& nodes,
                                                       const xPile_Sheetpiling& wall,
                                                       const xLoadComb& comb,
                                                       const xCombResults& combination,
                                                       xBearCapacityPileData& pile) {
  double load = 0.0;
  const auto found = axial_load(nodes, combination.femResults.nodalForces, load);
  if (found != ostrel::ok) return found;
  pile.setLoad(load);
  xBearCapacityPile result;
  result.setCheckID(wall.getIdObj(), combination.getcombIndex(), combination.getCombName());
  const auto code = result.check(pile, wall.checkSettings.pileSettings, partial_factors(comb));
  if (code != ostrel::ok) return code;
  results.push_back(result);
  return ostrel::ok;
}

double xGeotechnicalPileDesign::getSfMin(ostrel::structural::Failures* failures) {
  ostrel::structural::scan_records(
      *this, results, failures, [](const xBearCapacityPile& result) { return result.getSf(); },
      [](const xBearCapacityPile& result, double) {
        return osg::ref_ptr<xCheckInfo>(result.getCheckInfo().get());
      });
  return sf;
}

void xGeotechnicalPileDesign::reset() {
  xBaseResults::reset();
  results.clear();
}

std::string xGeotechnicalPileDesign::getIOClass() const {
  return "xGeotechnicalPileDesign";
}
void xGeotechnicalPileDesign::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xGeotechnicalPileDesign::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1, after its base.
void xGeotechnicalPileDesign::Read(instream& in, int) {
  ostrel::read_fields(in, ostrel::base_frame<xBaseResults>(*this), results);
}
void xGeotechnicalPileDesign::Write(outstream& out) const {
  ostrel::write_fields(out, ostrel::base_frame<xBaseResults>(*this), results);
}
