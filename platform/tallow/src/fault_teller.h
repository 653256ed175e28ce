#pragma once
/// @file  Why a stream buffer failed. Library: tallow
// SPDX-License-Identifier: Apache-2.0

#include <string>

namespace Tallow {

/// A stream buffer that can say what went wrong. The standard streams keep only a bit of it, so the
/// typed streams ask here for the text of their exception.
class FaultTeller {
public:
  FaultTeller() = default;
  FaultTeller(const FaultTeller&) = delete;
  FaultTeller& operator=(const FaultTeller&) = delete;

  /// The first failure, with the path and the system's reason; empty if there was none.
  const std::string& fault() const { return fault_; }

protected:
  virtual ~FaultTeller() = default;

  void remember_fault(const std::string& fault) {
    if (fault_.empty()) fault_ = fault;
  }

private:
  std::string fault_;
};

}  // namespace Tallow
