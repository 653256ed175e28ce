// SPDX-License-Identifier: Apache-2.0
// Wrong projects, one file each: the program ends with status 2 and tells the field.
#include "command_line.h"
#include "host_testing.h"

#include <gmock/gmock.h>

#include <cctype>
#include <sstream>

namespace ostrel::host {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;

const std::string folder = OSTREL_BAD_PROJECTS;

struct BadProject {
  std::string file;
  std::string told;  // a part of the messages; "-" where only the file can be named
};

void PrintTo(const BadProject& project, std::ostream* out) {
  *out << project.file;
}

std::vector<BadProject> bad_projects() {
  std::istringstream lines(contents_of(folder + "/expected.txt"));
  std::vector<BadProject> projects;
  std::string line;
  while (std::getline(lines, line)) {
    const std::size_t space = line.find(' ');
    projects.push_back({line.substr(0, space), line.substr(space + 1)});
  }
  return projects;
}

class BadProjectTest : public ::testing::TestWithParam<BadProject> {};

TEST_P(BadProjectTest, EndsWith2AndTellsTheField) {
  std::ostringstream out;
  std::ostringstream err;
  const std::string file = folder + "/" + GetParam().file;
  EXPECT_EQ(run_program({"run", file, "--lang", "en"}, out, err), exit_bad_input);
  EXPECT_THAT(out.str(), IsEmpty());
  EXPECT_THAT(err.str(), HasSubstr(GetParam().told == "-" ? file : GetParam().told));
  EXPECT_THAT(err.str(), HasSubstr("allowed"));
}

std::string name_of(const ::testing::TestParamInfo<BadProject>& info) {
  std::string name;
  bool capital = true;
  for (const char c : info.param.file.substr(0, info.param.file.find('.'))) {
    if (c != '_') name += capital ? static_cast<char>(std::toupper(c)) : c;
    capital = c == '_';
  }
  return name;
}

INSTANTIATE_TEST_SUITE_P(All, BadProjectTest, ::testing::ValuesIn(bad_projects()), name_of);

TEST(BadProjects, AreAllNamedWithTheirFields) {
  std::size_t files = 0;
  for (const auto& entry : std::filesystem::directory_iterator(folder))
    files += entry.path().extension() == ".json" ? 1 : 0;
  EXPECT_EQ(files, bad_projects().size());
  EXPECT_GE(files, 60u);
}

}  // namespace
}  // namespace ostrel::host
