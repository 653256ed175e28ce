#pragma once
/// @file  Many jobs on several threads. Room: host
// SPDX-License-Identifier: Apache-2.0

#include <cstddef>
#include <functional>

namespace ostrel::host {

/// What to do, how often, and on how many threads.
struct PoolTask {
  std::size_t count = 0;  ///< of jobs
  std::size_t threads = 1;
  std::function<void(std::size_t)> job;  ///< gets its number; on one of the threads; throws nothing
  std::function<bool()> stop;            ///< asked before each job; true starts no more
  std::function<void()> watch;  ///< called by the caller's thread while jobs run, and once after
};

/// Does the jobs in their order, as many at a time as there are threads, and comes back when the
/// last one that was started has ended. Where the system gives fewer threads, these do the work.
void run_jobs(const PoolTask& task);

}  // namespace ostrel::host
