// SPDX-License-Identifier: Apache-2.0
#include "services/error_table.h"

#include <algorithm>

namespace ostrel::services {

const ErrorRow& find_error_row(OstrelErrorType code) {
  const auto* row = std::find_if(
      error_rows.begin(), error_rows.end(),
      [code](const ErrorRow& each) { return each.code == static_cast<std::int32_t>(code); });
  return row != error_rows.end() ? *row : undefined_error_row;
}

}  // namespace ostrel::services
