// SPDX-License-Identifier: Apache-2.0
#include "ostrel/soil_load.h"

#include "services/class_frame.h"

using ostrel::base_frame;

std::string xBaseLoad::getIOClass() const {
  return "xBaseLoad";
}
void xBaseLoad::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xBaseLoad::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1.
void xBaseLoad::Read(instream& in, int) {
  ostrel::read_fields(in, base_frame<xObjectID>(*this));
}
void xBaseLoad::Write(outstream& out) const {
  ostrel::write_fields(out, base_frame<xObjectID>(*this));
}

std::string xSoilLoad::getIOClass() const {
  return "xSoilLoad";
}
void xSoilLoad::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xSoilLoad::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1.
void xSoilLoad::Read(instream& in, int) {
  ostrel::read_fields(in, base_frame<xBaseLoad>(*this));
}
void xSoilLoad::Write(outstream& out) const {
  ostrel::write_fields(out, base_frame<xBaseLoad>(*this));
}

void xUniformLoad::reset() {
  *this = xUniformLoad{};
}

std::string xUniformLoad::getIOClass() const {
  return "xUniformLoad";
}
void xUniformLoad::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xUniformLoad::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

xSoilLoad* xUniformLoad::clone() const {
  return new xUniformLoad(*this);
}

// Stored form, version 1.
void xUniformLoad::Read(instream& in, int) {
  ostrel::read_fields(in, base_frame<xSoilLoad>(*this), value_);
}
void xUniformLoad::Write(outstream& out) const {
  ostrel::write_fields(out, base_frame<xSoilLoad>(*this), value_);
}

void xNastriformLoad::reset() {
  *this = xNastriformLoad{};
}

std::string xNastriformLoad::getIOClass() const {
  return "xNastriformLoad";
}
void xNastriformLoad::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xNastriformLoad::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

xSoilLoad* xNastriformLoad::clone() const {
  return new xNastriformLoad(*this);
}

// Stored form, version 1.
void xNastriformLoad::Read(instream& in, int) {
  ostrel::read_fields(in, base_frame<xSoilLoad>(*this), start_value_, end_value_, position_,
                      extension_);
}
void xNastriformLoad::Write(outstream& out) const {
  ostrel::write_fields(out, base_frame<xSoilLoad>(*this), start_value_, end_value_, position_,
                       extension_);
}

void xLocalizedLoad::reset() {
  *this = xLocalizedLoad{};
}

std::string xLocalizedLoad::getIOClass() const {
  return "xLocalizedLoad";
}
void xLocalizedLoad::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xLocalizedLoad::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

xSoilLoad* xLocalizedLoad::clone() const {
  return new xLocalizedLoad(*this);
}

// Stored form, version 1.
void xLocalizedLoad::Read(instream& in, int) {
  ostrel::read_fields(in, base_frame<xSoilLoad>(*this), position_, value_);
}
void xLocalizedLoad::Write(outstream& out) const {
  ostrel::write_fields(out, base_frame<xSoilLoad>(*this), position_, value_);
}

std::string xLinearLoad::getIOClass() const {
  return "xLinearLoad";
}
void xLinearLoad::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xLinearLoad::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

xSoilLoad* xLinearLoad::clone() const {
  return new xLinearLoad(*this);
}

// Stored form, version 1.
void xLinearLoad::Read(instream& in, int) {
  ostrel::read_fields(in, base_frame<xLocalizedLoad>(*this));
}
void xLinearLoad::Write(outstream& out) const {
  ostrel::write_fields(out, base_frame<xLocalizedLoad>(*this));
}

std::string xPuntiformLoad::getIOClass() const {
  return "xPuntiformLoad";
}
void xPuntiformLoad::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xPuntiformLoad::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

xSoilLoad* xPuntiformLoad::clone() const {
  return new xPuntiformLoad(*this);
}

// Stored form, version 1.
void xPuntiformLoad::Read(instream& in, int) {
  ostrel::read_fields(in, base_frame<xLocalizedLoad>(*this));
}
void xPuntiformLoad::Write(outstream& out) const {
  ostrel::write_fields(out, base_frame<xLocalizedLoad>(*this));
}
