// SPDX-License-Identifier: Apache-2.0
// The parser of the arguments is known by its own English words: another version of it that uses
// others shows here.
#include "parser_words.h"

#include "command_line.h"

#include <gmock/gmock.h>

#include <sstream>
#include <string>
#include <vector>

namespace ostrel::host {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::Not;

struct Slip {
  std::vector<std::string> arguments;
  std::string italian;
  std::string english;
};

const std::vector<Slip> slips{{{}, "Manca il comando", "A subcommand is required"},
                              {{"run"}, "Manca PROJECT.json", "PROJECT.json is required"},
                              {{"report", "p.json"}, "Manca --output", "--output is required"},
                              {{"run", "p.json", "--fail"},
                               "Argomento imprevisto: --fail",
                               "The following argument was not expected: --fail"},
                              {{"run", "p.json", "q.json", "-z"},
                               "Argomenti imprevisti: -z q.json",
                               "The following arguments were not expected: -z q.json"},
                              {{"run", "p.json", "--save"},
                               "--save: manca il valore FILE",
                               "--save: 1 required FILE missing"},
                              {{"run", "p.json", "-o", "a", "-o", "b"},
                               "--output: al massimo 1, non 2",
                               "--output: At Most 1 required but received 2"},
                              {{"batch", "p.json", "-j", "0"},
                               "--jobs: 0 non è un numero da 1 a 1024",
                               "--jobs: Value 0 not in range 1 to 1024"},
                              {{"batch", "p.json", "-j", "two"},
                               "--jobs: two non è un numero da 1 a 1024",
                               "--jobs: Value two not in range 1 to 1024"},
                              {{"new", "p.json", "--template", "dam"},
                               "--template: dam non è uno di {cantilever,anchored,propped,seismic}",
                               "--template: dam not in {cantilever,anchored,propped,seismic}"},
                              {{"run", "p.json", "--fail-below", "1x"},
                               "--fail-below: non si legge il valore 1x",
                               "Could not convert: --fail-below = 1x"},
                              {{"new", "p.json", "--template"},
                               "--template: manca il valore, uno di "
                               "{cantilever,anchored,propped,seismic}",
                               "--template: 1 required :{cantilever,anchored,propped,seismic} "
                               "missing"}};

std::string told(std::vector<std::string> arguments, const char* language) {
  arguments.insert(arguments.begin(), {"--lang", language});
  std::ostringstream out;
  std::ostringstream err;
  EXPECT_EQ(run_program(arguments, out, err), exit_bad_input);
  EXPECT_EQ(out.str(), "");
  return err.str();
}

TEST(ParserWords, TellUsualSlipsInTheLanguageAskedFor) {
  for (const Slip& slip : slips) {
    EXPECT_EQ(told(slip.arguments, "it"), slip.italian + "\nAltre informazioni con --help.\n");
    EXPECT_EQ(told(slip.arguments, "en"),
              slip.english + "\nRun with --help for more information.\n");
  }
}

// Better in English than not at all.
TEST(ParserWords, LeaveWhatTheyDoNotKnow) {
  EXPECT_EQ(refusal_of_arguments("something else", Texts(Language::italian)),
            "something else\nAltre informazioni con --help.\n");
}

TEST(ParserWords, HeadTheHelpInTheLanguageAskedFor) {
  const auto help = [](std::vector<std::string> arguments) {
    std::ostringstream out;
    std::ostringstream err;
    EXPECT_EQ(run_program(arguments, out, err), exit_fine);
    return out.str();
  };
  EXPECT_THAT(help({"--help", "--lang", "it"}),
              AllOf(HasSubstr("Uso: ostrel [OPZIONI] COMANDO\n"), HasSubstr("\nOpzioni:\n"),
                    HasSubstr("\nComandi:\n"), Not(HasSubstr("Subcommands"))));
  EXPECT_THAT(help({"run", "--help", "--lang", "it"}),
              AllOf(HasSubstr("Uso: ostrel run [OPZIONI] PROJECT.json\n"),
                    HasSubstr("\nArgomenti:\n  PROJECT.json TESTO OBBLIGATORIO"),
                    HasSubstr("\nOpzioni:\n")));
  EXPECT_THAT(help({"run", "--help", "--lang", "en"}),
              AllOf(HasSubstr("Usage: ostrel run [OPTIONS] PROJECT.json\n"),
                    HasSubstr("\nPositionals:\n  PROJECT.json TEXT REQUIRED")));
  EXPECT_THAT(help({"--help", "--lang", "en"}),
              AllOf(HasSubstr("\nSubcommands:\n"), HasSubstr("--lang {it,en} ")));
}

}  // namespace
}  // namespace ostrel::host
