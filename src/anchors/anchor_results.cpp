// SPDX-License-Identifier: Apache-2.0
#include "ostrel/anchor_results.h"

#include "services/class_frame.h"

void xAnchorResults::reset() {
  *this = xAnchorResults{};
}

std::string xAnchorResults::getIOClass() const {
  return "xAnchorResults";
}
void xAnchorResults::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xAnchorResults::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1, after its base and with the depth last.
void xAnchorResults::Read(instream& in, int) {
  ostrel::read_fields(in, ostrel::base_frame<xCheckCombID>(*this), Rd, Fd, Sf, depth);
}
void xAnchorResults::Write(outstream& out) const {
  ostrel::write_fields(out, ostrel::base_frame<xCheckCombID>(*this), Rd, Fd, Sf, depth);
}
