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
  /// @oddity Switches the inertia factors too, and `InertialFactIsActive`, which is meant to, is read
  /// by nothing. Stored results depend on it.
  bool PunchingFactIsActive = false;
  bool InertialFactIsActive = false;
  bool UnderWater = false;  ///< the soil below the foundation weighs less by the water's
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
  OstrelErrorType compute_BearCapacity(const xBearCapacityData& data);

  /// Works out the factors alone, by the formulation of `data`. A friction angle below
  /// `xTolerances::friction_angle` counts as 0.
  /// @retval errLoadTooInclined  an inclination factor is negative or not a number; only bearing and
  ///                             inclination factors are new then
  OstrelErrorType compute_Factors(const xBearCapacityData& data);

  /// @name Bearing factors
  ///@{
  double getNc() const { return bearing_.c; }
  void setNc(double factor) { bearing_.c = factor; }
  double getNq() const { return bearing_.q; }
  void setNq(double factor) { bearing_.q = factor; }
  double getNg() const { return bearing_.g; }
  void setNg(double factor) { bearing_.g = factor; }
  ///@}
  /// @name Inclination of the load
  ///@{
  double getIc() const { return inclination_.c; }
  void setIc(double factor) { inclination_.c = factor; }
  double getIq() const { return inclination_.q; }
  void setIq(double factor) { inclination_.q = factor; }
  double getIg() const { return inclination_.g; }
  void setIg(double factor) { inclination_.g = factor; }
  ///@}
  /// @name Inclination of the base
  ///@{
  double getBc() const { return base_.c; }
  void setBc(double factor) { base_.c = factor; }
  double getBq() const { return base_.q; }
  void setBq(double factor) { base_.q = factor; }
  double getBg() const { return base_.g; }
  void setBg(double factor) { base_.g = factor; }
  ///@}
  /// @name Shape of the base
  ///@{
  double getSc() const { return shape_.c; }
  void setSc(double factor) { shape_.c = factor; }
  double getSq() const { return shape_.q; }
  void setSq(double factor) { shape_.q = factor; }
  double getSg() const { return shape_.g; }
  void setSg(double factor) { shape_.g = factor; }
  ///@}
  /// @name Depth of the base
  ///@{
  double getDc() const { return depth_.c; }
  void setDc(double factor) { depth_.c = factor; }
  double getDq() const { return depth_.q; }
  void setDq(double factor) { depth_.q = factor; }
  double getDg() const { return depth_.g; }
  void setDg(double factor) { depth_.g = factor; }
  ///@}
  /// @name Inclination of the ground
  ///@{
  double getGc() const { return ground_.c; }
  void setGc(double factor) { ground_.c = factor; }
  double getGq() const { return ground_.q; }
  void setGq(double factor) { ground_.q = factor; }
  double getGg() const { return ground_.g; }
  void setGg(double factor) { ground_.g = factor; }
  ///@}
  /// @name Punching: critical and actual rigidity index, and the factors
  ///@{
  double getIrc() const { return Irc; }
  void setIrc(double index) { Irc = index; }
  double getIr() const { return Ir; }
  void setIr(double index) { Ir = index; }
  double getPSIc() const { return punching_.c; }
  void setPSIc(double factor) { punching_.c = factor; }
  double getPSIq() const { return punching_.q; }
  void setPSIq(double factor) { punching_.q = factor; }
  double getPSIg() const { return punching_.g; }
  void setPSIg(double factor) { punching_.g = factor; }
  ///@}
  /// @name Inertia of the soil
  ///@{
  double getZc() const { return inertia_.c; }
  void setZc(double factor) { inertia_.c = factor; }
  double getZq() const { return inertia_.q; }
  void setZq(double factor) { inertia_.q = factor; }
  double getZg() const { return inertia_.g; }
  void setZg(double factor) { inertia_.g = factor; }
  ///@}

  double getLimitLoad_Nmmq() const { return LimitLoad; }
  void setLimitLoad(double stress) { LimitLoad = stress; }

protected:
  /// @name The two formulations; all factors that are active, but not the limit load
  ///@{
  OstrelErrorType terzaghi(const xBearCapacityData& data);
  OstrelErrorType eurocode7(const xBearCapacityData& data);
  ///@}

private:
  void set_common_factors(const xBearCapacityData& data, double phi);

  ostrel::geotech::TermFactors bearing_;
  ostrel::geotech::TermFactors inclination_;
  ostrel::geotech::TermFactors base_;
  ostrel::geotech::TermFactors shape_;
  ostrel::geotech::TermFactors depth_;  ///< that of the weight stays what it was set to
  ostrel::geotech::TermFactors ground_;
  double Irc = 0.0;  ///< critical rigidity index [-]
  double Ir = 0.0;   ///< actual rigidity index [-]
  ostrel::geotech::TermFactors punching_;
  ostrel::geotech::TermFactors inertia_;
  double LimitLoad = 0.0;  ///< as a stress [N/mm²]
};
