// SPDX-License-Identifier: Apache-2.0
//
// Ground of 60 m x 25 m in six wavy layers with 40 vertices a side, cut into 121 stripes: 726
// intersections. Beside them what GEOS takes alone, by its own clip and by its overlay, and what
// the pieces are asked for afterwards. Items are intersections, or questions.
#include "sorrel/polygon.h"

#include "sorrel/line_polygon.h"
#include "sorrel/polygon_boolean.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <vector>

#define GEOS_USE_ONLY_R_API
#include <geos_c.h>

namespace {

using sorrel::Point;
using sorrel::Polygon;

constexpr int layers = 6;
constexpr int stripes = 121;
constexpr int vertices = 40;          // of each border of a layer
constexpr double width = 60'000.0;    // [mm]
constexpr double height = 25'000.0;   // [mm]
constexpr double water_level = -9.8;  // [mm], where it cuts the waves of the second border

/// A border between layers: 0 the ground surface, 6 the bottom.
Point border_point(int border, int vertex) {
  const double x = width * vertex / (vertices - 1);
  const double level = height * (1.0 - static_cast<double>(border) / layers) - 20'833.0;
  return {x, level + 800.0 * std::sin(0.4 * vertex + border)};
}

std::vector<Polygon> ground() {
  std::vector<Polygon> all;
  for (int layer = 0; layer < layers; ++layer) {
    Polygon polygon;
    for (int i = 0; i < vertices; ++i)
      polygon.push_back(border_point(layer + 1, i));
    for (int i = vertices - 1; i >= 0; --i)
      polygon.push_back(border_point(layer, i));
    polygon.push_back(polygon.front());
    all.push_back(polygon);
  }
  return all;
}

struct Stripe {
  double left;
  double right;
};

std::vector<Stripe> all_stripes() {
  std::vector<Stripe> all;
  for (int i = 0; i < stripes; ++i)
    all.push_back({width * i / stripes, width * (i + 1) / stripes});
  return all;
}

Polygon rectangle(const Stripe& stripe) {
  return {{stripe.left, 1e5},
          {stripe.left, -1e5},
          {stripe.right, -1e5},
          {stripe.right, 1e5},
          {stripe.left, 1e5}};
}

/// The same rectangle with a vertex half-way along a side: it is no box, and is overlaid.
Polygon five_sided(const Stripe& stripe) {
  Polygon polygon = rectangle(stripe);
  polygon.insert(polygon.begin() + 1, Point{stripe.left, 0.0});
  return polygon;
}

void count_intersections(benchmark::State& state) {
  state.SetItemsProcessed(state.iterations() * layers * stripes);
}

template <class Shape>
void intersect_all(benchmark::State& state, Shape shape) {
  const std::vector<Polygon> soils = ground();
  const std::vector<Stripe> all = all_stripes();
  for ([[maybe_unused]] const auto _ : state) {
    for (const Stripe& stripe : all) {
      const Polygon clip = shape(stripe);
      std::vector<Polygon> pieces;
      for (const Polygon& soil : soils)
        PolyBoolean(clip, soil, pieces, 5'000'000'000'000, iPolyOp::Intersection);
      benchmark::DoNotOptimize(pieces.data());
    }
  }
  count_intersections(state);
}

void stripes_of_boxes(benchmark::State& state) {
  intersect_all(state, rectangle);
}
BENCHMARK(stripes_of_boxes)->Unit(benchmark::kMillisecond);

void stripes_by_checked_overlay(benchmark::State& state) {
  intersect_all(state, five_sided);
}
BENCHMARK(stripes_by_checked_overlay)->Unit(benchmark::kMillisecond);

/// What GEOS takes alone, without the polygons being brought to it and back.
class GeosGround {
public:
  GeosGround() {
    for (const Polygon& polygon : ground())
      layers_.push_back(geometry(polygon));
  }
  GeosGround(const GeosGround&) = delete;
  GeosGround& operator=(const GeosGround&) = delete;
  ~GeosGround() {
    for (GEOSGeometry* each : layers_)
      GEOSGeom_destroy_r(geos_, each);
    GEOS_finish_r(geos_);
  }

  GEOSContextHandle_t context() const { return geos_; }
  const std::vector<GEOSGeometry*>& polygons() const { return layers_; }

