// SPDX-License-Identifier: Apache-2.0
#include "analysis.h"
#include "core_case.h"
#include "core_result.h"
#include "fuzz/promise_testing.h"
#include "fuzz/targets_testing.h"
#include "json_text.h"
#include "project_conversion.h"
#include "project_file.h"
#include "report_page.h"
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

// Coarser levels, circles and stripes: all kinds of them, but few.
void lighten(Json& tree, bool is_project) {
  constexpr double levels_mm = 500.0;
  if (!is_project) {
    Json& calc = tree["calc"];
    calc["step_molle"] = levels_mm;
    calc["slope"]["width_stripe"] = 2.0 * calc["slope"]["width_stripe"].get<double>();
    return;
  }
  tree["calculation"]["node_spacing_mm"] = levels_mm;
  Json& slope = tree["slope"];  // chosen from the geometry where the file does not say
  slope["stripe_width_m"] = 3.0;
  slope["radius_step_m"] = 10.0;
  if (slope.contains("centre_box")) slope["centre_box"]["spacing_m"] = 6.0;
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
    lighten(base.tree, are_projects);
    collect(base.tree, Json::json_pointer(), base);
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

double number_of_circles(const xSlopeStabilitySettings& slope) {
  double circles = 0.0;
  for (const xGridPoint& centre : slope.grid.points)
    circles += (centre.getMaxRadius() - centre.getMinRadius()) / slope.getStepradius() + 1.0;
  return circles;
}

double number_of_stripes(const xSheetpilingData& data) {
  double left = 0.0;
  double right = 0.0;
  const auto reach = [&](const xBoundSoilLayer& layer) {
    for (const auto& polygon : layer.polygons) {
      for (const auto& vertex : polygon) {
        left = std::min(left, vertex[0]);
        right = std::max(right, vertex[0]);
      }
    }
  };
  std::for_each(data.soilLayers.begin(), data.soilLayers.end(), reach);
  reach(data.boundLayer);
  return (right - left) / data.calcSettings.slope.getWidthstripe() + 1.0;
}

// Whether bars are so thin that thousands of them may be laid out, one step after the other. Bars
// without an area are not.
bool has_thin_bars(const xSheetpilingData& data) {
  if (!data.props) return false;
  const auto& settings = data.props->checkSettings.reinforcementSettings;
  const double diameter = settings ? settings->getBarDiam() : 0.0;
  return diameter > 0.0 && diameter < 5.0;
}

// Whether a run takes long for an honest reason: thousands of levels, circles, stripes, passes or
// bars.
bool is_large(const host::Job& job) {
  const xSheetpilingData& data = job.data;
  const double length = data.props ? data.props->getLength() : 0.0;
  const double levels = length / std::max(1e-9, std::abs(data.calcSettings.getStepMolle()));
  const double circles = number_of_circles(data.calcSettings.slope);
  const double stripes = number_of_stripes(data);
  return levels > 300.0 || job.fem.maxIterations > 1000 || stripes > 1000.0 || has_thin_bars(data)
      || circles * stripes > 20'000.0;
}

void tell_messages(host::Outcome& outcome) {
  for (const xVeldError& message : outcome.messages)
    promise(!message.MakeErrStr().empty(), "a message has a text");
  promise(outcome.verdict != veldError || !outcome.messages.empty(), "a failure is told");
  std::vector<osg::ref_ptr<xCheckInfo>> failures;
  promise(!std::isnan(outcome.ultimate.getSfMin(&failures)), "a smallest factor is a number");
  for (const auto& failure : failures)
    promise(!failure->getString().empty(), "a failure has a text");
}

void tell_as_json(const host::Outcome& outcome) {
  const std::string text =
      host::core_result(outcome).dump(1, ' ', false, Json::error_handler_t::replace);
  promise(!text.empty(), "a result has a text");
}

// Telling everything takes ten times as long as the run: JSON is written by a header, here without
// optimisation. Each input is told in one of the ways, in which one its first change says.
unsigned way_of_telling(std::string_view bytes) {
  unsigned sum = 0;
  for (const char byte : bytes.substr(0, 5))
    sum += static_cast<unsigned char>(byte);
  return sum % 8U;
}

bool run_project(const std::string& text, unsigned way) {
  host::Problems problems{host::Texts{host::Language::english}};
  const auto project = host::read_project(text, problems);
  if (!project) return false;
  const host::Job job = host::to_job(*project);
  if (is_large(job)) return false;
  host::Outcome outcome = host::analyse(job);
  tell_messages(outcome);
  const host::RunData data = host::run_data_of(*project, job, outcome, problems.texts());
  promise(!host::run_report(data, problems.texts()).empty(), "a report has a text");
  if (way == 0) tell_as_json(outcome);
  if (way == 1) {
    promise(!host::result_files(*project, job, outcome, host::Language::english).empty(),
            "results go into files");
  }
  if (way == 2) {
    const auto page = host::report_data(*project, job, outcome, host::Language::english);
    promise(!page.dump(-1, ' ', false, Json::error_handler_t::replace).empty(),
            "results go into a page");
  }
  if (way > 2 && way < 6) {
    promise(host::read_saved(host::saved_bytes(data, outcome.results), problems).has_value(),
            "saved results are read");
  }
  return true;
}

bool run_case(const std::string& text, unsigned way) {
  host::Problems problems{host::Texts{host::Language::english}};
  const auto job = host::read_core_case(text, problems);
  if (!job || is_large(*job)) return false;
  host::Outcome outcome = host::analyse(*job);
  tell_messages(outcome);
  if (way == 0) tell_as_json(outcome);
  return true;
}

}  // namespace

bool try_run(std::string_view bytes) {
  static const std::vector<Base> bases = sound_cases();
  if (bytes.empty()) return false;
  const auto byte = [&bytes](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
  const Base& base = bases[byte(0) % bases.size()];
  Json tree = base.tree;
  for (std::size_t i = 1; i + 4 <= bytes.size() && i < 64; i += 4) {
    const auto& place = base.numbers[(byte(i) * 256U + byte(i + 1)) % base.numbers.size()];
    tree[place] = changed(tree[place], byte(i + 2), byte(i + 3));
  }
  std::string text;
  write(tree, text);
  const unsigned way = way_of_telling(bytes);
  return base.is_project ? run_project(text, way) : run_case(text, way);
}

std::size_t sound_runs() {
  return sound_cases().size();
}

}  // namespace ostrel::fuzz
