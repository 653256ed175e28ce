#pragma once
/// @file  Elastic and soil properties, and the partial factors on the soil. Room: model
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/export.h"
#include "ostrel/stream.h"

#include <cstdint>
#include <string>
#include <vector>

/// Which of the two numbers of a partial factor is meant; any other value means none, a factor of
/// 1.
enum geoFactorType : std::int32_t {
  geoFactorPressure = 0,    ///< the soil as it presses: pressure diagrams
  geoFactorResistance = 1,  ///< the soil as it resists: springs, anchors, piles, slices
};

/// One partial factor on the soil in its two sets.
struct OSTREL_API GeoCombFactor {
  /// The factor of one set, 1 for a set that does not exist [-].
  double getF(geoFactorType type) const;

  double first = 1.0;   ///< for `geoFactorPressure` [-]
  double second = 1.0;  ///< for `geoFactorResistance` [-]
};

/// Name and elastic constants of a material.
class OSTREL_API xElasticProps {
public:
  /// @name Persisted object, version 1
  ///@{
  virtual void reset();
  virtual std::string getIOClass() const;
  virtual void pub_read(instream& in);
  virtual void pub_write(outstream& out) const;
  ///@}
  virtual ~xElasticProps() = default;
  xElasticProps() = default;
  xElasticProps(const xElasticProps&) = default;
  xElasticProps(xElasticProps&&) = default;
  xElasticProps& operator=(const xElasticProps&) = default;
  xElasticProps& operator=(xElasticProps&&) = default;

  const std::string& getName() const { return name_; }
  void setName(const std::string& name) { name_ = name; }
  double getElasticityModulus() const { return ElasticityModulus; }
  void setElasticityModulus(double modulus) { ElasticityModulus = modulus; }
  double getShearModulus() const { return ShearModulus; }
  void setShearModulus(double modulus) { ShearModulus = modulus; }
  double getPoissonRatio() const { return PoissonRatio; }
  void setPoissonRatio(double ratio) { PoissonRatio = ratio; }

  /// Sets the shear modulus to E / (2 (1 + nu)); infinite or NaN for nu = -1, as the formula gives.
  void computeShearModulus();

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;

  std::string name_;
  double ElasticityModulus = 0.0;  ///< Young's modulus E [N/mm²]
  double ShearModulus = 0.0;       ///< shear modulus G [N/mm²]
  double PoissonRatio = 0.0;       ///< Poisson's ratio nu [-]
};

/// A soil.
class OSTREL_API xSoilProps : public xElasticProps {
public:
  /// @name Persisted object, version 2
  ///@{
  void reset() override;
  std::string getIOClass() const override;
  void pub_read(instream& in) override;
  void pub_write(outstream& out) const override;
  ///@}
  ~xSoilProps() override = default;
  xSoilProps() = default;
  xSoilProps(const xSoilProps&) = default;
  xSoilProps(xSoilProps&&) = default;
  xSoilProps& operator=(const xSoilProps&) = default;
  xSoilProps& operator=(xSoilProps&&) = default;

  double getUnitWeight() const { return UnitWeight; }
  void setUnitWeight(double weight) { UnitWeight = weight; }
  double getSaturatedUnitWeight() const { return SaturatedUnitWeight; }
  void setSaturatedUnitWeight(double weight) { SaturatedUnitWeight = weight; }
  double getInternalFriction() const { return InternalFriction; }
  void set_InternalFriction(double angle) { InternalFriction = angle; }
  double getInterfaceFriction() const { return InterfaceFriction; }
  void setInterfaceFriction(double angle) { InterfaceFriction = angle; }
  double getCohesion() const { return Cohesion; }
  void setCohesion(double cohesion) { Cohesion = cohesion; }
  double getAdhesion() const { return Adhesion; }
  void setAdhesion(double adhesion) { Adhesion = adhesion; }
  double getOCR() const { return OCR; }
  void setOCR(double ratio) { OCR = ratio; }
  double getConstrModulus() const { return ConstrModulus; }
  void setConstrModulus(double modulus) { ConstrModulus = modulus; }
  double getKPerm() const { return KPerm; }
  void setKPerm(double permeability) { KPerm = permeability; }
  bool getIsDense() const { return IsDense; }
  void setIsDense(bool dense) { IsDense = dense; }

  /// Turns this soil into its design values: call it on a copy.
  ///
  ///     tan(phi) / f0,  tan(delta) / f1,  c / f2, or c / f3 where the new |phi| < 1e-6 rad,
  ///     both unit weights / f4,  permeability / f5
  ///
  /// The adhesion takes no factor.
  ///
  /// @param type     which number of each factor
  /// @param factors  f0 to f5 [-]; a factor that the list does not hold counts as 1
  void applyGeoFactors(geoFactorType type, const std::vector<GeoCombFactor>& factors);

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 2; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;

  double UnitWeight = 0.0;           ///< unit weight above water [N/mm³]
  double SaturatedUnitWeight = 0.0;  ///< saturated unit weight [N/mm³]
  double InternalFriction = 0.0;     ///< friction angle phi [rad]
  double InterfaceFriction = 0.0;    ///< friction angle between soil and wall, delta [rad]
  double Cohesion = 0.0;             ///< cohesion c [N/mm²]
  double Adhesion = 0.0;             ///< adhesion on the wall [N/mm²]
  double OCR = 0.0;                  ///< overconsolidation ratio [-]
  double ConstrModulus = 0.0;        ///< constrained modulus [N/mm²]
  double KPerm = 0.0;                ///< permeability [mm/s]
  bool IsDense = false;              ///< dense soil
};
