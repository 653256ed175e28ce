// SPDX-License-Identifier: Apache-2.0
#include "search_size.h"

#include "host_testing.h"

#include <gmock/gmock.h>

namespace ostrel::host {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using Json = nlohmann::json;

// Piles of 10 m in 70 m of sand, so many combinations search circles of 16 m to 17 m around (0, 5).
Json searching(double stripe_width, double radius_step, std::size_t combinations = 1) {
  const Json centre = {{"x_m", 0}, {"y_m", 5}, {"least_radius_m", 16}, {"largest_radius_m", 17}};
  Json project = with("/slope", {{"stripe_width_m", stripe_width},
                                 {"radius_step_m", radius_step},
                                 {"centres", Json::array({centre})}});
  Json combination = project["combinations"][0];
  combination["checks"] = Json::array({"global_stability"});
  combination["resistance_factors"] = {{"global_stability", 1.1}};
  project["combinations"] = Json::array();
  for (std::size_t i = 0; i < combinations; ++i) {
    combination["name"] = "C" + std::to_string(i);
    project["combinations"].push_back(combination);
  }
  return project;
}

void expect_refusal(const Json& project, const std::string& path, const std::string& message) {
  const ReadingOutcome outcome = read(project);
  ASSERT_THAT(outcome.errors, SizeIs(1));
  EXPECT_EQ(outcome.errors[0].path, path);
  EXPECT_THAT(outcome.errors[0].allowed, HasSubstr(message));
}

// 70 m in stripes of 0.75 m: 93.3 + 1 are 94. From 16 m to 17 m by 0.3 m: 3.3 + 1 are 4 circles.
TEST(SearchSize, CountsStripesAndCirclesAsTheSearchDoes) {
  Project project;
  project.ground.layers.resize(1);
  project.ground.by_levels = true;
  project.ground.excavated_width_m = 30.0;
  project.ground.retained_width_m = 40.0;
  EXPECT_DOUBLE_EQ(number_of_stripes(project), 0.0);
  project.slope = SlopeInput{.stripe_width_m = 0.75, .radius_step_m = 0.3, .centres = {}};
  EXPECT_DOUBLE_EQ(number_of_stripes(project), 94.0);
  EXPECT_DOUBLE_EQ(number_of_circles(*project.slope), 0.0);
  project.slope->centres = {{.least_radius_m = 16.0, .largest_radius_m = 17.0},
                            {.least_radius_m = 9.0, .largest_radius_m = 9.0}};
  EXPECT_DOUBLE_EQ(number_of_circles(*project.slope), 5.0);
}

// 70 m / 0.007 m + 1 are 10 001 stripes.
TEST(SearchSize, StopsAtTenThousandStripes) {
  EXPECT_THAT(read(searching(0.00701, 0.5)).errors, IsEmpty());
  expect_refusal(searching(0.00699, 0.5), "slope.stripe_width_m", "10000");
}

// 70 m / 0.02 m + 1 are 3501 stripes, 1 m / 4e-6 m + 1 are 250 001 circles: 8.75e8 slices in one
// combination, 1.75e9 in two.
TEST(SearchSize, StopsAtAThousandMillionSlices) {
  EXPECT_THAT(read(searching(0.02, 4e-6)).errors, IsEmpty());
  expect_refusal(searching(0.02, 4e-6, 2), "slope", "1000000000");
}

TEST(SearchSize, DoesNotMatterWhereNothingIsSearched) {
  EXPECT_THAT(read(with("/slope", {{"stripe_width_m", 1e-6}})).errors, IsEmpty());
}

}  // namespace
}  // namespace ostrel::host