  GEOSGeometry* geometry(const Polygon& polygon) const {
    const auto size = static_cast<unsigned int>(polygon.size());
    GEOSCoordSequence* sequence = GEOSCoordSeq_create_r(geos_, size, 2);
    for (unsigned int i = 0; i < size; ++i)
      GEOSCoordSeq_setXY_r(geos_, sequence, i, polygon[i][0], polygon[i][1]);
    return GEOSGeom_createPolygon_r(geos_, GEOSGeom_createLinearRing_r(geos_, sequence), nullptr,
                                    0);
  }

private:
  GEOSContextHandle_t geos_ = GEOS_init_r();
  std::vector<GEOSGeometry*> layers_;
};

void stripes_by_clip_of_geos_alone(benchmark::State& state) {
  const GeosGround soils;
  const std::vector<Stripe> all = all_stripes();
  for ([[maybe_unused]] const auto _ : state) {
    for (const Stripe& stripe : all) {
      for (const GEOSGeometry* soil : soils.polygons())
        GEOSGeom_destroy_r(soils.context(), GEOSClipByRect_r(soils.context(), soil, stripe.left,
                                                             -1e5, stripe.right, 1e5));
    }
  }
  count_intersections(state);
}
BENCHMARK(stripes_by_clip_of_geos_alone)->Unit(benchmark::kMillisecond);

void stripes_by_overlay_of_geos_alone(benchmark::State& state) {
  const GeosGround soils;
  const std::vector<Stripe> all = all_stripes();
  for ([[maybe_unused]] const auto _ : state) {
    for (const Stripe& stripe : all) {
      GEOSGeometry* clip = soils.geometry(rectangle(stripe));
      for (const GEOSGeometry* soil : soils.polygons())
        GEOSGeom_destroy_r(soils.context(), GEOSIntersection_r(soils.context(), soil, clip));
      GEOSGeom_destroy_r(soils.context(), clip);
    }
  }
  count_intersections(state);
}
BENCHMARK(stripes_by_overlay_of_geos_alone)->Unit(benchmark::kMillisecond);

/// Every piece of every stripe.
std::vector<Polygon> pieces() {
  std::vector<Polygon> all;
  for (const Stripe& stripe : all_stripes()) {
    for (const Polygon& soil : ground())
      PolyBoolean(rectangle(stripe), soil, all, 5'000'000'000'000, iPolyOp::Intersection);
  }
  return all;
}

void count_pieces(benchmark::State& state, const std::vector<Polygon>& all) {
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(all.size()));
}

void pieces_above_water(benchmark::State& state) {
  const std::vector<Polygon> all = pieces();
  const Polygon upper = {
      {-1e6, water_level}, {1e6, water_level}, {1e6, 1e6}, {-1e6, 1e6}, {-1e6, water_level}};
  std::vector<Polygon> above;
  for ([[maybe_unused]] const auto _ : state) {
    above.clear();
    for (const Polygon& piece : all)
      PolyIntersect(upper, {piece}, above, 1'000'000, iPolyOp::Intersection);
    benchmark::DoNotOptimize(above.data());
  }
  count_pieces(state, all);
}
BENCHMARK(pieces_above_water)->Unit(benchmark::kMillisecond);

void area_and_centroid(benchmark::State& state) {
  const std::vector<Polygon> all = pieces();
  Point centroid;
  for ([[maybe_unused]] const auto _ : state) {
    for (const Polygon& piece : all) {
      benchmark::DoNotOptimize(polyArea(piece));
      polyBaricenter(piece, centroid);
      benchmark::DoNotOptimize(centroid);
    }
  }
  count_pieces(state, all);
}
BENCHMARK(area_and_centroid)->Unit(benchmark::kMicrosecond);

void owner_of_a_centroid(benchmark::State& state) {
  const std::vector<Polygon> all = pieces();
  const std::vector<Polygon> soils = ground();
  for ([[maybe_unused]] const auto _ : state) {
    for (const Polygon& piece : all) {
      Point centroid;
      polyBaricenter(piece, centroid);
      std::size_t owner = 0;
      while (owner < soils.size() && !pointInPolygon(centroid, soils[owner]))
        ++owner;
      benchmark::DoNotOptimize(owner);
    }
  }
  count_pieces(state, all);
}
BENCHMARK(owner_of_a_centroid)->Unit(benchmark::kMicrosecond);

void vertices_merged(benchmark::State& state) {
  std::vector<Polygon> all = pieces();
  for ([[maybe_unused]] const auto _ : state) {
    for (Polygon& piece : all)
      mergeCoincidentVertices(piece, 1e-4);
    benchmark::DoNotOptimize(all.data());
  }
  count_pieces(state, all);
}
BENCHMARK(vertices_merged)->Unit(benchmark::kMicrosecond);

void layers_along_a_probe(benchmark::State& state) {
  const std::vector<Polygon> soils = ground();
  std::vector<Point> crossings;
  for ([[maybe_unused]] const auto _ : state) {
    benchmark::DoNotOptimize(
        linepolyIntersectSorted({30'001.0, 1e7}, {30'001.0, -1e7}, 1e-6, 1e-6, soils, crossings));
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(layers_along_a_probe)->Unit(benchmark::kMicrosecond);

}  // namespace
