#pragma once
/// @file  Builds inputs of walls for tests, each beginning with what matters
// SPDX-License-Identifier: Apache-2.0
//
//     auto data = WallBuilder{}.pile(600, 12000).excavation(6000).layer(sand()).build();
//
// Nothing is random and nothing hidden: what a test does not say is one of the round numbers below.

#include "ostrel/sheetpiling_data.h"
#include "support/concrete_walls.h"

#include <algorithm>
#include <cstdint>
#include <numbers>
#include <string>
#include <vector>

namespace ostrel::testing {

using PolygonPoint = arma::Col<double>::fixed<2>;

/// Angle in radians of an angle in degrees.
constexpr double degrees(double angle) {
  return angle * std::numbers::pi / 180.0;
}

/// Medium sand: 18 kN/m³, 20 kN/m³ saturated, friction 30°, on the wall 20°, E 30 N/mm², nu 0.3.
inline xSoilProps sand() {
  xSoilProps soil;
  soil.setName("sand");
  soil.setElasticityModulus(30.0);
  soil.setPoissonRatio(0.3);
  soil.computeShearModulus();
  soil.setUnitWeight(18e-6);
  soil.setSaturatedUnitWeight(20e-6);
  soil.set_InternalFriction(degrees(30.0));
  soil.setInterfaceFriction(degrees(20.0));
  soil.setOCR(1.0);
  soil.setConstrModulus(40.0);
  soil.setKPerm(0.01);
  return soil;
}

/// Stiff clay without friction: 19 kN/m³, 20 kN/m³ saturated, cohesion 50 kN/m², adhesion
/// 25 kN/m², E 10 N/mm², nu 0.4.
inline xSoilProps clay() {
  xSoilProps soil;
  soil.setName("clay");
  soil.setElasticityModulus(10.0);
  soil.setPoissonRatio(0.4);
  soil.computeShearModulus();
  soil.setUnitWeight(19e-6);
  soil.setSaturatedUnitWeight(20e-6);
  soil.setCohesion(0.05);
  soil.setAdhesion(0.025);
  soil.setOCR(1.0);
  soil.setConstrModulus(20.0);
  soil.setKPerm(1e-6);
  return soil;
}

/// A combination at the ultimate limit state with its three first actions active, all factors 1
/// and no verification wanted.
inline xLoadComb unfactored(const std::string& name) {
  xLoadComb comb;
  comb.setCombName(name);
  comb.geoFactors.assign(6, GeoCombFactor{});
  for (int i = 0; i < 3; ++i)
    comb.actions.emplace_back().set(getPredefined_CondName(i), true, 1.0, 1.0);
  return comb;
}

/// Two strands of 30 mm at the depth `z` [mm], 20° below the horizontal: free over 8000 mm, bonded
/// over 6000 mm with a bulb of 150 mm, E 200 000 N/mm², yield strength 1600 N/mm².
inline xAnchor anchor_at(double z) {
  xAnchor anchor;
  anchor.z = z;
  anchor.material.setElasticityModulus(200e3);
  anchor.setcableDiam(30.0);
  anchor.setbulbDiam(150.0);
  anchor.setAlphaD(1.0);
  anchor.setAngleRad(degrees(20.0));
  anchor.setFreeLength(8000.0);
  anchor.setBulbLength(6000.0);
  anchor.setNumber(2);
  anchor.settings.setFyk(1600.0);
  anchor.settings.setGammaS(1.15);
  anchor.settings.setCsi3(1.8);
  anchor.settings.setCsi4(1.8);
  return anchor;
}

/// A constraint at the depth `z` [mm] that acts across the wall alone, by `value` [mm or N/mm].
inline xConstraint horizontal_at(double z, double value) {
  xConstraint constraint;
  constraint.setPosition(z);
  constraint.horizontal.setActive(true);
  constraint.horizontal.setValue(value);
  return constraint;
}

/// The rectangle between two abscissas and two elevations [mm], closed and counter-clockwise from
/// its upper right corner.
inline std::vector<PolygonPoint> rectangle(double left, double right, double bottom, double top) {
  return {{right, top}, {left, top}, {left, bottom}, {right, bottom}, {right, top}};
}

/// Adds what the cap beam may have to reinforcement settings: cover 50 mm, bars of 16 mm added one
/// by one, 0.3 to 4 percent of the section, stirrups of 10 mm from 300 mm down to 100 mm by 50 mm.
template <class Settings>
osg::ref_ptr<Settings> with_cap_beam(osg::ref_ptr<Settings> settings) {
  settings->trave.Cover = 50.0;
  settings->trave.BarDiam = 16;
  settings->trave.Step = 1;
  settings->trave.minRatio = 0.3;
  settings->trave.maxRatio = 4.0;
  settings->trave.bracket = settings->bracket;
  return settings;
}

/// A ring of bars of 20 mm, 60 mm from the face, 0.5 to 4 percent of the section.
inline osg::ref_ptr<xCircularReinfSettings> ring_of_bars() {
  auto ring = with_cap_beam(common_settings<xCircularReinfSettings>(20.0, 60.0));
  ring->setMinRatio(0.5);
  ring->setMaxRatio(4.0);
  return ring;
}

/// Two equal rows of bars of 20 mm with corner bars, 60 mm from the face, each with 0.2 to 2 percent
/// of the section.
inline osg::ref_ptr<xRectReinfSettings> rows_of_bars() {
  auto rows = with_cap_beam(common_settings<xRectReinfSettings>(20.0, 60.0));
  rows->minValle = rows->minMonte = 0.2;
  rows->maxValle = rows->maxMonte = 2.0;
  return rows;
}

/// What a test does not say: a pile of 600 mm every 1000 mm, 12 m long, of 30 000 N/mm², nu 0.2 and
/// 25 kN/m³; a cap beam of 800 x 1000 mm (height x width); 6 m of excavation; no ground, no water,
/// no anchor, no combination; one spring interval over the whole embedded length that takes the
/// smaller limit; levels every 250 mm; the reinforcement of `ring_of_bars` or `rows_of_bars`.
class WallBuilder {
public:
  static constexpr double ground_bottom = 30000.0;  ///< depth to which the last layer goes [mm]
  static constexpr double ground_width = 50000.0;   ///< of the ground to either side [mm]

