// SPDX-License-Identifier: Apache-2.0
#include "ostrel/wall.h"

#include "support/random_contents.h"
#include "support/stream_round_trip.h"

#include <gtest/gtest.h>

#include <limits>
#include <numbers>
#include <stdexcept>
#include <string>

namespace {

using ostrel::testing::bytes_of;
using ostrel::testing::frame_bytes;
using ostrel::testing::RandomContents;
using ostrel::testing::read_stored;
using ostrel::testing::stored;

osg::ref_ptr<xCrossSecProp> circle(double radius) {
  osg::ref_ptr<xCircSecProp> section = new xCircSecProp;
  section->setRadius(radius);
  section->computeProp();
  return section;
}

osg::ref_ptr<xCrossSecProp> rectangle(double first, double second) {
  osg::ref_ptr<xRectSecProp> section = new xRectSecProp;
  section->setFirst(first);
  section->setSecond(second);
  section->computeProp();
  return section;
}

osg::ref_ptr<xPile_Sheetpiling> new_wall() {
  return new xPile_Sheetpiling;
}

void fill(xSheetpilingMaterial& material, RandomContents& random) {
  material.setName(random.text());
  material.setElasticityModulus(random.number());
  material.setShearModulus(random.number());
  material.setPoissonRatio(random.number());
  material.setUnitWeight(random.number());
}

void fill(xSheetpiling_Props& wall, RandomContents& random) {
  fill(wall.material, random);
  wall.checkSettings.set_Description(random.text());
  wall.setLength(random.number());
  wall.setDepth(random.number());
  wall.setExtension(random.number());
}

void fill(xPile_Sheetpiling& wall, RandomContents& random) {
  fill(static_cast<xSheetpiling_Props&>(wall), random);
  wall.set_NumPiles(random.whole());
  wall.setIdObj(random.wide());
  wall.setSpacing(random.number());
  wall.setHtrave(random.number());
  wall.setBtrave(random.number());
}

void expect_equal(const xSheetpilingMaterial& a, const xSheetpilingMaterial& b) {
  EXPECT_EQ(a.getName(), b.getName());
  EXPECT_EQ(a.getElasticityModulus(), b.getElasticityModulus());
  EXPECT_EQ(a.getShearModulus(), b.getShearModulus());
  EXPECT_EQ(a.getPoissonRatio(), b.getPoissonRatio());
  EXPECT_EQ(a.getUnitWeight(), b.getUnitWeight());
}

void expect_equal(const xSheetpiling_Props& a, const xSheetpiling_Props& b) {
  expect_equal(a.material, b.material);
  EXPECT_EQ(a.checkSettings.get_Description(), b.checkSettings.get_Description());
  EXPECT_EQ(a.getLength(), b.getLength());
  EXPECT_EQ(a.getDepth(), b.getDepth());
  EXPECT_EQ(a.getExtension(), b.getExtension());
}

void expect_equal(const xPile_Sheetpiling& a, const xPile_Sheetpiling& b) {
  expect_equal(static_cast<const xSheetpiling_Props&>(a),
               static_cast<const xSheetpiling_Props&>(b));
  EXPECT_EQ(a.getNumPiles(), b.getNumPiles());
  EXPECT_EQ(a.getIdObj(), b.getIdObj());
  EXPECT_EQ(a.getSpacing(), b.getSpacing());
  EXPECT_EQ(a.getHtrave(), b.getHtrave());
  EXPECT_EQ(a.getBtrave(), b.getBtrave());
}

// A section that is neither a circle nor a rectangle.
class OtherSection final : public xCrossSecProp {
public:
  xCrossSecProp* clone() const override { return new OtherSection; }
  double ComputeArea() const override { return 1.0; }
  double ComputeJy() const override { return 1.0; }
  double ComputeJz() const override { return 1.0; }
  double ComputeJt() const override { return 1.0; }
  double ComputeWy() const override { return 1.0; }
  double ComputeWz() const override { return 1.0; }
};

// The stored fields of a wall of piles but for its cap beam, around the bytes of its section.
std::string pile_fields(const std::string& section) {
  const osg::ref_ptr<xSheetpiling_Props> base = new xSheetpiling_Props;
  base->setLength(12e3);
  return stored(*base) + section
       + bytes_of([](outstream& out) { out << 3 << 1500.0 << std::int64_t{42}; });
}

const std::string cap_beam = bytes_of([](outstream& out) { out << 1000.0 << 800.0; });

TEST(WallMaterial, IsStoredAsItsBaseAndItsWeight) {
  xSheetpilingMaterial material;
  material.setName("concrete");
  material.setElasticityModulus(30e3);
  material.setUnitWeight(25e-6);
  xElasticProps base;
  base.setName("concrete");
  base.setElasticityModulus(30e3);
  EXPECT_EQ(material.getIOClass(), "xSheetpilingMaterial");
  EXPECT_EQ(stored(material),
            frame_bytes(1, stored(base) + bytes_of([](outstream& out) { out << 25e-6; })));
}

TEST(WallMaterial, SurvivesMemoryWithRandomContents) {
  RandomContents random(1);
  for (int i = 0; i < 50; ++i) {
    xSheetpilingMaterial material;
    fill(material, random);
    expect_equal(ostrel::testing::through_memory(material), material);
  }
}

TEST(WallMaterial, IsEmptyAfterReset) {
  RandomContents random(2);
  xSheetpilingMaterial material;
  EXPECT_EQ(material.getUnitWeight(), 0.0);
  fill(material, random);
  material.reset();
  expect_equal(material, xSheetpilingMaterial{});
}

TEST(WallRecord, IsStoredAsMaterialSettingsAndSizes) {
  const osg::ref_ptr<xSheetpiling_Props> wall = new xSheetpiling_Props;
  wall->material.setUnitWeight(25e-6);
  wall->checkSettings.set_Description("settings");
  wall->setLength(12e3);
  wall->setDepth(6e3);
  wall->setExtension(20e3);
  EXPECT_EQ(wall->getIOClass(), "xSheetpiling_Props");
  EXPECT_EQ(stored(*wall),
            frame_bytes(1, stored(wall->material) + stored(wall->checkSettings)
                               + bytes_of([](outstream& out) { out << 12e3 << 6e3 << 20e3; })));
}

TEST(WallRecord, SurvivesMemoryWithRandomContents) {
  RandomContents random(3);
  for (int i = 0; i < 50; ++i) {
    const osg::ref_ptr<xSheetpiling_Props> wall = new xSheetpiling_Props;
    fill(*wall, random);
    const osg::ref_ptr<xSheetpiling_Props> copy = new xSheetpiling_Props;
    read_stored(*copy, stored(*wall));
    expect_equal(*copy, *wall);
  }
}

TEST(WallRecord, HasItsDefaultsWhenNewAndAfterReset) {
  RandomContents random(4);
  const osg::ref_ptr<xSheetpiling_Props> fresh = new xSheetpiling_Props;
  EXPECT_EQ(fresh->getLength(), 0.0);
  EXPECT_EQ(fresh->getDepth(), 0.0);
  EXPECT_EQ(fresh->getExtension(), 1.0);
  const osg::ref_ptr<xSheetpiling_Props> wall = new xSheetpiling_Props;
  fill(*wall, random);
  wall->checkSettings.setHeadDispLim(-1.0);
  wall->reset();
  expect_equal(*wall, *fresh);
  EXPECT_EQ(wall->checkSettings.getHeadDispLim(), fresh->checkSettings.getHeadDispLim());
}

TEST(PileWall, HasItsDefaultsWhenNewAndAfterReset) {
  RandomContents random(5);
  const auto fresh = new_wall();
  EXPECT_FALSE(fresh->section.valid());
  EXPECT_EQ(fresh->getNumPiles(), 0);
  EXPECT_EQ(fresh->getIdObj(), -1);
  EXPECT_EQ(fresh->getSpacing(), 0.0);
  EXPECT_EQ(fresh->getHtrave(), 0.0);
  EXPECT_EQ(fresh->getBtrave(), 0.0);
  EXPECT_EQ(fresh->getExtension(), 1.0);

  const auto wall = new_wall();
  fill(*wall, random);
  const auto section = circle(400.0);
  wall->section = section;
  wall->reset();
  expect_equal(*wall, *fresh);
  EXPECT_FALSE(wall->section.valid());
  EXPECT_EQ(section->referenceCount(), 1);
  EXPECT_EQ(wall->referenceCount(), 1);
}

TEST(PileWall, IsStoredWithoutASectionAsKindZero) {
  const auto wall = new_wall();
  wall->setLength(12e3);
  wall->set_NumPiles(3);
  wall->setSpacing(1500.0);
  wall->setIdObj(42);
  wall->setBtrave(1000.0);
  wall->setHtrave(800.0);
  const auto kind = bytes_of([](outstream& out) { out << 0; });
  EXPECT_EQ(wall->getIOClass(), "xPile_Sheetpiling");
  EXPECT_EQ(stored(*wall), frame_bytes(2, pile_fields(kind) + cap_beam));
  wall->section = new OtherSection;
  EXPECT_EQ(stored(*wall), frame_bytes(2, pile_fields(kind) + cap_beam));
}

TEST(PileWall, IsStoredWithItsSectionByKindAndDimensions) {
  const auto wall = new_wall();
  wall->setLength(12e3);
  wall->set_NumPiles(3);
  wall->setSpacing(1500.0);
  wall->setIdObj(42);
  wall->setBtrave(1000.0);
  wall->setHtrave(800.0);
  wall->section = circle(400.0);
  const auto round = bytes_of([](outstream& out) { out << 1 << 400.0; });
  EXPECT_EQ(stored(*wall), frame_bytes(2, pile_fields(round) + cap_beam));
  wall->section = rectangle(600.0, 2500.0);
  const auto panel = bytes_of([](outstream& out) { out << 2 << 600.0 << 2500.0; });
  EXPECT_EQ(stored(*wall), frame_bytes(2, pile_fields(panel) + cap_beam));
}

// Area of the circle: pi 400² mm². Second moment of the rectangle: 2500 * 600³ / 12 = 4.5e10 mm⁴.
TEST(PileWall, ComputesTheSectionThatItReads) {
  const auto wall = new_wall();
  read_stored(*wall, frame_bytes(2, pile_fields(bytes_of([](outstream& out) { out << 1 << 400.0; }))
                                        + cap_beam));
  ASSERT_NE(dynamic_cast<xCircSecProp*>(wall->section.get()), nullptr);
  EXPECT_DOUBLE_EQ(wall->section->getArea(), std::numbers::pi * 160e3);
  EXPECT_EQ(wall->getNumPiles(), 3);
  EXPECT_EQ(wall->getBtrave(), 1000.0);
  EXPECT_EQ(wall->getHtrave(), 800.0);

  read_stored(*wall, frame_bytes(2, pile_fields(bytes_of([](outstream& out) {
                                      out << 2 << 600.0 << 2500.0;
                                    })) + cap_beam));
  ASSERT_NE(dynamic_cast<xRectSecProp*>(wall->section.get()), nullptr);
  EXPECT_DOUBLE_EQ(wall->section->getBendingJ(), 4.5e10);
}

TEST(PileWall, SurvivesMemoryWithRandomContents) {
  RandomContents random(6);
  for (int i = 0; i < 60; ++i) {
    const auto wall = new_wall();
    fill(*wall, random);
    if (i % 3 == 1) wall->section = circle(random.number());
    if (i % 3 == 2) wall->section = rectangle(random.number(), random.number());
    const auto copy = new_wall();
    read_stored(*copy, stored(*wall));
    expect_equal(*copy, *wall);
    ASSERT_EQ(copy->section.valid(), wall->section.valid());
    // The stored bytes of both tell the kind and the dimensions of their sections.
    EXPECT_EQ(stored(*copy), stored(*wall));
  }
}

TEST(PileWall, OfVersion1LeavesTheCapBeamAsItIs) {
  const auto wall = new_wall();
  wall->setBtrave(11.0);
  wall->setHtrave(12.0);
  read_stored(*wall,
              frame_bytes(1, pile_fields(bytes_of([](outstream& out) { out << 1 << 400.0; }))));
  EXPECT_EQ(wall->getBtrave(), 11.0);
  EXPECT_EQ(wall->getHtrave(), 12.0);
  EXPECT_EQ(wall->getIdObj(), 42);
  EXPECT_EQ(wall->getSpacing(), 1500.0);
  EXPECT_EQ(wall->getLength(), 12e3);
}

TEST(PileWall, LosesItsSectionToAStoredKindThatIsUnknown) {
  for (const int kind : {0, 3, -1, std::numeric_limits<int>::min()}) {
    const auto wall = new_wall();
    wall->section = circle(400.0);
    read_stored(*wall, frame_bytes(2, pile_fields(bytes_of([kind](outstream& out) { out << kind; }))
                                          + cap_beam));
    EXPECT_FALSE(wall->section.valid()) << kind;
    EXPECT_EQ(wall->getIdObj(), 42);
  }
}

TEST(PileWall, CutShortAnywhereEndsInAnException) {
  const auto wall = new_wall();
  wall->section = rectangle(600.0, 2500.0);
  const std::string whole = stored(*wall);
  for (std::size_t size = 0; size < whole.size(); ++size) {
    const auto copy = new_wall();
    EXPECT_THROW(read_stored(*copy, whole.substr(0, size)), std::runtime_error) << size;
  }
}

TEST(PileWall, IsMadeByItsOwnNameAlone) {
  const osg::ref_ptr<xPile_Sheetpiling> made = xPile_Sheetpiling::classFactory("xPile_Sheetpiling");
  ASSERT_TRUE(made.valid());
  expect_equal(*made, *new_wall());
  for (const char* name :
       {"NullIoClass", "", "xpile_sheetpiling", "xPile_Sheetpiling ", "xSheetpiling_Props"})
    EXPECT_EQ(xPile_Sheetpiling::classFactory(name), nullptr) << name;
}

TEST(PileWall, SharesItsSectionWithAClone) {
  RandomContents random(7);
  const auto wall = new_wall();
  fill(*wall, random);
  wall->section = circle(400.0);
  const osg::ref_ptr<xPile_Sheetpiling> copy = wall->clone();
  expect_equal(*copy, *wall);
  EXPECT_NE(copy.get(), wall.get());
  EXPECT_EQ(copy->section.get(), wall->section.get());
  EXPECT_EQ(wall->section->referenceCount(), 2);
  EXPECT_EQ(copy->referenceCount(), 1);
  copy->setLength(1.0);
  EXPECT_NE(wall->getLength(), 1.0);
}

TEST(DisplayedWall, IsAbsentWhenNewAndAfterReset) {
  const osg::ref_ptr<DispData> shown = new DispData;
  EXPECT_FALSE(shown->sheetpiling.valid());
  shown->sheetpiling = new xPile_Sheetpiling;
  shown->reset();
  EXPECT_FALSE(shown->sheetpiling.valid());
}

TEST(DisplayedWall, IsStoredAsNameAndObject) {
  const osg::ref_ptr<DispData> shown = new DispData;
  EXPECT_EQ(shown->getIOClass(), "DispData");
  EXPECT_EQ(stored(*shown), frame_bytes(1, bytes_of([](outstream& out) { out << "NullIoClass"; })));
  shown->sheetpiling = new xPile_Sheetpiling;
  EXPECT_EQ(stored(*shown), frame_bytes(1, bytes_of([](outstream& out) {
                                             out << "xPile_Sheetpiling";
                                           }) + stored(*shown->sheetpiling)));
}

TEST(DisplayedWall, SurvivesMemoryWithRandomContents) {
  RandomContents random(8);
  for (int i = 0; i < 20; ++i) {
    const osg::ref_ptr<DispData> shown = new DispData;
    shown->sheetpiling = new xPile_Sheetpiling;
    fill(*shown->sheetpiling, random);
    const osg::ref_ptr<DispData> copy = new DispData;
    read_stored(*copy, stored(*shown));
    ASSERT_TRUE(copy->sheetpiling.valid());
    expect_equal(*copy->sheetpiling, *shown->sheetpiling);
  }
}

TEST(DisplayedWall, LosesItsWallToAStoredNameThatIsUnknown) {
  for (const char* name : {"NullIoClass", "xOtherWall"}) {
    const osg::ref_ptr<DispData> shown = new DispData;
    shown->sheetpiling = new xPile_Sheetpiling;
    read_stored(*shown, frame_bytes(1, bytes_of([name](outstream& out) { out << name; })));
    EXPECT_FALSE(shown->sheetpiling.valid()) << name;
  }
}

// In metres: a pile of radius 400 mm, 12000 mm long, every 1500 mm.
TEST(DisplayedWall, TellsTheSizesOfRoundPilesInTheUnitOfTheCaller) {
  const osg::ref_ptr<DispData> shown = new DispData;
  shown->sheetpiling = new xPile_Sheetpiling;
  shown->sheetpiling->section = circle(400.0);
  shown->sheetpiling->setLength(12e3);
  shown->sheetpiling->setSpacing(1500.0);
  double diameter = -1.0;
  double length = -1.0;
  double spacing = -1.0;
  shown->getInfoPali(1e-3, &diameter, &length, &spacing);
  EXPECT_DOUBLE_EQ(diameter, 0.8);
  EXPECT_DOUBLE_EQ(length, 12.0);
  EXPECT_DOUBLE_EQ(spacing, 1.5);
}

TEST(DisplayedWall, TellsTheSecondDimensionOfARectangle) {
  const osg::ref_ptr<DispData> shown = new DispData;
  shown->sheetpiling = new xPile_Sheetpiling;
  shown->sheetpiling->section = rectangle(600.0, 2500.0);
  double diameter = -1.0;
  shown->getInfoPali(1e-3, &diameter, nullptr, nullptr);
  EXPECT_DOUBLE_EQ(diameter, 2.5);
}

TEST(DisplayedWall, TellsADiameterOfZeroForAnyOtherSection) {
  const osg::ref_ptr<DispData> shown = new DispData;
  shown->sheetpiling = new xPile_Sheetpiling;
  double diameter = -1.0;
  shown->getInfoPali(1.0, &diameter, nullptr, nullptr);
  EXPECT_EQ(diameter, 0.0);
  shown->sheetpiling->section = new OtherSection;
  diameter = -1.0;
  shown->getInfoPali(1.0, &diameter, nullptr, nullptr);
  EXPECT_EQ(diameter, 0.0);
}

TEST(DisplayedWall, SkipsTheSizesThatNobodyAsksFor) {
  const osg::ref_ptr<DispData> shown = new DispData;
  shown->sheetpiling = new xPile_Sheetpiling;
  shown->sheetpiling->setLength(12e3);
  shown->sheetpiling->setSpacing(1500.0);
  double length = -1.0;
  shown->getInfoPali(2.0, nullptr, &length, nullptr);
  EXPECT_EQ(length, 24e3);
  double spacing = -1.0;
  shown->getInfoPali(2.0, nullptr, nullptr, &spacing);
  EXPECT_EQ(spacing, 3e3);
  shown->getInfoPali(2.0, nullptr, nullptr, nullptr);
}

TEST(DisplayedWall, LeavesTheOutputsAloneWithoutARecord) {
  const osg::ref_ptr<DispData> shown = new DispData;
  double diameter = -1.0;
  double length = -2.0;
  double spacing = -3.0;
  shown->getInfoPali(1.0, &diameter, &length, &spacing);
  EXPECT_EQ(diameter, -1.0);
  EXPECT_EQ(length, -2.0);
  EXPECT_EQ(spacing, -3.0);
  EXPECT_FALSE(shown->isParete());
}

TEST(DisplayedWall, IsADiaphragmWhereRectanglesTouch) {
  const osg::ref_ptr<DispData> shown = new DispData;
  shown->sheetpiling = new xPile_Sheetpiling;
  shown->sheetpiling->setSpacing(1500.0);
  shown->sheetpiling->section = rectangle(1500.0, 600.0);
  EXPECT_TRUE(shown->isParete());
  shown->sheetpiling->section = rectangle(1600.0, 600.0);
  EXPECT_TRUE(shown->isParete());
  shown->sheetpiling->section = rectangle(1499.0, 3000.0);
  EXPECT_FALSE(shown->isParete());
}

TEST(DisplayedWall, IsNoDiaphragmOfCirclesOrOfNothing) {
  const osg::ref_ptr<DispData> shown = new DispData;
  shown->sheetpiling = new xPile_Sheetpiling;
  shown->sheetpiling->setSpacing(500.0);
  EXPECT_FALSE(shown->isParete());
  shown->sheetpiling->section = circle(400.0);
  EXPECT_FALSE(shown->isParete());
}

}  // namespace
