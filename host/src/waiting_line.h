#pragma once
/// @file  A line that shows that a long run goes on. Room: host
// SPDX-License-Identifier: Apache-2.0

#include "texts.h"

#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <iosfwd>
#include <mutex>
#include <thread>

namespace ostrel::host {

/// While it lives, and from the second second on, a line that is written over tells for how long
/// the analysis has been running; it is cleared at the end. Nobody else may write to the stream.
class WaitingLine {
public:
  /// @param shown  whether somebody looks on; nothing is written otherwise
  WaitingLine(std::ostream& stream, const Texts& texts, std::size_t combinations, bool shown);
  ~WaitingLine();
  WaitingLine(const WaitingLine&) = delete;
  WaitingLine& operator=(const WaitingLine&) = delete;

private:
  void tell(std::size_t combinations);

  std::ostream& stream_;
  Texts texts_;
  std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
  std::mutex mutex_;
  std::condition_variable over_;
  bool ended_ = false;
  std::thread thread_;
};

}  // namespace ostrel::host
