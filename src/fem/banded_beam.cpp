// SPDX-License-Identifier: Apache-2.0
#include "fem/banded_beam.h"

#include "fem/beam_supports.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <string_view>
#include <utility>

// LAPACK, by its Fortran names.
extern "C" {
void dgbtrf_(const int* m, const int* n, const int* kl, const int* ku, double* ab, const int* ldab,
             int* ipiv, int* info);
void dgbtrs_(const char* trans, const int* n, const int* kl, const int* ku, const int* nrhs,
             const double* ab, const int* ldab, const int* ipiv, double* b, const int* ldb,
             int* info, std::size_t trans_length);
void dgbcon_(const char* norm, const int* n, const int* kl, const int* ku, const double* ab,
             const int* ldab, const int* ipiv, const double* anorm, double* rcond, double* work,
             int* iwork, int* info, std::size_t norm_length);
}

namespace ostrel::fem {

namespace {

// Columns between an entry and the diagonal: two nodes of three dofs are joined.
constexpr int half_width = 5;
// Entries of a column in LAPACK's band storage, with the room that row interchanges need.
constexpr int column_height = 3 * half_width + 1;

constexpr std::size_t position(std::size_t i, std::size_t j) {
  return j * column_height + 2 * half_width + i - j;
}

std::size_t first_in_band(std::size_t i) {
  return i > half_width ? i - half_width : 0;
}
std::size_t end_of_band(std::size_t i, std::size_t size) {
  return std::min(size, i + half_width + 1);
}

// The power of two next to 1 / sqrt(x), 1 for anything that has none.
double inverse_root_scale(double x) {
  if (!(x > 0.0 && std::isfinite(x))) return 1.0;
  return std::ldexp(1.0, -std::ilogb(std::sqrt(x)));
}

}  // namespace

// The band without scales, as a matrix that takes supports.
class BandedBeam::Band {
public:
  explicit Band(BandedBeam& beam) : beam_(beam) {}

  std::size_t size() const { return beam_.size_; }
  void add(std::size_t i, std::size_t j, double value) { beam_.base_[position(i, j)] += value; }
  void make_unit_row(std::size_t i) {
    for (std::size_t j = first_in_band(i); j < end_of_band(i, beam_.size_); ++j) {
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
      pivots_(size_, 0) {
  for (std::size_t j = 0; j < size_; ++j) {
    for (std::size_t i = first_in_band(j); i < end_of_band(j, size_); ++i) {
      base_[position(i, j)] = beam.at(i, j);
    }
  }
  Band band(*this);
  std::ignore = apply_supports(anchors, data, band, [](Band&) { return ok; });
  for (std::size_t i = 0; i < size_; ++i) {
    column_scale_[i] = inverse_root_scale(beam.at(i, i));
    row_scale_[i] = is_unit_row_[i] ? 1.0 / column_scale_[i] : column_scale_[i];
  }
  scale();
}

void BandedBeam::scale() {
  for (std::size_t j = 0; j < size_; ++j) {
    for (std::size_t i = first_in_band(j); i < end_of_band(j, size_); ++i) {
      base_[position(i, j)] *= row_scale_[i] * column_scale_[j];
    }
  }
}

OstrelErrorType BandedBeam::solve(const std::vector<int>& nodes,
                                  const std::vector<double>& stiffness, std::vector<double>& d) {
  work_ = base_;
  for (std::size_t k = 0; k < nodes.size(); ++k) {
    const std::size_t i = dof_within(size_, nodes[k], 1);
    if (!(i < size_) || is_unit_row_[i]) continue;
    work_[position(i, i)] += stiffness[k] * (row_scale_[i] * column_scale_[i]);
  }
  const double norm = largest_column_sum();
  if (!std::isfinite(norm) || d.size() != size_) return errEquationSolve;
  for (std::size_t i = 0; i < size_; ++i)
    d[i] *= row_scale_[i];

  const int n = static_cast<int>(size_);
  const int one = 1;
  int info = 0;
  dgbtrf_(&n, &n, &half_width, &half_width, work_.data(), &column_height, pivots_.data(), &info);
  if (info != 0 || is_singular(norm)) return errEquationSolve;
  dgbtrs_("N", &n, &half_width, &half_width, &one, work_.data(), &column_height, pivots_.data(),
          d.data(), &n, &info, 1);
  for (std::size_t i = 0; i < size_; ++i)
    d[i] *= column_scale_[i];
  const bool is_finite = std::all_of(d.begin(), d.end(), [](double x) { return std::isfinite(x); });
  return info == 0 && is_finite ? ok : errEquationSolve;
}

double BandedBeam::largest_column_sum() const {
  double largest = 0.0;
  for (std::size_t j = 0; j < size_; ++j) {
    double sum = 0.0;
    for (std::size_t i = first_in_band(j); i < end_of_band(j, size_); ++i) {
      sum += std::abs(work_[position(i, j)]);
    }
    if (!(sum <= largest)) largest = sum;  // a NaN stays
    if (std::isnan(largest)) break;
  }
  return largest;
}

// A mechanism shows as a pivot that all but vanishes beside the entries of the scaled matrix. Only
// then is the condition worth its cost; the bound is that of the dense form.
bool BandedBeam::is_singular(double norm) const {
  double smallest = std::numeric_limits<double>::infinity();
  for (std::size_t i = 0; i < size_; ++i) {
    smallest = std::min(smallest, std::abs(work_[position(i, i)]));
  }
  constexpr double suspicious = 1e-8;
  if (smallest > suspicious * norm) return false;

  const int n = static_cast<int>(size_);
  std::vector<double> work(3 * size_);
  std::vector<int> iwork(size_);
  double reciprocal_condition = 0.0;
  int info = 0;
  dgbcon_("1", &n, &half_width, &half_width, work_.data(), &column_height, pivots_.data(), &norm,
          &reciprocal_condition, work.data(), iwork.data(), &info, 1);
  return info != 0 || !(reciprocal_condition >= std::numeric_limits<double>::epsilon());
}

}  // namespace ostrel::fem
