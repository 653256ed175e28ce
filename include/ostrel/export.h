#pragma once
/// @file  What the shared library shows to its hosts. Technical header
// SPDX-License-Identifier: Apache-2.0

/// Marks a class or function that belongs to the library's interface; all else is hidden.
#if defined(_WIN32)
#if defined(OSTREL_BUILDING_LIBRARY)
#define OSTREL_API __declspec(dllexport)
#else
#define OSTREL_API __declspec(dllimport)
#endif
#else
#define OSTREL_API __attribute__((visibility("default")))
#endif
