// SPDX-License-Identifier: Apache-2.0
#include "figures.h"

#include "plot.h"
#include "summary.h"
#include "units.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

namespace ostrel::host {

namespace {

// Above this a factor stands for a check with nothing to check.
constexpr double nothing_to_verify = 1e9;

constexpr const char* limit_colour = "#c23b3b";

const Both displacement_name{"Spostamento", "Displacement"};
const Both moment_name{"Momento flettente", "Bending moment"};
const Both shear_name{"Taglio", "Shear"};
const Both axial_name{"Sforzo normale", "Axial force"};

/// A quantity along the wall: its diagram in the results and how it is told.
struct Quantity {
  const char* subject;
  const Both& name;
  const char* unit;
  int digits;
  xDiagram xFemResults::*diagram;
  double scale;
  Both sign;
};

const std::vector<Quantity>& quantities() {
  static const std::vector<Quantity> list{
      {"displacement",
       displacement_name,
       "mm",
       2,
       &xFemResults::dispTrans,
       -1.0,
       {"Positivo verso lo scavo.", "Positive towards the excavation."}},
      {"moment",
       moment_name,
       "kNm",
       1,
       &xFemResults::moment,
       knm_of_nmm(1.0),
       {"Positivo se tende il lato dello scavo.",
        "Positive where it stretches the excavation side."}},
      {"shear",
       shear_name,
       "kN",
       1,
       &xFemResults::shear,
       kn_of_n(1.0),
       {"V = dM/dz, z verso il basso.", "V = dM/dz, z downwards."}},
      {"axial",
       axial_name,
       "kN",
       1,
       &xFemResults::axial,
       kn_of_n(1.0),
       {"Trazione positiva.", "Tension positive."}}};
  return list;
}

Line line_of(const xDiagram& diagram, double scale) {
  Line line;
  for (const diag_Point& point : diagram.points) {
    line.add(point.value * scale, m_of_mm(point.s));
  }
  return line;
}

double inverse(double factor) {
  return factor < nothing_to_verify ? 1.0 / factor : 0.0;
}

class Drawer {
public:
  Drawer(const Project& project, const Job& job, const Outcome& outcome)
      : project_(project), job_(job), outcome_(outcome) {}

  std::vector<Figure> all() {
    if (outcome_.results.combResults.size() > 1) draw_together();
    for (const xCombResults& combination : outcome_.results.combResults) {
      draw(combination);
    }
    draw_reinforcement();
    for (const xSlopeStability& result : slope_results(outcome_)) {
      draw_centres(result);
    }
    return std::move(figures_);
  }

private:
  ProfileFrame frame(const Both& quantity, const std::string& unit) const {
    return {.quantity = quantity,
            .unit = unit,
            .wall_m = project_.wall.length_m,
            .excavation_m = project_.excavation_depth_m};
  }

  void add(int combination, const char* subject, const Both& caption, OrderedJson data,
           OrderedJson layout, bool wide = false) {
    const std::string prefix = combination == 0 ? "all" : fmt::format("{:02}", combination);
    figures_.push_back({.id = prefix + "-" + subject,
                        .combination = combination,
                        .caption = caption,
                        .wide = wide,
                        .plot = {{"data", std::move(data)}, {"layout", std::move(layout)}}});
  }

  void draw_together() {
    for (const Quantity& quantity : quantities()) {
      if (quantity.name.english == axial_name.english) continue;
      OrderedJson data = OrderedJson::array();
      for (const xCombResults& combination : outcome_.results.combResults) {
        data.push_back(profile(line_of(combination.femResults.*quantity.diagram, quantity.scale),
                               same(combination.getCombName()), quantity.unit, quantity.digits,
                               {.colour = colour_of(data.size()),
                                .dash = data.size() < colour_count ? "solid" : "dash"}));
      }
      add(0, quantity.subject,
          {quantity.name.italian + ", tutte le combinazioni. " + quantity.sign.italian,
           quantity.name.english + ", all combinations. " + quantity.sign.english},
          std::move(data), profile_layout(frame(quantity.name, quantity.unit), true));
    }
  }

  void draw(const xCombResults& combination) {
    draw_pressures(combination);
    for (std::size_t i = 0; i < quantities().size(); ++i) {
      draw_quantity(combination, quantities()[i], colour_of(i));
    }
    draw_reaction(combination);
    for (const xBendShearCombResults& result :
         outcome_.ultimate.structuralDesign.bendShear.combinations) {
      if (result.getCombIndex() == combination.getcombIndex()) draw_use(result);
    }
  }

