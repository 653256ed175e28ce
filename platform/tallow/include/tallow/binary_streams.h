#pragma once
/// @file  Typed binary streams over memory and files. Library: tallow
// SPDX-License-Identifier: Apache-2.0
//
// On the wire everything is little-endian, whatever the machine: int 4 bytes in two's complement,
// double the 8 bytes of its IEEE 754 form, bool 1 byte (0 or 1), string an unsigned 64-bit length
// followed by its bytes.

#include "tallow/export.h"

#include <cstdint>
#include <istream>
#include <memory>
#include <ostream>
#include <string>
#include <string_view>

/// A `std::istream` that reads typed values.
///
/// Every typed read throws `std::runtime_error` when the stream ends before the value is complete
/// or the bytes cannot be such a value; what was read before stays read. Nothing is allocated for
/// bytes that are not there, whatever length a stream claims.
class TALLOW_API iInStream : public std::istream {
public:
  ~iInStream() override;
  iInStream(const iInStream&) = delete;
  iInStream& operator=(const iInStream&) = delete;

  int readInt();
  double readDouble();  ///< bit for bit, so NaN payloads, -0.0 and denormals survive
  bool readBool();      ///< throws for any byte but 0 and 1
  std::string readString();

  /// Reads exactly `size` bytes to `bytes`, or throws.
  void readBytes(char* bytes, std::size_t size);

protected:
  explicit iInStream(std::unique_ptr<std::streambuf> source);

private:
  std::unique_ptr<std::streambuf> source_;
};

/// A `std::ostream` that writes typed values; every write throws `std::runtime_error` when the
/// bytes cannot be stored.
class TALLOW_API iOutStream : public std::ostream {
public:
  ~iOutStream() override;
  iOutStream(const iOutStream&) = delete;
  iOutStream& operator=(const iOutStream&) = delete;

  void writeInt(const int& value);
  void writeDouble(const double& value);
  void writeBool(const bool& value);
  void writeString(const std::string& value);

  /// Writes `size` bytes from `bytes`, or throws.
  void writeBytes(const char* bytes, std::size_t size);

protected:
  explicit iOutStream(std::unique_ptr<std::streambuf> target);

private:
  std::unique_ptr<std::streambuf> target_;
};
