// SPDX-License-Identifier: Apache-2.0
#include "slope/slice_loads.h"

#include "ostrel/slope_stability.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <optional>

namespace ostrel::slope {

namespace {

constexpr std::size_t first_condition = 3;  // the actions before it belong to no load condition
constexpr double least_load = 1e-6;         // a total that counts for a load [N]

/// Calls `take(condition, action)` for every active action that has a condition.
template <class Take>
void for_active_conditions(const std::vector<xLoadCond>& conds, const xLoadComb& comb,
                           const Take& take) {
  for (std::size_t i = first_condition; i < comb.actions.size(); ++i) {
    if (i - first_condition >= conds.size()) return;
    if (comb.actions[i].getIsActive()) take(conds[i - first_condition], comb.actions[i]);
  }
}

std::array<double, 2> factors_of(const xAction& action) {
  return {action.getFactor(actFirst), action.getFactor(actSecond)};
}

std::optional<GroundLoad> ground_load(const xSoilLoad& load) {
  using Kind = GroundLoad::Kind;
  if (const auto* uniform = dynamic_cast<const xUniformLoad*>(&load)) {
    return GroundLoad{.kind = Kind::uniform, .start = uniform->getValue()};
  }
  if (const auto* strip = dynamic_cast<const xNastriformLoad*>(&load)) {
    return GroundLoad{.kind = Kind::strip,
                      .position = strip->getPosition(),
                      .extension = strip->getExtension(),
                      .start = strip->getStartValue(),
                      .end = strip->getEndValue()};
  }
  if (const auto* line = dynamic_cast<const xLinearLoad*>(&load)) {
    return GroundLoad{
        .kind = Kind::line, .position = line->getPosition(), .start = line->getValue()};
  }
  if (const auto* point = dynamic_cast<const xPuntiformLoad*>(&load)) {
    return GroundLoad{
        .kind = Kind::point, .position = point->getPosition(), .start = point->getValue()};
  }
  return std::nullopt;
}

std::optional<WallLoad> wall_load(const xShpileLoad& load, double spacing) {
  WallLoad taken;
  if (const auto* force = dynamic_cast<const xConcenterdLoad*>(&load)) {
    const bool per_length = dynamic_cast<const xDistribuitedLoad*>(&load) != nullptr;
    const double extent = per_length ? spacing : 1.0;
    taken.at = {.x = 0.0, .y = -force->getPosition()};
    taken.force = {.x = force->force[1] * extent, .y = -force->force[0] * extent};
    return taken;
  }
  if (const auto* torque = dynamic_cast<const xTorqueLoad*>(&load)) {
    const bool per_length = dynamic_cast<const xDistribuitedTorque*>(&load) != nullptr;
    taken.is_moment = true;
    taken.moment = per_length ? torque->getValue() * spacing : torque->getValue();
    return taken;
  }
  return std::nullopt;
}

/// The trapezoid of a strip between the sides of a stripe [N].
double strip_part(const GroundLoad& load, double left, double right, double spacing) {
  const double a = std::max(left, load.position);
  const double b = std::min(right, load.position + load.extension);
  if (!(b - a > 0.0)) return 0.0;
  const double slope = (load.end - load.start) / load.extension;
  return ((b - load.position) * slope + load.start + (a - load.position) * slope + load.start) * 0.5
       * (b - a) * spacing;
}

}  // namespace

bool StripeLoads::present() const {
  return std::abs(total()) > least_load;
}

std::vector<GroundLoad> ground_loads(const std::vector<xLoadCond>& conds, const xLoadComb& comb) {
  std::vector<GroundLoad> loads;
  for_active_conditions(conds, comb, [&loads](const xLoadCond& cond, const xAction& action) {
    for (const osg::ref_ptr<xSoilLoad>& each : cond.soilLoads) {
      auto load = each ? ground_load(*each) : std::nullopt;
      if (!load) continue;
      load->factor = factors_of(action);
      loads.push_back(*load);
    }
  });
  return loads;
}

StripeLoads loads_on_stripe(const std::vector<GroundLoad>& loads, double base_mid_x, double width,
                            double spacing, actType act) {
  const double left = base_mid_x - 0.5 * width;
  const double right = base_mid_x + 0.5 * width;
  StripeLoads sums;
  for (const GroundLoad& load : loads) {
    const double factor = load.factor[act == actFirst ? 0 : 1];
    const bool stands_here = load.position >= left && right > load.position;
    switch (load.kind) {
      case GroundLoad::Kind::uniform: {
        const double loaded = left < 0.0 && right > 0.0 ? right : width;
        sums.uniform += factor * (load.start * loaded * spacing);
        break;
      }
      case GroundLoad::Kind::strip:
        sums.strip += factor * strip_part(load, left, right, spacing);
        break;
      case GroundLoad::Kind::line:
        if (stands_here) sums.line += factor * (load.start * spacing);
        break;
      case GroundLoad::Kind::point:
        if (stands_here) sums.point += factor * load.start;
        break;
    }
  }
  return sums;
}

double note_loads(const StripeLoads& loads, actType act, xClipData& clip) {
  const std::size_t k = act == actFirst ? 0 : 1;
  clip.uniformLoad[k] = loads.uniform;
  clip.stripLoad[k] = loads.strip;
  clip.lineLoad[k] = loads.line;
  clip.pointLoad[k] = loads.point;
  clip.hasLoad[k] = loads.present();
  return loads.total();
}

std::vector<WallLoad> wall_loads(const std::vector<xLoadCond>& conds, const xLoadComb& comb,
                                 double spacing) {
  std::vector<WallLoad> loads;
  for_active_conditions(conds, comb, [&](const xLoadCond& cond, const xAction& action) {
    for (const osg::ref_ptr<xShpileLoad>& each : cond.shpileLoads) {
      auto load = each ? wall_load(*each, spacing) : std::nullopt;
      if (!load) continue;
      load->factor = factors_of(action);
      loads.push_back(*load);
    }
  });
  return loads;
}

void add_wall_moments(const std::vector<WallLoad>& loads, Place center, double& stab,
                      double& destab) {
  for (const WallLoad& load : loads) {
    const Place arm{.x = load.at.x - center.x, .y = load.at.y - center.y};
    const double moment =
        load.is_moment ? load.moment : load.force.y * arm.x - load.force.x * arm.y;
    if (moment < 0.0) {
      destab += std::abs(moment) * load.factor[0];
    } else {
      stab += std::abs(moment) * load.factor[1];
    }
  }
}

}  // namespace ostrel::slope

double xSlopeStability::soil_LoadEffect_new(double spacing, const std::vector<xLoadCond>& conds,
                                            const xLoadComb& comb, osg::ref_ptr<sliceSeg>& slice,
                                            actType act) {
  namespace slope = ostrel::slope;
  xClipData& clip = slice->clip;
  if (!slope::takes_ground_loads(clip.baseMid[0], clip.width) || conds.empty()) return 0.0;
  const slope::StripeLoads sums = slope::loads_on_stripe(slope::ground_loads(conds, comb),
                                                         clip.baseMid[0], clip.width, spacing, act);
  return slope::note_loads(sums, act, clip);
}

void xSlopeStability::shpileLoadLoadEffect(const Center& center, double spacing,
                                           const std::vector<xLoadCond>& conds,
                                           const xLoadComb& comb, double& stab, double& destab) {
  namespace slope = ostrel::slope;
  slope::add_wall_moments(slope::wall_loads(conds, comb, spacing), slope::place(center), stab,
                          destab);
}
