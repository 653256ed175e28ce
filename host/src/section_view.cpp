// SPDX-License-Identifier: Apache-2.0
#include "section_view.h"

#include "units.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace ostrel::host {

namespace {

constexpr double right_margin = 16.0;
constexpr double top_margin = 14.0;
constexpr double bottom_margin = 34.0;

void widen_for_circle(const xSlopeStability& circle, Window& view) {
  const stabChekData& data = circle.getstabChekData();
  for (const auto& stripe : circle.getStripesMin()) {
    for (const xClipData& piece : stripe) {
      for (const auto& vertex : piece.polygon) {
        view.left = std::min(view.left, 1.05 * m_of_mm(vertex(0)));
        view.right = std::max(view.right, 1.05 * m_of_mm(vertex(0)));
      }
    }
  }
  view.bottom = std::min(view.bottom, m_of_mm(data.yc - data.radius) - 1.0);
}

void widen_for_anchors(const Project& project, Window& view) {
  for (const AnchorInput& anchor : project.anchors) {
    const double reach = anchor.free_length_m + anchor.bond_length_m;
    const double slope = rad_of_deg(anchor.inclination_deg);
    view.right = std::max(view.right, 1.08 * reach * std::cos(slope));
    view.bottom = std::min(view.bottom, anchor.level_m - 1.05 * reach * std::sin(slope) - 0.5);
  }
}

void widen_for_loads(const Project& project, Window& view) {
  for (const LoadInput& load : project.loads) {
    for (const GroundLoadInput& part : load.on_ground) {
      const double end = part.distance_m + part.width_m;
      if (end < 3.0 * project.wall.length_m) view.right = std::max(view.right, 1.1 * end);
    }
  }
}

Window extent_of_ground(const Job& job) {
  constexpr double far = std::numeric_limits<double>::max();
  Window extent{.left = far, .right = -far, .bottom = far, .top = -far};
  for (const xBoundSoilLayer& layer : job.data.soilLayers) {
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

Window window_of(const Project& project, const Job& job, const xSlopeStability* circle) {
  const double length = project.wall.length_m;
  Window view{.left = -0.8 * length, .right = 1.1 * length, .bottom = -1.3 * length, .top = 0.0};
  widen_for_anchors(project, view);
  widen_for_loads(project, view);
  if (circle != nullptr) widen_for_circle(*circle, view);
  const Window ground = extent_of_ground(job);
  view.left = std::max(view.left, ground.left);
  view.right = std::min(view.right, ground.right);
  view.bottom = std::max(view.bottom, ground.bottom);
  view.top = std::max(0.0, ground.top);
  if (project.water) {
    view.top =
        std::max({view.top, project.water->retained_level_m, project.water->excavated_level_m});
  }
  view.top += 0.02 * length;
  return view;
}

std::size_t count_of_ground_loads(const Project& project) {
  std::size_t count = 0;
  for (const LoadInput& load : project.loads) {
    count += load.on_ground.size();
  }
  return count;
}

}  // namespace

SectionView::SectionView(const Project& project, const Job& job, const xSlopeStability* circle)
    : window_(window_of(project, job, circle)),
      scale_((section_width - section_left - right_margin) / (window_.right - window_.left)),
      load_rows_(static_cast<double>(count_of_ground_loads(project))) {}

double SectionView::height() const {
  return top_margin + load_row * load_rows_ + (window_.top - window_.bottom) * scale_
       + bottom_margin;
}

Spot SectionView::at(double x, double y) const {
  return {section_left + (x - window_.left) * scale_,
          top_margin + load_row * load_rows_ + (window_.top - y) * scale_};
}

std::vector<Spot> SectionView::outline(
    const std::vector<arma::Col<double>::fixed<2>>& polygon) const {
  std::vector<Spot> spots;
  for (const auto& vertex : polygon) {
    spots.push_back(at(m_of_mm(vertex(0)), m_of_mm(vertex(1))));
  }
  return spots;
}

double SectionView::foot_of_load(std::size_t row) const {
  return top_margin + load_row * static_cast<double>(row + 1) - 4.0;
}

std::string level_text(double level) {
  if (std::abs(level) < 0.005) return "±0.00";
  const std::string sign = level < 0.0 ? "−" : "+";
  return sign + fmt::format("{:.2f}", std::abs(level));
}

}  // namespace ostrel::host
