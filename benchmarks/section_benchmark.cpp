// SPDX-License-Identifier: Apache-2.0
//
// Resisting moments, equilibrium tests and changes of bars a second, of an 800 mm pile as a polygon
// of 40 sides: with 16 bars, symmetrical about the plane of bending, and with 15, where the neutral
// axis turns. Axial forces vary over the whole capacity, so that no answer serves for the next.
#include "in_turns.h"

#include <ferrule/ultimate_section.h>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <numbers>
#include <vector>

namespace {

using std::numbers::pi;

Ferrule::ClsSLUModel material() {
  Ferrule::ClsSLUParameters p;
  p.Es = 210'000;
  p.GammaC = 1.5;
  p.GammaS = 1.15;
  p.Rck = 30;
  p.AlfaCC = 0.85;
  p.Fyk = 450;
  p.Ec2 = 0.002;
  p.Ecu = 0.0035;
  p.Plastic = 1;
  p.EudTension = p.EudCompression = 0.0675;
  return Ferrule::ClsSLUModel(p);
}

std::vector<Ferrule::SteelBar> ring(int count) {
  std::vector<Ferrule::SteelBar> bars(static_cast<std::size_t>(count));
  for (int i = 0; i < count; ++i) {
    const double angle = 2 * pi * i / count;
    bars[static_cast<std::size_t>(i)].setPosR(340 * std::cos(angle), 340 * std::sin(angle), 12);
  }
  return bars;
}

/// The section owns the domain.
struct Pile {
  explicit Pile(int bar_count) : bars(ring(bar_count)) {
    std::vector<double> x;
    std::vector<double> y;
    for (int i = 0; i < 40; ++i) {
      x.push_back(400 * std::cos(2 * pi * i / 40));
      y.push_back(400 * std::sin(2 * pi * i / 40));
    }
    const Ferrule::ClsSLUModel model = material();
    domain->setExternBoundary(40, x.data(), y.data());
    domain->setMatModel(&model);
    domain->setBars(bar_count, bars.data());
    section.Add_Domain(domain);
  }

