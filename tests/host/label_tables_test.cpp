// SPDX-License-Identifier: Apache-2.0
#include "label_tables.h"

#include <ostrel/spring_interval.h>
#include <ostrel/vocabulary.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <thread>
#include <vector>

namespace ostrel::host {
namespace {

TEST(LabelTables, AreFullWhenThreadsReadThem) {
  fill_label_tables();
  std::vector<int> rows(4, 0);
  std::vector<std::thread> readers;
  for (int& count : rows) {
    readers.emplace_back([&count] {
      for (const auto& [key, text] : *xGetChecksTypeMap())
        count += text.empty() ? 0 : 1;
    });
  }
  for (std::thread& reader : readers)
    reader.join();
  // The ten verifications of the vocabulary.
  for (const int count : rows)
    EXPECT_EQ(count, 10);
}

// A table that the library gets later has to be filled here as well.
TEST(LabelTables, AreAllThatTheLibraryFillsAtFirstUse) {
  const auto count_in = [](const std::string& file) {
    std::ifstream stream(std::filesystem::path(OSTREL_SOURCES) / file);
    const std::string text(std::istreambuf_iterator<char>(stream), {});
    std::size_t found = 0;
    for (std::size_t at = text.find("  static std::"); at != std::string::npos;
         at = text.find("  static std::", at + 1))
      ++found;
    return found;
  };
  // Six vocabularies, the limits of springs, the names of conditions and the kinds of loads.
  EXPECT_EQ(count_in("loads/vocabulary.cpp"), 6u);
  EXPECT_EQ(count_in("soil/spring_interval.cpp"), 1u);
  EXPECT_EQ(count_in("loads/load_combination.cpp"), 2u);
}

}  // namespace
}  // namespace ostrel::host
