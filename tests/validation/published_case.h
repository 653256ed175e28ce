#pragma once
/// @file  A published case and how far this system is from it, for the validation
// SPDX-License-Identifier: Apache-2.0

#include <optional>
#include <string>
#include <vector>

namespace ostrel::validation {

/// How a figure may be compared.
enum class Likeness {
  same_formula,  ///< A: what is published follows the same formula
  same_physics,  ///< B: the same physics with a difference that the case states
  indicative,    ///< C: another model; the order of magnitude counts
};

/// How far two values may be apart: the sum of both parts.
struct Tolerance {
  double relative = 0.0;  ///< of the reference value [-]
  double absolute = 0.0;  ///< in the unit of the figure
};

/// One number that was published, and the one that a run gives.
struct Figure {
  std::string what;
  std::string unit{};  ///< empty for a pure number
  double published = 0.0;
  double ours = 0.0;
  Tolerance tolerance{};
  /// What a rule of this system that departs from the source gives, worked out apart from the
  /// library; the tolerance then refers to it.
  std::optional<double> by_rule{};

  double reference() const { return by_rule.value_or(published); }
  double allowed() const;     ///< largest difference to the reference, in the unit of the figure
  double difference() const;  ///< of ours to what is published, in the unit of the figure
  bool agrees() const;        ///< false for a number that is none
};

/// A case from a book, a standard or another program.
struct Case {
  std::string id;
  std::string subject;
  std::string source;
  std::string inputs;
  Likeness likeness = Likeness::same_formula;
  std::vector<Figure> figures;
  std::string reason{};  ///< why ours differ, where they do by a rule or by the model
};

struct Chapter {
  std::string title;
  std::string introduction;
  std::vector<Case> cases;
};

}  // namespace ostrel::validation
