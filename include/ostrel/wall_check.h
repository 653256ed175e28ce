#pragma once
/// @file  Design and verification of the wall in bending and shear. Room: structural
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/check_frame.h"
#include "ostrel/error.h"
#include "ostrel/export.h"
#include "ostrel/load_combination.h"
#include "ostrel/reinforcement.h"
#include "ostrel/reinforcement_settings.h"
#include "ostrel/section_check.h"
#include "ostrel/stream.h"

#include <sorrel/cross_section.h>

#include <osg/ref_ptr>

#include <cstdint>
#include <string>
#include <vector>

class xCombResults;

/// The design forces at one section.
class OSTREL_API xSollVector {
public:
  /// @name Persisted object, version 1
  ///@{
  virtual std::string getIOClass() const;
  virtual void pub_read(instream& in);
  virtual void pub_write(outstream& out) const;
  ///@}
  virtual ~xSollVector() = default;
  xSollVector() = default;
  xSollVector(double abscissa, double axial, double shear, double moment)
      : z(abscissa), N(axial), T(shear), M(moment) {}
  xSollVector(const xSollVector&) = default;
  xSollVector& operator=(const xSollVector&) = default;

  int xsize() const { return 4; }
  /// The entry at a position: 0 abscissa, 1 axial force, 2 shear, 3 moment. Any other position
  /// gives a number of the calling thread that every call sets to 0, so that writing there changes
  /// no vector.
  double& operator[](int position);

  double z = 0.0;  ///< abscissa: depth below the head [mm]
  double N = 0.0;  ///< axial force, tension positive [N]
  double T = 0.0;  ///< shear force [N]
  double M = 0.0;  ///< bending moment [Nmm]

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;
};

/// The design forces of one combination.
class OSTREL_API xStructCombRes : public xCheckCombID {
public:
  /// @name Persisted object, version 5
  /// Reading refuses older versions by throwing the version as an int.
  ///
  /// @oddity The base is not stored: a record that is read has its combination and object unset.
  ///@{
  void reset() override;
  std::string getIOClass() const override;
  void pub_read(instream& in) override;
  void pub_write(outstream& out) const override;
  ///@}

  std::vector<xSollVector> stresses;  ///< two for each element, from the head down

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 5; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;
};

/// Sections of one combination, verified in bending and shear.
class OSTREL_API xBendShearCombResults : public xBaseResults, public xCheckCombID {
public:
  /// @name Persisted object, version 2
  /// Reading refuses older versions by throwing the version as an int.
  ///@{
  void reset() override;
  std::string getIOClass() const override;
  void pub_read(instream& in) override;
  void pub_write(outstream& out) const override;
  ///@}

  /// Smallest factor over the sections [-], 1e10 without any; stores it with its position. A factor
  /// below 1 that lowers the minimum is appended to `failures`, unless that is null.
  double getSfMin(std::vector<osg::ref_ptr<xCheckInfo>>* failures);

  std::vector<xSectionCheck> sections;

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 2; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;
};

/// All combinations of the wall.
class OSTREL_API xBendShearResults : public xBaseResults {
public:
  /// @name Persisted object, version 1
  ///@{
  void reset() override;
  std::string getIOClass() const override;
  void pub_read(instream& in) override;
  void pub_write(outstream& out) const override;
  ///@}

  /// Smallest factor over the combinations [-], a tie going to the later one; 1e10 without any.
  double getSfMin(std::vector<osg::ref_ptr<xCheckInfo>>* failures);

  std::vector<xBendShearCombResults> combinations;

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;
};

/// Sections of one combination, verified in shear alone. No verification fills it; it stands for
/// hosts.
class OSTREL_API xShearCombResults : public xBaseResults, public xCheckCombID {
public:
  /// @name Persisted object, version 1
  ///@{
  void reset() override;
  std::string getIOClass() const override;
  void pub_read(instream& in) override;
  void pub_write(outstream& out) const override;
  ///@}

  double getSfMin(std::vector<osg::ref_ptr<xCheckInfo>>* failures);  ///< as for bending and shear

  std::vector<xShear> sections;

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;
};

/// All combinations of a member verified in shear alone.
class OSTREL_API xShearResults : public xBaseResults {
public:
  /// @name Persisted object, version 1
  ///@{
  void reset() override;
  std::string getIOClass() const override;
  void pub_read(instream& in) override;
  void pub_write(outstream& out) const override;
  ///@}

  /// Smallest factor over the combinations [-]; the position stays 0.
  double getSfMin(std::vector<osg::ref_ptr<xCheckInfo>>* failures);

  std::vector<xShearCombResults> combinations;

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;
};

/// The reinforced concrete wall: its forces by section and combination, the reinforcement designed
/// for them, and the verification of every section.
class OSTREL_API xStructuralDesign {
public:
  /// @name Persisted object, version 3
  /// Reading refuses older versions by throwing the version as an int.
  ///@{
  virtual void reset();
  virtual std::string getIOClass() const;
  virtual void pub_read(instream& in);
  virtual void pub_write(outstream& out) const;
  ///@}
  virtual ~xStructuralDesign() = default;
  xStructuralDesign() = default;
  xStructuralDesign(const xStructuralDesign&) = default;
  xStructuralDesign(xStructuralDesign&&) = default;
  xStructuralDesign& operator=(const xStructuralDesign&) = default;
  xStructuralDesign& operator=(xStructuralDesign&&) = default;

  /// Appends the forces of every combination that asks for this verification.
  /// @retval errResultCount  results and combinations, or the three diagrams of one, differ in
  ///         number
  /// @retval errNoCheckEnabled  a combination has an empty table of verifications
  OstrelErrorType collectStress(std::int64_t idObj, const std::vector<xLoadComb>& combs,
                                const std::vector<xCombResults>& results);

  /// Sizes the reinforcement for all forces, one record for each abscissa.
  ///
  /// @oddity The record of an abscissa is kept at the first of the two positions that share it, so
  /// at an inner node it answers for the element above alone; `check` then finds what is short.
  /// Stored results depend on it.
  ///
  /// @retval errInvalidSection  a section of an unknown shape, or settings that do not suit it
  OstrelErrorType design(const xCrossSecProp* section,
                         osg::ref_ptr<xReinforcement_Settings>& settings);

  /// Verifies every section of every combination with `checkedReinforcement`.
  /// @retval errInvalidSection  as for `design`
  /// @retval errNoReinfAtAbscissa  no record at an abscissa; earlier combinations are kept
  /// @retval errReinfForSection  a record of another shape
  OstrelErrorType check(const xCrossSecProp* section,
                        osg::ref_ptr<xReinforcement_Settings>& settings);

  /// How many sections the combination at `comb` has; 1 beyond the end.
  unsigned int getNumSez(unsigned int comb) const;
  /// The forces at a section; zeros beyond the end.
  const xSollVector* getSoll(unsigned int comb, unsigned int section);
  double getSfMin(std::vector<osg::ref_ptr<xCheckInfo>>* failures);

  std::vector<xStructCombRes> combResults;  ///< one for each active combination
  xBendShearResults bendShear;              ///< outcome of `check`
  xReinforcement designedReinforcement;     ///< outcome of `design`
  xReinforcement checkedReinforcement;      ///< what `check` verifies

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 3; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;

  xSollVector scratch_;  // what `getSoll` gives beyond the end
};
