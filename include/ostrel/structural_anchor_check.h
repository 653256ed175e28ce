#pragma once
/// @file  Verification of the tendons of the anchors. Room: anchors
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/anchor.h"
#include "ostrel/anchor_results.h"
#include "ostrel/check_frame.h"
#include "ostrel/error.h"
#include "ostrel/export.h"
#include "ostrel/stream.h"

#include <osg/ref_ptr>

#include <string>
#include <vector>

class xCombResults;
class xSheetpilingData;

/// The tendon of one anchor in one combination.
class OSTREL_API xStrAnchorCombRes : public xAnchorResults {
public:
  /// @name Persisted object, version 2
  /// Reading refuses older versions by throwing the version as an int.
  ///@{
  void reset() override;
  std::string getIOClass() const override;
  void pub_read(instream& in) override;
  void pub_write(outstream& out) const override;
  ///@}

  /// Design resistance of one tendon, whatever the number of anchors at its level:
  ///
  ///     Rd = pi d² / 4 · fyk / gammaS
  ///
  /// @param Rd  receives the resistance [N], 0 where there is a code
  /// @retval errSteelFactorZero    the partial factor is 0, or not a number
  /// @retval errAnchorSectionZero  the section is 0, or not a number
  // sic: the interface's spelling
  static OstrelErrorType getStructaralResistance(const xAnchor& anchor, double& Rd);

  /// Stores depth, force, resistance and factor. They are stored also where there is a code; the
  /// resistance is then not finite or 0.
  /// @param Fd  design force, positive in tension [N]
  /// @return as `getStructaralResistance`
  OstrelErrorType check(double Fd, const xAnchor& anchor);

  osg::ref_ptr<anchorCheckInfo> getCheckInfo() const;  ///< the failure record of this result

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 2; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;
};

/// The tendon of one anchor in its combinations.
class OSTREL_API xStrAnchorResults : public xBaseResults {
public:
  /// @name Persisted object, version 1
  ///@{
  void reset() override;
  std::string getIOClass() const override;
  void pub_read(instream& in) override;
  void pub_write(outstream& out) const override;
  ///@}

  /// Smallest factor over the combinations [-], 1e10 without any; stores it with its position. A
  /// factor below 1 that lowers the minimum is appended to `failures`, unless that is null.
  double getSfMin(std::vector<osg::ref_ptr<xCheckInfo>>* failures);
  void computeSfMin() { getSfMin(nullptr); }

  std::vector<xStrAnchorCombRes> combinations;  ///< those that ask for this verification

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;
};

/// The tendons of all anchors.
class OSTREL_API xStructuralAnchorDesign : public xBaseResults {
public:
  /// @name Persisted object, version 1
  ///@{
  void reset() override;
  std::string getIOClass() const override;
  void pub_read(instream& in) override;
  void pub_write(outstream& out) const override;
  ///@}

  /// Verifies every anchor in every combination that asks for it, and appends what it found. A code
  /// ends the verification: anchors already done stay, the one under way is dropped.
  ///
  /// @param fem      the link of each anchor to the beam
  /// @param results  of the combinations of `data`, by position; those beyond its last are left out
  /// @retval errAnchorNodeCount    links and anchors differ in number
  /// @retval errFemNodeNotFound    a combination has no results at the node of an anchor
  /// @retval errSteelFactorZero    the partial factor of a tendon is 0
  /// @retval errAnchorSectionZero  the section of a tendon is 0
  OstrelErrorType check(const xSheetpilingData& data, const std::vector<info_Fem_anchor>& fem,
                        const std::vector<xCombResults>& results);

  /// Smallest factor over the anchors [-], a tie going to the later one; 1e10 without any.
  double getSfMin(std::vector<osg::ref_ptr<xCheckInfo>>* failures);

  std::vector<xStrAnchorResults> anchors;  ///< those with a combination, in the order of the input

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;
};
