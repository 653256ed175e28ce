#pragma once
/// @file  What of this library the shared library around it shows. Library: sorrel
// SPDX-License-Identifier: Apache-2.0

#if defined(_WIN32)
#define SORREL_API
#else
#define SORREL_API __attribute__((visibility("default")))
#endif
