// SPDX-License-Identifier: Apache-2.0
#include "ostrel/seismic_action.h"

#include "services/class_frame.h"

using ostrel::base_frame;

void xSeismicAction::reset() {
  *this = xSeismicAction{};
}

void xSeismicAction::switchSign() {
  coefficients[1] = -coefficients[1];
}

std::string xSeismicAction::getIOClass() const {
  return "xSeismicAction";
}
void xSeismicAction::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xSeismicAction::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1.
void xSeismicAction::Read(instream& in, int) {
  ostrel::read_fields(in, coefficients, soil_type_, acceleration_, topographic_factor_);
}
void xSeismicAction::Write(outstream& out) const {
  ostrel::write_fields(out, coefficients, soil_type_, acceleration_, topographic_factor_);
}

void xSeismicActionNTC2008::reset() {
  *this = xSeismicActionNTC2008{};
}

std::string xSeismicActionNTC2008::getIOClass() const {
  return "xSeismicActionNTC2008";
}
void xSeismicActionNTC2008::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xSeismicActionNTC2008::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1.
void xSeismicActionNTC2008::Read(instream& in, int) {
  ostrel::read_fields(in, base_frame<xSeismicAction>(*this), location_, topographic_type_,
                      building_type_, nominal_life_, use_class_, reference_life_, limit_state_,
                      exceedance_, return_period_, amplification_, stratigraphic_factor_, alpha_,
                      beta_);
}
void xSeismicActionNTC2008::Write(outstream& out) const {
  ostrel::write_fields(out, base_frame<xSeismicAction>(*this), location_, topographic_type_,
                       building_type_, nominal_life_, use_class_, reference_life_, limit_state_,
                       exceedance_, return_period_, amplification_, stratigraphic_factor_, alpha_,
                       beta_);
}

void xSeismicActionEC8::reset() {
  *this = xSeismicActionEC8{};
}

std::string xSeismicActionEC8::getIOClass() const {
  return "xSeismicActionEC8";
}
void xSeismicActionEC8::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xSeismicActionEC8::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1.
void xSeismicActionEC8::Read(instream& in, int) {
  ostrel::read_fields(in, base_frame<xSeismicAction>(*this), spectrum_type_,
                      reference_acceleration_, importance_factor_, design_acceleration_, wall_type_,
                      displacement_factor_, lambda_);
}
void xSeismicActionEC8::Write(outstream& out) const {
  ostrel::write_fields(out, base_frame<xSeismicAction>(*this), spectrum_type_,
                       reference_acceleration_, importance_factor_, design_acceleration_,
                       wall_type_, displacement_factor_, lambda_);
}
