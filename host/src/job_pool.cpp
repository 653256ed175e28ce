// SPDX-License-Identifier: Apache-2.0
#include "job_pool.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <system_error>
#include <thread>
#include <vector>

namespace ostrel::host {

namespace {

constexpr std::chrono::milliseconds between_looks{100};

class Pool {
public:
  explicit Pool(const PoolTask& task) : task_(task) {}

  void run() {
    start();
    if (threads_.empty()) {
      work();
    } else {
      look_on();
    }
    for (std::thread& thread : threads_) {
      thread.join();
    }
    task_.watch();
  }

private:
  void start() {
    const std::size_t wanted = std::min(task_.threads, task_.count);
    at_work_ = wanted;
    try {
      while (threads_.size() < wanted) {
        threads_.emplace_back([this] {
          work();
          leave();
        });
      }
    } catch (const std::system_error&) {
      const std::lock_guard lock(mutex_);
      at_work_ -= wanted - threads_.size();
    }
  }

  void work() {
    while (!task_.stop()) {
      const std::size_t number = next_++;
      if (number >= task_.count) return;
      task_.job(number);
    }
  }

  void leave() {
    const std::lock_guard lock(mutex_);
    --at_work_;
    ended_.notify_one();
  }

  void look_on() {
    std::unique_lock lock(mutex_);
    while (!ended_.wait_for(lock, between_looks, [this] { return at_work_ == 0; })) {
      lock.unlock();
      task_.watch();
      lock.lock();
    }
  }

  const PoolTask& task_;
  std::atomic<std::size_t> next_{0};
  std::mutex mutex_;
  std::condition_variable ended_;
  std::size_t at_work_ = 0;
  std::vector<std::thread> threads_;
};

}  // namespace

void run_jobs(const PoolTask& task) {
  Pool(task).run();
}

}  // namespace ostrel::host
