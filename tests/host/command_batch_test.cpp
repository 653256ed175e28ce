// SPDX-License-Identifier: Apache-2.0
// Batches as a user calls them, within this process and as a process of their own.
#include "command_batch.h"

#include "command_line.h"
#include "host_testing.h"
#include "verification_testing.h"

#include <fmt/format.h>
#include <gmock/gmock.h>

#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <map>
#include <spawn.h>
#include <sstream>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <utility>

namespace ostrel::host {
namespace {

namespace fs = std::filesystem;
using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using Json = nlohmann::json;

class CommandBatch : public ::testing::Test {
protected:
  void batch(std::vector<std::string> arguments) {
    std::ostringstream out;
    std::ostringstream err;
    arguments.insert(arguments.begin(), {"batch", "--lang", "en"});
    status_ = run_program(arguments, out, err);
    out_ = out.str();
    err_ = err.str();
  }
  std::string file(const std::string& name, const std::string& text) {
    fs::create_directories((folder_ / name).parent_path());
    return folder_.write(name, text).string();
  }
  std::string sound(const std::string& name) { return file(name, sound_project().dump()); }
  std::string wrong(const std::string& name) { return file(name, "{"); }
  // Its earth pressure is 80 times as much: the wall has no equilibrium.
  std::string failing(const std::string& name) {
    Json json = sound_project();
    json["combinations"][0]["actions"] = {{"earth_pressure", 80}};
    return file(name, json.dump());
  }
  std::string folder(const std::string& name) const { return (folder_ / name).string(); }
  static std::vector<std::string> names_in(const fs::path& folder) {
    std::vector<std::string> names;
    for (const auto& entry : fs::recursive_directory_iterator(folder))
      names.push_back(fs::relative(entry.path(), folder).string());
    std::sort(names.begin(), names.end());
    return names;
  }

