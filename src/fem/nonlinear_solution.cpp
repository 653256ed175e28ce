// SPDX-License-Identifier: Apache-2.0
// The secant iteration of the beam on springs of limited strength.
#include "fem/banded_beam.h"
#include "fem/beam_assembly.h"
#include "fem/beam_limit.h"
#include "fem/beam_supports.h"
#include "fem/finite_results.h"
#include "fem/spring_lumping.h"
#include "ostrel/fem_solver.h"
#include "services/exact.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <vector>

namespace {

using ostrel::fem::BandedBeam;
using ostrel::fem::DenseEquations;
using ostrel::fem::SpringLine;

// Displacement across the wall at a spring.
double across(const std::vector<double>& d, int node) {
  const std::size_t dof = ostrel::fem::dof_within(d.size(), node, 1);
  return dof < d.size() ? d[dof] : 0.0;
}

// A solution that swings between states ends after so many passes, however many are allowed.
constexpr std::int32_t most_passes = 100'000;

struct Convergence {
  bool reached = false;
  OstrelErrorType code = ostrel::ok;
};

// Compares two passes at the springs.
Convergence compare_passes(const SpringLine& line, const std::vector<double>& previous,
                           const std::vector<double>& d, double tolerance) {
  double sum = 0.0;
  std::size_t beyond_limit = 0;
  for (std::size_t i = 0; i < line.size(); ++i) {
    const double a = across(previous, line.node(i));
    const double b = across(d, line.node(i));
    sum += std::abs(b - a);
    if (std::abs(b) > line.spring(i).getDyLim()) ++beyond_limit;
  }
  Convergence result;
  // Springs that stand still give the same pass again, whatever the tolerance.
  result.reached = tolerance >= sum || ostrel::exactly_equal(sum, 0.0);
  if (beyond_limit == line.size()) result.code = errNonLinearNotConverged;
  return result;
}

// Sums the load vectors of all conditions.
std::vector<double> sum_of(const std::vector<std::vector<double>>& loads, std::size_t size) {
  std::vector<double> total(size, 0.0);
  for (const auto& each : loads) {
    for (std::size_t i = 0; i < size; ++i) {
      total[i] += each[i];
    }
  }
  return total;
}

std::vector<arma::Col<double>> sum_of(
    const std::vector<std::vector<arma::Col<double>>>& element_loads, std::size_t elements) {
  std::vector<arma::Col<double>> total(elements, arma::Col<double>(6, arma::fill::zeros));
  for (const auto& each : element_loads) {
    for (std::size_t e = 0; e < elements; ++e) {
      total[e] += each[e];
    }
  }
  return total;
}

// The springs of the soil in one pass, by position in the line.
struct SoilPass {
  std::vector<int> nodes;
  std::vector<double> stiffness;

  std::map<int, double> by_node() const {
    std::map<int, double> springs;
    for (std::size_t i = 0; i < stiffness.size(); ++i) {
      springs.emplace_hint(springs.end(), nodes[i], stiffness[i]);
    }
    return springs;
  }
};

void recover_soil_forces(const xFemData& data, const SoilPass& soil, const std::vector<double>& d,
                         std::map<int, Fsoil>& out) {
  out.clear();
  for (std::size_t i = 0; i < soil.stiffness.size(); ++i) {
    const auto node = static_cast<std::size_t>(soil.nodes[i]);
    Fsoil& force = out[soil.nodes[i]];
    force.elevation = node < data.nodes.size() ? -data.nodes[node].y : 0.0;
    force.springForce = -across(d, soil.nodes[i]) * soil.stiffness[i];
  }
}

// Solves a square system of finite numbers with its rows and columns scaled.
OstrelErrorType solve_scaled(const arma::Mat<double>& matrix, std::vector<double>& rhs) {
  if (matrix.is_empty() || !matrix.is_square() || rhs.size() != matrix.n_rows) {
    return errEquationSolve;
  }
  try {
    arma::Col<double> solution;
    const bool solved = arma::solve(solution, matrix, arma::Col<double>(rhs),
                                    arma::solve_opts::equilibrate + arma::solve_opts::no_approx);
    if (!solved || !solution.is_finite()) return errEquationSolve;
    rhs.assign(solution.begin(), solution.end());
    return ostrel::ok;
  } catch (...) {
    return errEquationSolve;
  }
}

// Gives the matrix of the beam back as it was. It takes the supports of a pass itself, since a copy
// would be one more matrix of its size, and no support reaches beyond its band.
class LentMatrix {
public:
  explicit LentMatrix(arma::Mat<double>& matrix) : matrix_(matrix) {
    band_.reserve((2 * ostrel::fem::half_band_width + 1) * matrix.n_cols);
    visit([this](double& entry) { band_.push_back(entry); });
  }
  ~LentMatrix() {
    auto next = band_.begin();
    visit([&next](double& entry) { entry = *next++; });
  }
  LentMatrix(const LentMatrix&) = delete;
  LentMatrix& operator=(const LentMatrix&) = delete;

