#pragma once
/// @file  What holds for every table of labels, for tests
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/language.h"

#include <quillet/translation.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace ostrel::testing {

/// The rows of `table` as numbers and labels.
template <class Key>
std::vector<std::pair<std::int32_t, std::string>> rows(const std::map<Key, std::string>& table) {
  std::vector<std::pair<std::int32_t, std::string>> result;
  for (const auto& [key, text] : table)
    result.emplace_back(static_cast<std::int32_t>(key), text);
  return result;
}

/// Expects in the table that `get` gives: the labels in Italian by the numbers from 0 on, the same
/// table at every call, and nothing under other numbers. For a fresh process.
template <class Key>
void expect_labels(std::map<Key, std::string>* (*get)(), const std::vector<std::string>& labels) {
  ostrel::set_language("it");
  std::map<Key, std::string>* const table = get();
  std::vector<std::pair<std::int32_t, std::string>> expected;
  for (const std::string& text : labels)
    expected.emplace_back(static_cast<std::int32_t>(expected.size()), text);
  EXPECT_EQ(rows(*table), expected);
  EXPECT_EQ(get(), table);
  for (const int number : {-1, static_cast<int>(labels.size()), 2147483647})
    EXPECT_EQ(table->find(static_cast<Key>(number)), table->end()) << number;
}

/// Expects the label at 0, whose Italian text is `italian`, to be English when the table is made in
/// English, and to stay so when the language is Italian again. For a fresh process.
template <class Key>
void expect_kept_language(std::map<Key, std::string>* (*get)(), const char* italian) {
  ASSERT_TRUE(ostrel::set_language("en"));
  const std::string english = iTranslate(italian);
  ASSERT_NE(english, italian);
  EXPECT_EQ(get()->at(static_cast<Key>(0)), english);
  ASSERT_TRUE(ostrel::set_language("it"));
  ASSERT_STREQ(iTranslate(italian), italian);
  EXPECT_EQ(get()->at(static_cast<Key>(0)), english);
}

}  // namespace ostrel::testing