  TemporaryFolder folder_;
  int status_ = -1;
  std::string out_;
  std::string err_;
};

TEST_F(CommandBatch, TellsEveryProjectInTheOrderOfTheArguments) {
  batch({sound("b.json"), sound("a.json"), "-j", "2"});
  EXPECT_EQ(status_, exit_fine);
  const std::size_t b = out_.find("b.json");
  const std::size_t a = out_.find("a.json");
  ASSERT_NE(b, std::string::npos);
  ASSERT_NE(a, std::string::npos);
  EXPECT_LT(b, a);
  EXPECT_THAT(err_, AllOf(HasSubstr("[1/2] "), HasSubstr("[2/2] ")));
}

TEST_F(CommandBatch, GoesOnPastProjectsThatFail) {
  batch({wrong("w.json"), failing("f.json"), folder("missing.json"), sound("s.json"), "-j", "1"});
  EXPECT_EQ(status_, exit_analysis_failed);
  EXPECT_THAT(out_, AllOf(HasSubstr("wrong file: 2"), HasSubstr("analysis failed: 1")));
  EXPECT_THAT(err_, AllOf(HasSubstr("w.json"), HasSubstr("'C'"), HasSubstr("no such file"),
                          HasSubstr("[4/4] ")));
}

TEST_F(CommandBatch, GivesWhatRunGives) {
  const std::string project = sound("p.json");
  std::ostringstream out;
  std::ostringstream err;
  ASSERT_EQ(run_program({"run", project, "-o", folder("alone"), "--lang", "en"}, out, err),
            exit_fine);
  batch({project, sound("q.json"), "-o", folder("all")});
  ASSERT_EQ(status_, exit_fine) << err_;
  const auto names = names_in(folder_ / "alone");
  EXPECT_FALSE(names.empty());
  for (const char* each : {"p", "q"}) {
    EXPECT_EQ(names_in(folder_ / "all" / each), names);
    for (const std::string& name : names) {
      if (fs::is_directory(folder_ / "alone" / name)) continue;
      EXPECT_EQ(contents_of(folder_ / "all" / each / name), contents_of(folder_ / "alone" / name))
          << name;
    }
  }
}

// "p-2" belongs to the last file, so that the second "p" becomes "p-3"; the third, which only
// differs by a capital, "P-4".
TEST_F(CommandBatch, NamesEachFolderOnce) {
  EXPECT_THAT(folder_names({"a/p.json", "b/p.json", "c/P.json", "p-2.json"}),
              ElementsAre("p", "p-3", "P-4", "p-2"));
  EXPECT_THAT(folder_names({"..", "."}), ElementsAre("project", "project-2"));
}

TEST_F(CommandBatch, WritesNoResultsOverThoseOfTheSameName) {
  Json other = sound_project();
  other["name"] = "the other wall";
  batch({sound("a/p.json"), file("b/p.json", other.dump()), "-o", folder("all")});
  EXPECT_EQ(status_, exit_fine) << err_;
  EXPECT_THAT(contents_of(folder_ / "all" / "p" / "result.json"), Not(HasSubstr("the other wall")));
  EXPECT_THAT(contents_of(folder_ / "all" / "p-2" / "result.json"), HasSubstr("the other wall"));
  EXPECT_THAT(squeezed(out_),
              AllOf(HasSubstr("\na/p.json p not"), HasSubstr("\nb/p.json p-2 not")));
}

TEST_F(CommandBatch, FailsWhereResultsCannotBeWrittenAndGoesOn) {
  file("all/p", "a file in the place of a folder");
  batch({sound("p.json"), sound("q.json"), "-o", folder("all")});
  EXPECT_EQ(status_, exit_analysis_failed);
  EXPECT_THAT(out_, HasSubstr("not written: 1"));
  EXPECT_TRUE(fs::exists(folder_ / "all" / "q" / "result.json"));
}

TEST_F(CommandBatch, RefusesAFolderThatCannotBeMade) {
  file("taken", "");
  batch({sound("p.json"), "-o", folder("taken") + "/all"});
  EXPECT_EQ(status_, exit_bad_input);
  EXPECT_THAT(out_, IsEmpty());
}

TEST_F(CommandBatch, FailsBelowTheLimitOfFactors) {
  const std::string example = std::string(OSTREL_EXAMPLES) + "/cantilever.json";
  batch({example, "--fail-below", "1000000"});
  EXPECT_EQ(status_, exit_analysis_failed);
  EXPECT_THAT(out_, HasSubstr("below the limit: 1"));
}

TEST_F(CommandBatch, TellsItsProgressToPrograms) {
  batch({sound("p.json"), wrong("w.json"), "--progress", "json", "-j", "1"});
  std::istringstream lines(err_);
  std::vector<Json> events;
  for (std::string line; std::getline(lines, line);)
    events.push_back(Json::parse(line));
  ASSERT_EQ(events.size(), 4u);
  EXPECT_EQ(events[0]["event"], "begin");
  EXPECT_EQ(events[0]["total"], 2);
  EXPECT_EQ(events[1]["file"], folder("p.json"));
  EXPECT_EQ(events[1]["failed"], false);
  EXPECT_EQ(events[2]["verdict"], "wrong_file");
  EXPECT_EQ(events[2]["done"], 2);
  EXPECT_EQ(events[3]["event"], "end");
  EXPECT_EQ(events[3]["failed"], 1);
  EXPECT_EQ(events[1]["folder"], "");
}

// The second of one name has a folder that its own does not tell; the last, none.
TEST_F(CommandBatch, TellsProgramsWhichFolderBelongsToWhichProject) {
  batch({sound("a/p.json"), sound("b/p.json"), wrong("c/p.json"), "-o", folder("all"), "--progress",
         "json"});
  std::map<std::string, std::string> folders;
  std::istringstream lines(err_);
  for (std::string line; std::getline(lines, line);) {
    const Json event = Json::parse(line);
    if (event["event"] == "file") folders[event["file"]] = event["folder"];
  }
  EXPECT_THAT(folders, ElementsAre(std::pair(folder("a/p.json"), folder("all/p")),
                                   std::pair(folder("b/p.json"), folder("all/p-2")),
                                   std::pair(folder("c/p.json"), "")));
}

TEST_F(CommandBatch, KeepsQuietAboutItsProgressWhereAsked) {
  batch({sound("p.json"), "--progress", "none"});
  EXPECT_THAT(err_, Not(HasSubstr("[1/1]")));
  EXPECT_THAT(out_, HasSubstr("p.json"));
}

TEST_F(CommandBatch, RefusesANumberOfThreadsThatIsNone) {
  for (const char* threads : {"0", "-1", "x"}) {
    batch({sound("p.json"), "-j", threads});
    EXPECT_EQ(status_, exit_bad_input) << threads;
  }
}

// The program with its output thrown away.
pid_t start(const std::vector<std::string>& arguments) {
  std::vector<char*> words;
  for (const std::string& argument : arguments)
    words.push_back(const_cast<char*>(argument.c_str()));
  words.push_back(nullptr);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  for (const int handle : {STDOUT_FILENO, STDERR_FILENO})
    posix_spawn_file_actions_addopen(&actions, handle, "/dev/null", O_WRONLY, 0);
  pid_t process = -1;
  EXPECT_EQ(posix_spawn(&process, OSTREL_PROGRAM, &actions, nullptr, words.data(), environ), 0);
  posix_spawn_file_actions_destroy(&actions);
  return process;
}

TEST_F(CommandBatch, EndsWhatIsUnderWayWhenInterrupted) {
  constexpr int count = 400;
  std::vector<std::string> arguments{"ostrel", "batch", "-j", "2", "-o", folder("all")};
  for (int i = 0; i < count; ++i)
    arguments.push_back(sound(fmt::format("p{}.json", i)));
  const pid_t process = start(arguments);
  const fs::path last_of_first = folder_ / "all" / "p0" / "summary.csv";
  const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(60);
  while (!fs::exists(last_of_first) && std::chrono::steady_clock::now() < end)
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  ASSERT_TRUE(fs::exists(last_of_first));
  kill(process, SIGINT);
  int ended = 0;
  ASSERT_EQ(waitpid(process, &ended, 0), process);
  ASSERT_TRUE(WIFEXITED(ended));
  EXPECT_EQ(WEXITSTATUS(ended), exit_interrupted);
  const auto names = names_in(folder_ / "all" / "p0");
  int finished = 0;
  for (const auto& each : fs::directory_iterator(folder_ / "all")) {
    EXPECT_EQ(names_in(each.path()), names) << each.path();
    ++finished;
  }
  EXPECT_GE(finished, 1);
  EXPECT_LT(finished, count);
}

}  // namespace
}  // namespace ostrel::host
