// SPDX-License-Identifier: Apache-2.0
//
// Properties of the ultimate domain that hold for every section, over random ones.
#include "ultimate_domain.h"

#include "ferrule/models_testing.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

namespace {

using Ferrule::Deform;
using Ferrule::Point;
using Ferrule::internal::DirectedSection;
using Ferrule::internal::Direction;
using Ferrule::internal::direction_at;
using Ferrule::internal::direction_of;
using Ferrule::internal::find_equilibrium;
using Ferrule::internal::Moment;
using Ferrule::internal::Plane;
using Ferrule::internal::resisting_state;
using Ferrule::internal::SectionModel;
using Ferrule::internal::utilisation;
using namespace Ferrule::testing;

/// Sections of all shapes and materials, the same at each run.
class RandomSections {
public:
  explicit RandomSections(unsigned int seed) : engine_(seed) {}

  double between(double low, double high) {
    return low + (high - low) * static_cast<double>(engine_()) / 4294967296.0;
  }
  int below(int limit) { return static_cast<int>(engine_() % static_cast<unsigned int>(limit)); }

  Recipe next() {
    Recipe recipe{.outline = outline(), .bars = {}, .material = material()};
    for (int count = 1 + below(20); count > 0; --count) {
      recipe.bars.push_back(bar_within(recipe.outline));
    }
    return recipe;
  }

private:
  std::vector<Point> outline() {
    const double width = between(200, 1'200);
    const double height = between(200, 1'200);
    switch (below(4)) {
      case 0:
        return rectangle(width, height);
      case 1:
        return regular_polygon(3 + below(40), width);
      case 2:
        return ell(width, height);
      default:
        return star(width / 2);
    }
  }

  std::vector<Point> ell(double width, double height) {
    const double foot = between(0.2, 0.6) * height;
    const double stem = between(0.2, 0.6) * width;
    const double x = -0.4 * width;
    const double y = -0.4 * height;
    return {{x, y},
            {x + width, y},
            {x + width, y + foot},
            {x + stem, y + foot},
            {x + stem, y + height},
            {x, y + height}};
  }

  std::vector<Point> star(double radius) {
    std::vector<Point> points;
    const int count = 4 + below(12);
    for (int i = 0; i < count; ++i) {
      const double angle = 2 * pi * (i + between(0, 0.8)) / count;
      const double r = radius * between(0.4, 1);
      points.push_back({r * std::cos(angle), r * std::sin(angle)});
    }
    return points;
  }

  Ferrule::ClsSLUParameters material() {
    Ferrule::ClsSLUParameters p = round_material();
    p.Rck = between(15, 50);
    p.Es = between(190'000, 210'000);
    p.Fyk = between(400, 600);
    p.GammaS = below(2) == 0 ? 1.15 : 1.0;
    p.EudTension = between(0.01, 0.07);
    p.Plastic = below(2);
    p.Slope = between(0, 2'000);
    return p;
  }

  Bar bar_within(const std::vector<Point>& outline) {
    while (true) {
      const double x = between(-1'000, 1'000);
      const double y = between(-1'000, 1'000);
      double side = 0;
      for (const Crossing& crossing : crossings(outline, y)) {
        side += crossing.x > x ? crossing.side : 0;
      }
      if (std::abs(side) > 0.5) return {x, y, between(4, 16)};
    }
  }

  std::mt19937 engine_;
};

/// Forces of a plane with their distance from others in shares of the section's own forces.
struct PlaneForces {
  double axial = 0.0;
  Moment moment;

  double distance(const SectionModel& model, double N, Moment M) const {
    return std::max(std::abs(axial - N) / model.axial_force(),
                    std::hypot(moment.x - M.x, moment.y - M.y) / model.moment_force());
  }
};

/// A plane given by its three numbers, seen along its own gradient.
struct SeenPlane {
  const DirectedSection& section;
  Plane plane;
};

SeenPlane seen(SectionModel& model, const Deform& d) {
  const Direction gradient = direction_of({.x = d.d1, .y = d.d2});
  const DirectedSection& section = model.along(gradient).section;
  // Depth 0 of the section is where its own planes have their top strain.
  const double start = section.about_top(0.0, -1.0);
  const double slope = std::hypot(d.d1, d.d2);
  return {section, {.top = d.d0 + slope * start, .slope = slope}};
}

PlaneForces forces_of(const SeenPlane& seen) {
  return {seen.section.respond(seen.plane).axial, seen.section.moment(seen.plane)};
}

double between_the_ends(SectionModel& model, double share) {
  const auto& path = model.along({}).path;
  return path.uniform_compression() + share * (path.largest_axial() - path.uniform_compression());
}

// A band of 1e-6 about the resisting moment is left out, and so are moments so small that the
// rounding slack fills it.
TEST(UltimateDomain, HoldsMomentsExactlyBelowTheResistingOne) {
  RandomSections random(20);
  int asked = 0;
  for (int i = 0; i < 300; ++i) {
    ModelOf model(random.next());
    ASSERT_TRUE(model.usable());
    for (const double angle : {0.0, pi, random.between(-pi, pi)}) {
      const double N = between_the_ends(*model, random.between(0.01, 0.99));
      const Direction direction = direction_at(angle);
      const auto resisting = resisting_state(*model, N, direction);
      Deform plane;
      const bool origin_within = find_equilibrium(*model, N, {}, plane);
      ASSERT_LE(origin_within, resisting.has_value());
      if (!origin_within) continue;
      const double most = along(resisting->moment, direction);
      if (most < 1e-3 * model->moment_force()) continue;
      ++asked;
      for (const double share : {0.2, 0.7, 0.99, 1 - 1.1e-6, 1 + 1.1e-6, 1.01, 1.5, 20.0}) {
        const Moment moment{.x = share * most * direction.cosine,
                            .y = share * most * direction.sine};
        EXPECT_EQ(find_equilibrium(*model, N, moment, plane), share < 1)
            << "section " << i << ", angle " << angle << ", N " << N << ", share " << share;
      }
    }
  }
  EXPECT_GT(asked, 500);
}

// Whatever plane is within the limits, down to those on them, its forces are within the domain,
// and the plane found for them is within the limits and has them.
TEST(UltimateDomain, HoldsTheForcesOfEveryPlaneWithinTheLimits) {
  RandomSections random(21);
  for (int i = 0; i < 300; ++i) {
    ModelOf model(random.next());
    for (int j = 0; j < 12; ++j) {
      const Direction gradient = direction_at(random.between(-pi, pi));
      const DirectedSection& section = model->along(gradient).section;
      const double slope = std::pow(10, random.between(-7, -3.5));
      const double top = random.between(-1, 0.2) * std::pow(10, random.between(-4, -2));
      const double used = utilisation(section, {.top = top, .slope = slope});
      if (!(used > 0)) continue;
      const double share = (j % 2 == 0 ? 1.0 : random.between(0.1, 1)) / used;
      const PlaneForces given = forces_of({section, {.top = share * top, .slope = share * slope}});
      Deform found;
      ASSERT_TRUE(find_equilibrium(*model, given.axial, given.moment, found))
          << "section " << i << ", plane " << j;
      const SeenPlane plane = seen(*model, found);
      EXPECT_LE(utilisation(plane.section, plane.plane), 1 + 1e-9);
      EXPECT_LE(forces_of(plane).distance(*model, given.axial, given.moment), 1e-9);
    }
  }
}

TEST(UltimateDomain, EndsAtUltimatePlanesWithoutAMomentBeside) {
  RandomSections random(22);
  for (int i = 0; i < 300; ++i) {
    ModelOf model(random.next());
    const double N = between_the_ends(*model, random.between(0, 1));
    const Direction direction = direction_at(random.between(-pi, pi));
    const auto state = resisting_state(*model, N, direction);
    if (!state) continue;
    const SeenPlane plane{model->along(state->gradient).section, state->plane};
    EXPECT_NEAR(utilisation(plane.section, plane.plane), 1, 1e-12);
    const Moment wanted{.x = along(state->moment, direction) * direction.cosine,
                        .y = along(state->moment, direction) * direction.sine};
    EXPECT_LE(forces_of(plane).distance(*model, N, wanted), 1e-13);
  }
}

// Below uniform compression too, where a bar in a corner does not yet yield under the peak strain.
TEST(UltimateDomain, HoldsPlanesBelowUniformCompression) {
  Recipe recipe{.outline = rectangle(300, 500), .bars = {{-100, -200, 16}, {-40, -200, 12}}};
  recipe.material.Fyk = 500;
  recipe.material.GammaS = 1.15;
  ModelOf model(recipe);
  const double uniform = model->along({}).path.uniform_compression();
  int below = 0;
  for (int i = 0; i < 24; ++i) {
    for (const double slope : {1e-8, 1e-7, 5e-7}) {
      const DirectedSection& section = model->along(direction_at(pi * i / 12)).section;
      const double pivot = section.depth() * 3 / 7;
      const PlaneForces given =
          forces_of({section, {.top = -0.002 - slope * pivot, .slope = slope}});
      if (!(given.axial < uniform - 100)) continue;
      ++below;
      Deform plane;
      EXPECT_TRUE(find_equilibrium(*model, given.axial, given.moment, plane));
      EXPECT_FALSE(find_equilibrium(*model, given.axial, {}, plane));
    }
  }
  EXPECT_GE(below, 10);
}

// At the very ends the domain is a point: that of the uniform plane, in every direction.
TEST(UltimateDomain, EndsInPoints) {
  ModelOf model(pile(16));
  for (const double share : {0.0, 1.0}) {
    const double N = between_the_ends(*model, share);
    for (int i = 0; i < 24; ++i) {
      const auto state = resisting_state(*model, N, direction_at(0.1 + pi * i / 12));
      ASSERT_TRUE(state);
      EXPECT_NEAR(state->moment.x, 0, 1e-5 * model->moment_force());
      Deform plane;
      EXPECT_TRUE(find_equilibrium(*model, N, {}, plane));
    }
  }
}

// 17 N/mm² in 300 x 500 of concrete and 400 N/mm² in eight bars of 100 pi mm².
TEST(UltimateDomain, ResistsNothingBeyondTheCrushedSection) {
  ModelOf model(round_rectangle());
  const double crushed = -(17 * 150'000 + 400 * 800 * pi);
  for (const Direction direction : {Direction{}, direction_at(1.0)}) {
    EXPECT_TRUE(resisting_state(*model, crushed * (1 - 1e-6), direction));
    EXPECT_FALSE(resisting_state(*model, crushed * (1 + 1e-6), direction));
    EXPECT_FALSE(resisting_state(*model, crushed * 1e24, direction));
  }
}

}  // namespace
