// SPDX-License-Identifier: Apache-2.0
// Inputs that once broke something, and some that never did: each must pass its target.
#include "fuzz/targets_testing.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace ostrel::fuzz {
namespace {

namespace fs = std::filesystem;

struct Input {
  std::string target;
  fs::path file;
};

void PrintTo(const Input& input, std::ostream* out) {
  *out << input.file.string();
}

std::vector<Input> found_inputs() {
  std::vector<Input> inputs;
  for (const auto& entry : fs::recursive_directory_iterator(OSTREL_FUZZ_FOUND)) {
    if (!entry.is_regular_file() || entry.path().extension() == ".md") continue;
    inputs.push_back({entry.path().parent_path().filename().string(), entry.path()});
  }
  std::sort(inputs.begin(), inputs.end(),
            [](const Input& a, const Input& b) { return a.file < b.file; });
  return inputs;
}

class FoundInput : public ::testing::TestWithParam<Input> {};

TEST_P(FoundInput, PassesItsTarget) {
  std::ifstream stream(GetParam().file, std::ios::binary);
  const std::string bytes{std::istreambuf_iterator<char>(stream), {}};
  const std::string& target = GetParam().target;
  if (target == "stream") {
    try_stream(bytes);
  } else if (target == "project") {
    try_project(bytes);
  } else if (target == "core_case") {
    try_core_case(bytes);
  } else if (target == "results") {
    try_results(bytes);
  } else if (target == "run") {
    try_run(bytes);
  } else {
    FAIL() << "no target " << target;
  }
}

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(FoundInput);  // there may be none
INSTANTIATE_TEST_SUITE_P(Fuzz, FoundInput, ::testing::ValuesIn(found_inputs()),
                         [](const ::testing::TestParamInfo<Input>& test) {
                           std::string name =
                               test.param.target + "_" + test.param.file.stem().string();
                           std::replace_if(
                               name.begin(), name.end(),
                               [](unsigned char c) { return std::isalnum(c) == 0; }, '_');
                           return name;
                         });

// The sound cases themselves, without a change.
TEST(RunTarget, RunsEachSoundCase) {
  ASSERT_GT(sound_runs(), 0u);
  for (std::size_t i = 0; i < sound_runs(); ++i)
    EXPECT_TRUE(try_run(std::string(1, static_cast<char>(i)))) << i;
}

// Each way of telling: the first five bytes add up to it, modulo 8.
TEST(RunTarget, TellsARunInEveryWay) {
  for (char way = 0; way < 8; ++way)
    EXPECT_TRUE(try_run(std::string{0, 0, 0, 1, static_cast<char>(0x80 - 1 + way)}));
}

}  // namespace
}  // namespace ostrel::fuzz
