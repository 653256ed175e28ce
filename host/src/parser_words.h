#pragma once
/// @file  What the parser of the arguments says, in the language asked for. Room: host
// SPDX-License-Identifier: Apache-2.0

#include "texts.h"

#include <memory>
#include <string>

namespace CLI {
class App;
class Formatter;
}  // namespace CLI

namespace ostrel::host {

/// Why the arguments are refused, and how to get help, each in a line.
/// @param refusal  in the words of the parser; one that has no Italian stays as it is
std::string refusal_of_arguments(const std::string& refusal, const Texts& texts);

/// The form of the help with its headings. To be set before commands and options are added.
std::shared_ptr<CLI::Formatter> help_form(const Texts& texts);

/// The heading above the commands of a program, once they are added.
void head_commands(CLI::App& program, const Texts& texts);

}  // namespace ostrel::host
