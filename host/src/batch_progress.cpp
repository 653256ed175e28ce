// SPDX-License-Identifier: Apache-2.0
#include "batch_progress.h"

#include "phrases.h"
#include "text_table.h"

#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include <cmath>
#include <ostream>

namespace ostrel::host {

namespace {

using Json = nlohmann::ordered_json;

constexpr std::size_t bar_width = 24;
constexpr const char* back_and_clear = "\r\x1b[K";

std::string line_of(const Json& json) {
  return json.dump(-1, ' ', false, Json::error_handler_t::replace) + "\n";
}

std::string clock_text(double seconds) {
  const auto whole = static_cast<long long>(std::ceil(seconds));
  return fmt::format("{}:{:02}", whole / 60, whole % 60);
}

}  // namespace

std::string bar_line(const ProgressState& state, const Texts& texts) {
  const std::size_t filled = state.total > 0 ? bar_width * state.done / state.total : 0;
  std::string line = fmt::format("[{}{}] {}/{}", std::string(filled, '#'),
                                 std::string(bar_width - filled, '-'), state.done, state.total);
  if (state.done > 0 && state.seconds > 0.0) {
    const double rate = static_cast<double>(state.done) / state.seconds;
    const double left = static_cast<double>(state.total - state.done) / rate;
    line += "  " + phrase::batch_rate.in(texts, fmt::format("{:.1f}", rate), clock_text(left));
  }
  if (state.failed > 0) line += "  " + phrase::batch_failed_count.in(texts, state.failed);
  return fitted(line, terminal_width - 1);
}

BatchProgress::BatchProgress(ProgressForm form, const Texts& texts, std::ostream& stream)
    : form_(form), texts_(texts), stream_(stream) {}

void BatchProgress::begin(std::size_t total, std::size_t threads) {
  state_ = {.total = total};
  start_ = std::chrono::steady_clock::now();
  if (form_ == ProgressForm::json) {
    stream_ << line_of({{"event", "begin"}, {"total", total}, {"threads", threads}}) << std::flush;
  }
  refresh();
}

void BatchProgress::tell(const BatchResult& result) {
  ++state_.done;
  if (has_failed(result.verdict)) ++state_.failed;
  clear_bar();
  if (form_ == ProgressForm::json) {
    stream_ << line_of({{"event", "file"},
                        {"file", result.file},
                        {"done", state_.done},
                        {"total", state_.total},
                        {"verdict", code_of(result.verdict)},
                        {"failed", has_failed(result.verdict)},
                        {"factor", result.factor},
                        {"governs", result.governs},
                        {"seconds", result.seconds},
                        {"folder", result.folder},
                        {"messages", result.messages}});
  } else {
    stream_ << result.messages;
  }
  if (form_ == ProgressForm::plain) {
    const std::string line = fmt::format(
        "[{}/{}] {}: {}{}{}{}, {:.1f} s", state_.done, state_.total, result.file,
        name_of(result.verdict, texts_), result.factor.empty() ? "" : ", ", result.factor,
        result.governs.empty() ? "" : " (" + result.governs + ")", result.seconds);
    stream_ << fitted(line, columns_of(line)) << "\n";
  }
  stream_ << std::flush;
  refresh();
}

void BatchProgress::refresh() {
  if (form_ != ProgressForm::bar) return;
  state_.seconds = seconds();
  stream_ << "\r" << bar_line(state_, texts_) << "\x1b[K" << std::flush;
}

void BatchProgress::end(bool interrupted) {
  clear_bar();
  if (form_ == ProgressForm::json) {
    stream_ << line_of({{"event", "end"},
                        {"done", state_.done},
                        {"total", state_.total},
                        {"failed", state_.failed},
                        {"interrupted", interrupted},
                        {"seconds", seconds()}});
  } else if (interrupted) {
    stream_ << phrase::batch_interrupted.in(texts_, state_.done, state_.total) << "\n";
  }
  stream_ << std::flush;
}

void BatchProgress::clear_bar() {
  if (form_ == ProgressForm::bar) stream_ << back_and_clear;
}

double BatchProgress::seconds() const {
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start_).count();
}

}  // namespace ostrel::host
