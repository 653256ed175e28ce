// SPDX-License-Identifier: Apache-2.0
#include "ostrel/fem_results.h"
#include "support/hostile_stream.h"
#include "support/random_bits.h"
#include "support/stream_round_trip.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <stdexcept>
#include <string>

namespace {

using ostrel::testing::bytes_of;
using ostrel::testing::expect_cuts_refused;
using ostrel::testing::frame_bytes;
using ostrel::testing::RandomBits;
using ostrel::testing::read_stored;
using ostrel::testing::refused_mutations;
using ostrel::testing::stored;
using ostrel::testing::through_memory;
using ::testing::IsEmpty;

std::string doubles(std::initializer_list<double> values) {
  return bytes_of([&values](outstream& out) {
    for (const double value : values) {
      out << value;
    }
  });
}

std::string whole(int value) {
  return bytes_of([value](outstream& out) { out << value; });
}

xPointStress point_of(double N, double T, double M) {
  xPointStress point;
  point.N = N;
  point.T = T;
  point.M = M;
  return point;
}

xBeamStress two_ends() {
  xBeamStress stress;
  stress.setStartNode(3);
  stress.setEndNode(4);
  stress.points = {point_of(1.0, 2.0, 3.0), point_of(4.0, 5.0, 6.0)};
  return stress;
}

TEST(PointStress, StartsAtZeroAndReturnsToIt) {
  xPointStress point;
  EXPECT_EQ(stored(point), stored(point_of(0.0, 0.0, 0.0)));
  point = point_of(1.0, 2.0, 3.0);
  point.reset();
  EXPECT_EQ(stored(point), stored(point_of(0.0, 0.0, 0.0)));
}

TEST(PointStress, IsStoredAsThreeDoublesInVersion1) {
  const xPointStress point = point_of(1.0, 2.0, 3.0);
  EXPECT_EQ(point.getIOClass(), "xPointStress");
  EXPECT_EQ(stored(point), frame_bytes(1, doubles({1.0, 2.0, 3.0})));
  const xPointStress copy = through_memory(point);
  EXPECT_EQ(copy.N, 1.0);
  EXPECT_EQ(copy.T, 2.0);
  EXPECT_EQ(copy.M, 3.0);
}

TEST(BeamStress, ResetsToNoPoints) {
  xBeamStress stress = two_ends();
  stress.reset();
  EXPECT_EQ(stress.getStartNode(), 0);
  EXPECT_EQ(stress.getEndNode(), 0);
  EXPECT_THAT(stress.points, IsEmpty());
}

TEST(BeamStress, IsStoredWithItsNodesAndACountOfPointsInVersion1) {
  const xBeamStress stress = two_ends();
  EXPECT_EQ(stress.getIOClass(), "xBeamStress");
  const std::string fields =
      whole(3) + whole(4) + whole(2) + stored(stress.points[0]) + stored(stress.points[1]);
  EXPECT_EQ(stored(stress), frame_bytes(1, fields));
  const xBeamStress copy = through_memory(stress);
  EXPECT_EQ(copy.getStartNode(), 3);
  EXPECT_EQ(copy.getEndNode(), 4);
  ASSERT_EQ(copy.points.size(), 2U);
  EXPECT_EQ(copy.points[1].T, 5.0);
}

TEST(ReacTerr, IsStoredAsTwoDoublesInVersion1) {
  reacTerr reaction;
  EXPECT_EQ(stored(reaction), frame_bytes(1, doubles({0.0, 0.0})));
  reaction.reaction = 1.0;
  reaction.limited = 2.0;
  EXPECT_EQ(reaction.getIOClass(), "reacTerr");
  EXPECT_EQ(stored(reaction), frame_bytes(1, doubles({1.0, 2.0})));
  EXPECT_EQ(through_memory(reaction).limited, 2.0);
}

Fsoil soil_force() {
  Fsoil force;
  force.elevation = -1.0;
  force.springForce = 2.0;
  force.limitForce = 3.0;
  force.limitMoment = 4.0;
  return force;
}

TEST(SoilForce, IsStoredAsFourDoublesInVersion2) {
  EXPECT_EQ(stored(Fsoil{}), frame_bytes(2, doubles({0.0, 0.0, 0.0, 0.0})));
  const Fsoil force = soil_force();
  EXPECT_EQ(force.getIOClass(), "Fsoil");
  EXPECT_EQ(stored(force), frame_bytes(2, doubles({-1.0, 2.0, 3.0, 4.0})));
  const Fsoil copy = through_memory(force);
  EXPECT_EQ(copy.elevation, -1.0);
  EXPECT_EQ(copy.springForce, 2.0);
  EXPECT_EQ(copy.limitForce, 3.0);
  EXPECT_EQ(copy.limitMoment, 4.0);
}

template <class T>
void expect_refused_below(int oldest, const T& object) {
  const std::string bytes = stored(object);
  const std::string fields = bytes.substr(8, bytes.size() - 12);
  for (const int version : {oldest - 1, 0, -1, std::numeric_limits<int>::min()}) {
    T copy;
    try {
      read_stored(copy, frame_bytes(version, fields));
      ADD_FAILURE() << "version " << version << " was read";
    } catch (int refused) {
      EXPECT_EQ(refused, version);
    }
    EXPECT_EQ(stored(copy), stored(T{}));
  }
  T newer;
  read_stored(newer, frame_bytes(oldest + 1, fields));
  EXPECT_EQ(stored(newer), bytes);
}

TEST(SoilForce, RefusesAnOlderVersionByThrowingItsNumber) {
  expect_refused_below(2, soil_force());
}

xCombRes random_results(std::uint64_t seed) {
  RandomBits random(seed);
  const auto node_data = [&random] {
    return xFemNodeData(random.number(), random.number(), random.number());
  };
  const auto up_to_five = [&random](const auto& add) {
    for (std::size_t i = random.below(6); i > 0; --i) {
      add();
    }
  };
  xCombRes results;
  results.resName = random.text();
  up_to_five([&] { results.displacements.push_back(node_data()); });
  up_to_five([&] { results.nodalForces[random.integer()] = node_data(); });
  up_to_five([&] {
    reacTerr& reaction = results.soilReactions[random.integer()];
    reaction.reaction = random.number();
    reaction.limited = random.number();
  });
  up_to_five([&] {
    xBeamStress& stress = results.beamStress.emplace_back();
    stress.setStartNode(random.integer());
    stress.setEndNode(random.integer());
    up_to_five([&] {
      stress.points.push_back(point_of(random.number(), random.number(), random.number()));
    });
  });
  up_to_five([&] {
    Fsoil& force = results.soilForces[random.integer()];
    force.elevation = random.number();
    force.springForce = random.number();
    force.limitForce = random.number();
    force.limitMoment = random.number();
  });
  up_to_five([&] { results.appliedForces[random.integer()] = node_data(); });
  return results;
}

TEST(CombRes, OfRandomContentsComesBackBitForBit) {
  for (std::uint64_t seed = 1; seed <= 100; ++seed) {
    const xCombRes results = random_results(seed);
    xCombRes copy = random_results(seed + 1000);
    read_stored(copy, stored(results));
    EXPECT_EQ(stored(copy), stored(results)) << seed;
    EXPECT_EQ(copy.displacements.size(), results.displacements.size());
    EXPECT_EQ(copy.soilForces.size(), results.soilForces.size());
    EXPECT_EQ(copy.resName, results.resName);
  }
}

TEST(CombRes, IsStoredByAscendingKeysInVersion2) {
  xCombRes results;
  results.resName = "name";
  results.displacements.emplace_back(1.0, 2.0, 3.0);
  results.nodalForces[5] = xFemNodeData(5.0, 0.0, 0.0);
  results.nodalForces[-2] = xFemNodeData(2.0, 0.0, 0.0);
  results.soilReactions[3].reaction = 7.0;
  results.beamStress.push_back(two_ends());
  results.soilForces[4] = soil_force();
  results.appliedForces[6] = xFemNodeData(6.0, 0.0, 0.0);
  EXPECT_EQ(results.getIOClass(), "xCombRes");
  const std::string fields =
      bytes_of([](outstream& out) { out << std::string("name"); }) + whole(1)
      + stored(results.displacements[0]) + whole(2) + whole(-2) + stored(results.nodalForces[-2])
      + whole(5) + stored(results.nodalForces[5]) + whole(1) + whole(3)
      + stored(results.soilReactions[3]) + whole(1) + stored(results.beamStress[0]) + whole(1)
      + whole(4) + stored(results.soilForces[4]) + whole(1) + whole(6)
      + stored(results.appliedForces[6]);
  EXPECT_EQ(stored(results), frame_bytes(2, fields));
}

TEST(CombRes, RefusesAnOlderVersionByThrowingItsNumber) {
  expect_refused_below(2, random_results(1));
}

TEST(CombRes, ResetsAllOfItsSeven) {
  xCombRes results = random_results(3);
  results.reset();
  EXPECT_EQ(stored(results), stored(xCombRes{}));
}

TEST(CombRes, CutShortAnywhereThrows) {
  expect_cuts_refused(random_results(2));
}

TEST(CombRes, EndsInAnExceptionOrAnObjectWhateverTheBytes) {
  EXPECT_GT(refused_mutations(random_results(5), 2000), 0);
}

TEST(CombRes, WithAnImpossibleCountThrowsBeforeItGrows) {
  for (const int count : {-1, std::numeric_limits<int>::max()}) {
    xCombRes copy;
    const std::string fields =
        bytes_of([](outstream& out) { out << std::string(); }) + whole(count);
    EXPECT_THROW(read_stored(copy, frame_bytes(2, fields)), std::runtime_error);
    EXPECT_LE(copy.displacements.size(), 1U);
  }
}

TEST(AnchorForces, AreStoredWithTheIdAndThreeDiagramsInVersion1) {
  AnchorSoll force;
  EXPECT_EQ(force.idObj, -1);
  force.idObj = std::int64_t{1} << 40U;
  force.axial.start.set(1.0, 2.0);
  force.axial.points.emplace_back(3.0, 4.0);
  force.shear.end.set(5.0, 6.0);
  force.moment.points.emplace_back(7.0, 8.0);
  EXPECT_EQ(force.getIOClass(), "AnchorSoll");
  const std::string fields = bytes_of([&force](outstream& out) { out << force.idObj; })
                           + stored(force.axial) + stored(force.shear) + stored(force.moment);
  EXPECT_EQ(stored(force), frame_bytes(1, fields));
  EXPECT_EQ(stored(through_memory(force)), stored(force));
  force.reset();
  EXPECT_EQ(stored(force), stored(AnchorSoll{}));
  EXPECT_EQ(force.idObj, -1);
}

}  // namespace
