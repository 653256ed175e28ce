// SPDX-License-Identifier: Apache-2.0
// Many runs in one process:
//
//     ostrel_many_runs RUNS
//
// Ten walls in turn. Each must give the same bytes every time, and after the first tenth of the runs,
// in which caches and heap find their size, the process must not grow by more than 2 MB.
#include "stress/small_job.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>
#include <vector>

namespace {

// Memory of this process that is in use [kB].
long resident_kB() {
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);) {
    if (line.starts_with("VmRSS:")) return std::atol(line.c_str() + 6);
  }
  return 0;
}

}  // namespace

int main(int count, char** arguments) {
  const long runs = count == 2 ? std::atol(arguments[1]) : 0;
  if (!(runs >= 100)) {
    std::fprintf(stderr, "ostrel_many_runs RUNS (100 at least)\n");
    return 2;
  }
  constexpr long most_growth_kB = 2048;
  constexpr std::size_t walls = 10;
  std::vector<std::string> first(walls);
  long settled_kB = 0;
  for (long run = 0; run < runs; ++run) {
    const std::size_t wall = static_cast<std::size_t>(run) % walls;
    const std::string told = ostrel::testing::told_run(ostrel::testing::small_job(wall));
    if (first[wall].empty()) first[wall] = told;
    if (told != first[wall]) {
      std::printf("run %ld differs from the first one of its wall\n", run + 1);
      return 1;
    }
    if ((run + 1) % (runs / 10) != 0) continue;
    const long now_kB = resident_kB();
    if (settled_kB == 0) settled_kB = now_kB;
    std::printf("%8ld runs  %8ld kB\n", run + 1, now_kB);
    std::fflush(stdout);
  }
  const long growth_kB = resident_kB() - settled_kB;
  std::printf("growth after the first tenth: %ld kB\n", growth_kB);
  return growth_kB <= most_growth_kB ? 0 : 1;
}
