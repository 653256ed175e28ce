// SPDX-License-Identifier: Apache-2.0
#include "ostrel/rigid_body_check.h"

#include "geotech/motion_sums.h"
#include "geotech/rotation_point.h"
#include "model/pile_wall.h"
#include "ostrel/results.h"
#include "ostrel/sheetpiling_model.h"
#include "services/class_frame.h"
#include "services/label_table.h"
#include "structural/verification_frame.h"

#include <quillet/translation.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <optional>
#include <sstream>

namespace {

// Sums one combination about its point of rotation.
rigidBodyMotionCheck summed(double centre, const xSheetpilingModel& model,
                            const xSheetpilingData& data, const xFemResults& beam) {
  rigidBodyMotionCheck sums;
  sums.rotCenter = centre;
  ostrel::geotech::add_loads(beam.appliedForces, sums);
  ostrel::geotech::add_springs(beam.soilForces, sums);
  ostrel::geotech::add_anchors(model.anchors, data.anchors, beam, sums);
  return sums;
}

}  // namespace

rigidBodyMotionCheckInfo* rigidBodyMotionCheckInfo::clone() const {
  return new rigidBodyMotionCheckInfo(*this);
}

std::string rigidBodyMotionCheckInfo::getString() const {
  using ostrel::services::label;
  using quillet::translatable;
  std::ostringstream text;
  text << combName << label(translatable(": Verifica atto di moto rigido non soddisfatta"));
  if (sf < 1.0) text << label(translatable(", SF_Trasl. = ")) << sf;
  if (SfRot < 1.0) text << label(translatable(", SF_Rot. = ")) << SfRot;
  return text.str();
}

double rigidBodyMotionCheck::SFTrasl() const {
  return CalculateSF(Hdest, Hres);
}

double rigidBodyMotionCheck::SfRot() const {
  return CalculateSF(Mdest, Mres);
}

double rigidBodyMotionCheck::getSf() const {
  return std::fmin(SFTrasl(), SfRot());
}

xCheckInfo* rigidBodyMotionCheck::getCheckInfo() const {
  osg::ref_ptr<rigidBodyMotionCheckInfo> info = new rigidBodyMotionCheckInfo;
  ostrel::structural::identify(*info, *this, SFTrasl());
  info->SfRot = SfRot();
  return info.release();
}

void rigidBodyMotionCheck::reset() {
  *this = rigidBodyMotionCheck{};
}

std::string rigidBodyMotionCheck::getIOClass() const {
  return "rigidBodyMotionCheck";
}
void rigidBodyMotionCheck::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void rigidBodyMotionCheck::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 2, after its base.
void rigidBodyMotionCheck::Read(instream& in, int version) {
  ostrel::refuse_older_than(2, version);
  ostrel::read_fields(in, ostrel::base_frame<xCheckCombID>(*this), Hdest, Hres, Mdest, Mres,
                      rotCenter);
}
void rigidBodyMotionCheck::Write(outstream& out) const {
  ostrel::write_fields(out, ostrel::base_frame<xCheckCombID>(*this), Hdest, Hres, Mdest, Mres,
                       rotCenter);
}

OstrelErrorType xrigidBodyDesign::check(xSheetpilingModel& model, const xSheetpilingData& data,
                                        const std::vector<xCombResults>& combinations) {
  if (combinations.size() != data.loadCombs.size()) return errResultCount;
  const xPile_Sheetpiling* wall = ostrel::model::pile_wall(data);
  for (std::size_t i = 0; i < combinations.size(); ++i) {
    if (!data.loadCombs[i].checkActive(checkRigidMotion)) continue;
    const xFemResults& beam = combinations[i].femResults;
    const auto centre = ostrel::geotech::rotation_point(model.anchors, beam.soilForces);
    if (!centre) continue;
    rigidBodyMotionCheck& result = results.emplace_back(summed(*centre, model, data, beam));
    result.setCombIndex(combinations[i].getcombIndex());
    result.setxCombName(combinations[i].getCombName());
    if (wall) result.setIdObj(wall->getIdObj());
  }
  return ostrel::ok;
}

double xrigidBodyDesign::getSfMin(ostrel::structural::Failures* failed) {
  double minimum = ostrel::structural::unlimited_factor;
  for (const rigidBodyMotionCheck& result : results) {
    const double factor = result.getSf();
    if (factor < 1.0 && failed) failed->emplace_back(result.getCheckInfo());
    minimum = std::min(minimum, factor);
  }
  return minimum;
}

void xrigidBodyDesign::reset() {
  results.clear();
}

std::string xrigidBodyDesign::getIOClass() const {
  return "xrigidBodyDesign";
}
void xrigidBodyDesign::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xrigidBodyDesign::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1.
void xrigidBodyDesign::Read(instream& in, int) {
  ostrel::read_fields(in, results);
}
void xrigidBodyDesign::Write(outstream& out) const {
  ostrel::write_fields(out, results);
}