  bool is_finite() {
    bool finite = true;
    visit([&finite](double& entry) { finite = finite && std::isfinite(entry); });
    return finite;
  }

private:
  template <class Action>
  void visit(const Action& action) {
    for (std::size_t j = 0; j < matrix_.n_cols; ++j) {
      const auto rows = ostrel::fem::band_rows(j, matrix_.n_rows);
      for (std::size_t i = rows.first; i < rows.end; ++i) {
        action(matrix_.at(i, j));
      }
    }
  }

  arma::Mat<double>& matrix_;
  std::vector<double> band_;
};

// The passes of one solution.
class SecantIteration {
public:
  SecantIteration(xFemSolver& solver, const std::vector<info_Fem_anchor>& anchors,
                  const xFemData& data, SpringLine& line, const std::vector<double>& total)
      : solver_(solver), anchors_(anchors), data_(data), line_(line), rhs_(total) {
    ostrel::fem::prescribe_all(data, rhs_);
    for (std::size_t i = 0; i < line.size(); ++i) {
      soil.nodes.push_back(line.node(i));
    }
  }

  OstrelErrorType run(const xFemSolverOptions& options) {
    const int most = std::min(options.maxIterations, most_passes);
    std::vector<double> previous(rhs_.size(), 0.0);
    for (int passes = 0;; previous.swap(d)) {
      line_.evaluate(previous, soil.stiffness);
      if (line_.complete() < line_.size()) return errFemNodeNotFound;
      d = rhs_;
      const OstrelErrorType code = passes == 0 ? solve_dense() : solve_band();
      if (code != ostrel::ok) return code;
      if (options.linear) return ostrel::ok;

      const Convergence test = compare_passes(line_, previous, d, options.tolerance);
      if (test.code != ostrel::ok) return test.code;
      ++passes;
      if (test.reached || passes >= most) return ostrel::ok;
    }
  }

  SoilPass soil;          // of the last pass
  std::vector<double> d;  // the last solution, by dof

private:
  OstrelErrorType solve_dense() {
    const OstrelErrorType code = solve_whole_matrix();
    if (code == ostrel::ok) band().improve(soil.nodes, soil.stiffness, rhs_, d);
    return code;
  }

  OstrelErrorType solve_whole_matrix() {
    LentMatrix lent(solver_.K);
    const auto code = solver_.appBoundCond(anchors_, data_, soil.by_node(), solver_.K, d);
    if (code != ostrel::ok) return code;
    // As `solveEQ`, which would look for numbers that are not finite among the zeros too.
    return lent.is_finite() ? solve_scaled(solver_.K, d) : errEquationSolve;
  }

  // Whether the equations are singular is for the dense form to say.
  OstrelErrorType solve_band() {
    return band().solve(soil.nodes, soil.stiffness, d) ? ostrel::ok : solve_dense();
  }

  BandedBeam& band() {
    if (!band_) band_.emplace(solver_.K, anchors_, data_);
    return *band_;
  }

  xFemSolver& solver_;
  const std::vector<info_Fem_anchor>& anchors_;
  const xFemData& data_;
  SpringLine& line_;
  std::vector<double> rhs_;  // the loads, and the prescribed displacements in their place
  std::optional<BandedBeam> band_;
};

}  // namespace

