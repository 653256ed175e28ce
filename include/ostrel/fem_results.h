#pragma once
/// @file  What a solved beam tells: raw results by node and element, and diagrams. Room: fem
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/anchor.h"
#include "ostrel/diagram.h"
#include "ostrel/error.h"
#include "ostrel/export.h"
#include "ostrel/fem_data.h"
#include "ostrel/fem_load.h"
#include "ostrel/sheetpiling_data.h"
#include "ostrel/stream.h"

#include <cstdint>
#include <map>
#include <string>
#include <vector>

/// The forces of a cross-section of the wall.
class OSTREL_API xPointStress {
public:
  /// @name Persisted object, version 1
  ///@{
  virtual std::string getIOClass() const;
  virtual void pub_read(instream& in);
  virtual void pub_write(outstream& out) const;
  ///@}
  virtual ~xPointStress() = default;
  xPointStress() = default;
  xPointStress(const xPointStress&) = default;
  xPointStress& operator=(const xPointStress&) = default;

  void reset();

  double N = 0.0;  ///< axial force, positive in tension [N]
  double T = 0.0;  ///< shear force [N]
  double M = 0.0;  ///< bending moment [Nmm]

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;
};

/// The forces at the two ends of an element.
class OSTREL_API xBeamStress {
public:
  /// @name Persisted object, version 1
  ///@{
  virtual void reset();
  virtual std::string getIOClass() const;
  virtual void pub_read(instream& in);
  virtual void pub_write(outstream& out) const;
  ///@}
  virtual ~xBeamStress() = default;
  xBeamStress() = default;
  xBeamStress(const xBeamStress&) = default;
  xBeamStress(xBeamStress&&) = default;
  xBeamStress& operator=(const xBeamStress&) = default;
  xBeamStress& operator=(xBeamStress&&) = default;

  std::int32_t getStartNode() const { return start_node_; }
  void setStartNode(std::int32_t node) { start_node_ = node; }
  std::int32_t getEndNode() const { return end_node_; }
  void setEndNode(std::int32_t node) { end_node_ = node; }

  std::vector<xPointStress> points;  ///< at the start, then at the end

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;

  std::int32_t start_node_ = 0;
  std::int32_t end_node_ = 0;
};

/// The reaction of the soil at a node, as a pressure.
class OSTREL_API reacTerr {
public:
  /// @name Persisted object, version 1
  ///@{
  virtual std::string getIOClass() const;
  virtual void pub_read(instream& in);
  virtual void pub_write(outstream& out) const;
  ///@}
  virtual ~reacTerr() = default;
  reacTerr() = default;
  reacTerr(const reacTerr&) = default;
  reacTerr& operator=(const reacTerr&) = default;

  double reaction = 0.0;  ///< the one in use [N/mm²]
  double limited = 0.0;   ///< with the limit of the soil applied [N/mm²]

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;
};

/// The force of the soil spring at a node.
class OSTREL_API Fsoil {
public:
  /// @name Persisted object, version 2
  /// Reading refuses older versions by throwing the version as an int.
  ///@{
  virtual std::string getIOClass() const;
  virtual void pub_read(instream& in);
  virtual void pub_write(outstream& out) const;
  ///@}
  virtual ~Fsoil() = default;
  Fsoil() = default;
  Fsoil(const Fsoil&) = default;
  Fsoil& operator=(const Fsoil&) = default;

  double elevation = 0.0;    ///< the negated depth of the node [mm]
  double springForce = 0.0;  ///< on the wall, across it [N]
  double limitForce = 0.0;   ///< what the limit pressure of the soil would put there [N]
  double limitMoment = 0.0;  ///< its moment about the node [Nmm]

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 2; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;
};

/// Raw results of one combination, by node and element.
class OSTREL_API xCombRes {
public:
  /// @name Persisted object, version 2
  /// Reading refuses older versions by throwing the version as an int.
  ///@{
  virtual void reset();
  virtual std::string getIOClass() const;
  virtual void pub_read(instream& in);
  virtual void pub_write(outstream& out) const;
  ///@}
  virtual ~xCombRes() = default;
  xCombRes() = default;
  xCombRes(const xCombRes&) = default;
  xCombRes(xCombRes&&) = default;
  xCombRes& operator=(const xCombRes&) = default;
  xCombRes& operator=(xCombRes&&) = default;

