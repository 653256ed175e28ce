// SPDX-License-Identifier: Apache-2.0
#include "ostrel/load_combination.h"

#include "ostrel/language.h"
#include "support/fresh_process.h"

#include <quillet/translation.h>
#include <tallow/class_registry.h>

#include <gmock/gmock.h>

#include <type_traits>
#include <utility>

using ostrel::testing::expect_in_fresh_process;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pair;

namespace {

using Item = SupportedSoilLoadItem;

// A class in the registry for as long as this lives.
class RegisteredClass {
public:
  RegisteredClass(std::string name, std::string parent)
      : name_(std::move(name)), parent_(std::move(parent)) {
    EXPECT_TRUE(Tallow::registerClass(name_, parent_));
  }
  ~RegisteredClass() { Tallow::unregisterClass(name_, parent_); }
  RegisteredClass(const RegisteredClass&) = delete;
  RegisteredClass& operator=(const RegisteredClass&) = delete;

private:
  std::string name_;
  std::string parent_;
};

void expect_default(const xAction& action) {
  EXPECT_EQ(action.getFactor(static_cast<actType>(0)), 1.0);
  EXPECT_EQ(action.getFactor(static_cast<actType>(1)), 1.0);
  EXPECT_FALSE(action.getIsActive());
  EXPECT_EQ(action.getCondName(), "");
}

TEST(Action, IsNotActiveAndHasFactorsOneWhenNewAndAfterReset) {
  xAction action;
  expect_default(action);
  action.set("traffic", true, 1.3, 0.9);
  action.reset();
  expect_default(action);
}

TEST(Action, TakesAllFourAtOnce) {
  xAction action;
  action.set("traffic", true, 1.3, 0.9);
  EXPECT_EQ(action.getFactor(actFirst), 1.3);
  EXPECT_EQ(action.getFactor(actSecond), 0.9);
  EXPECT_TRUE(action.getIsActive());
  EXPECT_EQ(action.getCondName(), "traffic");
  action.setIsActive(false);
  action.setCondName("snow");
  EXPECT_FALSE(action.getIsActive());
  EXPECT_EQ(action.getCondName(), "snow");
}

TEST(Action, GivesItsSecondFactorForEveryTypeButZero) {
  xAction action;
  action.set("", true, 1.3, 0.9);
  EXPECT_EQ(action.getFactor(static_cast<actType>(0)), 1.3);
  for (const int type : {1, 2, 7, -1, 2147483647})
    EXPECT_EQ(action.getFactor(static_cast<actType>(type)), 0.9) << type;
}

void expect_default(const xLoadComb& combination) {
  EXPECT_EQ(combination.seismic.coefficients[0], 0.0);
  EXPECT_EQ(combination.seismic.coefficients[1], 0.0);
  EXPECT_EQ(combination.seismic.getSoilType(), "");
  EXPECT_EQ(combination.checks.size(), 10u);
  for (int type = 0; type < 10; ++type)
    EXPECT_FALSE(combination.checkActive(static_cast<pCheckTypes>(type))) << type;
  EXPECT_THAT(combination.geoFactors, IsEmpty());
  EXPECT_THAT(combination.ulsFactors, IsEmpty());
  EXPECT_THAT(combination.actions, IsEmpty());
  EXPECT_EQ(combination.getcombIndex(), 0);
  EXPECT_EQ(combination.getCombName(), "");
  EXPECT_EQ(combination.getCombType(), static_cast<pCombinationTypes>(0));
  EXPECT_EQ(combination.getSeismFact(), 1.0);
}

xLoadComb filled_combination() {
  xLoadComb combination;
  combination.seismic.coefficients = {0.2, 0.1};
  combination.seismic.setSoilType("C");
  combination.checks[checkPiping] = true;
  combination.geoFactors.resize(6);
  combination.ulsFactors[factorAnchors] = 1.2;
  combination.actions.resize(3);
  combination.setcombIndex(4);
  combination.setCombName("A1+M1");
  combination.setCombType(combSeismic);
  combination.setSeismFact(0.5);
  return combination;
}

TEST(LoadCombination, WantsNothingWhenNewAndAfterReset) {
  expect_default(xLoadComb());
  xLoadComb combination = filled_combination();
  combination.reset();
  expect_default(combination);
}

TEST(LoadCombination, KeepsWhatItIsGiven) {
  const xLoadComb combination = filled_combination();
  EXPECT_EQ(combination.getcombIndex(), 4);
  EXPECT_EQ(combination.getCombName(), "A1+M1");
  EXPECT_EQ(combination.getCombType(), combSeismic);
  EXPECT_EQ(combination.getSeismFact(), 0.5);
  EXPECT_TRUE(combination.checkActive(checkPiping));
  EXPECT_FALSE(combination.checkActive(checkUplift));
}

TEST(LoadCombination, DoesNotWantAVerificationWithoutAnEntry) {
  xLoadComb combination;
  combination.checks = {{checkPiping, true}};
  EXPECT_TRUE(combination.checkActive(checkPiping));
  EXPECT_FALSE(combination.checkActive(checkRigidMotion));
  EXPECT_FALSE(combination.checkActive(static_cast<pCheckTypes>(10)));
  EXPECT_FALSE(combination.checkActive(static_cast<pCheckTypes>(-1)));
  EXPECT_EQ(combination.checks.size(), 1u);
}

TEST(LoadCombination, EntersEveryKnownVerificationAsNotWanted) {
  std::map<pCheckTypes, bool> checks = {{checkPiping, true}, {static_cast<pCheckTypes>(77), true}};
  xLoadComb::initChecks(checks);
  EXPECT_THAT(checks,
              ElementsAre(Pair(checkRigidMotion, false), Pair(checkVerticalLimitLoad, false),
                          Pair(checkAnchorPullout, false), Pair(checkGlobalStability, false),
                          Pair(checkAnchorStructure, false), Pair(checkWallStructure, false),
                          Pair(checkCapBeamStructure, false), Pair(checkPiping, false),
                          Pair(checkUplift, false), Pair(checkDisplacements, false)));
}

TEST(LoadCombination, HoldsTheBaseFieldsOfAnySeismicAction) {
  xSeismicActionEC8 action;
  action.coefficients = {0.3, -0.15};
  action.setAgR(2.45);
  xLoadComb combination;
  combination.seismic = action;  // NOLINT(cppcoreguidelines-slicing): the rule under test
  EXPECT_EQ(combination.seismic.coefficients[0], 0.3);
  EXPECT_EQ(combination.seismic.coefficients[1], -0.15);
  EXPECT_EQ(combination.seismic.getIOClass(), "xSeismicAction");
}

TEST(LoadCombination, LeavesTheSoilAsItIsForATypeOfFactorThatDoesNotExist) {
  xLoadComb combination;
  combination.geoFactors.resize(6);
  for (GeoCombFactor& factor : combination.geoFactors) {
    factor.first = 1.25;
    factor.second = 1.4;
    EXPECT_EQ(factor.getF(static_cast<geoFactorType>(2)), 1.0);
  }
  xSoilProps soil;
  soil.setUnitWeight(1.8e-5);
  soil.setSaturatedUnitWeight(2.0e-5);
  soil.setCohesion(0.01);
  soil.setKPerm(1e-3);
  soil.applyGeoFactors(static_cast<geoFactorType>(2), combination.geoFactors);
  EXPECT_EQ(soil.getUnitWeight(), 1.8e-5);
  EXPECT_EQ(soil.getSaturatedUnitWeight(), 2.0e-5);
  EXPECT_EQ(soil.getCohesion(), 0.01);
  EXPECT_EQ(soil.getKPerm(), 1e-3);
}

TEST(PredefinedConditions, HaveTheirNamesAndNoOthers) {
  expect_in_fresh_process([] {
    ostrel::set_language("it");
    EXPECT_EQ(getPredefined_CondName(0), "Permanente strutturali");
    EXPECT_EQ(getPredefined_CondName(1), "Permanenti geotecniche");
    EXPECT_EQ(getPredefined_CondName(2), "Spinta idrostatica");
    EXPECT_EQ(getPredefined_CondName(3), "");
    EXPECT_EQ(getPredefined_CondName(-1), "");
    EXPECT_EQ(getPredefined_CondName(3), "");
  });
}

TEST(PredefinedConditions, KeepTheLanguageOfTheFirstUse) {
  expect_in_fresh_process([] {
    ASSERT_TRUE(ostrel::set_language("en"));
    const std::string english = iTranslate("Spinta idrostatica");
    ASSERT_NE(english, "Spinta idrostatica");
    EXPECT_EQ(getPredefined_CondName(7), "");  // makes the table, too
    ASSERT_TRUE(ostrel::set_language("it"));
    EXPECT_EQ(getPredefined_CondName(2), english);
  });
}

TEST(SoilLoadItem, IsEmptyWhenNewAndAfterReset) {
  Item item;
  EXPECT_FALSE(item.isValid());
  EXPECT_EQ(item.group, static_cast<Item::TypeGroup>(0));
  item.group = Item::groupLine;
  item.classes = {"TramLoad"};
  item.label = "Tram";
  EXPECT_TRUE(item.isValid());
  item.reset();
  EXPECT_FALSE(item.isValid());
  EXPECT_EQ(item.group, static_cast<Item::TypeGroup>(0));
  EXPECT_THAT(item.classes, IsEmpty());
  EXPECT_EQ(item.label, "");
}

TEST(SoilLoadItem, TakesTheDirectChildrenOfItsRoot) {
  const RegisteredClass road("RoadLoad", "GroundLoads");
  const RegisteredClass rail("RailLoad", "GroundLoads");
  const RegisteredClass tram("TramLoad", "RailLoad");
  Item item;
  item.classes = {"left over"};
  EXPECT_TRUE(item.build(Item::groupStrip, "Strisce", "GroundLoads"));
  EXPECT_EQ(item.group, Item::groupStrip);
  EXPECT_EQ(item.label, "Strisce");
  EXPECT_THAT(item.classes, ElementsAre("RoadLoad", "RailLoad"));
}

TEST(SoilLoadItem, IsNotValidWithoutARootOrWithAnUnknownOne) {
  Item item;
  item.classes = {"left over"};
  EXPECT_FALSE(item.build(Item::groupPoint, "Punti", nullptr));
  EXPECT_THAT(item.classes, IsEmpty());
  EXPECT_EQ(item.group, Item::groupPoint);
  EXPECT_EQ(item.label, "Punti");
  item.classes = {"left over"};
  EXPECT_FALSE(item.build(Item::groupPoint, nullptr, "NobodysLoads"));
  EXPECT_THAT(item.classes, IsEmpty());
  EXPECT_EQ(item.label, "");
}

TEST(SoilLoadFamilies, AreNoneWithAnEmptyRegistry) {
  expect_in_fresh_process([] {
    EXPECT_THAT(*getSupportedCarchiTerrenoClass(), IsEmpty());
    Item unrelated;
    std::map<Item::TypeGroup, Item*> items = {{Item::groupLine, &unrelated}};
    getSupportedCarchiTerrenoClass(items);
    EXPECT_THAT(items, IsEmpty());
  });
}

TEST(SoilLoadFamilies, AreAllFourInTheirOrderWithTheirRoots) {
  expect_in_fresh_process([] {
    ostrel::set_language("it");
    const RegisteredClass point("Column", "mCaricoPuntiformeGroup");
    const RegisteredClass line("Track", "mCaricoLineareGroup");
    const RegisteredClass strip("Road", "mCaricoNastriformeGroup");
    const RegisteredClass uniform("Yard", "mCaricoUniformeGroup");
    const auto& list = *getSupportedCarchiTerrenoClass();
    ASSERT_EQ(list.size(), 4u);
    const char* labels[] = {"Uniforme", "Nastriforme", "Lineare", "Puntiforme"};
    const char* classes[] = {"Yard", "Road", "Track", "Column"};
    for (std::size_t i = 0; i < list.size(); ++i) {
      EXPECT_EQ(static_cast<std::size_t>(list[i].group), i + 1);
      EXPECT_EQ(list[i].label, labels[i]);
      EXPECT_THAT(list[i].classes, ElementsAre(classes[i]));
    }
  });
}

TEST(SoilLoadFamilies, AreOnlyThoseWithAClassInTheRegistry) {
  expect_in_fresh_process([] {
    const RegisteredClass line("Track", "mCaricoLineareGroup");
    const RegisteredClass strip("Road", "mCaricoNastriformeGroup");
    auto& list = *getSupportedCarchiTerrenoClass();
    ASSERT_EQ(list.size(), 2u);
    EXPECT_EQ(list[0].group, Item::groupStrip);
    EXPECT_EQ(list[1].group, Item::groupLine);

    Item unrelated;
    std::map<Item::TypeGroup, Item*> items = {{Item::groupPoint, &unrelated}};
    getSupportedCarchiTerrenoClass(items);
    EXPECT_THAT(items,
                ElementsAre(Pair(Item::groupStrip, &list[0]), Pair(Item::groupLine, &list[1])));
  });
}

TEST(SoilLoadFamilies, AreLookedForUntilThereIsOneAndThenKept) {
  expect_in_fresh_process([] {
    auto* const list = getSupportedCarchiTerrenoClass();
    EXPECT_THAT(*list, IsEmpty());
    {
      const RegisteredClass line("Track", "mCaricoLineareGroup");
      EXPECT_EQ(getSupportedCarchiTerrenoClass(), list);
      EXPECT_EQ(list->size(), 1u);
    }
    const RegisteredClass strip("Road", "mCaricoNastriformeGroup");
    EXPECT_EQ(getSupportedCarchiTerrenoClass(), list);
    ASSERT_EQ(list->size(), 1u);
    EXPECT_EQ(list->front().group, Item::groupLine);
    EXPECT_THAT(list->front().classes, ElementsAre("Track"));
  });
}

TEST(SoilLoadFamilies, KeepTheLanguageOfTheFirstUse) {
  expect_in_fresh_process([] {
    ASSERT_TRUE(ostrel::set_language("en"));
    const RegisteredClass uniform("Yard", "mCaricoUniformeGroup");
    const std::string english = iTranslate("Uniforme");
    ASSERT_NE(english, "Uniforme");
    EXPECT_EQ(getSupportedCarchiTerrenoClass()->at(0).label, english);
    ASSERT_TRUE(ostrel::set_language("it"));
    EXPECT_EQ(getSupportedCarchiTerrenoClass()->at(0).label, english);
  });
}

}  // namespace
