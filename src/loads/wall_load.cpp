// SPDX-License-Identifier: Apache-2.0
#include "ostrel/wall_load.h"

#include "services/class_frame.h"

using ostrel::base_frame;

void xShpileLoad::reset() {
  // A load on the wall has no fields of its own here; id and name stay.
}

std::string xShpileLoad::getIOClass() const {
  return "xShpileLoad";
}
void xShpileLoad::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xShpileLoad::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1.
void xShpileLoad::Read(instream& in, int) {
  ostrel::read_fields(in, base_frame<xBaseLoad>(*this));
}
void xShpileLoad::Write(outstream& out) const {
  ostrel::write_fields(out, base_frame<xBaseLoad>(*this));
}

void xConcenterdLoad::reset() {
  xShpileLoad::reset();
  force.zeros();
  position_ = 0.0;
}

std::string xConcenterdLoad::getIOClass() const {
  return "xConcenterdLoad";
}
void xConcenterdLoad::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xConcenterdLoad::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

xShpileLoad* xConcenterdLoad::clone() const {
  return new xConcenterdLoad(*this);
}

// Stored form, version 1.
void xConcenterdLoad::Read(instream& in, int) {
  ostrel::read_fields(in, base_frame<xShpileLoad>(*this), force, position_);
}
void xConcenterdLoad::Write(outstream& out) const {
  ostrel::write_fields(out, base_frame<xShpileLoad>(*this), force, position_);
}

std::string xDistribuitedLoad::getIOClass() const {
  return "xDistribuitedLoad";
}
void xDistribuitedLoad::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xDistribuitedLoad::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

xShpileLoad* xDistribuitedLoad::clone() const {
  return new xDistribuitedLoad(*this);
}

// Stored form, version 1.
void xDistribuitedLoad::Read(instream& in, int) {
  ostrel::read_fields(in, base_frame<xConcenterdLoad>(*this));
}
void xDistribuitedLoad::Write(outstream& out) const {
  ostrel::write_fields(out, base_frame<xConcenterdLoad>(*this));
}

void xTorqueLoad::reset() {
  xShpileLoad::reset();
  position_ = 0.0;
  value_ = 0.0;
}

std::string xTorqueLoad::getIOClass() const {
  return "xTorqueLoad";
}
void xTorqueLoad::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xTorqueLoad::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

xShpileLoad* xTorqueLoad::clone() const {
  return new xTorqueLoad(*this);
}

// Stored form, version 1.
void xTorqueLoad::Read(instream& in, int) {
  ostrel::read_fields(in, base_frame<xShpileLoad>(*this), position_, value_);
}
void xTorqueLoad::Write(outstream& out) const {
  ostrel::write_fields(out, base_frame<xShpileLoad>(*this), position_, value_);
}

std::string xDistribuitedTorque::getIOClass() const {
  return "xDistribuitedTorque";
}
void xDistribuitedTorque::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xDistribuitedTorque::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

xShpileLoad* xDistribuitedTorque::clone() const {
  return new xDistribuitedTorque(*this);
}

// Stored form, version 1.
void xDistribuitedTorque::Read(instream& in, int) {
  ostrel::read_fields(in, base_frame<xTorqueLoad>(*this));
}
void xDistribuitedTorque::Write(outstream& out) const {
  ostrel::write_fields(out, base_frame<xTorqueLoad>(*this));
}
