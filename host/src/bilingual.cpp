// SPDX-License-Identifier: Apache-2.0
#include "bilingual.h"

namespace ostrel::host {

void to_json(OrderedJson& json, const Both& text) {
  json = {{"it", text.italian}, {"en", text.english}};
}

OrderedJson in_language(const OrderedJson& value, Language language) {
  const bool both =
      value.is_object() && value.size() == 2 && value.contains("it") && value.contains("en");
  if (both) return value[code_of(language)];
  OrderedJson copy = value;
  if (copy.is_structured()) {
    for (OrderedJson& part : copy)
      part = in_language(part, language);
  }
  return copy;
}

}  // namespace ostrel::host
