#pragma once
/// @file  The layers and the water of a section. Room: host
// SPDX-License-Identifier: Apache-2.0

#include "section_view.h"

namespace ostrel::host {

/// Each layer in the style of its place in the list.
void draw_layers(const SectionView& view, const Job& job, Svg& svg);

/// Names and parameters of the soils, each layer once where there is room for it.
void draw_layer_names(const SectionView& view, const Project& project, const Job& job, Svg& svg);

/// The water that stands free above the excavation.
void draw_pool(const SectionView& view, const Project& project, Svg& svg);

/// The level of the water on either side.
void draw_water(const SectionView& view, const Project& project, Svg& svg);

}  // namespace ostrel::host
