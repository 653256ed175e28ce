// SPDX-License-Identifier: Apache-2.0
#include "result_files.h"

#include "host_testing.h"
#include "project_conversion.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <regex>
#include <set>
#include <sstream>

namespace ostrel::host {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::StartsWith;
using Json = nlohmann::json;

class ResultFiles : public ::testing::Test {
protected:
  void run(const Json& json) {
    const Project project = project_of(json);
    const Job job = to_job(project);
    outcome_ = analyse(job);
    files_ = result_files(project, job, outcome_, Language::italian);
  }
  // Of the figures, or of all others.
  std::vector<std::string> names(bool of_figures = false) const {
    std::vector<std::string> names;
    for (const ResultFile& file : files_) {
      if (file.name.starts_with("figures/") == of_figures) names.push_back(file.name);
    }
    return names;
  }
  std::string contents(const std::string& name) const {
    for (const ResultFile& file : files_) {
      if (file.name == name) return file.contents;
    }
    return "";
  }
  std::vector<std::string> lines(const std::string& name) const {
    std::vector<std::string> lines;
    std::istringstream stream(contents(name));
    for (std::string line; std::getline(stream, line);)
      lines.push_back(line);
    return lines;
  }

  Outcome outcome_;
  std::vector<ResultFile> files_;
};

TEST_F(ResultFiles, AreNamedAfterNumberAndNameOfTheCombination) {
  Json project = sound_project();
  project["combinations"][0]["name"] = "SLU: A1+M1 (città)";
  run(project);
  EXPECT_THAT(names(),
              ElementsAre("result.json", "summary.csv", "verifications.csv", "sections.csv",
                          "reinforcement.csv", "anchors.csv", "equilibrium.csv",
                          "01-SLU-A1-M1-citt-wall.csv", "01-SLU-A1-M1-citt-springs.csv",
                          "01-SLU-A1-M1-citt-pressures.csv", "tables.json"));
}

// The page that tells what is in a folder of results names every file there, and no other.
TEST_F(ResultFiles, StandInTheFirstSteps) {
  run(sound_project());
  std::set<std::string> written{"figures/*.json"};
  for (const std::string& name : names())
    written.insert(name.starts_with("01-C-") ? "NN-name-" + name.substr(5) : name);
  const std::string page = contents_of(std::string(OSTREL_EXAMPLES) + "/../docs/first_steps.md");
  for (const std::string& name : written)
    EXPECT_THAT(page, HasSubstr("`" + name + "`"));
  const std::regex file("`([^`]+[.]csv)`");
  for (std::sregex_iterator found(page.begin(), page.end(), file), end; found != end; ++found)
    EXPECT_THAT(written, Contains((*found)[1].str()));
}

TEST_F(ResultFiles, HoldEachFigureInOneLanguage) {
  run(sound_project());
  EXPECT_THAT(names(true), Contains("figures/01-moment.json"));
  const Json figure = Json::parse(contents("figures/01-moment.json"));
  EXPECT_EQ(figure["data"][0]["name"], "Momento flettente");
  EXPECT_EQ(figure["layout"]["xaxis"]["title"]["text"], "Momento flettente [kNm]");
  EXPECT_EQ(figure["layout"]["meta"]["id"], "01-moment");
}

TEST_F(ResultFiles, NeedNoLettersInTheName) {
  Json project = sound_project();
  project["combinations"][0]["name"] = "../深";
  run(project);
  EXPECT_THAT(names(), Contains("01-wall.csv"));
}

TEST_F(ResultFiles, HoldAllResultsAsJson) {
  run(sound_project());
  const Json result = Json::parse(contents("result.json"));
  EXPECT_EQ(result["format"], 1);
  EXPECT_EQ(result["project"], "wall");
  EXPECT_EQ(result["units"]["length"], "mm");
  EXPECT_EQ(result["return"], 0);
  EXPECT_EQ(result["combinations"].size(), 1u);
}

// The wall of 10 m has 40 elements of 0.25 m: a heading and two rows for each.
TEST_F(ResultFiles, HoldARowForEachEndOfEachElement) {
  run(sound_project());
  const auto rows = lines("01-C-wall.csv");
  ASSERT_EQ(rows.size(), 81u);
  EXPECT_THAT(rows[0], StartsWith("depth_m,displacement_mm,"));
  EXPECT_THAT(rows[1], StartsWith("0,"));
  EXPECT_THAT(rows[2], StartsWith("0.25,"));
  EXPECT_THAT(rows[3], StartsWith("0.25,"));
  EXPECT_THAT(rows[80], StartsWith("10,"));
  // The displacement of the head, towards the excavation.
  const double head = -outcome_.results.combResults[0].femResults.dispTrans.points[0].value;
  EXPECT_THAT(rows[1], StartsWith("0," + Json(head).dump()));
}

// From the excavation at 4 m to the foot at 10 m: 25 nodes.
TEST_F(ResultFiles, HoldARowForEachSpring) {
  run(sound_project());
  const auto rows = lines("01-C-springs.csv");
  ASSERT_EQ(rows.size(), 26u);
  EXPECT_THAT(rows[1], StartsWith("4,"));
}

TEST_F(ResultFiles, HoldThePressuresByTheirNames) {
  run(sound_project());
  const auto rows = lines("01-C-pressures.csv");
  EXPECT_EQ(std::count_if(rows.begin(), rows.end(),
                          [](const std::string& row) { return row.starts_with("earth,"); }),
            17);
  EXPECT_EQ(std::count_if(rows.begin(), rows.end(),
                          [](const std::string& row) { return row.starts_with("Q,"); }),
            17);
}

TEST_F(ResultFiles, SumUpEveryCombinationThatWasSolved) {
  Json project = sound_project();
  project["combinations"].push_back(
      {{"name", "too much"}, {"type", "ultimate"}, {"actions", {{"earth_pressure", 80}}}});
  run(project);
  EXPECT_THAT(contents("summary.csv"), HasSubstr("\r\nC,moment_kNm,"));
  EXPECT_EQ(contents("summary.csv").find("too much"), std::string::npos);
  EXPECT_EQ(names().size(), 11u);
}

}  // namespace
}  // namespace ostrel::host
