// SPDX-License-Identifier: Apache-2.0
#include "ostrel/soil_props.h"

#include "model/geo_factor_list.h"
#include "services/class_frame.h"

#include <cmath>

double GeoCombFactor::getF(geoFactorType type) const {
  switch (type) {
    case geoFactorPressure:
      return first;
    case geoFactorResistance:
      return second;
    default:
      return 1.0;
  }
}

void xElasticProps::reset() {
  *this = xElasticProps{};
}

void xElasticProps::computeShearModulus() {
  ShearModulus = ElasticityModulus / (2.0 * (1.0 + PoissonRatio));
}

std::string xElasticProps::getIOClass() const {
  return "xElasticProps";
}
void xElasticProps::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xElasticProps::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1.
void xElasticProps::Read(instream& in, int) {
  ostrel::read_fields(in, name_, ElasticityModulus, ShearModulus, PoissonRatio);
}
void xElasticProps::Write(outstream& out) const {
  ostrel::write_fields(out, name_, ElasticityModulus, ShearModulus, PoissonRatio);
}

void xSoilProps::reset() {
  *this = xSoilProps{};
}

void xSoilProps::applyGeoFactors(geoFactorType type, const std::vector<GeoCombFactor>& factors) {
  const auto f = [&](std::size_t position) {
    return ostrel::model::geo_factor(factors, position, type);
  };
  InternalFriction = std::atan(std::tan(InternalFriction) / f(0));
  InterfaceFriction = std::atan(std::tan(InterfaceFriction) / f(1));
  const bool frictionless = std::abs(InternalFriction) < 1e-6;
  Cohesion /= frictionless ? f(3) : f(2);
  UnitWeight /= f(4);
  SaturatedUnitWeight /= f(4);
  KPerm /= f(5);
}

std::string xSoilProps::getIOClass() const {
  return "xSoilProps";
}
void xSoilProps::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xSoilProps::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 2, with the base last. Version 1 has no permeability.
void xSoilProps::Read(instream& in, int version) {
  ostrel::read_fields(in, UnitWeight, SaturatedUnitWeight, InternalFriction, InterfaceFriction,
                      Cohesion, Adhesion, OCR, ConstrModulus, IsDense);
  if (version >= 2) ostrel::read_fields(in, KPerm);
  ostrel::read_fields(in, ostrel::base_frame<xElasticProps>(*this));
}
void xSoilProps::Write(outstream& out) const {
  ostrel::write_fields(out, UnitWeight, SaturatedUnitWeight, InternalFriction, InterfaceFriction,
                       Cohesion, Adhesion, OCR, ConstrModulus, IsDense, KPerm);
  ostrel::write_fields(out, ostrel::base_frame<xElasticProps>(*this));
}
