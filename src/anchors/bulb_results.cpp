// SPDX-License-Identifier: Apache-2.0
// The records of the verification of the bulbs, their safety factors and their stored forms.
#include "anchors/anchor_demand.h"
#include "ostrel/geotechnical_anchor_check.h"
#include "services/class_frame.h"
#include "structural/verification_frame.h"

#include <cmath>
#include <numbers>

using ostrel::structural::Failures;
using ostrel::structural::scan_groups;
using ostrel::structural::scan_records;

namespace {

double at_rest_coefficient(const xSoilProps& soil) {
  return (1.0 - std::sin(soil.getInternalFriction())) * std::sqrt(soil.getOCR());
}

double active_coefficient(const xSoilProps& soil) {
  const double root = std::tan(std::numbers::pi / 4.0 - soil.getInterfaceFriction() / 2.0);
  return root * root;
}

}  // namespace

void xAnchorPartialFactors::reset() {
  *this = xAnchorPartialFactors{};
}

void xBulbAnchor::calcSoilCoeff(int type) {
  switch (type) {
    case coeffAtRest:
      SoilCoeff = at_rest_coefficient(soil);
      break;
    case coeffActive:
      SoilCoeff = active_coefficient(soil);
      break;
    default:
      SoilCoeff = (active_coefficient(soil) + at_rest_coefficient(soil)) / 2.0;
  }
}

double xBulbAnchor::anchorageStrength() const {
  const double friction = std::tan(soil.getInterfaceFriction()) * SoilCoeff * DepthStress;
  return (friction + soil.getAdhesion()) * Area * AlphaD;
}

void xBulbAnchor::reset() {
  *this = xBulbAnchor{};
}

std::string xBulbAnchor::getIOClass() const {
  return "xBulbAnchor";
}
void xBulbAnchor::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xBulbAnchor::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1.
void xBulbAnchor::Read(instream& in, int) {
  ostrel::read_fields(in, soil, DepthStress, Area, SoilCoeff, AlphaD);
}
void xBulbAnchor::Write(outstream& out) const {
  ostrel::write_fields(out, soil, DepthStress, Area, SoilCoeff, AlphaD);
}

osg::ref_ptr<anchorCheckInfo> xGeoAnchorCombRes::getCheckInfo() const {
  return ostrel::anchors::failed_anchor(*this, false);
}

void xGeoAnchorCombRes::reset() {
  *this = xGeoAnchorCombRes{};
}

std::string xGeoAnchorCombRes::getIOClass() const {
  return "xGeoAnchorCombRes";
}
void xGeoAnchorCombRes::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xGeoAnchorCombRes::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1, after its base.
void xGeoAnchorCombRes::Read(instream& in, int) {
  ostrel::read_fields(in, ostrel::base_frame<xAnchorResults>(*this), bulbs);
}
void xGeoAnchorCombRes::Write(outstream& out) const {
  ostrel::write_fields(out, ostrel::base_frame<xAnchorResults>(*this), bulbs);
}

double xGeoAnchorResults::getSfMin(Failures* failures) {
  scan_records(
      *this, combinations, failures, [](const xGeoAnchorCombRes& each) { return each.getSf(); },
      [](const xGeoAnchorCombRes& each, double) {
        return osg::ref_ptr<xCheckInfo>(each.getCheckInfo().get());
      });
  return sf;
}

void xGeoAnchorResults::reset() {
  *this = xGeoAnchorResults{};
}

std::string xGeoAnchorResults::getIOClass() const {
  return "xGeoAnchorResults";
}
void xGeoAnchorResults::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xGeoAnchorResults::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1, after its base.
void xGeoAnchorResults::Read(instream& in, int) {
  ostrel::read_fields(in, ostrel::base_frame<xBaseResults>(*this), combinations);
}
void xGeoAnchorResults::Write(outstream& out) const {
  ostrel::write_fields(out, ostrel::base_frame<xBaseResults>(*this), combinations);
}

double xGeotechnicalAnchorDesign::getSfMin(Failures* failures) {
  scan_groups(*this, anchors, failures);
  return sf;
}

void xGeotechnicalAnchorDesign::reset() {
  *this = xGeotechnicalAnchorDesign{};
}

std::string xGeotechnicalAnchorDesign::getIOClass() const {
  return "xGeotechnicalAnchorDesign";
}
void xGeotechnicalAnchorDesign::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xGeotechnicalAnchorDesign::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1, after its base.
void xGeotechnicalAnchorDesign::Read(instream& in, int) {
  ostrel::read_fields(in, ostrel::base_frame<xBaseResults>(*this), anchors);
}
void xGeotechnicalAnchorDesign::Write(outstream& out) const {
  ostrel::write_fields(out, ostrel::base_frame<xBaseResults>(*this), anchors);
}
