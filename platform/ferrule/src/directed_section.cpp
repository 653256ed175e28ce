// SPDX-License-Identifier: Apache-2.0
#include "directed_section.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace Ferrule::internal {

namespace {

/// The compressed part of a polygon of concrete under a plane, z counted from the polygon's own
/// top. The stress is -strength on the plateau and -strength (2 v - v²) beyond it, where the
/// shortening over the peak strain, v = v0 - fall z, runs from at most 1 down to 0.
struct Compression {
  bool none = true;
  double plateau_end = 0.0;  ///< depth to which the stress is the strength [mm]
  double end = 0.0;          ///< depth to which there is stress [mm]
  double v0 = 0.0;           ///< at the top [-]
  double fall = 0.0;         ///< [1/mm]

  /// ∫ (2 v - v²) f, where m0, m1, m2 are ∫ f, ∫ f z and ∫ f z².
  double parabola(double m0, double m1, double m2) const {
    const double v = v0 * m0 - fall * m1;
    const double v2 = v0 * v - fall * (v0 * m1 - fall * m2);
    return 2.0 * v - v2;
  }
};

Compression compression(const ConcreteLaw& law, Plane plane, double height) {
  if (!(plane.top < 0.0)) return {};
  // With a slope of zero the depth is infinite or, for 0 / 0, no number, which counts as 0.
  const auto depth_of = [&](double strain) {
    return std::max(0.0, std::min((strain - plane.top) / plane.slope, height));
  };
  return {.none = false,
          .plateau_end = depth_of(-law.peak_strain),
          .end = depth_of(0.0),
          .v0 = -plane.top / law.peak_strain,
          .fall = plane.slope / law.peak_strain};
}

template <std::size_t count>
std::array<double, count> difference(std::array<double, count> a,
                                     const std::array<double, count>& b) {
  for (std::size_t p = 0; p < count; ++p) {
    a[p] -= b[p];
  }
  return a;
}

/// A bar's stress and the slope of its law.
struct BarStress {
  double stress = 0.0;
  double tangent = 0.0;
};

BarStress bar_stress(const SteelLaw& law, double yield_strain, double strain) {
  const double elastic = std::clamp(strain * law.modulus, -law.yield_stress, law.yield_stress);
  const double excess = strain - std::clamp(strain, -yield_strain, yield_strain);
  return {.stress = elastic + law.hardening * excess,
          .tangent = std::abs(strain) < yield_strain ? law.modulus : law.hardening};
}

}  // namespace

void DirectedSection::build(std::span<const SectionPart> parts, Direction direction) {
  direction_ = direction;
  parts_.resize(parts.size());
  double lowest = std::numeric_limits<double>::infinity();
  double highest = -lowest;
  for (std::size_t i = 0; i < parts.size(); ++i) {
    Part& part = parts_[i];
    part.concrete = parts[i].laws.concrete;
    part.concrete.strength *= parts[i].scale;
    part.steel = parts[i].laws.steel;
    part.scale = parts[i].scale;
    part.profile.build(parts[i].outline, parts[i].orientation, direction);
    lowest = std::min(lowest, part.profile.start());
    highest = std::max(highest, part.profile.start() + part.profile.height());
  }
  start_ = lowest;
  depth_ = highest - lowest;
  for (Part& part : parts_) {
    part.offset = part.profile.start() - lowest;
  }
  set_crush_limits();
  place_bars(parts);
}

/// The extreme fibre of each part, and the fibre that turns under the peak strain when the whole
/// section is compressed. A law whose ultimate strain is not beyond the peak has one limit for
/// both.
void DirectedSection::set_crush_limits() {
  crush_limits_.clear();
  for (const Part& part : parts_) {
    const double ultimate = part.concrete.ultimate_strain;
    const double peak = std::min(part.concrete.peak_strain, ultimate);
    crush_limits_.push_back({.depth = part.offset, .strain = -ultimate});
    crush_limits_.push_back({.depth = (1.0 - peak / ultimate) * depth_, .strain = -peak});
  }
}

void DirectedSection::Part::add_bar(double depth, double across, double area) {
  const bool in_a_row =
      !bar_depth.empty() && !(depth < bar_depth.back()) && !(depth > bar_depth.back());
  if (in_a_row) {
    bar_area.back() += area;
    bar_across.back() += area * across;
    return;
  }
  bar_depth.push_back(depth);
  bar_area.push_back(area);
  bar_across.push_back(area * across);
}

