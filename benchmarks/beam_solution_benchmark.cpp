// SPDX-License-Identifier: Apache-2.0
//
// The reference job of the beam: piles of 800 mm, 20 m long, free above 8 m and below on springs of
// limited strength, 20 passes. Each turn also runs what no solution can do without: the band of the
// first pass, factorised and solved by LAPACK's dgbsv as many times. `over_bare` is the ratio of
// both; it should stay below 3 at 80 elements and below 6 at 400.
//
// The dense matrix of 400 elements takes 12 MB and is there twice. Where each job begins with a new
// solver, that memory may come from the operating system anew each time, page by page, at a cost
// that depends on the machine; `with_a_new_solver` shows it. `over_bare` at 2000 elements is that of
// memory alone.
#include "fem/beam_assembly.h"
#include "in_turns.h"
#include "ostrel/fem_solver.h"
#include "support/spring_beam.h"

#include <benchmark/benchmark.h>

#include <cstddef>
#include <cstdint>
#include <map>
#include <tuple>
#include <vector>

// LAPACK, by its Fortran name.
extern "C" void dgbsv_(const int* n, const int* kl, const int* ku, const int* nrhs, double* ab,
                       const int* ldab, int* ipiv, double* b, const int* ldb, int* info);

namespace {

using ostrel::benchmarks::seconds_of;
using ostrel::testing::reference_piles;
using ostrel::testing::SpringBeam;

constexpr int passes = 20;

// The equations of the first pass as a band, and nothing around them.
class BareLoop {
public:
  explicit BareLoop(const SpringBeam& wall) {
    xFemSolver solver;
    solver.takeSizes(wall.data, 0);
    std::ignore = solver.buildTopologyMat();
    std::ignore = solver.buildBStif(wall.data);
    std::map<int, double> soil;
    std::ignore = solver.build_SkSpring(wall.data, wall.springs, wall.spacing, nullptr, soil);
    rhs_.assign(solver.getNp(), 1.0);
    std::ignore = solver.appBoundCond({}, wall.data, soil, solver.K, rhs_);
    size_ = static_cast<int>(solver.getNp());
    pivots_.resize(rhs_.size());
    band_.assign(rhs_.size() * height, 0.0);
    for (std::size_t j = 0; j < rhs_.size(); ++j) {
      const auto rows = ostrel::fem::band_rows(j, rhs_.size());
      for (std::size_t i = rows.first; i < rows.end; ++i) {
        band_[j * height + 10 + i - j] = solver.K(i, j);
      }
    }
  }

  void run() {
    for (int pass = 0; pass < passes; ++pass) {
      work_ = band_;
      x_ = rhs_;
      const int one = 1;
      int info = 0;
      dgbsv_(&size_, &half_width, &half_width, &one, work_.data(), &height, pivots_.data(),
             x_.data(), &size_, &info);
      benchmark::DoNotOptimize(info);
    }
  }

private:
  static constexpr int half_width = 5;
  static constexpr int height = 16;
  int size_ = 0;
  std::vector<double> band_;
  std::vector<double> rhs_;
  std::vector<double> work_;
  std::vector<double> x_;
  std::vector<int> pivots_;
};

// Runs the job and the bare loop in turns. `prepare` makes the solver ready, within the time.
template <class Prepare>
void run_in_turns(benchmark::State& state, const Prepare& prepare) {
  SpringBeam wall = reference_piles(static_cast<std::int32_t>(state.range(0)));
  wall.options.tolerance = 0.0;  // never reached: all passes are made
  wall.options.maxIterations = passes;
  BareLoop bare(wall);
  xFemSolver solver;
  double of_bare = 0.0;
  double of_job = 0.0;
  for ([[maybe_unused]] const auto _ : state) {
    of_bare += seconds_of([&bare] { bare.run(); });
    OstrelErrorType code = ostrel::ok;
    const double seconds = seconds_of([&] {
      prepare(solver);
      xCombRes result;
      code = solver.solve(wall.options, wall.anchors, wall.data, wall.springs, wall.conditions,
                          result, wall.spacing);
      benchmark::DoNotOptimize(result.displacements.data());
    });
    if (code != ostrel::ok) state.SkipWithError("the job was not solved");
    of_job += seconds;
    state.SetIterationTime(seconds);
  }
  state.SetItemsProcessed(state.iterations());
  state.counters["bare_per_second"] = static_cast<double>(state.iterations()) / of_bare;
  state.counters["over_bare"] = of_job / of_bare;
}

void reference_job(benchmark::State& state) {
  run_in_turns(state, [](xFemSolver&) {});
}
BENCHMARK(reference_job)
    ->Arg(80)
    ->Arg(400)
    ->Arg(2000)
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond);

void with_a_new_solver(benchmark::State& state) {
  run_in_turns(state, [](xFemSolver& solver) { solver.reset(); });
}
BENCHMARK(with_a_new_solver)->Arg(80)->Arg(400)->UseManualTime()->Unit(benchmark::kMicrosecond);

}  // namespace
