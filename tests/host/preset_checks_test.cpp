// SPDX-License-Identifier: Apache-2.0
#include "preset_checks.h"

#include "host_testing.h"
#include "presets.h"

#include <gmock/gmock.h>

namespace ostrel::host {
namespace {

using ::testing::ElementsAre;
using ::testing::Field;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using Json = nlohmann::json;

std::vector<Problem> problems_of(const Json& presets) {
  Problems problems{Texts(Language::english)};
  check_presets(presets, problems);
  return problems.errors();
}

// The standards of the program with the value at a JSON pointer replaced.
std::vector<Problem> problems_with(const char* pointer, const Json& value) {
  Json presets = built_in_presets();
  presets[Json::json_pointer(pointer)] = value;
  return problems_of(presets);
}

TEST(PresetChecks, FindNothingInTheStandardsOfTheProgram) {
  EXPECT_THAT(problems_of(built_in_presets()), IsEmpty());
}

TEST(PresetChecks, TellANumberThatIsNoFactor) {
  EXPECT_THAT(problems_with("/standards/NTC2008/soil/M2/cohesion", -1.25),
              ElementsAre(Field(&Problem::path, "standards.NTC2008.soil.M2.cohesion")));
  EXPECT_THAT(
      problems_with("/standards/NTC2008/actions/A1/variable/unfavourable", "1.5"),
      ElementsAre(Field(&Problem::path, "standards.NTC2008.actions.A1.variable.unfavourable")));
  EXPECT_THAT(problems_with("/standards/NTC2008/resistances/slopes R2/global_stability/value", 0),
              ElementsAre(Field(&Problem::path,
                                "standards.NTC2008.resistances.slopes R2.global_stability.value")));
}

TEST(PresetChecks, TellASetThatIsNotThere) {
  const auto errors = problems_with("/standards/NTC2008/combinations/0/soil", "M3");
  ASSERT_THAT(errors, SizeIs(1));
  EXPECT_EQ(errors[0].path, "standards.NTC2008.combinations[0].soil");
  EXPECT_EQ(errors[0].found, "\"M3\"");
  EXPECT_EQ(errors[0].allowed, "one of: \"M1\", \"M2\"");
}

TEST(PresetChecks, TellFieldsThatAreMissingOrUnknown) {
  Json presets = built_in_presets();
  presets["standards"]["EN1997-DA3"]["combinations"][0].erase("clause");
  presets["standards"]["EN1997-DA3"]["soil"]["M2"]["friction"] = 1.25;
  const auto errors = problems_of(presets);
  ASSERT_THAT(errors, SizeIs(2));
  EXPECT_EQ(errors[0].path, "standards.EN1997-DA3.soil.M2.friction");
  EXPECT_EQ(errors[1].path, "standards.EN1997-DA3.combinations[0].clause");
}

TEST(PresetChecks, StandAnyForm) {
  for (const char* text : {"3", "[]", "{\"standards\": {\"X\": 3}}", "{\"standards\": []}",
                           "{\"standards\": {\"X\": {\"actions\": [], \"combinations\": {}}}}"}) {
    EXPECT_FALSE(problems_of(Json::parse(text)).empty()) << text;
  }
}

TEST(PresetChecks, AreToldWithTheLineOfTheirOwnFile) {
  Problems problems{Texts(Language::english)};
  Json presets = built_in_presets();
  presets["standards"]["NTC2008"]["combinations"][0]["checks"][0] = "wall_strenght";
  const std::string text = presets.dump(1);
  EXPECT_FALSE(read_presets(text, problems).has_value());
  EXPECT_THAT(problems.report("own.json", text),
              HasSubstr("standards.NTC2008.combinations[0].checks[0]: found \"wall_strenght\""));
  EXPECT_EQ(problems.report("own.json", text).rfind("own.json:", 0), 0u);
}

}  // namespace
}  // namespace ostrel::host
