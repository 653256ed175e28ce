// SPDX-License-Identifier: Apache-2.0
#include "ostrel/stream.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>
#include <exception>
#include <limits>

namespace {

// Integers that go through the streams' raw bytes are little-endian there like all the rest.
template <class T>
std::array<char, sizeof(T)> to_wire(T value) {
  auto bytes = std::bit_cast<std::array<char, sizeof(T)>>(value);
  if constexpr (std::endian::native == std::endian::big) {
    std::reverse(bytes.begin(), bytes.end());
  }
  return bytes;
}

template <class T>
T from_wire(std::array<char, sizeof(T)> bytes) {
  if constexpr (std::endian::native == std::endian::big) {
    std::reverse(bytes.begin(), bytes.end());
  }
  return std::bit_cast<T>(bytes);
}

template <class T>
void read_raw(iInStream& stream, T& value) {
  std::array<char, sizeof(T)> bytes{};
  stream.readBytes(bytes.data(), bytes.size());
  value = from_wire<T>(bytes);
}

template <class T>
void write_raw(iOutStream& stream, T value) {
  const auto bytes = to_wire(value);
  stream.writeBytes(bytes.data(), bytes.size());
}

std::ios_base::seekdir seek_direction(int direction) {
  switch (direction) {
    case 0:
      return std::ios_base::beg;
    case 1:
      return std::ios_base::cur;
    case 2:
      return std::ios_base::end;
    default:
      throw std::invalid_argument("seek direction must be 0, 1 or 2");
  }
}

}  // namespace

instream& instream::operator>>(int& value) {
  if (stream_) value = stream_->readInt();
  return *this;
}

instream& instream::operator>>(unsigned int& value) {
  if (stream_) read_raw(*stream_, value);
  return *this;
}

instream& instream::operator>>(double& value) {
  if (stream_) value = stream_->readDouble();
  return *this;
}

instream& instream::operator>>(std::string& value) {
  if (stream_) value = stream_->readString();
  return *this;
}

instream& instream::operator>>(std::int64_t& value) {
  if (stream_) read_raw(*stream_, value);
  return *this;
}

instream& instream::operator>>(bool& value) {
  if (stream_) value = stream_->readBool();
  return *this;
}

void instream::clear(int state, bool reraise) {
  if (!stream_) return;
  const std::exception_ptr handled = std::current_exception();
  try {
    stream_->clear(static_cast<std::ios_base::iostate>(state));
  } catch (const std::ios_base::failure&) {
    if (reraise && handled) std::rethrow_exception(handled);
    throw;
  }
}

void instream::seekg(std::streampos position, int direction) {
  const auto way = seek_direction(direction);
  if (stream_) stream_->seekg(std::streamoff(position), way);
}

std::streampos instream::tellg() {
  return stream_ ? stream_->tellg() : std::streampos(0);
}

outstream& outstream::operator<<(int value) {
  if (stream_) stream_->writeInt(value);
  return *this;
}

outstream& outstream::operator<<(unsigned int value) {
  if (stream_) write_raw(*stream_, value);
  return *this;
}

outstream& outstream::operator<<(double value) {
  if (stream_) stream_->writeDouble(value);
  return *this;
}

outstream& outstream::operator<<(const std::string& value) {
  if (stream_) stream_->writeString(value);
  return *this;
}

outstream& outstream::operator<<(const char* value) {
  return *this << std::string(value ? value : "");
}

outstream& outstream::operator<<(std::int64_t value) {
  if (stream_) write_raw(*stream_, value);
  return *this;
}

outstream& outstream::operator<<(bool value) {
  if (stream_) stream_->writeBool(value);
  return *this;
}

void outstream::seekp(std::streampos position, int direction) {
  const auto way = seek_direction(direction);
  if (stream_) stream_->seekp(std::streamoff(position), way);
}

std::streampos outstream::tellp() {
  return stream_ ? stream_->tellp() : std::streampos(0);
}

void read_vec(std::vector<arma::Col<double>::fixed<2>>& points, instream& in) {
  points.clear();
  const int count = ostrel::read_count(in);
  for (int i = 0; i < count; ++i) {
    arma::Col<double>::fixed<2> point(arma::fill::zeros);
    in >> point[0] >> point[1];
    points.push_back(point);
  }
}

void write_vec(const std::vector<arma::Col<double>::fixed<2>>& points, outstream& out) {
  ostrel::write_count(points.size(), out);
  for (const auto& point : points) {
    out << point[0] << point[1];
  }
}

namespace ostrel {

int read_count(instream& in) {
  int count = 0;
  in >> count;
  if (!(count >= 0)) throw std::runtime_error("negative count in stream");
  return count;
}

void write_count(std::size_t count, outstream& out) {
  if (!(count <= static_cast<std::size_t>(std::numeric_limits<int>::max()))) {
    throw std::runtime_error("too many elements for a stream");
  }
  out << static_cast<int>(count);
}

}  // namespace ostrel