  void draw_quantity(const xCombResults& combination, const Quantity& quantity,
                     const std::string& colour) {
    const Line line = line_of(combination.femResults.*quantity.diagram, quantity.scale);
    add(combination.getcombIndex(), quantity.subject,
        {quantity.name.italian + ". " + quantity.sign.italian,
         quantity.name.english + ". " + quantity.sign.english},
        OrderedJson::array({profile(line, quantity.name, quantity.unit, quantity.digits,
                                    {.colour = colour, .filled = true})}),
        profile_layout(frame(quantity.name, quantity.unit), false));
  }

  // The diagrams hold the force on one pile or panel by length of wall; by its width that is a
  // pressure.
  Line pressure_of(const std::vector<xLayerPress>& diagrams) const {
    Line line;
    for (const xLayerPress& diagram : diagrams) {
      for (const diag_Point& point : diagram.points) {
        line.add(kn_m_of_n_mm(point.value) / project_.wall.spacing_m,
                 m_of_mm(-diagram.start.y + point.s));
      }
    }
    return line;
  }

  void draw_pressures(const xCombResults& combination) {
    OrderedJson data = OrderedJson::array();
    const auto add_line = [&](const Both& name, const std::vector<xLayerPress>& diagrams) {
      const Line line = pressure_of(diagrams);
      if (line.x.empty()) return;
      data.push_back(profile(line, name, "kPa", 1, {.colour = colour_of(data.size())}));
    };
    add_line({"Terreno", "Soil"}, combination.earthPress.diagrams);
    add_line({"Acqua", "Water"}, combination.hydroPress.diagrams);
    for (const xLoadCondPress& condition : combination.loadCondPress) {
      for (const xLoadPress& load : condition.loads) {
        add_line(same(condition.name), load.diagrams);
      }
    }
    const Both name{"Pressione", "Pressure"};
    add(combination.getcombIndex(), "pressures",
        {"Pressioni di calcolo sopra il fondo scavo, con i coefficienti delle azioni. Positive "
         "verso "
         "lo scavo.",
         "Design pressures above the excavation, with the factors of the actions. Positive towards "
         "the excavation."},
        std::move(data), profile_layout(frame(name, "kPa"), true));
  }

  void draw_reaction(const xCombResults& combination) {
    Line reaction;
    Line limit;
    Line opposite;
    for (const SpringState& spring : summary_of(job_, outcome_, combination).springs) {
      reaction.add(spring.pressure_kPa, spring.depth_m);
      limit.add(spring.limit_kPa, spring.depth_m);
      opposite.add(-spring.limit_kPa, spring.depth_m);
    }
    const Both name{"Reazione", "Reaction"};
    const Both limit_name{"Limite", "Limit"};
    const Pen limit_pen{.colour = limit_colour, .width = 1.5, .dash = "dot"};
    OrderedJson other_limit = profile(opposite, limit_name, "kPa", 1, limit_pen);
    other_limit["showlegend"] = false;
    OrderedJson layout = profile_layout(frame(name, "kPa"), true);
    layout["xaxis"]["range"] = reach_of(reaction);
    add(combination.getcombIndex(), "reaction",
        {"Reazione del terreno e suo limite, per unità di area della paratia. Positiva verso "
         "terra.",
         "Reaction of the soil and its limit, by area of the wall. Positive towards the retained "
         "side."},
        {profile(limit, limit_name, "kPa", 1, limit_pen), std::move(other_limit),
         profile(reaction, name, "kPa", 1, {.colour = colour_of(2), .filled = true})},
        std::move(layout));
  }

  // Limits grow with depth far beyond what is used: the reaction decides what is in view.
  static OrderedJson reach_of(const Line& line) {
    double reach = 0.0;
    for (const double value : line.x) {
      reach = std::max(reach, std::abs(value));
    }
    return reach > 0.0 ? OrderedJson({-1.6 * reach, 1.6 * reach}) : OrderedJson({-1.0, 1.0});
  }

