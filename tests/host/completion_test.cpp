// SPDX-License-Identifier: Apache-2.0
// The scripts for shells and the manual, as the program prints them.
#include "completion.h"

#include "command_line.h"
#include "host_testing.h"

#include <gmock/gmock.h>

#include <set>
#include <sstream>

namespace ostrel::host {
namespace {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::UnorderedElementsAre;

std::string printed(const std::vector<std::string>& arguments) {
  std::ostringstream out;
  std::ostringstream err;
  EXPECT_EQ(run_program(arguments, out, err), exit_fine) << err.str();
  return out.str();
}

std::set<std::string> words_with(const std::string& text, const std::string& prefix) {
  std::istringstream stream(text);
  std::set<std::string> words;
  for (std::string word; stream >> word;) {
    std::istringstream parts(word);  // as "-h,--help"
    for (std::string part; std::getline(parts, part, ',');) {
      if (part.starts_with(prefix)) words.insert(part);
    }
  }
  return words;
}

// The first words of the lines under "Subcommands:".
std::vector<std::string> commands_of_help() {
  std::istringstream lines(printed({"--help", "--lang", "en"}));
  std::vector<std::string> commands;
  bool there = false;
  for (std::string line; std::getline(lines, line);) {
    if (there && line.starts_with("  ") && line[2] != ' ') {
      commands.push_back(line.substr(2, line.find(' ', 2) - 2));
    }
    there = there || line.starts_with("Subcommands:");
  }
  return commands;
}

// What every command and every option is called there.
std::string option_in(const std::string& form, const std::string& option) {
  if (form == "fish") return " -l " + option.substr(2);
  if (form != "manual") return option;
  std::string escaped;
  for (const char letter : option)
    escaped += letter == '-' ? "\\-" : std::string(1, letter);
  return "\\fB" + escaped + "\\fR";
}

TEST(CommandDescriptions, AreThoseOfTheHelpInEveryForm) {
  const std::vector<std::string> commands = commands_of_help();
  ASSERT_THAT(commands, ::testing::IsSupersetOf({"run", "batch", "export", "completion"}));
  for (const char* form : {"bash", "zsh", "fish", "manual"}) {
    const std::string text = std::string(form) == "manual"
                               ? printed({"manual", "--lang", "en"})
                               : printed({"completion", form, "--lang", "en"});
    for (const std::string& command : commands) {
      EXPECT_THAT(text, HasSubstr(command)) << form;
      for (const std::string& option :
           words_with(printed({command, "--help", "--lang", "en"}), "--"))
        EXPECT_THAT(text, HasSubstr(option_in(form, option))) << form << " " << command;
    }
  }
}

class BashCompletion : public ::testing::Test {
protected:
  // What bash would offer for the last of some words.
  std::set<std::string> offered(const std::string& words) {
    folder_.write("completion", printed({"completion", "bash", "--lang", "en"}));
    folder_.write("ask", "set -u\nsource ./completion\nCOMP_WORDS=(" + words
                             + ")\nCOMP_CWORD=$((${#COMP_WORDS[@]} - 1))\n_ostrel\n"
                               "printf '%s\\n' \"${COMPREPLY[@]}\" >reply\n");
    folder_.write("wall of piles.json", "");
    std::filesystem::create_directory(folder_ / "results");
    EXPECT_EQ(std::system(("cd '" + folder_.path().string() + "' && bash ask").c_str()), 0);
    std::istringstream lines(contents_of(folder_ / "reply"));
    std::set<std::string> replies;
    for (std::string line; std::getline(lines, line);) {
      if (!line.empty()) replies.insert(line);
    }
    return replies;
  }

  TemporaryFolder folder_;
};

TEST_F(BashCompletion, OffersCommands) {
  EXPECT_THAT(offered("ostrel ba"), ElementsAre("batch"));
  EXPECT_THAT(offered("ostrel --lang it comp"), ElementsAre("completion"));
}

TEST_F(BashCompletion, OffersTheOptionsOfACommandAndOfTheProgram) {
  EXPECT_THAT(offered("ostrel batch --pr"), UnorderedElementsAre("--presets", "--progress"));
  EXPECT_THAT(offered("ostrel run --la"), ElementsAre("--lang"));
  EXPECT_THAT(offered("ostrel run --prog"), ElementsAre());
}

TEST_F(BashCompletion, OffersChoices) {
  EXPECT_THAT(offered("ostrel run --lang ''"), UnorderedElementsAre("it", "en"));
  EXPECT_THAT(offered("ostrel batch --progress p"), ElementsAre("plain"));
  EXPECT_THAT(offered("ostrel completion z"), ElementsAre("zsh"));
}

TEST_F(BashCompletion, OffersFilesAndFolders) {
  EXPECT_THAT(offered("ostrel run wall"), ElementsAre("wall of piles.json"));
  EXPECT_THAT(offered("ostrel run -o ''"), ElementsAre("results"));
}

TEST(ManualPage, IsReadByRoffWithoutAComplaint) {
  for (const char* language : {"it", "en"}) {
    const TemporaryFolder folder;
    const std::string page = folder.write("page", printed({"manual", "--lang", language})).string();
    const std::string complaints = (folder / "complaints").string();
    const std::string command =
        "groff -man -ww -K utf8 -T utf8 '" + page + "' >/dev/null 2>'" + complaints + "'";
    EXPECT_EQ(std::system(command.c_str()), 0);
    EXPECT_EQ(contents_of(complaints), "");
  }
}

TEST(ManualPage, SpeaksTheLanguageAskedFor) {
  EXPECT_THAT(printed({"manual", "--lang", "it"}),
              AllOf(HasSubstr(".SH NOME\n"), HasSubstr("Calcola un progetto")));
  EXPECT_THAT(printed({"manual", "--lang", "en"}),
              AllOf(HasSubstr(".SH NAME\n"), Not(HasSubstr("Calcola"))));
}

}  // namespace
}  // namespace ostrel::host
