// SPDX-License-Identifier: Apache-2.0
#include "section_drawing.h"

#include "svg.h"
#include "units.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <optional>
#include <vector>

namespace ostrel::host {

namespace {

// The sheet, in units that are pixels where it is shown 1000 wide.
constexpr double sheet_width = 1000.0;
constexpr double left_margin = 124.0;
constexpr double right_margin = 16.0;
constexpr double top_margin = 14.0;
constexpr double bottom_margin = 34.0;
constexpr double load_row = 44.0;  ///< height of one load above the ground
constexpr double arrow_step = 24.0;
constexpr double letter = 14.0;
constexpr std::size_t soil_styles = 6;
constexpr double nothing_to_verify = 1e9;

/// What is in view, in the ground's own axes [m].
struct Window {
  double left = 0.0;
  double right = 0.0;
  double bottom = 0.0;
  double top = 0.0;
};

Both with_metres(const char* italian, const char* english, double metres) {
  return {fmt::format("{} {:.2f} m", italian, metres), fmt::format("{} {:.2f} m", english, metres)};
}

std::string level_text(double level) {
  if (std::abs(level) < 0.005) return "±0.00";
  const std::string sign = level < 0.0 ? "−" : "+";
  return sign + fmt::format("{:.2f}", std::abs(level));
}

const xSlopeStability* worst_circle(const Outcome& outcome) {
  const xSlopeStability* worst = nullptr;
  for (const xSlopeStability& result : slope_results(outcome)) {
    const double factor = result.getSf();
    if (factor < nothing_to_verify && (worst == nullptr || factor < worst->getSf()))
      worst = &result;
  }
  return worst;
}

class Section {
public:
  Section(const Project& project, const Job& job, const Outcome& outcome)
      : project_(project),
        job_(job),
        circle_(worst_circle(outcome)),
        window_(window()),
        scale_((sheet_width - left_margin - right_margin) / (window_.right - window_.left)),
        load_rows_(static_cast<double>(rows_of_loads())),
        svg_(sheet_width, top_margin + load_row * load_rows_
                              + (window_.top - window_.bottom) * scale_ + bottom_margin) {}

  std::string markup() {
    svg_.begin_clip("section-view", at(window_.left, window_.top),
                    (window_.right - window_.left) * scale_,
                    (window_.top - window_.bottom) * scale_);
    draw_ground();
    draw_free_water();
    draw_slip_circle();
    svg_.end_group();
    draw_water();
    draw_anchors();
    draw_wall();
    draw_supports();
    draw_ground_loads();
    draw_wall_loads();
    draw_layer_names();
    draw_dimensions();
    draw_scale();
    return svg_.markup({"Sezione della paratia e del terreno", "Section of wall and ground"});
  }

private:
  // Wide enough for the wall, its anchors, its loads and the slip circle, but not beyond the ground.
  Window window() const {
    const double length = project_.wall.length_m;
    Window view{.left = -0.8 * length, .right = 1.1 * length, .bottom = -1.3 * length, .top = 0.0};
    for (const AnchorInput& anchor : project_.anchors) {
      const double reach = anchor.free_length_m + anchor.bond_length_m;
      const double slope = rad_of_deg(anchor.inclination_deg);
      view.right = std::max(view.right, 1.08 * reach * std::cos(slope));
      view.bottom = std::min(view.bottom, anchor.level_m - 1.05 * reach * std::sin(slope) - 0.5);
    }
    for (const LoadInput& load : project_.loads) {
      for (const GroundLoadInput& part : load.on_ground) {
        const double end = part.distance_m + part.width_m;
        if (end < 3.0 * length) view.right = std::max(view.right, 1.1 * end);
      }
    }
    widen_for_circle(view);
    const Window ground = extent_of_ground();
    view.left = std::max(view.left, ground.left);
    view.right = std::min(view.right, ground.right);
    view.bottom = std::max(view.bottom, ground.bottom);
    view.top = std::max(0.0, ground.top);
    if (project_.water) {
      view.top =
          std::max({view.top, project_.water->retained_level_m, project_.water->excavated_level_m});
    }
    view.top += 0.02 * length;
    return view;
  }

