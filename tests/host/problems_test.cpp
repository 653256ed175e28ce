// SPDX-License-Identifier: Apache-2.0
#include "problems.h"

#include <gmock/gmock.h>

namespace ostrel::host {
namespace {

using ::testing::EndsWith;

TEST(Problems, AreReportedByLineWithRemarksAtTheEnd) {
  Problems problems{Texts(Language::english)};
  problems.remark("a", "odd");
  problems.add("b", "2", "a number");
  problems.add("a", "1", "a text");
  problems.add("", "x", "y");
  EXPECT_EQ(problems.report("f.json", "{\n\"a\": 1,\n\"b\": 2}"),
            "f.json: found x; allowed y\n"
            "f.json:2: a: found 1; allowed a text\n"
            "f.json:3: b: found 2; allowed a number\n"
            "f.json:2: a: warning: odd\n");
}

TEST(Problems, AreToldInItalianToo) {
  Problems problems{Texts(Language::italian)};
  problems.add("a", "1", "un testo");
  EXPECT_EQ(problems.report("f", "{\"a\": 1}"), "f:1: a: trovato 1; ammesso un testo\n");
}

TEST(Problems, AreCountedBeyondTheFirstHundreds) {
  Problems problems{Texts(Language::english)};
  for (int i = 0; i < 700; ++i)
    problems.add("", "x", "y");
  EXPECT_THAT(problems.report("f", ""), EndsWith("... and 200 more errors\n"));
}

TEST(Problems, AreNoneWhereThereAreOnlyRemarks) {
  Problems problems{Texts(Language::english)};
  problems.remark("a", "odd");
  EXPECT_TRUE(problems.empty());
  EXPECT_EQ(problems.remarks().size(), 1u);
}

TEST(Problems, NameWhatStandsForAPathThatTheTextDoesNotHold) {
  Problems problems{Texts(Language::english)};
  problems.rename("combinations[1]", "standard", "standard (ULS)");
  problems.remark("combinations[1].checks", "odd");
  problems.remark("combinations[10].checks", "odd too");
  const std::string text = "{\n\"combinations\": [],\n\"standard\": \"X\"}";
  EXPECT_EQ(problems.report("p.json", text),
            "p.json:2: combinations[10].checks: warning: odd too\n"
            "p.json:3: standard (ULS).checks: warning: odd\n");
  EXPECT_EQ(problems.shown("combinations[1].checks"), "standard (ULS).checks");
}

TEST(Problems, HaveLinesOfTheirOwnWhereTheTextItselfIsWrong) {
  Problems problems{Texts(Language::english)};
  problems.add_at_line(7, "a", "b");
  EXPECT_EQ(problems.report("p.json", "{}"), "p.json:7: found a; allowed b\n");
}

}  // namespace
}  // namespace ostrel::host
