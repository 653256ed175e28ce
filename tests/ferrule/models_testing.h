#pragma once
/// @file  The inner forms of sections, for tests
// SPDX-License-Identifier: Apache-2.0

#include "ferrule/sections_testing.h"
#include "section_model.h"

#include <cmath>
#include <memory>
#include <vector>

namespace Ferrule::testing {

/// A model with the components that it was made from.
class ModelOf {
public:
  explicit ModelOf(const std::vector<Recipe>& recipes) {
    for (const Recipe& recipe : recipes) {
      components_.push_back(make_domain(recipe));
    }
    usable_ = model_.refresh(components_);
  }
  explicit ModelOf(const Recipe& recipe) : ModelOf(std::vector<Recipe>{recipe}) {}

  bool usable() const { return usable_; }
  internal::SectionModel& operator*() { return model_; }
  internal::SectionModel* operator->() { return &model_; }
  ClsDomain& domain(std::size_t index) { return static_cast<ClsDomain&>(*components_[index]); }
  bool refresh() { return model_.refresh(components_); }

private:
  std::vector<std::unique_ptr<BaseDomain>> components_;
  internal::SectionModel model_;
  bool usable_ = false;
};

/// 300 x 500 with four bars of radius 10 at y = 200 and four at y = -200, 400 pi mm² each row.
inline Recipe round_rectangle() {
  return {.outline = rectangle(300, 500), .bars = row(4, 200, 10) + row(4, -200, 10)};
}

/// 40 sides, diameter 800, with a ring of bars of 24 mm on the radius 340.
inline Recipe pile(int bars) {
  return {.outline = regular_polygon(40, 800), .bars = ring(bars, 340, 24)};
}

}  // namespace Ferrule::testing
