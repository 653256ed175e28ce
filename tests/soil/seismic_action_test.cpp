// SPDX-License-Identifier: Apache-2.0
#include "ostrel/seismic_action.h"

#include "ostrel/design_soil.h"
#include "support/random_values.h"
#include "support/stream_round_trip.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace ostrel::testing;

namespace {

template <class Action>
class SeismicActions : public ::testing::Test {};

struct ActionNames {
  template <class Action>
  static std::string GetName(int) {
    return Action().getIOClass();
  }
};

// Bytes of the values one after the other.
template <class... Values>
std::string fields(const Values&... values) {
  return bytes_of([&](outstream& out) { (out << ... << values); });
}

// The fields of each class in their stored order.
std::string field_bytes(const xSeismicAction& action) {
  return fields(action.coefficients[0], action.coefficients[1], action.getSoilType(),
                action.getAdimensAcc(), action.getSt());
}
std::string field_bytes(const xSeismicActionNTC2008& a) {
  return frame_bytes(1, field_bytes(static_cast<const xSeismicAction&>(a)))
       + fields(a.getLocation(), a.getTopographicType(), a.getBuildingType(), a.getVn(),
                a.getUseClass(), a.getVr(), a.getLimitState(), a.getPvr(), a.getTr(), a.getF0(),
                a.getSs(), a.getAlpha(), a.getBeta());
}
std::string field_bytes(const xSeismicActionEC8& a) {
  return frame_bytes(1, field_bytes(static_cast<const xSeismicAction&>(a)))
       + fields(a.getSpectrumType(), a.getAgR(), a.getGammaI(), a.getAg(), a.setTypeWall(),
                a.getR(), a.getLambda());
}

void randomize(xSeismicAction& action, RandomValues& random) {
  action.coefficients = {random.number(), random.number()};
  action.setSoilType(random.text());
  action.setAdimensAcc(random.number());
  action.setSt(random.number());
}
void randomize(xSeismicActionNTC2008& action, RandomValues& random) {
  randomize(static_cast<xSeismicAction&>(action), random);
  action.setLocation(random.text());
  action.setTopographicType(random.text());
  action.setBuildingType(random.text());
  action.setVn(random.number());
  action.setUseClass(random.text());
  action.setVr(random.number());
  action.setLimitState(random.text());
  action.setPvr(random.number());
  action.setTr(random.number());
  action.setF0(random.number());
  action.setSs(random.number());
  action.setAlpha(random.number());
  action.setBeta(random.number());
}
void randomize(xSeismicActionEC8& action, RandomValues& random) {
  randomize(static_cast<xSeismicAction&>(action), random);
  action.setSpectrumType(random.text());
  action.setAgR(random.number());
  action.setGammaI(random.number());
  action.setAg(random.number());
  action.setTypeWall(random.text());
  action.setR(random.number());
  action.setLambda(random.number());
}

void expect_equal(const xSeismicAction& a, const xSeismicAction& b) {
  EXPECT_EQ(a.coefficients[0], b.coefficients[0]);
  EXPECT_EQ(a.coefficients[1], b.coefficients[1]);
  EXPECT_EQ(a.getSoilType(), b.getSoilType());
  EXPECT_EQ(a.getAdimensAcc(), b.getAdimensAcc());
  EXPECT_EQ(a.getSt(), b.getSt());
}
void expect_equal(const xSeismicActionNTC2008& a, const xSeismicActionNTC2008& b) {
  expect_equal(static_cast<const xSeismicAction&>(a), static_cast<const xSeismicAction&>(b));
  EXPECT_EQ(a.getLocation(), b.getLocation());
  EXPECT_EQ(a.getTopographicType(), b.getTopographicType());
  EXPECT_EQ(a.getBuildingType(), b.getBuildingType());
  EXPECT_EQ(a.getVn(), b.getVn());
  EXPECT_EQ(a.getUseClass(), b.getUseClass());
  EXPECT_EQ(a.getVr(), b.getVr());
  EXPECT_EQ(a.getLimitState(), b.getLimitState());
  EXPECT_EQ(a.getPvr(), b.getPvr());
  EXPECT_EQ(a.getTr(), b.getTr());
  EXPECT_EQ(a.getF0(), b.getF0());
  EXPECT_EQ(a.getSs(), b.getSs());
  EXPECT_EQ(a.getAlpha(), b.getAlpha());
  EXPECT_EQ(a.getBeta(), b.getBeta());
}
void expect_equal(const xSeismicActionEC8& a, const xSeismicActionEC8& b) {
  expect_equal(static_cast<const xSeismicAction&>(a), static_cast<const xSeismicAction&>(b));
  EXPECT_EQ(a.getSpectrumType(), b.getSpectrumType());
  EXPECT_EQ(a.getAgR(), b.getAgR());
  EXPECT_EQ(a.getGammaI(), b.getGammaI());
  EXPECT_EQ(a.getAg(), b.getAg());
  EXPECT_EQ(a.setTypeWall(), b.setTypeWall());
  EXPECT_EQ(a.getR(), b.getR());
  EXPECT_EQ(a.getLambda(), b.getLambda());
}

using Actions = ::testing::Types<xSeismicAction, xSeismicActionNTC2008, xSeismicActionEC8>;
TYPED_TEST_SUITE(SeismicActions, Actions, ActionNames);

TYPED_TEST(SeismicActions, ComeBackFromAStreamFieldByField) {
  RandomValues random(1908);
  for (int i = 0; i < 200; ++i) {
    TypeParam action;
    randomize(action, random);
    expect_equal(through_memory(action), action);
  }
}

TYPED_TEST(SeismicActions, LieOnAStreamInTheOrderOfTheirFields) {
  RandomValues random(1976);
  TypeParam action;
  randomize(action, random);
  EXPECT_EQ(stored(action), frame_bytes(1, field_bytes(action)));
}

TYPED_TEST(SeismicActions, AreEmptyAfterResetWithTheirDescription) {
  RandomValues random(1980);
  TypeParam action;
  randomize(action, random);
  action.set_Description("Irpinia");
  action.reset();
  expect_equal(action, TypeParam());
  EXPECT_EQ(action.get_Description(), "");
}

TYPED_TEST(SeismicActions, DoNotStoreTheirDescription) {
  TypeParam action;
  const std::string bytes = stored(action);
  action.set_Description("Friuli");
  EXPECT_EQ(stored(action), bytes);
  read_stored(action, bytes);
  EXPECT_EQ(action.get_Description(), "Friuli");
}

TYPED_TEST(SeismicActions, RefuseAStreamCutAnywhere) {
  RandomValues random(2009);
  TypeParam action;
  randomize(action, random);
  const std::string whole = stored(action);
  for (std::size_t size = 0; size < whole.size(); ++size)
    EXPECT_THROW(read_stored(action, whole.substr(0, size)), std::runtime_error) << size;
}

TEST(SeismicAction, IsAllZeroAndEmptyWhenNew) {
  const xSeismicAction action;
  EXPECT_EQ(action.coefficients[0], 0.0);
  EXPECT_EQ(action.coefficients[1], 0.0);
  EXPECT_EQ(action.getSoilType(), "");
  EXPECT_EQ(action.getAdimensAcc(), 0.0);
  EXPECT_EQ(action.getSt(), 0.0);
  EXPECT_EQ(action.get_Description(), "");
}

TEST(SeismicAction, ByTheItalianCodeIsAllZeroAndEmptyWhenNew) {
  const xSeismicActionNTC2008 a;
  expect_equal(static_cast<const xSeismicAction&>(a), xSeismicAction());
  EXPECT_EQ(a.hostCoefficients[0], 0.0);
  EXPECT_EQ(a.hostCoefficients[1], 0.0);
  for (const auto& text : {a.getLocation(), a.getTopographicType(), a.getBuildingType(),
                           a.getUseClass(), a.getLimitState()}) {
    EXPECT_EQ(text, "");
  }
  for (const double number : {a.getVn(), a.getVr(), a.getPvr(), a.getTr(), a.getF0(), a.getSs(),
                              a.getAlpha(), a.getBeta()}) {
    EXPECT_EQ(number, 0.0);
  }
}

TEST(SeismicAction, ByTheEurocodeIsAllZeroAndEmptyWhenNew) {
  const xSeismicActionEC8 a;
  expect_equal(static_cast<const xSeismicAction&>(a), xSeismicAction());
  EXPECT_EQ(a.getSpectrumType(), "");
  EXPECT_EQ(a.setTypeWall(), "");
  for (const double number : {a.getAgR(), a.getGammaI(), a.getAg(), a.getR(), a.getLambda()})
    EXPECT_EQ(number, 0.0);
}

TEST(SeismicAction, ChangesTheSignOfTheVerticalCoefficientAlone) {
  xSeismicAction action;
  action.coefficients = {0.2, 0.1};
  action.setAdimensAcc(0.25);
  action.setSt(1.4);
  action.switchSign();
  EXPECT_EQ(action.coefficients[0], 0.2);
  EXPECT_EQ(action.coefficients[1], -0.1);
  EXPECT_EQ(action.getAdimensAcc(), 0.25);
  EXPECT_EQ(action.getSt(), 1.4);
  action.switchSign();
  EXPECT_EQ(action.coefficients[0], 0.2);
  EXPECT_EQ(action.coefficients[1], 0.1);
}

// A new action has no earthquake: psi = atan(0 / 1) = 0 leaves Coulomb's wedge.
TEST(SeismicAction, GivesCoulombsCoefficientByMononobeAndOkabeWhenNew) {
  const xSeismicAction action;
  xDesignSoil design;
  design.soil.set_InternalFriction(0.6);
  design.soil.setInterfaceFriction(0.4);
  for (const bool active : {true, false}) {
    design.compute_Coeff(formulaMononobeOkabe, 0.1, 0.2, action.coefficients, active);
    const double seismic = design.getK();
    design.compute_Coeff(formulaCoulomb, 0.1, 0.2, action.coefficients, active);
    EXPECT_NEAR(seismic, design.getK(), 1e-12 * seismic);
    EXPECT_GT(seismic, 0.0);
  }
}

TEST(SeismicAction, KeepsTheSecondPairOutOfTheStoredForm) {
  xSeismicActionNTC2008 action;
  const std::string bytes = stored(action);
  action.hostCoefficients = {3.0, 4.0};
  EXPECT_EQ(stored(action), bytes);
  read_stored(action, bytes);
  EXPECT_EQ(action.hostCoefficients[0], 3.0);
  EXPECT_EQ(action.hostCoefficients[1], 4.0);
  action.reset();
  EXPECT_EQ(action.hostCoefficients[0], 0.0);
  EXPECT_EQ(action.hostCoefficients[1], 0.0);
}

TEST(SeismicAction, KeepsTheBaseFieldsAloneInACopyByValue) {
  RandomValues random(1997);
  xSeismicActionNTC2008 full;
  randomize(full, random);
  xSeismicAction held;
  held = full;  // NOLINT(cppcoreguidelines-slicing): the rule under test
  expect_equal(held, full);
  EXPECT_EQ(held.getIOClass(), "xSeismicAction");
  EXPECT_EQ(stored(held), frame_bytes(1, field_bytes(held)));
}

TEST(SeismicAction, HasTheNameOfItsClass) {
  EXPECT_EQ(xSeismicAction().getIOClass(), "xSeismicAction");
  EXPECT_EQ(xSeismicActionNTC2008().getIOClass(), "xSeismicActionNTC2008");
  EXPECT_EQ(xSeismicActionEC8().getIOClass(), "xSeismicActionEC8");
  EXPECT_EQ(ostrel::io_class_of(static_cast<const xSeismicAction*>(nullptr)), "NullIoClass");
  EXPECT_EQ(ostrel::io_class_of(static_cast<const xSeismicActionNTC2008*>(nullptr)), "NullIoClass");
  EXPECT_EQ(ostrel::io_class_of(static_cast<const xSeismicActionEC8*>(nullptr)), "NullIoClass");
}

}  // namespace
