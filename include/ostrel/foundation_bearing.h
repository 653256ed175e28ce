#pragma once
/// @file  The bearing capacity of a strip foundation. Room: geotech
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/error.h"
#include "ostrel/export.h"
#include "ostrel/soil_props.h"
#include "ostrel/vocabulary.h"

#include <armadillo>

#include <cstdint>

namespace ostrel::geotech {
/// Factors of the three terms of a bearing capacity [-].
struct TermFactors {
  double c = 1.0;  ///< of the cohesion
  double q = 1.0;  ///< of the overburden
  double g = 1.0;  ///< of the weight
};
}  // namespace ostrel::geotech

/// The geometry of a foundation.
class OSTREL_API xGeomPropsFound {
public:
  virtual void reset();
  virtual ~xGeomPropsFound() = default;
  xGeomPropsFound() = default;
  xGeomPropsFound(const xGeomPropsFound&) = default;
  xGeomPropsFound& operator=(const xGeomPropsFound&) = default;

  double getWidth() const { return Width; }
  void setWidth(double width) { Width = width; }
  double getLength() const { return Length; }
  void setLength(double length) { Length = length; }
  double getDepth() const { return Depth; }
  void setDepth(double depth) { Depth = depth; }
  double getAlpha() const { return Alpha; }
  void setAlpha(double alpha) { Alpha = alpha; }
  double getBeta() const { return Beta; }
  void setBeta(double beta) { Beta = beta; }

private:
  double Width = 0.0;   ///< B, the shorter side [mm]
  double Length = 0.0;  ///< L; read by the shape, the shaped inclination and the punching [mm]
  double Depth = 0.0;   ///< D, of the base below the ground [mm]
  double Alpha = 0.0;   ///< inclination of the base to the horizontal [rad]
  double Beta = 0.0;    ///< inclination of the ground [rad]
};

/// What the bearing capacity of a foundation is worked out from.
class OSTREL_API xBearCapacityData {
public:
  virtual void reset();
  virtual ~xBearCapacityData() = default;
  xBearCapacityData() = default;
  xBearCapacityData(const xBearCapacityData&) = default;
  xBearCapacityData(xBearCapacityData&&) = default;
  xBearCapacityData& operator=(const xBearCapacityData&) = default;
  xBearCapacityData& operator=(xBearCapacityData&&) = default;

  double getDepthStress() const { return DepthStress; }
  void setDepthStress(double stress) { DepthStress = stress; }
  double getWedgeStress() const { return WedgeStress; }
  void setWedgeStress(double stress) { WedgeStress = stress; }
  std::int32_t getFormulation() const { return Formulation; }
  void setFormulation(std::int32_t formulation) { Formulation = formulation; }
  bool getInclinFactIsActive() const { return InclinFactIsActive; }
  void setInclinFactIsActive(bool active) { InclinFactIsActive = active; }
  bool getShapeFactIsActive() const { return ShapeFactIsActive; }
  void setShapeFactIsActive(bool active) { ShapeFactIsActive = active; }
  bool getDepthFactIsActive() const { return DepthFactIsActive; }
  void setDepthFactIsActive(bool active) { DepthFactIsActive = active; }
  bool getBaseFactIsActive() const { return BaseFactIsActive; }
  void setBaseFactIsActive(bool active) { BaseFactIsActive = active; }
  bool getGroundFactIsActive() const { return GroundFactIsActive; }
  void setGroundFactIsActive(bool active) { GroundFactIsActive = active; }
  bool getPunchingFactIsActive() const { return PunchingFactIsActive; }
  void setPunchingFactIsActive(bool active) { PunchingFactIsActive = active; }
  bool getInertialFactIsActive() const { return InertialFactIsActive; }
  void setInertialFactIsActive(bool active) { InertialFactIsActive = active; }
  bool getUnderWater() const { return UnderWater; }
  void setUnderWater(bool under_water) { UnderWater = under_water; }

  /// The passive pressure of the soil at foundation level: the passive coefficient times the
  /// vertical stress there.
  ///
  /// @param formula  of the coefficient, which also takes the acceleration
  /// @param theta    inclination of the wall's back to the vertical [rad]
  /// @param beta     slope of the ground [rad]
  /// @return [N/mm²]
  double getPassivePress(formulType formula, double theta, double beta) const;

  xGeomPropsFound geometry;
  xSoilProps soil;  ///< by its design values
  /// kh, then kv; the inertia factors read the first [-].
  arma::Col<double>::fixed<2> acceleration{arma::fill::zeros};
  /// H along the base, then V across it, in [N], or in [N/mm] of a strip whose shape factors are
  /// off.
  arma::Col<double>::fixed<2> loads{arma::fill::zeros};

private:
  double DepthStress = 0.0;      ///< vertical stress at foundation level [N/mm²]
  double WedgeStress = 0.0;      ///< stress in the wedge, for the rigidity index [N/mm²]
  std::int32_t Formulation = 0;  ///< 1 is the form of Eurocode 7, any other number Terzaghi's
  bool InclinFactIsActive = false;
  bool ShapeFactIsActive = false;
  bool DepthFactIsActive = false;
  bool BaseFactIsActive = false;
  bool GroundFactIsActive = false;
  bool PunchingFactIsActive = false;  ///< also switches the inertia factors
  bool InertialFactIsActive = false;  ///< read by nothing
  bool UnderWater = false;            ///< the soil below the foundation weighs less by the water's
};

