// SPDX-License-Identifier: Apache-2.0
#include "ostrel/structural_anchor_check.h"

#include "anchors/anchor_demand.h"
#include "ostrel/results.h"
#include "ostrel/sheetpiling_data.h"
#include "ostrel/tolerances.h"
#include "services/class_frame.h"
#include "structural/verification_frame.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

using ostrel::structural::Failures;
using ostrel::structural::scan_groups;
using ostrel::structural::scan_records;

namespace {

double tendon_strength(const xAnchor& anchor) {
  return anchor.CableArea() * anchor.settings.getFyk() / anchor.settings.getGammaS();
}

}  // namespace

OstrelErrorType xStrAnchorCombRes::getStructaralResistance(const xAnchor& anchor,
                                                           double& resistance) {
  const xTolerances& tolerances = *getTolerances();
  resistance = 0.0;
  const double steel_factor = std::abs(anchor.settings.getGammaS());
  if (!(steel_factor >= tolerances[xTolerances::partial_factor])) return errSteelFactorZero;
  const double section = std::abs(anchor.CableArea());
  if (!(section >= tolerances[xTolerances::tendon_section])) return errAnchorSectionZero;
  resistance = tendon_strength(anchor);
  return ostrel::ok;
}

OstrelErrorType xStrAnchorCombRes::check(double force, const xAnchor& anchor) {
  depth = anchor.z;
  double resistance = 0.0;
  const OstrelErrorType code = getStructaralResistance(anchor, resistance);
  Rd = tendon_strength(anchor);
  Fd = force;
  Sf = CalculateSF(Fd, Rd);
  return code;
}

osg::ref_ptr<anchorCheckInfo> xStrAnchorCombRes::getCheckInfo() const {
  return ostrel::anchors::failed_anchor(*this, true);
}

void xStrAnchorCombRes::reset() {
  *this = xStrAnchorCombRes{};
}

std::string xStrAnchorCombRes::getIOClass() const {
  return "xStrAnchorCombRes";
}
void xStrAnchorCombRes::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xStrAnchorCombRes::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 2: its base alone.
void xStrAnchorCombRes::Read(instream& in, int version) {
  ostrel::refuse_older_than(2, version);
  ostrel::read_fields(in, ostrel::base_frame<xAnchorResults>(*this));
}
void xStrAnchorCombRes::Write(outstream& out) const {
  ostrel::write_fields(out, ostrel::base_frame<xAnchorResults>(*this));
}

double xStrAnchorResults::getSfMin(Failures* failures) {
  scan_records(
      *this, combinations, failures, [](const xStrAnchorCombRes& each) { return each.getSf(); },
      [](const xStrAnchorCombRes& each, double) {
        return osg::ref_ptr<xCheckInfo>(each.getCheckInfo().get());
      });
  return sf;
}

void xStrAnchorResults::reset() {
  *this = xStrAnchorResults{};
}

std::string xStrAnchorResults::getIOClass() const {
  return "xStrAnchorResults";
}
void xStrAnchorResults::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xStrAnchorResults::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1, after its base.
void xStrAnchorResults::Read(instream& in, int) {
  ostrel::read_fields(in, ostrel::base_frame<xBaseResults>(*this), combinations);
}
void xStrAnchorResults::Write(outstream& out) const {
  ostrel::write_fields(out, ostrel::base_frame<xBaseResults>(*this), combinations);
}

OstrelErrorType xStructuralAnchorDesign::check(const xSheetpilingData& data,
                                               const std::vector<info_Fem_anchor>& fem,
                                               const std::vector<xCombResults>& results) {
  if (fem.size() != data.anchors.size()) return errAnchorNodeCount;
  const std::size_t combs = std::min(results.size(), data.loadCombs.size());
  for (std::size_t i = 0; i < data.anchors.size(); ++i) {
    const xAnchor& anchor = data.anchors[i];
    xStrAnchorResults outcome;
    for (std::size_t j = 0; j < combs; ++j) {
      if (!data.loadCombs[j].checkActive(checkAnchorStructure)) continue;
      xStrAnchorCombRes record;
      ostrel::anchors::identify(record, anchor, results[j]);
      const auto force = ostrel::anchors::design_force(anchor, fem[i], results[j].femResults);
      if (!force) return errFemNodeNotFound;
      if (const auto code = record.check(*force, anchor); code != ostrel::ok) return code;
      outcome.combinations.push_back(record);
    }
    outcome.computeSfMin();
    if (!outcome.combinations.empty()) anchors.push_back(std::move(outcome));
  }
  return ostrel::ok;
}

double xStructuralAnchorDesign::getSfMin(Failures* failures) {
  scan_groups(*this, anchors, failures);
  return sf;
}

void xStructuralAnchorDesign::reset() {
  *this = xStructuralAnchorDesign{};
}

std::string xStructuralAnchorDesign::getIOClass() const {
  return "xStructuralAnchorDesign";
}
void xStructuralAnchorDesign::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xStructuralAnchorDesign::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1, after its base.
void xStructuralAnchorDesign::Read(instream& in, int) {
  ostrel::read_fields(in, ostrel::base_frame<xBaseResults>(*this), anchors);
}
void xStructuralAnchorDesign::Write(outstream& out) const {
  ostrel::write_fields(out, ostrel::base_frame<xBaseResults>(*this), anchors);
}
