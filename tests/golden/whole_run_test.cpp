// SPDX-License-Identifier: Apache-2.0
// Every case from its file to its result, against figures computed independently of this code.
#include "analysis.h"
#include "core_case.h"
#include "core_result.h"
#include "golden/result_comparison_testing.h"
#include "json_text.h"

#include <ostrel/language.h>

#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

namespace ostrel::host {
namespace {

namespace fs = std::filesystem;
using ::testing::IsEmpty;

const fs::path data = OSTREL_GOLDEN_DATA;

std::vector<std::string> case_names(bool of_slip_circles) {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(data / "cases")) {
    const std::string name = entry.path().stem().string();
    if (name.starts_with("s") == of_slip_circles) names.push_back(name);
  }
  std::sort(names.begin(), names.end());
  return names;
}

std::string contents(const fs::path& file) {
  Problems problems(Texts(Language::english));
  return read_file(file.string(), problems).value_or("");
}

Outcome run_case(const std::string& name) {
  Problems problems(Texts(Language::english));
  const std::string text = contents(data / "cases" / (name + ".json"));
  const auto job = read_core_case(text, problems);
  EXPECT_EQ(problems.report(name, text), "");
  return job ? analyse(*job) : Outcome{};
}

// Each case holds what its subject needs: those about slip circles hold nothing of the wall.
std::vector<std::string> blocks_of(const std::string& name) {
  if (name.starts_with("s")) return {"return", "errors"};
  return {"return", "errors", "layers", "mesh", "combinations", "sls", "sls_sf_min"};
}

class WholeRun : public ::testing::TestWithParam<std::string> {};

TEST_P(WholeRun, GivesTheFiguresComputedIndependently) {
  ostrel::set_language("it");
  const Outcome outcome = run_case(GetParam());
  const nlohmann::json expected =
      nlohmann::json::parse(contents(data / "results" / (GetParam() + ".json")));
  // Through its text, as another program would read it.
  const nlohmann::json actual = nlohmann::json::parse(core_result(outcome).dump());
  EXPECT_THAT(testing::differences(expected, actual, blocks_of(GetParam())), IsEmpty());
}

std::string name_of(const ::testing::TestParamInfo<std::string>& test) {
  return test.param;
}

INSTANTIATE_TEST_SUITE_P(Walls, WholeRun, ::testing::ValuesIn(case_names(false)), name_of);
INSTANTIATE_TEST_SUITE_P(Slopes, WholeRun, ::testing::ValuesIn(case_names(true)), name_of);

TEST(WholeRuns, AreAllThere) {
  EXPECT_EQ(case_names(false).size(), 26u);
  EXPECT_EQ(case_names(true).size(), 5u);
}

}  // namespace
}  // namespace ostrel::host
