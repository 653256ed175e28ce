// SPDX-License-Identifier: Apache-2.0
#include "command_line.h"

#include "host_testing.h"

#include <ostrel/version.h>

#include <gmock/gmock.h>

#include <sstream>

namespace ostrel::host {
namespace {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using Json = nlohmann::json;

struct Called {
  int status = 0;
  std::string out;
  std::string err;
};

Called call(const std::vector<std::string>& arguments) {
  std::ostringstream out;
  std::ostringstream err;
  Called called;
  called.status = run_program(arguments, out, err);
  called.out = out.str();
  called.err = err.str();
  return called;
}

class CommandLine : public ::testing::Test {
protected:
  std::string project(const Json& json) { return folder_.write("p.json", json.dump()).string(); }

  TemporaryFolder folder_;
  // A cantilever in dry sand.
  std::string case_file_ = std::string(OSTREL_GOLDEN_DATA) + "/cases/c01_cantilever_dry_sand.json";
};

TEST_F(CommandLine, HelpsAndTellsItsVersion) {
  const Called help = call({"--help"});
  EXPECT_EQ(help.status, exit_fine);
  EXPECT_THAT(help.out, AllOf(HasSubstr("run"), HasSubstr("core"), HasSubstr("--lang")));
  const Called version = call({"--version"});
  EXPECT_EQ(version.status, exit_fine);
  EXPECT_EQ(version.out, std::string("ostrel ") + ostrel::version() + "\n");
}

TEST_F(CommandLine, HelpsInTheLanguageAskedFor) {
  EXPECT_THAT(call({"--lang", "it", "--help"}).out, HasSubstr("Calcola un progetto"));
  EXPECT_THAT(call({"run", "--help", "--lang=en"}).out, HasSubstr("Analyse a project"));
}

TEST_F(CommandLine, RefusesWhatItDoesNotKnow) {
  const std::vector<std::vector<std::string>> wrong = {
      {}, {"fly"}, {"run"}, {"core"}, {"run", "a", "b"}, {"--lang", "fr", "run", "a"}, {"-x"}};
  for (const auto& arguments : wrong) {
    const Called called = call(arguments);
    EXPECT_EQ(called.status, exit_bad_input);
    EXPECT_THAT(called.out, IsEmpty());
    EXPECT_THAT(called.err, Not(IsEmpty()));
  }
}

TEST_F(CommandLine, RunsAProject) {
  const Called called = call({"run", project(sound_project()), "--lang", "en"});
  EXPECT_EQ(called.status, exit_fine);
  EXPECT_THAT(called.out, HasSubstr("Largest moment"));
  EXPECT_THAT(called.err, IsEmpty());
}

TEST_F(CommandLine, RunsInItalian) {
  const Called called = call({"--lang", "it", "run", project(sound_project())});
  EXPECT_THAT(called.out, HasSubstr("Momento massimo"));
}

TEST_F(CommandLine, RefusesAWrongProjectBeforeTheAnalysis) {
  Json wrong = sound_project();
  wrong["soils"][0]["friction_angle_deg"] = 95;
  const std::string results = (folder_ / "results").string();
  const Called called = call({"run", project(wrong), "-o", results, "--lang", "en"});
  EXPECT_EQ(called.status, exit_bad_input);
  EXPECT_THAT(called.out, IsEmpty());
  EXPECT_THAT(called.err, AllOf(HasSubstr("p.json:1: soils[0].friction_angle_deg: found 95"),
                                HasSubstr("not below 0 and below 90")));
  EXPECT_FALSE(std::filesystem::exists(results));
}

TEST_F(CommandLine, WarnsAndGoesOn) {
  const Called called =
      call({"run", project(with("/water", {{"retained_level_m", -1}, {"excavated_level_m", -4}})),
            "--lang", "en"});
  EXPECT_EQ(called.status, exit_fine);
  EXPECT_THAT(called.err, HasSubstr("water.retained_level_m: warning: the water stands below"));
}

TEST_F(CommandLine, TellsThatTheAnalysisFailedAndWritesWhatThereIs) {
  Json json = sound_project();
  json["combinations"].push_back(
      {{"name", "too much"}, {"type", "ultimate"}, {"actions", {{"earth_pressure", 80}}}});
  const Called called =
      call({"run", project(json), "-o", (folder_ / "results").string(), "--lang", "en"});
  EXPECT_EQ(called.status, exit_analysis_failed);
  EXPECT_THAT(called.err, HasSubstr("too much"));
  EXPECT_THAT(called.out, HasSubstr("Largest moment"));
  const Json result = Json::parse(contents_of(folder_ / "results/result.json"));
  EXPECT_EQ(result["return"], 3);
  EXPECT_EQ(result["combinations"].size(), 1u);
}

// Six tables of the run, three of its one combination, and two files of JSON; figures stand apart.
TEST_F(CommandLine, WritesItsFilesAndNothingElse) {
  const Called called =
      call({"run", project(sound_project()), "-o", (folder_ / "a/b").string(), "--lang", "en"});
  EXPECT_EQ(called.status, exit_fine);
  std::size_t files = 0;
  for (const auto& entry : std::filesystem::directory_iterator(folder_ / "a/b")) {
    if (entry.path().filename() == "figures") continue;
    const std::string extension = entry.path().extension().string();
    EXPECT_TRUE(extension == ".csv" || extension == ".json") << entry.path();
    ++files;
  }
  EXPECT_EQ(files, 11u);
}

TEST_F(CommandLine, TellsBeforeTheAnalysisThatItCannotWrite) {
  folder_.write("file", "");
  const Called called =
      call({"run", project(sound_project()), "-o", (folder_ / "file/x").string()});
  EXPECT_EQ(called.status, exit_bad_input);
  EXPECT_THAT(called.out, IsEmpty());
  EXPECT_THAT(called.err, HasSubstr("file/x"));
  const Called core = call({"core", case_file_, "-o", (folder_ / "none/x").string()});
  EXPECT_EQ(core.status, exit_bad_input);
  EXPECT_THAT(core.out, IsEmpty());
}

TEST_F(CommandLine, RunsACaseToStandardOutput) {
  const Called called = call({"core", case_file_});
  EXPECT_EQ(called.status, exit_fine);
  EXPECT_EQ(Json::parse(called.out)["return"], 0);
}

TEST_F(CommandLine, RunsACaseIntoAFile) {
  const Called called = call({"core", case_file_, "-o", (folder_ / "r.json").string()});
  EXPECT_EQ(called.status, exit_fine);
  EXPECT_THAT(called.out, IsEmpty());
  EXPECT_EQ(Json::parse(contents_of(folder_ / "r.json"))["return"], 0);
}

TEST_F(CommandLine, WritesTheResultOfACaseThatFails) {
  const std::string no_wall = std::string(OSTREL_GOLDEN_DATA) + "/cases/e05_no_wall.json";
  const Called called = call({"core", no_wall});
  EXPECT_EQ(called.status, exit_analysis_failed);
  EXPECT_EQ(Json::parse(called.out)["errors"][0]["code"], 5);
  // The texts of a case are Italian unless another language is asked for.
  EXPECT_THAT(called.err, HasSubstr("Nessuna paratia"));
  EXPECT_THAT(call({"core", no_wall, "--lang", "en"}).err, Not(HasSubstr("Nessuna")));
}

TEST_F(CommandLine, RefusesAWrongCase) {
  const Called called = call({"core", folder_.write("c.json", "{}").string()});
  EXPECT_EQ(called.status, exit_bad_input);
  EXPECT_THAT(called.out, IsEmpty());
  EXPECT_THAT(called.err, HasSubstr("soil_layers"));
}

TEST_F(CommandLine, SavesARunAndShowsItAgain) {
  const std::string results = (folder_ / "r.ostrel").string();
  const Called run = call({"run", project(sound_project()), "--save", results, "--lang", "en"});
  EXPECT_EQ(run.status, exit_fine) << run.err;
  EXPECT_THAT(folder_.names(), ElementsAre("p.json", "r.ostrel"));
  const Called show = call({"show", results, "--lang", "en"});
  EXPECT_EQ(show.status, exit_fine) << show.err;
  EXPECT_EQ(show.out + "\nResults saved in " + results + "\n", run.out);
  EXPECT_THAT(call({"show", results, "--lang", "it"}).out, HasSubstr("Momento massimo"));
}

TEST_F(CommandLine, ShowsWhatThereIsOfARunThatFailed) {
  Json json = sound_project();
  json["combinations"].push_back(
      {{"name", "too much"}, {"type", "ultimate"}, {"actions", {{"earth_pressure", 80}}}});
  const std::string results = (folder_ / "r").string();
  const Called run = call({"run", project(json), "--save", results, "--lang", "en"});
  EXPECT_EQ(run.status, exit_analysis_failed);
  const Called show = call({"show", results, "--lang", "en"});
  EXPECT_EQ(show.status, exit_analysis_failed);
  // The remarks upon the project have their lines of the file in one of them only.
  const std::vector<std::string> errors = lines_without(run.err, "arning: ");
  EXPECT_THAT(errors, Not(IsEmpty()));
  EXPECT_EQ(lines_without(show.err, "arning: "), errors);
  EXPECT_THAT(show.out, HasSubstr("verifications are incomplete"));
}

TEST_F(CommandLine, RefusesToShowWhatIsNoFileOfResults) {
  const std::vector<std::string> files = {folder_.write("a", "{}").string(),
                                          folder_.path().string(), (folder_ / "none").string()};
  for (const std::string& file : files) {
    const Called called = call({"show", file, "--lang", "en"});
    EXPECT_EQ(called.status, exit_bad_input);
    EXPECT_THAT(called.out, IsEmpty());
    EXPECT_THAT(called.err, HasSubstr(file));
  }
}

TEST_F(CommandLine, TellsBeforeTheAnalysisThatItCannotSave) {
  const Called called =
      call({"run", project(sound_project()), "--save", (folder_ / "none/r").string()});
  EXPECT_EQ(called.status, exit_bad_input);
  EXPECT_THAT(called.out, IsEmpty());
  EXPECT_THAT(called.err, HasSubstr("none/r"));
}

// A project whose displacements are verified against limits that they miss by far.
Json project_with_displacements_beyond_limits() {
  Json json = sound_project();
  json["wall"]["displacement_limits"] = {{"head_mm", 0.01}, {"excavation_mm", 0.01}};
  json["combinations"].push_back(
      {{"name", "SLE"}, {"type", "rare"}, {"checks", {"displacements"}}});
  return json;
}

TEST_F(CommandLine, EndsWellWhateverTheFactorsUnlessALimitIsGiven) {
  const std::string file = project(project_with_displacements_beyond_limits());
  const Called plain = call({"run", file, "--lang", "en"});
  EXPECT_EQ(plain.status, exit_fine) << plain.err;
  EXPECT_THAT(plain.out, HasSubstr("not satisfied"));
  const Called limited = call({"run", file, "--fail-below", "1.0", "--lang", "en"});
  EXPECT_EQ(limited.status, exit_analysis_failed);
  EXPECT_EQ(limited.out, plain.out);
  EXPECT_THAT(limited.err,
              AllOf(HasSubstr("Displacements: the factor "), HasSubstr("(combination SLE)")));
  EXPECT_EQ(call({"run", file, "--fail-below", "1e-9"}).status, exit_fine);
}

TEST_F(CommandLine, HoldsSavedResultsToALimitToo) {
  const std::string file = project(project_with_displacements_beyond_limits());
  const std::string results = (folder_ / "r").string();
  EXPECT_EQ(call({"run", file, "--save", results}).status, exit_fine);
  EXPECT_EQ(call({"show", results}).status, exit_fine);
  EXPECT_EQ(call({"show", results, "--fail-below=1"}).status, exit_analysis_failed);
}

TEST_F(CommandLine, TakesOnlyAPositiveLimit) {
  for (const char* limit : {"0", "-1", "nan", "inf", "x"}) {
    EXPECT_EQ(call({"run", project(sound_project()), "--fail-below", limit}).status,
              exit_bad_input);
  }
}

}  // namespace
}  // namespace ostrel::host