  void widen_for_circle(Window& view) const {
    if (circle_ == nullptr) return;
    const stabChekData& data = circle_->getstabChekData();
    for (const auto& stripe : circle_->getStripesMin()) {
      for (const xClipData& piece : stripe) {
        for (const auto& vertex : piece.polygon) {
          view.left = std::min(view.left, 1.05 * m_of_mm(vertex(0)));
          view.right = std::max(view.right, 1.05 * m_of_mm(vertex(0)));
        }
      }
    }
    view.bottom = std::min(view.bottom, m_of_mm(data.yc - data.radius) - 1.0);
  }

  Window extent_of_ground() const {
    constexpr double far = std::numeric_limits<double>::max();
    Window extent{.left = far, .right = -far, .bottom = far, .top = -far};
    for (const xBoundSoilLayer& layer : job_.data.soilLayers) {
      for (const auto& polygon : layer.polygons) {
        for (const auto& vertex : polygon) {
          extent.left = std::min(extent.left, m_of_mm(vertex(0)));
          extent.right = std::max(extent.right, m_of_mm(vertex(0)));
          extent.bottom = std::min(extent.bottom, m_of_mm(vertex(1)));
          extent.top = std::max(extent.top, m_of_mm(vertex(1)));
        }
      }
    }
    return extent;
  }

  std::size_t rows_of_loads() const {
    std::size_t rows = 0;
    for (const LoadInput& load : project_.loads)
      rows += load.on_ground.size();
    return rows;
  }

  Spot at(double x, double y) const {
    return {left_margin + (x - window_.left) * scale_,
            top_margin + load_row * load_rows_ + (window_.top - y) * scale_};
  }

  std::vector<Spot> outline(const std::vector<arma::Col<double>::fixed<2>>& polygon) const {
    std::vector<Spot> spots;
    for (const auto& vertex : polygon)
      spots.push_back(at(m_of_mm(vertex(0)), m_of_mm(vertex(1))));
    return spots;
  }

  // The first layer that owns a place is the one drawn there, so the last is drawn first.
  void draw_ground() {
    const auto& layers = job_.data.soilLayers;
    for (std::size_t i = layers.size(); i-- > 0;) {
      for (const auto& polygon : layers[i].polygons) {
        svg_.path(outline(polygon), true, fmt::format("soil soil-{}", i % soil_styles));
      }
    }
  }

  // The ground at `x`: its top, and the stretch of each layer.
  struct Stretch {
    std::size_t layer = 0;
    double top = 0.0;
    double bottom = 0.0;
  };
  std::vector<Stretch> ground_at(double x) const {
    std::vector<Stretch> stretches;
    for (std::size_t i = 0; i < job_.data.soilLayers.size(); ++i) {
      for (const auto& polygon : job_.data.soilLayers[i].polygons) {
        std::vector<double> cuts;
        for (std::size_t k = 0; k + 1 < polygon.size(); ++k) {
          const double x0 = m_of_mm(polygon[k](0));
          const double x1 = m_of_mm(polygon[k + 1](0));
          if ((x0 <= x) == (x1 <= x)) continue;
          const double part = (x - x0) / (x1 - x0);
          cuts.push_back(m_of_mm(polygon[k](1) + part * (polygon[k + 1](1) - polygon[k](1))));
        }
        std::sort(cuts.begin(), cuts.end());
        for (std::size_t k = 0; k + 1 < cuts.size(); k += 2)
          stretches.push_back({.layer = i, .top = cuts[k + 1], .bottom = cuts[k]});
      }
    }
    return stretches;
  }

  double surface_at(double x) const {
    double top = -std::numeric_limits<double>::max();
    for (const Stretch& stretch : ground_at(x))
      top = std::max(top, stretch.top);
    return std::max(top, window_.bottom);
  }

  void draw_free_water() {
    if (!project_.water) return;
    const auto pool = [&](double from, double to, double level, double ground) {
      if (!(level > ground)) return;
      const Spot corner = at(from, level);
      svg_.rectangle(corner, at(to, ground).x - corner.x, at(to, ground).y - corner.y, "pool");
    };
    pool(window_.left, 0.0, project_.water->excavated_level_m, -project_.excavation_depth_m);
  }

  void draw_slip_circle() {
    if (circle_ == nullptr) return;
    for (const auto& stripe : circle_->getStripesMin()) {
      for (const xClipData& piece : stripe)
        svg_.path(outline(piece.polygon), true, "slice");
    }
    std::vector<std::vector<Spot>> ground;
    for (const xBoundSoilLayer& layer : job_.data.soilLayers) {
      for (const auto& polygon : layer.polygons)
        ground.push_back(outline(polygon));
    }
    const stabChekData& data = circle_->getstabChekData();
    const Spot centre = at(m_of_mm(data.xc), m_of_mm(data.yc));
    svg_.begin_clip("section-ground", ground);
    svg_.circle(centre, m_of_mm(data.radius) * scale_, "slip");
    svg_.end_group();
  }

