// SPDX-License-Identifier: Apache-2.0
#include "ferrule/concrete_domain.h"

#include <utility>

namespace Ferrule {

void BaseDomain::setExternBoundary(int n, const double* x, const double* y) {
  outline_.clear();
  if (n >= 3 && x != nullptr && y != nullptr) {
    for (int i = 0; i < n; ++i) {
      outline_.push_back({.x = x[i], .y = y[i]});
    }
  }
  outline_changed();
}

void BaseDomain::setMatModel(const BaseMaterialModel* model) {
  laws_ = model != nullptr ? model->laws() : std::nullopt;
  outline_changed();
}

void BaseDomain::setName(const char* name) {
  name_ = name != nullptr ? name : "";
}

void BaseDomain::setScaleCoefficient(double coefficient) {
  scale_ = coefficient;
  outline_changed();
}

void BaseDomain::outline_changed() {
  ++revision_;
  ++outline_revision_;
}

void ClsDomain::setBars(int n, const SteelBar* bars) {
  std::vector<SteelBar> copies;
  if (n > 0 && bars != nullptr) copies.assign(bars, bars + n);
  bars_ = std::move(copies);
  barsChanged();
}

}  // namespace Ferrule
