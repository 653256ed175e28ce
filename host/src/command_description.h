#pragma once
/// @file  The commands and options of the program as data, for shells and the manual. Room: host
// SPDX-License-Identifier: Apache-2.0

#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace ostrel::host {

/// An option, or an argument that has only a place.
struct OptionDescription {
  std::vector<std::string> names;    ///< "-o", "--output"; that of a place, as "PROJECT.json"
  std::string value;                 ///< what it takes, as "DIR"; empty for a flag
  std::vector<std::string> choices;  ///< of values, where there are only these
  std::string description;
  bool repeats = false;  ///< takes several

  bool takes_value() const { return !value.empty(); }
};

struct CommandDescription {
  std::string name;
  std::string description;
  std::vector<OptionDescription> options;
  std::vector<OptionDescription> places;
  std::vector<CommandDescription> commands;
};

/// All that the program takes, from what reads its arguments, in the order of its help.
CommandDescription description_of(CLI::App& app);

}  // namespace ostrel::host
