#pragma once
/// @file  From the pressures of the soil springs to stiffnesses at the nodes. Room: fem
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/error.h"
#include "ostrel/fem_data.h"
#include "ostrel/soil_spring.h"

#include <cstddef>
#include <map>
#include <vector>

namespace ostrel::fem {

/// The soil springs of one beam, laid out once so that a pass of the iteration only evaluates them.
class SpringLine {
public:
  /// @param lengths  of the elements [mm]
  /// @param spacing  width of the wall that the beam stands for [mm]
  /// The springs of `modulus` must outlive the line.
  SpringLine(const xFemData& data, const std::map<int, NodeModulus>& modulus,
             const std::vector<double>& lengths, double spacing);

  std::size_t size() const { return springs_.size(); }
  int node(std::size_t i) const { return springs_[i].node; }
  const NodeModulus& spring(std::size_t i) const { return *springs_[i].law; }

  /// How many springs from the first on have all the neighbours they need; less than `size()` where
  /// one lacks a neighbour or has no element.
  std::size_t complete() const { return complete_; }

  /// The lumped stiffness of the first `complete()` springs [N/mm] at the displacements `d` by dof
  /// [mm], a dof beyond its end counting as 0.
  void evaluate(const std::vector<double>& d, std::vector<double>& stiffness);

private:
  // The stiffness of a node is (a k'(i) + b k'(first) + c k'(second)) times `factor`.
  struct Spring {
    int node = 0;
    const NodeModulus* law = nullptr;
    double a = 0.0;
    double b = 0.0;
    double c = 0.0;
    std::size_t first = 0;  // neighbours, as positions in the line
    std::size_t second = 0;
    double factor_length = 0.0;  // Redfac L, or L alone
    double divisor = 1.0;
  };

  bool lay_out(const xFemData& data, const std::vector<double>& lengths, std::size_t i);
  bool has_node_at(std::size_t position, int node) const;

  std::vector<Spring> springs_;
  std::vector<double> secant_;  // k' of each spring, filled anew at each evaluation
  std::size_t complete_ = 0;
  double spacing_ = 0.0;
};

}  // namespace ostrel::fem
