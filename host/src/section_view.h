#pragma once
/// @file  What of ground and wall a section shows, and at which scale. Room: host
// SPDX-License-Identifier: Apache-2.0
//
// Of the ground: x from the wall's axis towards the retained side, y upwards from its head [m]. Of
// the sheet: units that are pixels where it is shown 1000 wide, y downwards.

#include "analysis.h"
#include "project.h"
#include "svg.h"

#include <cstddef>
#include <string>
#include <vector>

namespace ostrel::host {

inline constexpr double section_width = 1000.0;
inline constexpr double section_left = 124.0;  ///< margin, with the dimensions of the wall
inline constexpr double load_row = 44.0;       ///< height of one load above the ground
inline constexpr double letter = 14.0;         ///< height of a line of text

/// What is in view, in the ground's own axes [m].
struct Window {
  double left = 0.0;
  double right = 0.0;
  double bottom = 0.0;
  double top = 0.0;
};

class SectionView {
public:
  /// Wide enough for the wall, its anchors, its loads and the slip circle, but not beyond the
  /// ground. @param circle  may be null
  SectionView(const Project& project, const Job& job, const xSlopeStability* circle);

  const Window& window() const { return window_; }
  double scale() const { return scale_; }  ///< units of the sheet by metre
  double height() const;                   ///< of the sheet

  /// Where a place of the ground stands on the sheet.
  Spot at(double x, double y) const;
  /// Likewise for the vertices of a polygon [mm].
  std::vector<Spot> outline(const std::vector<arma::Col<double>::fixed<2>>& polygon) const;
  /// The foot of a load on the ground: each has a row of its own above it.
  double foot_of_load(std::size_t row) const;

private:
  Window window_;
  double scale_;
  double load_rows_;
};

/// A level with its sign, as "−4.50".
std::string level_text(double level);

}  // namespace ostrel::host
