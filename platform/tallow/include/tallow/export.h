#pragma once
/// @file  What of this library the shared library around it shows. Library: tallow
// SPDX-License-Identifier: Apache-2.0

#if defined(_WIN32)
#define TALLOW_API
#else
#define TALLOW_API __attribute__((visibility("default")))
#endif
