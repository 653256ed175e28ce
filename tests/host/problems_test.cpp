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

}  // namespace
}  // namespace ostrel::host
