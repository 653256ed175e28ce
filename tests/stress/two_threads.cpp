// SPDX-License-Identifier: Apache-2.0
// Two threads with solvers of their own:
//
//     ostrel_two_threads RUNS
//
// The label tables, which fill at their first use without a lock, are filled before; then each thread
// runs other walls, and each run must give the same bytes as on one thread.
#include "stress/small_job.h"

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>
#include <thread>
#include <vector>

namespace {

using ostrel::testing::small_job;
using ostrel::testing::told_run;

void fill_label_tables() {
  xGetChecksTypeMap();
  xGetCombTypeMap();
  xSoilCoeffKTypeMap();
  xcheckUlsFactorsMap();
  xAnchorCsiDataMap();
  xformulType_Map();
  xSpringInterval::QlimSpringypeMap();
  getPredefined_CondName(0);
}

}  // namespace

int main(int count, char** arguments) {
  const long runs = count == 2 ? std::atol(arguments[1]) : 0;
  if (!(runs >= 1)) {
    std::fprintf(stderr, "ostrel_two_threads RUNS\n");
    return 2;
  }
  constexpr std::size_t walls = 10;
  fill_label_tables();
  std::vector<std::string> expected;
  for (std::size_t wall = 0; wall < walls; ++wall)
    expected.push_back(told_run(small_job(wall)));

  std::atomic<long> differing = 0;
  const auto work = [&](std::size_t first_wall) {
    for (long run = 0; run < runs; ++run) {
      const std::size_t wall = (first_wall + static_cast<std::size_t>(run)) % walls;
      if (told_run(small_job(wall)) != expected[wall]) ++differing;
    }
  };
  std::thread one(work, 0);
  std::thread two(work, walls / 2);
  one.join();
  two.join();
  std::printf("%ld runs on each of two threads, %ld differ\n", runs, differing.load());
  return differing == 0 ? 0 : 1;
}
