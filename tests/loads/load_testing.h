#pragma once
/// @file  The fields of the load classes by one name, and their stored bytes; for tests of loads
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/soil_load.h"
#include "ostrel/wall_load.h"
#include "support/random_values.h"
#include "support/stream_round_trip.h"

#include <string>
#include <vector>

namespace ostrel::testing {

/// @name The numbers of a load, in their stored order
///@{
inline std::vector<double> numbers(const xUniformLoad& load) {
  return {load.getValue()};
}
inline std::vector<double> numbers(const xNastriformLoad& load) {
  return {load.getStartValue(), load.getEndValue(), load.getPosition(), load.getExtension()};
}
inline std::vector<double> numbers(const xLocalizedLoad& load) {
  return {load.getPosition(), load.getValue()};
}
inline std::vector<double> numbers(const xConcenterdLoad& load) {
  return {load.force[0], load.force[1], load.getPosition()};
}
inline std::vector<double> numbers(const xTorqueLoad& load) {
  return {load.getPosition(), load.getValue()};
}
///@}

/// @name Sets the numbers of a load from the front of `values`, in their stored order
///@{
inline void set_numbers(xUniformLoad& load, const std::vector<double>& values) {
  load.setValue(values.at(0));
}
inline void set_numbers(xNastriformLoad& load, const std::vector<double>& values) {
  load.setStartValue(values.at(0));
  load.setEndValue(values.at(1));
  load.setPosition(values.at(2));
  load.setExtension(values.at(3));
}
inline void set_numbers(xLocalizedLoad& load, const std::vector<double>& values) {
  load.setPosition(values.at(0));
  load.setValue(values.at(1));
}
inline void set_numbers(xConcenterdLoad& load, const std::vector<double>& values) {
  load.force = {values.at(0), values.at(1)};
  load.setPosition(values.at(2));
}
inline void set_numbers(xTorqueLoad& load, const std::vector<double>& values) {
  load.setPosition(values.at(0));
  load.setValue(values.at(1));
}
///@}

/// A load with the numbers 1.5, 2.5, ... in their stored order, id 7 and the name "quay".
template <class Load>
Load sample_load() {
  Load load;
  load.setObjectID(7, "quay");
  set_numbers(load, {1.5, 2.5, 3.5, 4.5});
  return load;
}

/// Gives `load` a random id, name and numbers.
template <class Load>
void randomize(Load& load, RandomValues& random) {
  load.setObjectID(random.integer(-1, 1'000'000), random.text());
  set_numbers(load, {random.number(), random.number(), random.number(), random.number()});
}

/// Doubles one after the other on a stream.
inline std::string doubles_bytes(const std::vector<double>& values) {
  return bytes_of([&values](outstream& out) {
    for (const double value : values)
      out << value;
  });
}

/// The frame of a name and an id.
inline std::string identity_bytes(int id, const std::string& name) {
  return frame_bytes(1, bytes_of([&](outstream& out) { out << id << name; }));
}

/// The frames that lie in every load: identity in base load in the family's class.
inline std::string family_bytes(int id, const std::string& name) {
  return frame_bytes(1, frame_bytes(1, identity_bytes(id, name)));
}

}  // namespace ostrel::testing
