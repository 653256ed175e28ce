// SPDX-License-Identifier: Apache-2.0
#include "ostrel/hydraulic_check.h"

#include "geotech/seepage_path.h"
#include "model/water_weight.h"
#include "services/class_frame.h"
#include "services/label_table.h"
#include "structural/verification_frame.h"

#include <quillet/translation.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <sstream>

using ostrel::geotech::SeepagePath;
using ostrel::model::water_unit_weight;

namespace {

constexpr std::size_t earth_action = 1;  // position of the earth pressure in a combination

// The factor of a resistance, 1 where the combination has none.
double resistance_factor(const xLoadComb& comb, checkUlsFactors key) {
  const auto entry = comb.ulsFactors.find(key);
  return entry != comb.ulsFactors.end() ? entry->second : 1.0;
}

// The gradient that takes the whole weight from the ground before the foot.
double critical_gradient(const SeepagePath& path) {
  return weight_beyond(path, path.s_toe, 1.0) / water_unit_weight / downhill_height(path);
}

verificaSifonamento piping_of(const SeepagePath& path, const xLoadComb& comb) {
  verificaSifonamento result;
  result.dH = head_at_toe(path) - path.head_down;
  result.Ld = downhill_height(path);
  result.iCrit = critical_gradient(path);
  result.gammaR = resistance_factor(comb, factorPiping);
  return result;
}

verificaSollevamento uplift_of(const SeepagePath& path, const xLoadComb& comb) {
  const double D = downhill_height(path);
  const xAction& earth = comb.actions[earth_action];
  verificaSollevamento result;
  result.i = (head_at_toe(path) - path.head_down) / D;
  result.Udst = result.i * water_unit_weight * (D * D * 0.5);
  result.Gstb = weight_beyond(path, path.s_toe, D * 0.5);
  result.iCrit = critical_gradient(path);
  result.gammaStb = earth.getFactor(actFirst);
  result.gammaDst = earth.getFactor(actSecond);
  result.gammaR = resistance_factor(comb, factorUplift);
  return result;
}

// Whether water flows under a foot at all. A level that is not a number is left to the path, which
// refuses it.
bool may_seep(const xWaterTable& water, double toe, double excavation) {
  if (!water.getIsDefined()) return false;
  const double uphill = water.getLivelloMonte();
  const double downhill = water.getLivelloValle();
  if (!(std::isfinite(uphill) && std::isfinite(downhill))) return true;
  return !(toe > std::min(uphill, downhill)) && !(std::max(uphill, downhill) <= excavation);
}

OstrelErrorType verify(std::int64_t wall, const SeepagePath& path, const xLoadComb& comb,
                       verificheIdrauliche& out) {
  if (!(path.head_down < path.head_up)) return ostrel::ok;
  if (comb.checkActive(checkPiping)) {
    out.piping.push_back(piping_of(path, comb));
    out.piping.back().setCheckID(wall, comb.getcombIndex(), comb.getCombName());
  }
  if (comb.checkActive(checkUplift)) {
    if (!(comb.actions.size() > earth_action)) return errCondListMismatch;
    out.uplift.push_back(uplift_of(path, comb));
    out.uplift.back().setCheckID(wall, comb.getcombIndex(), comb.getCombName());
  }
  return ostrel::ok;
}

// Lowers the running minimum to the smallest factor of `results`.
template <class Result>
void take_smaller(const std::vector<Result>& results, bool is_uplift, double& minimum,
                  ostrel::structural::Failures* failed) {
  for (const Result& result : results) {
    const double factor = result.getSf();
    if (!(factor < minimum)) continue;
    minimum = factor;
    if (!(factor < 1.0 && failed)) continue;
    osg::ref_ptr<HydroCheckInfo> info = new HydroCheckInfo;
    ostrel::structural::identify(*info, result, factor);
    info->isUplift = is_uplift;
    failed->emplace_back(info.get());
  }
}

}  // namespace

OstrelErrorType hyDroCheck(std::int64_t idObj, const xWaterTable& water,
                           const std::vector<xBoundSoilLayer>& layers,
                           const std::vector<xLoadComb>& combs, double toeY, double digY,
                           verificheIdrauliche& out) {
  out.reset();
  if (!may_seep(water, toeY, digY)) return ostrel::ok;
  for (const xLoadComb& comb : combs) {
    SeepagePath path;
    const auto built = ostrel::geotech::build_seepage_path(water, layers, comb, toeY, path);
    if (built != ostrel::ok) return built;
    const auto code = verify(idObj, path, comb, out);
    if (code != ostrel::ok) return code;
  }
  return ostrel::ok;
}

HydroCheckInfo* HydroCheckInfo::clone() const {
  return new HydroCheckInfo(*this);
}

std::string HydroCheckInfo::getString() const {
  using ostrel::services::label;
  using quillet::translatable;
  std::ostringstream text;
  text << label(translatable("Verifica a "))
       << label(isUplift ? translatable("sollevamento") : translatable("sifonamento"))
       << label(translatable(" non soddisfatta comb=")) << combName << label(translatable(", sf="))
       << sf;
  return text.str();
}

double verificaSifonamento::iE() const {
  return dH / Ld;
}

double verificaSifonamento::getSf() const {
  return CalculateSF(iE(), iCrit / gammaR);
}

void verificaSifonamento::reset() {
  const xCheckCombID id = *this;
  *this = verificaSifonamento{};
  setCheckID(id);
}

std::string verificaSifonamento::getIOClass() const {
  return "verificaSifonamento";
}
void verificaSifonamento::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void verificaSifonamento::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1: the base last.
void verificaSifonamento::Read(instream& in, int) {
  ostrel::read_fields(in, dH, Ld, iCrit, gammaR, ostrel::base_frame<xCheckCombID>(*this));
}
void verificaSifonamento::Write(outstream& out) const {
  ostrel::write_fields(out, dH, Ld, iCrit, gammaR, ostrel::base_frame<xCheckCombID>(*this));
}

double verificaSollevamento::getSf() const {
  return CalculateSF(gammaDst * Udst, gammaStb * Gstb);
}

void verificaSollevamento::reset() {
  const xCheckCombID id = *this;
  *this = verificaSollevamento{};
  setCheckID(id);
}

std::string verificaSollevamento::getIOClass() const {
  return "verificaSollevamento";
}
void verificaSollevamento::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void verificaSollevamento::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1: the base last.
void verificaSollevamento::Read(instream& in, int) {
  ostrel::read_fields(in, Udst, Gstb, gammaStb, gammaDst, gammaR, i, iCrit, reserved,
                      ostrel::base_frame<xCheckCombID>(*this));
}
void verificaSollevamento::Write(outstream& out) const {
  ostrel::write_fields(out, Udst, Gstb, gammaStb, gammaDst, gammaR, i, iCrit, reserved,
                       ostrel::base_frame<xCheckCombID>(*this));
}

double verificheIdrauliche::getSfMin(ostrel::structural::Failures* failed) {
  double minimum = ostrel::structural::unlimited_factor;
  take_smaller(uplift, true, minimum, failed);
  take_smaller(piping, false, minimum, failed);
  return minimum;
}

void verificheIdrauliche::reset() {
  uplift.clear();
  piping.clear();
}

std::string verificheIdrauliche::getIOClass() const {
  return "verificheIdrauliche";
}
void verificheIdrauliche::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void verificheIdrauliche::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1.
void verificheIdrauliche::Read(instream& in, int) {
  ostrel::read_fields(in, uplift, piping);
}
void verificheIdrauliche::Write(outstream& out) const {
  ostrel::write_fields(out, uplift, piping);
}
