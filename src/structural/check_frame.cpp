// SPDX-License-Identifier: Apache-2.0
#include "ostrel/check_frame.h"

#include "services/class_frame.h"
#include "services/exact.h"
#include "structural/verification_frame.h"

#include <quillet/translation.h>

#include <cmath>

using ostrel::structural::failure_text;
using ostrel::structural::unlimited_factor;
using quillet::translatable;

double CalculateSF(double demand, double resistance) {
  if (ostrel::exactly_equal(demand, 0.0)) return unlimited_factor;
  const double factor = std::abs(resistance / demand);
  return factor > unlimited_factor ? unlimited_factor : factor;
}

void xBaseResults::reset() {
  sf = unlimited_factor;
  index = 0;
}

std::string xBaseResults::getIOClass() const {
  return "xBaseResults";
}
void xBaseResults::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xBaseResults::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1.
void xBaseResults::Read(instream& in, int) {
  ostrel::read_fields(in, sf, index);
}
void xBaseResults::Write(outstream& out) const {
  ostrel::write_fields(out, sf, index);
}

void xCheckCombID::reset() {
  idObj = -1;
  combIndex = 0;
  combName.clear();
}

void xCheckCombID::setCheckID(const xCheckCombID& other) {
  setCheckID(other.idObj, other.combIndex, other.combName);
}

void xCheckCombID::setCheckID(std::int64_t id, int position, const std::string& name) {
  idObj = id;
  combIndex = position;
  combName = name;
}

std::string xCheckCombID::getIOClass() const {
  return "xCheckCombID";
}
void xCheckCombID::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xCheckCombID::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1: not in the order of the members.
void xCheckCombID::Read(instream& in, int) {
  ostrel::read_fields(in, combIndex, combName, idObj);
}
void xCheckCombID::Write(outstream& out) const {
  ostrel::write_fields(out, combIndex, combName, idObj);
}

concreteCheckInfo* concreteCheckInfo::clone() const {
  return new concreteCheckInfo(*this);
}

std::string concreteCheckInfo::getString() const {
  return failure_text(isShear ? translatable("Verifica a taglio non soddisfatta: comb=")
                              : translatable("Verifica a pressoflessione non soddisfatta: comb="),
                      *this, translatable(", sezione="), abscissa);
}

anchorCheckInfo* anchorCheckInfo::clone() const {
  return new anchorCheckInfo(*this);
}

std::string anchorCheckInfo::getString() const {
  return failure_text(isResistance
                          ? translatable("Verifica resistenza ancoraggio non soddisfatta comb:")
                          : translatable("Verifica sfilamento ancoraggio non soddisfatta comb:"),
                      *this, translatable(", quota="), depth);
}
