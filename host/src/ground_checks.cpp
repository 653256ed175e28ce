// SPDX-License-Identifier: Apache-2.0
#include "ground_checks.h"

#include "json_text.h"
#include "project_conversion.h"
#include "units.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string>
#include <vector>

namespace ostrel::host {

namespace {

constexpr double cut_at = 0.1;     // distance of the cut from the wall [mm]
constexpr double thinnest = 1e-8;  // a layer thinner than this is absent [mm]

// Elevations at the wall where the sides of a polygon cross the line of the cut.
void add_crossings(const std::vector<arma::Col<double>::fixed<2>>& polygon,
                   std::vector<double>& elevations) {
  for (std::size_t i = 0; i + 1 < polygon.size(); ++i) {
    const double x = polygon[i](0);
    const double dx = polygon[i + 1](0) - x;
    const double dy = polygon[i + 1](1) - polygon[i](1);
    if (!(std::abs(dx) > thinnest)) continue;
    const double along = (cut_at - x) / dx;
    if (along < 0.0 || along > 1.0) continue;
    elevations.push_back(polygon[i](1) + dy * along - dy / dx * cut_at);
  }
}

std::string level_shown(double elevation_mm) {
  return fmt::format("{:.3f}", m_of_mm(elevation_mm));
}

class GroundCheck {
public:
  GroundCheck(const Project& project, Problems& problems)
      : project_(project),
        problems_(problems),
        texts_(problems.texts()),
        near_(project.calculation.node_spacing_mm / 100.0) {}

  void run() {
    const std::vector<xBoundSoilLayer> layers = to_soil_layers(project_);
    for (std::size_t i = 0; i < layers.size(); ++i) {
      const std::string path = child_path("ground.layers", i);
      const auto span = span_at_wall(layers[i]);
      if (!span) {
        refuse(child_path(path, "polygons_m"), Text::misses_the_wall, Text::across_the_wall);
      } else if (span->top - span->bottom > thinnest) {
        follow(*span, path);
      } else if (project_.ground.by_levels) {
        refuse(path, Text::no_thickness, Text::tops_downwards);
      }
    }
    if (started_ && problems_.empty()) check_foot();
  }

private:
  void refuse(const std::string& path, Text found, Text allowed) {
    problems_.add(path, std::string(texts_(found)), std::string(texts_(allowed)));
  }

  // The layer below those before it.
  void follow(const LayerSpan& span, const std::string& path) {
    if (!started_) {
      check_head(span.top, path);
    } else if (std::abs(span.top - bottom_) > near_) {
      problems_.add(path, texts_(Text::layer_begins, level_shown(span.top)),
                    texts_(Text::layer_must_begin, level_shown(bottom_)));
    }
    started_ = true;
    bottom_ = span.bottom;
  }

  void check_head(double top, const std::string& path) {
    if (top > near_) {
      problems_.add(path, texts_(Text::layer_begins, level_shown(top)),
                    std::string(texts_(Text::not_above_head)));
    } else if (top < -near_) {
      problems_.remark(path, texts_(Text::ground_below_head, level_shown(top)));
    }
  }

  void check_foot() {
    const double foot = -level_mm_of_m(project_.wall.length_m);
    if (bottom_ > foot + near_) {
      problems_.add("ground", texts_(Text::ground_ends, level_shown(bottom_)),
                    texts_(Text::ground_to_foot, level_shown(foot)));
    } else if (bottom_ > foot - near_) {
      problems_.remark("ground", std::string(texts_(Text::ground_ends_at_foot)));
    }
  }

  const Project& project_;
  Problems& problems_;
  const Texts& texts_;
  double near_;  // levels this near are joined by the library [mm]
  bool started_ = false;
  double bottom_ = 0.0;
};

}  // namespace

std::optional<LayerSpan> span_at_wall(const xBoundSoilLayer& layer) {
  std::vector<double> elevations;
  for (const auto& polygon : layer.polygons) {
    add_crossings(polygon, elevations);
  }
  if (elevations.size() < 2) return std::nullopt;
  const auto [bottom, top] = std::minmax_element(elevations.begin(), elevations.end());
  return LayerSpan{.top = *top, .bottom = *bottom};
}

void check_ground(const Project& project, Problems& problems) {
  GroundCheck(project, problems).run();
}

}  // namespace ostrel::host
