// SPDX-License-Identifier: Apache-2.0
// Exports as a user calls them; a workbook is opened by a reader of its own kind of archive.
#include "command_export.h"

#include "command_line.h"
#include "embedded_files.h"
#include "host_testing.h"

#include <gmock/gmock.h>

#include <sstream>
#include <utility>

namespace ostrel::host {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using Json = nlohmann::json;

// Prints the title, the names of the sheets and the count of charts, and fails where a part is not
// well-formed.
constexpr const char* reader = R"(import sys, zipfile
import xml.etree.ElementTree as tree
book = zipfile.ZipFile(sys.argv[1])
assert book.testzip() is None
for part in book.namelist():
    if part.endswith((".xml", ".rels")):
        tree.fromstring(book.read(part))
names = "{http://schemas.openxmlformats.org/spreadsheetml/2006/main}sheet"
print(*[s.get("name") for s in tree.fromstring(book.read("xl/workbook.xml")).iter(names)], sep="|")
print(sum(part.startswith("xl/charts/chart") for part in book.namelist()))
)";

// Prints every row of a sheet, its cells between bars, and then the names in the legends of all
// charts.
constexpr const char* cell_reader = R"(import sys, zipfile
import xml.etree.ElementTree as tree
book = zipfile.ZipFile(sys.argv[1])
main = "{http://schemas.openxmlformats.org/spreadsheetml/2006/main}"
chart = "{http://schemas.openxmlformats.org/drawingml/2006/chart}"
def parts(name, tag):
    return tree.fromstring(book.read(name)).iter(tag)
texts = ["".join(t.text for t in s.iter(main + "t")) for s in parts("xl/sharedStrings.xml", main + "si")]
for row in parts("xl/worksheets/sheet" + sys.argv[2] + ".xml", main + "row"):
    values = [(c.get("t"), c.findtext(main + "v")) for c in row.iter(main + "c")]
    print(*[texts[int(v)] if kind == "s" else v for kind, v in values], sep="|")
for name in sorted(n for n in book.namelist() if n.startswith("xl/charts/chart")):
    print(*[v.text for s in parts(name, chart + "tx") for v in s.iter(chart + "v")], sep=";")
)";

class CommandExport : public ::testing::Test {
protected:
  void run(std::vector<std::string> arguments) { call("export", std::move(arguments)); }
  void call(const char* command, std::vector<std::string> arguments) {
    std::ostringstream out;
    std::ostringstream err;
    arguments.insert(arguments.begin(), {command, project_});
    status_ = run_program(arguments, out, err);
    out_ = out.str();
    err_ = err.str();
  }
  std::string file(const std::string& name) const { return (folder_ / name).string(); }
  // What a reader prints.
  std::string read(const std::string& name, const char* code = reader, int sheet = 1) {
    const std::string script = folder_.write("reader.py", code).string();
    const std::string command = "python3 '" + script + "' '" + file(name) + "' "
                              + std::to_string(sheet) + " >'" + file("printed") + "'";
    EXPECT_EQ(std::system(command.c_str()), 0);
    return contents_of(folder_ / "printed");
  }

  TemporaryFolder folder_;
  std::string project_ = folder_.write("p.json", sound_project().dump()).string();
  int status_ = -1;
  std::string out_;
  std::string err_;
};

// Three charts along the wall, two of springs, one of pressures.
TEST_F(CommandExport, MakesAWorkbookWithASheetForEachTableAndCharts) {
  run({"--xlsx", file("w.xlsx"), "--lang", "en"});
  EXPECT_EQ(status_, exit_fine) << err_;
  EXPECT_THAT(out_, HasSubstr("w.xlsx"));
  EXPECT_EQ(read("w.xlsx"),
            "Summary|Verifications|Sections|Reinforcement|Anchors|Equilibrium|01 Wall|01 Springs|"
            "01 Pressures\n6\n");
}

TEST_F(CommandExport, NamesSheetsInTheLanguageAskedFor) {
  run({"--xlsx", file("w.xlsx"), "--lang", "it"});
  EXPECT_THAT(read("w.xlsx"), HasSubstr("Riepilogo|Verifiche"));
}

