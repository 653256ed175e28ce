#pragma once
/// @file  Reinforcement settings and sections for tests
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/reinforcement_settings.h"

#include <sorrel/cross_section.h>

#include <osg/ref_ptr>

namespace ostrel::testing {

/// Rck 30 with 0.85 and 1.5; 450 / 1.15 perfectly plastic, Es 210 000.
inline xMaterialProps common_materials() {
  xMaterialProps material;
  material.concrete.setRck(30.0);
  material.steel.setFyk(450.0);
  material.steel.setEs(210e3);
  material.steel.setK(1.0);
  material.steel.setGammaS(1.15);
  return material;
}

/// Bars and cover [mm]; stirrups of 10 mm from 300 mm down to 100 mm by 50 mm; one bar a step.
template <class Settings>
osg::ref_ptr<Settings> common_settings(double bar_diameter, double cover) {
  osg::ref_ptr<Settings> settings = new Settings;
  settings->material = common_materials();
  settings->setBarDiam(bar_diameter);
  settings->setCover(cover);
  settings->setStep(1);
  settings->bracket.bar.setDiameter(10.0);
  settings->bracket.setMinStep(100.0);
  settings->bracket.setMaxStep(300.0);
  settings->bracket.setStepIncr(50.0);
  return settings;
}

inline osg::ref_ptr<xCircSecProp> circle(double diameter) {
  osg::ref_ptr<xCircSecProp> section = new xCircSecProp;
  section->setRadius(diameter / 2.0);
  section->computeProp();
  return section;
}

/// A rectangle by its depth in bending and its width along the wall [mm].
inline osg::ref_ptr<xRectSecProp> rectangle_section(double depth, double width) {
  osg::ref_ptr<xRectSecProp> section = new xRectSecProp;
  section->setFirst(depth);
  section->setSecond(width);
  section->computeProp();
  return section;
}

}  // namespace ostrel::testing
