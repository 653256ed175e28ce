// SPDX-License-Identifier: Apache-2.0
// Writes the inputs that fuzzing begins with:
//
//     ostrel_write_seeds FOLDER
//
// One folder for each target. Streams come from the stored forms, texts from examples and whole runs.
#include "analysis.h"
#include "project_conversion.h"
#include "project_file.h"
#include "results_file.h"
#include "run_data.h"
#include "support/persisted_classes.h"

#include <algorithm>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

namespace {

namespace fs = std::filesystem;

std::string contents(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

void write(const fs::path& file, const std::string& bytes) {
  fs::create_directories(file.parent_path());
  std::ofstream(file, std::ios::binary) << bytes;
}

void write_streams(const fs::path& folder) {
  char index = 0;
  for (const auto& each : ostrel::testing::persisted_classes()) {
    const std::string filled = contents(fs::path(OSTREL_STREAMS) / (each.name + ".bin"));
    write(folder / each.name, index + filled);
    write(folder / (each.name + "-new"), index + each.untouched);
    ++index;
  }
}

void write_texts(const fs::path& source, const fs::path& folder) {
  for (const auto& entry : fs::directory_iterator(source)) {
    if (entry.path().extension() != ".json") continue;
    write(folder / entry.path().stem(), contents(entry.path()));
  }
}

// The text within a file of saved results lies between 28 bytes (what the file is, its version, the
// length of the text) and 8 bytes of a checksum.
void write_results(const fs::path& folder) {
  namespace host = ostrel::host;
  host::Problems problems{host::Texts{host::Language::english}};
  const auto project =
      host::read_project(contents(fs::path(OSTREL_EXAMPLES) / "cantilever.json"), problems);
  const host::Job job = host::to_job(project.value());
  const host::Outcome outcome = host::analyse(job);
  const host::RunData data = host::run_data_of(*project, job, outcome, problems.texts());
  const std::string file = host::saved_bytes(data, {});
  write(folder / "whole", '\1' + file);
  write(folder / "text", '\0' + file.substr(28, file.size() - 36));
  host::RunData empty;
  const std::string nothing = host::saved_bytes(empty, {});
  write(folder / "empty", '\0' + nothing.substr(28, nothing.size() - 36));
}

char texts_in(const fs::path& folder) {
  const auto is_text = [](const auto& entry) { return entry.path().extension() == ".json"; };
  return static_cast<char>(
      std::count_if(fs::directory_iterator(folder), fs::directory_iterator(), is_text));
}

// Each sound case as it is, and with a few numbers changed in each of the ways.
void write_runs(const fs::path& folder) {
  const char bases = static_cast<char>(texts_in(OSTREL_EXAMPLES)
                                       + texts_in(fs::path(OSTREL_GOLDEN_DATA) / "cases"));
  for (char base = 0; base < bases; ++base) {
    const std::string name = std::to_string(base);
    write(folder / name, std::string(1, base));
    for (char way = 0; way < 6; ++way) {
      const char place = static_cast<char>(7 * base + 13 * way);
      write(folder / (name + "-" + std::to_string(way)), {base, 0, place, way, place});
    }
  }
}

}  // namespace

int main(int count, char** arguments) {
  if (count != 2) {
    std::cerr << "ostrel_write_seeds FOLDER\n";
    return 2;
  }
  try {
    const fs::path folder = arguments[1];
    write_streams(folder / "stream");
    write_texts(OSTREL_EXAMPLES, folder / "project");
    write_texts(fs::path(OSTREL_GOLDEN_DATA) / "cases", folder / "core_case");
    write_results(folder / "results");
    write_runs(folder / "run");
    for (const char* target : {"stream", "project", "core_case", "results", "run"})
      fs::create_directories(folder / "corpus" / target);
  } catch (const std::exception& error) {
    std::cerr << error.what() << "\n";
    return 1;
  }
  return 0;
}
