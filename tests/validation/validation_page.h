#pragma once
/// @file  The manual of the validation as a page of text
// SPDX-License-Identifier: Apache-2.0

#include "validation/published_case.h"

#include <string>
#include <vector>

namespace ostrel::validation {

/// A number with so many significant digits, without trailing zeros.
std::string number(double value, int digits);

/// The difference of a figure to what was published, absolute where its tolerance is and else in per
/// cent: with two digits, but to no less than a tenth of the tolerance and 1e-8 of the published
/// value, so that it is the same in every build.
std::string told_difference(const Figure& figure);

/// The page in Markdown: a table of all cases, then each chapter with its figures. Ours are told
/// with as many digits as their tolerance asks for, at least five and at most eight.
std::string validation_page(const std::vector<Chapter>& chapters);

}  // namespace ostrel::validation
