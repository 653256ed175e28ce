// SPDX-License-Identifier: Apache-2.0
#include "ostrel/serviceability.h"

#include "model/pile_wall.h"
#include "ostrel/results.h"
#include "services/class_frame.h"
#include "structural/verification_frame.h"

#include <quillet/translation.h>

#include <algorithm>
#include <cmath>
#include <cstddef>

slsCheckInfo* slsCheckInfo::clone() const {
  return new slsCheckInfo(*this);
}

std::string slsCheckInfo::getString() const {
  return ostrel::structural::failure_text(
      quillet::translatable("Verifica a degli spostamenti non soddisfatta: comb="), *this,
      quillet::translatable(", sezione="), section);
}

void xServiceLimitDispCombRes::check(double jtsLim, double headLim) {
  jts_lim_ = jtsLim;
  head_lim_ = headLim;
}

double xServiceLimitDispCombRes::getSfJts() const {
  return CalculateSF(jts_disp_, jts_lim_);
}

double xServiceLimitDispCombRes::getSfHead() const {
  return CalculateSF(head_disp_, head_lim_);
}

osg::ref_ptr<slsCheckInfo> xServiceLimitDispCombRes::getCheckInfo() const {
  const bool head_governs = std::isnan(getSfJts()) || getSfJts() > getSfHead();
  osg::ref_ptr<slsCheckInfo> info = new slsCheckInfo;
  ostrel::structural::identify(*info, *this, head_governs ? getSfHead() : getSfJts());
  info->section = head_governs ? head_pos_ : jts_pos_;
  return info;
}

void xServiceLimitDispCombRes::reset() {
  *this = xServiceLimitDispCombRes{};
}

std::string xServiceLimitDispCombRes::getIOClass() const {
  return "xServiceLimitDispCombRes";
}
void xServiceLimitDispCombRes::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xServiceLimitDispCombRes::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1, after its base.
void xServiceLimitDispCombRes::Read(instream& in, int) {
  ostrel::read_fields(in, ostrel::base_frame<xCheckCombID>(*this), jts_disp_, head_disp_, head_pos_,
                      jts_pos_, jts_lim_, head_lim_);
}
void xServiceLimitDispCombRes::Write(outstream& out) const {
  ostrel::write_fields(out, ostrel::base_frame<xCheckCombID>(*this), jts_disp_, head_disp_,
                       head_pos_, jts_pos_, jts_lim_, head_lim_);
}

OstrelErrorType xServiceLimitDisplacements::check(unsigned excNode, const xSheetpilingData& data,
                                                  const std::vector<xCombResults>& combinations) {
  const xPile_Sheetpiling* wall = ostrel::model::pile_wall(data);
  if (!wall) return errNoWall;
  const auto code = collectDispl(wall->getIdObj(), excNode, data.loadCombs, combinations);
  if (code != ostrel::ok) return code;
  for (xServiceLimitDispCombRes& result : results) {
    result.check(wall->checkSettings.getJtsDispLim(), wall->checkSettings.getHeadDispLim());
  }
  return ostrel::ok;
}

OstrelErrorType xServiceLimitDisplacements::collectDispl(
    std::int64_t idObj, unsigned excNode, const std::vector<xLoadComb>& combs,
    const std::vector<xCombResults>& combinations) {
  if (combs.size() != combinations.size()) return errResultCount;
  for (std::size_t i = 0; i < combs.size(); ++i) {
    if (combs[i].checks.empty()) return errNoCheckEnabled;
    const xFemResults& beam = combinations[i].femResults;
    const std::size_t points = std::min(beam.dispAxial.points.size(), beam.dispTrans.points.size());
    if (!(excNode < points)) return errNodeCountModel;
    if (!combs[i].checkActive(checkDisplacements)) continue;
    const diag_Point& head = beam.dispTrans.points.front();
    const diag_Point& excavation = beam.dispTrans.points[excNode];
    xServiceLimitDispCombRes& result = results.emplace_back();
    result.setCheckID(idObj, combs[i].getcombIndex(), combs[i].getCombName());
    result.setHeadPos(head.s);
    result.setHeaddisp(head.value);
    result.setJtsPos(excavation.s);
    result.setJtsdisp(excavation.value);
  }
  return ostrel::ok;
}

double xServiceLimitDisplacements::getSfMin(ostrel::structural::Failures* failures) {
  ostrel::structural::scan_records(
      *this, results, failures,
      [](const xServiceLimitDispCombRes& result) {
        return std::fmin(result.getSfJts(), result.getSfHead());
      },
      [](const xServiceLimitDispCombRes& result, double) {
        return osg::ref_ptr<xCheckInfo>(result.getCheckInfo().get());
      });
  return sf;
}

void xServiceLimitDisplacements::reset() {
  xBaseResults::reset();
  results.clear();
}

std::string xServiceLimitDisplacements::getIOClass() const {
  return "xServiceLimitDisplacements";
}
void xServiceLimitDisplacements::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xServiceLimitDisplacements::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1, without the base.
void xServiceLimitDisplacements::Read(instream& in, int) {
  ostrel::read_fields(in, results);
}
void xServiceLimitDisplacements::Write(outstream& out) const {
  ostrel::write_fields(out, results);
}

void xServiceabilityLimitStates::reset() {
  displacements.reset();
}

double xServiceabilityLimitStates::getSfMin(ostrel::structural::Failures* failures) {
  return displacements.getSfMin(failures);
}

std::string xServiceabilityLimitStates::getIOClass() const {
  return "xServiceabilityLimitStates";
}
void xServiceabilityLimitStates::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xServiceabilityLimitStates::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1.
void xServiceabilityLimitStates::Read(instream& in, int) {
  ostrel::read_fields(in, displacements);
}
void xServiceabilityLimitStates::Write(outstream& out) const {
  ostrel::write_fields(out, displacements);
}
