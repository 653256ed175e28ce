// SPDX-License-Identifier: Apache-2.0
#include "circle_border.h"

#include "command_line.h"
#include "host_testing.h"
#include "project_conversion.h"
#include "report_page.h"
#include "texts_testing.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>
#include <ostream>
#include <sstream>

namespace ostrel::host {

void PrintTo(const CircleBorder& border, std::ostream* out) {
  *out << static_cast<int>(border.side) << " " << border.field << " " << border.reached_m;
}

namespace {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using Json = nlohmann::json;

// Piles of 10 m, excavation 4 m, level ground 30 m in front, 40 m behind and down to -30 m.
Project searching(const Json& slope) {
  return project_of(with("/slope", slope));
}

// Centres at x = -2, 0, 2 and y = 3, 5, 7.
Json box(const Json& circles, double step = 0.5) {
  Json box = {{"x_m", {-2.0, 2.0}}, {"y_m", {3.0, 7.0}}, {"spacing_m", 2.0}};
  box.update(circles);
  return {{"stripe_width_m", 1.0}, {"radius_step_m", step}, {"centre_box", box}};
}

Json radii(double from, double to) {
  return box({{"radii_m", {from, to}}});
}

// Whether a border has this side and field, and reaches this.
auto is(CircleSide side, const std::string& field, double reached) {
  return AllOf(::testing::Field(&CircleBorder::side, side),
               ::testing::Field(&CircleBorder::field, field),
               ::testing::Field(&CircleBorder::reached_m, ::testing::DoubleNear(reached, 1e-6)));
}

TEST(CircleBorder, IsNoneWithinTheSearch) {
  EXPECT_THAT(borders_of(searching(radii(14, 20)), 0, 5, 16.0), IsEmpty());
}

TEST(CircleBorder, IsTheFirstOrLastColumnAndTheLowestOrHighestRow) {
  const Project project = searching(radii(14, 20));
  const std::string x = "slope.centre_box.x_m";
  const std::string y = "slope.centre_box.y_m";
  EXPECT_THAT(borders_of(project, -2, 5, 16), ElementsAre(is(CircleSide::left, x, -2)));
  EXPECT_THAT(borders_of(project, 2, 5, 16), ElementsAre(is(CircleSide::right, x, 2)));
  EXPECT_THAT(borders_of(project, 0, 3, 16), ElementsAre(is(CircleSide::low, y, 3)));
  EXPECT_THAT(borders_of(project, 2, 7, 16),
              ElementsAre(is(CircleSide::right, x, 2), is(CircleSide::high, y, 7)));
}

// With 0.9 m to the level of the head and centres every 2 m no further row fits; with 1.1 m one does.
TEST(CircleBorder, IsNotTheLowestRowJustAboveTheHead) {
  Json slope = radii(14, 20);
  slope["centre_box"]["y_m"] = {0.9, 4.9};
  EXPECT_THAT(borders_of(searching(slope), 0, 0.9, 16), IsEmpty());
  slope["centre_box"]["y_m"] = {1.1, 5.1};
  EXPECT_THAT(borders_of(searching(slope), 0, 1.1, 16),
              ElementsAre(is(CircleSide::low, "slope.centre_box.y_m", 1.1)));
}

Json rising_ground() {
  Json project = sound_project();
  project["ground"] = {
      {"layers",
       {{{"soil", "sand"},
         {"polygons_m",
          {{{-30, -30}, {60, -30}, {60, 3}, {10, 3}, {0, 0}, {0, -4}, {-30, -4}}}}}}}};
  return project;
}

// The ground behind rises by 0.3, to 3 m. Half a spacing below (0, 3) is (0, 2), where the ground is
// above the centre from 2 / 0.3 = 6.67 m on: a circle of 15 m comes up beyond it.
TEST(CircleBorder, IsNotTheLowestRowWhereALowerCircleWouldMeetTheGroundAboveItsCentre) {
  Json project = rising_ground();
  project["slope"] = radii(14, 20);
  EXPECT_THAT(borders_of(project_of(project), 0, 3, 16), IsEmpty());
  project["slope"]["centre_box"]["y_m"] = {5, 9};  // 4 m is above all ground
  EXPECT_THAT(borders_of(project_of(project), 0, 5, 16),
              ElementsAre(is(CircleSide::low, "slope.centre_box.y_m", 5)));
}

// From (0, 5) it is 15 m to the foot, so that 15.25 m are half a step of radii beyond it.
TEST(CircleBorder, IsTheSmallestRadiusOnlyWhereItPassesBelowTheFoot) {
  const std::string field = "slope.centre_box.radii_m";
  EXPECT_THAT(borders_of(searching(radii(14, 20)), 0, 5, 14), IsEmpty());
  EXPECT_THAT(borders_of(searching(radii(15, 20)), 0, 5, 15), IsEmpty());
  EXPECT_THAT(borders_of(searching(radii(15.2, 20)), 0, 5, 15.2), IsEmpty());
  EXPECT_THAT(borders_of(searching(radii(15.3, 20)), 0, 5, 15.3),
              ElementsAre(is(CircleSide::smallest, field, 15.3)));
}

// 6 m in steps of 0.5 m are 13 radii, the last of them 20 - 6 / 13; the one before is within.
TEST(CircleBorder, IsTheLargestRadiusThatIsTried) {
  const Project project = searching(radii(14, 20));
  EXPECT_THAT(borders_of(project, 0, 5, 20.0 - 6.0 / 13.0),
              ElementsAre(is(CircleSide::largest, "slope.centre_box.radii_m", 20)));
  EXPECT_THAT(borders_of(project, 0, 5, 20.0 - 12.0 / 13.0), IsEmpty());
}

// Around (0, 5): radii of 19 m to 25 m touch -14 m to -20 m, and pass 4 m to 10 m below the foot.
TEST(CircleBorder, NamesTheFieldThatNamesTheCircles) {
  const Project tangents = searching(box({{"tangent_levels_m", {-20.0, -14.0}}}));
  const std::string levels = "slope.centre_box.tangent_levels_m";
  EXPECT_THAT(borders_of(tangents, 0, 5, 19), ElementsAre(is(CircleSide::smallest, levels, -14)));
  EXPECT_THAT(borders_of(tangents, 0, 5, 25.0 - 6.0 / 13.0),
              ElementsAre(is(CircleSide::largest, levels, -20)));
  const Project depths = searching(box({{"depths_below_foot_m", {4.0, 10.0}}}));
  const std::string below = "slope.centre_box.depths_below_foot_m";
  EXPECT_THAT(borders_of(depths, 0, 5, 19), ElementsAre(is(CircleSide::smallest, below, 4)));
  EXPECT_THAT(borders_of(depths, 0, 5, 25.0 - 6.0 / 13.0),
              ElementsAre(is(CircleSide::largest, below, 10)));
}

// The first centre of a list stands apart from the others' rows and columns. 19 m to 21 m in steps
// of 1 m are three radii.
TEST(CircleBorder, OfAListIsThatOfAllItsCentres) {
  const auto centre = [](double x, double y) {
    return Json{{"x_m", x}, {"y_m", y}, {"least_radius_m", 19}, {"largest_radius_m", 21}};
  };
  const Project project =
      searching({{"radius_step_m", 1.0},
                 {"centres", {centre(0.5, 5), centre(-2, 7), centre(2, 8), centre(1, 3)}}});
  EXPECT_THAT(borders_of(project, 0.5, 5, 19.0 + 2.0 / 3.0), IsEmpty());
  EXPECT_THAT(borders_of(project, -2, 7, 19),
              ElementsAre(is(CircleSide::left, "slope.centres[].x_m", -2),
                          is(CircleSide::smallest, "slope.centres[].least_radius_m", 19)));
  EXPECT_THAT(borders_of(project, 2, 8, 21.0 - 2.0 / 3.0),
              ElementsAre(is(CircleSide::right, "slope.centres[].x_m", 2),
                          is(CircleSide::high, "slope.centres[].y_m", 8),
                          is(CircleSide::largest, "slope.centres[].largest_radius_m", 21)));
}

TEST(CircleBorder, IsOnAllSidesOfTheOnlyCircle) {
  const Project project = searching(
      {{"centres", {{{"x_m", 0}, {"y_m", 5}, {"least_radius_m", 16}, {"largest_radius_m", 16}}}}});
  EXPECT_EQ(borders_of(project, 0, 5, 16).size(), 6u);
}

// From (0, 5) it is hypot(30, 9) = 31.32 m to the end of the excavation at -4 m and 35 m down, or 29 m
// where the ground ends at -24 m. These circles reach 45 m: 28 m in steps of 1 m are 29 radii.
TEST(CircleBorder, NamesTheGroundWhereItEndsFirst) {
  Json json = with("/slope", box({{"depths_below_foot_m", {2.0, 30.0}}}, 1.0));
  const double last = 45.0 - 28.0 / 29.0;
  EXPECT_THAT(borders_of(project_of(json), 0, 5, last),
              ElementsAre(is(CircleSide::largest, "ground.excavated_width_m", 30)));
  json["ground"]["bottom_level_m"] = -24;
  EXPECT_THAT(borders_of(project_of(json), 0, 5, last),
              ElementsAre(is(CircleSide::largest, "ground.bottom_level_m", -24)));
  json["ground"] = rising_ground()["ground"];
  EXPECT_THAT(borders_of(project_of(json), 0, 5, last),
              ElementsAre(is(CircleSide::largest, "ground.layers[].polygons_m", -30)));
}

// In front 11 m of ground. Of the row at 0.2 m the centre at x = -2 has sqrt(9² + 4.2²) = 9.93 m to
// its end, less than the sqrt(2² + 10.2²) = 10.39 m to the foot, and is left out. That at -0.5 has
// sqrt(10.5² + 4.2²) = 11.31 m and radii from sqrt(0.5² + 10.2²) = 10.21 m.
TEST(CircleBorder, OfTheChosenGridNamesTheGroundThatCutsIt) {
  const Project project = project_of(with("/ground/excavated_width_m", 11));
  EXPECT_THAT(borders_of(project, -0.5, 0.2, std::hypot(0.5, 10.2)),
              ElementsAre(is(CircleSide::left, "ground.excavated_width_m", 11)));
}

// Piles of 10 m: centres from -8 m to 4 m and up to 12.2 m, circles to 5 m below the foot.
TEST(CircleBorder, OfTheChosenGridNamesTheFieldThatWouldReplaceIt) {
  const Project project = project_of(sound_project());
  EXPECT_THAT(borders_of(project, 4, 0.2, std::hypot(4.0, 10.2)),
              ElementsAre(is(CircleSide::right, "slope.centre_box.x_m", 4)));
  EXPECT_THAT(borders_of(project, -0.5, 12.2, std::hypot(0.5, 22.2)),
              ElementsAre(is(CircleSide::high, "slope.centre_box.y_m", 12.2)));
  // From (-0.5, 0.2) 10.212 m to the foot and 15.208 m to 5 m below it: 4.996 m are 5 radii.
  const double range = std::hypot(0.5, 15.2) - std::hypot(0.5, 10.2);
  EXPECT_THAT(borders_of(project, -0.5, 0.2, std::hypot(0.5, 15.2) - range / 5.0),
              ElementsAre(is(CircleSide::largest, "slope.centre_box.depths_below_foot_m", 5)));
  EXPECT_THAT(borders_of(project, -0.5, 0.2, std::hypot(0.5, 10.2)), IsEmpty());
}

TEST(CircleBorder, IsNoneOfACircleThatWasNotSearched) {
  const double none = std::numeric_limits<double>::quiet_NaN();
  const Project project = searching(radii(14, 20));
  EXPECT_THAT(borders_of(project, -2, 5, 30), IsEmpty());
  EXPECT_THAT(borders_of(project, -1, 5, 16), IsEmpty());
  EXPECT_THAT(borders_of(project, none, 5, 16), IsEmpty());
  EXPECT_THAT(borders_of(project, -2, none, 16), IsEmpty());
  EXPECT_THAT(borders_of(project, -2, 5, none), IsEmpty());
  EXPECT_THAT(borders_of(searching(false), -2, 5, 16), IsEmpty());
}

xSlopeStability result_of(const std::string& combination, double x_m, double factor) {
  xSlopeStability result;
  result.setCheckID(7, 1, combination);
  result.getstabChekData() = {.xc = 1e3 * x_m, .yc = 5e3, .sf = factor, .radius = 16e3};
  return result;
}

TEST(BorderWarnings, StandOnceForAllCombinationsWithTheSameBorder) {
  const Project project = searching(radii(14, 20));
  const double none = std::numeric_limits<double>::quiet_NaN();
  xSlopeStabilityDesign design;
  design.getResults() = {result_of("A", -2, 1.2),  result_of("B", 0, 1.2),
                         result_of("C", 2, 1.2),   result_of("D", -2, 0.9),
                         result_of("E", -2, 1e10), result_of("F", -2, none)};
  EXPECT_THAT(
      border_warnings(project, design, english),
      ElementsAre(
          "A, D: the governing slip circle lies on the border of its search, a worse one may "
          "lie outside; extend slope.centre_box.x_m beyond -2.00 (first column of centres)",
          "C: the governing slip circle lies on the border of its search, a worse one may "
          "lie outside; extend slope.centre_box.x_m beyond 2.00 (last column of centres)"));
  EXPECT_THAT(border_warnings(project, design, Texts(Language::italian)),
              ElementsAre(HasSubstr("sul bordo"), HasSubstr("oltre 2.00 (ultima colonna")));
  EXPECT_THAT(border_warnings(project, {}, english), IsEmpty());
}

// A single centre is a border on every side.
Json with_one_centre() {
  Json project = with(
      "/slope",
      {{"centre_box",
        {{"x_m", {-1, -1}}, {"y_m", {3, 3}}, {"spacing_m", 2}, {"depths_below_foot_m", {0, 5}}}}});
  project["combinations"][0]["checks"] = {"global_stability"};
  project["combinations"][0]["resistance_factors"] = {{"global_stability", 1.1}};
  return project;
}

class BorderWarningsOfTheProgram : public ::testing::Test {
protected:
  // What a command tells, and fails where it does not end well.
  std::pair<std::string, std::string> told(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), {"--lang", "en"});
    std::ostringstream out;
    std::ostringstream err;
    EXPECT_EQ(run_program(arguments, out, err), exit_fine) << err.str();
    return {out.str(), err.str()};
  }
  std::string path(const std::string& name) const { return (folder_ / name).string(); }
  std::string project(const Json& json) { return folder_.write("p.json", json.dump()).string(); }