  void draw_use(const xBendShearCombResults& result) {
    Line bending;
    Line shear;
    for (const xSectionCheck& section : result.sections) {
      bending.add(inverse(section.flex.getSf()), m_of_mm(section.abscissa));
      shear.add(inverse(section.shear.getSf()), m_of_mm(section.abscissa));
    }
    const Both name{"Sfruttamento", "Use of the strength"};
    Line full;
    full.add(1.0, 0.0);
    full.add(1.0, project_.wall.length_m);
    add(result.getCombIndex(), "use",
        {"Sfruttamento delle sezioni: 1 è la resistenza di calcolo.",
         "Use of the sections: 1 is the design strength."},
        {profile(bending, {"Pressoflessione", "Bending"}, "", 2, {.colour = colour_of(1)}),
         profile(shear, shear_name, "", 2, {.colour = colour_of(0), .dash = "dash"}),
         profile(full, {"Limite", "Limit"}, "", 2,
                 {.colour = limit_colour, .width = 1.5, .dash = "dot"})},
        profile_layout(frame(name, ""), true));
  }

  // Reinforcement goes on in steps, and its axis begins at nothing.
  static OrderedJson stepped(OrderedJson trace) {
    trace["line"]["shape"] = "vh";
    return trace;
  }
  OrderedJson area_layout(const Both& quantity, const char* unit, bool legend) const {
    OrderedJson layout = profile_layout(frame(quantity, unit), legend);
    layout["xaxis"]["rangemode"] = "tozero";
    return layout;
  }

  void draw_reinforcement() {
    const xReinforcement& bars = outcome_.ultimate.structuralDesign.checkedReinforcement;
    if (bars.sections.empty()) return;
    Line excavation;
    Line retained;
    Line stirrups;
    for (const auto& section : bars.sections) {
      const double depth = m_of_mm(section->getAbscissa());
      const auto* rectangle = dynamic_cast<const xReinfRectSection*>(section.get());
      excavation.add(cm2_of_mm2(rectangle ? rectangle->AValle() : section->Atot()), depth);
      if (rectangle) retained.add(cm2_of_mm2(rectangle->AMonte()), depth);
      stirrups.add(cm2_m_of_mm2_mm(section->getBracket().AswForStep()), depth);
    }
    const bool one_ring = retained.x.empty();
    OrderedJson data = OrderedJson::array();
    data.push_back(stepped(profile(excavation,
                                   one_ring ? Both{"Barre, tutte", "Bars, all of them"}
                                            : Both{"Lato scavo", "Excavation side"},
                                   "cm²", 2, {.colour = colour_of(1)})));
    if (!one_ring) {
      data.push_back(stepped(profile(retained, {"Lato terra", "Retained side"}, "cm²", 2,
                                     {.colour = colour_of(0), .dash = "dash"})));
    }
    add(0, "bars",
        {"Armatura longitudinale lungo la paratia.", "Longitudinal bars along the wall."},
        std::move(data), area_layout({"Area", "Area"}, "cm²", true));
    add(0, "stirrups",
        {"Staffe lungo la paratia, tutti i bracci.", "Stirrups along the wall, all legs."},
        OrderedJson::array({stepped(
            profile(stirrups, {"Staffe", "Stirrups"}, "cm²/m", 2, {.colour = colour_of(2)}))}),
        area_layout({"Area per lunghezza", "Area by length"}, "cm²/m", false));
  }

  OrderedJson outline(const Line& line, const Both& name, const std::string& colour) const {
    OrderedJson trace = profile(line, name, "m", 2, {.colour = colour, .width = 1.5});
    trace["hoverinfo"] = "skip";
    trace.erase("hovertemplate");
    return trace;
  }

  // The arc along the slices.
  static Line arc(const xSlopeStability& result) {
    constexpr int steps = 180;
    const stabChekData& data = result.getstabChekData();
    double from = data.xc;
    double to = data.xc;
    for (const auto& stripe : result.getStripesMin()) {
      for (const xClipData& piece : stripe) {
        for (const auto& vertex : piece.polygon) {
          from = std::min(from, vertex(0));
          to = std::max(to, vertex(0));
        }
      }
    }
    Line line;
    for (int i = 0; i <= steps; ++i) {
      const double x = from + (to - from) * i / steps;
      const double rise =
          std::sqrt(std::max(0.0, data.radius * data.radius - (x - data.xc) * (x - data.xc)));
      line.add(m_of_mm(x), m_of_mm(data.yc - rise));
    }
    return line;
  }

