// SPDX-License-Identifier: Apache-2.0
#include "outline_profile.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace Ferrule::internal {

namespace {

/// ∫ f z^p over 0 <= t <= end, where z = z0 + t, from plain[m] = ∫ f t^m over the same.
template <std::size_t count>
std::array<double, count> shifted(const std::array<double, count>& plain, double z0) {
  std::array<double, count> moments{plain[0], plain[1] + z0 * plain[0],
                                    plain[2] + z0 * (2.0 * plain[1] + z0 * plain[0])};
  if constexpr (count > 3) {
    moments[3] = plain[3] + z0 * (3.0 * plain[2] + z0 * (3.0 * plain[1] + z0 * plain[0]));
  }
  return moments;
}

template <std::size_t count>
std::array<double, count> sum(std::array<double, count> a, const std::array<double, count>& b) {
  for (std::size_t p = 0; p < count; ++p) {
    a[p] += b[p];
  }
  return a;
}

}  // namespace

void OutlineProfile::build(std::span<const Point> outline, double orientation,
                           Direction direction) {
  collect_levels(outline, direction);
  slabs_.assign(depths_.size() - 1, Slab{});
  Point from = outline.back();
  for (const Point to : outline) {
    add_edge(from, to, orientation, direction);
    from = to;
  }
  sum_up();
}

/// Levels that differ only by rounding become one, lest every slab of a symmetrical outline have a
/// twin of no height.
void OutlineProfile::collect_levels(std::span<const Point> outline, Direction direction) {
  depths_.clear();
  double farthest = 0.0;
  for (const Point vertex : outline) {
    depths_.push_back(direction.level(vertex));
    farthest = std::max({farthest, std::abs(vertex.x), std::abs(vertex.y)});
  }
  tolerance_ = 8.0 * std::numeric_limits<double>::epsilon() * farthest;
  std::sort(depths_.begin(), depths_.end());
  start_ = depths_.front();
  const auto same = [this](double a, double b) { return b - a <= tolerance_; };
  depths_.erase(std::unique(depths_.begin(), depths_.end(), same), depths_.end());
  for (double& depth : depths_) {
    depth -= start_;
  }
  height_ = depths_.back();
}

/// The index of the level to which a vertex at `s` belongs.
std::size_t OutlineProfile::level_of(double s) const {
  const auto above = std::upper_bound(depths_.begin(), depths_.end(), s - start_);
  return static_cast<std::size_t>(above - depths_.begin()) - 1;
}

/// An edge bounds the width on one side in all slabs that it spans. With u counted as above, a
/// counter-clockwise outline runs towards larger s on the side of larger u.
void OutlineProfile::add_edge(Point from, Point to, double orientation, Direction direction) {
  double side = orientation;
  std::size_t first = level_of(direction.level(from));
  std::size_t last = level_of(direction.level(to));
  if (first > last) {
    std::swap(first, last);
    std::swap(from, to);
    side = -side;
  }
  if (first == last) return;
  const double u_first = direction.across(from);
  const double lean = (direction.across(to) - u_first) / (depths_[last] - depths_[first]);
  for (std::size_t i = first; i < last; ++i) {
    const double u = u_first + lean * (depths_[i] - depths_[first]);
    Slab& slab = slabs_[i];
    slab.width += side * u;
    slab.widening += side * lean;
    slab.chord[0] += side * 0.5 * u * u;
    slab.chord[1] += side * u * lean;
    slab.chord[2] += side * 0.5 * lean * lean;
  }
}

void OutlineProfile::sum_up() {
  for (std::size_t i = 1; i < slabs_.size(); ++i) {
    slabs_[i].area_before = area_moments_in(i - 1, depths_[i]);
    slabs_[i].across_before = across_moments_in(i - 1, depths_[i]);
  }
}

std::size_t OutlineProfile::slab_at(double depth) const {
  const auto above = std::upper_bound(depths_.begin() + 1, depths_.end() - 1, depth);
  return static_cast<std::size_t>(above - depths_.begin()) - 1;
}

std::array<double, 4> OutlineProfile::area_moments_in(std::size_t i, double depth) const {
  const Slab& slab = slabs_[i];
  const double t = depth - depths_[i];
  const double w = slab.width;
  const double c = slab.widening * t;
  const double t2 = t * t;
  const std::array<double, 4> plain{t * (w + c / 2.0), t2 * (w / 2.0 + c / 3.0),
                                    t2 * t * (w / 3.0 + c / 4.0), t2 * t2 * (w / 4.0 + c / 5.0)};
  return sum(shifted(plain, depths_[i]), slab.area_before);
}

std::array<double, 3> OutlineProfile::across_moments_in(std::size_t i, double depth) const {
  const Slab& slab = slabs_[i];
  const double t = depth - depths_[i];
  const double q0 = slab.chord[0];
  const double q1 = slab.chord[1] * t;
  const double q2 = slab.chord[2] * t * t;
  const std::array<double, 3> plain{t * (q0 + q1 / 2.0 + q2 / 3.0),
                                    t * t * (q0 / 2.0 + q1 / 3.0 + q2 / 4.0),
                                    t * t * t * (q0 / 3.0 + q1 / 4.0 + q2 / 5.0)};
  return sum(shifted(plain, depths_[i]), slab.across_before);
}

std::array<double, 4> OutlineProfile::area_moments(double depth) const {
  if (slabs_.empty()) return {};
  return area_moments_in(slab_at(depth), depth);
}

std::array<double, 3> OutlineProfile::across_moments(double depth) const {
  if (slabs_.empty()) return {};
  return across_moments_in(slab_at(depth), depth);
}

}  // namespace Ferrule::internal
