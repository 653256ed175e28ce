// SPDX-License-Identifier: Apache-2.0
#include "ostrel/cap_beam.h"

#include "model/pile_wall.h"
#include "ostrel/concrete_section.h"
#include "ostrel/results.h"
#include "ostrel/structural_anchor_check.h"
#include "ostrel/tolerances.h"
#include "services/class_frame.h"
#include "services/label_table.h"
#include "structural/cap_beam_load.h"
#include "structural/verification_frame.h"

#include <quillet/translation.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <sstream>
#include <tuple>

using ostrel::services::label;
using ostrel::structural::CapBeamLoad;
using ostrel::structural::Failures;
using quillet::translatable;

namespace {

// The settings of a rectangle that say of the beam what its own settings say.
osg::ref_ptr<xReinforcement_Settings> section_settings(const TraveResults& beam) {
  const xReinforcement_SettingsTrave& given = beam.settings;
  osg::ref_ptr<xRectReinfSettings> settings = new xRectReinfSettings;
  // A percentage of the beam is for its two sides together.
  settings->minValle = settings->minMonte = given.minRatio * 0.5;
  settings->maxValle = settings->maxMonte = given.maxRatio * 0.5;
  settings->ratio = 100.0;
  settings->useVertexBars = true;
  settings->material = beam.material;
  settings->bracket = given.bracket;
  settings->setBarDiam(given.BarDiam);
  settings->setStep(static_cast<std::uint32_t>(std::max(given.Step, 0)));
  settings->setCover(given.Cover);
  return settings.get();
}

// The beam bends in the horizontal plane: its height is the width of the section.
osg::ref_ptr<rect_ConcreteSection> make_section(const TraveResults& beam) {
  osg::ref_ptr<rect_ConcreteSection> section =
      new rect_ConcreteSection(beam.H, beam.B, section_settings(beam));
  section->build();
  return section;
}

const xAnchor* find_anchor(const xSheetpilingData& data, std::int64_t id) {
  const auto anchor = std::find_if(data.anchors.begin(), data.anchors.end(),
                                   [id](const xAnchor& a) { return a.getIdObj() == id; });
  return anchor == data.anchors.end() ? nullptr : &*anchor;
}

// The results of the anchors that bear on the beam in one combination.
std::vector<const xStrAnchorCombRes*> bearing_anchors(const xStructuralAnchorDesign& anchors,
                                                      int comb_index, double height) {
  std::vector<const xStrAnchorCombRes*> bearing;
  for (const xStrAnchorResults& anchor : anchors.anchors) {
    for (const xStrAnchorCombRes& result : anchor.combinations) {
      if (result.getCombIndex() != comb_index) continue;
      if (result.depth >= 0.0 && result.depth <= height) bearing.push_back(&result);
    }
  }
  return bearing;
}

// Each force is spread over the length of beam that falls to one anchor.
OstrelErrorType spread(const std::vector<const xStrAnchorCombRes*>& bearing,
                       const xSheetpilingData& data, double& q) {
  q = 0.0;
  for (const xStrAnchorCombRes* result : bearing) {
    const xAnchor* anchor = find_anchor(data, result->getIdObj());
    if (!anchor || !(anchor->getNumber() > 0)) return errForceNotFound;
    q += result->getFd() / (data.props->getExtension() / anchor->getNumber());
  }
  return ostrel::ok;
}

OstrelErrorType collect_loads(const std::vector<xCombResults>& results,
                              const std::vector<xLoadComb>& combs,
                              const xStructuralAnchorDesign& anchors, const xSheetpilingData& data,
                              double height, double ref, std::vector<CapBeamLoad>& loads) {
  if (!(results.size() <= combs.size())) return errResultCount;
  for (std::size_t i = 0; i < results.size(); ++i) {
    if (!combs[i].checkActive(checkCapBeamStructure)) continue;
    CapBeamLoad& load = loads.emplace_back();
    load.comb_index = results[i].getcombIndex();
    load.comb_name = results[i].getCombName();
    const auto bearing = bearing_anchors(anchors, load.comb_index, height);
    if (bearing.empty()) {
      load.P = ostrel::structural::head_reaction(results[i].femResults.appliedForces, ref);
    } else if (const auto code = spread(bearing, data, load.q); code != ostrel::ok) {
      return code;
    }
  }
  return ostrel::ok;
}

xBendShearCombResults outcome(const CapBeamLoad& load, std::int64_t wall, double spacing) {
  const double span = 2.0 * spacing;
  xBendShearCombResults combination;
  combination.setCheckID(wall, load.comb_index, load.comb_name);
  xSectionCheck& section = combination.sections.emplace_back();
  section.flex.Md = ostrel::structural::midspan_moment(load, span);
  section.shear.setVd(ostrel::structural::support_shear(load, span));
  section.abscissa = spacing;
  return combination;
}

// Sizes the reinforcement for all loads, or for none.
void design(TraveResults& beam, double spacing, const std::vector<CapBeamLoad>& loads) {
  const osg::ref_ptr<rect_ConcreteSection> section = make_section(beam);
  section->beginDesign(spacing);
  const std::vector<CapBeamLoad> nothing(1);
  for (const CapBeamLoad& load : loads.empty() ? nothing : loads) {
    const double span = 2.0 * spacing;
    std::ignore = section->AxialDesign(0.0, ostrel::structural::midspan_moment(load, span));
    std::ignore = section->ShearDesign(ostrel::structural::support_shear(load, span));
  }
  beam.designed = dynamic_cast<xReinfRectSection*>(section->getReinforcement().get());
  beam.checked = beam.designed->clone();
}

void verify(rect_ConcreteSection& section, xSectionCheck& check) {
  check.flex.Mrd = section.getAbsMresist(check.flex.Nd, check.flex.Md >= 0.0);
  std::ignore = section.ShearChek(check.shear.getVd(), check.shear);  // the settings suit it
}

void resist_nothing(xSectionCheck& check) {
  check.flex.Mrd = 0.0;
  check.shear.setVRds(0.0);
  check.shear.setVRdmax(0.0);
  check.shear.setVRd(0.0);
}

osg::ref_ptr<xCheckInfo> as_failure_of_the_beam(const osg::ref_ptr<xCheckInfo>& failure) {
  const auto* section = dynamic_cast<const concreteCheckInfo*>(failure.get());
  if (!section) return failure;
  osg::ref_ptr<concreteTraveCheckInfo> info = new concreteTraveCheckInfo;
  static_cast<concreteCheckInfo&>(*info) = *section;
  return info.get();
}

xReinforcement as_list(const osg::ref_ptr<xReinfRectSection>& record) {
  xReinforcement list;
  if (record) list.sections.emplace_back(record.get());
  return list;
}

osg::ref_ptr<xReinfRectSection> read_record(instream& in) {
  xReinforcement list;
  list.pub_read(in);
  if (list.sections.empty()) return nullptr;
  return dynamic_cast<xReinfRectSection*>(list.sections.front().get());
}

}  // namespace

