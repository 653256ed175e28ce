// SPDX-License-Identifier: Apache-2.0
#include "project_loading.h"

#include "command_line.h"
#include "host_testing.h"
#include "project_conversion.h"
#include "run_data.h"
#include "tables_json.h"
#include "texts_testing.h"

#include <gmock/gmock.h>

#include <sstream>

namespace ostrel::host {
namespace {

using ::testing::AllOf;
using ::testing::Contains;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using ::testing::StartsWith;

// A friction angle of 55° is possible, but odd.
constexpr const char* odd_field = "/soils/0/friction_angle_deg";

class Loading : public ::testing::Test {
protected:
  Project loaded(const nlohmann::json& json, Language language) {
    const std::string file = folder_.write("p.json", json.dump(1)).string();
    std::ostringstream err;
    return load_project({file, ""}, Texts(language), err).project.value_or(Project{});
  }

  TemporaryFolder folder_;
};

TEST_F(Loading, KeepsWhatLooksOddInBothLanguages) {
  for (const Language language : {Language::italian, Language::english}) {
    const Project project = loaded(with(odd_field, 55), language);
    ASSERT_THAT(project.odd_places, SizeIs(1));
    EXPECT_EQ(project.odd_places[0].path, "soils[0].friction_angle_deg");
    EXPECT_NE(project.odd_places[0].italian, project.odd_places[0].english);
    EXPECT_THAT(
        remarks_on(project, Texts(Language::italian)),
        Contains("Attenzione: soils[0].friction_angle_deg: " + project.odd_places[0].italian));
    EXPECT_THAT(remarks_on(project, Texts(Language::english)),
                Contains("Warning: soils[0].friction_angle_deg: " + project.odd_places[0].english));
  }
}

TEST_F(Loading, FindsNothingOddInASoundProject) {
  EXPECT_THAT(loaded(sound_project(), Language::english).odd_places, IsEmpty());
}

// Who checks the results sees what the engineer was warned of.
TEST_F(Loading, TakesRemarksIntoTheTablesAndTheSavedResults) {
  const Project project = loaded(with(odd_field, 55), Language::english);
  const Job job = to_job(project);
  const TablesHead head = head_of(project, job, analyse(job), english);
  EXPECT_THAT(head.messages, Contains(StartsWith("Warning: soils[0].friction_angle_deg")));
  const std::string saved = (folder_.path() / "saved").string();
  std::ostringstream out;
  std::ostringstream err;
  const std::string file = (folder_.path() / "p.json").string();
  ASSERT_EQ(run_program({"run", file, "--save", saved, "--lang", "en"}, out, err), exit_fine);
  err.str({});
  ASSERT_EQ(run_program({"show", saved, "--lang", "en"}, out, err), exit_fine);
  EXPECT_THAT(err.str(), HasSubstr("Warning: soils[0].friction_angle_deg"));
}

}  // namespace
}  // namespace ostrel::host