  void draw_level_of_water(double from, double to, double level, Hold hold) {
    svg_.line(at(from, level), at(to, level), "water");
    const double x = hold == Hold::start ? from + 0.06 * (to - from) : to - 0.06 * (to - from);
    const Spot mark = at(x, level);
    svg_.path({{mark.x, mark.y}, {mark.x - 6, mark.y - 10}, {mark.x + 6, mark.y - 10}}, true,
              "water-mark");
    svg_.line({mark.x - 5, mark.y + 3}, {mark.x + 5, mark.y + 3}, "water");
    svg_.line({mark.x - 2.5, mark.y + 6}, {mark.x + 2.5, mark.y + 6}, "water");
    const std::string text = level_text(level) + " m";
    svg_.text({mark.x + (hold == Hold::start ? 12.0 : -12.0), mark.y + letter + 3}, same(text),
              hold, "water-text");
  }

  void draw_water() {
    if (!project_.water) return;
    draw_level_of_water(0.0, window_.right, project_.water->retained_level_m, Hold::end);
    draw_level_of_water(window_.left, 0.0, project_.water->excavated_level_m, Hold::start);
  }

  double thickness_m() const {
    const WallInput& wall = project_.wall;
    return (wall.is_diaphragm ? wall.thickness_mm : wall.diameter_mm) / 1e3;
  }

  void draw_wall() {
    const double half = std::max(thickness_m() / 2.0, 2.5 / scale_);
    const Spot head = at(-half, 0.0);
    svg_.rectangle(head, 2.0 * half * scale_, project_.wall.length_m * scale_, "concrete");
    const WallInput& wall = project_.wall;
    if (wall.cap_beam_height_m > 0.0 && wall.cap_beam_width_m > 0.0) {
      svg_.rectangle(at(-wall.cap_beam_width_m / 2.0, 0.0), wall.cap_beam_width_m * scale_,
                     wall.cap_beam_height_m * scale_, "concrete");
    }
    svg_.line(at(window_.left, -project_.excavation_depth_m),
              at(-half, -project_.excavation_depth_m), "surface");
  }

  void draw_anchors() {
    for (const AnchorInput& anchor : project_.anchors) {
      const double slope = rad_of_deg(anchor.inclination_deg);
      const auto along = [&](double distance) {
        return at(distance * std::cos(slope), anchor.level_m - distance * std::sin(slope));
      };
      const double end = anchor.free_length_m + anchor.bond_length_m;
      svg_.line(along(0.0), along(anchor.free_length_m), "tendon");
      const double half =
          std::max(anchor.bond_diameter_mm * anchor.bond_enlargement / 2e3, 3.0 / scale_);
      const double dx = half * std::sin(slope) * scale_;
      const double dy = half * std::cos(slope) * scale_;
      const Spot first = along(anchor.free_length_m);
      const Spot last = along(end);
      svg_.path({{first.x + dx, first.y - dy},
                 {last.x + dx, last.y - dy},
                 {last.x - dx, last.y + dy},
                 {first.x - dx, first.y + dy}},
                true, "bond");
      const Spot plate = at(-thickness_m() / 2.0, anchor.level_m);
      svg_.rectangle({plate.x - 5, plate.y - 8}, 5, 16, "plate");
      const Spot label = along(end);
      const std::string lengths =
          fmt::format("{} {:.2f} + {:.2f} m, {:.0f}°", anchor.name, anchor.free_length_m,
                      anchor.bond_length_m, anchor.inclination_deg);
      svg_.text({label.x, label.y + letter + 6}, same(lengths), Hold::end, "label");
    }
  }

