// SPDX-License-Identifier: Apache-2.0
#include "structural/verification_frame.h"

#include "services/label_table.h"

#include <sstream>

namespace ostrel::structural {

using services::label;

void identify(xCheckInfo& failure, const xCheckCombID& id, double factor) {
  failure.sf = factor;
  failure.idObj = id.getIdObj();
  failure.combName = id.getCombName();
  failure.combIndex = id.getCombIndex();
}

std::string failure_text(const char* opening, const xCheckInfo& failure) {
  std::ostringstream text;
  text << label(opening) << failure.combName << label(quillet::translatable(", sf=")) << failure.sf;
  return text.str();
}

std::string failure_text(const char* opening, const xCheckInfo& failure, const char* place_name,
                         double place) {
  std::ostringstream text;
  text << failure_text(opening, failure) << label(place_name) << place;
  return text.str();
}

}  // namespace ostrel::structural
