// SPDX-License-Identifier: Apache-2.0
#include "result_folder.h"

#include "atomic_file.h"
#include "result_files.h"

#include <filesystem>

namespace ostrel::host {

namespace fs = std::filesystem;

std::error_code prepare_results(const std::string& folder) {
  std::error_code error;
  fs::create_directories(folder, error);
  return error ? error : try_writing((fs::path(folder) / "result.json").string());
}

std::optional<WriteFailure> write_results(const std::string& folder, const Project& project,
                                          const Job& job, const Outcome& outcome,
                                          Language language) {
  for (const ResultFile& file : result_files(project, job, outcome, language)) {
    const fs::path path = fs::path(folder) / file.name;
    std::error_code error;
    fs::create_directories(path.parent_path(), error);
    if (!error) error = write_whole(path.string(), file.contents);
    if (error) return WriteFailure{path.string(), error};
  }
  return std::nullopt;
}

}  // namespace ostrel::host
