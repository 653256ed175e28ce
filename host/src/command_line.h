#pragma once
/// @file  The commands of the program, from their arguments to their exit status. Room: host
// SPDX-License-Identifier: Apache-2.0

#include <iosfwd>
#include <string>
#include <vector>

namespace ostrel::host {

/// @name Exit status
///@{
inline constexpr int exit_fine = 0;
inline constexpr int exit_analysis_failed = 1;  ///< the analysis reported an error
inline constexpr int exit_bad_input = 2;        ///< wrong file or arguments, or nowhere to write
///@}

/// Runs the program.
/// @param arguments  without the name of the program
/// @param out        results
/// @param err        messages
/// @return exit status
int run_program(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err);

}  // namespace ostrel::host