  void draw_supports() {
    const double half = thickness_m() / 2.0;
    const auto draw = [&](const SupportInput& support, const char* style) {
      const Spot tip = at(-half, support.level_m);
      if (support.horizontal) {
        svg_.path({tip, {tip.x - 14, tip.y - 8}, {tip.x - 14, tip.y + 8}}, true, style);
        svg_.line({tip.x - 17, tip.y - 9}, {tip.x - 17, tip.y + 9}, style);
      }
      if (support.vertical)
        svg_.path({tip, {tip.x - 8, tip.y + 14}, {tip.x + 8, tip.y + 14}}, true, style);
      if (support.rotation) svg_.rectangle({tip.x - 5, tip.y - 5}, 10, 10, style);
    };
    for (const SupportInput& support : project_.fixed_supports)
      draw(support, "support");
    for (const SupportInput& support : project_.elastic_supports)
      draw(support, "support elastic");
  }

  void draw_ground_loads() {
    std::size_t row = 0;
    for (const LoadInput& load : project_.loads) {
      for (const GroundLoadInput& part : load.on_ground)
        draw_ground_load(load.name, part, row++);
    }
  }

  void draw_ground_load(const std::string& name, const GroundLoadInput& load, std::size_t row) {
    using Kind = GroundLoadInput::Kind;
    const bool spread = load.kind == Kind::uniform || load.kind == Kind::strip;
    const bool whole = load.kind == Kind::uniform;
    const double from = whole ? 0.0 : load.distance_m;
    const double to = whole ? window_.right : load.distance_m + load.width_m;
    if (from > window_.right) return;
    const double base = top_margin + load_row * static_cast<double>(row + 1) - 4.0;
    const double height = load_row - letter - 12.0;
    const double x0 = at(from, 0.0).x;
    const double x1 = at(std::min(to, window_.right), 0.0).x;
    if (spread) {
      const double largest = std::max(std::abs(load.value), std::abs(load.end_value));
      const auto size = [&](double x) {
        if (whole || !(largest > 0.0)) return height;
        const double part = x1 > x0 ? (x - x0) / (x1 - x0) : 0.0;
        const double value = load.value + part * (load.end_value - load.value);
        return height * std::abs(value) / largest;
      };
      svg_.line({x0, base - size(x0)}, {x1, base - size(x1)}, "load");
      const double count = std::max(1.0, std::floor((x1 - x0) / arrow_step));
      for (double i = 0.0; i <= count; ++i) {
        const double x = x0 + (x1 - x0) * i / count;
        if (size(x) > 4.0) svg_.arrow({x, base - size(x)}, {x, base}, "load");
      }
      svg_.line({x0, base}, {x1, base}, "load");
    } else {
      svg_.arrow({x0, base - height}, {x0, base}, "load");
    }
    svg_.text({x0, base - height - 5.0}, same(name + ", " + value_of(load)), Hold::start,
              "load-text");
  }

  static std::string value_of(const GroundLoadInput& load) {
    switch (load.kind) {
      case GroundLoadInput::Kind::uniform:
        return fmt::format("{} kPa", load.value);
      case GroundLoadInput::Kind::strip:
        return fmt::format("{}–{} kPa", load.value, load.end_value);
      case GroundLoadInput::Kind::line:
        return fmt::format("{} kN/m", load.value);
      case GroundLoadInput::Kind::point:
        break;
    }
    return fmt::format("{} kN", load.value);
  }

  void draw_wall_loads() {
    constexpr double size = 40.0;
    for (const LoadInput& load : project_.loads) {
      for (const WallLoadInput& part : load.on_wall) {
        const Spot place = at(0.0, part.level_m);
        const double across = part.horizontal_kN < 0.0 ? -size : size;
        if (std::abs(part.horizontal_kN) > 0.0)
          svg_.arrow({place.x + across, place.y}, place, "load");
        const double along = part.vertical_kN < 0.0 ? size : -size;
        if (std::abs(part.vertical_kN) > 0.0) svg_.arrow({place.x, place.y + along}, place, "load");
        if (std::abs(part.moment_kNm) > 0.0) svg_.circle(place, 11.0, "load moment");
        svg_.text({place.x + size + 6.0, place.y - 6.0}, same(load.name + ", " + value_of(part)),
                  Hold::start, "load-text");
      }
    }
  }

  static std::string value_of(const WallLoadInput& load) {
    const char* by_metre = load.per_metre ? "/m" : "";
    std::string text;
    const auto part = [&](const char* symbol, double value, const char* unit) {
      if (!(std::abs(value) > 0.0)) return;
      text += fmt::format("{}{} {} {}{}", text.empty() ? "" : ", ", symbol, value, unit, by_metre);
    };
    part("H", load.horizontal_kN, "kN");
    part("V", load.vertical_kN, "kN");
    part("M", load.moment_kNm, "kNm");
    return text;
  }

