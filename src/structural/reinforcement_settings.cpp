// SPDX-License-Identifier: Apache-2.0
#include "ostrel/reinforcement_settings.h"

#include "services/class_frame.h"

void xReinforcement_SettingsTrave::reset() {
  *this = xReinforcement_SettingsTrave{};
}

std::string xReinforcement_SettingsTrave::getIOClass() const {
  return "xReinforcement_SettingsTrave";
}
void xReinforcement_SettingsTrave::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xReinforcement_SettingsTrave::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1.
void xReinforcement_SettingsTrave::Read(instream& in, int) {
  ostrel::read_fields(in, Cover, Step, BarDiam, minRatio, maxRatio, bracket);
}
void xReinforcement_SettingsTrave::Write(outstream& out) const {
  ostrel::write_fields(out, Cover, Step, BarDiam, minRatio, maxRatio, bracket);
}

void xReinforcement_Settings::reset() {
  xReinforcement_Settings::operator=(xReinforcement_Settings{});
}

xReinforcement_Settings* xReinforcement_Settings::clone() const {
  return new xReinforcement_Settings(*this);
}

xReinforcement_Settings* xReinforcement_Settings::newSett(const std::string& name) {
  if (name == "xCircularReinfSettings") return new xCircularReinfSettings;
  if (name == "xRectReinfSettings") return new xRectReinfSettings;
  return nullptr;
}

std::string xReinforcement_Settings::getIOClass() const {
  return "xReinforcement_Settings";
}
void xReinforcement_Settings::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xReinforcement_Settings::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 4; none before it is read.
void xReinforcement_Settings::Read(instream& in, int version) {
  ostrel::refuse_older_than(4, version);
  ostrel::read_fields(in, bar_diam_, cover_, step_, material, bracket, trave);
}
void xReinforcement_Settings::Write(outstream& out) const {
  ostrel::write_fields(out, bar_diam_, cover_, step_, material, bracket, trave);
}

void xRectReinfSettings::reset() {
  const bool vertex_bars = useVertexBars;
  *this = xRectReinfSettings{};
  useVertexBars = vertex_bars;
}

xRectReinfSettings* xRectReinfSettings::clone() const {
  return new xRectReinfSettings(*this);
}

std::string xRectReinfSettings::getIOClass() const {
  return "xRectReinfSettings";
}
void xRectReinfSettings::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xRectReinfSettings::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1: without useVertexBars.
void xRectReinfSettings::Read(instream& in, int) {
  ostrel::read_fields(in, ostrel::base_frame<xReinforcement_Settings>(*this), minValle, maxValle,
                      minMonte, maxMonte, ratio);
}
void xRectReinfSettings::Write(outstream& out) const {
  ostrel::write_fields(out, ostrel::base_frame<const xReinforcement_Settings>(*this), minValle,
                       maxValle, minMonte, maxMonte, ratio);
}

void xCircularReinfSettings::reset() {
  *this = xCircularReinfSettings{};
}

xCircularReinfSettings* xCircularReinfSettings::clone() const {
  return new xCircularReinfSettings(*this);
}

std::string xCircularReinfSettings::getIOClass() const {
  return "xCircularReinfSettings";
}
void xCircularReinfSettings::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xCircularReinfSettings::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 3; none before it is read.
void xCircularReinfSettings::Read(instream& in, int version) {
  ostrel::refuse_older_than(3, version);
  ostrel::read_fields(in, ostrel::base_frame<xReinforcement_Settings>(*this), min_ratio_,
                      max_ratio_);
}
void xCircularReinfSettings::Write(outstream& out) const {
  ostrel::write_fields(out, ostrel::base_frame<const xReinforcement_Settings>(*this), min_ratio_,
                       max_ratio_);
}
