// SPDX-License-Identifier: Apache-2.0
#include "result_files.h"

#include "core_result.h"
#include "csv.h"
#include "figures.h"
#include "summary.h"
#include "units.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstddef>
#include <utility>

namespace ostrel::host {

namespace {

constexpr std::size_t longest_slug = 40;

// Letters and digits of a name that every file system takes; a dash for the rest.
std::string slug(const std::string& name) {
  std::string slug;
  for (const char letter : name.substr(0, longest_slug)) {
    const bool plain = (letter >= '0' && letter <= '9') || (letter >= 'A' && letter <= 'Z')
                    || (letter >= 'a' && letter <= 'z');
    if (plain) {
      slug += letter;
    } else if (!slug.empty() && slug.back() != '-') {
      slug += '-';
    }
  }
  while (!slug.empty() && slug.back() == '-')
    slug.pop_back();
  return slug;
}

std::string file_name(const Summary& summary, const char* subject) {
  const std::string name = slug(summary.name);
  return fmt::format("{:02}{}{}-{}.csv", summary.index, name.empty() ? "" : "-", name, subject);
}

std::string result_json(const Project& project, const Outcome& outcome) {
  nlohmann::ordered_json json = {{"format", 1},
                                 {"project", project.name},
                                 {"units",
                                  {{"length", "mm"},
                                   {"force", "N"},
                                   {"moment", "Nmm"},
                                   {"pressure", "N/mm2"},
                                   {"unit_weight", "N/mm3"},
                                   {"angle", "rad"}}}};
  json.update(core_result(outcome));
  return json.dump(1, ' ', false, nlohmann::json::error_handler_t::replace) + "\n";
}

// Two rows for each element, at its two ends: the forces jump where something acts on a node.
std::string wall_csv(const xCombResults& combination) {
  const xFemResults& results = combination.femResults;
  CsvTable csv({"depth_m", "displacement_mm", "settlement_mm", "rotation_mrad", "moment_kNm",
                "shear_kN", "axial_kN"});
  for (std::size_t i = 0; i < results.moment.points.size(); ++i) {
    const std::size_t node = (i + 1) / 2;
    if (node >= results.dispTrans.points.size()) break;
    csv.add({csv_number(m_of_mm(results.moment.points[i].s)),
             csv_number(-results.dispTrans.points[node].value),
             csv_number(results.dispAxial.points[node].value),
             csv_number(mrad_of_rad(results.rotation.points[node].value)),
             csv_number(knm_of_nmm(results.moment.points[i].value)),
             csv_number(kn_of_n(results.shear.points[i].value)),
             csv_number(kn_of_n(results.axial.points[i].value))});
  }
  return csv.text();
}

std::string spring_csv(const Summary& summary) {
  CsvTable csv({"depth_m", "modulus_kN_m3", "limit_mm", "limit_kPa", "displacement_mm",
                "pressure_kPa", "use", "yields"});
  for (const SpringState& spring : summary.springs) {
    csv.add({csv_number(spring.depth_m), csv_number(spring.modulus_kN_m3),
             csv_number(spring.limit_mm), csv_number(spring.limit_kPa),
             csv_number(spring.displacement_mm), csv_number(spring.pressure_kPa),
             csv_number(spring.use), spring.yields ? "1" : "0"});
  }
  return csv.text();
}

void add_pressures(const std::string& name, const std::vector<xLayerPress>& diagrams,
                   CsvTable& csv) {
  for (const xLayerPress& diagram : diagrams) {
    for (const diag_Point& point : diagram.points) {
      csv.add({name, csv_number(m_of_mm(-diagram.start.y + point.s)),
               csv_number(kn_m_of_n_mm(point.value))});
    }
  }
}

std::string pressure_csv(const xCombResults& combination) {
  CsvTable csv({"action", "depth_m", "pressure_kN_m"});
  add_pressures("earth", combination.earthPress.diagrams, csv);
  add_pressures("water", combination.hydroPress.diagrams, csv);
  for (const xLoadCondPress& condition : combination.loadCondPress) {
    for (const xLoadPress& load : condition.loads) {
      add_pressures(condition.name, load.diagrams, csv);
    }
  }
  return csv.text();
}

void add_summary(const Summary& summary, CsvTable& csv) {
  const auto row = [&](const std::string& quantity, const Extreme& extreme) {
    csv.add({summary.name, quantity, csv_number(extreme.value), csv_number(extreme.depth_m)});
  };
  row("moment_kNm", summary.moment_kNm);
  row("shear_kN", summary.shear_kN);
  row("axial_kN", summary.axial_kN);
  row("displacement_mm", summary.displacement_mm);
  row("spring_use", summary.spring_use);
  for (std::size_t i = 0; i < summary.anchors.size(); ++i) {
    row(fmt::format("anchor_{}_kN", i + 1),
        {.value = summary.anchors[i].force_kN, .depth_m = summary.anchors[i].depth_m});
  }
  for (const SupportState& support : summary.supports) {
    const auto part = [&](const char* quantity, const std::optional<double>& value) {
      if (value) row(quantity, {.value = *value, .depth_m = support.depth_m});
    };
    part("support_horizontal_kN", support.horizontal_kN);
    part("support_vertical_kN", support.vertical_kN);
    part("support_moment_kNm", support.moment_kNm);
  }
}

ResultFile figure_file(const Figure& figure, Language language) {
  OrderedJson plot = in_language(figure.plot, language);
  plot["layout"]["meta"] = {{"id", figure.id}, {"caption", figure.caption.in(language)}};
  return {fmt::format("{}/{}.json", figure_folder, figure.id),
          plot.dump(1, ' ', false, OrderedJson::error_handler_t::replace) + "\n"};
}

}  // namespace

std::vector<ResultFile> result_files(const Project& project, const Job& job, const Outcome& outcome,
                                     Language language) {
  std::vector<ResultFile> files{{"result.json", result_json(project, outcome)}};
  CsvTable summary_csv({"combination", "quantity", "value", "depth_m"});
  for (const xCombResults& combination : outcome.results.combResults) {
    const Summary summary = summary_of(job, outcome, combination);
    add_summary(summary, summary_csv);
    files.push_back({file_name(summary, "wall"), wall_csv(combination)});
    files.push_back({file_name(summary, "springs"), spring_csv(summary)});
    files.push_back({file_name(summary, "pressures"), pressure_csv(combination)});
  }
  files.push_back({"summary.csv", summary_csv.text()});
  for (const Figure& figure : figures(project, job, outcome))
    files.push_back(figure_file(figure, language));
  return files;
}

}  // namespace ostrel::host
