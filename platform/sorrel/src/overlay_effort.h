#pragma once
/// @file  Whether an overlay of outlines can be afforded. Library: sorrel
// SPDX-License-Identifier: Apache-2.0

#include "outline.h"

#include <span>

namespace sorrel {

/// Whether the sides of all outlines together meet seldom enough for an overlay to end within
/// seconds and some hundred megabytes.
///
/// Two sides meet here when the boxes around them do. Up to 128 sides anything is affordable. Up to
/// 100 000 sides it is so if there are no more than 50 000 meetings and two for each side, as many
/// as neighbours make. Ground keeps far below: its sides meet their neighbours and few others.
/// @param outlines  of at least one vertex each
bool is_affordable(std::span<const Outline> outlines);

}  // namespace sorrel
