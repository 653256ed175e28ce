// SPDX-License-Identifier: Apache-2.0
// The designer of a rectangle.
#include "ostrel/concrete_section.h"
#include "services/exact.h"
#include "structural/bar_layout.h"

#include <ferrule/ultimate_section.h>

#include <array>
#include <cmath>
#include <cstdint>

using ostrel::structural::as_int;
using ostrel::structural::too_many;

namespace {

constexpr double same_ratio = 1e-5;  // ratios nearer than this are the same [-]

// How many bars each group has, to see whether a step of growth changed anything.
std::array<std::uint32_t, 3> counts(xReinfRectSection& record) {
  return {record.AVerticeEff().getNumber(), record.AValleEff().getNumber(),
          record.AMonteEff().getNumber()};
}

bool has_too_many(xReinfRectSection& record) {
  return too_many(record.AVerticeEff()) || too_many(record.AValleEff())
      || too_many(record.AMonteEff());
}

}  // namespace

rect_ConcreteSection::rect_ConcreteSection(double b, double h,
                                           const osg::ref_ptr<xReinforcement_Settings>& settings)
    : ConcreteSection(settings), b_(b), h_(h), record_(new xReinfRectSection) {}

rect_ConcreteSection* rect_ConcreteSection::clone() const {
  osg::ref_ptr<rect_ConcreteSection> copy = new rect_ConcreteSection(b_, h_, settings_);
  copy->record_ = record_->clone();
  if (is_built()) {
    copy->build();
    copy->setReinfBars();
  }
  return copy.release();
}

const xRectReinfSettings* rect_ConcreteSection::getSettings() const {
  return dynamic_cast<const xRectReinfSettings*>(settings_.get());
}

bool rect_ConcreteSection::build() {
  const double x = b_ / 2.0;
  const double y = h_ / 2.0;
  build_section({{-x, -y}, {x, -y}, {x, y}, {-x, y}});
  return true;
}

void rect_ConcreteSection::setReinfBars() {
  if (!is_built() || !settings_) return;
  const double c = settings_->getCover();
  const double bx = (b_ - 2.0 * c) / 2.0;
  const double by = (h_ - 2.0 * c) / 2.0;
  std::vector<Place> places;
  std::vector<double> diameters;
  const xReinforcementBar& vertex = record_->AVerticeEff();
  if (record_->vertexBars && vertex.getNumber() > 0 && vertex.area() > 0.0) {
    places = {{-bx, -by}, {bx, -by}, {bx, by}, {-bx, by}};
    diameters.assign(places.size(), vertex.getDiameter());
  }
  const auto add_row = [&](const xReinforcementBar& row, double y) {
    const std::uint32_t n = too_many(row) ? 0 : row.getNumber();
    for (std::uint32_t i = 1; i <= n; ++i) {
      const double t = static_cast<double>(i) / (static_cast<double>(n) + 1.0);
      places.push_back({-bx + t * (2.0 * bx), y});
      diameters.push_back(row.getDiameter());
    }
  };
  add_row(record_->AValleEff(), by);
  add_row(record_->AMonteEff(), -by);
  lay_out(places, diameters);
}

void rect_ConcreteSection::beginDesign(double abscissa) {
  record_ = new xReinfRectSection;
  record_->setAbscissa(abscissa);
  const xRectReinfSettings* settings = getSettings();
  if (!settings) return;

  record_->vertexBars = settings->useVertexBars;
  xReinforcementBar& vertex = record_->AVerticeEff();
  vertex.setDiameter(settings->useVertexBars ? settings->getBarDiam() : 0.0);
  if (settings->useVertexBars) vertex.setNumber(4);
  const double a = b_ * h_;
  const double v = vertex.area() / 2.0;
  record_->AValleEff().setDiameter(settings->getBarDiam());
  record_->AMonteEff().setDiameter(settings->getBarDiam());
  record_->AValleEff().calcBarNumFromArea(a * settings->minValle / 100.0 - v);
  record_->AMonteEff().calcBarNumFromArea(a * settings->minMonte / 100.0 - v);

  xBracket bracket;
  bracket.setDiameter(settings->bracket.bar.getDiameter());
  bracket.setNArms(settings->bracket.getNArms());
  bracket.setStep(settings->bracket.getMaxStep());
  record_->setBracket(bracket);
}

bool rect_ConcreteSection::mySolve(double N, double M, double My, Ferrule::Deform& deform,
                                   double tol, int maxIter) {
  return is_built() && section().solveEquilibrium(N, M, My, deform, tol, maxIter) == 1;
}

bool rect_ConcreteSection::AxialDesign(double N, double M) {
  const xRectReinfSettings* settings = getSettings();
  if (!settings) return false;
  if (!(std::isfinite(N) && std::isfinite(M))) return true;
  const double a = b_ * h_;
  Ferrule::Deform deform;
  setReinfBars();
  while (!mySolve(N, M, 0.0, deform, 1e-4, 20)) {
    const auto before = counts(*record_);
    Incrementa(deform, *settings);
    setReinfBars();
    const double uphill = record_->AMonte() / a * 100.0;
    const double valley = record_->AValle() / a * 100.0;
    if (uphill >= settings->maxMonte || valley >= settings->maxValle) return true;
    if (counts(*record_) == before || has_too_many(*record_)) return true;
  }
  return true;
}

void rect_ConcreteSection::Incrementa(const Ferrule::Deform& deform,
                                      const xRectReinfSettings& settings) {
  xReinforcementBar& vertex = record_->AVerticeEff();
  xReinforcementBar& valley = record_->AValleEff();
  xReinforcementBar& uphill = record_->AMonteEff();
  if (record_->hasAfVertex() && ostrel::exactly_equal(vertex.area(), 0.0)) {
    vertex.setNumber(4);
    return;
  }
  const double s1 = std::abs(deform.d0 - deform.d1 * h_ / 2.0);
  const double s2 = std::abs(deform.d0 + deform.d1 * h_ / 2.0);
  (s1 > s2 ? uphill : valley).addBars(as_int(settings.getStep()));

  const double r = settings.ratio / 100.0;
  if (std::abs(r - 1.0) < same_ratio) {
    const double area = std::max(valley.area(), uphill.area());
    valley.calcBarNumFromArea(area);
    uphill.calcBarNumFromArea(area);
  } else if (r > same_ratio) {
    const double v = vertex.area() / 2.0;
    const double area = std::max((valley.area() + v) * r, uphill.area() + v) - v;
    uphill.calcBarNumFromArea(std::max(0.0, area));
  }
}

bool rect_ConcreteSection::ShearDesign(double V) {
  const xRectReinfSettings* settings = getSettings();
  if (!settings) return false;
  const xBracket needed = xRectShear{}.reinforcementDesign(b_, h_, V, settings);
  if (record_->getBracket().AswForStep() < needed.AswForStep()) record_->setBracket(needed);
  return true;
}

bool rect_ConcreteSection::ShearChek(double V, xShear& out) {
  const xRectReinfSettings* settings = getSettings();
  if (!settings) return false;
  out.setVd(V);
  out.calcShearStrength(b_, h_, settings->getCover(), settings->material, record_->getBracket());
  return true;
}

bool rect_ConcreteSection::setReinforcement(const osg::ref_ptr<xReinfCrossSection>& record) {
  auto* given = dynamic_cast<xReinfRectSection*>(record.get());
  if (!is_built() || !given || has_too_many(*given)) return false;
  record_ = given->clone();
  setReinfBars();
  return true;
}
