// SPDX-License-Identifier: Apache-2.0
// What both shapes of a section share.
#include "ostrel/concrete_section.h"

#include "ostrel/check_frame.h"

#include <ferrule/concrete_domain.h>
#include <ferrule/slu_material.h>
#include <ferrule/ultimate_section.h>

#include <cmath>
#include <numbers>

namespace {

// Perfectly plastic steel is steel whose branch after yielding is flatter than this [N/mm²].
constexpr double flat_branch = 1e-7;

Ferrule::ClsSLUParameters material_of(const xMaterialProps& material) {
  const xConcreteProps& concrete = material.concrete;
  const xSteelProps& steel = material.steel;
  const double slope = steel.getEpostYeld();
  return {.Es = steel.Es(),
          .GammaC = concrete.getGammaC(),
          .GammaS = steel.getGammaS(),
          .Rck = concrete.getRck(),
          .AlfaCC = concrete.getAlfaCC(),
          .Fyk = steel.Fyk(),
          .Eta = 1.0,
          .Ec2 = concrete.getEc2(),
          .Ecu = concrete.getEcu(),
          .Slope = slope,
          .Plastic = std::abs(slope) < flat_branch ? 1 : 0,
          .EudTension = steel.Eud(),
          .EudCompression = steel.Eud()};
}

}  // namespace

double designSection::getsf(double N, double M) {
  return CalculateSF(M, getAbsMresist(N, M >= 0.0));
}

ConcreteSection::ConcreteSection(const osg::ref_ptr<xReinforcement_Settings>& settings)
    : settings_(settings) {}

ConcreteSection::~ConcreteSection() = default;

ConcreteSection* ConcreteSection::createClsSection(
    const xCrossSecProp* prop, osg::ref_ptr<xReinforcement_Settings>& settings) {
  osg::ref_ptr<ConcreteSection> section;
  if (const auto* circle = dynamic_cast<const xCircSecProp*>(prop)) {
    if (!dynamic_cast<const xCircularReinfSettings*>(settings.get())) return nullptr;
    section = new circ_ConcreteSection(2.0 * circle->getRadius(), settings);
  } else if (const auto* rectangle = dynamic_cast<const xRectSecProp*>(prop)) {
    if (!dynamic_cast<const xRectReinfSettings*>(settings.get())) return nullptr;
    section = new rect_ConcreteSection(rectangle->getSecond(), rectangle->getFirst(), settings);
  }
  if (!section || !section->build()) return nullptr;
  return section.release();
}

double ConcreteSection::getAbsMresist(double N, bool positive) {
  if (!section_) return 0.0;
  constexpr double tolerance = 1e-7;
  constexpr int iterations = 20;
  const double angle = positive ? 0.0 : std::numbers::pi;
  Ferrule::Deform deform;
  double moment = 0.0;
  double at_right_angles = 0.0;
  const bool found = section_->resistingMoment(N, angle, moment, at_right_angles, tolerance, deform,
                                               iterations, false);
  return found ? moment : 0.0;
}

void ConcreteSection::build_section(const std::vector<Place>& outline) {
  std::vector<double> x;
  std::vector<double> y;
  for (const Place& corner : outline) {
    x.push_back(corner.x);
    y.push_back(corner.y);
  }
  auto domain = std::make_unique<Ferrule::ClsDomain>();
  domain->setExternBoundary(static_cast<int>(outline.size()), x.data(), y.data());
  if (settings_) {
    const Ferrule::ClsSLUModel model(material_of(settings_->material));
    domain->setMatModel(&model);
  }
  domain->setScaleCoefficient(1.0);
  domain->setName("Esist.");
  section_ = std::make_unique<Ferrule::Section>();
  section_->Add_Domain(domain.release());
}

void ConcreteSection::lay_out(const std::vector<Place>& places,
                              const std::vector<double>& diameters) {
  auto* domain = dynamic_cast<Ferrule::ClsDomain*>(section_->getComponent(0));
  if (!domain) return;
  std::vector<Ferrule::SteelBar> bars(places.size());
  for (std::size_t i = 0; i < places.size(); ++i) {
    bars[i].setPosR(places[i].x, places[i].y, diameters[i] / 2.0);
  }
  domain->setBars(static_cast<int>(bars.size()), bars.data());
}
