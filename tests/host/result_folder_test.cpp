// SPDX-License-Identifier: Apache-2.0
#include "result_folder.h"

#include "host_testing.h"
#include "project_conversion.h"
#include "texts_testing.h"

#include <gmock/gmock.h>

namespace ostrel::host {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class Folder : public ::testing::Test {
protected:
  WrittenFolder write(const nlohmann::json& json) {
    const Project project = project_of(json);
    const Job job = to_job(project);
    return write_results(results_, project, job, analyse(job), Language::english);
  }

  TemporaryFolder folder_;
  std::string results_ = (folder_.path() / "results").string();
};

TEST_F(Folder, HoldsNothingButTheRunAfterTheSameRun) {
  EXPECT_THAT(write(sound_project()).strangers, IsEmpty());
  const WrittenFolder again = write(sound_project());
  EXPECT_FALSE(again.failure);
  EXPECT_THAT(again.strangers, IsEmpty());
  EXPECT_THAT(strangers_warning(results_, again.strangers, english), IsEmpty());
}

// The run before had a combination of another name. Its tables stay, and so does what is no table.
TEST_F(Folder, NamesWhatAnotherRunLeft) {
  write(with("/combinations/0/name", "Other"));
  folder_.write("results/wall.json", "{}");
  const WrittenFolder written = write(sound_project());
  EXPECT_THAT(written.strangers,
              ElementsAre("01-Other-pressures.csv", "01-Other-springs.csv", "01-Other-wall.csv"));
  EXPECT_THAT(strangers_warning(results_, written.strangers, english),
              HasSubstr("3 other files of tables or figures, which are not of this run "
                        "(01-Other-pressures.csv"));
  EXPECT_EQ(contents_of(folder_.path() / "results/wall.json"), "{}");
}

TEST_F(Folder, TellsWhichFileCannotBeWritten) {
  std::filesystem::create_directories(folder_ / "results/result.json/in_its_place");
  const WrittenFolder written = write(sound_project());
  ASSERT_TRUE(written.failure);
  EXPECT_THAT(written.failure->file, HasSubstr("result.json"));
}

}  // namespace
}  // namespace ostrel::host
