// SPDX-License-Identifier: Apache-2.0
#include "job_pool.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <thread>
#include <vector>

namespace ostrel::host {
namespace {

PoolTask counting(std::vector<std::atomic<int>>& times, std::size_t threads) {
  return {.count = times.size(),
          .threads = threads,
          .job = [&times](std::size_t number) { ++times.at(number); },
          .stop = [] { return false; },
          .watch = [] {}};
}

TEST(JobPool, DoesEachJobOnceWhateverTheThreads) {
  for (const std::size_t threads : {1u, 3u, 50u}) {
    std::vector<std::atomic<int>> times(20);
    run_jobs(counting(times, threads));
    for (const auto& time : times)
      EXPECT_EQ(time, 1);
  }
}

TEST(JobPool, HasNothingToDoForNoJobs) {
  std::vector<std::atomic<int>> none;
  bool watched = false;
  PoolTask task = counting(none, 4);
  task.watch = [&watched] { watched = true; };
  run_jobs(task);
  EXPECT_TRUE(watched);
}

// Two jobs that wait for one another end only where both run at a time.
TEST(JobPool, RunsJobsAtATime) {
  std::atomic<int> there{0};
  std::atomic<int> met{0};
  run_jobs({.count = 2,
            .threads = 2,
            .job =
                [&](std::size_t) {
                  ++there;
                  const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(20);
                  while (there < 2 && std::chrono::steady_clock::now() < end)
                    std::this_thread::yield();
                  if (there == 2) ++met;
                },
            .stop = [] { return false; },
            .watch = [] {}});
  EXPECT_EQ(met, 2);
}

TEST(JobPool, EndsWhatRunsAndStartsNoMoreWhenStopped) {
  std::atomic<bool> stop{false};
  std::vector<std::atomic<int>> ended(10);
  run_jobs({.count = ended.size(),
            .threads = 1,
            .job =
                [&](std::size_t number) {
                  if (number == 2) stop = true;
                  ++ended.at(number);
                },
            .stop = [&stop] { return stop.load(); },
            .watch = [] {}});
  for (std::size_t i = 0; i < ended.size(); ++i)
    EXPECT_EQ(ended[i], i <= 2 ? 1 : 0) << i;
}

TEST(JobPool, LooksOnFromTheThreadOfTheCaller) {
  const std::thread::id here = std::this_thread::get_id();
  std::atomic<bool> elsewhere{false};
  std::atomic<int> looks{0};
  run_jobs({.count = 1,
            .threads = 1,
            .job =
                [&](std::size_t) {
                  const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(20);
                  while (looks == 0 && std::chrono::steady_clock::now() < end)
                    std::this_thread::yield();
                },
            .stop = [] { return false; },
            .watch =
                [&] {
                  ++looks;
                  if (std::this_thread::get_id() != here) elsewhere = true;
                }});
  EXPECT_GE(looks, 2);  // during the job and after it
  EXPECT_FALSE(elsewhere);
}

}  // namespace
}  // namespace ostrel::host
