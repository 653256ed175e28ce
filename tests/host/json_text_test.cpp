// SPDX-License-Identifier: Apache-2.0
#include "json_text.h"

#include "host_testing.h"

#include <gmock/gmock.h>

#include <string>

namespace ostrel::host {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::Pair;
using ::testing::SizeIs;

Problems english() {
  return Problems(Texts(Language::english));
}

std::string repeated(const std::string& text, int count) {
  std::string all;
  for (int i = 0; i < count; ++i)
    all += text;
  return all;
}

TEST(QuotedWords, AreTheBareOnesOnly) {
  EXPECT_EQ(quote_words_for_numbers("[NaN, -Infinity,Infinity]"),
            R"(["NaN", "-Infinity","Infinity"])");
  EXPECT_EQ(quote_words_for_numbers(R"({"NaN": "an Infinity \" NaN", "b\\": NaN})"),
            R"({"NaN": "an Infinity \" NaN", "b\\": "NaN"})");
}

TEST(QuotedWords, AreSafeInATextThatEndsInTheMiddle) {
  EXPECT_EQ(quote_words_for_numbers("\"a\\"), "\"a\\");
  EXPECT_EQ(quote_words_for_numbers("Na"), "Na");
  EXPECT_EQ(quote_words_for_numbers(""), "");
}

TEST(ParsedJson, IsTheTree) {
  Problems problems = english();
  const auto json = parse_json(R"({"a": [1, 2.5, "è"]})", problems);
  ASSERT_TRUE(json.has_value());
  EXPECT_EQ((*json)["a"][2], "è");
  EXPECT_TRUE(problems.empty());
}

TEST(ParsedJson, TellsWhereTheTextBreaks) {
  for (const char* text : {"", "{", "[1,]", "{\"a\" 1}", "nul", "\"\xff\"", "[NaN]", "[1] 2"}) {
    Problems problems = english();
    EXPECT_FALSE(parse_json(text, problems).has_value()) << text;
    ASSERT_THAT(problems.errors(), SizeIs(1)) << text;
    EXPECT_EQ(problems.errors()[0].line, 1u) << text;
  }
}

struct BrokenText {
  const char* text;
  std::size_t line;
  const char* found;
  const char* allowed;
};

TEST(ParsedJson, TellsTheLineWhatStandsThereAndWhatMay) {
  const std::vector<BrokenText> texts{
      {"{\n\"a\": 1,\n}", 3, "}", "the name of a field in double quotes"},
      {"[1,\n2,\n]", 3, "]", "a value"},
      {"{\"a\":\n 'x'}", 2, "'", "valid JSON"},
      {"{\"a\" 1}", 1, "{\"a\" 1", "a colon"},
      {"{\"a\": 1\n\"b\": 2}", 2, "\"b\"", "a comma or }"},
      {"[1\n2]", 2, "2", "a comma or ]"},
      {"{}\n\n{}", 3, "{", "nothing behind"},
      {"{\"a\": [1,\n", 2, "the end of the file", "still open"},
      {"{\"a\":\n\n1e999}", 3, "1e999", "1.8e308"},
      {"{\n\"a\": \"Citt\xe0\"}", 2, "0xE0", "UTF-8"},
      {"{\n\"a\": \xe0}", 2, "0xE0", "UTF-8"},
      {"\xff\xfe{", 1, "0xFF", "UTF-8"},
      {"{\n\"a\": \"b\nc\"}", 2, "b", "valid JSON"},
  };
  for (const BrokenText& broken : texts) {
    Problems problems = english();
    EXPECT_FALSE(parse_json(broken.text, problems).has_value()) << broken.text;
    ASSERT_THAT(problems.errors(), SizeIs(1)) << broken.text;
    const Problem& problem = problems.errors()[0];
    EXPECT_EQ(problem.line, broken.line) << broken.text;
    EXPECT_THAT(problem.found, HasSubstr(broken.found)) << broken.text;
    EXPECT_THAT(problem.allowed, HasSubstr(broken.allowed)) << broken.text;
  }
}

TEST(ParsedJson, IsToldAboutInTheLanguageOfTheProgram) {
  Problems problems{Texts(Language::italian)};
  EXPECT_FALSE(parse_json("{\n\"a\": 1,\n}", problems).has_value());
  EXPECT_THAT(problems.report("p.json", ""),
              HasSubstr("p.json:3: trovato }; ammesso JSON valido: il nome di un campo"));
}

