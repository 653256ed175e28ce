#pragma once
/// @file  Loads that stand on the ground behind the wall. Room: loads
// SPDX-License-Identifier: Apache-2.0
//
// Positions are distances from the wall along the ground, positive on the retained side [mm].
// Loads act downwards. They are counted by reference: objects that an `osg::ref_ptr` is to hold are
// made with `new`.

#include "ostrel/export.h"
#include "ostrel/identity.h"
#include "ostrel/stream.h"

#include <osg/Referenced>

#include <string>

/// What all loads share.
///
/// A copy of a load begins with a reference count of zero, and assignment leaves the counts alone.
class OSTREL_API xBaseLoad : public xObjectID, public osg::Referenced {
public:
  /// @name Persisted object, version 1
  ///@{
  std::string getIOClass() const override;
  void pub_read(instream& in) override;
  void pub_write(outstream& out) const override;
  ///@}

  /// A new object of the exact class with the same fields and a reference count of zero.
  virtual xBaseLoad* clone() const = 0;

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;
};

/// A load on the ground. `reset` returns all fields to their defaults, id and name included.
class OSTREL_API xSoilLoad : public xBaseLoad {
public:
  /// @name Persisted object, version 1
  ///@{
  std::string getIOClass() const override;
  void pub_read(instream& in) override;
  void pub_write(outstream& out) const override;
  ///@}
  xSoilLoad* clone() const override = 0;

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;
};

/// A load on the whole surface.
class OSTREL_API xUniformLoad : public xSoilLoad {
public:
  /// @name Persisted object, version 1
  ///@{
  void reset() override;
  std::string getIOClass() const override;
  void pub_read(instream& in) override;
  void pub_write(outstream& out) const override;
  ///@}
  xSoilLoad* clone() const override;

  double getValue() const { return value_; }
  void setValue(double value) { value_ = value; }

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;

  double value_ = 0.0;  ///< [N/mm²]
};

/// A load on a strip beside the wall, changing linearly from its nearer to its farther edge.
class OSTREL_API xNastriformLoad : public xSoilLoad {
public:
  /// @name Persisted object, version 1
  ///@{
  void reset() override;
  std::string getIOClass() const override;
  void pub_read(instream& in) override;
  void pub_write(outstream& out) const override;
  ///@}
  xSoilLoad* clone() const override;

  double getStartValue() const { return start_value_; }
  void setStartValue(double value) { start_value_ = value; }
  double getEndValue() const { return end_value_; }
  void setEndValue(double value) { end_value_ = value; }
  double getPosition() const { return position_; }
  void setPosition(double position) { position_ = position; }
  double getExtension() const { return extension_; }
  void setExtension(double extension) { extension_ = extension; }

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;

  double start_value_ = 0.0;  ///< at the nearer edge [N/mm²]
  double end_value_ = 0.0;    ///< at the farther edge [N/mm²]
  double position_ = 0.0;     ///< of the nearer edge [mm]
  double extension_ = 0.0;    ///< width of the strip [mm]
};

/// A load at one distance from the wall.
class OSTREL_API xLocalizedLoad : public xSoilLoad {
public:
  /// @name Persisted object, version 1
  ///@{
  void reset() override;
  std::string getIOClass() const override;
  void pub_read(instream& in) override;
  void pub_write(outstream& out) const override;
  ///@}
  xSoilLoad* clone() const override;

  double getPosition() const { return position_; }
  void setPosition(double position) { position_ = position; }
  double getValue() const { return value_; }
  void setValue(double value) { value_ = value; }

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;

  double position_ = 0.0;  ///< [mm]
  double value_ = 0.0;     ///< of a line load [N/mm], of a point load [N]
};

/// A load on a line parallel to the wall; its value is in N/mm.
class OSTREL_API xLinearLoad : public xLocalizedLoad {
public:
  /// @name Persisted object, version 1
  ///@{
  std::string getIOClass() const override;
  void pub_read(instream& in) override;
  void pub_write(outstream& out) const override;
  ///@}
  xSoilLoad* clone() const override;

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;
};

/// A load on a point of the ground; its value is in N.
class OSTREL_API xPuntiformLoad : public xLocalizedLoad {
public:
  /// @name Persisted object, version 1
  ///@{
  std::string getIOClass() const override;
  void pub_read(instream& in) override;
  void pub_write(outstream& out) const override;
  ///@}
  xSoilLoad* clone() const override;

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;
};
