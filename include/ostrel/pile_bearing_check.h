#pragma once
/// @file  Verification of the piles under vertical load. Room: geotech
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/check_frame.h"
#include "ostrel/diagram.h"
#include "ostrel/error.h"
#include "ostrel/export.h"
#include "ostrel/pile_bearing_settings.h"
#include "ostrel/soil_layer.h"
#include "ostrel/soil_props.h"
#include "ostrel/stream.h"

#include <osg/ref_ptr>

#include <string>
#include <vector>

class xCombResults;
class xLoadComb;
class xPile_Sheetpiling;
class xSheetpilingData;

/// What the bearing capacity of a pile is worked out from.
class OSTREL_API xBearCapacityPileData {
public:
  virtual void reset();
  virtual ~xBearCapacityPileData() = default;
  xBearCapacityPileData() = default;
  xBearCapacityPileData(const xBearCapacityPileData&) = default;
  xBearCapacityPileData(xBearCapacityPileData&&) = default;
  xBearCapacityPileData& operator=(const xBearCapacityPileData&) = default;
  xBearCapacityPileData& operator=(xBearCapacityPileData&&) = default;

  const bearSecPile& getSection() const { return section_; }
  void setSectionCirc(double diameter);  ///< [mm]
  /// A rectangle by its sides [mm] and the way of taking its diameter.
  void setSectionRect(double first, double second, bearSecPile::evalDiamMethod method);
  double pile_Area() const { return section_.getArea(); }    ///< [mm²]
  double pile_Perim() const { return section_.getPerim(); }  ///< [mm]

  double getLength() const { return Length; }
  void setLength(double length) { Length = length; }
  double getLoad() const { return Load; }
  void setLoad(double load) { Load = load; }
  double getTopStress() const { return TopStress; }
  void setTopStress(double stress) { TopStress = stress; }
  double getPileWeight() const { return PileWeight; }
  void setPileWeight(double weight) { PileWeight = weight; }

  /// Along the embedded part, from the top down. Their starts count from the excavation and their
  /// levels from the head of the wall [mm].
  std::vector<xSoilLayer> layers;

private:
  bearSecPile section_;
  double Length = 0.0;      ///< embedded length [mm]
  double Load = 0.0;        ///< axial load, compression positive [N]
  double TopStress = 0.0;   ///< vertical stress in the ground at the top of the pile [N/mm²]
  double PileWeight = 0.0;  ///< added to the load as it is
};

/// Partial factors of one combination on the soil and on the resistances of a pile.
class OSTREL_API xPilePartialFactors {
public:
  virtual void
  reset();  ///< sets the three factors on resistances to 1 and leaves those on the soil
  virtual ~xPilePartialFactors() = default;
  xPilePartialFactors() = default;
  xPilePartialFactors(const xPilePartialFactors&) = default;
  xPilePartialFactors(xPilePartialFactors&&) = default;
  xPilePartialFactors& operator=(const xPilePartialFactors&) = default;
  xPilePartialFactors& operator=(xPilePartialFactors&&) = default;

  void clear();  ///< empties the factors on the soil and leaves the others

  double getGammaB() const { return GammaB; }
  void setGammaB(double factor) { GammaB = factor; }
  double getGammaS() const { return GammaS; }
  void setGammaS(double factor) { GammaS = factor; }
  double getGammaST() const { return GammaST; }
  void setGammaST(double factor) { GammaST = factor; }
  /// The factor on the shaft for an action `F` [N]: that of tension for a negative one.
  double getGammaLatSurf(double F) const { return 0.0 > F ? GammaST : GammaS; }

  std::vector<GeoCombFactor> factors;  ///< on the soil, by position [-]

private:
  double GammaB = 1.0;   ///< on the tip [-]
  double GammaS = 1.0;   ///< on the shaft in compression [-]
  double GammaST = 1.0;  ///< on the shaft in tension [-]
};

/// A pile that does not bear its load.
class OSTREL_API bearCapacityCheckInfo : public xCheckInfo {
public:
  ~bearCapacityCheckInfo() override = default;
  bearCapacityCheckInfo* clone() const override;
  std::string getString() const override;

  bearCapacityCheckInfo() = default;
  bearCapacityCheckInfo(const bearCapacityCheckInfo&) = default;
  bearCapacityCheckInfo& operator=(const bearCapacityCheckInfo&) = default;
};

/// The bearing capacity of a pile in one combination.
class OSTREL_API xBearCapacityPile : public xCheckCombID {
public:
  /// @name Persisted object, version 1
  ///@{
  void reset() override;
  std::string getIOClass() const override;
  void pub_read(instream& in) override;
  void pub_write(outstream& out) const override;
  ///@}

