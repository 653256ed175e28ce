#pragma once
/// @file  Persisted objects through memory, for tests
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/stream.h"

#include <tallow/memory_streams.h>

#include <string>

namespace ostrel::testing {

/// The bytes that `write` puts on a stream.
template <class WriteAction>
std::string bytes_of(const WriteAction& write) {
  iMemoryOutStream stream;
  outstream out(&stream);
  write(out);
  return std::string(stream.bytes());
}

/// The stored form of `object`.
template <class T>
std::string stored(const T& object) {
  return bytes_of([&object](outstream& out) { object.pub_write(out); });
}

/// Reads `object` from `bytes`.
template <class T>
void read_stored(T& object, const std::string& bytes) {
  iMemoryInStream stream(bytes);
  instream in(&stream);
  object.pub_read(in);
}

/// `object` written and read back into a new one.
template <class T>
T through_memory(const T& object) {
  T copy;
  read_stored(copy, stored(object));
  return copy;
}

/// The bytes of a frame with the given version and fields, between whole markers.
inline std::string frame_bytes(int version, const std::string& fields) {
  return bytes_of([version](outstream& out) { out << 0x01010101 << version; }) + fields
       + bytes_of([](outstream& out) { out << 0x02020202; });
}

}  // namespace ostrel::testing
