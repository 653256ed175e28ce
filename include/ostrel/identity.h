#pragma once
/// @file  Name and id that records carry. Room: model
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/export.h"
#include "ostrel/stream.h"

#include <cstdint>
#include <string>

/// A text that describes a record.
class OSTREL_API xDescription {
public:
  /// @name Persisted object, version 1
  ///@{
  virtual void reset();
  virtual std::string getIOClass() const;
  virtual void pub_read(instream& in);
  virtual void pub_write(outstream& out) const;
  ///@}
  virtual ~xDescription() = default;

  const std::string& get_Description() const { return description_; }
  void set_Description(const std::string& description) { description_ = description; }

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;

  std::string description_;
};

/// What tells one object of the input from another.
class OSTREL_API xObjectID {
public:
  /// @name Persisted object, version 1
  ///@{
  virtual void reset();
  /// Takes id and name from `other`.
  virtual void copy(const xObjectID& other);
  virtual std::string getIOClass() const;
  virtual void pub_read(instream& in);
  virtual void pub_write(outstream& out) const;
  ///@}
  virtual ~xObjectID() = default;

  /// Sets both; a `new_id` beyond 32 bits keeps its low 32 bits.
  void setObjectID(long new_id, const std::string& new_name);

  std::string name;
  std::int32_t id = -1;  ///< -1 when unset

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;
};
