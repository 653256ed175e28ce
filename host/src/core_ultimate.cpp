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
  for (const T& element : elements) {
    list.push_back(entry(element));
  }
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

Json circle_of(const xSlopeStability& result) {
  Json grid = Json::array();
  for (const xGridPointResults& centre : result.get_gridPointRes()) {
    grid.push_back(
        {centre.center.x, centre.center.y, centre.sf, centre.radius, centre.Mstab, centre.Mdestab});
  }
  Json json = identity_of(result);
  json["sf"] = result.getSf();
  json["xc"] = result.getXC();
  json["yc"] = result.getYC();
  json["radius"] = result.getRadius();
  json["mstab"] = result.getMstab();
  json["mdestab"] = result.getMdestab();
  json["grid"] = std::move(grid);
  return json;
}

Json slope_of(const xSlopeStabilityDesign& design) {
  Json json = level_of(design);
  json["combs"] = list_of(design.getResults(), circle_of);
  return json;
}

Json anchor_of(const xAnchorResults& result) {
  Json json = identity_of(result);
  json["depth"] = result.depth;
  json["Rd"] = result.getRd();
  json["Fd"] = result.getFd();
  json["sf"] = result.getSf();
  return json;
}

Json bulb_of(const xBulbAnchor& bulb) {
  return {{"stress", bulb.getDepthStress()},
          {"area", bulb.getArea()},
          {"coeff", bulb.getSoilCoeff()},
          {"alpha_d", bulb.getAlphaD()}};
}

Json bonded_anchor_of(const xGeoAnchorCombRes& result) {
  Json json = anchor_of(result);
  json["bulbs"] = list_of(result.bulbs, bulb_of);
  return json;
}

Json tendons_of(const xStrAnchorResults& anchor) {
  Json json = level_of(anchor);
  json["combs"] = list_of(anchor.combinations, anchor_of);
  return json;
}

Json bonds_of(const xGeoAnchorResults& anchor) {
  Json json = level_of(anchor);
  json["combs"] = list_of(anchor.combinations, bonded_anchor_of);
  return json;
}

Json pile_of(const xBearCapacityPile& result) {
  Json json = identity_of(result);
  json["stress"] = result.getDepthStress();
  json["Nq"] = result.getNq();
  json["Nc"] = result.getNc();
  json["Plim"] = result.getPlim();
  json["Slim"] = result.getSlim();
  json["Fd"] = result.getFd();
  json["Rd"] = result.getRd();
  return json;
}

Json motion_of(const rigidBodyMotionCheck& result) {
  Json json = identity_of(result);
  json["rot_center"] = result.rotCenter;
  json["Hdest"] = result.Hdest;
  json["Hres"] = result.Hres;
  json["Mdest"] = result.Mdest;
  json["Mres"] = result.Mres;
  return json;
}

// One section stands for the beam in each combination.
Json beam_section_of(const xBendShearCombResults& combination) {
  Json json = identity_of(combination);
  if (combination.sections.empty()) return json;
  const xSectionCheck& section = combination.sections.front();
  json["Md"] = section.flex.Md;
  json["Mrd"] = section.flex.Mrd;
  json["Vd"] = section.shear.getVd();
  json["VRd"] = section.shear.getVRd();
  return json;
}

Json cap_beam_of(const TraveResults& beam) {
  return {{"done", beam.done},
          {"B", beam.B},
          {"H", beam.H},
          {"bars", beam.checked ? bar_numbers_of(*beam.checked) : Json()},
          {"bracket", beam.checked ? bracket_of(beam.checked->getBracket()) : Json()},
          {"combs", list_of(beam.bendShear.combinations, beam_section_of)}};
}

Json uplift_of(const verificaSollevamento& result) {
  Json json = identity_of(result);
  json["Udst"] = result.Udst;
  json["Gstb"] = result.Gstb;
  json["gammaStb"] = result.gammaStb;
  json["gammaDst"] = result.gammaDst;
  json["gammaR"] = result.gammaR;
  json["i"] = result.i;
  json["iCrit"] = result.iCrit;
  json["sf"] = result.getSf();
  return json;
}

Json piping_of(const verificaSifonamento& result) {
  Json json = identity_of(result);
  json["dH"] = result.dH;
  json["Ld"] = result.Ld;
  json["iCrit"] = result.iCrit;
  json["gammaR"] = result.gammaR;
  json["sf"] = result.getSf();
  return json;
}

Json failures_of(const std::vector<osg::ref_ptr<xCheckInfo>>& failures) {
  return list_of(failures, text_of);
}

}  // namespace

nlohmann::ordered_json core_ultimate(xUltimateLimitStates ultimate) {
  std::vector<osg::ref_ptr<xCheckInfo>> failures;
  const double least = ultimate.getSfMin(&failures);
  return {{"wall", wall_of(ultimate.structuralDesign)},
          {"slope", slope_of(ultimate.slopeStabilityDesign)},
          {"anchors_str", list_of(ultimate.structuralAnchorDesign.anchors, tendons_of)},
          {"anchors_geo", list_of(ultimate.geotechnicalAnchorDesign.anchors, bonds_of)},
          {"piles", list_of(ultimate.geotechnicalPileDesign.results, pile_of)},
          {"rigid", list_of(ultimate.rigidBodyDesign.results, motion_of)},
          {"cap_beam", cap_beam_of(ultimate.traveResults)},
          {"hydraulic",
           {{"uplift", list_of(ultimate.hydraulicChecks.uplift, uplift_of)},
            {"piping", list_of(ultimate.hydraulicChecks.piping, piping_of)}}},
          {"sf_min", least},
          {"failures", failures_of(failures)}};
}

}  // namespace ostrel::host
