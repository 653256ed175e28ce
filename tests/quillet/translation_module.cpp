// SPDX-License-Identifier: Apache-2.0
#include "quillet/translation.h"

#include <string>

/// The catalogue folder as a module sees it that a program of another tree has loaded.
extern "C" __attribute__((visibility("default"))) const char* module_catalogue_folder() {
  static const std::string folder = quillet::catalogue_folder();
  return folder.c_str();
}
