// SPDX-License-Identifier: Apache-2.0
#include "fem/banded_beam.h"

#include "fem/beam_assembly.h"
#include "fem/beam_supports.h"
#include "services/exact.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <functional>
#include <limits>
#include <numeric>
#include <tuple>

// LAPACK, by its Fortran names.
extern "C" {
void dgbtrf_(const int* m, const int* n, const int* kl, const int* ku, double* ab, const int* ldab,
             int* ipiv, int* info);
void dgbtrs_(const char* trans, const int* n, const int* kl, const int* ku, const int* nrhs,
             const double* ab, const int* ldab, const int* ipiv, double* b, const int* ldb,
             int* info, std::size_t trans_length);
}

namespace ostrel::fem {

namespace {

constexpr int half_width = static_cast<int>(half_band_width);
// Entries of a column in LAPACK's band storage, with the room that row interchanges need.
constexpr int column_height = 3 * half_width + 1;

constexpr std::size_t position(std::size_t i, std::size_t j) {
  return j * column_height + 2 * half_band_width + i - j;
}

// The power of two next to 1 / sqrt(x), 1 for anything that has none.
double inverse_root_scale(double x) {
  if (!(x > 0.0 && std::isfinite(x))) return 1.0;
  return std::ldexp(1.0, -std::ilogb(std::sqrt(x)));
}

// 1 or -1, without a pattern that a shape of the beam could be blind to.
double sign_at(std::uint64_t i) {
  std::uint64_t bits = (i + 1) * 0x9E3779B97F4A7C15U;
  bits = (bits ^ (bits >> 32U)) * 0xD6E8FEB86659FD93U;
  return (bits >> 63U) == 0 ? 1.0 : -1.0;
}

double length_of(const double* column, std::size_t size) {
  return std::sqrt(std::inner_product(column, column + size, column, 0.0));
}

}  // namespace

// The band without scales, as a matrix that takes supports.
class BandedBeam::Band {
public:
  explicit Band(BandedBeam& beam) : beam_(beam) {}