// 0xE0 is "à" in Latin-1, and begins a character of three bytes in UTF-8.
TEST(ParsedJson, SendsNoBytesToTheTerminalThatItCannotShow) {
  for (const char* text : {"\"\xe0\"", "[\xe0]", "{\"a\": x\xe0}"}) {
    Problems problems = english();
    EXPECT_FALSE(parse_json(text, problems).has_value());
    EXPECT_THAT(problems.report("p.json", text), Not(HasSubstr("\xe0")));
  }
}

TEST(ParsedJson, NestsToItsLimitAndNotBeyond) {
  Problems deep = english();
  EXPECT_TRUE(
      parse_json(repeated("[", max_json_depth) + repeated("]", max_json_depth), deep).has_value());
  Problems deeper = english();
  EXPECT_FALSE(
      parse_json(repeated("[", max_json_depth + 1) + repeated("]", max_json_depth + 1), deeper)
          .has_value());
  ASSERT_THAT(deeper.errors(), SizeIs(1));
  EXPECT_EQ(deeper.errors()[0].allowed, "not above 64");
}

TEST(ParsedJson, StandsAMillionBrackets) {
  Problems problems = english();
  EXPECT_FALSE(parse_json(std::string(1'000'000, '['), problems).has_value());
  EXPECT_FALSE(parse_json(repeated("{\"a\":", 200'000), problems).has_value());
  EXPECT_NE(problems.report("f", std::string(1'000'000, '[')), "");
}

TEST(ParsedJson, RefusesAFieldThatStandsTwice) {
  Problems problems = english();
  EXPECT_FALSE(parse_json(R"({"a": {"b": 1, "c": 2, "b": 3}, "b": 1})", problems).has_value());
  ASSERT_THAT(problems.errors(), SizeIs(1));
  EXPECT_EQ(problems.errors()[0].path, "a.b");
}

TEST(Lines, AreThoseWhereTheValuesBegin) {
  const std::string text = "{\n  \"a\": [\n    1,\n    2\n  ],\n  \"b\": {\"c\":\n 3}\n}\n";
  EXPECT_THAT(find_lines(text, {"a", "a[0]", "a[1]", "b.c"}),
              ElementsAre(Pair("a", 2u), Pair("a[0]", 3u), Pair("a[1]", 4u), Pair("b.c", 7u)));
}

TEST(Lines, OfWhatIsNotThereAreThoseAroundIt) {
  const std::string text = "{\n  \"a\": {\n    \"b\": 1\n  }\n}\n";
  EXPECT_THAT(find_lines(text, {"a.c", "x"}), ElementsAre(Pair("a.c", 2u), Pair("x", 1u)));
}

TEST(ReadFile, GivesTheBytes) {
  const TemporaryFolder folder;
  const auto file = folder.write("f", std::string("a\0b", 3));
  Problems problems = english();
  EXPECT_EQ(read_file(file.string(), problems), std::string("a\0b", 3));
}

TEST(ReadFile, TellsWhatCannotBeRead) {
  const TemporaryFolder folder;
  Problems none = english();
  EXPECT_FALSE(read_file((folder / "none").string(), none).has_value());
  EXPECT_THAT(none.errors()[0].found, HasSubstr("no such file"));
  Problems directory = english();
  EXPECT_FALSE(read_file(folder.path().string(), directory).has_value());
  EXPECT_THAT(directory.errors()[0].found, HasSubstr("it is a folder"));
}

TEST(ReadFile, RefusesWhatIsTooLarge) {
  const TemporaryFolder folder;
  const auto file = folder.write("f", "");
  std::filesystem::resize_file(file, max_file_bytes + 1);
  Problems problems = english();
  EXPECT_FALSE(read_file(file.string(), problems).has_value());
  EXPECT_EQ(problems.errors()[0].allowed, "at most 32 MB");
}

TEST(ReadFile, EndsOnAFileWithoutEnd) {
  Problems problems = english();
  EXPECT_FALSE(read_file("/dev/zero", problems).has_value());
}

}  // namespace
}  // namespace ostrel::host
