// SPDX-License-Identifier: Apache-2.0
// Forces of the wall, its reinforcement, and the verification of every section.
#include "ostrel/wall_check.h"

#include "ostrel/concrete_section.h"
#include "ostrel/results.h"
#include "ostrel/tolerances.h"
#include "services/class_frame.h"

#include <cmath>
#include <cstddef>
#include <utility>

namespace {

// Before every abscissa, so that the first one always begins a record [mm].
constexpr double before_all = -1e10;

bool match(const xFemResults& results) {
  return results.axial.points.size() == results.shear.points.size()
      && results.axial.points.size() == results.moment.points.size();
}

std::vector<xSollVector> forces_of(const xFemResults& results) {
  std::vector<xSollVector> forces;
  for (std::size_t i = 0; i < results.axial.points.size(); ++i) {
    forces.emplace_back(results.axial.points[i].s, results.axial.points[i].value,
                        results.shear.points[i].value, results.moment.points[i].value);
  }
  return forces;
}

double same_abscissa() {
  return (*getTolerances())[xTolerances::position_identity];
}

xSectionCheck verify(ConcreteSection& section, const xSollVector& forces) {
  xSectionCheck check;
  check.flex.Nd = forces.N;
  check.flex.Md = forces.M;
  check.flex.Mrd = section.getAbsMresist(forces.N, forces.M >= 0.0);
  std::ignore = section.ShearChek(forces.T, check.shear);  // the settings suit the section
  check.abscissa = forces.z;
  return check;
}

}  // namespace

OstrelErrorType xStructuralDesign::collectStress(std::int64_t idObj,
                                                 const std::vector<xLoadComb>& combs,
                                                 const std::vector<xCombResults>& results) {
  if (combs.size() != results.size()) return errResultCount;
  for (std::size_t i = 0; i < combs.size(); ++i) {
    if (!match(results[i].femResults)) return errResultCount;
    if (combs[i].checks.empty()) return errNoCheckEnabled;
    if (!combs[i].checkActive(checkWallStructure)) continue;
    xStructCombRes& forces = combResults.emplace_back();
    forces.stresses = forces_of(results[i].femResults);
    forces.setCheckID(idObj, results[i].getcombIndex(), results[i].getCombName());
  }
  return ostrel::ok;
}

OstrelErrorType xStructuralDesign::design(const xCrossSecProp* prop,
                                          osg::ref_ptr<xReinforcement_Settings>& settings) {
  const osg::ref_ptr<ConcreteSection> section = ConcreteSection::createClsSection(prop, settings);
  if (!section) return errInvalidSection;
  const double tol = same_abscissa();
  const unsigned int sections = getNumSez(0);
  section->beginDesign(before_all);
  designedReinforcement.reset();
  for (unsigned int i = 0; i < sections; ++i) {
    const double z = getSoll(0, i)->z;
    const double d = std::abs(z - section->getReinforcement()->getAbscissa());
    if (d > tol) section->beginDesign(z);
    for (unsigned int j = 0; j < combResults.size(); ++j) {
      const xSollVector forces = *getSoll(j, i);
      std::ignore = section->AxialDesign(forces.N, forces.M);  // ignored by rule
      std::ignore = section->ShearDesign(forces.T);            // ignored by rule
    }
    if (d > tol) designedReinforcement.sections.push_back(section->getReinforcement()->clone());
  }
  checkedReinforcement.deepcopy(designedReinforcement);
  return ostrel::ok;
}

OstrelErrorType xStructuralDesign::check(const xCrossSecProp* prop,
                                         osg::ref_ptr<xReinforcement_Settings>& settings) {
  const osg::ref_ptr<ConcreteSection> section = ConcreteSection::createClsSection(prop, settings);
  if (!section) return errInvalidSection;
  bendShear.combinations.clear();
  const double tol = same_abscissa();
  for (const xStructCombRes& forces : combResults) {
    xBendShearCombResults outcome;
    outcome.setCheckID(forces);
    for (const xSollVector& at : forces.stresses) {
      const auto record = checkedReinforcement.getAt(at.z, tol);
      if (!record) return errNoReinfAtAbscissa;
      if (!section->setReinforcement(record)) return errReinfForSection;
      outcome.sections.push_back(verify(*section, at));
    }
    outcome.getSfMin(nullptr);
    bendShear.combinations.push_back(std::move(outcome));
  }
  bendShear.getSfMin(nullptr);
  return ostrel::ok;
}

unsigned int xStructuralDesign::getNumSez(unsigned int comb) const {
  if (!(comb < combResults.size())) return 1;
  return static_cast<unsigned int>(combResults[comb].stresses.size());
}

const xSollVector* xStructuralDesign::getSoll(unsigned int comb, unsigned int section) {
  if (comb < combResults.size() && section < combResults[comb].stresses.size()) {
    return &combResults[comb].stresses[section];
  }
  scratch_ = xSollVector{};
  return &scratch_;
}

double xStructuralDesign::getSfMin(std::vector<osg::ref_ptr<xCheckInfo>>* failures) {
  return bendShear.getSfMin(failures);
}

void xStructuralDesign::reset() {
  *this = xStructuralDesign{};
}

std::string xStructuralDesign::getIOClass() const {
  return "xStructuralDesign";
}
void xStructuralDesign::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xStructuralDesign::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 3.
void xStructuralDesign::Read(instream& in, int version) {
  ostrel::refuse_older_than(3, version);
  ostrel::read_fields(in, combResults, bendShear, designedReinforcement, checkedReinforcement);
}
void xStructuralDesign::Write(outstream& out) const {
  ostrel::write_fields(out, combResults, bendShear, designedReinforcement, checkedReinforcement);
}
