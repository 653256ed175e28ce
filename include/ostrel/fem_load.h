#pragma once
/// @file  Loads on the nodes and elements of the beam. Room: fem
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/export.h"
#include "ostrel/stream.h"

#include <cstdint>
#include <map>
#include <string>

/// Three numbers of one node, one for each degree of freedom.
class OSTREL_API xFemNodeData {
public:
  xFemNodeData() = default;
  xFemNodeData(double along, double across, double rotation) : x(along), y(across), r(rotation) {}

  /// @name Persisted object, version 1
  ///@{
  virtual std::string getIOClass() const;
  virtual void pub_read(instream& in);
  virtual void pub_write(outstream& out) const;
  ///@}
  virtual ~xFemNodeData() = default;
  xFemNodeData(const xFemNodeData&) = default;
  xFemNodeData& operator=(const xFemNodeData&) = default;

  xFemNodeData& operator+=(const xFemNodeData& other);  ///< member by member
  void zeros();

  /// The square root of x² + y² + r².
  ///
  /// @oddity Forces [N] and the moment [Nmm] are mixed as they stand.
  double len() const;

  double x = 0.0;  ///< dof 0, along the wall: [N] for a force, [mm] for a displacement
  double y = 0.0;  ///< dof 1, across the wall: [N] or [mm]
  double r = 0.0;  ///< dof 2, rotation: [Nmm] or [rad]

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;
};

/// Three numbers of a node, with the position of the node.
class OSTREL_API xFemNodeData_pos {
public:
  /// @name Persisted object, version 1
  ///@{
  virtual std::string getIOClass() const;
  virtual void pub_read(instream& in);
  virtual void pub_write(outstream& out) const;
  ///@}
  virtual ~xFemNodeData_pos() = default;
  xFemNodeData_pos() = default;
  xFemNodeData_pos(const xFemNodeData_pos&) = default;
  xFemNodeData_pos& operator=(const xFemNodeData_pos&) = default;

  bool operator<(const xFemNodeData_pos& other) const;  ///< by position alone

  double pos = 0.0;  ///< position along the wall [mm]
  xFemNodeData data;

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;
};

/// A load that varies linearly along one element.
class OSTREL_API PressAtEnds {
public:
  PressAtEnds() = default;
  PressAtEnds(double start, double end) : pStart(start), pEnd(end) {}

  /// @name Persisted object, version 2
  /// Reading refuses older versions by throwing the version as an int.
  ///@{
  virtual std::string getIOClass() const;
  virtual void pub_read(instream& in);
  virtual void pub_write(outstream& out) const;
  ///@}
  virtual ~PressAtEnds() = default;
  PressAtEnds(const PressAtEnds&) = default;
  PressAtEnds& operator=(const PressAtEnds&) = default;

  double pStart = 0.0;  ///< across the wall, at the element's start [N/mm]
  double pEnd = 0.0;    ///< across the wall, at the element's end [N/mm]
  double aStart = 0.0;  ///< along the wall, positive downwards, at the start [N/mm]
  double aEnd = 0.0;    ///< along the wall, positive downwards, at the end [N/mm]

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 2; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;
};

/// The loads of one condition on the beam.
class OSTREL_API xFemLoadCond {
public:
  xFemLoadCond() = default;
  explicit xFemLoadCond(const std::string& name) : cond_name_(name) {}

  /// @name Persisted object, version 1
  ///@{
  virtual void reset();
  virtual std::string getIOClass() const;
  virtual void pub_read(instream& in);
  virtual void pub_write(outstream& out) const;
  ///@}
  virtual ~xFemLoadCond() = default;
  xFemLoadCond(const xFemLoadCond&) = default;
  xFemLoadCond(xFemLoadCond&&) = default;
  xFemLoadCond& operator=(const xFemLoadCond&) = default;
  xFemLoadCond& operator=(xFemLoadCond&&) = default;

  const std::string& getCondName() const { return cond_name_; }
  void setCondName(const std::string& name) { cond_name_ = name; }

  std::map<std::int32_t, xFemNodeData> nodalForces;  ///< by node
  std::map<std::int32_t, PressAtEnds> pressures;     ///< by element

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;

  std::string cond_name_;
};
