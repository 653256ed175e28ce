// SPDX-License-Identifier: Apache-2.0
#include "fem/spring_lumping.h"

namespace ostrel::fem {

namespace {

// Displacement across the wall of a node that may lie beyond the end of the vector.
double across_at(const std::vector<double>& d, int node) {
  const std::size_t dof = 3 * static_cast<std::size_t>(node) + 1;
  return node >= 0 && dof < d.size() ? d[dof] : 0.0;
}

}  // namespace

SpringLine::SpringLine(const xFemData& data, const std::map<int, NodeModulus>& modulus,
                       const std::vector<double>& lengths, double spacing)
    : secant_(modulus.size()), spacing_(spacing) {
  springs_.reserve(modulus.size());
  for (const auto& [node, law] : modulus) {
    Spring& spring = springs_.emplace_back();
    spring.node = node;
    spring.law = &law;
  }
  while (complete_ < springs_.size() && lay_out(data, lengths, complete_)) {
    ++complete_;
  }
}

bool SpringLine::has_node_at(std::size_t position, int node) const {
  return position < springs_.size() && springs_[position].node == node;
}

bool SpringLine::lay_out(const xFemData& data, const std::vector<double>& lengths, std::size_t i) {
  Spring& spring = springs_[i];
  const int node = spring.node;
  const auto foot = static_cast<int>(lengths.size());
  if (!(node >= 0 && node <= foot)) return false;
  const bool at_excavation = node == data.getJtsoil();
  const bool at_foot = !at_excavation && node == foot;
  // Positions before the first wrap to a number that no position has.
  spring.first = at_excavation ? i + 1 : i - 1;
  spring.second = at_excavation ? i + 2 : at_foot ? i - 2 : i + 1;
  const int first_node = at_excavation ? node + 1 : node - 1;
  const int second_node = at_excavation ? node + 2 : at_foot ? node - 2 : node + 1;
  if (!has_node_at(spring.first, first_node) || !has_node_at(spring.second, second_node)) {
    return false;
  }
  const int element = at_foot ? node - 1 : node;
  if (!(element >= 0 && element < foot)) return false;
  const double length = lengths[static_cast<std::size_t>(element)];
  const bool at_an_end = at_excavation || at_foot;
  spring.a = at_an_end ? 7.0 : 10.0;
  spring.b = at_an_end ? 6.0 : 1.0;
  spring.c = at_an_end ? -1.0 : 1.0;
  spring.factor_length = at_excavation ? data.getRedfac() * length : length;
  spring.divisor = at_an_end ? 24.0 : 12.0;
  return true;
}

void SpringLine::evaluate(const std::vector<double>& d, std::vector<double>& stiffness) {
  for (std::size_t i = 0; i < springs_.size(); ++i) {
    secant_[i] = springs_[i].law->getKmolla(across_at(d, springs_[i].node));
  }
  stiffness.resize(complete_);
  for (std::size_t i = 0; i < complete_; ++i) {
    const Spring& at = springs_[i];
    const double sum = at.a * secant_[i] + at.b * secant_[at.first] + at.c * secant_[at.second];
    stiffness[i] = sum * at.factor_length * spacing_ / at.divisor;
  }
}

}  // namespace ostrel::fem
