// SPDX-License-Identifier: Apache-2.0
#include "ostrel/results.h"

#include "services/class_frame.h"

void xCombResults::reset() {
  earthPress.reset();
  hydroPress.reset();
  subgradeModulus.clear();
  loadCondPress.clear();
  femLoadConds.clear();
  femResults.reset();
  comb_index_ = 0;
  comb_name_.clear();
}

std::string xCombResults::getIOClass() const {
  return "xCombResults";
}
void xCombResults::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xCombResults::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 2.
void xCombResults::Read(instream& in, int version) {
  ostrel::refuse_older_than(2, version);
  ostrel::read_fields(in, earthPress, hydroPress, subgradeModulus, loadCondPress, femLoadConds,
                      femResults, comb_index_, comb_name_);
}
void xCombResults::Write(outstream& out) const {
  ostrel::write_fields(out, earthPress, hydroPress, subgradeModulus, loadCondPress, femLoadConds,
                       femResults, comb_index_, comb_name_);
}

void xSheetpilingRes::reset() {
  combResults.clear();
}

std::string xSheetpilingRes::getIOClass() const {
  return "xSheetpilingRes";
}
void xSheetpilingRes::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xSheetpilingRes::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1.
void xSheetpilingRes::Read(instream& in, int) {
  ostrel::read_fields(in, combResults);
}
void xSheetpilingRes::Write(outstream& out) const {
  ostrel::write_fields(out, combResults);
}
