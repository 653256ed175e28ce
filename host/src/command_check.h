#pragma once
/// @file  The commands `ostrel check` and `ostrel expand`. Room: host
// SPDX-License-Identifier: Apache-2.0

#include "project_loading.h"
#include "texts.h"

#include <iosfwd>

namespace ostrel::host {

struct CheckOptions {
  ProjectSource source;
  Texts texts{Language::english};
};

/// Tells every error and every questionable value of a project. @return exit status, 0 where there
/// are no errors
int check_project_file(const CheckOptions& options, std::ostream& out, std::ostream& err);

/// Prints a project with the combinations of its standard written out. @return exit status
int expand_project_file(const CheckOptions& options, std::ostream& out, std::ostream& err);

}  // namespace ostrel::host
