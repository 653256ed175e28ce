// SPDX-License-Identifier: Apache-2.0
#include "core_ultimate.h"

#include <osg/ref_ptr>

#include <string>
#include <utility>
#include <vector>

namespace ostrel::host {

namespace {

using Json = nlohmann::ordered_json;

// One entry for each element of a list.
template <class T, class Entry>
Json list_of(const std::vector<T>& elements, const Entry& entry) {
  Json list = Json::array();
  for (const T& element : elements)
    list.push_back(entry(element));
  return list;
}

Json level_of(const xBaseResults& level) {
  return {{"sf", level.getSf()}, {"index", static_cast<int>(level.getIndex())}};
}

Json identity_of(const xCheckCombID& record) {
  return {{"name", record.getCombName()}, {"index", record.getCombIndex()}};
}

Json bracket_of(const xBracket& bracket) {
  return {
      {"diam", bracket.getDiameter()}, {"arms", bracket.getNArms()}, {"step", bracket.getStep()}};
}

Json section_of(const xSectionCheck& section) {
  return {{"z", section.abscissa},
          {"Nd", section.flex.Nd},
          {"Md", section.flex.Md},
          {"Mrd", section.flex.Mrd},
          {"Vd", section.shear.getVd()},
          {"VRds", section.shear.getVRds()},
          {"VRdmax", section.shear.getVRdmax()},
          {"VRd", section.shear.getVRd()}};
}

Json sections_of(const xBendShearCombResults& combination) {
  Json json = identity_of(combination);
  json["sf"] = combination.getSf();
  json["worst"] = static_cast<int>(combination.getIndex());
  json["sections"] = list_of(combination.sections, section_of);
  return json;
}

// The number of bars of a ring, or of corners, valley side and uphill side.
Json bar_numbers_of(xReinfCrossSection& record) {
  if (dynamic_cast<xReinfRectSection*>(&record) == nullptr) {
    return Json::array({record.AValleEff().getNumber()});
  }
  return Json::array({record.AVerticeEff().getNumber(), record.AValleEff().getNumber(),
                      record.AMonteEff().getNumber()});
}

// That of the first group with bars, as all groups of a record take the same.
double bar_diameter_of(xReinfCrossSection& record) {
  for (const TipoFerro2d group : {barsVertex, barsValley, barsUphill}) {
    const xReinforcementBar& bars = record.getAf(group);
    if (bars.getNumber() > 0) return bars.getDiameter();
  }
  return 0.0;
}

Json reinforcement_of(const xReinforcement& reinforcement) {
  Json list = Json::array();
  for (const auto& record : reinforcement.sections) {
    if (!record) continue;
    list.push_back({{"abscissa", record->getAbscissa()},
                    {"n_bars", bar_numbers_of(*record)},
                    {"bar_diam", bar_diameter_of(*record)},
                    {"bracket", bracket_of(record->getBracket())}});
  }
  return list;
}

Json wall_of(const xStructuralDesign& design) {
  Json json = level_of(design.bendShear);
  json["combs"] = list_of(design.bendShear.combinations, sections_of);
  json["reinforcement"] = reinforcement_of(design.checkedReinforcement);
  return json;
}

std::string text_of(const osg::ref_ptr<xCheckInfo>& failure) {
  return failure->getString();
}

Json failures_of(const std::vector<osg::ref_ptr<xCheckInfo>>& failures) {
  return list_of(failures, text_of);
}

}  // namespace

nlohmann::ordered_json core_ultimate(xUltimateLimitStates ultimate) {
  std::vector<osg::ref_ptr<xCheckInfo>> failures;
  const double least = ultimate.getSfMin(&failures);
  return {{"wall", wall_of(ultimate.structuralDesign)},
          {"sf_min", least},
          {"failures", failures_of(failures)}};
}

}  // namespace ostrel::host
