// SPDX-License-Identifier: Apache-2.0
// Each target takes inputs changed at random, the same ones at each run: what any build can try of
// fuzzing. OSTREL_RANDOM_INPUTS tells how many of each target, and OSTREL_RANDOM_SEED which.
#include "fuzz/targets_testing.h"
#include "support/persisted_classes.h"
#include "support/random_bits.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace ostrel::fuzz {
namespace {

namespace fs = std::filesystem;

std::uint64_t told_number(const char* name, std::uint64_t otherwise) {
  const char* told = std::getenv(name);
  return told ? std::strtoull(told, nullptr, 10) : otherwise;
}

std::vector<std::string> texts_in(const fs::path& folder) {
  std::vector<std::string> texts;
  for (const auto& entry : fs::directory_iterator(folder)) {
    if (entry.path().extension() != ".json" && entry.path().extension() != ".bin") continue;
    std::ifstream stream(entry.path(), std::ios::binary);
    texts.emplace_back(std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>());
  }
  std::sort(texts.begin(), texts.end());  // in no order of the file system
  return texts;
}

// Bytes overwritten, left out, doubled or taken from elsewhere.
std::string damaged(std::string bytes, testing::RandomBits& random) {
  for (std::size_t changes = 1 + random.below(4); changes > 0 && !bytes.empty(); --changes) {
    const std::size_t at = random.below(bytes.size());
    const std::size_t size = 1 + random.below(std::min<std::size_t>(16, bytes.size() - at));
    switch (random.below(6)) {
      case 0:
        bytes[at] = static_cast<char>(random.bits() >> 56U);
        break;
      case 1:
        bytes.erase(at, size);
        break;
      case 2:
        bytes.insert(at, bytes.substr(at, size));
        break;
      case 3:
        bytes.replace(at, size, bytes.substr(random.below(bytes.size()), size));
        break;
      case 4:
        bytes.replace(at, size, std::string(size, random.flag() ? '\xFF' : '\0'));
        break;
      default:
        bytes[at] = "0123456789-+.eE{}[],:\"nN"[random.below(24)];
    }
  }
  return bytes;
}

// The input being tried lies in a file where OSTREL_RANDOM_TRACE names one: what hangs or crashes is
// then at hand.
void trace(const std::string& bytes) {
  static const char* const file = std::getenv("OSTREL_RANDOM_TRACE");
  if (file) std::ofstream(file, std::ios::binary) << bytes;
}

template <class Target>
void try_damaged(const std::vector<std::string>& sound, std::uint64_t tries, const Target& target) {
  ASSERT_FALSE(sound.empty());
  testing::RandomBits random(told_number("OSTREL_RANDOM_SEED", 1));
  for (std::uint64_t i = 0; i < told_number("OSTREL_RANDOM_INPUTS", tries); ++i) {
    const std::string input = damaged(sound[random.below(sound.size())], random);
    trace(input);
    ASSERT_NO_THROW(target(input));
  }
}

TEST(RandomInputs, OfStreamsAreReadOrRefused) {
  std::vector<std::string> streams;
  char index = 0;
  for (const auto& each : testing::persisted_classes()) {
    std::ifstream stream(fs::path(OSTREL_STREAMS) / (each.name + ".bin"), std::ios::binary);
    streams.push_back(std::string(1, index++)
                      + std::string(std::istreambuf_iterator<char>(stream), {}));
  }
  try_damaged(streams, 20'000, try_stream);
}

TEST(RandomInputs, OfProjectsAreReadOrRefused) {
  try_damaged(texts_in(OSTREL_EXAMPLES), 500, try_project);
}

TEST(RandomInputs, OfCasesAreReadOrRefused) {
  try_damaged(texts_in(fs::path(OSTREL_GOLDEN_DATA) / "cases"), 500, try_core_case);
}

// No byte of the frame is sound by chance; the text within is that of a run of nothing.
TEST(RandomInputs, OfSavedResultsAreReadOrRefused) {
  std::vector<std::string> bodies = {std::string(200, '\0'), std::string(2000, '\0')};
  for (std::string& body : bodies)
    body[0] = static_cast<char>(body.size() % 2);
  try_damaged(bodies, 500, try_results);
}

TEST(RandomInputs, OfWholeRunsEndInResultsThatCanBeTold) {
  testing::RandomBits random(told_number("OSTREL_RANDOM_SEED", 1));
  for (std::uint64_t i = 0; i < told_number("OSTREL_RANDOM_INPUTS", 60); ++i) {
    std::string input(5 + 4 * random.below(4), '\0');
    for (char& byte : input)
      byte = static_cast<char>(random.bits() >> 56U);
    trace(input);
    ASSERT_NO_THROW(try_run(input));
  }
}

}  // namespace
}  // namespace ostrel::fuzz