TEST_F(CommandExport, TellsInAWorkbookWordsForCodes) {
  Json json = with("/water", {{"retained_level_m", -1}, {"excavated_level_m", -4}});
  json["supports"] = {{"elastic", {{{"level_m", 0}, {"horizontal_kN_m", 100}}}}};
  json["anchors"] = {{{"name", "<T>"},
                      {"level_m", -1},
                      {"inclination_deg", 20},
                      {"free_length_m", 9},
                      {"number", 2},
                      {"tendon_area_mm2", 500},
                      {"E_GPa", 195}}};
  project_ = folder_.write("q.json", json.dump()).string();
  run({"--xlsx", file("it.xlsx"), "--lang", "it"});
  ASSERT_EQ(status_, exit_fine) << err_;
  const auto italian = [this](int sheet) { return read("it.xlsx", cell_reader, sheet); };
  EXPECT_THAT(italian(1),
              AllOf(HasSubstr("\nC|Momento massimo [kNm]|"),
                    HasSubstr("\nC|Sforzo normale massimo (trazione positiva) [kN]|"),
                    HasSubstr("\nC|Molla più sfruttata [-]|"), HasSubstr("\nC|Tirante <T> [kN]|"),
                    HasSubstr("\nC|Appoggio, forza orizzontale [kN]|"), Not(HasSubstr("_kN"))));
  EXPECT_THAT(italian(2), AllOf(HasSubstr("\nStabilità globale|"), Not(HasSubstr("slope"))));
  EXPECT_THAT(italian(6), AllOf(HasSubstr("\nC|Carichi|"), HasSubstr("\nC|Terreno|"),
                                HasSubstr("\nC|Tiranti|"), HasSubstr("\nC|Appoggi elastici|"),
                                HasSubstr("\nC|Appoggi imposti|"), HasSubstr("\nC|Residuo|")));
  EXPECT_THAT(italian(9),
              AllOf(HasSubstr("\nSpinta del terreno|0|"), HasSubstr("\nSpinta dell'acqua|"),
                    HasSubstr("\nQ|0|"), HasSubstr("\nSpinta del terreno;Spinta dell'acqua;Q")));
  run({"--xlsx", file("en.xlsx"), "--json", file("t.json"), "--lang", "en"});
  const auto english = [this](int sheet) { return read("en.xlsx", cell_reader, sheet); };
  EXPECT_THAT(english(1), HasSubstr("\nC|Support, horizontal force [kN]|"));
  EXPECT_THAT(english(2), HasSubstr("\nGlobal stability|"));
  EXPECT_THAT(english(6), HasSubstr("\nC|Imposed supports|"));
  EXPECT_THAT(english(9), HasSubstr("\nWater pressure|"));
  // Programs go on reading codes.
  const Json tables = Json::parse(contents_of(folder_ / "t.json"));
  EXPECT_EQ(tables["summary"][0]["quantity"], "moment_kNm");
  EXPECT_EQ(tables["summary"][5]["quantity"], "anchor_1_kN");
  EXPECT_EQ(tables["verifications"][6]["verification"], "slope");
  EXPECT_EQ(tables["equilibrium"][4]["part"], "fixed_supports");
  EXPECT_EQ(tables["combinations"][0]["pressures"][0]["action"], "earth");
}

TEST_F(CommandExport, TakesNamesThatMarkupHasToEscape) {
  Json json = sound_project();
  json["name"] = "<wall> & \x01 'sons'";
  json["soils"][0]["name"] = "<sand> & \"gravel\"";
  json["ground"]["layers"][0]["soil"] = json["soils"][0]["name"];
  project_ = folder_.write("q.json", json.dump()).string();
  run({"--xlsx", file("w.xlsx"), "--lang", "en"});
  EXPECT_EQ(status_, exit_fine) << err_;
  EXPECT_THAT(read("w.xlsx"), HasSubstr("Summary"));
}

TEST_F(CommandExport, WritesTheTablesAsJson) {
  run({"--json", file("t.json"), "--lang", "en"});
  EXPECT_EQ(status_, exit_fine) << err_;
  EXPECT_EQ(Json::parse(contents_of(folder_ / "t.json"))["format"], 1);
}

TEST_F(CommandExport, AsksForAForm) {
  run({"--lang", "en"});
  EXPECT_EQ(status_, exit_bad_input);
  EXPECT_THAT(err_, HasSubstr("--xlsx"));
}

TEST_F(CommandExport, TellsWhereItCannotWrite) {
  run({"--xlsx", file("missing/w.xlsx"), "--lang", "en"});
  EXPECT_EQ(status_, exit_bad_input);
  EXPECT_THAT(err_, HasSubstr("no such file"));
  EXPECT_THAT(out_, IsEmpty());
}

