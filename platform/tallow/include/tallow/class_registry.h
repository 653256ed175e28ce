#pragma once
/// @file  Which classes a host offers below which root. Library: tallow
// SPDX-License-Identifier: Apache-2.0

#include "tallow/export.h"

#include <string>
#include <vector>

namespace Tallow {

/// Enters the class `name` as a child of `parent`; a class may have several parents, and the root
/// need not be registered itself. Safe between threads.
/// @return false, and no change, when either name is empty, the pair is known already, or it would
///         make the class its own ancestor
TALLOW_API bool registerClass(const std::string& name, const std::string& parent);

/// Takes the pair out again. @return false when it was not there
TALLOW_API bool unregisterClass(const std::string& name, const std::string& parent);

/// Fills `list` with the classes below `root_class`, in the order of their registration, nearer
/// generations first, each once; what `list` held before is gone.
/// @param levels  how many generations: 1 the children alone, 2 their children too, ...; less than
///                1 gives none
/// @return true when the list is not empty; false also for a null or unknown root
TALLOW_API bool getChildrenClassesList(const char* root_class, std::vector<std::string>& list,
                                       int levels);

}  // namespace Tallow
