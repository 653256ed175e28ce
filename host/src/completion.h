#pragma once
/// @file  Completion of the program's arguments in shells. Room: host
// SPDX-License-Identifier: Apache-2.0

#include "command_description.h"

#include <string>

namespace ostrel::host {

/// @name Scripts for a shell
/// Commands, options and their choices; files where a value is a file, folders where it is "DIR".
///@{
std::string bash_completion(const CommandDescription& program);
std::string zsh_completion(const CommandDescription& program);
std::string fish_completion(const CommandDescription& program);
///@}

}  // namespace ostrel::host
