// SPDX-License-Identifier: Apache-2.0
#include "run_report.h"

#include "host_testing.h"
#include "project_conversion.h"
#include "text_table.h"
#include "texts_testing.h"

#include <gmock/gmock.h>

#include <sstream>

namespace ostrel::host {
namespace {

using ::testing::ContainsRegex;
using ::testing::HasSubstr;
using ::testing::Not;
using Json = nlohmann::json;

std::string report_of(const Json& json, Language language = Language::english) {
  const Project project = project_of(json);
  const Job job = to_job(project);
  return run_report(run_data_of(project, job, analyse(job), Texts(language)), Texts(language));
}

TEST(RunReport, TellsTheWallAndItsSigns) {
  const std::string report = report_of(sound_project());
  EXPECT_THAT(report, HasSubstr("Piles of 600 mm diameter, 1.00 m between axes"));
  EXPECT_THAT(report, HasSubstr("Length 10.00 m, excavation 4.00 m"));
  EXPECT_THAT(report, HasSubstr("Forces are those of one pile (1.00 m of wall)."));
  EXPECT_THAT(report, HasSubstr("positive towards the excavation"));
}

TEST(RunReport, TellsTheFiguresOfEachCombination) {
  Json project = sound_project();
  project["combinations"].push_back({{"name", "Second"}, {"type", "rare"}});
  const std::string report = report_of(project);
  EXPECT_THAT(report, HasSubstr("\nC - "));
  EXPECT_THAT(report, HasSubstr("\nSecond - "));
  EXPECT_THAT(report, HasSubstr("Largest moment"));
  EXPECT_THAT(report, HasSubstr("Most used soil spring"));
  EXPECT_THAT(report, Not(HasSubstr("\nAnchor 1")));
  EXPECT_THAT(report, Not(HasSubstr("Support")));
}

TEST(RunReport, ListsAnchorsByNameOrNumberAndSupports) {
  Json project = sound_project();
  Json anchor = {{"level_m", -1}, {"inclination_deg", 15},  {"free_length_m", 8},
                 {"number", 2},   {"tendon_area_mm2", 500}, {"E_GPa", 195}};
  project["anchors"] = {anchor, anchor};
  project["anchors"][1]["name"] = "Lower";
  project["anchors"][1]["level_m"] = -2.5;
  project["supports"] = {{"elastic", {{{"level_m", 0}, {"horizontal_kN_m", 100}}}}};
  const std::string report = report_of(project);
  EXPECT_THAT(report, HasSubstr("Anchor 1 "));
  EXPECT_THAT(report, HasSubstr("Anchor Lower"));
  EXPECT_THAT(report, HasSubstr("Support, horizontal force"));
}

TEST(RunReport, SaysWhichCombinationHasNoResult) {
  Json project = sound_project();
  project["combinations"].push_back(
      {{"name", "too much"}, {"type", "ultimate"}, {"actions", {{"earth_pressure", 80}}}});
  EXPECT_THAT(report_of(project), HasSubstr("\nNo result: see the messages.\n"));
}

TEST(RunReport, TellsWhatIsLeftOverOfTheForcesAndWhereThatIsMuch) {
  const Project project = project_of(sound_project());
  const Job job = to_job(project);
  RunData data = run_data_of(project, job, analyse(job), english);
  const std::string fine = run_report(data, english);
  EXPECT_THAT(fine,
              ContainsRegex("Residual across \\(towards the ground\\) +-?[0-9.]+e-[0-9]+  kN"));
  EXPECT_THAT(fine, ContainsRegex("Residual relative to the loads +[0-9.]+e-"));
  EXPECT_THAT(fine, Not(HasSubstr("in balance")));
  data.combinations.at(0).summary->residual.relative_to_loads = 0.25;
  const std::string much = run_report(data, english);
  EXPECT_THAT(much,
              HasSubstr("\n! the forces are not in balance: the residual is 25 % of the loads"));
}

TEST(RunReport, EndsWithAllVerifications) {
  const std::string report = report_of(sound_project());
  EXPECT_THAT(report, HasSubstr("\nVerifications: the smallest factor of each\n"));
  EXPECT_THAT(report, HasSubstr("\nWall sections "));
  EXPECT_THAT(report, HasSubstr("\nDisplacements "));
}

TEST(RunReport, KeepsToTheWidthOfATerminal) {
  Json project = sound_project();
  project["name"] = std::string(300, 'n');
  project["combinations"][0]["name"] = std::string(300, 'c');
  for (const Language language : {Language::english, Language::italian}) {
    std::istringstream lines(report_of(project, language));
    for (std::string line; std::getline(lines, line);) {
      EXPECT_LE(columns_of(line), terminal_width) << line;
    }
  }
}

TEST(RunReport, SpeaksItalian) {
  EXPECT_THAT(report_of(sound_project(), Language::italian), HasSubstr("Spostamento massimo"));
}

}  // namespace
}  // namespace ostrel::host
