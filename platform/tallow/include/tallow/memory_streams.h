#pragma once
/// @file  Typed binary streams over bytes in memory. Library: tallow
// SPDX-License-Identifier: Apache-2.0

#include "tallow/binary_streams.h"
#include "tallow/export.h"

#include <cstddef>
#include <sstream>
#include <string>
#include <string_view>

/// Reads bytes in memory, which the stream owns.
class TALLOW_API iMemoryInStream : public iInStream {
public:
  explicit iMemoryInStream(std::string bytes);

  /// Reads a copy of the `size` bytes from `bytes` on.
  iMemoryInStream(const char* bytes, std::size_t size);

  ~iMemoryInStream() override;
};

/// Writes bytes to memory.
class TALLOW_API iMemoryOutStream : public iOutStream {
public:
  iMemoryOutStream();
  ~iMemoryOutStream() override;

  /// All bytes written, wherever the writing position stands; good until the next write.
  std::string_view bytes() const;

  /// Gives all bytes written away and leaves the stream empty, its position at the start.
  std::string takeBytes();

private:
  explicit iMemoryOutStream(std::stringbuf* memory);  ///< takes it over

  std::stringbuf* memory_;
};
