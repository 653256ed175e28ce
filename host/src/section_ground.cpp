// SPDX-License-Identifier: Apache-2.0
#include "section_ground.h"

#include "units.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

namespace ostrel::host {

namespace {

constexpr std::size_t soil_styles = 6;

/// What a vertical line cuts out of a layer [m].
struct Stretch {
  std::size_t layer = 0;
  double top = 0.0;
  double bottom = 0.0;
};

std::vector<Stretch> ground_at(double x, const Job& job) {
  std::vector<Stretch> stretches;
  for (std::size_t i = 0; i < job.data.soilLayers.size(); ++i) {
    for (const auto& polygon : job.data.soilLayers[i].polygons) {
      std::vector<double> cuts;
      for (std::size_t k = 0; k + 1 < polygon.size(); ++k) {
        const double x0 = m_of_mm(polygon[k](0));
        const double x1 = m_of_mm(polygon[k + 1](0));
        if ((x0 <= x) == (x1 <= x)) continue;
        const double part = (x - x0) / (x1 - x0);
        cuts.push_back(m_of_mm(polygon[k](1) + part * (polygon[k + 1](1) - polygon[k](1))));
      }
      std::sort(cuts.begin(), cuts.end());
      for (std::size_t k = 0; k + 1 < cuts.size(); k += 2) {
        stretches.push_back({.layer = i, .top = cuts[k + 1], .bottom = cuts[k]});
      }
    }
  }
  return stretches;
}

void draw_level_of_water(const SectionView& view, double from, double to, double level, Hold hold,
                         Svg& svg) {
  svg.line(view.at(from, level), view.at(to, level), "water");
  const double x = hold == Hold::start ? from + 0.06 * (to - from) : to - 0.06 * (to - from);
  const Spot mark = view.at(x, level);
  svg.path({{mark.x, mark.y}, {mark.x - 6, mark.y - 10}, {mark.x + 6, mark.y - 10}}, true,
           "water-mark");
  svg.line({mark.x - 5, mark.y + 3}, {mark.x + 5, mark.y + 3}, "water");
  svg.line({mark.x - 2.5, mark.y + 6}, {mark.x + 2.5, mark.y + 6}, "water");
  svg.text({mark.x + (hold == Hold::start ? 12.0 : -12.0), mark.y + letter + 3},
           decimals(level_text(level) + " m"), hold, "water-text");
}

class LayerNames {
public:
  LayerNames(const SectionView& view, const Project& project, const Job& job, Svg& svg)
      : view_(view), project_(project), job_(job), svg_(svg), named_(job.data.soilLayers.size()) {}

  // At a line of the ground, each layer that is thick enough there and has no name yet.
  void draw(double x, double least_height) {
    const Window& window = view_.window();
    for (const Stretch& stretch : ground_at(x, job_)) {
      const double top = std::min(stretch.top, window.top);
      const double bottom = std::max(stretch.bottom, window.bottom);
      if (named_[stretch.layer] || !((top - bottom) * view_.scale() > least_height)) continue;
      named_[stretch.layer] = true;
      write(stretch.layer, view_.at(x < 0.0 ? window.left : window.right, (top + bottom) / 2.0),
            x < 0.0);
    }
  }

private:
  void write(std::size_t layer, Spot place, bool at_left) {
    const Hold hold = at_left ? Hold::start : Hold::end;
    const double inset = at_left ? 10.0 : -10.0;
    const auto& layers = project_.ground.layers;
    const std::size_t soil = layer < layers.size() ? layers[layer].soil : 0;
    const SoilInput& data = project_.soils[soil];
    svg_.text({place.x + inset, place.y - 2.0}, same(data.name), hold, "soil-name");
    svg_.text({place.x + inset, place.y + letter + 1.0},
              decimals(fmt::format("γ {:g} kN/m³ · φ {:g}° · c {:g} kPa", data.unit_weight_kN_m3,
                                   data.friction_angle_deg, data.cohesion_kPa)),
              hold, "soil-data");
  }

  const SectionView& view_;
  const Project& project_;
  const Job& job_;
  Svg& svg_;
  std::vector<bool> named_;
};

}  // namespace

// The first layer that owns a place is the one drawn there, so the last is drawn first.
void draw_layers(const SectionView& view, const Job& job, Svg& svg) {
  const auto& layers = job.data.soilLayers;
  for (std::size_t i = layers.size(); i-- > 0;) {
    for (const auto& polygon : layers[i].polygons) {
      svg.path(view.outline(polygon), true, fmt::format("soil soil-{}", i % soil_styles));
    }
  }
}

// A layer that reaches under the excavation is named there, where no anchor crosses it.
void draw_layer_names(const SectionView& view, const Project& project, const Job& job, Svg& svg) {
  LayerNames names(view, project, job, svg);
  names.draw(0.97 * view.window().left, 4.0 * letter);
  names.draw(0.97 * view.window().right, 2.0 * letter);
}

void draw_pool(const SectionView& view, const Project& project, Svg& svg) {
  if (!project.water) return;
  const double level = project.water->excavated_level_m;
  const double ground = -project.excavation_depth_m;
  if (!(level > ground)) return;
  const Spot corner = view.at(view.window().left, level);
  const Spot opposite = view.at(0.0, ground);
  svg.rectangle(corner, opposite.x - corner.x, opposite.y - corner.y, "pool");
}

void draw_water(const SectionView& view, const Project& project, Svg& svg) {
  if (!project.water) return;
  draw_level_of_water(view, 0.0, view.window().right, project.water->retained_level_m, Hold::end,
                      svg);
  draw_level_of_water(view, view.window().left, 0.0, project.water->excavated_level_m, Hold::start,
                      svg);
}

}  // namespace ostrel::host