concreteTraveCheckInfo* concreteTraveCheckInfo::clone() const {
  return new concreteTraveCheckInfo(*this);
}

std::string concreteTraveCheckInfo::getString() const {
  std::ostringstream text;
  text << label(isShear
                    ? translatable("Verifica a taglio della trave non soddisfatta: comb=")
                    : translatable("Verifica a pressoflessione della trave non soddisfatta: comb="))
       << combName << label(translatable(", sf")) << sf;
  return text.str();
}

OstrelErrorType designTrave(const std::vector<xCombResults>& results,
                            const std::vector<xLoadComb>& combs,
                            const xStructuralAnchorDesign& anchors, const xSheetpilingData& data,
                            TraveResults& out) {
  out.reset();
  const xPile_Sheetpiling* wall = ostrel::model::pile_wall(data);
  if (!wall) return errNoWall;
  const double height = wall->getHtrave();
  const double ref = std::max(height, wall->getDepth());
  if (ref < (*getTolerances())[xTolerances::position_identity]) return ostrel::ok;
  const xReinforcement_Settings* settings = wall->checkSettings.reinforcementSettings.get();
  if (!settings || !std::isfinite(wall->getBtrave()) || !std::isfinite(height)) {
    return errInvalidSection;
  }
  out.B = wall->getBtrave();
  out.H = height;
  out.settings = settings->trave;
  out.material = settings->material;
  std::vector<CapBeamLoad> loads;
  const auto code = collect_loads(results, combs, anchors, data, height, ref, loads);
  if (code != ostrel::ok) return code;
  design(out, wall->getSpacing(), loads);
  for (const CapBeamLoad& load : loads) {
    out.bendShear.combinations.push_back(outcome(load, wall->getIdObj(), wall->getSpacing()));
  }
  if (loads.empty()) return ostrel::ok;
  out.check();
  out.done = true;
  return ostrel::ok;
}

void TraveResults::check() {
  const osg::ref_ptr<rect_ConcreteSection> section = make_section(*this);
  const bool taken = section->setReinforcement(checked.get());
  for (xBendShearCombResults& combination : bendShear.combinations) {
    if (combination.sections.empty()) continue;
    if (taken) {
      verify(*section, combination.sections.front());
    } else {
      resist_nothing(combination.sections.front());
    }
  }
  bendShear.getSfMin(nullptr);
}

double TraveResults::getSfMin(Failures* failures) {
  if (!failures) return bendShear.getSfMin(nullptr);
  Failures sections;
  const double factor = bendShear.getSfMin(&sections);
  for (const osg::ref_ptr<xCheckInfo>& failure : sections) {
    failures->push_back(as_failure_of_the_beam(failure));
  }
  return factor;
}

void TraveResults::reset() {
  *this = TraveResults{};
}

std::string TraveResults::getIOClass() const {
  return "xReinforcement";
}
void TraveResults::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void TraveResults::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1: each reinforcement as a list of one record or of none.
void TraveResults::Read(instream& in, int) {
  ostrel::read_fields(in, B, H, done, settings, material, bendShear);
  designed = read_record(in);
  checked = read_record(in);
}
void TraveResults::Write(outstream& out) const {
  ostrel::write_fields(out, B, H, done, settings, material, bendShear, as_list(designed),
                       as_list(checked));
}
