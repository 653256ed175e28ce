// SPDX-License-Identifier: Apache-2.0
#include "ostrel/load_condition.h"

#include "services/class_frame.h"

#include <utility>

namespace {

// The loads of `list` made anew, without the entries that hold none or yield none.
template <class Load>
std::vector<osg::ref_ptr<Load>> cloned(const std::vector<osg::ref_ptr<Load>>& list) {
  std::vector<osg::ref_ptr<Load>> copies;
  copies.reserve(list.size());
  for (const auto& load : list) {
    const osg::ref_ptr<Load> copy = load.valid() ? load->clone() : nullptr;
    if (copy.valid()) copies.push_back(copy);
  }
  return copies;
}

// A new load of the class `name`, null for a class unknown here. A point load is not among them.
osg::ref_ptr<xSoilLoad> make_soil_load(const std::string& name) {
  if (name == "xUniformLoad") return new xUniformLoad;
  if (name == "xNastriformLoad") return new xNastriformLoad;
  if (name == "xLocalizedLoad") return new xLocalizedLoad;
  if (name == "xLinearLoad") return new xLinearLoad;
  return nullptr;
}

osg::ref_ptr<xShpileLoad> make_wall_load(const std::string& name) {
  if (name == "xConcenterdLoad") return new xConcenterdLoad;
  if (name == "xDistribuitedLoad") return new xDistribuitedLoad;
  if (name == "xTorqueLoad") return new xTorqueLoad;
  if (name == "xDistribuitedTorque") return new xDistribuitedTorque;
  return nullptr;
}

}  // namespace

xLoadCond::xLoadCond(const xLoadCond& other)
    : xObjectID(other),
      soilLoads(cloned(other.soilLoads)),
      shpileLoads(cloned(other.shpileLoads)) {}

xLoadCond::xLoadCond(xLoadCond&& other) noexcept
    : soilLoads(std::move(other.soilLoads)), shpileLoads(std::move(other.shpileLoads)) {
  id = other.id;
  name.swap(other.name);
}

xLoadCond& xLoadCond::operator=(const xLoadCond& other) {
  xLoadCond::copy(other);
  return *this;
}

xLoadCond& xLoadCond::operator=(xLoadCond&& other) noexcept {
  id = other.id;
  name.swap(other.name);
  soilLoads.swap(other.soilLoads);
  shpileLoads.swap(other.shpileLoads);
  return *this;
}

void xLoadCond::copy(const xLoadCond& other) {
  if (&other == this) return;
  *this = xLoadCond(other);
}

void xLoadCond::reset() {
  xObjectID::reset();
  soilLoads.clear();
  shpileLoads.clear();
}

std::string xLoadCond::getIOClass() const {
  return "xLoadCond";
}
void xLoadCond::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xLoadCond::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1.
void xLoadCond::Read(instream& in, int) {
  ostrel::read_fields(in, ostrel::base_frame<xObjectID>(*this));
  read_vec_refptr(soilLoads, in, make_soil_load);
  read_vec_refptr(shpileLoads, in, make_wall_load);
}
void xLoadCond::Write(outstream& out) const {
  ostrel::write_fields(out, ostrel::base_frame<xObjectID>(*this));
  write_vec_refptr(soilLoads, out);
  write_vec_refptr(shpileLoads, out);
}
