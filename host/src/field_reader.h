#pragma once
/// @file  Reads typed fields out of JSON and tells every one that is wrong. Room: host
// SPDX-License-Identifier: Apache-2.0
//
// Nothing here stops at an error: a wrong value is told and read as a harmless one (NaN, 0, false,
// an empty text), so that one pass over a file finds all that is wrong with it.

#include "problems.h"

#include <nlohmann/json.hpp>

#include <cstdint>
#include <limits>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace ostrel::host {

/// A range of numbers. NaN lies in none.
struct Range {
  double least = -std::numeric_limits<double>::infinity();
  double most = std::numeric_limits<double>::infinity();
  bool least_included = true;
  bool most_included = true;

  static Range any() { return {}; }
  static Range above(double x) { return {.least = x, .least_included = false}; }
  static Range at_least(double x) { return {.least = x}; }
  static Range between(double x, double y) { return {.least = x, .most = y}; }
  /// Both ends excluded.
  static Range inside(double x, double y) {
    return {.least = x, .most = y, .least_included = false, .most_included = false};
  }
  /// The lower end included, the upper one not.
  static Range from_below(double x, double y) {
    return {.least = x, .most = y, .most_included = false};
  }

  bool holds(double x) const;
  std::string describe(const Texts& texts) const;
};

/// How a file is read.
struct ReadingRules {
  /// Numbers may be NaN, Infinity or null, and have no range.
  bool any_number = false;
  /// Fields that nobody knows are remarked upon instead of refused.
  bool tolerate_unknown = false;
  /// Every object may hold a text, or a list of texts, named "comment", for human readers.
  bool comments = false;
  /// Gathers the paths of all fields that are looked for, with "[]" for any entry of a list.
  std::set<std::string>* asked = nullptr;
};

class ObjectReader;

/// One value of the file.
class ValueReader {
public:
  ValueReader(const nlohmann::json& value, std::string path, Problems& problems,
              const ReadingRules& rules)
      : value_(&value), path_(std::move(path)), problems_(&problems), rules_(&rules) {}

  const std::string& path() const { return path_; }
  const nlohmann::json& json() const { return *value_; }
  Problems& problems() const { return *problems_; }
  bool is_null() const { return value_->is_null(); }
  const ReadingRules& rules() const { return *rules_; }

  double number(const Range& range = Range::any()) const;
  std::int32_t integer(std::int32_t least = std::numeric_limits<std::int32_t>::min(),
                       std::int32_t most = std::numeric_limits<std::int32_t>::max()) const;
  bool flag() const;
  std::string text() const;
  std::string text_not_empty() const;
  /// The index of the text in `choices`, 0 for a wrong one.
  std::size_t choice(const std::vector<std::string>& choices) const;
  /// The entries of a list; none for anything else.
  std::vector<ValueReader> items() const;
  /// The entries of a list of exactly `count`; none for anything else.
  std::vector<ValueReader> items(std::size_t count) const;
  /// The fields of an object; those of an empty one for anything else.
  ObjectReader object() const;

  /// Tells that this value is wrong.
  void refuse(std::string allowed) const;
  /// Tells that this value looks odd.
  void remark(std::string message) const { problems_->remark(path_, std::move(message)); }
  /// The value as a message shows it.
  std::string shown() const;

private:
  const Texts& texts() const { return problems_->texts(); }

  const nlohmann::json* value_;
  std::string path_;
  Problems* problems_;
  const ReadingRules* rules_;
};

/// The fields of one object. Whatever has not been asked for when the reader goes is unknown.
class ObjectReader {
public:
  /// @param is_object  false for a value that was refused already: nothing is then missed
  ObjectReader(const nlohmann::json& object, bool is_object, std::string path, Problems& problems,
               const ReadingRules& rules);
  ~ObjectReader();
  ObjectReader(const ObjectReader&) = delete;
  ObjectReader& operator=(const ObjectReader&) = delete;

  const std::string& path() const { return path_; }
  Problems& problems() { return *problems_; }
  bool is_object() const { return is_object_; }

  /// The field; nothing where it is missing, which is told.
  std::optional<ValueReader> required(const std::string& name);
  /// The field; nothing where it is missing.
  std::optional<ValueReader> optional(const std::string& name);
  /// The field; nothing where it is missing or null.
  std::optional<ValueReader> unless_null(const std::string& name);

  /// @name A required field of one type; a missing one reads as a wrong one
  ///@{
  double number(const std::string& name, const Range& range = Range::any());
  std::int32_t integer(const std::string& name,
                       std::int32_t least = std::numeric_limits<std::int32_t>::min(),
                       std::int32_t most = std::numeric_limits<std::int32_t>::max());
  bool flag(const std::string& name);
  std::string text(const std::string& name);
  std::vector<ValueReader> items(const std::string& name);
  ///@}
  /// @name The same with a value for a missing field
  ///@{
  double number_or(const std::string& name, double otherwise, const Range& range = Range::any());
  std::int32_t integer_or(const std::string& name, std::int32_t otherwise, std::int32_t least,
                          std::int32_t most);
  bool flag_or(const std::string& name, bool otherwise);
  std::string text_or(const std::string& name, const std::string& otherwise);
  std::vector<ValueReader> items_or_none(const std::string& name);
  ///@}

private:
  bool is_comment(const std::string& name, const nlohmann::json& value) const;

  const nlohmann::json* object_;
  bool is_object_;
  std::string path_;
  Problems* problems_;
  const ReadingRules* rules_;
  std::set<std::string> asked_;
  std::set<std::string> missing_;  // of those, what is not there and may have been meant
};

}  // namespace ostrel::host