  WallBuilder() {
    data_.springIntervals.emplace_back();
    wall_->material.setName("concrete");
    wall_->material.setElasticityModulus(30e3);
    wall_->material.setPoissonRatio(0.2);
    wall_->material.computeShearModulus();
    wall_->material.setUnitWeight(25e-6);
    wall_->setDepth(6000.0);
    wall_->setExtension(10000.0);
    wall_->setSpacing(1000.0);
    wall_->set_NumPiles(1);
    wall_->setIdObj(7);
    wall_->setHtrave(800.0);
    wall_->setBtrave(1000.0);
    pile(600.0, 12000.0);
  }

  /// Round piles by their diameter and length [mm].
  WallBuilder& pile(double diameter, double length) {
    wall_->section = circle(diameter);
    wall_->checkSettings.reinforcementSettings = ring_of_bars();
    wall_->setLength(length);
    return *this;
  }

  /// Panels by their two stored dimensions and length [mm]; the first is the depth in bending.
  WallBuilder& panel(double first, double second, double length) {
    wall_->section = rectangle_section(first, second);
    wall_->checkSettings.reinforcementSettings = rows_of_bars();
    wall_->setLength(length);
    return *this;
  }

  WallBuilder& spacing(double distance) {  ///< between pile axes [mm]
    wall_->setSpacing(distance);
    return *this;
  }

  WallBuilder& excavation(double depth) {  ///< below the wall's head [mm]
    wall_->setDepth(depth);
    return *this;
  }

  /// A layer of the given thickness [mm] below the layers so far; the first begins at the head.
  WallBuilder& layer(const xSoilProps& soil, double thickness) {
    xBoundSoilLayer ground;
    ground.soil = soil;
    strips_.push_back({.top = next_top_, .bottom = next_top_ + thickness, .ground = ground});
    next_top_ += thickness;
    return *this;
  }

  /// A layer from the layers so far down to `ground_bottom`.
  WallBuilder& layer(const xSoilProps& soil) { return layer(soil, ground_bottom - next_top_); }

  /// A layer by its polygons, after the layers so far. The excavation is not cut out of it.
  WallBuilder& layer(const xBoundSoilLayer& ground) {
    strips_.push_back({.top = 0.0, .bottom = 0.0, .ground = ground});
    return *this;
  }

  /// Water by its elevations on the retained and on the excavated side [mm].
  WallBuilder& water(double monte, double valle) {
    data_.waterTable.setIsDefined(true);
    data_.waterTable.setLivelloMonte(monte);
    data_.waterTable.setLivelloValle(valle);
    return *this;
  }

  /// Water by its elevation on the retained side; the excavation is pumped dry: the other side has
  /// the same level, or that of the excavation as told so far if that is lower [mm].
  WallBuilder& water(double monte) { return water(monte, std::min(monte, -wall_->getDepth())); }

  WallBuilder& anchor(const xAnchor& anchor) {
    data_.anchors.push_back(anchor);
    data_.anchors.back().setIdObj(100 + static_cast<std::int64_t>(data_.anchors.size()));
    return *this;
  }

  WallBuilder& imposed(const xConstraint& constraint) {
    data_.restriction.imposed.push_back(constraint);
    return *this;
  }

  WallBuilder& spring(const xConstraint& constraint) {
    data_.restriction.springs.push_back(constraint);
    return *this;
  }

  WallBuilder& combination(const xLoadComb& comb) {
    data_.loadCombs.push_back(comb);
    return *this;
  }

  WallBuilder& step(double distance) {  ///< wanted spacing of the levels [mm]
    data_.calcSettings.setStepMolle(distance);
    return *this;
  }

  /// The input. The builder and all inputs that it builds have walls of their own.
  xSheetpilingData build() const {
    xSheetpilingData data = data_;
    data.props = wall_->clone();
    for (const Strip& strip : strips_) {
      data.soilLayers.push_back(strip.ground);
      if (!strip.ground.polygons.empty() || !(strip.bottom > strip.top)) continue;
      data.soilLayers.back().polygons = {outline(strip.top, strip.bottom)};
    }
    return data;
  }

private:
  struct Strip {
    double top;
    double bottom;
    xBoundSoilLayer ground;
  };

  // The ground between two depths: behind the wall all of it, before it what the excavation leaves.
  std::vector<PolygonPoint> outline(double top, double bottom) const {
    const double dug = wall_->getDepth();
    if (bottom <= dug) return rectangle(0.0, ground_width, -bottom, -top);
    if (top >= dug) return rectangle(-ground_width, ground_width, -bottom, -top);
    return {{ground_width, -top},
            {0.0, -top},
            {0.0, -dug},
            {-ground_width, -dug},
            {-ground_width, -bottom},
            {ground_width, -bottom},
            {ground_width, -top}};
  }

  xSheetpilingData data_;
  osg::ref_ptr<xPile_Sheetpiling> wall_ = new xPile_Sheetpiling;
  std::vector<Strip> strips_;
  double next_top_ = 0.0;
};

}  // namespace ostrel::testing
