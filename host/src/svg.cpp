// SPDX-License-Identifier: Apache-2.0
#include "svg.h"

#include <fmt/format.h>

#include <array>
#include <cmath>
#include <cstddef>

namespace ostrel::host {

namespace {

constexpr double head_length = 7.0;
constexpr double head_width = 3.0;
constexpr double tick = 4.0;

std::string points_of(const std::vector<Spot>& points) {
  std::string text;
  for (const Spot& point : points) {
    text += fmt::format("{}{:.2f},{:.2f}", text.empty() ? "" : " ", point.x, point.y);
  }
  return text;
}

// How many bytes the character at `place` takes; 0 where there is no sound one.
std::size_t length_of_character(const std::string& text, std::size_t place) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const unsigned char first = byte(place);
  if (first < 0x80) return 1;
  const std::size_t length = first >= 0xF0 && first < 0xF5 ? 4 : first >= 0xE0 ? 3 : 2;
  if (first < 0xC2 || first >= 0xF5 || place + length > text.size()) return 0;
  for (std::size_t i = 1; i < length; ++i) {
    if ((byte(place + i) & 0xC0) != 0x80) return 0;
  }
  return length;
}

std::string escaped_letter(char letter) {
  switch (letter) {
    case '&':
      return "&amp;";
    case '<':
      return "&lt;";
    case '>':
      return "&gt;";
    case '"':
      return "&quot;";
    case '\'':
      return "&#39;";
    default:
      return static_cast<unsigned char>(letter) < 0x20 || letter == 0x7F ? "?"
                                                                         : std::string(1, letter);
  }
}

}  // namespace

std::string escaped(const std::string& text) {
  std::string result;
  for (std::size_t i = 0; i < text.size();) {
    const std::size_t length = length_of_character(text, i);
    if (length > 1) {
      result += text.substr(i, length);
    } else {
      result += length == 1 ? escaped_letter(text[i]) : "?";
    }
    i += length == 0 ? 1 : length;
  }
  return result;
}

void Svg::line(Spot from, Spot to, const char* style) {
  body_ +=
      fmt::format("<line class=\"{}\" x1=\"{:.2f}\" y1=\"{:.2f}\" x2=\"{:.2f}\" y2=\"{:.2f}\"/>\n",
                  style, from.x, from.y, to.x, to.y);
}

void Svg::path(const std::vector<Spot>& points, bool closed, const std::string& style) {
  body_ += fmt::format("<{} class=\"{}\" points=\"{}\"/>\n", closed ? "polygon" : "polyline", style,
                       points_of(points));
}

void Svg::rectangle(Spot corner, double width, double height, const char* style) {
  body_ += fmt::format(
      "<rect class=\"{}\" x=\"{:.2f}\" y=\"{:.2f}\" width=\"{:.2f}\" height=\"{:.2f}\"/>\n", style,
      corner.x, corner.y, width, height);
}

void Svg::circle(Spot centre, double radius, const char* style) {
  body_ += fmt::format("<circle class=\"{}\" cx=\"{:.2f}\" cy=\"{:.2f}\" r=\"{:.2f}\"/>\n", style,
                       centre.x, centre.y, radius);
}

void Svg::arrow(Spot from, Spot to, const char* style) {
  line(from, to, style);
  const double length = std::hypot(to.x - from.x, to.y - from.y);
  if (!(length > 0.0)) return;
  const double x = (to.x - from.x) / length;
  const double y = (to.y - from.y) / length;
  const Spot base{to.x - head_length * x, to.y - head_length * y};
  path({to,
        {base.x - head_width * y, base.y + head_width * x},
        {base.x + head_width * y, base.y - head_width * x}},
       true, std::string(style) + " head");
}

void Svg::dimension(Spot from, Spot to, const Both& words) {
  line(from, to, "dim");
  for (const Spot& end : {from, to}) {
    line({end.x - tick, end.y + tick}, {end.x + tick, end.y - tick}, "dim");
  }
  const Spot middle{(from.x + to.x) / 2.0, (from.y + to.y) / 2.0};
  if (std::abs(to.x - from.x) > std::abs(to.y - from.y)) {
    text({middle.x, middle.y - 5.0}, words, Hold::middle, "dim-text");
  } else {
    turned_text({middle.x - 5.0, middle.y}, -90.0, words, "dim-text");
  }
}

void Svg::text(Spot at, const Both& words, Hold hold, const char* style) {
  static constexpr std::array<const char*, 3> names{"start", "middle", "end"};
  write_text(at, words, fmt::format("text-anchor=\"{}\"", names[static_cast<std::size_t>(hold)]),
             style);
}

void Svg::turned_text(Spot at, double degrees, const Both& words, const char* style) {
  write_text(at, words,
             fmt::format("text-anchor=\"middle\" transform=\"rotate({:g} {:.2f} {:.2f})\"", degrees,
                         at.x, at.y),
             style);
}

void Svg::write_text(Spot at, const Both& words, const std::string& attributes, const char* style) {
  const auto write = [&](const std::string& language, const std::string& content) {
    body_ += fmt::format("<text class=\"{}\"{} x=\"{:.2f}\" y=\"{:.2f}\" {}>{}</text>\n", style,
                         language, at.x, at.y, attributes, escaped(content));
  };
  if (words.italian == words.english) {
    write("", words.english);
  } else {
    write(" lang=\"it\"", words.italian);
    write(" lang=\"en\"", words.english);
  }
}

void Svg::begin_clip(const std::string& id, const std::vector<std::vector<Spot>>& outlines) {
  body_ += fmt::format("<clipPath id=\"{}\">", id);
  for (const std::vector<Spot>& outline : outlines) {
    body_ += fmt::format("<polygon points=\"{}\"/>", points_of(outline));
  }
  body_ += fmt::format("</clipPath>\n<g clip-path=\"url(#{})\">\n", id);
}

void Svg::begin_clip(const std::string& id, Spot corner, double width, double height) {
  begin_clip(id, {{corner,
                   {corner.x + width, corner.y},
                   {corner.x + width, corner.y + height},
                   {corner.x, corner.y + height}}});
}

std::string Svg::markup(const Both& title) const {
  return fmt::format(
             "<svg viewBox=\"0 0 {:.0f} {:.0f}\" role=\"img\" aria-label=\"{}\" data-it=\"{}\" "
             "data-en=\"{}\">\n",
             width_, height_, escaped(title.english), escaped(title.italian),
             escaped(title.english))
       + body_ + "</svg>";
}

}  // namespace ostrel::host
