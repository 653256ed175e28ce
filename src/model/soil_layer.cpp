// SPDX-License-Identifier: Apache-2.0
#include "ostrel/soil_layer.h"

#include "model/level_limit.h"
#include "services/class_frame.h"

#include <cmath>

void xBoundSoilLayer::reset() {
  *this = xBoundSoilLayer{};
}

std::string xBoundSoilLayer::getIOClass() const {
  return "xBoundSoilLayer";
}
void xBoundSoilLayer::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xBoundSoilLayer::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1.
void xBoundSoilLayer::Read(instream& in, int) {
  ostrel::read_fields(in, soil);
  polygons.clear();
  ostrel::read_counted(in, [this, &in] { read_vec(polygons.emplace_back(), in); });
  ostrel::read_fields(in, Angle);
}
void xBoundSoilLayer::Write(outstream& out) const {
  ostrel::write_fields(out, soil);
  ostrel::write_count(polygons.size(), out);
  for (const auto& polygon : polygons) {
    write_vec(polygon, out);
  }
  ostrel::write_fields(out, Angle);
}

void xSoilLayer::reset() {
  *this = xSoilLayer{};
}

void xSoilLayer::discretize() {
  levels.push_back(Depth);
  const double count = std::ceil(Thickness / StepSize);
  if (!(count >= 1.0 && count <= ostrel::model::most_levels)) return;
  const double step = Thickness / count;
  double level = Depth;
  for (int i = 0; i < static_cast<int>(count); ++i) {
    level += step;
    levels.push_back(level);
  }
}

void xWaterTable::reset() {
  *this = xWaterTable{};
}