  // The outlines of all layers, with a gap between two.
  Line layers() const {
    Line line;
    for (const xBoundSoilLayer& layer : job_.data.soilLayers) {
      for (const auto& polygon : layer.polygons) {
        for (const auto& vertex : polygon) {
          line.add(m_of_mm(vertex(0)), m_of_mm(vertex(1)));
        }
        line.add(std::nan(""), std::nan(""));
      }
    }
    return line;
  }

  // The layers reach far beyond what is tried: centres, arc and wall are in view.
  static OrderedJson view_of(const Line& centres, const Line& arc, const Line& wall) {
    constexpr double border = 0.04;
    const auto range = [](std::vector<double> values, const std::vector<double>& more,
                          const std::vector<double>& yet_more) {
      values.insert(values.end(), more.begin(), more.end());
      values.insert(values.end(), yet_more.begin(), yet_more.end());
      const auto [low, high] = std::minmax_element(values.begin(), values.end());
      const double beyond = border * (*high - *low);
      return OrderedJson({*low - beyond, *high + beyond});
    };
    OrderedJson layout = plane_layout({"x [m]", "x [m]"}, {"y [m]", "y [m]"});
    layout["xaxis"]["range"] = range(centres.x, arc.x, wall.x);
    layout["yaxis"]["range"] = range(centres.y, arc.y, wall.y);
    layout["yaxis"]["constrain"] = "domain";
    return layout;
  }

  void draw_centres(const xSlopeStability& result) {
    Line centres;
    OrderedJson factors = OrderedJson::array();
    OrderedJson radii = OrderedJson::array();
    for (const xGridPointResults& point : result.get_gridPointRes()) {
      if (!(point.sf < nothing_to_verify)) continue;
      centres.add(m_of_mm(point.center.x), m_of_mm(point.center.y));
      factors.push_back(point.sf);
      radii.push_back(m_of_mm(point.radius));
    }
    if (centres.x.empty()) return;
    const stabChekData& worst = result.getstabChekData();
    OrderedJson map = {
        {"type", "scatter"},
        {"mode", "markers"},
        {"showlegend", false},
        {"x", centres.x},
        {"y", centres.y},
        {"text", radii},
        {"marker",
         {{"size", 9},
          {"color", factors},
          {"colorscale", "Viridis"},
          {"cmin", worst.sf},
          {"cmax", 2.0 * worst.sf},
          {"colorbar",
           {{"title", {{"text", Both{"F [-]", "F [-]"}}}}, {"thickness", 12}, {"len", 0.9}}}}},
        {"hovertemplate",
         "x %{x:.2f} m, y %{y:.2f} m<br>R %{text:.2f} m<br>F %{marker.color:.3f}<extra></extra>"}};
    Line wall;
    wall.add(0.0, 0.0);
    wall.add(0.0, -project_.wall.length_m);
    Line centre;
    centre.add(m_of_mm(worst.xc), m_of_mm(worst.yc));
    OrderedJson mark = outline(centre, {"Centro critico", "Governing centre"}, limit_colour);
    mark["mode"] = "markers";
    mark["marker"] = {{"symbol", "circle-open"},
                      {"size", 16},
                      {"color", limit_colour},
                      {"line", {{"width", 2.5}}}};
    const Line circle = arc(result);
    OrderedJson layout = view_of(centres, circle, wall);
    add(result.getCombIndex(), "slip-circles",
        Both{"Fattore di sicurezza del cerchio peggiore per ogni centro; x dall'asse della paratia "
             "verso terra, y dalla testa verso l'alto. Minimo ",
             "Safety factor of the worst circle at each centre; x from the wall's axis towards the "
             "retained side, y upwards from its head. Smallest "}
            + decimals(fmt::format("{:.3f}.", worst.sf)),
        {std::move(map), std::move(mark),
         outline(circle, {"Cerchio critico", "Governing circle"}, limit_colour),
         outline(layers(), {"Strati", "Layers"}, "#9a6b3f"),
         outline(wall, {"Paratia", "Wall"}, "#49535b")},
        std::move(layout), true);
  }

  const Project& project_;
  const Job& job_;
  const Outcome& outcome_;
  std::vector<Figure> figures_;
};

}  // namespace

std::vector<Figure> figures(const Project& project, const Job& job, const Outcome& outcome) {
  return Drawer(project, job, outcome).all();
}

}  // namespace ostrel::host
