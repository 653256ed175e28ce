#pragma once
/// @file  Drawings as SVG, to stand inside a page. Room: host
// SPDX-License-Identifier: Apache-2.0
//
// Colours and pens are the page's: an element names the class that it belongs to. A text in both
// languages is drawn twice, each with its language; the page shows one of them.

#include "bilingual.h"

#include <cstdint>
#include <string>
#include <vector>

namespace ostrel::host {

/// A text for the inside of an element or of an attribute in quotation marks. Control characters,
/// which no document may hold, become question marks, and so do bytes that are no UTF-8.
std::string escaped(const std::string& text);

/// A place on the sheet: x to the right, y downwards.
struct Spot {
  double x = 0.0;
  double y = 0.0;
};

/// Which part of a text stands at its place.
enum class Hold : std::int32_t { start, middle, end };

/// A drawing that grows element by element.
class Svg {
public:
  Svg(double width, double height) : width_(width), height_(height) {}

  void line(Spot from, Spot to, const char* style);
  /// Joined points; closed on request.
  void path(const std::vector<Spot>& points, bool closed, const std::string& style);
  void rectangle(Spot corner, double width, double height, const char* style);
  void circle(Spot centre, double radius, const char* style);
  /// A line with a head at its end.
  void arrow(Spot from, Spot to, const char* style);
  /// A line between two places, with a tick at either end and a text beside its middle.
  void dimension(Spot from, Spot to, const Both& text);
  void text(Spot at, const Both& text, Hold hold, const char* style);
  /// The same with its middle at a place, turned by so many degrees, clockwise where positive.
  void turned_text(Spot at, double degrees, const Both& text, const char* style);

  /// What follows until `end_group` is clipped by the closed outlines, or by a rectangle.
  void begin_clip(const std::string& id, const std::vector<std::vector<Spot>>& outlines);
  void begin_clip(const std::string& id, Spot corner, double width, double height);
  void end_group() { body_ += "</g>\n"; }

  /// The whole drawing. @param title  for those who do not see it; the page takes its language
  std::string markup(const Both& title) const;

private:
  void write_text(Spot at, const Both& text, const std::string& attributes, const char* style);

  double width_;
  double height_;
  std::string body_;
};

}  // namespace ostrel::host
