// SPDX-License-Identifier: Apache-2.0
#include "ostrel/foundation_bearing.h"

#include "geotech/bearing_factors.h"
#include "model/water_weight.h"

#include <ostrel/design_soil.h>
#include <ostrel/tolerances.h>

#include <cmath>

namespace {

using ostrel::geotech::InclinedLoad;
using ostrel::geotech::TermFactors;

double friction_angle(const xBearCapacityData& data) {
  const double phi = data.soil.getInternalFriction();
  return std::abs(phi) < (*getTolerances())[xTolerances::friction_angle] ? 0.0 : phi;
}

InclinedLoad inclined_load(const xBearCapacityData& data) {
  using namespace ostrel::geotech;
  const double B = data.geometry.getWidth();
  if (!data.getShapeFactIsActive()) return load_on_strip(data.loads[0], data.loads[1], B);
  return load_on_rectangle(data.loads[0], data.loads[1], B, data.geometry.getLength());
}

// A negative power of 1 - H / (A c / t + V) need not be a number; the load is too inclined then
// too.
OstrelErrorType check_inclination(const TermFactors& I) {
  return I.q >= 0.0 && I.c >= 0.0 && I.g >= 0.0 ? ostrel::ok : errLoadTooInclined;
}

}  // namespace

void xGeomPropsFound::reset() {
  *this = xGeomPropsFound{};
}

void xBearCapacityData::reset() {
  *this = xBearCapacityData{};
}

double xBearCapacityData::getPassivePress(formulType formula, double theta, double beta) const {
  xDesignSoil design;
  design.soil = soil;
  design.compute_Coeff(formula, theta, beta, acceleration, false);
  return design.getK() * DepthStress;
}

void xBearCapacityFound::reset() {
  *this = xBearCapacityFound{};
}

OstrelErrorType xBearCapacityFound::compute_Factors(const xBearCapacityData& data) {
  return data.getFormulation() == 1 ? eurocode7(data) : terzaghi(data);
}

OstrelErrorType xBearCapacityFound::terzaghi(const xBearCapacityData& data) {
  using namespace ostrel::geotech;
  const double phi = friction_angle(data);
  bearing_ = bearing_terzaghi(phi);
  if (data.getInclinFactIsActive()) {
    inclination_ =
        inclination_terzaghi(phi, data.soil.getCohesion(), inclined_load(data), bearing_.c);
    if (const auto code = check_inclination(inclination_); code != ostrel::ok) return code;
  }
  if (data.getShapeFactIsActive()) {
    shape_ = shape_terzaghi(phi, data.geometry.getWidth(), data.geometry.getLength(), bearing_);
  }
  set_common_factors(data, phi);
  return ostrel::ok;
}

OstrelErrorType xBearCapacityFound::eurocode7(const xBearCapacityData& data) {
  using namespace ostrel::geotech;
  const double phi = friction_angle(data);
  bearing_ = bearing_eurocode7(phi);
  if (data.getInclinFactIsActive()) {
    inclination_ =
        inclination_eurocode7(phi, data.soil.getCohesion(), inclined_load(data), bearing_.c);
    if (const auto code = check_inclination(inclination_); code != ostrel::ok) return code;
  }
  if (data.getShapeFactIsActive()) {
    shape_ = shape_eurocode7(phi, data.geometry.getWidth(), data.geometry.getLength(), bearing_.q);
  }
  set_common_factors(data, phi);
  return ostrel::ok;
}

// The families that both formulations share.
void xBearCapacityFound::set_common_factors(const xBearCapacityData& data, double phi) {
  using namespace ostrel::geotech;
  const double B = data.geometry.getWidth();
  const double L = data.geometry.getLength();
  if (data.getBaseFactIsActive()) {
    base_ = base_factors(phi, data.geometry.getAlpha(), bearing_.c);
  }
  if (data.getDepthFactIsActive()) {
    const TermFactors deep = depth_factors(phi, data.geometry.getDepth(), B, bearing_.c);
    depth_.c = deep.c;
    depth_.q = deep.q;
  }
  if (data.getGroundFactIsActive()) {
    ground_ = ground_factors(phi, data.geometry.getBeta(), bearing_.c);
  }
  if (!data.getPunchingFactIsActive()) return;
  Irc = critical_rigidity_index(phi, B, L);
  Ir = rigidity_index(phi, data.soil.getCohesion(), data.soil.getShearModulus(),
                      data.getWedgeStress());
  // A rigidity that is not a number must not pass for a stiff soil.
  if (!(Irc <= Ir)) punching_ = punching_factors(phi, B, L, Ir, bearing_.q);
  inertia_ = inertia_factors(phi, data.acceleration[0]);
}

OstrelErrorType xBearCapacityFound::compute_BearCapacity(const xBearCapacityData& data) {
  if (const auto code = compute_Factors(data); code != ostrel::ok) return code;
  const double gamma = data.getUnderWater()
                         ? data.soil.getSaturatedUnitWeight() - ostrel::model::water_unit_weight
                         : data.soil.getUnitWeight();
  LimitLoad = data.soil.getCohesion()
                * (inclination_.c * bearing_.c * base_.c * shape_.c * depth_.c * ground_.c
                   * punching_.c * inertia_.c)
            + data.getDepthStress()
                  * (inclination_.q * bearing_.q * base_.q * shape_.q * depth_.q * ground_.q
                     * punching_.q * inertia_.q)
            + 0.5 * gamma * data.geometry.getWidth()
                  * (inclination_.g * bearing_.g * base_.g * shape_.g * depth_.g * ground_.g
                     * punching_.g * inertia_.g);
  return ostrel::ok;
}
