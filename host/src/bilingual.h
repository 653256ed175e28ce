#pragma once
/// @file  Texts of a report, which holds both languages at once. Room: host
// SPDX-License-Identifier: Apache-2.0
//
// What is printed on a terminal is in one language and stands in `texts.cpp`. A report can be read
// in either, so its texts stand where they are used, Italian and English side by side.

#include "texts.h"

#include <nlohmann/json.hpp>

#include <array>
#include <cstddef>
#include <optional>
#include <string>

namespace ostrel::host {

using OrderedJson = nlohmann::ordered_json;

class Phrase;

/// One text in both languages.
struct Both {
  std::string italian;
  std::string english;

  const std::string& in(Language language) const {
    return language == Language::italian ? italian : english;
  }
};

/// A name, a symbol or a unit, which is the same in both languages.
inline Both same(const std::string& text) {
  return {text, text};
}

/// The texts of one behind those of the other.
Both operator+(const Both& first, const Both& second);

/// Numbers and signs without names: "1.50 m" with the point of English, "1,50 m" with the comma of
/// Italian.
Both decimals(const std::string& text);

/// The text at a place of a table, "?" beyond its end.
template <std::size_t count>
const Both& entry(const std::array<Both, count>& texts, std::size_t place) {
  static const Both unknown = same("?");
  return place < count ? texts[place] : unknown;
}

/// @name A text that was made of `text` in one language, in both; none where it was not
///@{
std::optional<Both> retold(const std::string& told, Text text);
std::optional<Both> retold(const std::string& told, const Phrase& text);
///@}

/// As {"it": ..., "en": ...}.
void to_json(OrderedJson& json, const Both& text);

/// A value with the text of one language in the place of each {"it": ..., "en": ...} in it.
OrderedJson in_language(const OrderedJson& value, Language language);

}  // namespace ostrel::host
