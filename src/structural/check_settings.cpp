// SPDX-License-Identifier: Apache-2.0
#include "ostrel/check_settings.h"

#include "services/class_frame.h"

#include <vector>

void xCheckSettings::reset() {
  xDescription::reset();
  reinforcementSettings = nullptr;
  pileSettings.reset();
  head_disp_lim_ = 0.0;
  jts_disp_lim_ = 0.0;
}

std::string xCheckSettings::getIOClass() const {
  return "xCheckSettings";
}
void xCheckSettings::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xCheckSettings::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 4; none before it is read. The class name stands before the list of one
// although the list repeats it.
void xCheckSettings::Read(instream& in, int version) {
  ostrel::refuse_older_than(4, version);
  std::string name;
  ostrel::read_fields(in, ostrel::base_frame<xDescription>(*this), name);
  std::vector<osg::ref_ptr<xReinforcement_Settings>> settings;
  if (name != ostrel::io_class_of<xReinforcement_Settings>(nullptr)) {
    read_vec_refptr(settings, in, xReinforcement_Settings::newSett);
  }
  reinforcementSettings = settings.empty() ? nullptr : settings.front();
}
void xCheckSettings::Write(outstream& out) const {
  ostrel::write_fields(out, ostrel::base_frame<const xDescription>(*this),
                       ostrel::io_class_of(reinforcementSettings.get()));
  if (!reinforcementSettings) return;
  write_vec_refptr(std::vector{reinforcementSettings}, out);
}
