#pragma once
/// @file  Verification against motion of the wall as a rigid body. Room: geotech
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/check_frame.h"
#include "ostrel/error.h"
#include "ostrel/export.h"
#include "ostrel/stream.h"

#include <osg/ref_ptr>

#include <string>
#include <vector>

class xCombResults;
class xSheetpilingData;
class xSheetpilingModel;

/// A wall that may move as a rigid body. Its common factor is that of the translation.
class OSTREL_API rigidBodyMotionCheckInfo : public xCheckInfo {
public:
  rigidBodyMotionCheckInfo* clone() const override;
  std::string getString() const override;

  double SfRot = 1e10;  ///< factor of the rotation [-]
};

/// What drives the wall and what resists in one combination, across it and about one point.
class OSTREL_API rigidBodyMotionCheck : public xCheckCombID {
public:
  /// @name Persisted object, version 2
  /// Reading refuses older versions by throwing the version as an int.
  ///@{
  void reset() override;
  std::string getIOClass() const override;
  void pub_read(instream& in) override;
  void pub_write(outstream& out) const override;
  ///@}

  double SFTrasl() const;  ///< Hres / Hdest [-]
  double SfRot() const;    ///< Mres / Mdest [-]
  /// The smaller of both factors [-]; the other where one is not a number.
  double getSf() const;
  xCheckInfo* getCheckInfo() const;  ///< a new failure, which the caller takes over

  double rotCenter = 0.0;  ///< elevation of the point of rotation [mm]
  double Hdest = 0.0;      ///< destabilising force across the wall [N]
  double Hres = 0.0;       ///< resisting force across the wall [N]
  double Mdest = 0.0;      ///< destabilising moment about the point [Nmm]
  double Mres = 0.0;       ///< resisting moment about the point [Nmm]

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 2; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;
};

/// The wall as a rigid body in all combinations that ask for it.
class OSTREL_API xrigidBodyDesign {
public:
  /// @name Persisted object, version 1
  ///@{
  virtual void reset();
  virtual std::string getIOClass() const;
  virtual void pub_read(instream& in);
  virtual void pub_write(outstream& out) const;
  ///@}
  virtual ~xrigidBodyDesign() = default;
  xrigidBodyDesign() = default;
  xrigidBodyDesign(const xrigidBodyDesign&) = default;
  xrigidBodyDesign(xrigidBodyDesign&&) = default;
  xrigidBodyDesign& operator=(const xrigidBodyDesign&) = default;
  xrigidBodyDesign& operator=(xrigidBodyDesign&&) = default;

  /// Appends one result for each combination that asks for it and has a point of rotation: the
  /// level of the anchors or, without anchors, where the soil springs change their sign. A wall
  /// with anchors at two levels or more has none, and no result.
  ///
  /// @param model    its anchor links are read
  /// @param combinations  one for each combination of `data`, in their order
  /// @retval errResultCount  results and combinations differ in number; nothing is appended
  OstrelErrorType check(xSheetpilingModel& model, const xSheetpilingData& data,
                        const std::vector<xCombResults>& combinations);

  /// Smallest factor over the results [-], 1e10 without any. Every result below 1 is appended to
  /// `failed`, unless that is null.
  double getSfMin(std::vector<osg::ref_ptr<xCheckInfo>>* failed);

  std::vector<rigidBodyMotionCheck> results;  ///< not parallel to the combinations

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;
};
