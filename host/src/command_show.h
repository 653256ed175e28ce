#pragma once
/// @file  The command `ostrel show`. Room: host
// SPDX-License-Identifier: Apache-2.0

#include "run_data.h"
#include "texts.h"

#include <iosfwd>
#include <optional>
#include <string>

namespace ostrel::host {

struct ShowOptions {
  std::string results_file;
  std::optional<double> fail_below;  ///< the factor that every verification has to reach
  Texts texts{Language::english};
};

/// Prints the tables of a run that was saved. @return exit status, as that of the run
int show_results(const ShowOptions& options, std::ostream& out, std::ostream& err);

/// Prints the tables of a run, its messages, and the verifications whose factor is below a limit.
/// @return exit status
int print_run(const RunData& data, const std::optional<double>& fail_below, const Texts& texts,
              std::ostream& out, std::ostream& err);

}  // namespace ostrel::host
