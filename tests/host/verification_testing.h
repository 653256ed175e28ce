#pragma once
/// @file  Small results of verifications for the tests of tables and files. Room: host tests
// SPDX-License-Identifier: Apache-2.0

#include <ostrel/serviceability.h>
#include <ostrel/ultimate_limit_states.h>

#include <osg/ref_ptr>

#include <string>
#include <vector>

namespace ostrel::host {

/// A text with one blank where there are several.
inline std::string squeezed(const std::string& text) {
  std::string squeezed;
  for (const char sign : text) {
    if (sign != ' ' || squeezed.empty() || squeezed.back() != ' ') squeezed += sign;
  }
  return squeezed;
}

/// A section with the resistances MRd = 300 kNm and VRd = 200 kN.
inline xSectionCheck section_at(double depth_mm, double moment_kNm, double shear_kN) {
  xSectionCheck section;
  section.abscissa = depth_mm;
  section.flex.Nd = -50e3;
  section.flex.Md = moment_kNm * 1e6;
  section.flex.Mrd = 300e6;
  section.shear.setVd(shear_kN * 1e3);
  section.shear.setVRd(200e3);
  return section;
}

inline xBendShearCombResults sections_of(const std::string& name, int index,
                                         std::vector<xSectionCheck> sections) {
  xBendShearCombResults combination;
  combination.setCheckID(7, index, name);
  combination.sections = std::move(sections);
  combination.getSfMin(nullptr);
  return combination;
}

/// A ring of bars of 20 mm with a spiral of 10 mm every 150 mm.
inline osg::ref_ptr<xReinfCrossSection> ring_at(double depth_mm, unsigned bars) {
  const osg::ref_ptr<xReinfCircSection> ring = new xReinfCircSection;
  ring->setAbscissa(depth_mm);
  xReinforcementBar group;
  group.setNumber(bars);
  group.setDiameter(20.0);
  ring->SetAfVertex(group);
  xBracket spiral;
  spiral.setDiameter(10.0);
  spiral.setStep(150.0);
  ring->setBracket(spiral);
  return osg::ref_ptr<xReinfCrossSection>(ring.get());
}

/// Two combinations. Of "A" the worst section is at 4 m in bending, 300 / 250 = 1.2; of "B" at 6 m
/// in shear, 200 / 250 = 0.8. Sixteen bars from the head to 4 m, ten from 6 m to 8 m.
inline xStructuralDesign verified_wall() {
  xStructuralDesign design;
  design.bendShear.combinations = {
      sections_of("A", 1,
                  {section_at(0.0, 0.0, 0.0), section_at(4000.0, 250.0, 100.0),
                   section_at(6000.0, -100.0, 50.0)}),
      sections_of("B", 2, {section_at(4000.0, 100.0, 100.0), section_at(6000.0, 60.0, 250.0)})};
  design.bendShear.getSfMin(nullptr);
  design.checkedReinforcement.sections = {ring_at(0.0, 16), ring_at(4000.0, 16),
                                          ring_at(6000.0, 10), ring_at(8000.0, 10)};
  return design;
}

/// A circle of 21 m about (-4, 4.5) m with the factor 2 from moments of 60 000 and -30 000 kNm.
inline xSlopeStability circle_of(const std::string& name, int index) {
  xSlopeStability result;
  result.setCheckID(7, index, name);
  stabChekData& data = result.getstabChekData();
  data.xc = -4000.0;
  data.yc = 4500.0;
  data.radius = 21000.0;
  data.sf = 2.0;
  data.Mstab = 6e10;
  data.Mdestab = -3e10;
  return result;
}

/// Fills a result of an anchor at 2 m with the force 200 kN and the resistance `factor` times that.
template <class Result>
Result anchor_result(const std::string& name, double factor) {
  Result result;
  result.setCheckID(9, 1, name);
  result.depth = 2000.0;
  result.setFd(200e3);
  result.setRd(factor * 200e3);
  result.setSf(factor);
  return result;
}

/// Head 8 mm of 20 mm, excavation level 5 mm of 10 mm: the factors 2.5 and 2.
inline xServiceabilityLimitStates verified_displacements() {
  xServiceLimitDispCombRes result;
  result.setCheckID(7, 3, "S");
  result.setHeaddisp(-8.0);
  result.setJtsPos(4000.0);
  result.setJtsdisp(-5.0);
  result.check(10.0, 20.0);
  xServiceabilityLimitStates serviceability;
  serviceability.displacements.results = {result};
  return serviceability;
}

}  // namespace ostrel::host
