// SPDX-License-Identifier: Apache-2.0
#include "ferrule/ultimate_section.h"

#include "ultimate_domain.h"

#include <algorithm>
#include <cmath>

namespace Ferrule {

using internal::Direction;
using internal::Moment;

Section::Section() : model_(std::make_unique<internal::SectionModel>()) {}

Section::~Section() = default;

void Section::Add_Domain(BaseDomain* domain) {
  const auto is_it = [domain](const auto& component) { return component.get() == domain; };
  if (domain == nullptr || std::any_of(components_.begin(), components_.end(), is_it)) return;
  components_.emplace_back(domain);
}

BaseDomain* Section::getComponent(int index) const {
  if (index < 0 || index >= getNumComponents()) return nullptr;
  return components_[static_cast<std::size_t>(index)].get();
}

int Section::getNumComponents() const {
  return static_cast<int>(components_.size());
}

int Section::solveEquilibrium(double N, double Mx, double My, Deform& plane, double /*tol*/,
                              int /*max_iterations*/) {
  constexpr int within = 1;
  constexpr int outside = 0;
  constexpr int nothing_to_analyse = -1;
  plane = {};
  if (!(std::isfinite(N) && std::isfinite(Mx) && std::isfinite(My))) return nothing_to_analyse;
  const Moment moment{.x = Mx, .y = My};
  if (!model_->refresh(components_)) {
    plane = model_->elastic_plane(N, moment);
    return nothing_to_analyse;
  }
  return internal::find_equilibrium(*model_, N, moment, plane) ? within : outside;
}

bool Section::resistingMoment(double N, double angle, double& moment, double& second,
                              double /*tol*/, Deform& work, int /*max_iterations*/, bool /*flag*/) {
  moment = 0.0;
  second = 0.0;
  if (!(std::isfinite(N) && std::isfinite(angle))) return false;
  if (!model_->refresh(components_)) return false;
  const Direction direction = internal::direction_at(angle);
  const auto state = internal::resisting_state(*model_, N, direction);
  if (!state) return false;
  moment = std::max(0.0, along(state->moment, direction));
  second = across(state->moment, direction);
  work = state->deform;
  return true;
}

}  // namespace Ferrule
