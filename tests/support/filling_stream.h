#pragma once
/// @file  A stream that fills every field of what is read from it, for tests
// SPDX-License-Identifier: Apache-2.0
//
// An object that reads from this stream gets a value of its own in every field and one or two
// elements in every list, whatever its class: the stream answers each request by its size and, where
// the reader then throws, begins again with what the reader wanted in that place.

#include "support/stream_round_trip.h"

#include <tallow/binary_streams.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <stdexcept>
#include <streambuf>
#include <string>
#include <utility>
#include <vector>

namespace ostrel::testing {

/// What the stream answers, request by request.
class FillingAnswers {
public:
  /// The answer to the next request, of `size` bytes.
  std::string next(std::size_t size) {
    if (position_ == answers_.size()) answers_.push_back({first_answer(size), 0});
    const std::string& bytes = answers_[position_].bytes;
    // A text is asked for in the length told before; a number told for one has no text of its size.
    if (bytes.size() != size) {
      answers_.pop_back();
      tell_text("testo " + std::to_string(answers_.size() % 10));
      return "";
    }
    ++position_;
    return bytes;
  }

  /// Begins again.
  void rewind() { position_ = 0; }

  /// Takes what the reader threw as what it wanted in the place of the last answer.
  void amend(const std::string& thrown, const std::vector<std::string>& class_names) {
    if (std::exchange(text_told_, false)) return;
    if (thrown.starts_with("bad begin marker")) {
      answers_.back().bytes = of_int(0x01010101);
    } else if (thrown.starts_with("bad end marker")) {
      answers_.back().bytes = of_int(0x02020202);
    } else if (answers_.size() >= 2 && answers_.back().tries < class_names.size()) {
      const std::size_t tries = answers_.back().tries;
      answers_.pop_back();
      tell_text(class_names[tries]);
      text_told_ = false;
      answers_.push_back({class_names[tries], tries + 1});
    } else {
      throw std::runtime_error("cannot fill: " + thrown);
    }
  }

private:
  struct Answer {
    std::string bytes;
    std::size_t tries = 0;  // of class names in this place
  };

  static std::string of_int(std::int32_t value) {
    return bytes_of([value](outstream& out) { out << value; });
  }

  // The last request was for the length of a text.
  void tell_text(const std::string& text) {
    answers_.back().bytes =
        bytes_of([&text](outstream& out) { out << static_cast<std::int64_t>(text.size()); });
    text_ = text;
    text_told_ = true;
    text_place_ = answers_.size();
  }

  std::string first_answer(std::size_t size) {
    const std::size_t place = answers_.size();
    if (place != 0 && place == text_place_) return text_;
    const bool version = place != 0 && answers_.back().bytes == of_int(0x01010101);
    if (size == 1) return std::string(1, static_cast<char>(place % 2));
    // A version beyond all: what the newest one stores is read.
    if (size == 4) return of_int(version ? 1000 : 1 + static_cast<int>(place % 2));
    return bytes_of([place](outstream& out) { out << 10.0 + static_cast<double>(place) / 8.0; });
  }

  std::vector<Answer> answers_;
  std::size_t position_ = 0;
  std::string text_;
  std::size_t text_place_ = 0;
  bool text_told_ = false;
};

class FillingStream : public iInStream {
public:
  explicit FillingStream(FillingAnswers& answers) : iInStream(std::make_unique<Buffer>(answers)) {}

private:
  class Buffer : public std::streambuf {
  public:
    explicit Buffer(FillingAnswers& answers) : answers_(answers) {}

  protected:
    std::streamsize xsgetn(char* target, std::streamsize size) override {
      const std::string bytes = answers_.next(static_cast<std::size_t>(size));
      std::copy(bytes.begin(), bytes.end(), target);
      return static_cast<std::streamsize>(bytes.size());
    }

  private:
    FillingAnswers& answers_;
  };
};

/// Calls `read` with streams until one fills all that it reads.
/// @param read         reads a new object from the handle
/// @param class_names  of the objects that stand behind pointers
template <class ReadAction>
void read_filled(const ReadAction& read, const std::vector<std::string>& class_names) {
  FillingAnswers answers;
  for (;; answers.rewind()) {
    FillingStream stream(answers);
    instream in(&stream);
    try {
      read(in);
      return;
    } catch (const std::runtime_error& error) {
      answers.amend(error.what(), class_names);
    }
  }
}

}  // namespace ostrel::testing
