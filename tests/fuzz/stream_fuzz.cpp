// SPDX-License-Identifier: Apache-2.0
#include "fuzz/targets_testing.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  ostrel::fuzz::try_stream({reinterpret_cast<const char*>(data), size});
  return 0;
}