  std::size_t size() const { return beam_.size_; }
  void add(std::size_t i, std::size_t j, double value) { beam_.base_[position(i, j)] += value; }
  void make_unit_row(std::size_t i) {
    // The columns of a row are as many as the rows of a column.
    const BandRows columns = band_rows(i, beam_.size_);
    for (std::size_t j = columns.first; j < columns.end; ++j) {
      beam_.base_[position(i, j)] = 0.0;
    }
    beam_.base_[position(i, i)] = 1.0;
    beam_.is_unit_row_[i] = true;
  }

private:
  BandedBeam& beam_;
};

BandedBeam::BandedBeam(const arma::Mat<double>& beam, const std::vector<info_Fem_anchor>& anchors,
                       const xFemData& data)
    : size_(beam.n_rows),
      base_(size_ * column_height, 0.0),
      row_scale_(size_, 1.0),
      column_scale_(size_, 1.0),
      is_unit_row_(size_, false),
      signs_(size_),
      growth_(std::numeric_limits<double>::infinity()),
      diagonal_(size_),
      rhs_(size_),
      columns_(2 * size_),
      pivots_(size_) {
  for (std::size_t j = 0; j < size_; ++j) {
    const BandRows rows = band_rows(j, size_);
    for (std::size_t i = rows.first; i < rows.end; ++i) {
      base_[position(i, j)] = beam.at(i, j);
    }
    signs_[j] = sign_at(j);
  }
  Band band(*this);
  std::ignore = apply_supports(anchors, data, band, [](Band&) { return ok; });
  for (std::size_t i = 0; i < size_; ++i) {
    // A prescribed dof keeps the scale that it has in the equations of its neighbours.
    column_scale_[i] = inverse_root_scale(is_unit_row_[i] ? beam.at(i, i) : base_[position(i, i)]);
    row_scale_[i] = is_unit_row_[i] ? 1.0 / column_scale_[i] : column_scale_[i];
  }
  scale();
}

void BandedBeam::scale() {
  for (std::size_t j = 0; j < size_; ++j) {
    double sum = 0.0;
    const BandRows rows = band_rows(j, size_);
    for (std::size_t i = rows.first; i < rows.end; ++i) {
      base_[position(i, j)] *= row_scale_[i] * column_scale_[j];
      sum += std::abs(base_[position(i, j)]);
    }
    if (!(sum <= base_norm_ || std::isnan(base_norm_))) base_norm_ = sum;
  }
}

bool BandedBeam::solve(const std::vector<int>& nodes, const std::vector<double>& stiffness,
                       std::vector<double>& d) {
  if (d.size() != size_ || !take_soil(nodes, stiffness) || !factorise()) return false;
  for (std::size_t i = 0; i < size_; ++i) {
    rhs_[i] = d[i] * row_scale_[i];
  }
  std::copy(rhs_.begin(), rhs_.end(), columns_.begin());
  substitute(columns_.data());
  return is_well_conditioned(stiffness) && correct(columns_.data()) && hand_out(columns_.data(), d);
}

bool BandedBeam::improve(const std::vector<int>& nodes, const std::vector<double>& stiffness,
                         const std::vector<double>& rhs, std::vector<double>& d) {
  if (rhs.size() != size_ || d.size() != size_) return false;
  if (!take_soil(nodes, stiffness) || !factorise()) return false;
  for (std::size_t i = 0; i < size_; ++i) {
    rhs_[i] = rhs[i] * row_scale_[i];
    columns_[i] = d[i] / column_scale_[i];
  }
  return correct(columns_.data()) && hand_out(columns_.data(), d);
}

// Takes the scales off a solution.
bool BandedBeam::hand_out(const double* solution, std::vector<double>& d) {
  if (!std::all_of(solution, solution + size_, [](double x) { return std::isfinite(x); })) {
    return false;
  }
  for (std::size_t i = 0; i < size_; ++i) {
    d[i] = solution[i] * column_scale_[i];
  }
  return true;
}

// One step of iterative improvement. In the digits of a double what is left over of the right-hand
// side would drown in the rounding of its terms, which are large and cancel.
bool BandedBeam::correct(double* solution) {
  double* change = columns_.data() + size_;
  for (std::size_t i = 0; i < size_; ++i) {
    long double left = rhs_[i];
    const BandRows columns = band_rows(i, size_);
    for (std::size_t j = columns.first; j < columns.end; ++j) {
      const double entry = i == j ? diagonal_[i] : base_[position(i, j)];
      if (exactly_equal(entry, 0.0)) continue;  // as where along meets across
      left -= static_cast<long double>(entry) * solution[j];
    }
    change[i] = static_cast<double>(left);
  }
  substitute(change);
  // A change that is not small tells of factors that are no good.
  if (!(length_of(change, size_) <= 1e-3 * length_of(solution, size_))) return false;
  std::transform(solution, solution + size_, change, solution, std::plus<>{});
  return true;
}

bool BandedBeam::take_soil(const std::vector<int>& nodes, const std::vector<double>& stiffness) {
  work_ = base_;
  double largest = 0.0;
  for (std::size_t k = 0; k < nodes.size(); ++k) {
    const std::size_t i = dof_within(size_, nodes[k], 1);
    if (!(i < size_) || is_unit_row_[i]) continue;
    const double soil = stiffness[k] * (row_scale_[i] * column_scale_[i]);
    if (!std::isfinite(soil)) return false;
    work_[position(i, i)] += soil;
    largest = std::max(largest, std::abs(soil));
  }
  for (std::size_t i = 0; i < size_; ++i) {
    diagonal_[i] = work_[position(i, i)];
  }
  norm_ = base_norm_ + largest;
  return std::isfinite(norm_);
}

bool BandedBeam::factorise() {
  const int n = static_cast<int>(size_);
  int info = 0;
  dgbtrf_(&n, &n, &half_width, &half_width, work_.data(), &column_height, pivots_.data(), &info);
  return info == 0;
}

void BandedBeam::substitute(double* column) {
  const int n = static_cast<int>(size_);
  const int one = 1;
  int info = 0;
  dgbtrs_("N", &n, &half_width, &half_width, &one, work_.data(), &column_height, pivots_.data(),
          column, &n, &info, 1);
}

// Softer springs make the equations worse by no more than the factor by which they are softer, so
// that what was found for the springs of a pass before mostly does.
bool BandedBeam::is_well_conditioned(const std::vector<double>& stiffness) {
  constexpr double enough = 1e-4 / std::numeric_limits<double>::epsilon();
  if (norm_ * growth_ < enough * softening_since_probe(stiffness)) return true;
  probe(enough);
  probed_stiffness_ = stiffness;
  return norm_ * growth_ < 0.03 / std::numeric_limits<double>::epsilon();
}

// The smallest part that any spring has kept of the stiffness it had at the last probe; 0 before it.
double BandedBeam::softening_since_probe(const std::vector<double>& stiffness) const {
  if (probed_stiffness_.size() != stiffness.size()) return 0.0;
  double kept = 1.0;
  for (std::size_t k = 0; k < stiffness.size(); ++k) {
    if (!(probed_stiffness_[k] > 0.0)) return 0.0;
    kept = std::min(kept, stiffness[k] / probed_stiffness_[k]);
  }
  return kept;
}

// How much a pattern grows between the two sides of the equations bounds their condition from below.
// Chance hides a part of it, up to three digits in long beams; where there is not `enough` room for
// that, what has grown is sent through again, which finds the condition within a small factor.
void BandedBeam::probe(double enough) {
  double* column = columns_.data() + size_;
  std::copy(signs_.begin(), signs_.end(), column);
  double before = length_of(column, size_);
  for (int round = 0; round < 3; ++round) {
    std::transform(column, column + size_, column, [before](double x) { return x / before; });
    substitute(column);
    before = growth_ = length_of(column, size_);
    if (norm_ * growth_ < enough || !(growth_ > 0.0 && std::isfinite(growth_))) return;
  }
}

}  // namespace ostrel::fem