  Ferrule::Section section;
  Ferrule::ClsDomain* domain = new Ferrule::ClsDomain;
  std::vector<Ferrule::SteelBar> bars;
};

/// From nearly pure tension to nearly pure compression [N].
double axial(std::int64_t step) {
  return 2.5e6 - 1.2e4 * static_cast<double>(step % 997);
}

void resisting_moment(benchmark::State& state, double angle) {
  Pile pile(static_cast<int>(state.range(0)));
  double moment = 0.0;
  double second = 0.0;
  Ferrule::Deform plane;
  std::int64_t step = 0;
  for ([[maybe_unused]] const auto _ : state) {
    pile.section.resistingMoment(axial(++step), angle, moment, second, 1e-7, plane, 20, false);
    benchmark::DoNotOptimize(moment);
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK_CAPTURE(resisting_moment, in_the_plane_of_bending, 0.0)->Arg(16)->Arg(15);
BENCHMARK_CAPTURE(resisting_moment, oblique, 0.3)->Arg(16);

void equilibrium(benchmark::State& state, double moment) {
  Pile pile(static_cast<int>(state.range(0)));
  std::int64_t step = 0;
  for ([[maybe_unused]] const auto _ : state) {
    Ferrule::Deform plane;
    const double N = 1e6 - 2e3 * static_cast<double>(++step % 997);
    benchmark::DoNotOptimize(pile.section.solveEquilibrium(N, moment, 0.0, plane, 1e-4, 20));
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK_CAPTURE(equilibrium, inside, 3e8)->Arg(16)->Arg(15);
BENCHMARK_CAPTURE(equilibrium, outside, 1.5e9)->Arg(16)->Arg(15);

/// The rival: the same pile as fibres of 10 mm in the plane of bending and across it. The strain at
/// the edge is the ultimate one of the concrete; the depth of the neutral axis is halved until the
/// axial force fits. It answers for symmetrical sections alone, and within a fibre.
class FibreGrid {
public:
  FibreGrid() {
    for (double y = 5.0 - 400.0; y < 400.0; y += 10.0) {
      for (double x = 5.0 - 400.0; x < 400.0; x += 10.0) {
        if (x * x + y * y < 400.0 * 400.0) fibres_.push_back({.y = y, .area = 100.0});
      }
    }
    for (int i = 0; i < 16; ++i)
      bars_.push_back({.y = 340.0 * std::sin(2 * pi * i / 16), .area = 144.0 * pi});
  }

  double resisting_moment(double axial_force) const {
    double shallow = 1.0;
    double deep = 4'000.0;
    for (int i = 0; i < 30; ++i) {
      const double depth = 0.5 * (shallow + deep);
      (sums(depth).force > axial_force ? shallow : deep) = depth;
    }
    return sums(0.5 * (shallow + deep)).moment;
  }

private:
  struct Fibre {
    double y;
    double area;
  };
  struct Sums {
    double force = 0.0;
    double moment = 0.0;
  };

  static double concrete(double strain) {
    if (strain >= 0.0) return 0.0;
    const double strength = 0.85 * 0.83 * 30.0 / 1.5;
    const double part = 1.0 + std::max(strain, -0.002) / 0.002;
    return -strength * (1.0 - part * part);
  }
  static double steel(double strain) {
    return std::clamp(210'000.0 * strain, -450.0 / 1.15, 450.0 / 1.15);
  }

  Sums sums(double depth) const {
    const double curvature = 0.0035 / depth;
    Sums all;
    const auto add = [&all](const Fibre& fibre, double stress) {
      all.force += stress * fibre.area;
      all.moment += stress * fibre.area * fibre.y;
    };
    const auto strain = [&](double y) { return curvature * (y + 400.0) - 0.0035; };
    for (const Fibre& fibre : fibres_)
      add(fibre, concrete(strain(fibre.y)));
    for (const Fibre& bar : bars_)
      add(bar, steel(strain(bar.y)));
    return all;
  }

  std::vector<Fibre> fibres_;
  std::vector<Fibre> bars_;
};

void beside_a_fibre_grid(benchmark::State& state) {
  Pile pile(16);
  const FibreGrid fibres;
  std::int64_t step = 0;
  std::int64_t rival_step = 0;
  constexpr int moments = 10;
  const auto by_section = [&] {
    for (int i = 0; i < moments; ++i) {
      double moment = 0.0;
      double second = 0.0;
      Ferrule::Deform plane;
      pile.section.resistingMoment(axial(++step), 0.0, moment, second, 1e-7, plane, 20, false);
      benchmark::DoNotOptimize(moment);
    }
  };
  const auto by_fibres = [&] {
    for (int i = 0; i < moments; ++i)
      benchmark::DoNotOptimize(fibres.resisting_moment(axial(++rival_step)));
  };
  ostrel::benchmarks::run_beside(state, by_section, by_fibres);
  state.SetItemsProcessed(state.iterations() * moments);
}
// The rival takes two hundred times as long, and the time that counts is not its own.
BENCHMARK(beside_a_fibre_grid)->UseManualTime()->MinTime(0.05)->Unit(benchmark::kMicrosecond);

// As a design grows: a new ring of bars before every question, the outline stays.
void new_bars(benchmark::State& state) {
  Pile pile(16);
  const std::vector<std::vector<Ferrule::SteelBar>> rings{ring(8), ring(12), ring(16), ring(20)};
  double moment = 0.0;
  double second = 0.0;
  Ferrule::Deform plane;
  std::size_t step = 0;
  for ([[maybe_unused]] const auto _ : state) {
    const auto& bars = rings[++step % rings.size()];
    pile.domain->setBars(static_cast<int>(bars.size()), bars.data());
    pile.section.resistingMoment(-5e5, 0.0, moment, second, 1e-7, plane, 20, false);
    benchmark::DoNotOptimize(moment);
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(new_bars);

}  // namespace
