// SPDX-License-Identifier: Apache-2.0
#include "field_reader.h"

#include "json_text.h"
#include "text_table.h"

#include <fmt/ranges.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

namespace ostrel::host {

namespace {

using Json = nlohmann::json;

constexpr std::size_t longest_shown = 60;  // characters of a value that a message shows

// How many letters have to change, come or go to turn one name into the other.
std::size_t edit_distance(const std::string& a, const std::string& b) {
  std::vector<std::size_t> row(b.size() + 1);
  for (std::size_t j = 0; j <= b.size(); ++j) {
    row[j] = j;
  }
  for (std::size_t i = 1; i <= a.size(); ++i) {
    std::size_t diagonal = std::exchange(row[0], i);
    for (std::size_t j = 1; j <= b.size(); ++j) {
      const std::size_t replaced = diagonal + (a[i - 1] == b[j - 1] ? 0 : 1);
      diagonal = std::exchange(row[j], std::min({replaced, row[j] + 1, row[j - 1] + 1}));
    }
  }
  return row[b.size()];
}

// The name nearest to `name` within so many letters, empty where none is near.
std::string nearest(const std::string& name, const std::set<std::string>& candidates,
                    std::size_t letters) {
  if (name.size() > longest_shown) return {};
  std::string best;
  std::size_t least = letters + 1;
  for (const std::string& candidate : candidates) {
    const std::size_t distance = edit_distance(name, candidate);
    if (distance < least) {
      least = distance;
      best = candidate;
    }
  }
  return best;
}

const std::map<std::string, double>& words_for_numbers() {
  static const std::map<std::string, double> words{
      {"NaN", std::numeric_limits<double>::quiet_NaN()},
      {"Infinity", std::numeric_limits<double>::infinity()},
      {"-Infinity", -std::numeric_limits<double>::infinity()}};
  return words;
}

// "soils[3].name" as "soils[].name".
std::string with_any_entry(const std::string& path) {
  std::string general;
  bool in_index = false;
  for (const char c : path) {
    if (c == ']') in_index = false;
    if (!in_index) general += c;
    if (c == '[') in_index = true;
  }
  return general;
}

}  // namespace

bool Range::holds(double x) const {
  const bool high_enough = least_included ? x >= least : x > least;
  const bool low_enough = most_included ? x <= most : x < most;
  return high_enough && low_enough;
}

std::string Range::describe(const Texts& texts) const {
  const bool has_least = std::isfinite(least);
  const bool has_most = std::isfinite(most);
  const std::string low = texts(least_included ? Text::at_least : Text::above, least);
  const std::string high = texts(most_included ? Text::at_most : Text::below, most);
  if (has_least && has_most) return texts(Text::both, low, high);
  if (has_least) return low;
  return has_most ? high : std::string();
}

double ValueReader::number(const Range& range) const {
  constexpr double wrong = std::numeric_limits<double>::quiet_NaN();
  if (rules_->any_number) {
    if (value_->is_null()) return wrong;
    if (value_->is_number()) return value_->get<double>();
    const auto word = value_->is_string() ? words_for_numbers().find(value_->get<std::string>())
                                          : words_for_numbers().end();
    if (word != words_for_numbers().end()) return word->second;
    refuse(std::string(texts()(Text::a_number)));
    return wrong;
  }
  if (value_->is_number() && range.holds(value_->get<double>())) return value_->get<double>();
  const std::string limits = range.describe(texts());
  refuse(limits.empty() ? std::string(texts()(Text::a_number))
                        : texts()(Text::a_number_in, limits));
  return wrong;
}

std::int32_t ValueReader::integer(std::int32_t least, std::int32_t most) const {
  if (value_->is_number()) {
    const double number = value_->get<double>();
    const bool whole = std::floor(number) >= number;
    if (whole && number >= least && number <= most) {
      return static_cast<std::int32_t>(number);
    }
  }
  const bool unlimited = least == std::numeric_limits<std::int32_t>::min()
                      && most == std::numeric_limits<std::int32_t>::max();
  if (least == most) {
    refuse(fmt::format("{}", least));
    return 0;
  }
  refuse(unlimited ? std::string(texts()(Text::an_integer))
                   : texts()(Text::an_integer_in, Range::between(least, most).describe(texts())));
  return 0;
}

bool ValueReader::flag() const {
  if (value_->is_boolean()) return value_->get<bool>();
  refuse(std::string(texts()(Text::true_or_false)));
  return false;
}

std::string ValueReader::text() const {
  if (value_->is_string()) return value_->get<std::string>();
  refuse(std::string(texts()(Text::a_text)));
  return {};
}

std::string ValueReader::text_not_empty() const {
  if (value_->is_string() && !value_->get_ref<const std::string&>().empty()) {
    return value_->get<std::string>();
  }
  refuse(std::string(texts()(Text::a_text_not_empty)));
  return {};
}

std::size_t ValueReader::choice(const std::vector<std::string>& choices) const {
  if (value_->is_string()) {
    const auto found = std::find(choices.begin(), choices.end(), value_->get<std::string>());
    if (found != choices.end()) return static_cast<std::size_t>(found - choices.begin());
  }
  refuse(texts()(Text::one_of, fmt::format("\"{}\"", fmt::join(choices, "\", \""))));
  return 0;
}

std::vector<ValueReader> ValueReader::items() const {
  std::vector<ValueReader> entries;
  if (!value_->is_array()) {
    refuse(std::string(texts()(Text::a_list)));
    return entries;
  }
  entries.reserve(value_->size());
  for (const Json& entry : *value_) {
    entries.emplace_back(entry, child_path(path_, entries.size()), *problems_, *rules_);
  }
  return entries;
}

std::vector<ValueReader> ValueReader::items(std::size_t count) const {
  if (value_->is_array() && value_->size() == count) return items();
  refuse(texts()(Text::a_list_of, count));
  return {};
}

ObjectReader ValueReader::object() const {
  if (!value_->is_object()) refuse(std::string(texts()(Text::an_object)));
  return {*value_, value_->is_object(), path_, *problems_, *rules_};
}

void ValueReader::refuse(std::string allowed) const {
  problems_->add(path_, shown(), std::move(allowed));
}

std::string ValueReader::shown() const {
  if (value_->is_object()) return std::string(texts()(Text::an_object));
  if (value_->is_array()) return texts()(Text::a_list_of, value_->size());
  return fitted(value_->dump(), longest_shown);
}

ObjectReader::ObjectReader(const Json& object, bool is_object, std::string path, Problems& problems,
                           const ReadingRules& rules)
    : object_(&object),
      is_object_(is_object),
      path_(std::move(path)),
      problems_(&problems),
      rules_(&rules) {}

ObjectReader::~ObjectReader() {
  if (!is_object_) return;
  const Texts& texts = problems_->texts();
  for (const auto& [name, value] : object_->items()) {
    if (asked_.contains(name) || is_comment(name, value)) continue;
    const std::string path = child_path(path_, fitted(name, longest_shown));
    if (rules_->comments && name == "comment") {
      ValueReader(value, path, *problems_, *rules_)
          .refuse(std::string(texts(Text::a_text_or_lines)));
      continue;
    }
    if (rules_->tolerate_unknown) {
      problems_->remark(path, std::string(texts(Text::ignored_field)));
      continue;
    }
    // A field that is there already was hardly meant by another that only resembles it.
    std::string near = nearest(name, missing_, name.size() / 3);
    if (near.empty()) near = nearest(name, asked_, 1);
    problems_->add(path, std::string(texts(Text::unknown_field)),
                   near.empty() ? texts(Text::one_of, fmt::format("{}", fmt::join(asked_, ", ")))
                                : texts(Text::perhaps, near));
  }
}

bool ObjectReader::is_comment(const std::string& name, const Json& value) const {
  if (!rules_->comments || name != "comment") return false;
  const auto is_text = [](const Json& entry) { return entry.is_string(); };
  return is_text(value) || (value.is_array() && std::all_of(value.begin(), value.end(), is_text));
}

std::optional<ValueReader> ObjectReader::optional(const std::string& name) {
  asked_.insert(name);
  if (rules_->asked != nullptr) rules_->asked->insert(with_any_entry(child_path(path_, name)));
  if (!is_object_) return std::nullopt;
  const auto found = object_->find(name);
  if (found == object_->end()) {
    missing_.insert(name);
    return std::nullopt;
  }
  return ValueReader(*found, child_path(path_, name), *problems_, *rules_);
}

std::optional<ValueReader> ObjectReader::unless_null(const std::string& name) {
  std::optional<ValueReader> value = optional(name);
  if (value && value->is_null()) value.reset();
  return value;
}

std::optional<ValueReader> ObjectReader::required(const std::string& name) {
  std::optional<ValueReader> value = optional(name);
  if (!value && is_object_) {
    problems_->add(child_path(path_, name), std::string(problems_->texts()(Text::missing)),
                   std::string(problems_->texts()(Text::this_field)));
  }
  return value;
}

double ObjectReader::number(const std::string& name, const Range& range) {
  const auto value = required(name);
  return value ? value->number(range) : std::numeric_limits<double>::quiet_NaN();
}

std::int32_t ObjectReader::integer(const std::string& name, std::int32_t least, std::int32_t most) {
  const auto value = required(name);
  return value ? value->integer(least, most) : 0;
}

bool ObjectReader::flag(const std::string& name) {
  const auto value = required(name);
  return value && value->flag();
}

std::string ObjectReader::text(const std::string& name) {
  const auto value = required(name);
  return value ? value->text() : std::string();
}

std::vector<ValueReader> ObjectReader::items(const std::string& name) {
  const auto value = required(name);
  return value ? value->items() : std::vector<ValueReader>();
}

double ObjectReader::number_or(const std::string& name, double otherwise, const Range& range) {
  const auto value = optional(name);
  return value ? value->number(range) : otherwise;
}

std::int32_t ObjectReader::integer_or(const std::string& name, std::int32_t otherwise,
                                      std::int32_t least, std::int32_t most) {
  const auto value = optional(name);
  return value ? value->integer(least, most) : otherwise;
}

bool ObjectReader::flag_or(const std::string& name, bool otherwise) {
  const auto value = optional(name);
  return value ? value->flag() : otherwise;
}

std::string ObjectReader::text_or(const std::string& name, const std::string& otherwise) {
  const auto value = optional(name);
  return value ? value->text() : otherwise;
}

std::vector<ValueReader> ObjectReader::items_or_none(const std::string& name) {
  const auto value = optional(name);
  return value ? value->items() : std::vector<ValueReader>();
}

}  // namespace ostrel::host
