// SPDX-License-Identifier: Apache-2.0
#include "ostrel/soil_load.h"

#include "loads/load_testing.h"

#include <gmock/gmock.h>
#include <osg/ref_ptr>

#include <memory>
#include <type_traits>
#include <typeinfo>

using namespace ostrel::testing;
using ::testing::Each;

namespace {

static_assert(std::is_abstract_v<xBaseLoad> && std::is_abstract_v<xSoilLoad>);
static_assert(
    std::is_base_of_v<xObjectID, xBaseLoad> && std::is_base_of_v<osg::Referenced, xBaseLoad>);
static_assert(std::is_base_of_v<xLocalizedLoad,
                                xLinearLoad> && std::is_base_of_v<xLocalizedLoad, xPuntiformLoad>);

template <class Load>
class SoilLoads : public ::testing::Test {};

struct LoadNames {
  template <class Load>
  static std::string GetName(int) {
    return Load().getIOClass();
  }
};

using Concrete =
    ::testing::Types<xUniformLoad, xNastriformLoad, xLocalizedLoad, xLinearLoad, xPuntiformLoad>;
TYPED_TEST_SUITE(SoilLoads, Concrete, LoadNames);

TYPED_TEST(SoilLoads, AreEmptyWhenNew) {
  const TypeParam load;
  EXPECT_EQ(load.id, -1);
  EXPECT_EQ(load.name, "");
  EXPECT_THAT(numbers(load), Each(0.0));
  EXPECT_EQ(load.referenceCount(), 0);
}

TYPED_TEST(SoilLoads, LoseAllFieldsAndTheirIdentityAtReset) {
  auto load = sample_load<TypeParam>();
  load.reset();
  EXPECT_EQ(load.id, -1);
  EXPECT_EQ(load.name, "");
  EXPECT_THAT(numbers(load), Each(0.0));
}

TYPED_TEST(SoilLoads, KeepTheirReferencesAtResetAndAssignment) {
  const osg::ref_ptr<TypeParam> load = new TypeParam;
  const osg::ref_ptr<TypeParam> second(load.get());
  load->reset();
  *load = sample_load<TypeParam>();
  EXPECT_EQ(load->referenceCount(), 2);
}

TYPED_TEST(SoilLoads, CloneToTheirExactClassWithACountOfTheirOwn) {
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

TYPED_TEST(SoilLoads, AreSoilLoadsToThoseWhoClone) {
  const TypeParam load;
  static_assert(std::is_same_v<decltype(load.clone()), xSoilLoad*>);
  const osg::ref_ptr<xSoilLoad> copy = load.clone();
  EXPECT_EQ(copy->referenceCount(), 1);
}

TYPED_TEST(SoilLoads, TakeOnlyTheIdentityFromAnotherObject) {
  auto load = sample_load<TypeParam>();
  const auto before = numbers(load);
  xObjectID other;
  other.setObjectID(12, "road");
  load.copy(other);
  EXPECT_EQ(load.id, 12);
  EXPECT_EQ(load.name, "road");
  EXPECT_EQ(numbers(load), before);
}

TYPED_TEST(SoilLoads, ComeBackFromAStreamFieldByField) {
  RandomValues random(1701);
  for (int i = 0; i < 200; ++i) {
    TypeParam load;
    randomize(load, random);
    const auto copy = through_memory(load);
    EXPECT_EQ(copy.id, load.id);
    EXPECT_EQ(copy.name, load.name);
    EXPECT_EQ(numbers(copy), numbers(load));
  }
}

TYPED_TEST(SoilLoads, NestTheFramesOfTheirBases) {
  const auto load = sample_load<TypeParam>();
  std::string fields = family_bytes(7, "quay") + doubles_bytes(numbers(load));
  const bool has_parent_with_fields =
      std::is_base_of_v<xLocalizedLoad, TypeParam> && !std::is_same_v<xLocalizedLoad, TypeParam>;
  if (has_parent_with_fields) fields = frame_bytes(1, fields);
  EXPECT_EQ(stored(load), frame_bytes(1, fields));
}

TYPED_TEST(SoilLoads, RefuseAStreamCutAnywhere) {
  const std::string whole = stored(sample_load<TypeParam>());
  for (std::size_t size = 0; size < whole.size(); ++size) {
    TypeParam load;
    EXPECT_THROW(read_stored(load, whole.substr(0, size)), std::runtime_error) << size;
  }
}

TEST(SoilLoad, HasTheNameOfItsClass) {
  EXPECT_EQ(xUniformLoad().getIOClass(), "xUniformLoad");
  EXPECT_EQ(xNastriformLoad().getIOClass(), "xNastriformLoad");
  EXPECT_EQ(xLocalizedLoad().getIOClass(), "xLocalizedLoad");
  EXPECT_EQ(xLinearLoad().getIOClass(), "xLinearLoad");
  EXPECT_EQ(xPuntiformLoad().getIOClass(), "xPuntiformLoad");
  EXPECT_EQ(xUniformLoad().xSoilLoad::getIOClass(), "xSoilLoad");
  EXPECT_EQ(xUniformLoad().xBaseLoad::getIOClass(), "xBaseLoad");
}

TEST(SoilLoad, HasTheNullNameWhereThereIsNone) {
  EXPECT_EQ(ostrel::io_class_of(static_cast<const xBaseLoad*>(nullptr)), "NullIoClass");
  EXPECT_EQ(ostrel::io_class_of(static_cast<const xSoilLoad*>(nullptr)), "NullIoClass");
  EXPECT_EQ(ostrel::io_class_of(static_cast<const xUniformLoad*>(nullptr)), "NullIoClass");
  EXPECT_EQ(ostrel::io_class_of(static_cast<const xNastriformLoad*>(nullptr)), "NullIoClass");
  EXPECT_EQ(ostrel::io_class_of(static_cast<const xLocalizedLoad*>(nullptr)), "NullIoClass");
  EXPECT_EQ(ostrel::io_class_of(static_cast<const xLinearLoad*>(nullptr)), "NullIoClass");
  EXPECT_EQ(ostrel::io_class_of(static_cast<const xPuntiformLoad*>(nullptr)), "NullIoClass");
  const osg::ref_ptr<xSoilLoad> load = new xLinearLoad;
  EXPECT_EQ(ostrel::io_class_of(load.get()), "xLinearLoad");
}

TEST(SoilLoad, TellsItsClassWhereAFrameDoesNotBegin) {
  xUniformLoad load;
  try {
    read_stored(load, "no frame at all");
    FAIL() << "a frame without its begin marker was read";
  } catch (const std::runtime_error& error) {
    EXPECT_STREQ(error.what(), "bad begin marker in xUniformLoad");
  }
}

}  // namespace
