#pragma once
/// @file  The frame of every persisted class, written once. Room: services
// SPDX-License-Identifier: Apache-2.0
//
// A persisted object lies on a stream as
//
//     begin marker, class version, fields, end marker
//
// and a class states its stored form in a few lines:
//
//     std::string xNail::getIOClass() const { return "xNail"; }
//     void xNail::pub_read(instream& in) { ostrel::read_frame(in, *this); }
//     void xNail::pub_write(outstream& out) const { ostrel::write_frame(out, *this); }
//
//     // Stored form, version 1.
//     void xNail::Read(instream& in, int) { ostrel::read_fields(in, head_, Length, tips_); }
//     void xNail::Write(outstream& out) const { ostrel::write_fields(out, head_, Length, tips_); }
//
// with `friend struct ostrel::FrameAccess;` and an inline `int GetClassVer() const { return 1; }`
// beside the private `Read` and `Write` in its header. A field is a number, a bool, a string, an
// enumeration (as an int), a pair of doubles, an object with a frame of its own, a vector of such
// objects, a map from int to them, or `base_frame<Base>(*this)`.

#include "ostrel/stream.h"

#include <concepts>
#include <cstdint>
#include <map>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <vector>

namespace ostrel {

inline constexpr int begin_marker = 0x01010101;
inline constexpr int end_marker = 0x02020202;

/// The friend of every persisted class: calls its private operations, never the virtual ones, so
/// that a base can be framed inside its derived class.
struct FrameAccess {
  template <class T>
  static int version(const T& object) {
    return object.T::GetClassVer();
  }
  template <class T>
  static void read(instream& in, T& object, int version) {
    object.T::Read(in, version);
  }
  template <class T>
  static void write(outstream& out, const T& object) {
    object.T::Write(out);
  }
};

/// Reads the frame of `object` as a `T`.
/// @throws std::runtime_error "bad begin marker in " or "bad end marker in " and the class name;
///         whatever the fields throw. The object is left as far as it got.
template <class T>
void read_frame(instream& in, T& object) {
  int marker = 0;
  in >> marker;
  if (marker != begin_marker) {
    throw std::runtime_error("bad begin marker in " + object.getIOClass());
  }
  int version = 0;
  in >> version;
  FrameAccess::read<T>(in, object, version);
  marker = 0;
  in >> marker;
  if (marker != end_marker) throw std::runtime_error("bad end marker in " + object.getIOClass());
}

/// Writes the frame of `object` as a `T`, with the version of `T`.
template <class T>
void write_frame(outstream& out, const T& object) {
  out << begin_marker << FrameAccess::version<T>(object);
  FrameAccess::write<T>(out, object);
  out << end_marker;
}

/// Refuses a stored version below `oldest` by throwing that version as a plain int.
inline void refuse_older_than(int oldest, int version) {
  if (version < oldest) throw version;  // NOLINT(hicpp-exception-baseclass): what readers catch
}

/// The part of a derived object that is stored in a frame of its base class.
template <class Base>
struct BaseFrame {
  Base& object;
};

template <class Base>
BaseFrame<Base> base_frame(Base& object) {
  return {object};
}

template <class Base>
BaseFrame<const Base> base_frame(const Base& object) {
  return {object};
}

template <class T>
concept StreamValue =
    std::same_as<T, int> || std::same_as<T, unsigned int> || std::same_as<T, double> || std::
        same_as<T, std::string> || std::same_as<T, std::int64_t> || std::same_as<T, bool>;

template <class T>
concept Persisted = requires(T& object, instream& in) {
  object.pub_read(in);
};

/// Reads a count and calls `append_one()` that many times: containers grow as elements arrive.
template <class AppendOne>
void read_counted(instream& in, const AppendOne& append_one) {
  const int count = read_count(in);
  for (int i = 0; i < count; ++i) {
    append_one();
  }
}

/// @name One field, read
///@{
template <StreamValue T>
void read_field(instream& in, T& value) {
  in >> value;
}

template <class T>
requires std::is_enum_v<T>
void read_field(instream& in, T& value) {
  int number = static_cast<int>(value);
  in >> number;
  value = static_cast<T>(number);
}

inline void read_field(instream& in, arma::Col<double>::fixed<2>& pair) {
  in >> pair[0] >> pair[1];
}

template <Persisted T>
void read_field(instream& in, T& object) {
  object.pub_read(in);
}

template <class Base>
void read_field(instream& in, BaseFrame<Base> base) {
  read_frame<Base>(in, base.object);
}

template <Persisted T>
void read_field(instream& in, std::vector<T>& list) {
  list.clear();
  read_counted(in, [&in, &list] { list.emplace_back().pub_read(in); });
}

template <Persisted T>
void read_field(instream& in, std::map<int, T>& entries) {
  entries.clear();
  read_counted(in, [&in, &entries] {
    int key = 0;
    in >> key;
    entries[key].pub_read(in);
  });
}
///@}

/// @name One field, written
///@{
template <StreamValue T>
void write_field(outstream& out, const T& value) {
  out << value;
}

template <class T>
requires std::is_enum_v<T>
void write_field(outstream& out, const T& value) {
  out << static_cast<int>(value);
}

inline void write_field(outstream& out, const arma::Col<double>::fixed<2>& pair) {
  out << pair[0] << pair[1];
}

template <Persisted T>
void write_field(outstream& out, const T& object) {
  object.pub_write(out);
}

template <class Base>
void write_field(outstream& out, BaseFrame<const Base> base) {
  write_frame<Base>(out, base.object);
}

template <Persisted T>
void write_field(outstream& out, const std::vector<T>& list) {
  write_count(list.size(), out);
  for (const T& object : list) {
    object.pub_write(out);
  }
}

template <Persisted T>
void write_field(outstream& out, const std::map<int, T>& entries) {
  write_count(entries.size(), out);
  for (const auto& [key, object] : entries) {
    out << key;
    object.pub_write(out);
  }
}
///@}

/// Reads the fields in the order given.
template <class... Fields>
void read_fields(instream& in, Fields&&... fields) {
  (read_field(in, fields), ...);
}

/// Writes the fields in the order given.
template <class... Fields>
void write_fields(outstream& out, const Fields&... fields) {
  (write_field(out, fields), ...);
}

}  // namespace ostrel
