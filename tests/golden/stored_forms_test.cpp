// SPDX-License-Identifier: Apache-2.0
// One stream for each persisted class, stored once, goes on reading and writes the same bytes.
#include "support/filling_stream.h"
#include "support/persisted_classes.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

namespace ostrel::testing {
namespace {

namespace fs = std::filesystem;

std::string contents(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

// What an object of the class stores after it was read from the bytes; it must read all of them.
std::string stored_again(const PersistedClass& each, const std::string& bytes) {
  iMemoryInStream stream(bytes);
  instream in(&stream);
  std::string again = each.read_and_store(in);
  EXPECT_EQ(in.tellg(), std::streampos(static_cast<std::streamoff>(bytes.size())));
  return again;
}

// The classes that only stand below others, and cannot be objects.
const std::set<std::string> roots = {"xBaseLoad", "xSoilLoad", "xShpileLoad", "xReinfCrossSection"};

// Every class of a public header that has a name to be stored by.
std::set<std::string> classes_in_headers() {
  const std::regex begin("^class OSTREL_API (\\w+)");
  std::set<std::string> found;
  for (const auto& entry : fs::directory_iterator(OSTREL_HEADERS)) {
    std::ifstream header(entry.path());
    std::smatch match;
    std::string name;
    for (std::string line; std::getline(header, line);) {
      if (std::regex_search(line, match, begin)) name = match[1];
      if (!name.empty() && line.find(" getIOClass() const") != std::string::npos)
        found.insert(name);
    }
  }
  return found;
}

TEST(StoredForms, AreListedForEveryPersistedClass) {
  std::set<std::string> listed = roots;
  for (const PersistedClass& each : persisted_classes())
    EXPECT_TRUE(listed.insert(each.name).second) << each.name << " is there twice";
  EXPECT_EQ(listed, classes_in_headers());
}

class StoredForm : public ::testing::TestWithParam<PersistedClass> {
protected:
  const PersistedClass& form() const { return GetParam(); }
  std::string golden() const { return contents(fs::path(OSTREL_STREAMS) / (form().name + ".bin")); }
};

TEST_P(StoredForm, GoesOnReadingAndWritesTheSameBytes) {
  const std::string bytes = golden();
  ASSERT_FALSE(bytes.empty()) << "no stream: run ostrel_fill_streams";
  // Compared as a truth: a difference of bytes would not be readable.
  EXPECT_TRUE(stored_again(form(), bytes) == bytes);
}

// A class without fields stores its markers and version, 12 bytes, and always the same ones.
TEST_P(StoredForm, HoldsOtherValuesThanThoseOfANewObject) {
  const std::string bytes = golden();
  EXPECT_TRUE(bytes.size() <= 12 || bytes != form().untouched);
}

TEST_P(StoredForm, OfANewObjectIsWrittenAgainAsItIs) {
  EXPECT_TRUE(stored_again(form(), form().untouched) == form().untouched);
}

// The whole stream, cut at 200 places spread over it; at every byte if it is short.
TEST_P(StoredForm, IsRefusedWhenItEndsEarly) {
  const std::string bytes = golden();
  const std::size_t step = std::max<std::size_t>(1, bytes.size() / 200);
  for (std::size_t length = 0; length < bytes.size(); length += step) {
    iMemoryInStream stream(bytes.substr(0, length));
    instream in(&stream);
    EXPECT_THROW(form().read_and_store(in), std::runtime_error) << length;
  }
}

INSTANTIATE_TEST_SUITE_P(PersistedClasses, StoredForm, ::testing::ValuesIn(persisted_classes()),
                         [](const ::testing::TestParamInfo<PersistedClass>& test) {
                           return test.param.name;
                         });

// A record with a list of numbers behind a count, a text, a flag and a nested frame.
TEST(FillingStream, GivesEachFieldAValueAndEachListElements) {
  std::string text;
  bool flag = false;
  double number = 0.0;
  std::vector<double> list;
  read_filled(
      [&](instream& in) {
        list.clear();
        in >> text >> flag >> number;
        const int elements = read_count(in);
        for (int i = 0; i < elements; ++i)
          in >> list.emplace_back();
        xObjectID nested;
        nested.pub_read(in);
        if (nested.name.empty()) throw std::logic_error("nested frame not filled");
      },
      {});
  EXPECT_THAT(text, ::testing::StartsWith("testo"));
  EXPECT_GT(number, 0.0);
  ASSERT_FALSE(list.empty());
  EXPECT_GT(list.front(), number);
}

TEST(FillingStream, TellsWhatItCannotFill) {
  EXPECT_THROW(read_filled([](instream&) { throw std::runtime_error("never enough"); }, {}),
               std::runtime_error);
}

}  // namespace
}  // namespace ostrel::testing
