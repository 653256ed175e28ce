// SPDX-License-Identifier: Apache-2.0
#include "golden/result_comparison_testing.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <cmath>
#include <cstddef>
#include <set>

namespace ostrel::testing {

namespace {

using Json = nlohmann::json;

constexpr std::size_t most_lines = 20;

// NaN and what a writer makes of it.
bool is_not_finite(const Json& value) {
  return value.is_null() || (value.is_number() && !std::isfinite(value.get<double>()));
}

double size_of(const Json& value) {
  return value.is_number() && std::isfinite(value.get<double>()) ? std::abs(value.get<double>())
                                                                 : 0.0;
}

bool all_numbers(const Json& list) {
  return std::all_of(list.begin(), list.end(), [](const Json& entry) { return entry.is_number(); });
}

bool is_table(const Json& list) {
  return !list.empty() && std::all_of(list.begin(), list.end(), [&](const Json& row) {
    return row.is_array() && row.size() == list.front().size() && all_numbers(row);
  });
}

// The two sections of an inner node carry the same forces but for rounding, and either may count
// as the worst.
Json abscissa_of_worst(const Json& combination) {
  const Json& sections = combination["sections"];
  const auto worst = combination["worst"].get<std::size_t>();
  return worst < sections.size() ? sections[worst]["z"] : combination["worst"];
}

// For the same reason a failure there may be told once or twice.
Json without_repetitions(const Json& list) {
  Json once = Json::array();
  for (const Json& entry : list) {
    if (std::find(once.begin(), once.end(), entry) == once.end()) once.push_back(entry);
  }
  return once;
}

class Comparison {
public:
  explicit Comparison(const Nearness& nearness)
      : nearness_(nearness), relative_(nearness.before_solving) {}

  void field(const std::string& path, const std::string& name, const Json& expected,
             const Json& actual) {
    static const std::set<std::string> solved{"disp",   "soil_reaction", "axial",         "shear",
                                              "moment", "soil_forces",   "anchor_forces", "uls",
                                              "sls",    "sls_sf_min"};
    const double before = relative_;
    if (solved.contains(name)) relative_ = nearness_.after_solving;
    if (name == "nodal_forces") {
      node_forces(path, expected, actual);
    } else if (name == "sections") {
      records(path, expected, actual);
    } else if (name == "failures") {
      value(path, without_repetitions(expected), without_repetitions(actual), 0.0);
    } else {
      value(path, expected, actual, 0.0);
    }
    relative_ = before;
  }

  std::vector<std::string> lines;

private:
  void say(const std::string& path, const Json& expected, const Json& actual) {
    if (lines.size() >= most_lines) return;
    lines.push_back(fmt::format("{}: expected {}, got {}", path, expected.dump().substr(0, 80),
                                actual.dump().substr(0, 80)));
  }

  void value(const std::string& path, const Json& expected, const Json& actual, double scale) {
    if (is_not_finite(expected) && is_not_finite(actual)) return;
    if (expected.is_number() && actual.is_number()) {
      number(path, expected, actual, scale);
    } else if (expected.is_object() && actual.is_object()) {
      object(path, expected, actual);
    } else if (expected.is_array() && actual.is_array()) {
      list(path, expected, actual);
    } else if (expected != actual) {
      say(path, expected, actual);
    }
  }

  void number(const std::string& path, const Json& expected, const Json& actual, double scale) {
    const double a = expected.get<double>();
    const double b = actual.get<double>();
    if (!(std::abs(a - b) <= relative_ * std::max(std::abs(a), scale))) say(path, expected, actual);
  }

