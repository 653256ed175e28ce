// SPDX-License-Identifier: Apache-2.0
#include "plot.h"

#include <fmt/format.h>

#include <array>
#include <cmath>

namespace ostrel::host {

namespace {

constexpr double letters_px = 12.0;

// JSON has no infinity; a gap is a null.
OrderedJson finite(const std::vector<double>& values) {
  OrderedJson list = OrderedJson::array();
  for (const double value : values) {
    list.push_back(std::isfinite(value) ? OrderedJson(value) : OrderedJson());
  }
  return list;
}

OrderedJson axis(const Both& title) {
  return {{"title", {{"text", title}, {"standoff", 6}}},
          {"zeroline", true},
          {"zerolinewidth", 1.5},
          {"ticks", "outside"},
          {"ticklen", 4},
          {"nticks", 6}};
}

OrderedJson bare_layout() {
  return {{"autosize", true},
          {"paper_bgcolor", "rgba(0,0,0,0)"},
          {"plot_bgcolor", "rgba(0,0,0,0)"},
          {"font", {{"size", letters_px}}},
          {"hovermode", "closest"},
          {"dragmode", false},
          {"margin", {{"l", 52}, {"r", 14}, {"t", 12}, {"b", 46}}}};
}

}  // namespace

const std::string& colour_of(std::size_t place) {
  static const std::array<std::string, colour_count> colours{
      "#2f7fc1", "#d8761c", "#1f9c76", "#b8549a", "#8a6d3b", "#5b6fd6", "#c8a300", "#7d8791"};
  return colours[place % colour_count];
}

OrderedJson profile(const Line& line, const Both& name, const std::string& unit, int digits,
                    const Pen& pen) {
  const std::string value = fmt::format("%{{x:.{}f}} {}", digits, unit);
  OrderedJson trace = {{"type", "scatter"},
                       {"mode", pen.marked ? "lines+markers" : "lines"},
                       {"name", name},
                       {"x", finite(line.x)},
                       {"y", finite(line.y)},
                       {"line", {{"color", pen.colour}, {"width", pen.width}, {"dash", pen.dash}}},
                       {"hovertemplate", value}};
  if (pen.marked) trace["marker"] = {{"size", 4}, {"color", pen.colour}};
  if (pen.filled) {
    trace["fill"] = "tozerox";
    trace["fillcolor"] = pen.colour + "22";
  }
  return trace;
}

OrderedJson profile_layout(const ProfileFrame& frame, bool legend) {
  OrderedJson layout = bare_layout();
  const std::string unit = frame.unit.empty() ? "-" : frame.unit;
  layout["xaxis"] = axis({fmt::format("{} [{}]", frame.quantity.italian, unit),
                          fmt::format("{} [{}]", frame.quantity.english, unit)});
  layout["yaxis"] = axis({"Profondità [m]", "Depth [m]"});
  layout["yaxis"]["range"] = {1.02 * frame.wall_m, -0.02 * frame.wall_m};
  layout["yaxis"]["zeroline"] = false;
  layout["yaxis"]["hoverformat"] = ".2f";
  layout["hovermode"] = "y unified";
  layout["shapes"] = OrderedJson::array();
  layout["shapes"].push_back({{"type", "line"},
                              {"xref", "paper"},
                              {"x0", 0},
                              {"x1", 1},
                              {"y0", frame.excavation_m},
                              {"y1", frame.excavation_m},
                              {"layer", "below"},
                              {"line", {{"color", "#9a6b3f"}, {"width", 1}, {"dash", "dash"}}}});
  layout["showlegend"] = legend;
  if (legend) {
    layout["legend"] = {{"orientation", "h"}, {"x", 0}, {"y", 1.02}, {"yanchor", "bottom"}};
  }
  return layout;
}

OrderedJson plane_layout(const Both& x_title, const Both& y_title) {
  OrderedJson layout = bare_layout();
  layout["xaxis"] = axis(x_title);
  layout["yaxis"] = axis(y_title);
  layout["yaxis"]["scaleanchor"] = "x";
  layout["xaxis"]["constrain"] = "domain";
  layout["xaxis"]["zeroline"] = false;
  layout["yaxis"]["zeroline"] = false;
  layout["legend"] = {{"orientation", "h"}, {"x", 0}, {"y", 1.02}, {"yanchor", "bottom"}};
  return layout;
}

}  // namespace ostrel::host