void DirectedSection::place_bars(std::span<const SectionPart> parts) {
  first_ = 0.0;
  last_ = depth_;
  bar_force_ = 0.0;
  stretch_limits_.clear();
  for (std::size_t i = 0; i < parts.size(); ++i) {
    Part& part = parts_[i];
    part.bar_depth.clear();
    part.bar_across.clear();
    part.bar_area.clear();
    for (const BarPoint& bar : parts[i].bars) {
      const double area = bar.area * part.scale;
      part.add_bar(direction_.level(bar.axis) - start_, direction_.across(bar.axis), area);
      bar_force_ += area * part.steel.yield_stress;
    }
    if (part.bar_depth.empty()) continue;
    const auto [nearest, farthest] =
        std::minmax_element(part.bar_depth.begin(), part.bar_depth.end());
    first_ = std::min(first_, *nearest);
    last_ = std::max(last_, *farthest);
    stretch_limits_.push_back({.depth = *farthest, .strain = part.steel.limit_strain});
  }
}

void DirectedSection::add_concrete(const Part& part, Plane plane, Response& response) {
  const double offset = part.offset;
  const Plane own{.top = plane.at(offset), .slope = plane.slope};
  const Compression zone = compression(part.concrete, own, part.profile.height());
  if (zone.none) return;
  const auto full = part.profile.area_moments(zone.plateau_end);
  const auto curved = difference(part.profile.area_moments(zone.end), full);
  const double strength = part.concrete.strength;
  const double stress_0 = -strength * (full[0] + zone.parabola(curved[0], curved[1], curved[2]));
  const double stress_1 = -strength * (full[1] + zone.parabola(curved[1], curved[2], curved[3]));
  std::array<double, 3> tangent{};  // ∫ d stress / d strain z^p dA, about the part's own top
  for (std::size_t p = 0; p < tangent.size(); ++p) {
    const double rest = (1.0 - zone.v0) * curved[p] + zone.fall * curved[p + 1];
    tangent[p] = 2.0 * strength / part.concrete.peak_strain * rest;
  }
  response.axial += stress_0;
  response.along += stress_1 + offset * stress_0;
  response.axial_by_top += tangent[0];
  response.axial_by_slope += tangent[1] + offset * tangent[0];
  response.along_by_slope += tangent[2] + offset * (2.0 * tangent[1] + offset * tangent[0]);
}

void DirectedSection::add_bars(const Part& part, Plane plane, Response& response) {
  const double yield_strain = part.steel.yield_stress / part.steel.modulus;
  Response sum = response;  // a copy stays in registers
  for (std::size_t i = 0; i < part.bar_depth.size(); ++i) {
    const double z = part.bar_depth[i];
    const BarStress bar = bar_stress(part.steel, yield_strain, plane.at(z));
    const double force = part.bar_area[i] * bar.stress;
    const double tangent = part.bar_area[i] * bar.tangent;
    sum.axial += force;
    sum.along += force * z;
    sum.axial_by_top += tangent;
    sum.axial_by_slope += tangent * z;
    sum.along_by_slope += tangent * z * z;
  }
  response = sum;
}

Response DirectedSection::respond(Plane plane) const {
  Response response;
  for (const Part& part : parts_) {
    add_concrete(part, plane, response);
    add_bars(part, plane, response);
  }
  return response;
}

/// ∫ stress u dA of one part.
double DirectedSection::across_of(const Part& part, Plane plane) {
  double across = 0.0;
  const Plane own{.top = plane.at(part.offset), .slope = plane.slope};
  const Compression zone = compression(part.concrete, own, part.profile.height());
  if (!zone.none) {
    const auto full = part.profile.across_moments(zone.plateau_end);
    const auto curved = difference(part.profile.across_moments(zone.end), full);
    across -= part.concrete.strength * (full[0] + zone.parabola(curved[0], curved[1], curved[2]));
  }
  const double yield_strain = part.steel.yield_stress / part.steel.modulus;
  for (std::size_t i = 0; i < part.bar_depth.size(); ++i) {
    const double stress = bar_stress(part.steel, yield_strain, plane.at(part.bar_depth[i])).stress;
    across += stress * part.bar_across[i];
  }
  return across;
}

Moment DirectedSection::moment(Plane plane) const {
  const Response response = respond(plane);
  const double along = response.along + start_ * response.axial;
  double across = 0.0;
  for (const Part& part : parts_) {
    across += across_of(part, plane);
  }
  return {.x = along * direction_.cosine - across * direction_.sine,
          .y = along * direction_.sine + across * direction_.cosine};
}

Deform DirectedSection::deform(Plane plane) const {
  return {.d0 = plane.at(-start_),
          .d1 = plane.slope * direction_.cosine,
          .d2 = plane.slope * direction_.sine};
}

}  // namespace Ferrule::internal
