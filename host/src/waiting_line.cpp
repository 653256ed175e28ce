// SPDX-License-Identifier: Apache-2.0
#include "waiting_line.h"

#include "phrases.h"
#include "text_table.h"

#include <ostream>
#include <system_error>

namespace ostrel::host {

namespace {

constexpr std::chrono::seconds between_lines{1};

}  // namespace

WaitingLine::WaitingLine(std::ostream& stream, const Texts& texts, std::size_t combinations,
                         bool shown)
    : stream_(stream), texts_(texts) {
  if (!shown) return;
  try {
    thread_ = std::thread([this, combinations] { tell(combinations); });
  } catch (const std::system_error&) {
    return;  // the run matters, not the line
  }
}

WaitingLine::~WaitingLine() {
  if (!thread_.joinable()) return;
  {
    const std::lock_guard lock(mutex_);
    ended_ = true;
  }
  over_.notify_one();
  thread_.join();
}

void WaitingLine::tell(std::size_t combinations) {
  std::unique_lock lock(mutex_);
  bool written = false;
  while (!over_.wait_for(lock, between_lines, [this] { return ended_; })) {
    const auto seconds =
        std::chrono::duration_cast<std::chrono::seconds>(std::chrono::steady_clock::now() - start_);
    const std::string line = phrase::still_analysing.in(texts_, seconds.count(), combinations);
    stream_ << "\r" << fitted(line, terminal_width - 1) << "\x1b[K" << std::flush;
    written = true;
  }
  if (written) stream_ << "\r\x1b[K" << std::flush;
}

}  // namespace ostrel::host
