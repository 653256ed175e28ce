// SPDX-License-Identifier: Apache-2.0
#include "ostrel/wall.h"

#include "services/class_frame.h"

namespace {

// How the kind of a pile's section is stored.
constexpr int no_section = 0;
constexpr int circular_section = 1;
constexpr int rectangular_section = 2;

void write_section(const xCrossSecProp* section, outstream& out) {
  if (const auto* circle = dynamic_cast<const xCircSecProp*>(section)) {
    ostrel::write_fields(out, circular_section, circle->getRadius());
  } else if (const auto* rectangle = dynamic_cast<const xRectSecProp*>(section)) {
    ostrel::write_fields(out, rectangular_section, rectangle->getFirst(), rectangle->getSecond());
  } else {
    ostrel::write_fields(out, no_section);
  }
}

osg::ref_ptr<xCrossSecProp> read_circle(instream& in) {
  double radius = 0.0;
  ostrel::read_fields(in, radius);
  osg::ref_ptr<xCircSecProp> circle = new xCircSecProp;
  circle->setRadius(radius);
  circle->computeProp();
  return circle;
}

osg::ref_ptr<xCrossSecProp> read_rectangle(instream& in) {
  double first = 0.0;
  double second = 0.0;
  ostrel::read_fields(in, first, second);
  osg::ref_ptr<xRectSecProp> rectangle = new xRectSecProp;
  rectangle->setFirst(first);
  rectangle->setSecond(second);
  rectangle->computeProp();
  return rectangle;
}

osg::ref_ptr<xCrossSecProp> read_section(instream& in) {
  int kind = no_section;
  ostrel::read_fields(in, kind);
  switch (kind) {
    case circular_section:
      return read_circle(in);
    case rectangular_section:
      return read_rectangle(in);
    default:
      return nullptr;
  }
}

}  // namespace

void xSheetpilingMaterial::reset() {
  *this = xSheetpilingMaterial{};
}

std::string xSheetpilingMaterial::getIOClass() const {
  return "xSheetpilingMaterial";
}
void xSheetpilingMaterial::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xSheetpilingMaterial::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1.
void xSheetpilingMaterial::Read(instream& in, int) {
  ostrel::read_fields(in, ostrel::base_frame<xElasticProps>(*this), UnitWeight);
}
void xSheetpilingMaterial::Write(outstream& out) const {
  ostrel::write_fields(out, ostrel::base_frame<xElasticProps>(*this), UnitWeight);
}

void xSheetpiling_Props::reset() {
  material.reset();
  checkSettings.reset();
  Length = 0.0;
  Depth = 0.0;
  Extension = 1.0;
}

std::string xSheetpiling_Props::getIOClass() const {
  return "xSheetpiling_Props";
}
void xSheetpiling_Props::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xSheetpiling_Props::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1.
void xSheetpiling_Props::Read(instream& in, int) {
  ostrel::read_fields(in, material, checkSettings, Length, Depth, Extension);
}
void xSheetpiling_Props::Write(outstream& out) const {
  ostrel::write_fields(out, material, checkSettings, Length, Depth, Extension);
}

void xPile_Sheetpiling::reset() {
  *this = xPile_Sheetpiling{};
}

xPile_Sheetpiling* xPile_Sheetpiling::clone() const {
  return new xPile_Sheetpiling(*this);
}

xPile_Sheetpiling* xPile_Sheetpiling::classFactory(const std::string& name) {
  return name == "xPile_Sheetpiling" ? new xPile_Sheetpiling : nullptr;
}

std::string xPile_Sheetpiling::getIOClass() const {
  return "xPile_Sheetpiling";
}
void xPile_Sheetpiling::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xPile_Sheetpiling::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 2. Version 1 has no cap beam.
void xPile_Sheetpiling::Read(instream& in, int version) {
  ostrel::read_fields(in, ostrel::base_frame<xSheetpiling_Props>(*this));
  section = read_section(in);
  ostrel::read_fields(in, NumPiles, Spacing, IdObj);
  if (version >= 2) ostrel::read_fields(in, Btrave, Htrave);
}
void xPile_Sheetpiling::Write(outstream& out) const {
  ostrel::write_fields(out, ostrel::base_frame<xSheetpiling_Props>(*this));
  write_section(section.get(), out);
  ostrel::write_fields(out, NumPiles, Spacing, IdObj, Btrave, Htrave);
}

void DispData::reset() {
  sheetpiling = nullptr;
}

void DispData::getInfoPali(double unit, double* diameter, double* length, double* spacing) const {
  if (!sheetpiling) return;
  if (length) *length = unit * sheetpiling->getLength();
  if (spacing) *spacing = unit * sheetpiling->getSpacing();
  if (!diameter) return;
  const xCrossSecProp* section = sheetpiling->section.get();
  if (const auto* circle = dynamic_cast<const xCircSecProp*>(section)) {
    *diameter = 2.0 * circle->getRadius() * unit;
  } else if (const auto* rectangle = dynamic_cast<const xRectSecProp*>(section)) {
    *diameter = rectangle->getSecond() * unit;
  } else {
    *diameter = 0.0;
  }
}

bool DispData::isParete() const {
  if (!sheetpiling) return false;
  const auto* rectangle = dynamic_cast<const xRectSecProp*>(sheetpiling->section.get());
  return rectangle && rectangle->getFirst() >= sheetpiling->getSpacing();
}

std::string DispData::getIOClass() const {
  return "DispData";
}
void DispData::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void DispData::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1: the wall's class name, then the wall if there is one.
void DispData::Read(instream& in, int) {
  std::string name;
  in >> name;
  sheetpiling = xPile_Sheetpiling::classFactory(name);
  if (sheetpiling) sheetpiling->pub_read(in);
}
void DispData::Write(outstream& out) const {
  out << ostrel::io_class_of(sheetpiling.get());
  if (sheetpiling) sheetpiling->pub_write(out);
}
