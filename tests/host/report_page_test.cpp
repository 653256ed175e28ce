// SPDX-License-Identifier: Apache-2.0
#include "report_page.h"

#include "command_line.h"
#include "embedded_files.h"
#include "figures.h"
#include "host_testing.h"
#include "library_messages.h"
#include "project_conversion.h"
#include "report_block.h"
#include "section_drawing.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <sstream>
#include <utility>

namespace ostrel::host {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::StartsWith;
using Json = nlohmann::json;

const char* const hostile = "</script><b onclick='x'>\"&@{script}";

class ReportPage : public ::testing::Test {
protected:
  void run(const Json& json) {
    project_ = project_of(json);
    job_ = to_job(project_);
    outcome_ = analyse(job_);
    page_ = report_page(project_, job_, outcome_, Language::english);
    data_ = report_data(project_, job_, outcome_, Language::english);
  }

  // Every block of the page of one kind.
  std::vector<OrderedJson> blocks(const std::string& kind) const {
    std::vector<OrderedJson> found;
    for (const OrderedJson& chapter : data_["chapters"]) {
      for (const OrderedJson& block : chapter["blocks"]) {
        if (block["kind"] == kind) found.push_back(block);
      }
    }
    return found;
  }
  OrderedJson table(const std::string& id) const {
    for (const OrderedJson& block : blocks("table")) {
      if (block["id"] == id) return block;
    }
    return {};
  }

  // What stands between the tags of the page's data.
  OrderedJson data_in_page() const {
    const std::string opening = "id=\"data\">";
    const std::size_t begin = page_.find(opening) + opening.size();
    return OrderedJson::parse(page_.substr(begin, page_.find("</script>", begin) - begin));
  }
  // The page without the library that draws its figures.
  std::string own_page() const {
    std::string page = page_;
    const std::string_view plotly = embedded_file("plotly.js");
    const std::size_t place = plotly.empty() ? std::string::npos : page.find(plotly);
    if (place != std::string::npos) page.erase(place, plotly.size());
    return page;
  }

