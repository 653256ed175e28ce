#pragma once
/// @file  What is fed with damaged input. Room: fuzz tests
// SPDX-License-Identifier: Apache-2.0
//
// Each target takes any bytes. It ends normally where the bytes are refused and where they are taken;
// anything else (a crash, an exception of another kind, a broken promise) stops the program.

#include <cstddef>
#include <string_view>

namespace ostrel::fuzz {

/// The first byte picks a persisted class, the others are its stream. What is read must be stored,
/// read again and stored as the same bytes.
void try_stream(std::string_view bytes);

/// A project file: read, and converted where it is sound. The complaints must have a text.
void try_project(std::string_view text);

/// A case in the library's own units, read.
void try_core_case(std::string_view text);

/// A file of saved results: after an even first byte the text within, framed as it must be; after an
/// odd one the whole file. What is read must give tables and be saved again as itself.
void try_results(std::string_view bytes);

/// A whole run. The first byte picks a sound case, and each four bytes that follow change one of its
/// numbers: two bytes pick the number, one the way, one a value. Ends in results that can be told.
/// @return whether there was a run: neither refused nor left out as one that honestly takes long
bool try_run(std::string_view bytes);

/// How many sound cases there are.
std::size_t sound_runs();

}  // namespace ostrel::fuzz
