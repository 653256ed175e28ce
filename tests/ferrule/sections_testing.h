#pragma once
/// @file  Sections for tests, their questions asked in one line, and forces summed over fibres
// SPDX-License-Identifier: Apache-2.0

#include <ferrule/ultimate_section.h>

#include <cmath>
#include <memory>
#include <numbers>
#include <vector>

namespace Ferrule::testing {

inline constexpr double pi = std::numbers::pi;

/// fcd = 30 * 0.85 / 1.5 = 17, fyd = 450 / 1.125 = 400, yield strain 400 / 200000 = 0.002, limit
/// strain 0.9 * 0.075 = 0.0675, perfectly plastic.
inline ClsSLUParameters round_material() {
  ClsSLUParameters p;
  p.Es = 200'000;
  p.GammaC = 1.5;
  p.GammaS = 1.125;
  p.Rck = 30 / 0.83;
  p.AlfaCC = 0.85;
  p.Fyk = 450;
  p.Ec2 = 0.002;
  p.Ecu = 0.0035;
  p.Plastic = 1;
  p.EudTension = p.EudCompression = 0.0675;
  return p;
}

struct Bar {
  double x = 0.0;
  double y = 0.0;
  double radius = 0.0;
};

/// What a section is made of.
struct Recipe {
  std::vector<Point> outline{};
  std::vector<Bar> bars{};
  ClsSLUParameters material = round_material();
};

inline std::unique_ptr<ClsDomain> make_domain(const Recipe& recipe) {
  auto domain = std::make_unique<ClsDomain>();
  std::vector<double> x;
  std::vector<double> y;
  for (const Point p : recipe.outline) {
    x.push_back(p.x);
    y.push_back(p.y);
  }
  domain->setExternBoundary(static_cast<int>(x.size()), x.data(), y.data());
  const ClsSLUModel model(recipe.material);
  domain->setMatModel(&model);
  std::vector<SteelBar> bars(recipe.bars.size());
  for (std::size_t i = 0; i < bars.size(); ++i) {
    bars[i].setPosR(recipe.bars[i].x, recipe.bars[i].y, recipe.bars[i].radius);
  }
  domain->setBars(static_cast<int>(bars.size()), bars.data());
  return domain;
}

inline std::unique_ptr<Section> make_section(const Recipe& recipe) {
  auto section = std::make_unique<Section>();
  section->Add_Domain(make_domain(recipe).release());
  return section;
}

inline std::vector<Point> rectangle(double b, double h) {
  return {{-b / 2, -h / 2}, {b / 2, -h / 2}, {b / 2, h / 2}, {-b / 2, h / 2}};
}

/// A regular polygon with its first vertex on the positive x axis.
inline std::vector<Point> regular_polygon(int vertices, double diameter) {
  std::vector<Point> outline;
  for (int i = 0; i < vertices; ++i) {
    const double angle = 2.0 * pi * i / vertices;
    outline.push_back({diameter / 2 * std::cos(angle), diameter / 2 * std::sin(angle)});
  }
  return outline;
}

inline std::vector<Bar> ring(int count, double ring_radius, double bar_diameter) {
  std::vector<Bar> bars;
  for (int i = 0; i < count; ++i) {
    const double angle = 2.0 * pi * i / count;
    bars.push_back(
        {ring_radius * std::cos(angle), ring_radius * std::sin(angle), bar_diameter / 2});
  }
  return bars;
}

/// `count` bars side by side at the height y.
inline std::vector<Bar> row(int count, double y, double radius) {
  std::vector<Bar> bars;
  for (int i = 0; i < count; ++i) {
    bars.push_back({100.0 * (2.0 * (i + 1) / (count + 1) - 1.0), y, radius});
  }
  return bars;
}

inline std::vector<Bar> operator+(std::vector<Bar> a, const std::vector<Bar>& b) {
  a.insert(a.end(), b.begin(), b.end());
  return a;
}

struct Capacity {
  bool found = false;
  double moment = -1.0;
  double second = -1.0;
  Deform plane;
};

inline Capacity resist(Section& section, double N, double angle) {
  Capacity c;
  c.found = section.resistingMoment(N, angle, c.moment, c.second, 1e-7, c.plane, 20, false);
  return c;
}

struct Balance {
  int answer = -2;
  Deform plane;
};

inline Balance balance(Section& section, double N, double Mx, double My) {
  Balance b;
  b.answer = section.solveEquilibrium(N, Mx, My, b.plane, 1e-4, 20);
  return b;
}

struct FibreForces {
  double N = 0.0;
  double Mx = 0.0;
  double My = 0.0;
};

inline double concrete_stress(const ClsSLUParameters& p, double strain) {
  const double strength = 0.83 * p.Rck * p.AlfaCC / p.GammaC;
  if (strain >= 0) return 0;
  if (strain <= -p.Ec2) return -strength;
  return -strength * (1 - std::pow(1 + strain / p.Ec2, 2));
}

inline double steel_stress(const ClsSLUParameters& p, double strain) {
  const double yield = p.Fyk / p.GammaS;
  const double size = std::abs(strain);
  const double slope = p.Plastic == 1 ? 0 : p.Slope;
  const double stress = size <= yield / p.Es ? p.Es * size : yield + slope * (size - yield / p.Es);
  return std::copysign(stress, strain);
}

/// Crossings of an outline with the horizontal line at y, each with +1 where the outline runs
/// downwards and -1 where it runs upwards: a counter-clockwise outline has its right side upwards.
struct Crossing {
  double x = 0.0;
  double side = 0.0;
};

inline std::vector<Crossing> crossings(const std::vector<Point>& outline, double y) {
  std::vector<Crossing> found;
  for (std::size_t i = 0; i < outline.size(); ++i) {
    const Point a = outline[i];
    const Point b = outline[(i + 1) % outline.size()];
    if ((a.y > y) == (b.y > y)) continue;
    found.push_back({a.x + (b.x - a.x) * (y - a.y) / (b.y - a.y), b.y > a.y ? 1.0 : -1.0});
  }
  return found;
}

/// Forces of a strain plane as the sum over fibres, `strips` rows of `strips` fibres from the left
/// edge of the section to each crossing, with the sign of the crossing. A method as unlike that of
/// the library as can be; its error falls with the square of `strips`.
inline FibreForces fibre_forces(const Recipe& recipe, const Deform& plane, int strips) {
  double low = recipe.outline[0].y;
  double high = low;
  double left = recipe.outline[0].x;
  for (const Point p : recipe.outline) {
    low = std::min(low, p.y);
    high = std::max(high, p.y);
    left = std::min(left, p.x);
  }
  FibreForces sum;
  const auto add = [&sum](double x, double y, double force) {
    sum.N += force;
    sum.Mx += force * y;
    sum.My += force * x;
  };
  const double height = (high - low) / strips;
  for (int i = 0; i < strips; ++i) {
    const double y = low + (i + 0.5) * height;
    for (const Crossing crossing : crossings(recipe.outline, y)) {
      const double width = (crossing.x - left) / strips;
      for (int j = 0; j < strips; ++j) {
        const double x = left + (j + 0.5) * width;
        const double stress = concrete_stress(recipe.material, plane.strain(x, y));
        add(x, y, crossing.side * stress * width * height);
      }
    }
  }
  for (const Bar& bar : recipe.bars) {
    const double stress = steel_stress(recipe.material, plane.strain(bar.x, bar.y));
    add(bar.x, bar.y, stress * pi * bar.radius * bar.radius);
  }
  return sum;
}

/// The largest ratio of a strain to its limit under a plane.
inline double utilisation(const Recipe& recipe, const Deform& plane) {
  const ClsSLUParameters& p = recipe.material;
  double shortest = plane.strain(recipe.outline[0].x, recipe.outline[0].y);
  double longest = shortest;
  for (const Point v : recipe.outline) {
    shortest = std::min(shortest, plane.strain(v.x, v.y));
    longest = std::max(longest, plane.strain(v.x, v.y));
  }
  const double turning = shortest + (1 - p.Ec2 / p.Ecu) * (longest - shortest);
  double largest = std::max(-shortest / p.Ecu, -turning / p.Ec2);
  for (const Bar& bar : recipe.bars) {
    largest = std::max(largest, plane.strain(bar.x, bar.y) / p.EudTension);
  }
  return largest;
}

}  // namespace Ferrule::testing
