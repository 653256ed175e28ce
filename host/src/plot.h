#pragma once
/// @file  Figures in the form that plotly draws. Room: host
// SPDX-License-Identifier: Apache-2.0
//
// Nothing here says how dark or light the page is: paper and letters take its colours.

#include "bilingual.h"

#include <cstddef>
#include <string>
#include <vector>

namespace ostrel::host {

/// Values and where they stand, both in the order in which they are joined.
struct Line {
  std::vector<double> x;
  std::vector<double> y;

  void add(double x_value, double y_value) {
    x.push_back(x_value);
    y.push_back(y_value);
  }
};

/// How a line looks.
struct Pen {
  std::string colour;
  double width = 2.0;
  std::string dash = "solid";
  bool filled = false;  ///< between the line and the axis of zero
  bool marked = false;  ///< with its points
};

/// After so many the colours come again.
inline constexpr std::size_t colour_count = 8;

/// A colour of its own for each place of a list, told apart by those who see red and green alike.
const std::string& colour_of(std::size_t place);

/// A line over the depth. A value that is not finite leaves a gap.
/// @param name    for the legend and the label at the pointer
/// @param unit    of the values
/// @param digits  after the point, at the pointer
OrderedJson profile(const Line& line, const Both& name, const std::string& unit, int digits,
                    const Pen& pen);

/// What a figure over the depth shares with its neighbours: depth downwards, the whole wall in
/// view, the excavation marked.
struct ProfileFrame {
  Both quantity;
  std::string unit;
  double wall_m = 0.0;
  double excavation_m = 0.0;
};
OrderedJson profile_layout(const ProfileFrame& frame, bool legend);

/// A figure in the plane, with one scale for both axes.
OrderedJson plane_layout(const Both& x_title, const Both& y_title);

}  // namespace ostrel::host