  /// Works out the resistances and then
  ///
  ///     Fd = Load + PileWeight,  Rd = Slim / (gl xi) + Plim / (GammaB xi)
  ///
  /// with gl the factor on the shaft and xi one of the two correlation factors.
  ///
  /// @oddity A pile that is pulled out counts on its tip too. Stored results depend on it.
  ///
  /// A correlation factor or partial factor of 0 gives a resistance that is not finite: unlimited,
  /// or no number where there is nothing to divide.
  OstrelErrorType check(const xBearCapacityPileData& data,
                        const xBearCapacityPileSettings& settings,
                        const xPilePartialFactors& factors);

  double getSf() const { return CalculateSF(Fd, Rd); }  ///< safety factor [-]
  osg::ref_ptr<bearCapacityCheckInfo> getCheckInfo() const;

  double getDepthStress() const { return DepthStress; }
  void setDepthStress(double stress) { DepthStress = stress; }
  double getNq() const { return Nq; }
  void setNq(double factor) { Nq = factor; }
  double getNc() const { return Nc; }
  void setNc(double factor) { Nc = factor; }
  double getPlim() const { return Plim; }
  void setPlim(double resistance) { Plim = resistance; }
  double getSlim() const { return Slim; }
  void setSlim(double resistance) { Slim = resistance; }
  double getFd() const { return Fd; }
  void setFd(double action) { Fd = action; }
  double getRd() const { return Rd; }
  void setRd(double resistance) { Rd = resistance; }

protected:
  /// Works out tip and shaft; without layers all results stay as they were.
  ///
  /// @oddity Without the correction for the way a pile is made, the friction angle meets the charts
  /// in radians, although they are in degrees: the tip then has hardly more than the least factors.
  /// Stored results depend on it.
  OstrelErrorType computeResistances(const xBearCapacityPileData& data,
                                     const xBearCapacityPileSettings& settings,
                                     const xPilePartialFactors& factors);

  /// @name Bearing factors at the tip [-]
  /// @param phi  friction angle [°]
  ///@{
  double computeNq(const xBearCapacityPileData& data, double phi) const;
  double computeNc(const xBearCapacityPileData& data, double phi) const;
  ///@}

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;

  /// The shaft, once tip and stress are known.
  ///
  /// @oddity The resistance of the shaft is not a sum: each layer replaces what the layer above it
  /// gave, and a layer with friction also the stress. Strength is that of the soil at the tip in
  /// every layer, and the partial factors divide it once more at each. Stored results depend on it.
  void compute_shaft(const xBearCapacityPileData& data, xtechPiles technology, xSoilProps tip,
                     const std::vector<GeoCombFactor>& factors);

  double DepthStress = 0.0;  ///< vertical stress reached [N/mm²]
  double Nq = 0.0;           ///< bearing factor of the overburden [-]
  double Nc = 0.0;           ///< bearing factor of the cohesion [-]
  double Plim = 0.0;         ///< resistance of the tip [N]
  double Slim = 0.0;         ///< resistance of the shaft [N]
  double Fd = 0.0;           ///< design action, compression positive [N]
  double Rd = 0.0;           ///< design resistance [N]
};

/// The verification of the piles over all combinations.
class OSTREL_API xGeotechnicalPileDesign : public xBaseResults {
public:
  /// @name Persisted object, version 1
  ///@{
  void reset() override;
  std::string getIOClass() const override;
  void pub_read(instream& in) override;
  void pub_write(outstream& out) const override;
  ///@}

  /// Appends a result for each combination that asks for the vertical limit load.
  ///
  /// The ground is made of the layers that begin at or below the excavation and end at or above the
  /// foot, compared without a tolerance; the first that ends below the foot ends them. The load is
  /// the force at the deepest node of those that hold the wall.
  ///
  /// @oddity The weight of the pile is its unit weight times the length of the wall: the area of
  /// the section does not enter. Stored results depend on it.
  /// @oddity Of a layer only the start counts from the excavation; its levels still count from the
  /// head of the wall. Stored results depend on it.
  ///
  /// @param nodes  of the beam; y is the depth [mm]
  /// @retval errNoWall  no pile wall
  /// @retval errInvalidSection  neither a circle nor a rectangle, or one without a size
  /// @retval errResultCount  more results than combinations
  /// @retval errFemNodeNotFound  a force at a node that the beam does not have
  OstrelErrorType check(const std::vector<xPoint2d>& nodes, const xSheetpilingData& data,
                        const std::vector<xSoilLayer>& layers,
                        const std::vector<xCombResults>& combinations);

  /// Smallest factor [-], 1e10 without results; stores it with its position. A factor below 1 that
  /// lowers the minimum is appended to `failures`, unless that is null.
  double getSfMin(std::vector<osg::ref_ptr<xCheckInfo>>* failures);
  void computeSfMin() { getSfMin(nullptr); }

  std::vector<xBearCapacityPile> results;  ///< one for each combination that asks for it

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;

  OstrelErrorType append_result(const std::vector<xPoint2d>& nodes, const xPile_Sheetpiling& wall,
                                const xLoadComb& comb, const xCombResults& combination,
                                xBearCapacityPileData& pile);
};
