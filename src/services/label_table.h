#pragma once
/// @file  Tables of translated labels that are filled once. Room: services
// SPDX-License-Identifier: Apache-2.0

#include <quillet/translation.h>

#include <initializer_list>
#include <map>
#include <string>
#include <utility>

namespace ostrel::services {

/// `text` in the language in force; empty where the translation gives nothing.
inline std::string label(const char* text) {
  const char* translated = iTranslate(text);
  return translated ? translated : "";
}

/// Fills `table` from `rows` unless it holds something already, so that labels keep the language
/// of the first call. @return the address of `table`
template <class Key>
std::map<Key, std::string>* fill_once(std::map<Key, std::string>& table,
                                      std::initializer_list<std::pair<Key, const char*>> rows) {
  if (table.empty()) {
    for (const auto& [key, text] : rows) {
      table.emplace(key, label(text));
    }
  }
  return &table;
}

}  // namespace ostrel::services
