// SPDX-License-Identifier: Apache-2.0
#include "result_folder.h"

#include "atomic_file.h"
#include "phrases.h"
#include "result_files.h"

#include <filesystem>
#include <set>

namespace ostrel::host {

namespace fs = std::filesystem;

namespace {

// Files of a type directly in a place of the folder that are not among `names`.
void add_strangers(const std::string& folder, const std::string& place, const char* type,
                   const std::set<std::string>& names, std::vector<std::string>& strangers) {
  std::set<std::string> found;
  std::error_code error;
  fs::directory_iterator entry(fs::path(folder) / place, error);
  for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
    const std::string name = (fs::path(place) / entry->path().filename()).string();
    if (entry->path().extension() == type && !names.contains(name)) found.insert(name);
  }
  strangers.insert(strangers.end(), found.begin(), found.end());
}

}  // namespace

std::error_code prepare_results(const std::string& folder) {
  std::error_code error;
  fs::create_directories(folder, error);
  return error ? error : try_writing((fs::path(folder) / "result.json").string());
}

WrittenFolder write_results(const std::string& folder, const Project& project, const Job& job,
                            const Outcome& outcome, Language language) {
  WrittenFolder written;
  std::set<std::string> names;
  for (const ResultFile& file : result_files(project, job, outcome, language)) {
    const fs::path path = fs::path(folder) / file.name;
    std::error_code error;
    fs::create_directories(path.parent_path(), error);
    if (!error) error = write_whole(path.string(), file.contents);
    if (error) {
      written.failure = WriteFailure{path.string(), error};
      return written;
    }
    names.insert(file.name);
  }
  add_strangers(folder, "", ".csv", names, written.strangers);
  add_strangers(folder, figure_folder, ".json", names, written.strangers);
  return written;
}

std::string strangers_warning(const std::string& folder, const std::vector<std::string>& strangers,
                              const Texts& texts) {
  if (strangers.empty()) return {};
  return phrase::warning.in(
      texts, phrase::strangers_in_folder.in(texts, folder, strangers.size(), strangers.front()));
}

}  // namespace ostrel::host
