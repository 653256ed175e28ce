#pragma once
/// @file  Design and verification of the cap beam. Room: structural
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/check_frame.h"
#include "ostrel/error.h"
#include "ostrel/export.h"
#include "ostrel/load_combination.h"
#include "ostrel/materials.h"
#include "ostrel/reinforcement.h"
#include "ostrel/reinforcement_settings.h"
#include "ostrel/stream.h"
#include "ostrel/wall_check.h"

#include <osg/ref_ptr>

#include <string>
#include <vector>

class xCombResults;
class xSheetpilingData;
class xStructuralAnchorDesign;

/// A failure of the cap beam. Its message does not tell the section.
class OSTREL_API concreteTraveCheckInfo : public concreteCheckInfo {
public:
  concreteTraveCheckInfo* clone() const override;

  /// @oddity The factor follows ", sf" without an equals sign, other than in every other message.
  /// Hosts rely on it.
  std::string getString() const override;
};

/// The cap beam of the wall: what it was designed from, its reinforcement and its verification.
class OSTREL_API TraveResults {
public:
  /// @name Persisted object, version 1
  /// @oddity It is stored under the class name of `xReinforcement`. Stored documents depend on it.
  ///@{
  virtual std::string getIOClass() const;
  virtual void pub_read(instream& in);
  virtual void pub_write(outstream& out) const;
  ///@}
  virtual ~TraveResults() = default;
  TraveResults() = default;
  TraveResults(const TraveResults&) = default;
  TraveResults(TraveResults&&) = default;
  TraveResults& operator=(const TraveResults&) = default;
  TraveResults& operator=(TraveResults&&) = default;

  void reset();

  /// Verifies `checked` against the stored forces. A record that no section can take resists
  /// nothing.
  void check();

  /// Smallest factor over the combinations [-], 1e10 without any. A factor below 1 that lowers the
  /// minimum of its combination is appended to `failures`, unless that is null.
  double getSfMin(std::vector<osg::ref_ptr<xCheckInfo>>* failures);

  bool done = false;                         ///< the verification was carried out
  double B = 0.0;                            ///< width of the beam, its depth in bending [mm]
  double H = 0.0;                            ///< height of the beam [mm]
  xReinforcement_SettingsTrave settings;     ///< as they were in the input
  xMaterialProps material;                   ///< of the wall
  xBendShearResults bendShear;               ///< one section for each combination
  osg::ref_ptr<xReinfRectSection> designed;  ///< outcome of the design; null before
  osg::ref_ptr<xReinfRectSection> checked;   ///< what `check` verifies; null before

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;
};

/// Designs the cap beam for all combinations that ask for it, and verifies it.
///
/// The beam spans twice the spacing of the piles, freely supported, and bends in the horizontal
/// plane. In a combination with anchors on it, from the head down to its height, it carries their
/// forces as a distributed load; in one without, the reaction of the wall's head at midspan. Without
/// any combination that asks, it gets its least reinforcement and is not verified.
///
/// @param results  of the combinations
/// @param combs    the combinations, in the same order
/// @param anchors  forces of the anchors, from their own verification: in a combination that does
///                 not ask for that one, no anchor is known to bear on the beam
/// @param out      emptied first; it stays so where height and excavation are both 0: no beam
/// @retval errNoWall  no pile wall
/// @retval errInvalidSection  no reinforcement settings, or a size of the beam that is not finite
/// @retval errResultCount  more results than combinations
/// @retval errForceNotFound  an anchor of the results that the input does not hold, or that is of no
///         anchors: its force cannot be spread
OSTREL_API OstrelErrorType designTrave(const std::vector<xCombResults>& results,
                                       const std::vector<xLoadComb>& combs,
                                       const xStructuralAnchorDesign& anchors,
                                       const xSheetpilingData& data, TraveResults& out);
