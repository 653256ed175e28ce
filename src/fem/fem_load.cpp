// SPDX-License-Identifier: Apache-2.0
#include "ostrel/fem_load.h"

#include "services/class_frame.h"

#include <cmath>

xFemNodeData& xFemNodeData::operator+=(const xFemNodeData& other) {
  x += other.x;
  y += other.y;
  r += other.r;
  return *this;
}

void xFemNodeData::zeros() {
  *this = xFemNodeData{};
}

double xFemNodeData::len() const {
  return std::sqrt(x * x + y * y + r * r);
}

std::string xFemNodeData::getIOClass() const {
  return "xFemNodeData";
}
void xFemNodeData::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xFemNodeData::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1.
void xFemNodeData::Read(instream& in, int) {
  ostrel::read_fields(in, x, y, r);
}
void xFemNodeData::Write(outstream& out) const {
  ostrel::write_fields(out, x, y, r);
}

bool xFemNodeData_pos::operator<(const xFemNodeData_pos& other) const {
  return pos < other.pos;
}

std::string xFemNodeData_pos::getIOClass() const {
  return "xFemNodeData_pos";
}
void xFemNodeData_pos::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xFemNodeData_pos::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1: the inner record has no frame of its own.
void xFemNodeData_pos::Read(instream& in, int) {
  ostrel::read_fields(in, pos, data.x, data.y, data.r);
}
void xFemNodeData_pos::Write(outstream& out) const {
  ostrel::write_fields(out, pos, data.x, data.y, data.r);
}

std::string PressAtEnds::getIOClass() const {
  return "PressAtEnds";
}
void PressAtEnds::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void PressAtEnds::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 2.
void PressAtEnds::Read(instream& in, int version) {
  ostrel::refuse_older_than(2, version);
  ostrel::read_fields(in, pStart, pEnd, aStart, aEnd);
}
void PressAtEnds::Write(outstream& out) const {
  ostrel::write_fields(out, pStart, pEnd, aStart, aEnd);
}

void xFemLoadCond::reset() {
  *this = xFemLoadCond{};
}

std::string xFemLoadCond::getIOClass() const {
  return "xFemLoadCond";
}
void xFemLoadCond::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xFemLoadCond::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1.
void xFemLoadCond::Read(instream& in, int) {
  ostrel::read_fields(in, nodalForces, pressures, cond_name_);
}
void xFemLoadCond::Write(outstream& out) const {
  ostrel::write_fields(out, nodalForces, pressures, cond_name_);
}
