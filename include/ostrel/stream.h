#pragma once
/// @file  Handles of the binary streams, and what every persisted class shares. Room: services
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/export.h"

#include <tallow/binary_streams.h>

#include <armadillo>
#include <osg/ref_ptr>

#include <cstdint>
#include <ios>
#include <stdexcept>
#include <string>
#include <vector>

/// Handle of a stream to read from. It owns nothing; a handle without a stream reads nothing and
/// leaves every variable as it is.
///
/// All reads throw `std::runtime_error` when the stream ends early or holds an impossible value.
class OSTREL_API instream {
public:
  instream() = default;
  explicit instream(iInStream* stream) : stream_(stream) {}

  instream& operator>>(int& value);
  instream& operator>>(unsigned int& value);  ///< 4 raw bytes
  instream& operator>>(double& value);
  instream& operator>>(std::string& value);
  instream& operator>>(std::int64_t& value);  ///< 8 raw bytes
  instream& operator>>(bool& value);

  /// Sets the state bits (`std::ios_base::iostate`) of the stream. Where the stream is set to throw
  /// at these bits, `reraise` throws the exception being handled again instead of a new one.
  void clear(int state, bool reraise);

  /// Moves the reading position by `position` [bytes] from the start (`direction` 0), from where it
  /// stands (1) or from the end (2). @throws std::invalid_argument for any other direction
  void seekg(std::streampos position, int direction);
  std::streampos tellg();  ///< the reading position, 0 without a stream

private:
  iInStream* stream_ = nullptr;
};

/// Handle of a stream to write to; the counterpart of `instream`.
class OSTREL_API outstream {
public:
  outstream() = default;
  explicit outstream(iOutStream* stream) : stream_(stream) {}

  outstream& operator<<(int value);
  outstream& operator<<(unsigned int value);  ///< 4 raw bytes
  outstream& operator<<(double value);
  outstream& operator<<(const std::string& value);
  outstream& operator<<(const char* value);   ///< as a string; else it would go as a bool
  outstream& operator<<(std::int64_t value);  ///< 8 raw bytes
  outstream& operator<<(bool value);

  void seekp(std::streampos position, int direction);  ///< as `instream::seekg`
  std::streampos tellp();                              ///< the writing position, 0 without a stream

private:
  iOutStream* stream_ = nullptr;
};

/// A polygon or polyline on a stream: the number of points, then x and y of each [mm].
/// Reading empties the list first; it grows as points arrive.
///@{
OSTREL_API void read_vec(std::vector<arma::Col<double>::fixed<2>>& points, instream& in);
OSTREL_API void write_vec(const std::vector<arma::Col<double>::fixed<2>>& points, outstream& out);
///@}

namespace ostrel {

/// Gives the frame on the stream its way to the private operations of a persisted class.
struct FrameAccess;

/// The number of elements that follow on the stream, 0 without a stream.
/// @throws std::runtime_error for a negative number
OSTREL_API int read_count(instream& in);

/// Writes a number of elements. @throws std::runtime_error for one beyond a 32-bit integer
OSTREL_API void write_count(std::size_t count, outstream& out);

/// The class name under which `object` is stored, "NullIoClass" where there is no object.
template <class T>
std::string io_class_of(const T* object) {
  return object ? object->getIOClass() : std::string("NullIoClass");
}

}  // namespace ostrel

/// Reads a list of objects behind polymorphic pointers: for each the class name, then its frame.
/// The list is emptied first and grows as elements arrive.
/// @param make  called with a class name; gives a new object or null
/// @throws std::runtime_error "unknown class in read_vec_refptr" where `make` gives null
template <class T, class Factory>
void read_vec_refptr(std::vector<osg::ref_ptr<T>>& list, instream& in, const Factory& make) {
  list.clear();
  const int count = ostrel::read_count(in);
  for (int i = 0; i < count; ++i) {
    std::string name;
    in >> name;
    const osg::ref_ptr<T> object = make(name);
    list.push_back(object);
    if (!object) throw std::runtime_error("unknown class in read_vec_refptr");
    object->pub_read(in);
  }
}

/// Writes what `read_vec_refptr` reads. Absent objects are left out, since nothing could read them.
template <class T>
void write_vec_refptr(const std::vector<osg::ref_ptr<T>>& list, outstream& out) {
  std::size_t count = 0;
  for (const auto& object : list) {
    count += object.valid() ? 1 : 0;
  }
  ostrel::write_count(count, out);
  for (const auto& object : list) {
    if (!object) continue;
    out << object->getIOClass();
    object->pub_write(out);
  }
}