OstrelErrorType xFemSolver::assemble(const xFemData& data,
                                     const std::vector<xFemLoadCond>& conditions) {
  if (data.elements.size() > ostrel::fem::most_elements) return errNodeCountModel;
  takeSizes(data, conditions.size());
  if (const auto code = buildTopologyMat(); code != ostrel::ok) return code;
  if (const auto code = buildLoadMat(data, conditions); code != ostrel::ok) return code;
  return buildBStif(data);
}

OstrelErrorType xFemSolver::solve(xFemSolverOptions& options,
                                  const std::vector<info_Fem_anchor>& anchors, const xFemData& data,
                                  const std::map<int, NodeModulus>& modulus,
                                  const std::vector<xFemLoadCond>& loadConds, xCombRes& result,
                                  double spacing) {
  if (const auto code = assemble(data, loadConds); code != ostrel::ok) return code;
  std::vector<double> total = sum_of(loads, Np);
  const std::vector<arma::Col<double>> total_elem_loads = sum_of(elemLoads, Ne);

  SpringLine line(data, modulus, elemLength, spacing);
  SecantIteration iteration(*this, anchors, data, line, total);
  if (const auto code = iteration.run(options); code != ostrel::ok) return code;

  std::vector<double>& d = iteration.d;
  OstrelErrorType code = getDisplacements(d, result.displacements);
  recover_soil_forces(data, iteration.soil, d, result.soilForces);
  if (code == ostrel::ok) code = getAppliedNodalForces(total, result.appliedForces);
  if (code == ostrel::ok) code = getSoilReaction(options.linear, modulus, d, result.soilReactions);
  if (code == ostrel::ok) code = getBeamStress(data, d, total_elem_loads, result.beamStress);
  if (code == ostrel::ok) code = getNodalForce(total, d, result.nodalForces);
  if (code != ostrel::ok) return code;
  return ostrel::fem::is_finite(result) ? ostrel::ok : errEquationSolve;
}

OstrelErrorType xFemSolver::build_SkSpring(const xFemData& data,
                                           const std::map<int, NodeModulus>& modulus,
                                           double spacing, std::vector<double>* displacements,
                                           std::map<int, double>& springs) {
  springs.clear();
  SpringLine line(data, modulus, elemLength, spacing);
  std::vector<double> stiffness;
  const std::vector<double> none;
  line.evaluate(displacements ? *displacements : none, stiffness);
  for (std::size_t i = 0; i < stiffness.size(); ++i) {
    springs[line.node(i)] = stiffness[i];
  }
  return line.complete() == line.size() ? ostrel::ok : errFemNodeNotFound;
}

OstrelErrorType xFemSolver::appBoundCond(const std::vector<info_Fem_anchor>& anchors,
                                         const xFemData& data, const std::map<int, double>& springs,
                                         arma::Mat<double>& matrix, std::vector<double>& rhs) {
  DenseEquations equations(matrix);
  const auto code =
      ostrel::fem::apply_supports(anchors, data, equations, [&springs](DenseEquations& dense) {
        return ostrel::fem::add_nodal_springs(1, springs, dense);
      });
  ostrel::fem::prescribe_all(data, rhs);
  return code;
}

OstrelErrorType xFemSolver::appNodalSprings(int dof, const std::map<int, double>& springs,
                                            arma::Mat<double>& matrix) {
  DenseEquations equations(matrix);
  return ostrel::fem::add_nodal_springs(dof, springs, equations);
}

OstrelErrorType xFemSolver::appNodalConstr(int dof, const std::map<int, double>& values,
                                           arma::Mat<double>& matrix, std::vector<double>& rhs) {
  DenseEquations equations(matrix);
  const auto code = ostrel::fem::constrain_rows(dof, values, equations);
  ostrel::fem::prescribe(dof, values, rhs);
  return code;
}

OstrelErrorType xFemSolver::solveEQ(const arma::Mat<double>& matrix, std::vector<double>& rhs) {
  return matrix.is_finite() ? solve_scaled(matrix, rhs) : errEquationSolve;
}
