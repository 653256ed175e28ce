// SPDX-License-Identifier: Apache-2.0
#include "fem/beam_supports.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <map>
#include <sstream>
#include <string>
#include <vector>

namespace {

using ostrel::fem::add_anchors;
using ostrel::fem::add_nodal_springs;
using ostrel::fem::apply_supports;
using ostrel::fem::constrain_rows;
using ostrel::fem::DenseEquations;
using ostrel::fem::dof_within;
using ostrel::fem::prescribe;
using ostrel::fem::prescribe_all;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr int lowest = std::numeric_limits<int>::min();
constexpr int highest = std::numeric_limits<int>::max();

// Equations that only note what is done to them.
class Notes {
public:
  explicit Notes(std::size_t size) : size_(size) {}

  std::size_t size() const { return size_; }
  void add(std::size_t i, std::size_t j, double value) {
    std::ostringstream text;
    text << "(" << i << "," << j << ") + " << value;
    taken.push_back(text.str());
  }
  void make_unit_row(std::size_t i) { taken.push_back("unit " + std::to_string(i)); }

  std::vector<std::string> taken;

private:
  std::size_t size_;
};

info_Fem_anchor anchor_at(int node, double kSS, double kSC, double kCC) {
  info_Fem_anchor anchor;
  anchor.node = node;
  anchor.kSS = kSS;
  anchor.kSC = kSC;
  anchor.kCC = kCC;
  return anchor;
}

TEST(DofWithin, NumbersThreeDofsANode) {
  EXPECT_EQ(dof_within(9, 0, 0), 0U);
  EXPECT_EQ(dof_within(9, 2, 2), 8U);
  EXPECT_EQ(dof_within(9, 1, 1), 4U);
}

TEST(DofWithin, IsTheSizeForWhatTheEquationsDoNotReach) {
  EXPECT_EQ(dof_within(9, 3, 0), 9U);
  EXPECT_EQ(dof_within(9, -1, 0), 9U);
  EXPECT_EQ(dof_within(9, 0, 3), 9U);
  EXPECT_EQ(dof_within(9, 0, -1), 9U);
  EXPECT_EQ(dof_within(9, highest, 2), 9U);
  EXPECT_EQ(dof_within(9, lowest, 0), 9U);
  EXPECT_EQ(dof_within(8, 2, 2), 8U);
  EXPECT_EQ(dof_within(0, 0, 0), 0U);
}

TEST(DenseEquations, AddToAnEntryAndLeaveTheColumnOfAUnitRow) {
  arma::Mat<double> K(3, 3, arma::fill::value(2.0));
  DenseEquations equations(K);
  equations.add(0, 1, 5.0);
  equations.make_unit_row(2);
  const arma::Mat<double> expected{{2.0, 7.0, 2.0}, {2.0, 2.0, 2.0}, {0.0, 0.0, 1.0}};
  EXPECT_TRUE(arma::approx_equal(K, expected, "absdiff", 0.0));
}

TEST(DenseEquations, ReachNoFurtherThanTheShorterSide) {
  arma::Mat<double> wide(3, 6, arma::fill::zeros);
  EXPECT_EQ(DenseEquations(wide).size(), 3U);
  arma::Mat<double> high(6, 3, arma::fill::zeros);
  EXPECT_EQ(DenseEquations(high).size(), 3U);
}

TEST(AddAnchors, AddsFourTermsOfAnAnchorWithANode) {
  Notes notes(9);
  EXPECT_EQ(add_anchors({anchor_at(1, 2.0, 3.0, 4.0)}, notes), ostrel::ok);
  EXPECT_THAT(notes.taken, ElementsAre("(3,3) + 2", "(3,4) + 3", "(4,3) + 3", "(4,4) + 4"));
}

TEST(AddAnchors, LeavesOutAnAnchorWithoutANode) {
  Notes notes(9);
  EXPECT_EQ(add_anchors({anchor_at(-1, 2.0, 3.0, 4.0)}, notes), ostrel::ok);
  EXPECT_THAT(notes.taken, IsEmpty());
}

class SupportOutside : public ::testing::TestWithParam<int> {};

TEST_P(SupportOutside, IsRefusedAsANodeNotFound) {
  const int node = GetParam();
  Notes notes(9);
  EXPECT_EQ(add_anchors({anchor_at(node, 2.0, 3.0, 4.0)}, notes), errFemNodeNotFound);
  EXPECT_EQ(add_nodal_springs(0, {{node, 1.0}}, notes), errFemNodeNotFound);
  EXPECT_EQ(constrain_rows(2, {{node, 1.0}}, notes), errFemNodeNotFound);
  EXPECT_THAT(notes.taken, IsEmpty());
}

// Three nodes. An anchor takes -1 for no node, so the list begins below.
INSTANTIATE_TEST_SUITE_P(Nodes, SupportOutside, ::testing::Values(lowest, -2, 3, highest));

TEST(AddNodalSprings, AddsToTheDiagonalOfOneDof) {
  for (const int k : {0, 1, 2}) {
    arma::Mat<double> K(9, 9, arma::fill::ones);
    DenseEquations equations(K);
    EXPECT_EQ(add_nodal_springs(k, {{0, 10.0}, {2, 30.0}}, equations), ostrel::ok);
    arma::Mat<double> expected(9, 9, arma::fill::ones);
    expected(static_cast<arma::uword>(k), static_cast<arma::uword>(k)) = 11.0;
    expected(static_cast<arma::uword>(6 + k), static_cast<arma::uword>(6 + k)) = 31.0;
    EXPECT_TRUE(arma::approx_equal(K, expected, "absdiff", 0.0)) << k;
  }
}

TEST(AddNodalSprings, RefusesADofThatANodeDoesNotHave) {
  Notes notes(9);
  EXPECT_EQ(add_nodal_springs(3, {{0, 1.0}}, notes), errFemNodeNotFound);
  EXPECT_EQ(add_nodal_springs(-1, {{0, 1.0}}, notes), errFemNodeNotFound);
  EXPECT_THAT(notes.taken, IsEmpty());
}

TEST(ConstrainRows, TurnsRowsOfOneDofIntoThoseOfTheIdentity) {
  Notes notes(9);
  EXPECT_EQ(constrain_rows(1, {{0, 5.0}, {2, 6.0}}, notes), ostrel::ok);
  EXPECT_THAT(notes.taken, ElementsAre("unit 1", "unit 7"));
}

TEST(Prescribe, PutsValuesInPlaceOfLoads) {
  std::vector<double> rhs(9, 1.0);
  prescribe(2, {{0, 5.0}, {2, 6.0}, {3, 7.0}, {-1, 8.0}, {highest, 9.0}}, rhs);
  EXPECT_THAT(rhs, ElementsAre(1, 1, 5, 1, 1, 1, 1, 1, 6));
}

TEST(PrescribeAll, TakesEachDofFromItsOwnList) {
  xFemData data;
  data.constrDof0[0] = 10.0;
  data.constrDof1[1] = 11.0;
  data.constrDof2[0] = 12.0;
  std::vector<double> rhs(6, 1.0);
  prescribe_all(data, rhs);
  EXPECT_THAT(rhs, ElementsAre(10, 1, 12, 1, 11, 1));
}

xFemData one_of_each() {
  xFemData data;
  data.springDof0[0] = 10.0;
  data.constrDof0[0] = 0.5;
  data.springDof1[0] = 11.0;
  data.constrDof1[0] = 0.5;
  data.springDof2[0] = 12.0;
  data.constrDof2[0] = 0.5;
  return data;
}

TEST(ApplySupports, FollowsTheOrderThatDecidesOnASharedDof) {
  Notes notes(3);
  const auto code =
      apply_supports({anchor_at(0, 1.0, 2.0, 3.0)}, one_of_each(), notes, [](Notes& equations) {
        equations.taken.emplace_back("soil");
        return ostrel::ok;
      });
  EXPECT_EQ(code, ostrel::ok);
  EXPECT_THAT(notes.taken,
              ElementsAre("(0,0) + 1", "(0,1) + 2", "(1,0) + 2", "(1,1) + 3",  // anchors
                          "(0,0) + 10", "unit 0",                              // along
                          "(1,1) + 11", "soil", "unit 1",                      // across
                          "(2,2) + 12", "unit 2"));                            // rotation
}

TEST(ApplySupports, StopsAtTheFirstThatHasNoNode) {
  xFemData data = one_of_each();
  data.springDof1[1] = 11.0;
  Notes notes(3);
  const auto code = apply_supports({}, data, notes, [](Notes& equations) {
    equations.taken.emplace_back("soil");
    return ostrel::ok;
  });
  EXPECT_EQ(code, errFemNodeNotFound);
  EXPECT_THAT(notes.taken, ElementsAre("(0,0) + 10", "unit 0", "(1,1) + 11"));
}

TEST(ApplySupports, HandsOnTheCodeOfTheSoil) {
  Notes notes(3);
  const auto code =
      apply_supports({}, one_of_each(), notes, [](Notes&) { return errFemNodeNotFound; });
  EXPECT_EQ(code, errFemNodeNotFound);
  EXPECT_THAT(notes.taken, ElementsAre("(0,0) + 10", "unit 0", "(1,1) + 11"));
}

// The row of a constraint is that of the identity whatever was added to it before; what an anchor
// added to the rows beside it stays.
TEST(ApplySupports, LetsAConstraintWinOverSpringsAndAnchorsOfItsRow) {
  arma::Mat<double> K(3, 3, arma::fill::zeros);
  DenseEquations equations(K);
  xFemData data;
  data.springDof1[0] = 11.0;
  data.constrDof1[0] = 0.5;
  EXPECT_EQ(apply_supports({anchor_at(0, 1.0, 2.0, 3.0)}, data, equations,
                           [](DenseEquations& dense) {
                             return add_nodal_springs(1, {{0, 100.0}}, dense);
                           }),
            ostrel::ok);
  const arma::Mat<double> expected{{1.0, 2.0, 0.0}, {0.0, 1.0, 0.0}, {0.0, 0.0, 0.0}};
  EXPECT_TRUE(arma::approx_equal(K, expected, "absdiff", 0.0));
}

}  // namespace
