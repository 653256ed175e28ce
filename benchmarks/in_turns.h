#pragma once
/// @file  A job and a rival measured in turns, for benchmarks
// SPDX-License-Identifier: Apache-2.0

#include <benchmark/benchmark.h>

#include <ctime>

namespace ostrel::benchmarks {

/// Time of the processor, so that other programs on the machine do not count [s].
template <class Action>
double seconds_of(const Action& action) {
  const std::clock_t start = std::clock();
  action();
  return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

/// Runs a job and its rival in turns, so that whatever else the machine does strikes both. The time
/// that counts is the job's; `over_rival` is the ratio of both.
template <class Job, class Rival>
void run_beside(benchmark::State& state, const Job& job, const Rival& rival) {
  double of_job = 0.0;
  double of_rival = 0.0;
  for ([[maybe_unused]] const auto _ : state) {
    of_rival += seconds_of(rival);
    const double seconds = seconds_of(job);
    of_job += seconds;
    state.SetIterationTime(seconds);
  }
  state.counters["over_rival"] = of_job / of_rival;
}

}  // namespace ostrel::benchmarks
