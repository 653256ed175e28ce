// SPDX-License-Identifier: Apache-2.0
#include "ostrel/wall_load.h"

#include "loads/load_testing.h"

#include <gmock/gmock.h>
#include <osg/ref_ptr>

#include <memory>
#include <type_traits>
#include <typeinfo>

using namespace ostrel::testing;
using ::testing::Each;

namespace {

static_assert(std::is_abstract_v<xShpileLoad>);
static_assert(
    std::is_base_of_v<xBaseLoad, xShpileLoad> && !std::is_base_of_v<xSoilLoad, xShpileLoad>);
static_assert(
    std::is_base_of_v<xConcenterdLoad,
                      xDistribuitedLoad> && std::is_base_of_v<xTorqueLoad, xDistribuitedTorque>);

template <class Load>
class WallLoads : public ::testing::Test {};

struct LoadNames {
  template <class Load>
  static std::string GetName(int) {
    return Load().getIOClass();
  }
};

using Concrete =
    ::testing::Types<xConcenterdLoad, xDistribuitedLoad, xTorqueLoad, xDistribuitedTorque>;
TYPED_TEST_SUITE(WallLoads, Concrete, LoadNames);

TYPED_TEST(WallLoads, AreEmptyWhenNew) {
  const TypeParam load;
  EXPECT_EQ(load.id, -1);
  EXPECT_EQ(load.name, "");
  EXPECT_THAT(numbers(load), Each(0.0));
  EXPECT_EQ(load.referenceCount(), 0);
}

// The required oddity of this family: the other one loses its identity.
TYPED_TEST(WallLoads, LoseTheirFieldsAtResetButKeepTheirIdentity) {
  auto load = sample_load<TypeParam>();
  load.reset();
  EXPECT_EQ(load.id, 7);
  EXPECT_EQ(load.name, "quay");
  EXPECT_THAT(numbers(load), Each(0.0));
}

TYPED_TEST(WallLoads, KeepTheirReferencesAtResetAndAssignment) {
  const osg::ref_ptr<TypeParam> load = new TypeParam;
  const osg::ref_ptr<TypeParam> second(load.get());
  load->reset();
  *load = sample_load<TypeParam>();
  EXPECT_EQ(load->referenceCount(), 2);
}

TYPED_TEST(WallLoads, CloneToTheirExactClassWithACountOfTheirOwn) {
  const osg::ref_ptr<TypeParam> load = new TypeParam(sample_load<TypeParam>());
  const xBaseLoad& base = *load;
  const std::unique_ptr<xBaseLoad> copy(base.clone());
  const xBaseLoad& copied = *copy;
  ASSERT_EQ(typeid(copied), typeid(TypeParam));
  EXPECT_EQ(copy->referenceCount(), 0);
  EXPECT_EQ(load->referenceCount(), 1);
  EXPECT_EQ(copy->id, 7);
  EXPECT_EQ(copy->name, "quay");
  EXPECT_EQ(numbers(static_cast<const TypeParam&>(*copy)), numbers(*load));
}

TYPED_TEST(WallLoads, AreWallLoadsToThoseWhoClone) {
  const TypeParam load;
  static_assert(std::is_same_v<decltype(load.clone()), xShpileLoad*>);
  const osg::ref_ptr<xShpileLoad> copy = load.clone();
  EXPECT_EQ(copy->referenceCount(), 1);
}

TYPED_TEST(WallLoads, TakeOnlyTheIdentityFromAnotherObject) {
  auto load = sample_load<TypeParam>();
  const auto before = numbers(load);
  xObjectID other;
  other.setObjectID(12, "crane");
  load.copy(other);
  EXPECT_EQ(load.id, 12);
  EXPECT_EQ(load.name, "crane");
  EXPECT_EQ(numbers(load), before);
}

TYPED_TEST(WallLoads, ComeBackFromAStreamFieldByField) {
  RandomValues random(1860);
  for (int i = 0; i < 200; ++i) {
    TypeParam load;
    randomize(load, random);
    const auto copy = through_memory(load);
    EXPECT_EQ(copy.id, load.id);
    EXPECT_EQ(copy.name, load.name);
    EXPECT_EQ(numbers(copy), numbers(load));
  }
}

TYPED_TEST(WallLoads, NestTheFramesOfTheirBases) {
  const auto load = sample_load<TypeParam>();
  std::string fields = family_bytes(7, "quay") + doubles_bytes(numbers(load));
  const bool has_parent_with_fields =
      std::is_same_v<xDistribuitedLoad,
                     TypeParam> || std::is_same_v<xDistribuitedTorque, TypeParam>;
  if (has_parent_with_fields) fields = frame_bytes(1, fields);
  EXPECT_EQ(stored(load), frame_bytes(1, fields));
}

TYPED_TEST(WallLoads, RefuseAStreamCutAnywhere) {
  const std::string whole = stored(sample_load<TypeParam>());
  for (std::size_t size = 0; size < whole.size(); ++size) {
    TypeParam load;
    EXPECT_THROW(read_stored(load, whole.substr(0, size)), std::runtime_error) << size;
  }
}

TEST(WallLoad, HasTheNameOfItsClass) {
  EXPECT_EQ(xConcenterdLoad().getIOClass(), "xConcenterdLoad");
  EXPECT_EQ(xDistribuitedLoad().getIOClass(), "xDistribuitedLoad");
  EXPECT_EQ(xTorqueLoad().getIOClass(), "xTorqueLoad");
  EXPECT_EQ(xDistribuitedTorque().getIOClass(), "xDistribuitedTorque");
  EXPECT_EQ(xTorqueLoad().xShpileLoad::getIOClass(), "xShpileLoad");
}

TEST(WallLoad, HasTheNullNameWhereThereIsNone) {
  EXPECT_EQ(ostrel::io_class_of(static_cast<const xShpileLoad*>(nullptr)), "NullIoClass");
  EXPECT_EQ(ostrel::io_class_of(static_cast<const xConcenterdLoad*>(nullptr)), "NullIoClass");
  EXPECT_EQ(ostrel::io_class_of(static_cast<const xDistribuitedLoad*>(nullptr)), "NullIoClass");
  EXPECT_EQ(ostrel::io_class_of(static_cast<const xTorqueLoad*>(nullptr)), "NullIoClass");
  EXPECT_EQ(ostrel::io_class_of(static_cast<const xDistribuitedTorque*>(nullptr)), "NullIoClass");
  const osg::ref_ptr<xShpileLoad> load = new xTorqueLoad;
  EXPECT_EQ(ostrel::io_class_of(load.get()), "xTorqueLoad");
}

TEST(WallLoad, HasItsForceAlongTheWallFirst) {
  xConcenterdLoad load;
  load.force = {10.0, 20.0};
  load.setPosition(30.0);
  // Identity frames, then along, across, depth, and the end marker of 4 bytes.
  const std::string bytes = stored(load);
  EXPECT_EQ(bytes.substr(bytes.size() - 28, 24), doubles_bytes({10.0, 20.0, 30.0}));
}

TEST(WallLoad, KeepsItsFamilysIdentityThroughResetOfABasePointer) {
  const osg::ref_ptr<xBaseLoad> torque = new xTorqueLoad(sample_load<xTorqueLoad>());
  const osg::ref_ptr<xBaseLoad> surcharge = new xUniformLoad(sample_load<xUniformLoad>());
  torque->reset();
  surcharge->reset();
  EXPECT_EQ(torque->id, 7);
  EXPECT_EQ(surcharge->id, -1);
}

}  // namespace
