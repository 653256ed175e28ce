#pragma once
/// @file  Verifications of piping and uplift at the foot of the wall. Room: geotech
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/check_frame.h"
#include "ostrel/error.h"
#include "ostrel/export.h"
#include "ostrel/load_combination.h"
#include "ostrel/soil_layer.h"
#include "ostrel/stream.h"

#include <osg/ref_ptr>

#include <cstdint>
#include <string>
#include <vector>

/// A failure of the ground under the foot of the wall, by uplift or by piping.
class OSTREL_API HydroCheckInfo : public xCheckInfo {
public:
  HydroCheckInfo* clone() const override;
  std::string getString() const override;

  bool isUplift = false;  ///< failed by uplift, otherwise by piping
};

/// Piping in one combination: the gradient where the water leaves the ground against the one that
/// carries the ground away.
class OSTREL_API verificaSifonamento : public xCheckCombID {
public:
  /// @name Persisted object, version 1
  ///@{
  /// Zeroes the four figures.
  ///
  /// @oddity Combination and object of the record stay.
  void reset() override;
  std::string getIOClass() const override;
  void pub_read(instream& in) override;
  void pub_write(outstream& out) const override;
  ///@}

  double iE() const;  ///< dH / Ld, the gradient at the exit [-]
  /// (iCrit / gammaR) / (dH / Ld) [-], 1e10 without a gradient
  double getSf() const;

  double dH = 0.0;      ///< head to dissipate between foot and exit [mm]
  double Ld = 0.0;      ///< length of the path from foot to exit [mm]
  double iCrit = 0.0;   ///< critical gradient [-]
  double gammaR = 0.0;  ///< partial factor of the resistance [-]

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;
};

/// Uplift in one combination: the water under the prism of ground before the foot against its
/// weight. The prism is as deep as the foot lies below the ground and half as wide.
class OSTREL_API verificaSollevamento : public xCheckCombID {
public:
  /// @name Persisted object, version 1
  ///@{
  /// Zeroes the eight figures.
  ///
  /// @oddity Combination and object of the record stay.
  void reset() override;
  std::string getIOClass() const override;
  void pub_read(instream& in) override;
  void pub_write(outstream& out) const override;
  ///@}

  /// (gammaStb Gstb) / (gammaDst Udst) [-], 1e10 without a force of the water.
  ///
  /// @oddity `gammaR` has no part in it. Stored results depend on it.
  double getSf() const;

  double Udst = 0.0;      ///< destabilising force of the excess water pressure [N/mm]
  double Gstb = 0.0;      ///< stabilising submerged weight [N/mm]
  double reserved = 0.0;  ///< always 0
  double gammaStb = 0.0;  ///< factor of the weight: the first of the earth pressure's action [-]
  double gammaDst = 0.0;  ///< factor of the water: the second of the earth pressure's action [-]
  double gammaR = 0.0;    ///< partial factor of the resistance, for display [-]
  double i = 0.0;         ///< mean gradient from foot to exit [-]
  double iCrit = 0.0;     ///< critical gradient [-]

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;
};

/// Uplift and piping in all combinations that ask for them.
class OSTREL_API verificheIdrauliche {
public:
  /// @name Persisted object, version 1
  ///@{
  virtual std::string getIOClass() const;
  virtual void pub_read(instream& in);
  virtual void pub_write(outstream& out) const;
  ///@}
  virtual ~verificheIdrauliche() = default;
  verificheIdrauliche() = default;
  verificheIdrauliche(const verificheIdrauliche&) = default;
  verificheIdrauliche(verificheIdrauliche&&) = default;
  verificheIdrauliche& operator=(const verificheIdrauliche&) = default;
  verificheIdrauliche& operator=(verificheIdrauliche&&) = default;

  void reset();

  /// Smallest factor [-], 1e10 without results: uplift first, then piping. A factor below 1 that
  /// lowers the minimum is appended to `failed`, unless that is null.
  double getSfMin(std::vector<osg::ref_ptr<xCheckInfo>>* failed);

  std::vector<verificaSollevamento> uplift;  ///< one for each combination that asks for it
  std::vector<verificaSifonamento> piping;   ///< one for each combination that asks for it

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;
};

/// Verifies piping and uplift for every combination that asks for them, where the water stands
/// higher uphill than downhill.
///
/// Nothing is verified, and nothing said, without water or combinations, with the foot above the
/// lower water, or with both waters at the excavation or below it.
///
/// @param idObj   id of the wall
/// @param water   its levels on both sides
/// @param layers  the ground, from the top down
/// @param combs   the combinations
/// @param toeY    elevation of the wall's foot [mm]
/// @param digY    elevation of the excavation [mm]
/// @param out     reset, and then one record for each verification; after a code those of the
///                combinations before
/// @retval errNoLayerIntersection  a side of the wall has no layer between water and foot
/// @retval errHydroNoWater  a level of the water is no finite number
/// @retval errCondListMismatch  a combination that asks for uplift has less than two actions
OSTREL_API OstrelErrorType hyDroCheck(std::int64_t idObj, const xWaterTable& water,
                                      const std::vector<xBoundSoilLayer>& layers,
                                      const std::vector<xLoadComb>& combs, double toeY, double digY,
                                      verificheIdrauliche& out);
