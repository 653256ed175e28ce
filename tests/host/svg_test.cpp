// SPDX-License-Identifier: Apache-2.0
#include "svg.h"

#include <gmock/gmock.h>

namespace ostrel::host {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

TEST(Escaped, LeavesNoLetterThatEndsTextOrAttribute) {
  EXPECT_EQ(escaped("a<b>&\"c\"'d'"), "a&lt;b&gt;&amp;&quot;c&quot;&#39;d&#39;");
}

TEST(Escaped, KeepsWholeCharactersAndReplacesBrokenOnes) {
  EXPECT_EQ(escaped("φ′ 10°"), "φ′ 10°");
  EXPECT_EQ(escaped("a\x01\nb"), "a??b");
  EXPECT_EQ(escaped("\xC3"), "?");       // a lead byte without what follows
  EXPECT_EQ(escaped("\xC3<"), "?&lt;");  // and before a letter of its own
  EXPECT_EQ(escaped("\xFF\x80"), "??");
}

TEST(Svg, WritesATextOnceWhereBothLanguagesAgree) {
  Svg svg(100, 50);
  svg.text({1, 2}, same("A & B"), Hold::end, "label");
  const std::string markup = svg.markup(same("t"));
  EXPECT_THAT(markup, HasSubstr("viewBox=\"0 0 100 50\""));
  EXPECT_THAT(markup, HasSubstr("<text class=\"label\" x=\"1.00\" y=\"2.00\" "
                                "text-anchor=\"end\">A &amp; B</text>"));
  EXPECT_THAT(markup, Not(HasSubstr("lang=")));
}

TEST(Svg, WritesATextInEachLanguage) {
  Svg svg(100, 50);
  svg.text({1, 2}, {"scavo", "excavation"}, Hold::start, "label");
  const std::string markup = svg.markup(same("t"));
  EXPECT_THAT(markup, HasSubstr("lang=\"it\""));
  EXPECT_THAT(markup, HasSubstr(">scavo<"));
  EXPECT_THAT(markup, HasSubstr("lang=\"en\""));
  EXPECT_THAT(markup, HasSubstr(">excavation<"));
}

// The arrow from (0, 0) to (10, 0): its head is 7 long and 3 to either side.
TEST(Svg, PutsTheHeadOfAnArrowAtItsEnd) {
  Svg svg(20, 20);
  svg.arrow({0, 0}, {10, 0}, "load");
  EXPECT_THAT(svg.markup(same("t")), HasSubstr("points=\"10.00,0.00 3.00,3.00 3.00,-3.00\""));
}

TEST(Svg, DrawsNoHeadOnAnArrowWithoutLength) {
  Svg svg(20, 20);
  svg.arrow({5, 5}, {5, 5}, "load");
  EXPECT_THAT(svg.markup(same("t")), Not(HasSubstr("polygon")));
}

}  // namespace
}  // namespace ostrel::host
