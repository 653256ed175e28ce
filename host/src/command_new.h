#pragma once
/// @file  The command `ostrel new`. Room: host
// SPDX-License-Identifier: Apache-2.0

#include "texts.h"

#include <iosfwd>
#include <string>
#include <vector>

namespace ostrel::host {

struct NewOptions {
  std::string file;
  std::string name;  ///< of the template
  bool force = false;
  Texts texts{Language::english};
};

/// The names of the templates.
const std::vector<std::string>& template_names();

/// Writes a complete, explained project. A file that exists stays as it is, unless forced.
/// @return exit status
int write_template(const NewOptions& options, std::ostream& out, std::ostream& err);

}  // namespace ostrel::host
