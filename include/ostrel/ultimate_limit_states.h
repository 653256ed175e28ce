#pragma once
/// @file  The outcome of the ultimate limit state verifications. Room: structural
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/cap_beam.h"
#include "ostrel/check_frame.h"
#include "ostrel/export.h"
#include "ostrel/geotechnical_anchor_check.h"
#include "ostrel/hydraulic_check.h"
#include "ostrel/pile_bearing_check.h"
#include "ostrel/rigid_body_check.h"
#include "ostrel/slope_stability.h"
#include "ostrel/stream.h"
#include "ostrel/structural_anchor_check.h"
#include "ostrel/wall_check.h"

#include <osg/ref_ptr>

#include <cstdint>
#include <string>
#include <vector>

/// What each verification of the ultimate limit states produced. It holds ids, names and numbers
/// and outlives the solver. A run appends to what stands: hand in a new or a reset object.
class OSTREL_API xUltimateLimitStates {
public:
  /// @name Persisted object, version 4
  /// The members in their order. Reading refuses older versions by throwing the version as an int.
  ///@{
  virtual void reset();
  virtual std::string getIOClass() const;
  virtual void pub_read(instream& in);
  virtual void pub_write(outstream& out) const;
  ///@}
  virtual ~xUltimateLimitStates() = default;
  xUltimateLimitStates() = default;
  xUltimateLimitStates(const xUltimateLimitStates&) = default;
  xUltimateLimitStates(xUltimateLimitStates&&) = default;
  xUltimateLimitStates& operator=(const xUltimateLimitStates&) = default;
  xUltimateLimitStates& operator=(xUltimateLimitStates&&) = default;

  /// Smallest safety factor over all verifications [-], 1e10 without any; every level appends its
  /// failures to `failures`, in the order of the members, unless that is null.
  double getSfMin(std::vector<osg::ref_ptr<xCheckInfo>>* failures);

  /// Appends the id of every anchor with a result, in its structure or in the ground; then the ids
  /// are sorted, those that were there before too, and each is kept once.
  void getAnchorsID(bool structural, std::vector<std::int64_t>& ids) const;

  xStructuralDesign structuralDesign;                  ///< the reinforced concrete wall
  xSlopeStabilityDesign slopeStabilityDesign;          ///< global stability by slip circles
  xStructuralAnchorDesign structuralAnchorDesign;      ///< the tendons of the anchors
  xGeotechnicalAnchorDesign geotechnicalAnchorDesign;  ///< the bulbs of the anchors in the ground
  xGeotechnicalPileDesign geotechnicalPileDesign;      ///< the piles under vertical load
  xrigidBodyDesign rigidBodyDesign;                    ///< motion of the wall as a rigid body
  TraveResults traveResults;                           ///< the cap beam
  verificheIdrauliche hydraulicChecks;                 ///< uplift and piping

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 4; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;
};
