// SPDX-License-Identifier: Apache-2.0
// The records of the wall's verification, their safety factors and their stored forms.
#include "ostrel/wall_check.h"
#include "services/class_frame.h"
#include "structural/verification_frame.h"

#include <cmath>

using ostrel::structural::Failures;
using ostrel::structural::scan_groups;
using ostrel::structural::scan_records;

namespace {

// The smaller factor of a section; a factor that is not a number does not hide the other.
double least_factor(const xSectionCheck& section) {
  return std::fmin(section.shear.getSf(), section.flex.getSf());
}

// A failed section of a member, about to be listed.
osg::ref_ptr<xCheckInfo> failed_section(const xCheckCombID& id, double sf, double abscissa,
                                        bool is_shear) {
  osg::ref_ptr<concreteCheckInfo> info = new concreteCheckInfo;
  ostrel::structural::identify(*info, id, sf);
  info->isShear = is_shear;
  info->abscissa = abscissa;
  return info.get();
}

}  // namespace

double& xSollVector::operator[](int position) {
  static thread_local double nowhere;
  nowhere = 0.0;
  switch (position) {
    case 0:
      return z;
    case 1:
      return N;
    case 2:
      return T;
    case 3:
      return M;
    default:
      return nowhere;
  }
}

std::string xSollVector::getIOClass() const {
  return "xSollVector";
}
void xSollVector::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xSollVector::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1.
void xSollVector::Read(instream& in, int) {
  ostrel::read_fields(in, z, N, T, M);
}
void xSollVector::Write(outstream& out) const {
  ostrel::write_fields(out, z, N, T, M);
}

void xStructCombRes::reset() {
  xCheckCombID::reset();
  stresses.clear();
}

std::string xStructCombRes::getIOClass() const {
  return "xStructCombRes";
}
void xStructCombRes::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xStructCombRes::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 5, without the base.
void xStructCombRes::Read(instream& in, int version) {
  ostrel::refuse_older_than(5, version);
  ostrel::read_fields(in, stresses);
}
void xStructCombRes::Write(outstream& out) const {
  ostrel::write_fields(out, stresses);
}

double xBendShearCombResults::getSfMin(Failures* failures) {
  scan_records(*this, sections, failures, least_factor,
               [this](const xSectionCheck& section, double factor) {
                 const bool is_shear = section.shear.getSf() < section.flex.getSf();
                 return failed_section(*this, factor, section.abscissa, is_shear);
               });
  return sf;
}

void xBendShearCombResults::reset() {
  xBaseResults::reset();
  xCheckCombID::reset();
  sections.clear();
}

std::string xBendShearCombResults::getIOClass() const {
  return "xBendShearCombResults";
}
void xBendShearCombResults::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xBendShearCombResults::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 2, after its two bases.
void xBendShearCombResults::Read(instream& in, int version) {
  ostrel::refuse_older_than(2, version);
  ostrel::read_fields(in, ostrel::base_frame<xBaseResults>(*this),
                      ostrel::base_frame<xCheckCombID>(*this), sections);
}
void xBendShearCombResults::Write(outstream& out) const {
  ostrel::write_fields(out, ostrel::base_frame<xBaseResults>(*this),
                       ostrel::base_frame<xCheckCombID>(*this), sections);
}

double xBendShearResults::getSfMin(Failures* failures) {
  scan_groups(*this, combinations, failures);
  return sf;
}

void xBendShearResults::reset() {
  xBaseResults::reset();
  combinations.clear();
}

std::string xBendShearResults::getIOClass() const {
  return "xBendShearResults";
}
void xBendShearResults::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xBendShearResults::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1, after its base.
void xBendShearResults::Read(instream& in, int) {
  ostrel::read_fields(in, ostrel::base_frame<xBaseResults>(*this), combinations);
}
void xBendShearResults::Write(outstream& out) const {
  ostrel::write_fields(out, ostrel::base_frame<xBaseResults>(*this), combinations);
}

double xShearCombResults::getSfMin(Failures* failures) {
  scan_records(
      *this, sections, failures, [](const xShear& shear) { return shear.getSf(); },
      [this](const xShear& shear, double factor) {
        return failed_section(*this, factor, shear.abscissa, true);
      });
  return sf;
}

void xShearCombResults::reset() {
  xBaseResults::reset();
  xCheckCombID::reset();
  sections.clear();
}

std::string xShearCombResults::getIOClass() const {
  return "xShearCombResults";
}
void xShearCombResults::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xShearCombResults::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1, after its two bases.
void xShearCombResults::Read(instream& in, int) {
  ostrel::read_fields(in, ostrel::base_frame<xBaseResults>(*this),
                      ostrel::base_frame<xCheckCombID>(*this), sections);
}
void xShearCombResults::Write(outstream& out) const {
  ostrel::write_fields(out, ostrel::base_frame<xBaseResults>(*this),
                       ostrel::base_frame<xCheckCombID>(*this), sections);
}

double xShearResults::getSfMin(Failures* failures) {
  scan_groups(*this, combinations, failures);
  index = 0;
  return sf;
}

void xShearResults::reset() {
  xBaseResults::reset();
  combinations.clear();
}

std::string xShearResults::getIOClass() const {
  return "xShearResults";
}
void xShearResults::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xShearResults::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1, after its base.
void xShearResults::Read(instream& in, int) {
  ostrel::read_fields(in, ostrel::base_frame<xBaseResults>(*this), combinations);
}
void xShearResults::Write(outstream& out) const {
  ostrel::write_fields(out, ostrel::base_frame<xBaseResults>(*this), combinations);
}
