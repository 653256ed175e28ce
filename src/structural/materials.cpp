// SPDX-License-Identifier: Apache-2.0
#include "ostrel/materials.h"

#include "services/class_frame.h"

#include <cmath>

void xConcreteProps::reset() {
  *this = xConcreteProps{};
}

double xConcreteProps::Fck() const {
  return 0.83 * rck_;
}
double xConcreteProps::Fcm() const {
  return Fck() + 8.0;
}
double xConcreteProps::Fcd() const {
  return Fck() * alfa_cc_ / gamma_c_;
}
double xConcreteProps::Fctm() const {
  const double fck = Fck();
  if (fck > 50.0) return 2.12 * std::log((fck + 8.0) / 10.0 + 1.0);
  return 0.3 * std::pow(fck, 2.0 / 3.0);
}
double xConcreteProps::Fctk() const {
  return 0.7 * Fctm();
}
double xConcreteProps::Fcfm() const {
  return 1.2 * Fctm();
}
double xConcreteProps::Fctd() const {
  return Fctk() / gamma_c_;
}
double xConcreteProps::Fbk() const {
  return 2.25 * eta_ * Fctk();
}
double xConcreteProps::Fbd() const {
  return Fbk() / gamma_c_;
}
double xConcreteProps::Ecm() const {
  return 22000.0 * std::pow(Fcm() / 10.0, 0.3);
}

std::string xConcreteProps::getIOClass() const {
  return "xConcreteProps";
}
void xConcreteProps::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xConcreteProps::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1.
void xConcreteProps::Read(instream& in, int) {
  ostrel::read_fields(in, rck_, ec2_, ecu_, alfa_cc_, gamma_c_, eta_);
}
void xConcreteProps::Write(outstream& out) const {
  ostrel::write_fields(out, rck_, ec2_, ecu_, alfa_cc_, gamma_c_, eta_);
}

void xSteelProps::reset() {
  *this = xSteelProps{};
}

double xSteelProps::Fyd() const {
  return fyk_ / gamma_s_;
}
double xSteelProps::Eyd() const {
  return Fyd() / es_;
}
double xSteelProps::Eud() const {
  return 0.9 * euk_;
}
double xSteelProps::getEpostYeld() const {
  const double slope = (k_ - 1.0) * Fyd() / (Eud() - Eyd());
  return slope > 0.0 ? slope : 0.0;
}

std::string xSteelProps::getIOClass() const {
  return "xSteelProps";
}
void xSteelProps::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xSteelProps::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1: not in the order of the members.
void xSteelProps::Read(instream& in, int) {
  ostrel::read_fields(in, fyk_, es_, gamma_s_, euk_, k_);
}
void xSteelProps::Write(outstream& out) const {
  ostrel::write_fields(out, fyk_, es_, gamma_s_, euk_, k_);
}

void xMaterialProps::reset() {
  *this = xMaterialProps{};
}

std::string xMaterialProps::getIOClass() const {
  return "xMaterialProps";
}
void xMaterialProps::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xMaterialProps::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1.
void xMaterialProps::Read(instream& in, int) {
  ostrel::read_fields(in, alfa_c_, concrete, steel);
}
void xMaterialProps::Write(outstream& out) const {
  ostrel::write_fields(out, alfa_c_, concrete, steel);
}
