#pragma once
/// @file  What is wrong with a file: all of it, with the place of each. Room: host
// SPDX-License-Identifier: Apache-2.0

#include "texts.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace ostrel::host {

/// One error of a file: where, what stands there, what may stand there.
struct Problem {
  std::string path;  ///< as "soils[0].friction_angle_deg"; empty for the file as a whole
  std::string found;
  std::string allowed;
};

/// Something that may well be meant, but looks odd.
struct Remark {
  std::string path;
  std::string message;
};

/// Collects the problems of one file.
class Problems {
public:
  explicit Problems(Texts texts) : texts_(texts) {}

  const Texts& texts() const { return texts_; }
  void add(std::string path, std::string found, std::string allowed);
  void remark(std::string path, std::string message);
  bool empty() const { return errors_.empty(); }
  const std::vector<Problem>& errors() const { return errors_; }
  const std::vector<Remark>& remarks() const { return remarks_; }

  /// One line for each error and each remark, with the line of the file it speaks of.
  /// @param file  name of the file, for the reader
  /// @param text  contents of the file, to find the lines in
  std::string report(const std::string& file, std::string_view text) const;

private:
  Texts texts_;
  std::vector<Problem> errors_;
  std::vector<Remark> remarks_;
  std::size_t more_errors_ = 0;  // beyond those that are kept
};

}  // namespace ostrel::host