  // A layer that reaches under the excavation is named there, where no anchor crosses it.
  void draw_layer_names() {
    std::vector<bool> named(job_.data.soilLayers.size(), false);
    name_layers(0.97 * window_.left, 4.0 * letter, named);
    name_layers(0.97 * window_.right, 2.0 * letter, named);
  }

  void name_layers(double x, double least_height, std::vector<bool>& named) {
    const Hold hold = x < 0.0 ? Hold::start : Hold::end;
    const double inset = x < 0.0 ? 10.0 : -10.0;
    for (const Stretch& stretch : ground_at(x)) {
      const double top = std::min(stretch.top, window_.top);
      const double bottom = std::max(stretch.bottom, window_.bottom);
      if (named[stretch.layer] || !((top - bottom) * scale_ > least_height)) continue;
      named[stretch.layer] = true;
      const auto& layers = project_.ground.layers;
      const std::size_t soil = stretch.layer < layers.size() ? layers[stretch.layer].soil : 0;
      const SoilInput& data = project_.soils[soil];
      const Spot place = at(x < 0.0 ? window_.left : window_.right, (top + bottom) / 2.0);
      svg_.text({place.x + inset, place.y - 2.0}, same(data.name), hold, "soil-name");
      svg_.text({place.x + inset, place.y + letter + 1.0},
                same(fmt::format("γ {:g} kN/m³ · φ {:g}° · c {:g} kPa", data.unit_weight_kN_m3,
                                 data.friction_angle_deg, data.cohesion_kPa)),
                hold, "soil-data");
    }
  }

  void draw_dimensions() {
    const double length = project_.wall.length_m;
    const double depth = project_.excavation_depth_m;
    const double outer = 24.0;
    const double inner = 62.0;
    const double reach = left_margin - 8.0;
    const auto mark = [&](double level, double from) {
      svg_.line({from, at(0.0, level).y}, {reach, at(0.0, level).y}, "guide");
    };
    mark(0.0, outer - 6.0);
    mark(-depth, inner - 6.0);
    mark(-length, outer - 6.0);
    const auto y = [&](double level) { return at(0.0, level).y; };
    svg_.dimension({inner, y(0.0)}, {inner, y(-depth)}, with_metres("scavo", "excavation", depth));
    svg_.dimension({inner, y(-depth)}, {inner, y(-length)},
                   with_metres("infissione", "embedment", length - depth));
    svg_.dimension({outer, y(0.0)}, {outer, y(-length)}, with_metres("paratia", "wall", length));
    for (const double level : {0.0, -depth, -length}) {
      svg_.text({reach, y(level) - 4.0}, same(level_text(level)), Hold::end, "level");
    }
    if (circle_ != nullptr) {
      svg_.text({at(window_.right, 0.0).x - 10.0, at(0.0, window_.bottom).y - 8.0},
                {fmt::format("cerchio critico: F = {:.3f} ({})", circle_->getSf(),
                             circle_->getCombName()),
                 fmt::format("governing circle: F = {:.3f} ({})", circle_->getSf(),
                             circle_->getCombName())},
                Hold::end, "slip-text");
    }
  }

  // A bar of a round length, about a fifth of the view.
  void draw_scale() {
    const double wanted = 0.2 * (window_.right - window_.left);
    const double decade = std::pow(10.0, std::floor(std::log10(wanted)));
    const double length = wanted >= 5.0 * decade ? 5.0 * decade
                        : wanted >= 2.0 * decade ? 2.0 * decade
                                                 : decade;
    const double y = at(0.0, window_.bottom).y + 16.0;
    const double x = left_margin;
    const double width = length * scale_;
    svg_.rectangle({x, y}, width / 2.0, 5.0, "scale-full");
    svg_.rectangle({x + width / 2.0, y}, width / 2.0, 5.0, "scale-empty");
    svg_.text({x + width + 8.0, y + 8.0}, same(fmt::format("{:g} m", length)), Hold::start,
              "level");
  }

  const Project& project_;
  const Job& job_;
  const xSlopeStability* circle_;
  Window window_;
  double scale_;
  double load_rows_;
  Svg svg_;
};

}  // namespace

std::string section_drawing(const Project& project, const Job& job, const Outcome& outcome) {
  return Section(project, job, outcome).markup();
}

}  // namespace ostrel::host
