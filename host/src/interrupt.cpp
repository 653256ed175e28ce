// SPDX-License-Identifier: Apache-2.0
#include "interrupt.h"

#include <atomic>

namespace ostrel::host {

namespace {

std::atomic<bool> noted{false};
static_assert(std::atomic<bool>::is_always_lock_free, "a signal handler may write it");

void note(int) {
  noted = true;
}

}  // namespace

InterruptWatch::InterruptWatch() {
  noted = false;
  sigaction(SIGINT, nullptr, &before_);
  if (before_.sa_handler == SIG_IGN) return;
  struct sigaction action {};
  action.sa_handler = note;
  action.sa_flags = static_cast<int>(SA_RESTART | SA_RESETHAND);
  sigaction(SIGINT, &action, nullptr);
}

InterruptWatch::~InterruptWatch() {
  sigaction(SIGINT, &before_, nullptr);
}

bool InterruptWatch::interrupted() {
  return noted;
}

}  // namespace ostrel::host
