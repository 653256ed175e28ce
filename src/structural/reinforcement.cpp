// SPDX-License-Identifier: Apache-2.0
#include "ostrel/reinforcement.h"

#include "services/class_frame.h"
#include "services/label_table.h"
#include "structural/reinforcement_text.h"

#include <cmath>
#include <stdexcept>
#include <utility>

using ostrel::structural::bars_text;
using ostrel::structural::joined;
using ostrel::structural::stirrup_text;

namespace {

constexpr const char* unknown_class_text = quillet::translatable("classe armatura sconosciuta");

xReinfCrossSection* new_section(const std::string& name) {
  if (name == "xReinfCircSection") return new xReinfCircSection;
  if (name == "xReinfRectSection") return new xReinfRectSection;
  throw std::runtime_error(ostrel::services::label(unknown_class_text));
}

}  // namespace

void xReinfCrossSection::reset() {
  bracket_.Default();
  abscissa_ = 0.0;
}

xReinforcementBar& xReinfCrossSection::getAf(TipoFerro2d kind) {
  switch (kind) {
    case barsValley:
      return AValleEff();
    case barsUphill:
      return AMonteEff();
    default:
      return AVerticeEff();
  }
}

std::string xReinfCrossSection::getBracketString(const char* prefix, double factor) const {
  return stirrup_text(bracket_, prefix, factor);
}

void xReinfCrossSection::setBracket(const xBracket& bracket) {
  bracket_ = bracket;
}

std::string xReinfCrossSection::getIOClass() const {
  return "xReinfCrossSection";
}
void xReinfCrossSection::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xReinfCrossSection::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1.
void xReinfCrossSection::Read(instream& in, int) {
  ostrel::read_fields(in, abscissa_, bracket_);
}
void xReinfCrossSection::Write(outstream& out) const {
  ostrel::write_fields(out, abscissa_, bracket_);
}

void xReinfRectSection::reset() {
  *this = xReinfRectSection{};
}

xReinfRectSection* xReinfRectSection::clone() const {
  return new xReinfRectSection(*this);
}

double xReinfRectSection::Atot() const {
  return vertex_.area() + valley_.area() + uphill_.area();
}
double xReinfRectSection::AValle() const {
  return valley_.area() + 0.5 * vertex_.area();
}
double xReinfRectSection::AMonte() const {
  return uphill_.area() + 0.5 * vertex_.area();
}
bool xReinfRectSection::hasAfVertex() const {
  return vertexBars && vertex_.barArea() > 0.0;
}

void xReinfRectSection::SetAfMonte(const xReinforcementBar& bars) {
  uphill_ = bars;
}
void xReinfRectSection::SetAfValle(const xReinforcementBar& bars) {
  valley_ = bars;
}
void xReinfRectSection::SetAfVertex(const xReinforcementBar& bars) {
  vertex_ = bars;
}

void xReinfRectSection::getBarString(const char* prefix, std::string& uphill,
                                     std::string& valley) const {
  xReinforcementBar corners = vertex_;
  corners.setNumber(vertex_.getNumber() / 2);
  const std::string corners_text = bars_text(corners, prefix);
  uphill = joined(corners_text, bars_text(uphill_, prefix));
  valley = joined(corners_text, bars_text(valley_, prefix));
}

std::string xReinfRectSection::getBracketString(const char* prefix, double factor) const {
  return stirrup_text(bracket_, prefix, factor) + "/" + std::to_string(bracket_.getNArms());
}

std::string xReinfRectSection::getIOClass() const {
  return "xReinfRectSection";
}
void xReinfRectSection::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xReinfRectSection::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 2; none before it is read.
void xReinfRectSection::Read(instream& in, int version) {
  ostrel::refuse_older_than(2, version);
  ostrel::read_fields(in, ostrel::base_frame<xReinfCrossSection>(*this), vertexBars, vertex_,
                      valley_, uphill_);
}
void xReinfRectSection::Write(outstream& out) const {
  ostrel::write_fields(out, ostrel::base_frame<const xReinfCrossSection>(*this), vertexBars,
                       vertex_, valley_, uphill_);
}

void xReinfCircSection::reset() {
  *this = xReinfCircSection{};
}

xReinfCircSection* xReinfCircSection::clone() const {
  return new xReinfCircSection(*this);
}

double xReinfCircSection::Atot() const {
  return ring_.area();
}

void xReinfCircSection::SetAfMonte(const xReinforcementBar& bars) {
  ring_ = bars;
}
void xReinfCircSection::SetAfValle(const xReinforcementBar& bars) {
  ring_ = bars;
}
void xReinfCircSection::SetAfVertex(const xReinforcementBar& bars) {
  ring_ = bars;
}

void xReinfCircSection::getBarString(const char* prefix, std::string& uphill,
                                     std::string& valley) const {
  uphill = bars_text(ring_, prefix);
  valley = "--";
}

void xReinfCircSection::setBracket(const xBracket& bracket) {
  bracket_ = bracket;
  bracket_.setNArms(2);
}

std::string xReinfCircSection::getIOClass() const {
  return "xReinfCircSection";
}
void xReinfCircSection::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xReinfCircSection::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1.
void xReinfCircSection::Read(instream& in, int) {
  ostrel::read_fields(in, ostrel::base_frame<xReinfCrossSection>(*this), ring_);
}
void xReinfCircSection::Write(outstream& out) const {
  ostrel::write_fields(out, ostrel::base_frame<const xReinfCrossSection>(*this), ring_);
}

void xReinforcement::reset() {
  sections.clear();
}

osg::ref_ptr<xReinfCrossSection> xReinforcement::getAt(double abscissa, double tol) const {
  for (const auto& section : sections) {
    if (section.valid() && std::abs(section->getAbscissa() - abscissa) < tol) return section;
  }
  return nullptr;
}

void xReinforcement::deepcopy(const xReinforcement& other) {
  std::vector<osg::ref_ptr<xReinfCrossSection>> copies;
  copies.reserve(other.sections.size());
  for (const auto& section : other.sections) {
    copies.emplace_back(section.valid() ? section->clone() : nullptr);
  }
  sections = std::move(copies);
}

std::string xReinforcement::getIOClass() const {
  return "xReinforcement";
}
void xReinforcement::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xReinforcement::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 2; none before it is read.
void xReinforcement::Read(instream& in, int version) {
  ostrel::refuse_older_than(2, version);
  read_vec_refptr(sections, in, new_section);
}
void xReinforcement::Write(outstream& out) const {
  write_vec_refptr(sections, out);
}