  std::string resName;                      ///< nothing in the analysis fills it
  std::vector<xFemNodeData> displacements;  ///< of each node [mm], [rad]
  /// What supports, springs and anchors exert, reversed, where it is not nothing [N], [Nmm].
  std::map<int, xFemNodeData> nodalForces;
  std::map<int, reacTerr> soilReactions;      ///< of each spring node
  std::vector<xBeamStress> beamStress;        ///< of each element
  std::map<int, Fsoil> soilForces;            ///< of each spring node
  std::map<int, xFemNodeData> appliedForces;  ///< total load, where it is not nothing [N], [Nmm]

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 2; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;
};

/// The force of one anchor in one combination, as a diagram along its free length.
class OSTREL_API AnchorSoll {
public:
  /// @name Persisted object, version 1
  ///@{
  virtual void reset();
  virtual std::string getIOClass() const;
  virtual void pub_read(instream& in);
  virtual void pub_write(outstream& out) const;
  ///@}
  virtual ~AnchorSoll() = default;
  AnchorSoll() = default;
  AnchorSoll(const AnchorSoll&) = default;
  AnchorSoll(AnchorSoll&&) = default;
  AnchorSoll& operator=(const AnchorSoll&) = default;
  AnchorSoll& operator=(AnchorSoll&&) = default;

  std::int64_t idObj = -1;  ///< id of the anchor
  xDiagram axial;           ///< axial force with the prestress, positive in tension [N]
  xDiagram shear;           ///< has an axis and no points
  xDiagram moment;          ///< has an axis and no points

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;
};

/// The results of one combination as diagrams along the wall. Positions are depths [mm], the axes
/// run down the wall in the plane.
class OSTREL_API xFemResults {
public:
  /// @name Persisted object, version 6
  /// Reading refuses older versions by throwing the version as an int.
  ///@{
  virtual void reset();
  virtual std::string getIOClass() const;
  virtual void pub_read(instream& in);
  virtual void pub_write(outstream& out) const;
  ///@}
  virtual ~xFemResults() = default;
  xFemResults() = default;
  xFemResults(const xFemResults&) = default;
  xFemResults(xFemResults&&) = default;
  xFemResults& operator=(const xFemResults&) = default;
  xFemResults& operator=(xFemResults&&) = default;

  /// Fills everything anew from the raw results.
  /// @retval errNoFemNodes  the beam has no nodes
  /// @retval errNoFemElements  the beam has no elements
  /// @retval errFemNodeNotFound  an element or a result names a node that the beam does not have;
  ///         the diagrams are filled as far as that
  OstrelErrorType getData(const xSheetpilingData& data, const std::vector<info_Fem_anchor>& anchors,
                          xFemData& fem, xCombRes& raw);

  /// The force diagram of one anchor, from the displacements of its node and its prestress. A link
  /// without a node carries the prestress alone; one to an anchor that `data` does not hold gives
  /// an empty diagram.
  void getAnchorDiag(const xSheetpilingData& data, AnchorSoll& out,
                     const info_Fem_anchor& link) const;

  /// The displacements of a node along and across the wall [mm] and its rotation [rad].
  /// @return false, and three zeros, for -1 and any other node that has no displacements
  bool getDispNode(int node, double& axial_disp, double& trans_disp, double& rot) const;

  xDiagram dispAxial;     ///< displacement along the wall of each node, positive downwards [mm]
  xDiagram dispTrans;     ///< displacement across the wall of each node [mm]
  xDiagram rotation;      ///< rotation of each node [rad]
  xDiagram soilReaction;  ///< of each node from the excavation level down, counted from it [N/mm²]
  xDiagram axial;         ///< axial force at both ends of each element, tension positive [N]
  xDiagram shear;         ///< shear force at both ends of each element [N]
  xDiagram moment;        ///< bending moment at both ends of each element [Nmm]
  std::map<int, xFemNodeData> nodalForces;      ///< as in `xCombRes`
  std::map<int, Fsoil> soilForces;              ///< as in `xCombRes`, with the limits
  std::vector<xFemNodeData_pos> appliedForces;  ///< by depth
  std::vector<AnchorSoll> anchorSoll;           ///< of each anchor link

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 6; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;
};
