// SPDX-License-Identifier: Apache-2.0
#include "field_reader.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>
#include <string>

namespace ostrel::host {
namespace {

using ::testing::IsEmpty;
using ::testing::SizeIs;
using Json = nlohmann::json;

class FieldReader : public ::testing::Test {
protected:
  ValueReader value(const Json& json) {
    json_ = json;
    return {json_, "here", problems_, rules_};
  }
  std::string first_error() const {
    if (problems_.errors().empty()) return "";
    const Problem& problem = problems_.errors().front();
    return problem.path + ": " + problem.found + " | " + problem.allowed;
  }

  Json json_;
  ReadingRules rules_;
  Problems problems_{Texts(Language::english)};
};

TEST_F(FieldReader, TakesANumberWithinItsRange) {
  EXPECT_EQ(value(2.5).number(Range::between(0.0, 2.5)), 2.5);
  EXPECT_EQ(value(3).number(Range::above(2.0)), 3.0);
  EXPECT_THAT(problems_.errors(), IsEmpty());
}

TEST_F(FieldReader, TellsRangeAndValueOfAWrongNumber) {
  EXPECT_TRUE(std::isnan(value(95).number(Range::from_below(0.0, 90.0))));
  EXPECT_EQ(first_error(), "here: 95 | a number not below 0 and below 90");
}

TEST_F(FieldReader, TellsTheEndsOfARange) {
  EXPECT_TRUE(std::isnan(value(0).number(Range::above(0.0))));
  EXPECT_EQ(first_error(), "here: 0 | a number above 0");
}

TEST_F(FieldReader, RefusesATextForANumber) {
  EXPECT_TRUE(std::isnan(value("0.8").number()));
  EXPECT_EQ(first_error(), "here: \"0.8\" | a number");
}

TEST_F(FieldReader, RefusesNullAndWordsForNumbersUnlessTheRulesTakeThem) {
  EXPECT_TRUE(std::isnan(value(nullptr).number()));
  EXPECT_TRUE(std::isnan(value("NaN").number()));
  EXPECT_THAT(problems_.errors(), SizeIs(2));
  rules_.any_number = true;
  EXPECT_TRUE(std::isnan(value(nullptr).number()));
  EXPECT_TRUE(std::isnan(value("NaN").number()));
  EXPECT_EQ(value("Infinity").number(), std::numeric_limits<double>::infinity());
  EXPECT_EQ(value("-Infinity").number(), -std::numeric_limits<double>::infinity());
  EXPECT_EQ(value(-1).number(Range::above(0.0)), -1.0);
  EXPECT_THAT(problems_.errors(), SizeIs(2));
}

TEST_F(FieldReader, TakesWholeNumbersOnly) {
  EXPECT_EQ(value(3.0).integer(), 3);
  EXPECT_EQ(value(3.5).integer(), 0);
  EXPECT_EQ(value(3e9).integer(), 0);
  EXPECT_EQ(value(11).integer(1, 10), 0);
  EXPECT_EQ(value(1e300).integer(), 0);
  EXPECT_THAT(problems_.errors(), SizeIs(4));
}

TEST_F(FieldReader, TellsTheOnlyWholeNumberThatMayStandThere) {
  EXPECT_EQ(value(2).integer(1, 1), 0);
  EXPECT_EQ(first_error(), "here: 2 | 1");
}

TEST_F(FieldReader, TellsTheChoices) {
  EXPECT_EQ(value("b").choice({"a", "b"}), 1u);
  EXPECT_EQ(value("c").choice({"a", "b"}), 0u);
  EXPECT_EQ(first_error(), "here: \"c\" | one of: \"a\", \"b\"");
}

TEST_F(FieldReader, RefusesListsOfAnotherLength) {
  EXPECT_THAT(value({1, 2}).items(2), SizeIs(2));
  EXPECT_THAT(value({1, 2, 3}).items(2), IsEmpty());
  EXPECT_EQ(first_error(), "here: a list of 3 | a list of 2");
}

TEST_F(FieldReader, CountsTheEntriesOfAList) {
  const auto entries = value({1, {2}}).items();
  ASSERT_THAT(entries, SizeIs(2));
  EXPECT_EQ(entries[1].path(), "here[1]");
}

TEST_F(FieldReader, CutsALongTextBetweenItsCharacters) {
  std::string text;
  for (int i = 0; i < 100; ++i)
    text += "è";
  value(text).refuse("x");
  // The quotation mark, 58 characters and the mark of the cut: 60 columns.
  std::string shown = "\"";
  for (int i = 0; i < 58; ++i)
    shown += "è";
  EXPECT_EQ(problems_.errors()[0].found, shown + "…");
}

TEST_F(FieldReader, TellsAMissingField) {
  { EXPECT_TRUE(std::isnan(value(Json::object()).object().number("a"))); }
  EXPECT_EQ(first_error(), "here.a: nothing | this field, which is required");
}

TEST_F(FieldReader, MissesNothingInWhatIsNoObject) {
  { EXPECT_TRUE(std::isnan(value(3).object().number("a"))); }
  EXPECT_THAT(problems_.errors(), SizeIs(1));
  EXPECT_EQ(first_error(), "here: 3 | an object {...}");
}

TEST_F(FieldReader, TellsAnUnknownFieldAndWhatMayHaveBeenMeant) {
  {
    ObjectReader fields = value({{"lenght_m", 3}}).object();
    fields.number_or("length_m", 1.0);
    fields.number_or("width_m", 1.0);
  }
  EXPECT_EQ(first_error(), "here.lenght_m: an unknown field | perhaps length_m");
}

TEST_F(FieldReader, DoesNotTakeAFieldForOneThatIsThere) {
  {
    ObjectReader fields = value({{"value_kN", 3}, {"value_kPa", 3}}).object();
    fields.number_or("value_kPa", 1.0);
    fields.number_or("width_m", 1.0);
  }
  EXPECT_EQ(first_error(), "here.value_kN: an unknown field | one of: value_kPa, width_m");
}

TEST_F(FieldReader, TellsWhichFieldsThereAreWhereNoneIsNear) {
  {
    ObjectReader fields = value({{"q", 3}}).object();
    fields.number_or("length_m", 1.0);
    fields.number_or("width_m", 1.0);
  }
  EXPECT_EQ(first_error(), "here.q: an unknown field | one of: length_m, width_m");
}

TEST_F(FieldReader, RemarksUponAnUnknownFieldWhereTheRulesTolerateIt) {
  rules_.tolerate_unknown = true;
  { ObjectReader fields = value({{"q", 3}}).object(); }
  EXPECT_THAT(problems_.errors(), IsEmpty());
  ASSERT_THAT(problems_.remarks(), SizeIs(1));
  EXPECT_EQ(problems_.remarks()[0].path, "here.q");
}

TEST_F(FieldReader, TakesCommentsWhereTheRulesSaySo) {
  rules_.comments = true;
  { ObjectReader fields = value({{"comment", "why"}}).object(); }
  { ObjectReader fields = value({{"comment", {"why", "not"}}}).object(); }
  EXPECT_THAT(problems_.errors(), IsEmpty());
  { ObjectReader fields = value({{"comment", 3}}).object(); }
  EXPECT_THAT(problems_.errors(), SizeIs(1));
}

TEST_F(FieldReader, LetsANullFieldBeAbsentWhereAsked) {
  ObjectReader fields = value({{"a", nullptr}}).object();
  EXPECT_FALSE(fields.unless_null("a").has_value());
  EXPECT_TRUE(fields.optional("a").has_value());
}

}  // namespace
}  // namespace ostrel::host
