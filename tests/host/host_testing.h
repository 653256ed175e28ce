#pragma once
/// @file  Projects and temporary folders for the tests of the program. Room: host tests
// SPDX-License-Identifier: Apache-2.0

#include "json_text.h"
#include "problems.h"
#include "project_file.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <ostream>
#include <sstream>
#include <string>
#include <vector>

namespace ostrel::host {

/// A wall of piles of 600 mm every metre, 10 m long, 4 m of it above the excavation, in one dry sand
/// down to -30 m, with a load of 10 kPa and one combination of everything with factors 1.
inline nlohmann::json sound_project() {
  return nlohmann::json::parse(R"({
    "format": 1,
    "name": "wall",
    "wall": {"type": "pile_row", "diameter_mm": 600, "spacing_m": 1.0, "piles": 4,
             "length_m": 10, "E_GPa": 30, "unit_weight_kN_m3": 25,
             "reinforcement": {
               "cover_mm": 60, "bar_diameter_mm": 20, "least_ratio_percent": 0.5,
               "largest_ratio_percent": 4,
               "stirrups": {"diameter_mm": 10, "least_spacing_mm": 100, "largest_spacing_mm": 300,
                            "spacing_step_mm": 50},
               "concrete": {"cube_strength_MPa": 30}, "steel": {"yield_strength_MPa": 450}}},
    "excavation_depth_m": 4,
    "soils": [{"name": "sand", "unit_weight_kN_m3": 18, "saturated_unit_weight_kN_m3": 20,
               "friction_angle_deg": 32, "wall_friction_angle_deg": 10, "E_MPa": 30}],
    "ground": {"retained_width_m": 40, "excavated_width_m": 30, "bottom_level_m": -30,
               "layers": [{"soil": "sand", "top_level_m": 0}]},
    "loads": [{"name": "Q", "on_ground": [{"type": "uniform", "value_kPa": 10}]}],
    "combinations": [{"name": "C", "type": "ultimate", "actions": {"loads": {"Q": 1}}}],
    "calculation": {"earth_pressure": "coulomb"}
  })");
}

/// `sound_project` with the value at a JSON pointer replaced.
inline nlohmann::json with(const char* pointer, const nlohmann::json& value) {
  nlohmann::json project = sound_project();
  project[nlohmann::json::json_pointer(pointer)] = value;
  return project;
}

/// `sound_project` with three panels of a diaphragm 800 mm thick and 2.5 m wide for its piles.
inline nlohmann::json sound_diaphragm() {
  nlohmann::json project = sound_project();
  nlohmann::json& wall = project["wall"];
  for (const char* name : {"diameter_mm", "spacing_m", "piles"})
    wall.erase(name);
  wall["type"] = "diaphragm";
  wall["thickness_mm"] = 800;
  wall["panel_width_m"] = 2.5;
  wall["panels"] = 3;
  nlohmann::json& reinforcement = wall["reinforcement"];
  reinforcement.erase("least_ratio_percent");
  reinforcement.erase("largest_ratio_percent");
  for (const char* name : {"least_excavation_ratio_percent", "least_retained_ratio_percent"})
    reinforcement[name] = 0.2;
  for (const char* name : {"largest_excavation_ratio_percent", "largest_retained_ratio_percent"})
    reinforcement[name] = 2;
  return project;
}

/// `sound_project` without the field at a JSON pointer.
inline nlohmann::json without(const char* pointer) {
  nlohmann::json project = sound_project();
  const nlohmann::json::json_pointer place(pointer);
  project[place.parent_pointer()].erase(place.back());
  return project;
}

inline void PrintTo(const Problem& problem, std::ostream* out) {
  *out << problem.path << ": found " << problem.found << "; allowed " << problem.allowed;
}

inline void PrintTo(const Remark& remark, std::ostream* out) {
  *out << remark.path << ": " << remark.message;
}

struct ReadingOutcome {
  std::optional<Project> project;
  std::vector<Problem> errors;
  std::vector<Remark> remarks;
};

inline ReadingOutcome read(const nlohmann::json& project) {
  Problems problems{Texts(Language::english)};
  ReadingOutcome outcome;
  outcome.project = read_project(project.dump(), problems);
  outcome.errors = problems.errors();
  outcome.remarks = problems.remarks();
  return outcome;
}

/// The project; the test fails where it is refused.
inline Project project_of(const nlohmann::json& json) {
  const ReadingOutcome outcome = read(json);
  for (const Problem& problem : outcome.errors) {
    ADD_FAILURE() << problem.path << ": " << problem.found << "; " << problem.allowed;
  }
  return outcome.project.value_or(Project{});
}

/// The lines of a text that do not hold some words.
inline std::vector<std::string> lines_without(const std::string& text, const std::string& words) {
  std::istringstream stream(text);
  std::vector<std::string> lines;
  for (std::string line; std::getline(stream, line);) {
    if (line.find(words) == std::string::npos) lines.push_back(line);
  }
  return lines;
}

/// The contents of a file, empty for none.
inline std::string contents_of(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

/// An empty folder that goes with the test.
class TemporaryFolder {
public:
  TemporaryFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "ostrel-XXXXXX").string();
    path_ = mkdtemp(pattern.data());
  }
  ~TemporaryFolder() {
    std::error_code code;
    std::filesystem::permissions(path_, std::filesystem::perms::owner_all, code);
    std::filesystem::remove_all(path_, code);
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  std::filesystem::path operator/(const std::string& name) const { return path_ / name; }
  const std::filesystem::path& path() const { return path_; }

  std::filesystem::path write(const std::string& name, const std::string& contents) const {
    std::ofstream(path_ / name, std::ios::binary) << contents;
    return path_ / name;
  }
  std::vector<std::string> names() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(path_)) {
      names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
  }

private:
  std::filesystem::path path_;
};

}  // namespace ostrel::host
