// SPDX-License-Identifier: Apache-2.0
#include "seismic_coefficients.h"

#include "host_testing.h"

#include <gmock/gmock.h>

#include <cmath>

namespace ostrel::host {
namespace {

using ::testing::ElementsAre;
using ::testing::Field;
using ::testing::HasSubstr;
using ::testing::SizeIs;
using Json = nlohmann::json;

Json ntc_site() {
  return {{"standard", "NTC2008"}, {"ag_g", 0.15}, {"F0", 2.5},
          {"ground_class", "C"},   {"alpha", 0.9}, {"topographic_category", "T2"}};
}

Json ec_site() {
  return {
      {"standard", "EN1998-5"}, {"ag_g", 0.2}, {"importance_factor", 1.2}, {"soil_factor", 1.15}};
}

SeismicSiteInput site_of(const Json& site) {
  return project_of(with("/seismic", site)).seismic.value_or(SeismicSiteInput{});
}

// F0 ag = 2.5 * 0.15 = 0.375: B 1.40 - 0.15 = 1.25, at most 1.20; C 1.70 - 0.225 = 1.475;
// D 2.40 - 0.5625 = 1.8375, at most 1.80; E 2.00 - 0.4125 = 1.5875.
TEST(StratigraphicFactor, FollowsTheRowOfTheGround) {
  EXPECT_DOUBLE_EQ(stratigraphic_factor('A', 2.5, 0.15), 1.0);
  EXPECT_DOUBLE_EQ(stratigraphic_factor('B', 2.5, 0.15), 1.2);
  EXPECT_DOUBLE_EQ(stratigraphic_factor('C', 2.5, 0.15), 1.475);
  EXPECT_DOUBLE_EQ(stratigraphic_factor('D', 2.5, 0.15), 1.8);
  EXPECT_DOUBLE_EQ(stratigraphic_factor('E', 2.5, 0.15), 1.5875);
}

// F0 ag = 2.5 * 0.5 = 1.25: B 0.9, C 0.95, E 0.625, all at least 1; D 0.525, at least 0.90.
TEST(StratigraphicFactor, HasALeastValue) {
  for (const char ground : {'B', 'C', 'E'})
    EXPECT_DOUBLE_EQ(stratigraphic_factor(ground, 2.5, 0.5), 1.0);
  EXPECT_DOUBLE_EQ(stratigraphic_factor('D', 2.5, 0.5), 0.9);
  EXPECT_TRUE(std::isnan(stratigraphic_factor('F', 2.5, 0.15)));
}

TEST(TopographicFactor, FollowsTheCategory) {
  EXPECT_EQ(topographic_factor(1), 1.0);
  EXPECT_EQ(topographic_factor(2), 1.2);
  EXPECT_EQ(topographic_factor(3), 1.2);
  EXPECT_EQ(topographic_factor(4), 1.4);
  EXPECT_TRUE(std::isnan(topographic_factor(0)));
  EXPECT_TRUE(std::isnan(topographic_factor(5)));
}

// 0.9 * 0.5 = 0.45 of a_max; 0.5 * 0.3 = 0.15 would be below 0.2 of it.
TEST(HorizontalCoefficient, IsNeverBelowAFifthOfTheAcceleration) {
  EXPECT_DOUBLE_EQ(horizontal_coefficient_ntc2008(0.9, 0.5, 0.2), 0.09);
  EXPECT_DOUBLE_EQ(horizontal_coefficient_ntc2008(0.5, 0.3, 0.2), 0.04);
}

// Ss = 1.475 and St = 1.2 as above: a_max = 1.475 * 1.2 * 0.15 = 0.2655, kh = 0.9 * 0.2655 = 0.23895.
TEST(SeismicCoefficientsNtc2008, ComeFromSiteAndWall) {
  const SeismicCoefficients found = seismic_coefficients(site_of(ntc_site()));
  EXPECT_DOUBLE_EQ(found.acceleration, 0.2655);
  EXPECT_DOUBLE_EQ(found.kh, 0.23895);
  EXPECT_EQ(found.kv, 0.0);
}

// kh = 1.2 * 0.2 * 1.15 / 1 = 0.276, kv = 0.5 * 0.276 = 0.138 for avg = 0.9 ag.
TEST(SeismicCoefficientsEn1998, ComeFromSiteAndWall) {
  const SeismicCoefficients found = seismic_coefficients(site_of(ec_site()));
  EXPECT_DOUBLE_EQ(found.kh, 0.276);
  EXPECT_DOUBLE_EQ(found.kv, 0.138);
}

// For avg up to 0.6 ag: kv = 0.33 kh. r = 1.5: kh = 0.276 / 1.5 = 0.184, kv = 0.06072.
TEST(SeismicCoefficientsEn1998, TakeLessOfTheVerticalWhereItIsSmall) {
  Json site = ec_site();
  site["vertical_to_horizontal"] = 0.6;
  site["r"] = 1.5;
  const SeismicCoefficients found = seismic_coefficients(site_of(site));
  EXPECT_DOUBLE_EQ(found.kh, 0.184);
  EXPECT_DOUBLE_EQ(found.kv, 0.06072);
}

TEST(SeismicRecords, KeepTheDataOfTheCoefficients) {
  const xSeismicActionNTC2008 ntc = ntc2008_action(site_of(ntc_site()));
  EXPECT_DOUBLE_EQ(ntc.coefficients(0), 0.23895);
  EXPECT_EQ(ntc.getSoilType(), "C");
  EXPECT_EQ(ntc.getTopographicType(), "T2");
  EXPECT_DOUBLE_EQ(ntc.getAdimensAcc(), 0.2655);
  EXPECT_EQ(ntc.getSt(), 1.2);
  EXPECT_EQ(ntc.getF0(), 2.5);
  EXPECT_DOUBLE_EQ(ntc.getSs(), 1.475);
  EXPECT_EQ(ntc.getAlpha(), 0.9);
  EXPECT_EQ(ntc.getBeta(), 1.0);
  // 0.2 g = 1.962 m/s², times 1.2 = 2.3544 m/s².
  const xSeismicActionEC8 en = en1998_action(site_of(ec_site()));
  EXPECT_DOUBLE_EQ(en.getAgR(), 1.962);
  EXPECT_DOUBLE_EQ(en.getAg(), 2.3544);
  EXPECT_EQ(en.getGammaI(), 1.2);
  EXPECT_EQ(en.getR(), 1.0);
  EXPECT_DOUBLE_EQ(en.coefficients(1), 0.138);
}

TEST(SeismicCombination, TakesTheCoefficientsOfTheSiteForTrue) {
  Json project = with("/seismic", ntc_site());
  project["combinations"][0]["type"] = "seismic";
  project["combinations"][0]["seismic"] = true;
  const CombinationInput combination = project_of(project).combinations[0];
  EXPECT_DOUBLE_EQ(combination.kh, 0.23895);
  EXPECT_EQ(combination.kv, 0.0);
  EXPECT_EQ(combination.topographic_factor, 1.2);
  EXPECT_TRUE(combination.of_site);
}

TEST(SeismicCombination, NeedsASiteForTrue) {
  Json project = with("/combinations/0/type", "seismic");
  project["combinations"][0]["seismic"] = true;
  const ReadingOutcome outcome = read(project);
  EXPECT_THAT(outcome.errors, ElementsAre(Field(&Problem::path, "combinations[0].seismic")));
}

TEST(SeismicSite, LetsAWallMoveByAdmittedDisplacementsOnly) {
  Json site = ntc_site();
  site["beta"] = 0.5;
  const auto expect_error = [&](const char* path) {
    const ReadingOutcome outcome = read(with("/seismic", site));
    ASSERT_THAT(outcome.errors, SizeIs(1));
    EXPECT_EQ(outcome.errors[0].path, path);
  };
  expect_error("seismic.beta");
  // 0.005 of 10 m is 50 mm.
  site["admissible_displacement_mm"] = 51;
  expect_error("seismic.admissible_displacement_mm");
  site["admissible_displacement_mm"] = 50;
  EXPECT_EQ(site_of(site).beta, 0.5);
}

TEST(SeismicLine, ShowsTheRuleAndTheNumbers) {
  const Texts texts(Language::english);
  const std::string line = seismic_line(site_of(ntc_site()), texts);
  for (const char* part : {"7.11.6.3.1", "Ss = 1.475", "St = 1.200", "kh = 0.239"})
    EXPECT_THAT(line, HasSubstr(part));
  EXPECT_THAT(seismic_line(site_of(ec_site()), texts), HasSubstr("kv = 0.138"));
}

}  // namespace
}  // namespace ostrel::host
