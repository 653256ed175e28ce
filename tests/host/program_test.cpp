// SPDX-License-Identifier: Apache-2.0
// The program as a user calls it: exit status, standard output, standard error.
#include "host_testing.h"

#include <gmock/gmock.h>

#include <cstdlib>
#include <sys/wait.h>

namespace ostrel::host {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using Json = nlohmann::json;

class ProgramTest : public ::testing::Test {
protected:
  // Runs the program with arguments as a shell takes them.
  void run(const std::string& arguments, const std::string& environment = "") {
    const std::string command = environment + " '" + OSTREL_PROGRAM + "' " + arguments + " >'"
                              + (folder_ / "out").string() + "' 2>'" + (folder_ / "err").string()
                              + "'";
    const int ended = std::system(command.c_str());
    ASSERT_TRUE(WIFEXITED(ended)) << command;
    status_ = WEXITSTATUS(ended);
    out_ = contents_of(folder_ / "out");
    err_ = contents_of(folder_ / "err");
  }
  std::string project(const std::string& text) {
    return "'" + folder_.write("p.json", text).string() + "'";
  }

  TemporaryFolder folder_;
  int status_ = -1;
  std::string out_;
  std::string err_;
};

TEST_F(ProgramTest, EndsWith0WhereAllIsWell) {
  run("run " + project(sound_project().dump()) + " --lang en");
  EXPECT_EQ(status_, 0);
  EXPECT_THAT(out_, HasSubstr("Largest moment"));
  EXPECT_THAT(err_, IsEmpty());
}

TEST_F(ProgramTest, EndsWith1WhereTheAnalysisFails) {
  Json json = sound_project();
  json["combinations"][0]["actions"] = {{"earth_pressure", 80}};
  run("run " + project(json.dump()) + " --lang en");
  EXPECT_EQ(status_, 1);
  EXPECT_THAT(err_, HasSubstr("'C'"));
}

TEST_F(ProgramTest, EndsWith2WhereTheFileIsWrong) {
  for (const std::string& text : {std::string("{"), std::string(), std::string(100'000, '['),
                                  std::string("{\"format\": 1}"), std::string("\xff\xfe\0\0", 4)}) {
    run("run " + project(text));
    EXPECT_EQ(status_, 2);
    EXPECT_THAT(out_, IsEmpty());
    EXPECT_THAT(err_, Not(IsEmpty()));
  }
}

TEST_F(ProgramTest, ShowsWhatItSavedAndRefusesWhatIsCut) {
  const std::string saved = "'" + (folder_ / "saved").string() + "'";
  run("run " + project(sound_project().dump()) + " --lang en --save " + saved);
  EXPECT_EQ(status_, 0);
  EXPECT_THAT(folder_.names(), ::testing::ElementsAre("err", "out", "p.json", "saved"));
  const std::string printed = out_;
  run("show " + saved + " --lang en");
  EXPECT_EQ(status_, 0);
  EXPECT_TRUE(printed.starts_with(out_)) << out_;
  EXPECT_THAT(out_, HasSubstr("Verifications"));
  const std::string bytes = contents_of(folder_ / "saved");
  folder_.write("cut", bytes.substr(0, bytes.size() / 2));
  run("show '" + (folder_ / "cut").string() + "' --lang en");
  EXPECT_EQ(status_, 2);
  EXPECT_THAT(out_, IsEmpty());
  EXPECT_THAT(err_, HasSubstr("cut or damaged"));
}

TEST_F(ProgramTest, EndsWith1WhereAFactorIsBelowTheLimit) {
  Json json = sound_project();
  json["wall"]["displacement_limits"] = {{"head_mm", 0.01}, {"excavation_mm", 0.01}};
  json["combinations"].push_back(
      {{"name", "SLE"}, {"type", "rare"}, {"checks", {"displacements"}}});
  run("run " + project(json.dump()) + " --fail-below 1.0", "LC_ALL=it_IT.UTF-8");
  EXPECT_EQ(status_, 1);
  EXPECT_THAT(err_, HasSubstr("Spostamenti: il fattore 0.0"));
  EXPECT_THAT(err_, HasSubstr("è sotto 1 (combinazione SLE)"));
}

TEST_F(ProgramTest, SpeaksTheLanguageOfTheEnvironment) {
  run("run " + project(sound_project().dump()), "LC_ALL=it_IT.UTF-8");
  EXPECT_THAT(out_, HasSubstr("Momento massimo"));
  EXPECT_THAT(out_, HasSubstr("Non Sismica (SLU)"));
  run("run " + project(sound_project().dump()), "LC_ALL=C");
  EXPECT_THAT(out_, HasSubstr("Largest moment"));
  EXPECT_THAT(out_, Not(HasSubstr("Non Sismica")));
}

TEST_F(ProgramTest, WritesCasesThroughAPipe) {
  run("core '" + std::string(OSTREL_GOLDEN_DATA) + "/cases/e05_no_wall.json' -o /dev/stdout");
  EXPECT_EQ(status_, 1);
  EXPECT_EQ(Json::parse(out_)["errors"][0]["code"], 5);
}

TEST_F(ProgramTest, TellsThatItsOutputIsLost) {
  const std::string command = std::string("'") + OSTREL_PROGRAM + "' --version >/dev/full 2>'"
                            + (folder_ / "err").string() + "'";
  const int ended = std::system(command.c_str());
  EXPECT_EQ(WEXITSTATUS(ended), 2);
  EXPECT_THAT(contents_of(folder_ / "err"), HasSubstr("standard output"));
}

}  // namespace
}  // namespace ostrel::host