/// The bearing capacity of a strip foundation:
///
///     limit load = c       * Nc Ic Bc Sc Dc Gc PSIc Zc
///                + sigma_v * Nq Iq Bq Sq Dq Gq PSIq Zq
///                + 0.5 gamma B * Ng Ig Bg Sg Dg Gg PSIg Zg
///
/// The last letter of a factor names its term: c cohesion, q overburden, g weight. All factors are
/// in [-]. A factor whose flag is off in the data keeps the value it had.
class OSTREL_API xBearCapacityFound {
public:
  /// All factors 1, rigidity indices and limit load 0.
  virtual void reset();
  virtual ~xBearCapacityFound() = default;
  xBearCapacityFound() = default;
  xBearCapacityFound(const xBearCapacityFound&) = default;
  xBearCapacityFound& operator=(const xBearCapacityFound&) = default;

  /// Works out the factors and then the limit load.
  /// @retval errLoadTooInclined  from `compute_Factors`; the limit load is left as it was
  OstrelErrorType compute_BearCapacity(xBearCapacityData& data);

  /// Works out the factors alone, by the formulation of `data`. A friction angle below
  /// `xTolerances::friction_angle` counts as 0.
  /// @retval errLoadTooInclined  an inclination factor is negative or not a number; the factors
  /// that
  ///                             come after the inclination are left as they were
  OstrelErrorType compute_Factors(xBearCapacityData& data);

  /// @name Bearing factors
  ///@{
  double getNc() const { return N.c; }
  void setNc(double factor) { N.c = factor; }
  double getNq() const { return N.q; }
  void setNq(double factor) { N.q = factor; }
  double getNg() const { return N.g; }
  void setNg(double factor) { N.g = factor; }
  ///@}
  /// @name Inclination of the load
  ///@{
  double getIc() const { return I.c; }
  void setIc(double factor) { I.c = factor; }
  double getIq() const { return I.q; }
  void setIq(double factor) { I.q = factor; }
  double getIg() const { return I.g; }
  void setIg(double factor) { I.g = factor; }
  ///@}
  /// @name Inclination of the base
  ///@{
  double getBc() const { return B.c; }
  void setBc(double factor) { B.c = factor; }
  double getBq() const { return B.q; }
  void setBq(double factor) { B.q = factor; }
  double getBg() const { return B.g; }
  void setBg(double factor) { B.g = factor; }
  ///@}
  /// @name Shape of the base
  ///@{
  double getSc() const { return S.c; }
  void setSc(double factor) { S.c = factor; }
  double getSq() const { return S.q; }
  void setSq(double factor) { S.q = factor; }
  double getSg() const { return S.g; }
  void setSg(double factor) { S.g = factor; }
  ///@}
  /// @name Depth of the base
  ///@{
  double getDc() const { return D.c; }
  void setDc(double factor) { D.c = factor; }
  double getDq() const { return D.q; }
  void setDq(double factor) { D.q = factor; }
  double getDg() const { return D.g; }
  void setDg(double factor) { D.g = factor; }
  ///@}
  /// @name Inclination of the ground
  ///@{
  double getGc() const { return G.c; }
  void setGc(double factor) { G.c = factor; }
  double getGq() const { return G.q; }
  void setGq(double factor) { G.q = factor; }
  double getGg() const { return G.g; }
  void setGg(double factor) { G.g = factor; }
  ///@}
  /// @name Punching: critical and actual rigidity index, and the factors
  ///@{
  double getIrc() const { return Irc; }
  void setIrc(double index) { Irc = index; }
  double getIr() const { return Ir; }
  void setIr(double index) { Ir = index; }
  double getPSIc() const { return PSI.c; }
  void setPSIc(double factor) { PSI.c = factor; }
  double getPSIq() const { return PSI.q; }
  void setPSIq(double factor) { PSI.q = factor; }
  double getPSIg() const { return PSI.g; }
  void setPSIg(double factor) { PSI.g = factor; }
  ///@}
  /// @name Inertia of the soil
  ///@{
  double getZc() const { return Z.c; }
  void setZc(double factor) { Z.c = factor; }
  double getZq() const { return Z.q; }
  void setZq(double factor) { Z.q = factor; }
  double getZg() const { return Z.g; }
  void setZg(double factor) { Z.g = factor; }
  ///@}

  double getLimitLoad_Nmmq() const { return LimitLoad; }
  void setLimitLoad(double stress) { LimitLoad = stress; }

protected:
  /// @name The two formulations; all factors that are active, but not the limit load
  ///@{
  OstrelErrorType terzaghi(xBearCapacityData& data);
  OstrelErrorType eurocode7(xBearCapacityData& data);
  ///@}

private:
  ostrel::geotech::TermFactors N;
  ostrel::geotech::TermFactors I;
  ostrel::geotech::TermFactors B;
  ostrel::geotech::TermFactors S;
  ostrel::geotech::TermFactors D;  ///< that of the weight stays what it was set to
  ostrel::geotech::TermFactors G;
  double Irc = 0.0;  ///< critical rigidity index [-]
  double Ir = 0.0;   ///< actual rigidity index [-]
  ostrel::geotech::TermFactors PSI;
  ostrel::geotech::TermFactors Z;
  double LimitLoad = 0.0;  ///< as a stress [N/mm²]
};
