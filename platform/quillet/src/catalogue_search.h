#pragma once
/// @file  Where the message catalogues lie. Library: quillet
// SPDX-License-Identifier: Apache-2.0

#include <filesystem>

namespace quillet {

/// How far above the module's own folder the catalogues are looked for. Four folders reach from
/// `<prefix>/lib/<architecture>/<package>/<plugins>` to `<prefix>`.
inline constexpr int folders_climbed = 4;

/// The shared library or program that this code was linked into, with all links resolved; empty
/// where the system does not tell.
std::filesystem::path module_file();

/// The nearest existing folder `share/locale` beside the file `module` or beside one of the
/// `folders_climbed` folders above it; empty when there is none.
std::filesystem::path find_catalogue_folder(const std::filesystem::path& module);

}  // namespace quillet
