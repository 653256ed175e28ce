#pragma once
/// @file  How far a batch is, for people and for programs. Room: host
// SPDX-License-Identifier: Apache-2.0

#include "batch_result.h"
#include "texts.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <string>

namespace ostrel::host {

enum class ProgressForm : std::int32_t {
  none,   ///< messages alone
  bar,    ///< one line that is written over
  plain,  ///< a line for each project
  json    ///< likewise, as JSON
};

/// How far it is.
struct ProgressState {
  std::size_t done = 0;
  std::size_t total = 0;
  std::size_t failed = 0;
  double seconds = 0.0;  ///< since the beginning
};

/// Bar, count, rate and time left in one line of a terminal, without a line end.
std::string bar_line(const ProgressState& state, const Texts& texts);

/// Tells how far a batch is, and the messages of its projects. To be used by one thread.
class BatchProgress {
public:
  BatchProgress(ProgressForm form, const Texts& texts, std::ostream& stream);

  void begin(std::size_t total, std::size_t threads);
  void tell(const BatchResult& result);
  /// Draws the bar anew, with the time that has gone by.
  void refresh();
  void end(bool interrupted);

private:
  void clear_bar();
  double seconds() const;

  ProgressForm form_;
  Texts texts_;
  std::ostream& stream_;
  ProgressState state_;
  std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
};

}  // namespace ostrel::host