TEST_F(CommandExport, ServesRunAndReportAsWell) {
  call("run", {"--xlsx", file("w.xlsx"), "--json", file("t.json"), "--lang", "en"});
  EXPECT_EQ(status_, exit_fine) << err_;
  EXPECT_THAT(out_, AllOf(HasSubstr("Largest moment"), HasSubstr("w.xlsx"), HasSubstr("t.json")));
  EXPECT_THAT(read("w.xlsx"), HasSubstr("Summary"));
  const std::string of_run = contents_of(folder_ / "t.json");
  call("report", {"-o", file("r.html"), "--json", file("t2.json"), "--lang", "en"});
  EXPECT_EQ(status_, exit_fine) << err_;
  EXPECT_EQ(contents_of(folder_ / "t2.json"), of_run);
  EXPECT_THAT(contents_of(folder_ / "r.html"), HasSubstr("<html"));
}

TEST_F(CommandExport, OfARunIsTriedBeforeTheAnalysis) {
  for (const char* option : {"--xlsx", "--json", "--pdf"}) {
    call("run", {option, file("missing/f"), "--lang", "en"});
    EXPECT_EQ(status_, exit_bad_input);
    EXPECT_THAT(err_, HasSubstr("no such file")) << option;
    EXPECT_THAT(out_, IsEmpty()) << option;
  }
}

// "./" leads to the same file, and so does a link.
TEST_F(CommandExport, RefusesTwoOutputsToTheSameFile) {
  const std::string same = (folder_.path() / "." / "t.json").string();
  std::filesystem::create_symlink(folder_.write("old.json", "old"), folder_ / "link");
  const std::vector<std::pair<const char*, std::vector<std::string>>> commands{
      {"export", {"--xlsx", same, "--json", file("t.json")}},
      {"export", {"--xlsx", file("link"), "--json", file("old.json")}},
      {"run", {"--save", same, "--json", file("t.json")}},
      {"run", {"--report", same, "--json", file("t.json")}},
      {"run", {"-o", folder_.path().string(), "--json", file("tables.json")}},
      {"report", {"-o", same, "--json", file("t.json")}}};
  for (const auto& [command, arguments] : commands) {
    std::vector<std::string> all = arguments;
    all.insert(all.end(), {"--lang", "en"});
    call(command, all);
    EXPECT_EQ(status_, exit_bad_input);
    EXPECT_THAT(err_, HasSubstr("would write the same file")) << command;
    EXPECT_THAT(out_, IsEmpty());
  }
  EXPECT_THAT(folder_.names(), ::testing::ElementsAre("link", "old.json", "p.json"));
  EXPECT_EQ(contents_of(folder_ / "old.json"), "old");
}

TEST_F(CommandExport, RefusesToWriteOverTheProjectAndTheStandards) {
  const std::string project = contents_of(project_);
  call("run", {"--json", project_, "--lang", "en"});
  EXPECT_EQ(status_, exit_bad_input);
  EXPECT_THAT(err_, HasSubstr("--json would write over a file that is read"));
  call("report", {"-o", project_, "--lang", "en"});
  EXPECT_EQ(status_, exit_bad_input);
  call("run", {"--save", project_, "--lang", "en"});
  EXPECT_EQ(status_, exit_bad_input);
  EXPECT_EQ(contents_of(project_), project);
  const std::string standards(embedded_file("standards.json"));
  const std::string copy = folder_.write("s.json", standards).string();
  run({"--presets", copy, "--json", copy, "--lang", "en"});
  EXPECT_EQ(status_, exit_bad_input);
  EXPECT_EQ(contents_of(copy), standards);
}

TEST_F(CommandExport, MayWriteTwiceToWhatIsNoFile) {
  run({"--xlsx", "/dev/null", "--json", "/dev/null", "--lang", "en"});
  EXPECT_EQ(status_, exit_fine) << err_;
}

TEST_F(CommandExport, SaysNothingWhenQuiet) {
  run({"--json", file("t.json"), "--quiet"});
  EXPECT_EQ(status_, exit_fine);
  EXPECT_THAT(out_, IsEmpty());
  EXPECT_TRUE(std::filesystem::exists(folder_ / "t.json"));
}

TEST_F(CommandExport, ToldByARunInMoreWordsHasItsEquilibrium) {
  std::ostringstream out;
  std::ostringstream err;
  ASSERT_EQ(run_program({"run", project_, "--verbose", "--lang", "en"}, out, err), exit_fine);
  EXPECT_THAT(err.str(), HasSubstr("Analysis: "));
  EXPECT_THAT(err.str(), ::testing::ContainsRegex("C: out of balance by -?[0-9.]+e-[0-9]+ kN"));
}

}  // namespace
}  // namespace ostrel::host
