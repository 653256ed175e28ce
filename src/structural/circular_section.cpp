// SPDX-License-Identifier: Apache-2.0
// The designer of a circle.
#include "ostrel/concrete_section.h"
#include "structural/bar_layout.h"
#include "structural/shear_truss.h"

#include <cmath>
#include <cstdint>
#include <numbers>

using ostrel::structural::as_int;
using ostrel::structural::too_many;

namespace {

constexpr int outline_corners = 40;

// The place on a circle around the origin, `i` steps of `n` from the x axis.
template <class Place>
Place on_circle(double radius, std::uint32_t i, std::uint32_t n) {
  const double angle = 2.0 * std::numbers::pi * i / n;
  return {radius * std::cos(angle), radius * std::sin(angle)};
}

}  // namespace

circ_ConcreteSection::circ_ConcreteSection(double D,
                                           const osg::ref_ptr<xReinforcement_Settings>& settings)
    : ConcreteSection(settings), D_(D), record_(new xReinfCircSection) {}

circ_ConcreteSection* circ_ConcreteSection::clone() const {
  osg::ref_ptr<circ_ConcreteSection> copy = new circ_ConcreteSection(D_, settings_);
  copy->record_ = record_->clone();
  if (is_built()) {
    copy->build();
    copy->setReinfBars();
  }
  return copy.release();
}

const xCircularReinfSettings* circ_ConcreteSection::getSettings() const {
  return dynamic_cast<const xCircularReinfSettings*>(settings_.get());
}

bool circ_ConcreteSection::build() {
  std::vector<Place> outline;
  for (std::uint32_t i = 0; i < outline_corners; ++i) {
    outline.push_back(on_circle<Place>(D_ / 2.0, i, outline_corners));
  }
  build_section(outline);
  return true;
}

void circ_ConcreteSection::setReinfBars() {
  if (!is_built() || !settings_) return;
  const xReinforcementBar& ring = record_->AValleEff();
  const std::uint32_t n = too_many(ring) ? 0 : ring.getNumber();
  std::vector<Place> places;
  for (std::uint32_t i = 0; i < n; ++i) {
    places.push_back(on_circle<Place>(D_ / 2.0 - settings_->getCover(), i, n));
  }
  lay_out(places, std::vector<double>(places.size(), ring.getDiameter()));
}

void circ_ConcreteSection::beginDesign(double abscissa) {
  record_ = new xReinfCircSection;
  record_->setAbscissa(abscissa);
  const xCircularReinfSettings* settings = getSettings();
  if (!settings) return;

  xReinforcementBar& ring = record_->AValleEff();
  ring.setDiameter(settings->getBarDiam());
  ring.calcBarNumFromArea(std::numbers::pi * D_ * D_ / 4.0 * settings->getMinRatio() / 100.0);
  xBracket bracket;
  bracket.setDiameter(settings->bracket.bar.getDiameter());
  bracket.setStep(settings->bracket.getMaxStep());
  record_->setBracket(bracket);  // with two arms, whatever the settings say
}

bool circ_ConcreteSection::AxialDesign(double N, double M) {
  const xCircularReinfSettings* settings = getSettings();
  if (!settings) return false;
  if (!(std::isfinite(N) && std::isfinite(M))) return true;
  xReinforcementBar& ring = record_->AValleEff();
  const double ac = std::numbers::pi * D_ * D_ / 4.0;
  setReinfBars();
  double sf = getsf(N, M);
  while (sf < 1.0 && ring.area() / ac * 100.0 <= settings->getMaxRatio()) {
    const std::uint32_t before = ring.getNumber();
    ring.addBars(as_int(settings->getStep()));
    if (ring.getNumber() == before || too_many(ring)) return true;
    if (!(ring.barArea() > 0.0)) continue;  // such bars change nothing
    setReinfBars();
    sf = getsf(N, M);
  }
  return true;
}

bool circ_ConcreteSection::ShearDesign(double V) {
  const xCircularReinfSettings* settings = getSettings();
  if (!settings) return false;
  const xBracket needed = xCircShear{}.reinforcementDesign(D_, V, settings);
  if (record_->getBracket().AswForStep() < needed.AswForStep()) record_->setBracket(needed);
  return true;
}

bool circ_ConcreteSection::ShearChek(double V, xShear& out) {
  const xCircularReinfSettings* settings = getSettings();
  if (!settings) return false;
  const auto equivalent = ostrel::structural::equivalent_rectangle(D_, settings->getCover());
  out.setVd(V);
  out.calcShearStrength(equivalent.b, equivalent.h, settings->getCover(), settings->material,
                        record_->getBracket());
  return true;
}

bool circ_ConcreteSection::setReinforcement(const osg::ref_ptr<xReinfCrossSection>& record) {
  auto* given = dynamic_cast<xReinfCircSection*>(record.get());
  if (!is_built() || !given || too_many(given->AValleEff())) return false;
  record_ = given->clone();
  setReinfBars();
  return true;
}
