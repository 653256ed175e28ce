#pragma once
/// @file  Ctrl+C, taken as a wish to end in good order. Room: host
// SPDX-License-Identifier: Apache-2.0

#include <signal.h>

namespace ostrel::host {

/// While it lives, the first SIGINT is noted instead of ending the program; a second one ends it. A
/// process that was started with SIGINT ignored goes on ignoring it. There is one at a time.
class InterruptWatch {
public:
  InterruptWatch();
  ~InterruptWatch();
  InterruptWatch(const InterruptWatch&) = delete;
  InterruptWatch& operator=(const InterruptWatch&) = delete;

  static bool interrupted();

private:
  struct sigaction before_ {};
};

}  // namespace ostrel::host