  Project project_;
  Job job_;
  Outcome outcome_;
  std::string page_;
  OrderedJson data_;
};

TEST_F(ReportPage, CarriesItsDataWhole) {
  run(sound_project());
  EXPECT_THAT(page_, StartsWith("<!DOCTYPE html>\n<html lang=\"en\">"));
  EXPECT_EQ(data_in_page(), data_);
  EXPECT_EQ(data_["language"], "en");
}

TEST_F(ReportPage, NamesEachFigureOnceAndHoldsIt) {
  run(sound_project());
  std::vector<std::string> shown;
  for (const OrderedJson& block : blocks("figures")) {
    for (const auto& id : block["figures"])
      shown.push_back(id);
  }
  std::vector<std::string> held;
  for (const auto& [id, figure] : data_["figures"].items())
    held.push_back(id);
  EXPECT_THAT(held, Contains("01-moment"));
  EXPECT_THAT(shown, ::testing::UnorderedElementsAreArray(held));
}

TEST_F(ReportPage, LeadsToNoOtherPlace) {
  run(sound_project());
  const std::string page = own_page();
  EXPECT_THAT(page, Not(HasSubstr("http:")));
  EXPECT_THAT(page, Not(HasSubstr("https:")));
  EXPECT_THAT(page, Not(HasSubstr("src=")));
  EXPECT_THAT(page, HasSubstr("default-src 'none'"));
}

TEST_F(ReportPage, LetsNoNameBreakOut) {
  Json project = sound_project();
  project["name"] = hostile;
  project["description"] = hostile;
  project["soils"][0]["name"] = hostile;
  project["ground"]["layers"][0]["soil"] = hostile;
  project["combinations"][0]["name"] = hostile;
  run(project);
  EXPECT_THAT(own_page(), Not(HasSubstr("<b onclick")));
  EXPECT_THAT(page_, HasSubstr("<title>&lt;/script&gt;&lt;b onclick="));
  EXPECT_EQ(data_in_page()["name"], hostile);
  for (const OrderedJson& drawing : blocks("drawing"))
    EXPECT_THAT(drawing["svg"].get<std::string>(), Not(HasSubstr("<b onclick")));
}

TEST_F(ReportPage, TellsEachCombination) {
  Json project = sound_project();
  project["combinations"].push_back({{"name", "Second"}, {"type", "rare"}});
  run(project);
  const OrderedJson overview = table("overview");
  ASSERT_EQ(overview["rows"].size(), 2U);
  EXPECT_EQ(overview["rows"][1][0], "Second");
  EXPECT_EQ(overview["rows"][1][1]["it"], "Rara");
  EXPECT_EQ(overview["rows"][1].size(), overview["columns"].size());
}

TEST_F(ReportPage, HasACellForEachColumn) {
  Json project = sound_project();
  project["water"] = {{"retained_level_m", -1}, {"excavated_level_m", -4}};
  project["supports"] = {{"elastic", {{{"level_m", 0}, {"horizontal_kN_m", 100}}}}};
  project["anchors"] = {{{"level_m", -1},
                         {"inclination_deg", 15},
                         {"free_length_m", 8},
                         {"number", 2},
                         {"tendon_area_mm2", 500},
                         {"E_GPa", 195}}};
  run(project);
  for (const OrderedJson& block : blocks("table")) {
    for (const OrderedJson& row : block["rows"])
      EXPECT_EQ(row.size(), block["columns"].size()) << block["id"];
  }
  EXPECT_EQ(table("anchor-forces-01")["rows"].size(), 1U);
  EXPECT_EQ(table("support-forces-01")["rows"].size(), 1U);
}

// At 30 degrees half of the force goes downwards. Without a verification there is no resistance.
TEST_F(ReportPage, TellsWhatAnAnchorPutsOnTheWall) {
  Json project = sound_project();
  project["anchors"] = {{{"name", "A"},
                         {"level_m", -1},
                         {"inclination_deg", 30},
                         {"free_length_m", 8},
                         {"number", 2},
                         {"tendon_area_mm2", 500},
                         {"E_GPa", 195},
                         {"prestress_kN", 100}}};
  run(project);
  const OrderedJson anchor = table("anchor-forces-01")["rows"][0];
  EXPECT_EQ(anchor[0], "A");
  const double force = anchor[2].get<double>();
  EXPECT_GT(force, 100.0);
  EXPECT_NEAR(anchor[3].get<double>(), force * std::sqrt(0.75), 1e-9 * force);
  EXPECT_NEAR(anchor[4].get<double>(), force / 2.0, 1e-9 * force);
  EXPECT_EQ(anchor[5], 100.0);
  for (std::size_t i = 8; i < 12; ++i)
    EXPECT_TRUE(anchor[i].is_null()) << i;
}

// Loads twice as large as those that were analysed leave as much over as there was.
TEST_F(ReportPage, TellsWhetherTheForcesAreInBalance) {
  run(sound_project());
  OrderedJson rows = table("balance")["rows"];
  ASSERT_EQ(rows.size(), 1U);
  EXPECT_EQ(rows[0][0], "C");
  EXPECT_EQ(rows[0][5]["verdict"], true);
  EXPECT_THAT(blocks("messages"), IsEmpty());
  for (xFemNodeData_pos& load : outcome_.results.combResults.at(0).femResults.appliedForces) {
    const xFemNodeData once = load.data;
    load.data += once;
  }
  data_ = report_data(project_, job_, outcome_, Language::english);
  rows = table("balance")["rows"];
  EXPECT_EQ(rows[0][5]["verdict"], false);
  ASSERT_EQ(blocks("messages").size(), 1U);
  const OrderedJson message = blocks("messages")[0]["items"][0];
  EXPECT_EQ(message["severity"], "warning");
  EXPECT_THAT(message["text"]["en"].get<std::string>(),
              StartsWith("C: the forces are not in balance"));
}

// The head moves, so that no displacement of 10 m and each of a thousandth of a millimetre is too
// much.
TEST_F(ReportPage, TellsWhichVerificationIsSatisfied) {
  Json project = sound_project();
  project["combinations"][0]["checks"] = {"displacements"};
  for (const auto& [limit, holds] : {std::pair{1e4, true}, std::pair{1e-3, false}}) {
    project["wall"]["displacement_limits"] = {{"head_mm", limit}, {"excavation_mm", limit}};
    run(project);
    const OrderedJson rows = table("verifications")["rows"];
    ASSERT_EQ(rows.size(), 10U);
    EXPECT_EQ(rows[9][0]["en"], "Displacements");
    EXPECT_EQ(rows[9][2]["verdict"], holds);
    EXPECT_EQ(rows[9][3], "C");
    EXPECT_EQ(rows[0][2]["en"], "not made");
    EXPECT_EQ(table("all-verifications")["rows"].size(), 1U);
    ASSERT_EQ(blocks("verdict").size(), 1U);
    EXPECT_EQ(blocks("verdict")[0]["holds"], holds);
  }
}

TEST_F(ReportPage, TellsWhatLooksOddInTheProjectBeforeAllElse) {
  run(sound_project());
  project_.odd_places = {{"soils[0].friction_angle_deg", "strano", "odd"}};
  data_ = report_data(project_, job_, outcome_, Language::english);
  ASSERT_EQ(blocks("messages").size(), 1U);
  const OrderedJson message = blocks("messages")[0]["items"][0];
  EXPECT_EQ(message["severity"], "warning");
  EXPECT_EQ(message["text"]["it"], "soils[0].friction_angle_deg: strano");
  EXPECT_EQ(message["text"]["en"], "soils[0].friction_angle_deg: odd");
}

TEST_F(ReportPage, GivesTheGoverningSectionOfEachCombination) {
  Json json = sound_project();
  json["combinations"][0]["checks"] = Json::array({"wall_strength"});
  run(json);
  const OrderedJson rows = table("governing-sections")["rows"];
  ASSERT_EQ(rows.size(), 1U);
  const double bending = rows[0][4].get<double>() / std::abs(rows[0][3].get<double>());
  const double shear = rows[0][6].get<double>() / std::abs(rows[0][5].get<double>());
  EXPECT_NEAR(rows[0][7].get<double>(), std::min(bending, shear), 1e-9);
}

// Whatever the language of the run, of the library's messages and of the notes. The earth pressure of
// the second combination is more than the soil can bear.
TEST_F(ReportPage, IsTheSameForARunInEitherLanguage) {
  Json json = sound_project();
  json["standard"] = "NTC2008";
  json["combinations"].push_back(
      {{"name", "too much"}, {"type", "ultimate"}, {"actions", {{"earth_pressure", 80}}}});
  std::vector<OrderedJson> told;
  for (const Language language : {Language::italian, Language::english}) {
    choose_language(language);
    Problems problems{Texts(language)};
    project_ = read_project(json.dump(), problems).value_or(Project{});
    job_ = to_job(project_);
    outcome_ = analyse(job_);
    EXPECT_FALSE(outcome_.messages.empty());
    EXPECT_FALSE(project_.notes.empty());
    told.push_back(report_data(project_, job_, outcome_, Language::english));
  }
  EXPECT_EQ(told[0], told[1]);
  data_ = told[0];
  const std::vector<OrderedJson> messages = blocks("messages");
  ASSERT_EQ(messages.size(), 1U);
  for (const OrderedJson& message : messages[0]["items"])
    EXPECT_NE(message["text"]["it"], message["text"]["en"]);
}

TEST_F(ReportPage, GivesNumbersTheirUnits) {
  run(sound_project());
  const OrderedJson columns = table("soils")["columns"];
  EXPECT_EQ(columns[1]["unit"], "kN/m³");
  EXPECT_EQ(columns[3]["unit"], "°");
  EXPECT_EQ(table("soils")["rows"][0][3], 32.0);
}

TEST_F(ReportPage, DrawsTheSectionWithItsParts) {
  Json project = sound_project();
  project["water"] = {{"retained_level_m", -1}, {"excavated_level_m", -4}};
  project["anchors"] = {{{"level_m", -1},
                         {"inclination_deg", 15},
                         {"free_length_m", 8},
                         {"number", 2},
                         {"tendon_area_mm2", 500},
                         {"E_GPa", 195},
                         {"bond_length_m", 5},
                         {"bond_diameter_mm", 150}}};
  run(project);
  const std::string svg = section_drawing(project_, job_, outcome_);
  for (const char* part : {"class=\"soil soil-0\"", "class=\"water\"", "class=\"concrete\"",
                           "class=\"tendon\"", "class=\"bond\"", "class=\"load head\"",
                           ">excavation 4.00 m<", ">infissione 6,00 m<", "Q, 10 kPa"}) {
    EXPECT_THAT(svg, HasSubstr(part));
  }
}

TEST(ReportTable, ShowsNoNumberWhereThereIsNone) {
  ReportTable table("t", {"T", "T"}, {{{"a", "a"}, "m", 2}});
  table.add({std::nan("")});
  EXPECT_TRUE(table.block()["rows"][0][0].is_null());
}

struct Called {
  int status = 0;
  std::string out;
  std::string err;
};

Called call(const std::vector<std::string>& arguments) {
  std::ostringstream out;
  std::ostringstream err;
  Called called;
  called.status = run_program(arguments, out, err);
  called.out = out.str();
  called.err = err.str();
  return called;
}

class CommandReport : public ::testing::Test {
protected:
  TemporaryFolder folder_;
  std::string project_ = folder_.write("p.json", sound_project().dump()).string();
};

TEST_F(CommandReport, WritesThePageAndSaysWhere) {
  const std::string file = (folder_ / "r.html").string();
  const Called called = call({"report", project_, "-o", file, "--lang", "it"});
  EXPECT_EQ(called.status, exit_fine);
  EXPECT_EQ(called.out, "Relazione scritta in " + file + "\n");
  EXPECT_THAT(contents_of(file), HasSubstr("<html lang=\"it\">"));
  EXPECT_THAT(folder_.names(), ElementsAre("p.json", "r.html"));
}

TEST_F(CommandReport, GoesWithARun) {
  const std::string file = (folder_ / "r.html").string();
  const Called called = call({"run", project_, "--report", file, "--lang", "en"});
  EXPECT_EQ(called.status, exit_fine);
  EXPECT_THAT(called.out, HasSubstr("Largest moment"));
  EXPECT_THAT(called.out, HasSubstr("Report written to " + file));
  EXPECT_THAT(contents_of(file), HasSubstr("<html lang=\"en\">"));
}

TEST_F(CommandReport, SaysBeforeTheAnalysisThatItCannotWrite) {
  const std::string file = (folder_ / "none" / "r.html").string();
  const Called report = call({"report", project_, "-o", file, "--lang", "en"});
  EXPECT_EQ(report.status, exit_bad_input);
  EXPECT_THAT(report.err, HasSubstr(file + ": cannot be written"));
  const Called run = call({"run", project_, "--report", file, "--lang", "en"});
  EXPECT_EQ(run.status, exit_bad_input);
  EXPECT_THAT(run.out, IsEmpty());
}

TEST_F(CommandReport, NeedsAFileToWriteTo) {
  EXPECT_EQ(call({"report", project_}).status, exit_bad_input);
}

TEST_F(CommandReport, RefusesABadProject) {
  const std::string bad = folder_.write("bad.json", "{}").string();
  const std::string file = (folder_ / "r.html").string();
  EXPECT_EQ(call({"report", bad, "-o", file}).status, exit_bad_input);
  EXPECT_THAT(folder_.names(), Not(Contains("r.html")));
}

}  // namespace
}  // namespace ostrel::host
