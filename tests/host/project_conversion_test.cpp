// SPDX-License-Identifier: Apache-2.0
#include "project_conversion.h"

#include "host_testing.h"

#include <sorrel/cross_section.h>

#include <gmock/gmock.h>

#include <cmath>
#include <numbers>

namespace ostrel::host {
namespace {

using ::testing::SizeIs;
using Json = nlohmann::json;

constexpr double degree = std::numbers::pi / 180.0;

xSheetpilingData data_of(const Json& json) {
  return to_job(project_of(json)).data;
}

const xPile_Sheetpiling& wall_of(const xSheetpilingData& data) {
  return dynamic_cast<const xPile_Sheetpiling&>(*data.props);
}

std::vector<std::vector<double>> vertices(const xBoundSoilLayer& layer) {
  std::vector<std::vector<double>> list;
  for (const auto& vertex : layer.polygons.at(0))
    list.push_back({vertex(0), vertex(1)});
  return list;
}

TEST(ConvertedWall, HasAPileOfHalfTheDiameterAsRadius) {
  const xSheetpilingData data = data_of(sound_project());
  const xPile_Sheetpiling& wall = wall_of(data);
  EXPECT_EQ(dynamic_cast<const xCircSecProp&>(*wall.section).getRadius(), 300.0);
  // pi 300² mm²
  EXPECT_DOUBLE_EQ(wall.section->getArea(), std::numbers::pi * 90000.0);
  EXPECT_EQ(wall.getLength(), 10000.0);
  EXPECT_EQ(wall.getDepth(), 4000.0);
  EXPECT_EQ(wall.getSpacing(), 1000.0);
  EXPECT_EQ(wall.getNumPiles(), 4);
  EXPECT_EQ(wall.getExtension(), 4000.0);
  EXPECT_EQ(wall.material.getElasticityModulus(), 30000.0);
  // 30000 / (2 * 1.2)
  EXPECT_EQ(wall.material.getShearModulus(), 12500.0);
  EXPECT_EQ(wall.material.getUnitWeight(), 25e-6);
}

TEST(ConvertedWall, HasTheThicknessOfADiaphragmAsItsDepthInBending) {
  const xSheetpilingData data = data_of(sound_diaphragm());
  const xPile_Sheetpiling& wall = wall_of(data);
  // 2500 * 800³ / 12 mm⁴
  EXPECT_DOUBLE_EQ(wall.section->getBendingJ(), 2500.0 * 800.0 * 800.0 * 800.0 / 12.0);
  EXPECT_EQ(wall.getSpacing(), 2500.0);
  EXPECT_EQ(wall.getExtension(), 7500.0);
}

Json reinforcement() {
  const Json stirrups = {{"diameter_mm", 12},
                         {"least_spacing_mm", 100},
                         {"largest_spacing_mm", 250},
                         {"spacing_step_mm", 25}};
  return {{"cover_mm", 70},
          {"bar_diameter_mm", 24},
          {"bars_per_step", 2},
          {"least_ratio_percent", 0.6},
          {"largest_ratio_percent", 4},
          {"stirrups", stirrups},
          {"concrete", {{"cube_strength_MPa", 35}}},
          {"steel", {{"yield_strength_MPa", 450}}},
          {"cap_beam",
           {{"cover_mm", 50},
            {"bar_diameter_mm", 20},
            {"least_ratio_percent", 0.3},
            {"largest_ratio_percent", 4},
            {"stirrups", stirrups}}}};
}

TEST(ConvertedWall, HasTheReinforcementOfItsShape) {
  const xSheetpilingData data = data_of(with("/wall/reinforcement", reinforcement()));
  const auto* settings = dynamic_cast<const xCircularReinfSettings*>(
      wall_of(data).checkSettings.reinforcementSettings.get());
  ASSERT_NE(settings, nullptr);
  EXPECT_EQ(settings->getCover(), 70.0);
  EXPECT_EQ(settings->getBarDiam(), 24.0);
  EXPECT_EQ(settings->getStep(), 2u);
  EXPECT_EQ(settings->getMinRatio(), 0.6);
  EXPECT_EQ(settings->getMaxRatio(), 4.0);
  EXPECT_EQ(settings->bracket.getMinStep(), 100.0);
  EXPECT_EQ(settings->bracket.getMaxStep(), 250.0);
  EXPECT_EQ(settings->bracket._getStepIncr(), 25.0);
  EXPECT_EQ(settings->bracket.bar.getDiameter(), 12.0);
  EXPECT_EQ(settings->material.concrete.getRck(), 35.0);
  EXPECT_EQ(settings->material.steel.getGammaS(), 1.15);
  EXPECT_EQ(settings->material.steel.Es(), 210000.0);
  EXPECT_EQ(settings->trave.BarDiam, 20);
  EXPECT_EQ(settings->trave.Step, 1);
}

TEST(ConvertedWall, HasTheBearingOfItsPiles) {
  const xSheetpilingData data = data_of(
      with("/wall/vertical_bearing",
           {{"technology", "bored"}, {"xi_3", 1.7}, {"xi_4", 1.6}, {"minimum_values", true}}));
  const xBearCapacityPileSettings& settings = wall_of(data).checkSettings.pileSettings;
  EXPECT_EQ(settings.getTechnologyType(), pileBored);
  EXPECT_EQ(settings.getDiamMethod(), bearSecPile::diamEqualArea);
  EXPECT_EQ(settings.getCsi3(), 1.7);
  EXPECT_EQ(settings.getCsi4(), 1.6);
  EXPECT_EQ(settings.getValueType(), 1);
}

TEST(ConvertedSoil, IsInTheUnitsOfTheLibrary) {
  Json project = sound_project();
  project["soils"][0]["cohesion_kPa"] = 5;
  project["soils"][0]["adhesion_kPa"] = 2.5;
  project["soils"][0]["permeability_m_s"] = 1e-6;
  const xSoilProps soil = data_of(project).soilLayers[0].soil;
  EXPECT_EQ(soil.getName(), "sand");
  EXPECT_EQ(soil.getUnitWeight(), 18e-6);
  EXPECT_EQ(soil.getSaturatedUnitWeight(), 20e-6);
  EXPECT_DOUBLE_EQ(soil.getInternalFriction(), 32.0 * degree);
  EXPECT_DOUBLE_EQ(soil.getInterfaceFriction(), 10.0 * degree);
  EXPECT_EQ(soil.getCohesion(), 5e-3);
  EXPECT_EQ(soil.getAdhesion(), 2.5e-3);
  EXPECT_EQ(soil.getElasticityModulus(), 30.0);
  EXPECT_DOUBLE_EQ(soil.getKPerm(), 1e-3);
  // 30 * 0.7 / (1.3 * 0.4)
  EXPECT_DOUBLE_EQ(soil.getConstrModulus(), 21.0 / 0.52);
  EXPECT_EQ(
      data_of(with("/soils/0/constrained_modulus_MPa", 45)).soilLayers[0].soil.getConstrModulus(),
      45.0);
}

TEST(ConvertedLayers, StandOnTheRetainedSideAboveTheExcavationAndOnBothBelow) {
  Json project = sound_project();
  project["ground"]["layers"] = {{{"soil", "sand"}, {"top_level_m", 0}},
                                 {{"soil", "sand"}, {"top_level_m", -2}},
                                 {{"soil", "sand"}, {"top_level_m", -6}}};
  const auto layers = data_of(project).soilLayers;
  ASSERT_THAT(layers, SizeIs(3));
  using Points = std::vector<std::vector<double>>;
  EXPECT_EQ(vertices(layers[0]),
            (Points{{0, -2000}, {40000, -2000}, {40000, 0}, {0, 0}, {0, -2000}}));
  EXPECT_EQ(vertices(layers[1]), (Points{{-30000, -6000},
                                         {40000, -6000},
                                         {40000, -2000},
                                         {0, -2000},
                                         {0, -4000},
                                         {-30000, -4000},
                                         {-30000, -6000}}));
  EXPECT_EQ(
      vertices(layers[2]),
      (Points{
          {-30000, -30000}, {40000, -30000}, {40000, -6000}, {-30000, -6000}, {-30000, -30000}}));
}

TEST(ConvertedLayers, CloseTheirPolygonsOnce) {
  Json project = sound_project();
  const Json open = {{-30, -30}, {40, -30}, {40, 0}, {-30, 0}};
  Json closed = open;
  closed.push_back(open[0]);
  for (const Json& polygon : {open, closed}) {
    project["ground"] = {{"layers", {{{"soil", "sand"}, {"polygons_m", Json::array({polygon})}}}}};
    EXPECT_THAT(data_of(project).soilLayers[0].polygons[0], SizeIs(5));
  }
}

TEST(ConvertedLayers, KeepTheSlopeOfTheGround) {
  Json project = sound_project();
  project["ground"] = {{"layers",
                        {{{"soil", "sand"},
                          {"surface_slope_deg", 10},
                          {"polygons_m", {{{-30, -30}, {40, -30}, {40, 7}, {0, 0}, {-30, -4}}}}}}}};
  EXPECT_DOUBLE_EQ(data_of(project).soilLayers[0].getAngle(), 10.0 * degree);
}

TEST(ConvertedWater, IsDefinedWhereTheProjectHasIt) {
  EXPECT_FALSE(data_of(sound_project()).waterTable.getIsDefined());
  const xWaterTable water =
      data_of(with("/water", {{"retained_level_m", -1.5}, {"excavated_level_m", -4}})).waterTable;
  EXPECT_TRUE(water.getIsDefined());
  EXPECT_EQ(water.getLivelloMonte(), -1500.0);
  EXPECT_EQ(water.getLivelloValle(), -4000.0);
}

TEST(ConvertedAnchor, HasTheSectionOfItsTendon) {
  const xSheetpilingData data = data_of(with("/anchors", {{{"level_m", -1.5},
                                                           {"inclination_deg", 20},
                                                           {"free_length_m", 9},
                                                           {"bond_length_m", 8},
                                                           {"number", 2},
                                                           {"tendon_area_mm2", 695},
                                                           {"E_GPa", 195},
                                                           {"prestress_kN", 250},
                                                           {"yield_strength_MPa", 1600},
                                                           {"xi_3", 1.8},
                                                           {"xi_4", 1.7}}}));
  ASSERT_THAT(data.anchors, SizeIs(1));
  const xAnchor& anchor = data.anchors[0];
  EXPECT_DOUBLE_EQ(anchor.CableArea(), 695.0);
  EXPECT_EQ(anchor.z, 1500.0);
  EXPECT_TRUE(anchor.modeFlag);
  EXPECT_DOUBLE_EQ(anchor.getAngleRad(), 20.0 * degree);
  EXPECT_EQ(anchor.getFreeLength(), 9000.0);
  EXPECT_EQ(anchor.getBulbLength(), 8000.0);
  EXPECT_EQ(anchor.getNumber(), 2);
  EXPECT_EQ(anchor.material.getElasticityModulus(), 195000.0);
  EXPECT_EQ(anchor.getPreStress(), 250000.0);
  EXPECT_TRUE(anchor.settings.getuse_soil());
  EXPECT_EQ(anchor.settings.getFyk(), 1600.0);
  EXPECT_EQ(anchor.settings.getGammaS(), 1.15);
  EXPECT_EQ(anchor.settings.getCsi3(), 1.8);
  EXPECT_EQ(anchor.settings.get_ValueType(), csiMeanValues);
}

TEST(ConvertedAnchor, TakesItsBondFromTheProjectWhereItIsThere) {
  const xSheetpilingData data =
      data_of(with("/anchors", {{{"level_m", -1.5},
                                 {"inclination_deg", 20},
                                 {"free_length_m", 9},
                                 {"number", 2},
                                 {"tendon_area_mm2", 695},
                                 {"E_GPa", 195},
                                 {"pressure_coefficient", "mean"},
                                 {"bond", {{"adhesion_kPa", 60}, {"friction_angle_deg", 18}}}}}));
  const xAnchorSettings& settings = data.anchors[0].settings;
  EXPECT_FALSE(settings.getuse_soil());
  EXPECT_EQ(settings.getadesione(), 0.06);
  EXPECT_DOUBLE_EQ(settings.getattrito(), 18.0 * degree);
  EXPECT_EQ(settings.getSoilCoeffType(), coeffMean);
}

TEST(ConvertedSupports, TurnTheirSignsWhereTheLibraryCountsTheOtherWay) {
  const xSheetpilingData data = data_of(
      with("/supports",
           {{"fixed",
             {{{"level_m", -1}, {"horizontal_mm", 5}, {"vertical_mm", 2}, {"rotation_mrad", 3}}}},
            {"elastic", {{{"level_m", -2}, {"horizontal_kN_m", 1e4}, {"rotation_kNm", 7}}}}}));
  const xConstraint& fixed = data.restriction.imposed.at(0);
  EXPECT_EQ(fixed.getPosition(), 1000.0);
  EXPECT_EQ(fixed.horizontal.getValue(), -5.0);
  EXPECT_EQ(fixed.axial.getValue(), -2.0);
  EXPECT_EQ(fixed.rotation.getValue(), 0.003);
  const xConstraint& elastic = data.restriction.springs.at(0);
  EXPECT_EQ(elastic.getPosition(), 2000.0);
  EXPECT_TRUE(elastic.horizontal.getActive());
  EXPECT_EQ(elastic.horizontal.getValue(), 1e4);
  EXPECT_FALSE(elastic.axial.getActive());
  EXPECT_EQ(elastic.rotation.getValue(), 7e6);
}

TEST(ConvertedSettings, AreThoseOfTheCalculation) {
  Json project = sound_project();
  project["calculation"] = {{"earth_pressure", "rankine"},
                            {"seismic_earth_pressure", "wood"},
                            {"node_spacing_mm", 200},
                            {"spring_limit_mm", 20},
                            {"tolerance_mm", 0.01},
                            {"max_iterations", 50},
                            {"linear", true}};
  project["spring_intervals"] = {{{"to", 0.4}, {"limit", "passive"}},
                                 {{"from", 0.4}, {"stiffness_factor", 0.5}}};
  const Job job = to_job(project_of(project));
  EXPECT_EQ(job.data.calcSettings.get_EpFormuls(false), formulaRankine);
  EXPECT_EQ(job.data.calcSettings.get_EpFormuls(true), formulaWood);
  EXPECT_EQ(job.data.calcSettings.getStepMolle(), 200.0);
  EXPECT_EQ(job.data.calcSettings.getDispLim(), 20.0);
  EXPECT_TRUE(job.fem.linear);
  EXPECT_EQ(job.fem.tolerance, 0.01);
  EXPECT_EQ(job.fem.maxIterations, 50);
  ASSERT_THAT(job.data.springIntervals, SizeIs(2));
  EXPECT_EQ(job.data.springIntervals[0].type, xSpringInterval::limitPassive);
  EXPECT_EQ(job.data.springIntervals[0].end, 0.4);
  EXPECT_EQ(job.data.springIntervals[1].type, xSpringInterval::limitSmaller);
  EXPECT_EQ(job.data.springIntervals[1].factor, 0.5);
}

TEST(ConvertedSlope, IsInMillimetres) {
  const xSheetpilingData data = data_of(with(
      "/slope", {{"method", "bishop"},
                 {"stripe_width_m", 0.5},
                 {"radius_step_m", 1},
                 {"centres",
                  {{{"x_m", -2}, {"y_m", 5}, {"least_radius_m", 15}, {"largest_radius_m", 30}}}}}));
  const xSlopeStabilitySettings& slope = data.calcSettings.slope;
  EXPECT_EQ(slope.getFormulation(), 1);
  EXPECT_EQ(slope.getWidthstripe(), 500.0);
  EXPECT_EQ(slope.getStepradius(), 1000.0);
  ASSERT_THAT(slope.grid.points, SizeIs(1));
  EXPECT_EQ(slope.grid.points[0].center(0), -2000.0);
  EXPECT_EQ(slope.grid.points[0].center(1), 5000.0);
  EXPECT_EQ(slope.grid.points[0].getMinRadius(), 15000.0);
  EXPECT_EQ(slope.grid.points[0].getMaxRadius(), 30000.0);
}

}  // namespace
}  // namespace ostrel::host
