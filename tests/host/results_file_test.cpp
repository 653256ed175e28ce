// SPDX-License-Identifier: Apache-2.0
#include "results_file.h"

#include "host_testing.h"
#include "project_conversion.h"
#include "run_report.h"
#include "texts_testing.h"
#include "verification_testing.h"

#include <gmock/gmock.h>

#include <cstdint>

namespace ostrel::host {
namespace {

using ::testing::HasSubstr;
using ::testing::SizeIs;

// Where the parts of a file begin: 16 bytes of its kind, 4 of the version, 8 of the length.
constexpr std::size_t version_at = 16;
constexpr std::size_t text_at = 28;

RunData small_run() {
  RunData data;
  data.name = "wall";
  data.is_diaphragm = true;
  data.thickness_mm = 800.0;
  data.spacing_m = 2.5;
  data.length_m = 12.0;
  data.excavation_depth_m = 5.0;
  data.anchor_names = {"", "Lower"};
  Summary summary;
  summary.name = "A";
  summary.index = 1;
  summary.moment_kNm = {.value = -250.0, .depth_m = 4.0};
  summary.springs.resize(3);
  summary.springs[1].yields = true;
  summary.yielding = 1;
  summary.anchors = {{.depth_m = 1.5, .force_kN = 250.0},
                     {.place = 1, .depth_m = 3.0, .force_kN = 300.0, .head_settlement_mm = 2.5}};
  summary.residual = {.towards_retained_kN = 1e-9, .relative_to_loads = 0.5};
  summary.supports.resize(1);
  summary.supports[0].moment_kNm = 12.0;
  data.combinations = {{.name = "A", .kind = combSeismic, .summary = summary},
                       {.name = "B", .kind = combUltimate, .summary = {}}};
  data.through = false;
  data.notes = {"a note"};
  data.remarks = {"a remark"};
  data.messages = {"a message"};
  data.ultimate.structuralDesign = verified_wall();
  data.serviceability = verified_displacements();
  return data;
}

xSheetpilingRes one_result() {
  xSheetpilingRes results;
  results.combResults.resize(1);
  results.combResults[0].setCombName("A");
  results.combResults[0].femResults.moment.points = {{0.0, 1.0}, {1.0, 2.0}};
  return results;
}

struct Reading {
  std::optional<SavedRun> run;
  std::string told;
};

Reading reading_of(const std::string& bytes) {
  Problems problems(english);
  Reading reading;
  reading.run = read_saved(bytes, problems);
  reading.told = problems.report("r", "");
  return reading;
}

// The file with another text inside, length and checksum right.
std::string file_around(const std::string& file, const std::string& text) {
  std::uint64_t sum = 14695981039346656037u;
  for (const char byte : text)
    sum = (sum ^ static_cast<unsigned char>(byte)) * 1099511628211u;
  const auto bytes_of = [](std::uint64_t number) {
    std::string bytes(8, '\0');
    for (std::size_t i = 0; i < 8; ++i)
      bytes[i] = static_cast<char>(number >> (8 * i));
    return bytes;
  };
  return file.substr(0, text_at - 8) + bytes_of(text.size()) + text + bytes_of(sum);
}

std::string text_of(const std::string& file) {
  return file.substr(text_at, file.size() - text_at - 8);
}

TEST(ResultsFile, GivesBackWhatTheTablesNeed) {
  const RunData data = small_run();
  const Reading reading = reading_of(saved_bytes(data, one_result()));
  ASSERT_TRUE(reading.run) << reading.told;
  EXPECT_EQ(run_report(reading.run->data, english), run_report(data, english));
  EXPECT_EQ(reading.run->data.notes, data.notes);
  EXPECT_EQ(reading.run->data.remarks, data.remarks);
  EXPECT_EQ(reading.run->data.messages, data.messages);
  EXPECT_FALSE(reading.run->data.through);
  const std::optional<Summary>& summary = reading.run->data.combinations[0].summary;
  ASSERT_TRUE(summary);
  EXPECT_THAT(summary->springs, SizeIs(3));
  EXPECT_TRUE(summary->springs[1].yields);
  EXPECT_EQ(summary->supports[0].moment_kNm, 12.0);
  ASSERT_THAT(summary->anchors, SizeIs(2));
  EXPECT_EQ(summary->anchors[1].place, 1u);
  EXPECT_EQ(summary->anchors[1].head_settlement_mm, 2.5);
  EXPECT_EQ(summary->residual.towards_retained_kN, 1e-9);
  EXPECT_EQ(summary->residual.relative_to_loads, 0.5);
  EXPECT_FALSE(summary->supports[0].horizontal_kN);
  EXPECT_FALSE(reading.run->data.combinations[1].summary);
}

TEST(ResultsFile, GivesBackTheResultsOfTheLibrary) {
  const Reading reading = reading_of(saved_bytes(small_run(), one_result()));
  ASSERT_TRUE(reading.run);
  ASSERT_THAT(reading.run->results.combResults, SizeIs(1));
  EXPECT_EQ(reading.run->results.combResults[0].getCombName(), "A");
  EXPECT_THAT(reading.run->results.combResults[0].femResults.moment.points, SizeIs(2));
}

TEST(ResultsFile, OfARunGivesTheSameTablesInEitherLanguage) {
  const Project project = project_of(sound_project());
  const Job job = to_job(project);
  const Outcome outcome = analyse(job);
  const RunData data = run_data_of(project, job, outcome, english);
  const Reading reading = reading_of(saved_bytes(data, outcome.results));
  ASSERT_TRUE(reading.run) << reading.told;
  for (const Language language : {Language::english, Language::italian}) {
    EXPECT_EQ(run_report(reading.run->data, Texts(language)), run_report(data, Texts(language)));
  }
  EXPECT_EQ(saved_bytes(reading.run->data, reading.run->results),
            saved_bytes(data, outcome.results));
}

TEST(ResultsFile, RefusesAForeignFile) {
  for (const std::string& bytes : {std::string(), std::string("{}"), std::string(1000, '\xff'),
                                   std::string("ostrel results\n\n") + std::string(100, '\0')}) {
    const Reading reading = reading_of(bytes);
    EXPECT_FALSE(reading.run);
    EXPECT_THAT(reading.told, HasSubstr("a file that ostrel run did not write"));
  }
}

TEST(ResultsFile, TellsAnotherVersion) {
  std::string bytes = saved_bytes(small_run(), one_result());
  bytes[version_at] = 1;
  const Reading reading = reading_of(bytes);
  EXPECT_FALSE(reading.run);
  EXPECT_THAT(reading.told, HasSubstr("found results of version 1; allowed results of version 3"));
}

TEST(ResultsFile, RefusesACutFileWhereverItEnds) {
  const std::string bytes = saved_bytes(small_run(), one_result());
  for (std::size_t size = 16; size < bytes.size(); size += size < 200 ? 1 : 97) {
    const Reading reading = reading_of(bytes.substr(0, size));
    EXPECT_FALSE(reading.run) << size;
    EXPECT_THAT(reading.told, HasSubstr("cut or damaged")) << size;
  }
  EXPECT_FALSE(reading_of(bytes + "x").run);
}

TEST(ResultsFile, RefusesAFileOfWhichAByteHasChanged) {
  const std::string bytes = saved_bytes(small_run(), one_result());
  for (std::size_t place = text_at; place < bytes.size(); place += 53) {
    std::string changed = bytes;
    changed[place] = static_cast<char>(changed[place] ^ 1);
    EXPECT_FALSE(reading_of(changed).run) << place;
  }
}

// The checksum keeps nobody from writing what they like: the text itself is read with care.
TEST(ResultsFile, SurvivesAHostileFile) {
  const std::string bytes = saved_bytes(small_run(), one_result());
  const std::string text = text_of(bytes);
  ASSERT_EQ(file_around(bytes, text), bytes);
  for (std::size_t place = 0; place < text.size(); place += 7) {
    EXPECT_FALSE(reading_of(file_around(bytes, text.substr(0, place))).run) << place;
    for (const char byte : {'\0', '\x7f', '\xff'}) {
      std::string changed = text;
      changed[place] = byte;
      const Reading reading = reading_of(file_around(bytes, changed));
      EXPECT_EQ(reading.run.has_value(), reading.told.empty());
      // What is read can be told, whatever its numbers are.
      if (reading.run) {
        EXPECT_FALSE(run_report(reading.run->data, english).empty());
      }
    }
  }
  EXPECT_FALSE(reading_of(file_around(bytes, text + '\0')).run);
}

// A count of two thousand million springs, with nothing behind it.
TEST(ResultsFile, TakesNoMemoryForWhatIsNotThere) {
  const std::string bytes = saved_bytes(RunData{}, {});
  // An empty name (8 bytes), a bool and five numbers; then the count of anchor names.
  const std::string text = text_of(bytes).substr(0, 8 + 1 + 5 * 8) + "\xff\xff\xff\x7f";
  EXPECT_THAT(reading_of(file_around(bytes, text)).told, HasSubstr("cut or damaged"));
}

}  // namespace
}  // namespace ostrel::host
