// SPDX-License-Identifier: Apache-2.0
#include "ostrel/ultimate_limit_states.h"

#include "services/class_frame.h"
#include "structural/verification_frame.h"

#include <algorithm>
#include <cstdint>
#include <vector>

namespace {

template <class Design>
void append_ids(const Design& design, std::vector<std::int64_t>& ids) {
  for (const auto& anchor : design.anchors) {
    for (const auto& result : anchor.combinations) {
      ids.push_back(result.getIdObj());
    }
  }
}

}  // namespace

void xUltimateLimitStates::reset() {
  structuralDesign.reset();
  slopeStabilityDesign.reset();
  structuralAnchorDesign.reset();
  geotechnicalAnchorDesign.reset();
  geotechnicalPileDesign.reset();
  rigidBodyDesign.reset();
  traveResults.reset();
  hydraulicChecks.reset();
}

double xUltimateLimitStates::getSfMin(ostrel::structural::Failures* failures) {
  // One after the other: the failures come in this order.
  double least = ostrel::structural::unlimited_factor;
  least = std::min(least, structuralDesign.getSfMin(failures));
  least = std::min(least, slopeStabilityDesign.getSfMin(failures));
  least = std::min(least, structuralAnchorDesign.getSfMin(failures));
  least = std::min(least, geotechnicalAnchorDesign.getSfMin(failures));
  least = std::min(least, geotechnicalPileDesign.getSfMin(failures));
  least = std::min(least, rigidBodyDesign.getSfMin(failures));
  least = std::min(least, traveResults.getSfMin(failures));
  least = std::min(least, hydraulicChecks.getSfMin(failures));
  return least;
}

void xUltimateLimitStates::getAnchorsID(bool structural, std::vector<std::int64_t>& ids) const {
  if (structural) {
    append_ids(structuralAnchorDesign, ids);
  } else {
    append_ids(geotechnicalAnchorDesign, ids);
  }
  std::sort(ids.begin(), ids.end());
  ids.erase(std::unique(ids.begin(), ids.end()), ids.end());
}

std::string xUltimateLimitStates::getIOClass() const {
  return "xUltimateLimitStates";
}
void xUltimateLimitStates::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xUltimateLimitStates::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 4; none before it is read.
void xUltimateLimitStates::Read(instream& in, int version) {
  ostrel::refuse_older_than(4, version);
  ostrel::read_fields(in, structuralDesign, slopeStabilityDesign, structuralAnchorDesign,
                      geotechnicalAnchorDesign, geotechnicalPileDesign, rigidBodyDesign,
                      traveResults, hydraulicChecks);
}
void xUltimateLimitStates::Write(outstream& out) const {
  ostrel::write_fields(out, structuralDesign, slopeStabilityDesign, structuralAnchorDesign,
                       geotechnicalAnchorDesign, geotechnicalPileDesign, rigidBodyDesign,
                       traveResults, hydraulicChecks);
}
