// SPDX-License-Identifier: Apache-2.0
#include "ostrel/slope_stability.h"
#include "services/class_frame.h"
#include "services/label_table.h"

#include <cstddef>
#include <cstdint>
#include <sstream>
#include <tuple>

using ostrel::services::label;
using quillet::translatable;

void xGridPointResults::reset() {
  *this = xGridPointResults{};
}

std::string xGridPointResults::getIOClass() const {
  return "xGridPointResults";
}
void xGridPointResults::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xGridPointResults::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 2; version 1 is refused.
void xGridPointResults::Read(instream& in, int version) {
  ostrel::refuse_older_than(2, version);
  ostrel::read_fields(in, sf, radius, Mstab, Mdestab, center.x, center.y);
}
void xGridPointResults::Write(outstream& out) const {
  ostrel::write_fields(out, sf, radius, Mstab, Mdestab, center.x, center.y);
}

slopeStabilityCheckInfo* slopeStabilityCheckInfo::clone() const {
  return new slopeStabilityCheckInfo(*this);
}

std::string slopeStabilityCheckInfo::getString() const {
  std::ostringstream text;
  text << label(translatable("Verifica a stabilita' non soddisfatta comb=")) << combName
       << label(translatable(", sf=")) << sf << label(translatable(", R=")) << data.radius
       << label(translatable(", (xc, yc)=(")) << data.xc << label(translatable(",")) << data.yc
       << label(translatable(")"));
  return text.str();
}

void xSlopeStability::reset() {
  *this = xSlopeStability{};
}

osg::ref_ptr<slopeStabilityCheckInfo> xSlopeStability::getCheckInfo() const {
  osg::ref_ptr<slopeStabilityCheckInfo> info = new slopeStabilityCheckInfo;
  info->sf = data.sf;
  info->idObj = idObj;
  info->combIndex = combIndex;
  info->combName = combName;
  info->data = data;
  return info;
}

std::string xSlopeStability::getIOClass() const {
  return "xSlopeStability";
}
void xSlopeStability::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xSlopeStability::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1.
void xSlopeStability::Read(instream& in, int) {
  ostrel::read_fields(in, ostrel::base_frame<xCheckCombID>(*this), gridPointRes);
  StripesMin.clear();
  ostrel::read_counted(in, [this, &in] { ostrel::read_fields(in, StripesMin.emplace_back()); });
  ostrel::read_fields(in, data.xc, data.yc, data.sf, data.radius, data.Mstab, data.Mdestab);
}
void xSlopeStability::Write(outstream& out) const {
  ostrel::write_fields(out, ostrel::base_frame<xCheckCombID>(*this), gridPointRes);
  ostrel::write_count(StripesMin.size(), out);
  for (const std::vector<xClipData>& stripe : StripesMin) {
    ostrel::write_fields(out, stripe);
  }
  ostrel::write_fields(out, data.xc, data.yc, data.sf, data.radius, data.Mstab, data.Mdestab);
}

void xSlopeStabilityDesign::reset() {
  *this = xSlopeStabilityDesign{};
}

double xSlopeStabilityDesign::getSfMin(std::vector<osg::ref_ptr<xCheckInfo>>* failed) {
  sf = xBaseResults{}.getSf();
  index = 0;
  for (std::size_t i = 0; i < results.size(); ++i) {
    if (!(results[i].getSf() < sf)) continue;
    sf = results[i].getSf();
    index = static_cast<std::int32_t>(i);
    if (sf < 1.0 && failed) failed->emplace_back(results[i].getCheckInfo());
  }
  return sf;
}

void xSlopeStabilityDesign::computeSfMin() {
  std::ignore = getSfMin(nullptr);
}

std::string xSlopeStabilityDesign::getIOClass() const {
  return "xSlopeStabilityDesign";
}
void xSlopeStabilityDesign::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xSlopeStabilityDesign::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1.
void xSlopeStabilityDesign::Read(instream& in, int) {
  ostrel::read_fields(in, ostrel::base_frame<xBaseResults>(*this), results);
}
void xSlopeStabilityDesign::Write(outstream& out) const {
  ostrel::write_fields(out, ostrel::base_frame<xBaseResults>(*this), results);
}
