// SPDX-License-Identifier: Apache-2.0
#include "ostrel/section_check.h"

#include "ostrel/check_frame.h"
#include "services/class_frame.h"
#include "structural/shear_truss.h"

#include <cmath>
#include <functional>

using ostrel::structural::equivalent_rectangle;
using ostrel::structural::search_step;
using ostrel::structural::truss_strength;

namespace {

/// The stirrups that carry `V` [N]: those of the largest step where `shear` has the strength
/// already, otherwise as `search_step` finds them. `compute` sets the strengths of `shear`.
xBracket designed_stirrups(double V, const xBracketSettings& settings, int arms, xShear& shear,
                           const std::function<void(const xBracket&)>& compute) {
  xBracket stirrup;
  stirrup.setDiameter(settings.bar.getDiameter());
  stirrup.setNArms(arms);
  stirrup.setStep(settings.getMaxStep());
  shear.setVd(V);
  if (shear.getSf() >= 1.0) return stirrup;
  search_step(settings, stirrup, [&] {
    compute(stirrup);
    return shear.getSf() >= 1.0;
  });
  return stirrup;
}

}  // namespace

void xShear::reset() {
  *this = xShear{};
}

xShear* xShear::clone() const {
  return new xShear(*this);
}

double xShear::getSf() const {
  return CalculateSF(vd_, vrd_);
}

void xShear::calcShearStrength(double b, double h, double c, const xMaterialProps& m,
                               const xBracket& s) {
  const auto strength =
      truss_strength({.b = b, .h = h}, c, s.Asw() / s.getStep(), m.steel.Fyd(), m.concrete.Fcd());
  vrds_ = strength.stirrups;
  vrdmax_ = strength.struts;
  vrd_ = vrdmax_ < vrds_ ? vrdmax_ : vrds_;
}

std::string xShear::getIOClass() const {
  return "xShear";
}
void xShear::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xShear::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1.
void xShear::Read(instream& in, int) {
  ostrel::read_fields(in, abscissa, vrds_, vrdmax_, vrd_, vd_);
}
void xShear::Write(outstream& out) const {
  ostrel::write_fields(out, abscissa, vrds_, vrdmax_, vrd_, vd_);
}

xRectShear* xRectShear::clone() const {
  return new xRectShear(*this);
}

void xRectShear::check(double V, double b, double h, double c, const xMaterialProps& m,
                       const xBracket& s) {
  calcShearStrength(b, h, c, m, s);
  setVd(V);
}

xBracket xRectShear::reinforcementDesign(double b, double h, double V,
                                         const xRectReinfSettings* s) {
  setVd(V);
  if (!s) return {};
  return designed_stirrups(V, s->bracket, s->bracket.getNArms(), *this,
                           [&](const xBracket& stirrup) {
                             calcShearStrength(b, h, s->getCover(), s->material, stirrup);
                           });
}

std::string xRectShear::getIOClass() const {
  return "xRectShear";
}
void xRectShear::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xRectShear::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1: the frame of the base alone.
void xRectShear::Read(instream& in, int) {
  ostrel::read_fields(in, ostrel::base_frame<xShear>(*this));
}
void xRectShear::Write(outstream& out) const {
  ostrel::write_fields(out, ostrel::base_frame<const xShear>(*this));
}

xCircShear* xCircShear::clone() const {
  return new xCircShear(*this);
}

void xCircShear::calcShearStrength(double D, double c, const xMaterialProps& m, const xBracket& s) {
  const auto rectangle = equivalent_rectangle(D, c);
  xShear::calcShearStrength(rectangle.b, rectangle.h, c, m, s);
}

void xCircShear::check(double V, double D, double c, const xMaterialProps& m, const xBracket& s) {
  calcShearStrength(D, c, m, s);
  setVd(V);
}

xBracket xCircShear::reinforcementDesign(double D, double V, const xCircularReinfSettings* s) {
  setVd(V);
  if (!s) return {};
  return designed_stirrups(V, s->bracket, 2, *this, [&](const xBracket& stirrup) {
    calcShearStrength(D, s->getCover(), s->material, stirrup);
  });
}

std::string xCircShear::getIOClass() const {
  return "xCircShear";
}
void xCircShear::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xCircShear::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1: the frame of the base alone.
void xCircShear::Read(instream& in, int) {
  ostrel::read_fields(in, ostrel::base_frame<xShear>(*this));
}
void xCircShear::Write(outstream& out) const {
  ostrel::write_fields(out, ostrel::base_frame<const xShear>(*this));
}

void xFlexCheck::reset() {
  *this = xFlexCheck{};
}

double xFlexCheck::getSf() const {
  return CalculateSF(Md, Mrd);
}

std::string xFlexCheck::getIOClass() const {
  return "xFlexCheck";
}
void xFlexCheck::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xFlexCheck::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1.
void xFlexCheck::Read(instream& in, int) {
  ostrel::read_fields(in, Nd, Md, Mrd);
}
void xFlexCheck::Write(outstream& out) const {
  ostrel::write_fields(out, Nd, Md, Mrd);
}

void xSectionCheck::reset() {
  *this = xSectionCheck{};
}

double xSectionCheck::getSf() const {
  const double in_shear = shear.getSf();
  const double in_bending = flex.getSf();
  return in_shear < in_bending || std::isnan(in_shear) ? in_shear : in_bending;
}

std::string xSectionCheck::getIOClass() const {
  return "xSectionCheck";
}
void xSectionCheck::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xSectionCheck::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1.
void xSectionCheck::Read(instream& in, int) {
  ostrel::read_fields(in, abscissa, shear, flex);
}
void xSectionCheck::Write(outstream& out) const {
  ostrel::write_fields(out, abscissa, shear, flex);
}
