// SPDX-License-Identifier: Apache-2.0
// The scripts for shells and the manual, as the program prints them.
#include "completion.h"

#include "command_line.h"
#include "host_testing.h"

#include <fmt/format.h>
#include <gmock/gmock.h>

#include <ostream>
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

// A shell and how to ask it what it offers for the last word of `$line`; the answers go to "reply". A
// shell that is missing fails the test.
struct Shell {
  const char* name;
  const char* ask;
};

constexpr Shell bash{"bash", R"sh(set -u
source ./completion
eval "COMP_WORDS=($line)"
[[ $line != *' ' ]] || COMP_WORDS+=('')
COMP_CWORD=$((${#COMP_WORDS[@]} - 1))
_ostrel
printf '%s\n' "${COMPREPLY[@]}" >reply
)sh"};

// Types the line and a tab into a shell on a terminal of its own. There the one function that
// receives all matches notes those that fit what was typed.
constexpr Shell zsh{"zsh", R"sh(zmodload zsh/zpty || exit 1
zpty shell zsh -f -i
zpty -w shell 'PS1=; stty -echo; unset zle_bracketed_paste
autoload -Uz compinit && compinit -D -u && source ./completion
compadd() {
  local word found=()
  for word; do
    [[ $word == (-|--) ]] && break
    [[ $word == -[OAD]* ]] && { builtin compadd "$@"; return }
  done
  builtin compadd -A found "$@"
  print -rl -- "${(Q)found[@]}" >>reply
  builtin compadd "$@"
}
ask() { zle complete-word; : >asked }
zle -N ask; bindkey "^I" ask; : >ready'
repeat 400 { [[ -e ready ]] && break; sleep 0.05 }
zpty -w -n shell "$line"$'\t'
repeat 400 { [[ -e asked ]] && break; sleep 0.05 }
zpty -d shell
[[ -e asked ]] && : >>reply
)sh"};

// Each answer is followed by its description; a folder ends with a slash.
constexpr Shell fish{"fish", R"sh(source ./completion
or exit 1
complete -C "$line" >found
string replace -r '/?(\t.*)?$' '' <found >reply
exit 0
)sh"};

void PrintTo(const Shell& shell, std::ostream* out) {
  *out << shell.name;
}

class Completion : public ::testing::TestWithParam<Shell> {
protected:
  // What the shell offers for the last word of a line.
  std::set<std::string> offered(const std::string& line, const std::string& language = "en") {
    const TemporaryFolder folder;
    folder.write("completion", printed({"completion", GetParam().name, "--lang", language}));
    folder.write("ask", GetParam().ask);
    folder.write("wall of piles.json", "");
    std::filesystem::create_directory(folder / "results");
    const std::string command =
        fmt::format("cd '{0}' && env HOME='{0}' line='{1}' {2} ask 2>complaints",
                    folder.path().string(), line, GetParam().name);
    EXPECT_EQ(std::system(command.c_str()), 0) << line;
    EXPECT_EQ(contents_of(folder / "complaints"), "") << line;
    EXPECT_TRUE(std::filesystem::exists(folder / "reply")) << line;
    std::istringstream lines(contents_of(folder / "reply"));
    std::set<std::string> replies;
    for (std::string reply; std::getline(lines, reply);) {
      if (!reply.empty()) replies.insert(reply);
    }
    return replies;
  }
};

INSTANTIATE_TEST_SUITE_P(Shells, Completion, ::testing::Values(bash, zsh, fish),
                         [](const ::testing::TestParamInfo<Shell>& test) {
                           return std::string(test.param.name);
                         });

TEST_P(Completion, OffersCommands) {
  EXPECT_THAT(offered("ostrel ba"), ElementsAre("batch"));
  EXPECT_THAT(offered("ostrel --lang it comp"), ElementsAre("completion"));
  const std::vector<std::string> commands = commands_of_help();
  EXPECT_THAT(offered("ostrel "), ::testing::UnorderedElementsAreArray(commands));
}

TEST_P(Completion, OffersTheOptionsOfACommandAndOfTheProgram) {
  EXPECT_THAT(offered("ostrel batch --pr"), UnorderedElementsAre("--presets", "--progress"));
  EXPECT_THAT(offered("ostrel run --la"), ElementsAre("--lang"));
  EXPECT_THAT(offered("ostrel run --prog"), ElementsAre());
}

TEST_P(Completion, TakesTheFirstWordThatIsNoValueForTheCommand) {
  EXPECT_THAT(offered("ostrel --lang it batch --prog"), ElementsAre("--progress"));
  EXPECT_THAT(offered("ostrel run batch --prog"), ElementsAre());
}

TEST_P(Completion, OffersChoices) {
  EXPECT_THAT(offered("ostrel run --lang "), UnorderedElementsAre("it", "en"));
  EXPECT_THAT(offered("ostrel batch --progress p"), ElementsAre("plain"));
  EXPECT_THAT(offered("ostrel completion z"), ElementsAre("zsh"));
}

TEST_P(Completion, OffersFilesAndFolders) {
  EXPECT_THAT(offered("ostrel run wall"), ElementsAre("wall of piles.json"));
  EXPECT_THAT(offered("ostrel run --report wall"), ElementsAre("wall of piles.json"));
  EXPECT_THAT(offered("ostrel run -o "), ElementsAre("results"));
}

TEST_P(Completion, OffersNothingForANumber) {
  EXPECT_THAT(offered("ostrel batch -j "), ElementsAre());
  EXPECT_THAT(offered("ostrel run --fail-below "), ElementsAre());
}

TEST_P(Completion, SpeaksItalianWithoutAComplaint) {
  EXPECT_THAT(offered("ostrel ba", "it"), ElementsAre("batch"));
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
