// SPDX-License-Identifier: Apache-2.0
#include "command_check.h"

#include "command_line.h"
#include "host_testing.h"
#include "presets.h"

#include <gmock/gmock.h>

#include <sstream>

namespace ostrel::host {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using Json = nlohmann::json;

class CommandCheck : public ::testing::Test {
protected:
  int call(std::vector<std::string> arguments) {
    out_.str({});
    err_.str({});
    arguments.insert(arguments.end(), {"--lang", "en"});
    return run_program(arguments, out_, err_);
  }
  std::string project(const Json& json) { return folder_.write("p.json", json.dump(1)).string(); }

  TemporaryFolder folder_;
  std::ostringstream out_;
  std::ostringstream err_;
};

TEST_F(CommandCheck, FindsNothingInASoundProject) {
  EXPECT_EQ(call({"check", project(sound_project())}), exit_fine);
  EXPECT_THAT(out_.str(), HasSubstr("nothing questionable"));
  EXPECT_THAT(err_.str(), IsEmpty());
}

TEST_F(CommandCheck, TellsEveryErrorWithItsLine) {
  Json wrong = sound_project();
  wrong["wall"]["diameter_mm"] = -600;
  wrong["soils"][0]["friction_angle_deg"] = 95;
  EXPECT_EQ(call({"check", project(wrong)}), exit_bad_input);
  EXPECT_THAT(err_.str(), AllOf(HasSubstr("wall.diameter_mm: found -600; allowed"),
                                HasSubstr("soils[0].friction_angle_deg: found 95; allowed")));
  EXPECT_THAT(out_.str(), HasSubstr("2 errors, 0 warnings"));
}

TEST_F(CommandCheck, LetsQuestionableValuesPass) {
  EXPECT_EQ(call({"check", project(with("/soils/0/friction_angle_deg", 55))}), exit_fine);
  EXPECT_THAT(err_.str(), HasSubstr("warning"));
  EXPECT_THAT(out_.str(), HasSubstr("0 errors, 1 warning\n"));
}

TEST_F(CommandCheck, FindsOnlyFormsOfTheLibraryQuestionableInTheExamples) {
  for (const char* name : {"cantilever", "anchored", "propped", "seismic", "diaphragm_anchor",
                           "two_anchors", "en1997_da1"}) {
    EXPECT_EQ(call({"check", std::string(OSTREL_EXAMPLES) + "/" + name + ".json"}), exit_fine);
    EXPECT_THAT(lines_without(err_.str(), "Before you sign"), IsEmpty()) << name;
  }
}

TEST_F(CommandCheck, PrintsASoundProjectForOneWithAStandard) {
  Json json = sound_project();
  json.erase("combinations");
  json["standard"] = "EN1997-DA2";
  ASSERT_EQ(call({"expand", project(json)}), exit_fine);
  const Json expanded = Json::parse(out_.str());
  EXPECT_FALSE(expanded.contains("standard"));
  EXPECT_THAT(err_.str(), HasSubstr("to be confirmed against the standard"));
  EXPECT_EQ(expanded["combinations"][0]["name"], "DA2 A1+M1+R2");
  EXPECT_EQ(call({"check", project(expanded)}), exit_fine);
  EXPECT_THAT(out_.str(), HasSubstr("to be confirmed against the standard"));
}

TEST_F(CommandCheck, BlamesAFileOfStandardsForItsErrors) {
  Json own = built_in_presets();
  own["standards"]["NTC2008"]["combinations"][0]["soil"] = "M3";
  const std::string file = folder_.write("own.json", own.dump(1)).string();
  EXPECT_EQ(call({"check", project(with("/standard", "NTC2008")), "--presets", file}),
            exit_bad_input);
  EXPECT_THAT(err_.str(),
              AllOf(HasSubstr(file + ":"), HasSubstr("combinations[0].soil: found \"M3\"")));
  EXPECT_THAT(err_.str(), Not(HasSubstr("p.json")));
}

TEST_F(CommandCheck, ExpandsBehindTheCombinationsOfTheFile) {
  ASSERT_EQ(call({"expand", project(with("/standard", "EN1997-DA2"))}), exit_fine);
  const auto combinations = nlohmann::ordered_json::parse(out_.str())["combinations"];
  EXPECT_EQ(combinations[0]["name"], "C");
  EXPECT_EQ(combinations[1]["name"], "DA2 A1+M1+R2");
  EXPECT_EQ(combinations[1].begin().key(), "name");
  EXPECT_EQ(combinations[1]["actions"]["loads"]["Q"]["unfavourable"], 1.5);
}

TEST_F(CommandCheck, ExpandsNothingThatIsWrong) {
  EXPECT_EQ(call({"expand", project(with("/standard", "none"))}), exit_bad_input);
  EXPECT_THAT(out_.str(), IsEmpty());
  EXPECT_THAT(err_.str(), HasSubstr("standard"));
}

TEST_F(CommandCheck, TakesStandardsFromAFile) {
  const std::string file = folder_.write("mine.json", "{\"standards\": {}}").string();
  const std::string with_standard = project(with("/standard", "NTC2008"));
  EXPECT_EQ(call({"check", with_standard}), exit_fine);
  for (const char* command : {"check", "run", "expand"}) {
    EXPECT_EQ(call({command, with_standard, "--presets", file}), exit_bad_input) << command;
    EXPECT_EQ(call({command, with_standard, "--presets", file + "x"}), exit_bad_input) << command;
  }
}

TEST_F(CommandCheck, PrintsTheSchema) {
  EXPECT_EQ(call({"schema"}), exit_fine);
  EXPECT_EQ(Json::parse(out_.str())["$schema"], "http://json-schema.org/draft-07/schema#");
}

TEST_F(CommandCheck, ShowsTheSeismicCoefficients) {
  Json json = sound_project();
  json["seismic"] = {{"standard", "EN1998-5"}, {"ag_g", 0.1}, {"soil_factor", 1.2}};
  EXPECT_EQ(call({"check", project(json)}), exit_fine);
  // 0.1 * 1.2 and half of it.
  EXPECT_THAT(out_.str(), AllOf(HasSubstr("kh = 0.120"), HasSubstr("kv = 0.060")));
}

}  // namespace
}  // namespace ostrel::host
