#pragma once
/// @file  Verification of the anchors against being pulled out of the ground. Room: anchors
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/anchor.h"
#include "ostrel/anchor_results.h"
#include "ostrel/check_frame.h"
#include "ostrel/error.h"
#include "ostrel/export.h"
#include "ostrel/soil_layer.h"
#include "ostrel/soil_props.h"
#include "ostrel/stream.h"

#include <osg/ref_ptr>

#include <string>
#include <vector>

class xCombResults;
class xSheetpilingData;

/// The partial factors of one combination on an anchor in the ground.
class OSTREL_API xAnchorPartialFactors {
public:
  virtual void reset();
  virtual ~xAnchorPartialFactors() = default;
  xAnchorPartialFactors() = default;
  xAnchorPartialFactors(const xAnchorPartialFactors&) = default;
  xAnchorPartialFactors(xAnchorPartialFactors&&) = default;
  xAnchorPartialFactors& operator=(const xAnchorPartialFactors&) = default;
  xAnchorPartialFactors& operator=(xAnchorPartialFactors&&) = default;

  std::vector<GeoCombFactor> geoFactors;  ///< on the soil, by position
  double gammaR = 0.0;                    ///< on the resistance to being pulled out [-]
};

/// One stretch of the bonded length, in one soil.
class OSTREL_API xBulbAnchor {
public:
  /// @name Persisted object, version 1
  ///@{
  virtual void reset();
  virtual std::string getIOClass() const;
  virtual void pub_read(instream& in);
  virtual void pub_write(outstream& out) const;
  ///@}
  virtual ~xBulbAnchor() = default;
  xBulbAnchor() = default;
  xBulbAnchor(const xBulbAnchor&) = default;
  xBulbAnchor(xBulbAnchor&&) = default;
  xBulbAnchor& operator=(const xBulbAnchor&) = default;
  xBulbAnchor& operator=(xBulbAnchor&&) = default;

  double getDepthStress() const { return DepthStress; }
  void setDepthStress(double stress) { DepthStress = stress; }
  double getArea() const { return Area; }
  void set_Area(double area) { Area = area; }
  double getSoilCoeff() const { return SoilCoeff; }
  void setSoilCoeff(double coefficient) { SoilCoeff = coefficient; }
  double getAlphaD() const { return AlphaD; }
  void setAlphaD(double enlargement) { AlphaD = enlargement; }

  /// Sets the coefficient of lateral stress from `soil`, by the number of a `SoilCoeffKType`:
  ///
  ///     0: K0 = (1 - sin(phi)) sqrt(OCR),  1: Ka = tan²(pi/4 - delta/2),  other: (Ka + K0) / 2
  ///
  /// @oddity Ka takes the friction on the interface, delta, and K0 that of the soil, phi. Stored
  /// results depend on it.
  ///
  /// @source K0: Jaky (1944), with OCR^0.5 for overconsolidated soil, EN 1997-1, 9.5.2
  void calcSoilCoeff(int type);

  /// Strength of the bond of this stretch: (tan(delta) K sigma'v + a) A alphaD [N].
  double anchorageStrength() const;

  xSoilProps soil;  ///< with its design values

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;

  double DepthStress = 0.0;  ///< effective vertical stress sigma'v at mid-length [N/mm²]
  double Area = 0.0;         ///< lateral surface A [mm²]
  double SoilCoeff = 0.0;    ///< coefficient of lateral stress K [-]
  double AlphaD = 1.0;       ///< enlargement factor of the grout body [-]
};

/// The bulb of one anchor in one combination.
class OSTREL_API xGeoAnchorCombRes : public xAnchorResults {
public:
  /// @name Persisted object, version 1
  ///@{
  void reset() override;
  std::string getIOClass() const override;
  void pub_read(instream& in) override;
  void pub_write(outstream& out) const override;
  ///@}

  /// Cuts the bonded length where it crosses the borders of the layers, and makes `bulbs` anew, one
  /// for each stretch, with the design values of its soil and the stress at its middle. A bonded
  /// length of 0 has none, which is a success here.
  ///
  /// @retval errNoLayerIntersection  the middle of a stretch lies in no layer; the stretches before
  ///         it stay
  OstrelErrorType buildBulb(const xAnchor& anchor, const xWaterTable& water,
                            const std::vector<xBoundSoilLayer>& layers,
                            const xAnchorPartialFactors& factors);

  /// Stores depth, force, resistance and factor; Rd is the strength of all stretches, divided by
  /// the correlation factor and by `gammaR`.
  ///
  /// @oddity A correlation factor of 0 is not refused: the resistance is infinite and the factor
  /// 1e10. Stored results depend on it.
  ///
  /// @param Fd  design force, positive in tension [N]
  /// @retval errNoBulb             there is no stretch
  /// @retval errPulloutFactorZero  `gammaR` is 0, or not a number
  OstrelErrorType _check(double Fd, const xAnchor& anchor, const xAnchorPartialFactors& factors);

  osg::ref_ptr<anchorCheckInfo> getCheckInfo() const;  ///< the failure record of this result

  std::vector<xBulbAnchor> bulbs;  ///< stretches of the bonded length, from the free length on

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;
};

/// The bulb of one anchor in its combinations.
class OSTREL_API xGeoAnchorResults : public xBaseResults {
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

  std::vector<xGeoAnchorCombRes> combinations;  ///< those that ask for this verification

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;
};

/// The bulbs of all anchors.
class OSTREL_API xGeotechnicalAnchorDesign : public xBaseResults {
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
  /// @param results  of the combinations of `data`, by position
  /// @retval errResultCount          results and combinations differ in number
  /// @retval errNoLayerIntersection  a stretch of a bulb lies in no layer
  /// @retval errFemNodeNotFound      an anchor has no link, or a combination no results at its node
  /// @retval errNoBulb               an anchor has no bonded length
  /// @retval errPulloutFactorZero    a combination has a factor of 0 on this resistance
  OstrelErrorType check(const xSheetpilingData& data, const std::vector<info_Fem_anchor>& fem,
                        const std::vector<xCombResults>& results);

  /// Smallest factor over the anchors [-], a tie going to the later one; 1e10 without any.
  double getSfMin(std::vector<osg::ref_ptr<xCheckInfo>>* failures);

  /// Those with a combination, in the order of the input; a position here is not one there.
  std::vector<xGeoAnchorResults> anchors;

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;
};
