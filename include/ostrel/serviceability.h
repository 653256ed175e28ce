#pragma once
/// @file  Verification of the displacements. Room: geotech
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/check_frame.h"
#include "ostrel/error.h"
#include "ostrel/export.h"
#include "ostrel/load_combination.h"
#include "ostrel/stream.h"

#include <osg/ref_ptr>

#include <cstdint>
#include <string>
#include <vector>

class xCombResults;
class xSheetpilingData;

/// A displacement beyond its limit.
class OSTREL_API slsCheckInfo : public xCheckInfo {
public:
  slsCheckInfo* clone() const override;
  std::string getString() const override;

  int kind = 0;          ///< always 0
  double section = 0.0;  ///< depth of the governing displacement [mm]
};

/// The displacements of head and excavation level in one combination, with their limits.
class OSTREL_API xServiceLimitDispCombRes : public xCheckCombID {
public:
  /// @name Persisted object, version 1
  ///@{
  void reset() override;
  std::string getIOClass() const override;
  void pub_read(instream& in) override;
  void pub_write(outstream& out) const override;
  ///@}

  void check(double jtsLim, double headLim);  ///< stores the two limits [mm]
  double getSfJts() const;                    ///< factor at the excavation level [-]
  double getSfHead() const;                   ///< factor at the head [-]
  /// The failure at the place with the smaller factor; with equal factors the excavation level.
  osg::ref_ptr<slsCheckInfo> getCheckInfo() const;

  double getHeadPos() const { return head_pos_; }
  void setHeadPos(double depth) { head_pos_ = depth; }
  double getJtsPos() const { return jts_pos_; }
  void setJtsPos(double depth) { jts_pos_ = depth; }
  double getJtsdisp() const { return jts_disp_; }
  void setJtsdisp(double displacement) { jts_disp_ = displacement; }
  double getHeaddisp() const { return head_disp_; }
  void setHeaddisp(double displacement) { head_disp_ = displacement; }
  double getJtsLim() const { return jts_lim_; }
  double getHeadLim() const { return head_lim_; }

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;

  double head_pos_ = 0.0;   // depth of the head [mm]
  double jts_pos_ = 0.0;    // depth of the excavation [mm]
  double jts_disp_ = 0.0;   // displacement across the wall at the excavation, with its sign [mm]
  double head_disp_ = 0.0;  // displacement across the wall at the head, with its sign [mm]
  double jts_lim_ = 0.0;    // limit at the excavation [mm]
  double head_lim_ = 0.0;   // limit at the head [mm]
};

/// The displacements of all combinations that ask for this verification.
class OSTREL_API xServiceLimitDisplacements : public xBaseResults {
public:
  /// @name Persisted object, version 1
  /// @oddity The base is not stored: a result that is read has to compute its factor anew.
  ///@{
  void reset() override;
  std::string getIOClass() const override;
  void pub_read(instream& in) override;
  void pub_write(outstream& out) const override;
  ///@}

  /// Appends the displacements and gives all results the limits of the wall.
  /// @param excNode  node at the excavation level
  /// @retval errNoWall  no pile wall
  /// @retval errResultCount  results and combinations differ in number
  /// @retval errNoCheckEnabled  a combination has an empty table of verifications
  /// @retval errNodeCountModel  a combination has no displacement at the node
  OstrelErrorType check(unsigned excNode, const xSheetpilingData& data,
                        const std::vector<xCombResults>& combinations);
  OstrelErrorType collectDispl(std::int64_t idObj, unsigned excNode,
                               const std::vector<xLoadComb>& combs,
                               const std::vector<xCombResults>& combinations);
  /// Smallest factor [-], 1e10 without results; stores it with its position. A factor below 1 that
  /// lowers the minimum is appended to `failures`, unless that is null.
  double getSfMin(std::vector<osg::ref_ptr<xCheckInfo>>* failures);
  void computeSfMin() { getSfMin(nullptr); }

  std::vector<xServiceLimitDispCombRes> results;

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;
};

/// What the serviceability limit state produced.
class OSTREL_API xServiceabilityLimitStates {
public:
  /// @name Persisted object, version 1
  ///@{
  virtual void reset();
  virtual std::string getIOClass() const;
  virtual void pub_read(instream& in);
  virtual void pub_write(outstream& out) const;
  ///@}
  virtual ~xServiceabilityLimitStates() = default;
  xServiceabilityLimitStates() = default;
  xServiceabilityLimitStates(const xServiceabilityLimitStates&) = default;
  xServiceabilityLimitStates(xServiceabilityLimitStates&&) = default;
  xServiceabilityLimitStates& operator=(const xServiceabilityLimitStates&) = default;
  xServiceabilityLimitStates& operator=(xServiceabilityLimitStates&&) = default;

  double getSfMin(std::vector<osg::ref_ptr<xCheckInfo>>* failures);

  xServiceLimitDisplacements displacements;

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;
};