  void object(const std::string& path, const Json& expected, const Json& actual) {
    for (const auto& [name, entry] : expected.items()) {
      const std::string place = path + "." + name;
      if (name == "worst" && expected.contains("sections") && actual.contains("sections")) {
        value(place, abscissa_of_worst(expected), abscissa_of_worst(actual), 0.0);
      } else if (actual.contains(name)) {
        field(place, name, entry, actual[name]);
      } else {
        say(place, entry, Json("nothing"));
      }
    }
    // The entries of a map by number are all there is; other fields may be more.
    const bool by_number =
        !expected.empty() && std::isdigit(static_cast<unsigned char>(expected.begin().key()[0]));
    if (by_number && expected.size() != actual.size()) {
      say(path + " size", Json(expected.size()), Json(actual.size()));
    }
  }

  void list(const std::string& path, const Json& expected, const Json& actual) {
    if (expected.size() != actual.size()) {
      say(path + " length", Json(expected.size()), Json(actual.size()));
      return;
    }
    if (is_table(expected) && is_table(actual)
        && expected.front().size() == actual.front().size()) {
      table(path, expected, actual);
      return;
    }
    double scale = 0.0;
    if (expected.size() > 6 && all_numbers(expected)) {
      for (const Json& entry : expected)
        scale = std::max(scale, size_of(entry));
    }
    for (std::size_t i = 0; i < expected.size(); ++i) {
      value(fmt::format("{}[{}]", path, i), expected[i], actual[i], scale);
    }
  }

  void table(const std::string& path, const Json& expected, const Json& actual) {
    for (std::size_t column = 0; column < expected.front().size(); ++column) {
      double scale = 0.0;
      for (const Json& row : expected)
        scale = std::max(scale, size_of(row[column]));
      for (std::size_t row = 0; row < expected.size(); ++row) {
        number(fmt::format("{}[{}][{}]", path, row, column), expected[row][column],
               actual[row][column], scale);
      }
    }
  }

  // Records of the same fields, such as those of the sections of a wall.
  void records(const std::string& path, const Json& expected, const Json& actual) {
    if (expected.size() != actual.size()) {
      list(path, expected, actual);
      return;
    }
    for (std::size_t row = 0; row < expected.size(); ++row) {
      for (const auto& [name, entry] : expected[row].items()) {
        double scale = 0.0;
        for (const Json& other : expected)
          scale = std::max(scale, size_of(other.value(name, Json())));
        value(fmt::format("{}[{}].{}", path, row, name), entry, actual[row].value(name, Json()),
              scale);
      }
    }
  }

  // Entries below the threshold of the library come and go: an absent one is zero.
  void node_forces(const std::string& path, const Json& expected, const Json& actual) {
    static constexpr std::array<double, 3> least{0.01, 0.01, 10.0};  // [N], [N], [Nmm]
    static const Json zero{0.0, 0.0, 0.0};
    std::set<std::string> nodes;
    for (const Json* tree : {&expected, &actual}) {
      for (const auto& [node, force] : tree->items())
        nodes.insert(node);
    }
    for (const std::string& node : nodes) {
      const Json& a = expected.contains(node) ? expected[node] : zero;
      const Json& b = actual.contains(node) ? actual[node] : zero;
      for (std::size_t i = 0; i < least.size(); ++i) {
        const double near = std::max(least[i], nearness_.after_solving * size_of(a[i]));
        if (!(std::abs(a[i].get<double>() - b[i].get<double>()) <= near)) {
          say(fmt::format("{}.{}[{}]", path, node, i), a[i], b[i]);
        }
      }
    }
  }

  Nearness nearness_;
  double relative_;
};

}  // namespace

std::vector<std::string> differences(const Json& expected, const Json& actual,
                                     const std::vector<std::string>& blocks,
                                     const Nearness& nearness) {
  Comparison comparison(nearness);
  for (const std::string& block : blocks) {
    const Json::json_pointer place("/" + block);
    if (!expected.contains(place) || !actual.contains(place)) {
      comparison.lines.push_back(block + ": missing");
      continue;
    }
    comparison.field(block, block.substr(0, block.find('/')), expected[place], actual[place]);
  }
  return comparison.lines;
}

}  // namespace ostrel::testing
