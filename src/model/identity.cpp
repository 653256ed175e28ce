// SPDX-License-Identifier: Apache-2.0
#include "ostrel/identity.h"

#include "services/class_frame.h"

void xDescription::reset() {
  description_.clear();
}

std::string xDescription::getIOClass() const {
  return "xDescription";
}
void xDescription::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xDescription::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1.
void xDescription::Read(instream& in, int) {
  ostrel::read_fields(in, description_);
}
void xDescription::Write(outstream& out) const {
  ostrel::write_fields(out, description_);
}

void xObjectID::reset() {
  id = -1;
  name.clear();
}

void xObjectID::copy(const xObjectID& other) {
  id = other.id;
  if (&other != this) name = other.name;
}

void xObjectID::setObjectID(long new_id, const std::string& new_name) {
  id = static_cast<std::int32_t>(new_id);
  name = new_name;
}

std::string xObjectID::getIOClass() const {
  return "xObjectID";
}
void xObjectID::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xObjectID::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1.
void xObjectID::Read(instream& in, int) {
  ostrel::read_fields(in, id, name);
}
void xObjectID::Write(outstream& out) const {
  ostrel::write_fields(out, id, name);
}
