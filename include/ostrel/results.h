#pragma once
/// @file  The results of the combinations. Room: driver
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/export.h"
#include "ostrel/fem_load.h"
#include "ostrel/fem_results.h"
#include "ostrel/layer_pressure.h"
#include "ostrel/load_pressure.h"
#include "ostrel/soil_spring.h"
#include "ostrel/stream.h"

#include <cstdint>
#include <string>
#include <vector>

/// What the analysis of one combination gave. It holds numbers, names and ids and outlives the
/// solver.
class OSTREL_API xCombResults {
public:
  /// @name Persisted object, version 2
  /// Reading refuses older versions by throwing the version as an int.
  ///@{
  virtual void reset();
  virtual std::string getIOClass() const;
  virtual void pub_read(instream& in);
  virtual void pub_write(outstream& out) const;
  ///@}
  virtual ~xCombResults() = default;
  xCombResults() = default;
  xCombResults(const xCombResults&) = default;
  xCombResults(xCombResults&&) = default;
  xCombResults& operator=(const xCombResults&) = default;
  xCombResults& operator=(xCombResults&&) = default;

  const std::string& getCombName() const { return comb_name_; }
  void setCombName(const std::string& name) { comb_name_ = name; }
  int getcombIndex() const { return comb_index_; }
  void setcombIndex(int index) { comb_index_ = index; }

  xEarthPress earthPress;                     ///< pressure of the soil above the excavation
  xHydrostaticPress hydroPress;               ///< pressure of the water above the excavation
  xSubgradeReactionModulus subgradeModulus;   ///< springs of the soil below it, by node
  std::vector<xLoadCondPress> loadCondPress;  ///< pressures of each active load condition
  std::vector<xFemLoadCond> femLoadConds;     ///< loads of the beam, one for each active action
  xFemResults femResults;                     ///< diagrams and forces of the solved beam

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 2; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;

  std::int32_t comb_index_ = 0;
  std::string comb_name_;
};

/// The results of all combinations that were solved, in the order of analysis.
class OSTREL_API xSheetpilingRes {
public:
  /// @name Persisted object, version 1
  ///@{
  virtual void reset();
  virtual std::string getIOClass() const;
  virtual void pub_read(instream& in);
  virtual void pub_write(outstream& out) const;
  ///@}
  virtual ~xSheetpilingRes() = default;
  xSheetpilingRes() = default;
  xSheetpilingRes(const xSheetpilingRes&) = default;
  xSheetpilingRes(xSheetpilingRes&&) = default;
  xSheetpilingRes& operator=(const xSheetpilingRes&) = default;
  xSheetpilingRes& operator=(xSheetpilingRes&&) = default;

  std::vector<xCombResults> combResults;

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;
};
