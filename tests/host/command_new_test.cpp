// SPDX-License-Identifier: Apache-2.0
#include "command_new.h"

#include "command_line.h"
#include "host_testing.h"

#include <gmock/gmock.h>

#include <sstream>

namespace ostrel::host {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class CommandNew : public ::testing::Test {
protected:
  int call(std::vector<std::string> arguments) {
    out_.str({});
    err_.str({});
    arguments.insert(arguments.end(), {"--lang", "en"});
    return run_program(arguments, out_, err_);
  }

  TemporaryFolder folder_;
  std::string file_ = (folder_ / "wall.json").string();
  std::ostringstream out_;
  std::ostringstream err_;
};

TEST_F(CommandNew, WritesSoundProjects) {
  for (const std::string& name : template_names()) {
    const std::string file = (folder_ / (name + ".json")).string();
    EXPECT_EQ(call({"new", file, "--template", name}), exit_fine);
    EXPECT_THAT(out_.str(), HasSubstr(file));
    EXPECT_EQ(call({"check", file}), exit_fine);
    EXPECT_THAT(lines_without(err_.str(), "Before you sign"), IsEmpty()) << name;
    EXPECT_THAT(contents_of(file), HasSubstr("\"comment\""));
  }
  EXPECT_THAT(folder_.names(), SizeIs(template_names().size()));
}

TEST_F(CommandNew, NeverOverwritesUnlessForced) {
  folder_.write("wall.json", "mine");
  EXPECT_EQ(call({"new", file_, "--template", "anchored"}), exit_bad_input);
  EXPECT_THAT(err_.str(), HasSubstr("--force"));
  EXPECT_EQ(contents_of(file_), "mine");
  EXPECT_EQ(call({"new", file_, "--template", "anchored", "--force"}), exit_fine);
  EXPECT_NE(contents_of(file_), "mine");
}

TEST_F(CommandNew, WantsATemplateThatThereIs) {
  EXPECT_EQ(call({"new", file_, "--template", "dam"}), exit_bad_input);
  EXPECT_EQ(call({"new", file_}), exit_bad_input);
  EXPECT_FALSE(std::filesystem::exists(file_));
}

TEST_F(CommandNew, TellsThatItCannotWrite) {
  EXPECT_EQ(call({"new", (folder_ / "no/such/wall.json").string(), "--template", "anchored"}),
            exit_bad_input);
  EXPECT_THAT(err_.str(), HasSubstr("cannot be written"));
}

}  // namespace
}  // namespace ostrel::host
