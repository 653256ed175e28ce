// SPDX-License-Identifier: Apache-2.0
// Two threads with solvers of their own:
//
//     ostrel_two_threads RUNS
//
// The label tables, which fill at their first use without a lock, are filled before, and nothing else
// is: what else fills itself does so on both threads at a time. Each thread begins with another wall,
// and each run must give the same bytes as afterwards on one thread.
#include "stress/small_job.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <thread>
#include <vector>

namespace {

using ostrel::testing::small_job;
using ostrel::testing::small_jobs;
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

// What one thread told of each wall.
class Runs {
public:
  void work(std::size_t first_wall, long count) {
    for (long run = 0; run < count; ++run) {
      const std::size_t wall = (first_wall + static_cast<std::size_t>(run)) % small_jobs;
      const std::string told = told_run(small_job(wall)).all;
      if (first_[wall].empty()) first_[wall] = told;
      if (told != first_[wall]) ++differing_;
    }
  }

  long differing_from_one_thread() const {
    long differing = differing_;
    for (std::size_t wall = 0; wall < small_jobs; ++wall) {
      if (first_[wall].empty()) continue;
      if (first_[wall] != told_run(small_job(wall)).all) ++differing;
    }
    return differing;
  }

private:
  std::vector<std::string> first_ = std::vector<std::string>(small_jobs);
  long differing_ = 0;
};

}  // namespace

int main(int count, char** arguments) {
  const long count_of_runs = count == 2 ? std::atol(arguments[1]) : 0;
  if (!(count_of_runs >= 1)) {
    std::fprintf(stderr, "ostrel_two_threads RUNS\n");
    return 2;
  }
  fill_label_tables();
  std::array<Runs, 2> runs;
  std::thread one([&] { runs[0].work(0, count_of_runs); });
  std::thread two([&] { runs[1].work(small_jobs / 2, count_of_runs); });
  one.join();
  two.join();
  const long differing = runs[0].differing_from_one_thread() + runs[1].differing_from_one_thread();
  std::printf("%ld runs on each of two threads, %ld differ\n", count_of_runs, differing);
  return differing == 0 ? 0 : 1;
}
