// SPDX-License-Identifier: Apache-2.0
#include "analysis.h"
#include "core_case.h"
#include "core_result.h"
#include "fuzz/promise_testing.h"
#include "fuzz/targets_testing.h"
#include "json_text.h"
#include "project_conversion.h"
#include "project_file.h"
#include "result_files.h"
#include "results_file.h"
#include "run_data.h"
#include "run_report.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <filesystem>
#include <limits>
#include <string>
#include <vector>

namespace ostrel::fuzz {

namespace {

using Json = nlohmann::json;
namespace fs = std::filesystem;

// A sound input and the places of its numbers.
struct Base {
  Json tree;
  bool is_project = false;
  std::vector<Json::json_pointer> numbers;
};

void collect(const Json& value, const Json::json_pointer& place, Base& base) {
  if (value.is_number()) base.numbers.push_back(place);
  if (value.is_object()) {
    for (const auto& [name, field] : value.items())
      collect(field, place / name, base);
  }
  if (value.is_array()) {
    for (std::size_t i = 0; i < value.size(); ++i)
      collect(value[i], place / i, base);
  }
}

void add_bases(const fs::path& folder, bool are_projects, std::vector<Base>& bases) {
  std::vector<fs::path> files;
  for (const auto& entry : fs::directory_iterator(folder)) {
    if (entry.path().extension() == ".json") files.push_back(entry.path());
  }
  std::sort(files.begin(), files.end());
  host::Problems problems{host::Texts{host::Language::english}};
  for (const fs::path& file : files) {
    const auto text = host::read_file(file.string(), problems);
    const auto tree = text ? host::parse_json(*text, problems) : std::nullopt;
    promise(tree.has_value(), "the sound cases are JSON");
    Base& base = bases.emplace_back(Base{*tree, are_projects, {}});
    collect(*tree, Json::json_pointer(), base);
  }
}

std::vector<Base> sound_cases() {
  std::vector<Base> bases;
  add_bases(OSTREL_EXAMPLES, true, bases);
  add_bases(fs::path(OSTREL_GOLDEN_DATA) / "cases", false, bases);
  return bases;
}

// Numbers at the edges of what computations stand.
constexpr std::array edges = {0.0,
                              -0.0,
                              1.0,
                              -1.0,
                              0.5,
                              2.0,
                              3.0,
                              1e-300,
                              -1e-300,
                              5e-324,
                              1e-12,
                              1e-6,
                              1e-3,
                              1e3,
                              1e6,
                              1e9,
                              1e12,
                              1e100,
                              -1e100,
                              1e300,
                              -1e300,
                              1.7e308,
                              0.1,
                              1.5707963267948966,
                              3.141592653589793,
                              -0.5,
                              90.0,
                              1e5,
                              1e-5,
                              2147483647.0,
                              -2147483648.0,
                              4294967296.0};

Json changed(const Json& number, unsigned char way, unsigned char value) {
  const double old = number.get<double>();
  double result = 0.0;
  switch (way % 6) {
    case 0:
      result = edges[value % edges.size()];
      break;
    case 1:
      result = old * (value / 128.0);
      break;  // 0 to 2 times
    case 2:
      result = old * std::pow(10.0, value % 17 - 8.0);
      break;
    case 3:
      result = -old;
      break;
    case 4:
      result = old + (value - 128.0) / 8.0;
      break;  // nearby
    default:
      result = value % 3 == 0 ? std::numeric_limits<double>::quiet_NaN()
             : value % 3 == 1 ? std::numeric_limits<double>::infinity()
                              : -std::numeric_limits<double>::infinity();
  }
  // A whole number stays one as long as it can: else only its refusal would be tried.
  if (number.is_number_integer() && std::abs(result) < 1e18)
    return static_cast<std::int64_t>(result);
  return result;
}

// As `dump`, but a number that is not finite goes by its word, as the reader knows it.
void write(const Json& value, std::string& out) {
  if (value.is_number_float() && !std::isfinite(value.get<double>())) {
    const double number = value.get<double>();
    out += std::isnan(number) ? "NaN" : number > 0.0 ? "Infinity" : "-Infinity";
  } else if (value.is_object()) {
    out += '{';
    for (const auto& [name, field] : value.items()) {
      if (out.back() != '{') out += ',';
      out += Json(name).dump() + ':';
      write(field, out);
    }
    out += '}';
  } else if (value.is_array()) {
    out += '[';
    for (const Json& each : value) {
      if (out.back() != '[') out += ',';
      write(each, out);
    }
    out += ']';
  } else {
    out += value.dump();
  }
}

// Whether a run takes long for an honest reason: thousands of levels, circles, stripes or passes.
bool is_large(const host::Job& job) {
  const xSheetpilingData& data = job.data;
  const double length = data.props ? data.props->getLength() : 0.0;
  const double levels = length / std::max(1e-9, std::abs(data.calcSettings.getStepMolle()));
  return levels > 300.0 || job.fem.maxIterations > 1000;
}

void tell_all(const host::Outcome& outcome) {
  const std::string text =
      host::core_result(outcome).dump(1, ' ', false, Json::error_handler_t::replace);
  promise(!text.empty(), "a result has a text");
  for (const xVeldError& message : outcome.messages)
    promise(!message.MakeErrStr().empty(), "a message has a text");
  promise(outcome.verdict != veldError || !outcome.messages.empty(), "a failure is told");
}

void run_project(const std::string& text) {
  host::Problems problems{host::Texts{host::Language::english}};
  const auto project = host::read_project(text, problems);
  if (!project) return;
  const host::Job job = host::to_job(*project);
  if (is_large(job)) return;
  const host::Outcome outcome = host::analyse(job);
  tell_all(outcome);
  const host::RunData data = host::run_data_of(*project, job, outcome, problems.texts());
  promise(!host::run_report(data, problems.texts()).empty(), "a report has a text");
  promise(host::read_saved(host::saved_bytes(data, outcome.results), problems).has_value(),
          "saved results are read");
  promise(!host::result_files(*project, job, outcome, host::Language::english).empty(),
          "results go into files");
}

void run_case(const std::string& text) {
  host::Problems problems{host::Texts{host::Language::english}};
  const auto job = host::read_core_case(text, problems);
  if (job && !is_large(*job)) tell_all(host::analyse(*job));
}

}  // namespace

void try_run(std::string_view bytes) {
  static const std::vector<Base> bases = sound_cases();
  if (bytes.empty()) return;
  const auto byte = [&bytes](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
  const Base& base = bases[byte(0) % bases.size()];
  Json tree = base.tree;
  for (std::size_t i = 1; i + 4 <= bytes.size() && i < 64; i += 4) {
    const auto& place = base.numbers[(byte(i) * 256U + byte(i + 1)) % base.numbers.size()];
    tree[place] = changed(tree[place], byte(i + 2), byte(i + 3));
  }
  std::string text;
  write(tree, text);
  base.is_project ? run_project(text) : run_case(text);
}

}  // namespace ostrel::fuzz
