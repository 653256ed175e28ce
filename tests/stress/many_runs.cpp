// SPDX-License-Identifier: Apache-2.0
// Many runs in one process:
//
//     ostrel_many_runs RUNS
//
// Walls of all kinds in turn, also such that are refused. Each must give the same bytes every time.
// After the first tenth of the runs, in which caches find their size, what the process holds on the
// heap after a whole round of walls must not change by a byte, and its memory must not grow by more
// than 2 MB.
#include "stress/small_job.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>
#include <vector>

#if __has_include(<malloc.h>)
#include <malloc.h>
#endif

namespace {

using ostrel::testing::small_jobs;

// Memory of this process that is in use [kB].
long resident_kB() {
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);) {
    if (line.starts_with("VmRSS:")) return std::atol(line.c_str() + 6);
  }
  return 0;
}

// What has been taken from the heap and not given back [bytes]; 0 where the heap does not tell.
long held_bytes() {
#if defined(__GLIBC__) && __GLIBC_PREREQ(2, 33)
  const struct mallinfo2 heap = mallinfo2();
  return static_cast<long>(heap.uordblks + heap.hblkhd);
#else
  return 0;
#endif
}

struct Memory {
  long resident_kB = 0;
  long held_bytes = 0;
};

Memory memory_now() {
  return {.resident_kB = resident_kB(), .held_bytes = held_bytes()};
}

void tell(long runs, const Memory& memory, double seconds) {
  std::printf("%8ld runs  %8ld kB resident  %10ld bytes held  %6.1f s\n", runs, memory.resident_kB,
              memory.held_bytes, seconds);
  std::fflush(stdout);
}

// One run of each wall; false where one differs from the first of its wall.
bool one_round(std::vector<std::string>& first) {
  for (std::size_t wall = 0; wall < small_jobs; ++wall) {
    const std::string told = ostrel::testing::told_run(ostrel::testing::small_job(wall)).all;
    if (first[wall].empty()) first[wall] = told;
    if (told == first[wall]) continue;
    std::printf("wall %zu gives other results than the first time\n", wall);
    return false;
  }
  return true;
}

int soak(long rounds) {
  constexpr long most_growth_kB = 2048;
  const auto begin = std::chrono::steady_clock::now();
  std::vector<std::string> first(small_jobs);
  const long settled_after = std::max(2L, rounds / 10);
  Memory settled;
  for (long round = 1; round <= rounds; ++round) {
    if (!one_round(first)) return 1;
    if (round == settled_after) settled = memory_now();
    if (round % settled_after != 0 && round != rounds) continue;
    const std::chrono::duration<double> passed = std::chrono::steady_clock::now() - begin;
    tell(round * static_cast<long>(small_jobs), memory_now(), passed.count());
  }
  const Memory now = memory_now();
  const long growth_kB = now.resident_kB - settled.resident_kB;
  const long growth_bytes = now.held_bytes - settled.held_bytes;
  std::printf("after the first tenth: %ld kB more resident, %ld bytes more held\n", growth_kB,
              growth_bytes);
  return growth_kB <= most_growth_kB && growth_bytes == 0 ? 0 : 1;
}

}  // namespace

int main(int count, char** arguments) {
  const long runs = count == 2 ? std::atol(arguments[1]) : 0;
  if (!(runs >= 100)) {
    std::fprintf(stderr, "ostrel_many_runs RUNS (100 at least)\n");
    return 2;
  }
  const long walls = static_cast<long>(small_jobs);
  std::printf("%ld kinds of walls in turn\n", walls);
  for (std::size_t wall = 0; wall < small_jobs; ++wall) {
    const auto told = ostrel::testing::told_run(ostrel::testing::small_job(wall));
    std::printf("  %2zu: verdict %d, %zu bytes %s\n", wall, static_cast<int>(told.verdict),
                told.all.size(), told.messages.substr(0, told.messages.find('\n')).c_str());
  }
  return soak((runs + walls - 1) / walls);
}