  TemporaryFolder folder_;
  std::string warning_ =
      "Warning: C: the governing slip circle lies on the border of its search, a worse one may lie "
      "outside; extend slope.centre_box.x_m beyond -1.00 (first column of centres)";
};

TEST_F(BorderWarningsOfTheProgram, AreToldByEveryCommandThatAnalyses) {
  const std::string file = project(with_one_centre());
  const auto lines = HasSubstr(warning_);
  EXPECT_THAT(told({"run", file, "-o", path("out"), "--save", path("saved")}).second, lines);
  EXPECT_THAT(told({"show", path("saved")}).second, lines);
  EXPECT_THAT(told({"report", file, "-o", path("r.html")}).second, lines);
  EXPECT_THAT(told({"export", file, "--json", path("t.json")}).second, lines);
  EXPECT_THAT(told({"batch", file, "--progress", "plain"}).second,
              HasSubstr("p.json: " + warning_));
  for (const char* name : {"t.json", "out/tables.json"}) {
    const Json tables = Json::parse(contents_of(folder_ / name));
    EXPECT_THAT(tables.at("messages").at(0).get<std::string>(), lines) << name;
  }
}

TEST_F(BorderWarningsOfTheProgram, StandAmongTheMessagesOfTheReport) {
  const Project project = project_of(with_one_centre());
  const Job job = to_job(project);
  const OrderedJson data = report_data(project, job, analyse(job), Language::italian);
  OrderedJson messages;
  for (const OrderedJson& block : data["chapters"][0]["blocks"]) {
    if (block["kind"] == "messages") messages = block["items"];
  }
  ASSERT_EQ(messages.size(), 1u);
  EXPECT_EQ(messages[0]["severity"], "warning");
  EXPECT_THAT(messages[0]["text"]["en"].get<std::string>(), HasSubstr("extend slope.centre_box"));
  EXPECT_THAT(messages[0]["text"]["it"].get<std::string>(),
              HasSubstr("estendere slope.centre_box"));
}

// The circles that the program chooses find the worst one within.
TEST_F(BorderWarningsOfTheProgram, AreNoneOfTheChosenCircles) {
  Json json = with_one_centre();
  json["slope"] = true;
  EXPECT_THAT(told({"run", project(json)}).second, IsEmpty());
}

}  // namespace
}  // namespace ostrel::host
