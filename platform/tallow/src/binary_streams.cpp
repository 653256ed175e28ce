// SPDX-License-Identifier: Apache-2.0
#include "tallow/binary_streams.h"

#include "fault_teller.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <limits>
#include <stdexcept>
#include <utility>

static_assert(sizeof(int) == 4 && sizeof(double) == 8 && std::numeric_limits<double>::is_iec559);

namespace {

// A string of a claimed length grows in steps of this size, as its bytes arrive.
constexpr std::size_t string_step = std::size_t{64} * 1024;

// Takes the exceptions mask off a stream and puts it back: the typed operations throw exceptions of
// their own, which say more.
class WithoutExceptions {
public:
  explicit WithoutExceptions(std::ios& stream) : stream_(stream), mask_(stream.exceptions()) {
    stream_.exceptions(std::ios::goodbit);
  }
  WithoutExceptions(const WithoutExceptions&) = delete;
  WithoutExceptions& operator=(const WithoutExceptions&) = delete;
  ~WithoutExceptions() {
    try {
      stream_.exceptions(mask_);
    } catch (const std::ios::failure&) {
      // The mask is back in place; what it complains of is thrown by the typed operation.
    }
  }

private:
  std::ios& stream_;
  std::ios::iostate mask_;
};

template <std::size_t size>
std::array<char, size> to_wire(std::uint64_t bits) {
  std::array<char, size> bytes{};
  for (char& byte : bytes) {
    byte = static_cast<char>(static_cast<unsigned char>(bits & 0xFFU));
    bits >>= 8U;
  }
  return bytes;
}

template <std::size_t size>
std::uint64_t from_wire(const std::array<char, size>& bytes) {
  std::uint64_t bits = 0;
  for (std::size_t i = size; i-- > 0;) {
    bits = bits << 8U | static_cast<unsigned char>(bytes[i]);
  }
  return bits;
}

// What the stream's own source or target knows of a failure, and the value it happened at.
std::string told_fault(const std::ios& stream, const std::string& at_what) {
  const auto* teller = dynamic_cast<const Tallow::FaultTeller*>(stream.rdbuf());
  return teller && !teller->fault().empty() ? teller->fault() + " (" + at_what + ")" : "";
}

[[noreturn]] void throw_not_read(const std::istream& in, const std::string& value) {
  const std::string fault = told_fault(in, "reading " + value);
  if (!fault.empty()) throw std::runtime_error(fault);
  throw std::runtime_error((in.eof() ? "stream ended while reading " : "stream failed at reading ")
                           + value);
}

[[noreturn]] void throw_not_written(const std::ostream& out, const std::string& value) {
  const std::string fault = told_fault(out, "writing " + value);
  throw std::runtime_error(fault.empty() ? "stream failed at writing " + value : fault);
}

// Reads `size` bytes. Returns false when they are not there or the stream had failed before.
bool fetch(std::istream& in, char* bytes, std::size_t size) {
  if (in.fail()) return false;
  if (size == 0) return true;
  const WithoutExceptions guard(in);
  in.read(bytes, static_cast<std::streamsize>(size));
  return !in.fail();
}

// Writes `size` bytes. Returns false when they cannot be stored or the stream had failed before.
bool store(std::ostream& out, const char* bytes, std::size_t size) {
  if (!out.good()) return false;
  const WithoutExceptions guard(out);
  out.write(bytes, static_cast<std::streamsize>(size));
  return !out.fail();
}

template <std::size_t size>
std::uint64_t fetch_number(std::istream& in, const char* value) {
  std::array<char, size> bytes{};
  if (!fetch(in, bytes.data(), size)) throw_not_read(in, value);
  return from_wire(bytes);
}

template <std::size_t size>
void store_number(std::ostream& out, std::uint64_t bits, const char* value) {
  if (!store(out, to_wire<size>(bits).data(), size)) throw_not_written(out, value);
}

std::string so_many_bytes(std::uint64_t size) {
  return std::to_string(size) + " bytes";
}

}  // namespace

iInStream::iInStream(std::unique_ptr<std::streambuf> source)
    : std::istream(source.get()), source_(std::move(source)) {}

iInStream::~iInStream() = default;

int iInStream::readInt() {
  return std::bit_cast<int>(static_cast<std::uint32_t>(fetch_number<4>(*this, "an int")));
}

double iInStream::readDouble() {
  return std::bit_cast<double>(fetch_number<8>(*this, "a double"));
}

bool iInStream::readBool() {
  const std::uint64_t byte = fetch_number<1>(*this, "a bool");
  if (!(byte <= 1)) {
    throw std::runtime_error("byte " + std::to_string(byte) + " in the place of a bool");
  }
  return byte == 1;
}

std::string iInStream::readString() {
  const std::uint64_t length = fetch_number<8>(*this, "the length of a string");
  std::string value;
  for (std::uint64_t missing = length; missing > 0;) {
    const auto step = static_cast<std::size_t>(std::min<std::uint64_t>(missing, string_step));
    const std::size_t begin = value.size();
    value.resize(begin + step);
    if (!fetch(*this, value.data() + begin, step)) {
      throw_not_read(*this, "a string of " + so_many_bytes(length));
    }
    missing -= step;
  }
  return value;
}

void iInStream::readBytes(char* bytes, std::size_t size) {
  if (!fetch(*this, bytes, size)) throw_not_read(*this, so_many_bytes(size));
}

iOutStream::iOutStream(std::unique_ptr<std::streambuf> target)
    : std::ostream(target.get()), target_(std::move(target)) {}

iOutStream::~iOutStream() = default;

void iOutStream::writeInt(const int& value) {
  store_number<4>(*this, std::bit_cast<std::uint32_t>(value), "an int");
}

void iOutStream::writeDouble(const double& value) {
  store_number<8>(*this, std::bit_cast<std::uint64_t>(value), "a double");
}

void iOutStream::writeBool(const bool& value) {
  store_number<1>(*this, value ? 1 : 0, "a bool");
}

void iOutStream::writeString(const std::string& value) {
  store_number<8>(*this, value.size(), "the length of a string");
  if (!store(*this, value.data(), value.size())) {
    throw_not_written(*this, "a string of " + so_many_bytes(value.size()));
  }
}

void iOutStream::writeBytes(const char* bytes, std::size_t size) {
  if (!store(*this, bytes, size)) throw_not_written(*this, so_many_bytes(size));
}
