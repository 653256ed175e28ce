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
  std::size_t line = 0;  ///< where no path leads to the place; 0 for the line of the path
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
  /// An error of the text itself, at a line from 1 up.
  void add_at_line(std::size_t line, std::string found, std::string allowed);
  void remark(std::string path, std::string message);
  bool empty() const { return errors_.empty(); }
  /// Names what stands for the paths at and within `path`: the text holds it at `place`.
  void rename(const std::string& path, const std::string& place, const std::string& name);
  /// The path as messages show it.
  std::string shown(const std::string& path) const;
  /// Whether an error was told of this path.
  bool has_error_at(const std::string& path) const;
  const std::vector<Problem>& errors() const { return errors_; }
  const std::vector<Remark>& remarks() const { return remarks_; }

  /// One line for each error and each remark, with the line of the file it speaks of.
  /// @param file  name of the file, for the reader
  /// @param text  contents of the file, to find the lines in
  std::string report(const std::string& file, std::string_view text) const;

private:
  struct Renamed {
    std::string path;
    std::string place;
    std::string name;
  };

  void keep(Problem problem);
  const Renamed* renamed(const std::string& path) const;

  Texts texts_;
  std::vector<Problem> errors_;
  std::vector<Remark> remarks_;
  std::vector<Renamed> renamed_;
  std::size_t more_errors_ = 0;  // beyond those that are kept
};

}  // namespace ostrel::host
