// SPDX-License-Identifier: Apache-2.0
#include "library_messages.h"

#include <ostrel/language.h>

#include <cstddef>
#include <map>
#include <optional>
#include <regex>
#include <string>

namespace ostrel::host {

namespace {

constexpr int first_code = errUndefined;
constexpr int last_code = errHydroNoWater;

// What the library writes before a message about one combination, in every language.
constexpr const char* named_combination = "Combinazione '";

std::map<int, Both>& texts_of_codes() {
  static std::map<int, Both> texts;
  return texts;
}

std::string text_of_code(int code) {
  predefinedErr row;
  getpredefinedErr(static_cast<OstrelErrorType>(code), row);
  return row.message;
}

void learn_texts_of_codes() {
  std::map<int, Both>& texts = texts_of_codes();
  ostrel::set_language(code_of(Language::italian));
  for (int code = first_code; code <= last_code; ++code) {
    texts[code].italian = text_of_code(code);
  }
  ostrel::set_language(code_of(Language::english));
  for (int code = first_code; code <= last_code; ++code) {
    texts[code].english = text_of_code(code);
  }
}

std::string in_english(const std::string& before) {
  if (!before.starts_with(named_combination)) return before;
  return "Combination '" + before.substr(std::string(named_combination).size());
}

Both coded(const std::string& text, const Both& of_code) {
  for (const std::string& known : {of_code.italian, of_code.english}) {
    if (!text.ends_with(known)) continue;
    const std::string before = text.substr(0, text.size() - known.size());
    return {before + of_code.italian, in_english(before) + of_code.english};
  }
  return same(text);
}

// The slope's search writes centre and radii of the circles that it leaves out [m].
std::optional<Both> ignored_circles(const std::string& text) {
  static const std::regex form(
      R"(\((-?[0-9.]+),(-?[0-9.]+)\)[^=\[]*(?:R=([0-9.]+)|\[([0-9.]+),([0-9.]+)\]), )");
  std::smatch part;
  if (!std::regex_search(text, part, form)) return std::nullopt;
  const auto number = [&part](std::size_t place) { return decimals(part[place].str()); };
  const Both centre =
      Both{"Centro (", "Centre ("} + number(1) + Both{"; ", ", "} + number(2) + same(") m, ");
  if (part[3].matched) {
    return centre + Both{"raggio ", "radius "} + number(3)
         + Both{
             " m: cerchio escluso, perché il centro è più basso del punto in cui taglia la "
             "superficie.",
             " m: circle left out, since its centre is lower than the place where it cuts the "
             "surface."};
  }
  return centre + Both{"raggi da ", "radii "} + number(4) + Both{" a ", " to "} + number(5)
       + Both{
           " m: cerchi esclusi, perché il centro è più basso del punto in cui tagliano la "
           "superficie.",
           " m: circles left out, since their centre is lower than the place where they cut the "
           "surface."};
}

}  // namespace

void choose_language(Language language) {
  if (texts_of_codes().empty()) learn_texts_of_codes();
  ostrel::set_language(code_of(language));
}

Both in_both(const xVeldError& message) {
  const std::string& text = message.GetErrorStr();
  if (message.getID() == errFreeText) return ignored_circles(text).value_or(same(text));
  const auto known = texts_of_codes().find(message.getID());
  return known == texts_of_codes().end() ? same(text) : coded(text, known->second);
}

}  // namespace ostrel::host
