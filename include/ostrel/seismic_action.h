#pragma once
/// @file  Seismic coefficients of a combination, and the data they come from. Room: soil
// SPDX-License-Identifier: Apache-2.0
//
// The coefficients are worked out by the host. All other fields are kept for its reports.

#include "ostrel/export.h"
#include "ostrel/identity.h"
#include "ostrel/stream.h"

#include <armadillo>

#include <string>

/// The seismic action as the analysis takes it: two coefficients.
///
/// A host enters kv with the opposite of the sign that the formulas of earth pressure, of unit
/// weights and of surcharges use; a run calls `switchSign` on its own copy, once for each
/// combination.
class OSTREL_API xSeismicAction : public xDescription {
public:
  /// @name Persisted object, version 1
  /// The description of the base class is not stored, and reading leaves it as it is.
  ///@{
  void reset() override;
  std::string getIOClass() const override;
  void pub_read(instream& in) override;
  void pub_write(outstream& out) const override;
  ///@}

  /// Changes the sign of kv.
  void switchSign();

  const std::string& getSoilType() const { return soil_type_; }
  void setSoilType(const std::string& type) { soil_type_ = type; }
  double getAdimensAcc() const { return acceleration_; }
  void setAdimensAcc(double acceleration) { acceleration_ = acceleration; }
  double getSt() const { return topographic_factor_; }
  void setSt(double factor) { topographic_factor_ = factor; }

  arma::Col<double>::fixed<2> coefficients{arma::fill::zeros};  ///< kh, then kv [-]

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;

  std::string soil_type_;            ///< ground class
  double acceleration_ = 0.0;        ///< as a fraction of gravity [-]
  double topographic_factor_ = 0.0;  ///< [-]
};

/// A seismic action by the Italian code of 2008, with the parameters of its spectrum.
class OSTREL_API xSeismicActionNTC2008 : public xSeismicAction {
public:
  /// @name Persisted object, version 1
  ///@{
  void reset() override;
  std::string getIOClass() const override;
  void pub_read(instream& in) override;
  void pub_write(outstream& out) const override;
  ///@}

  const std::string& getLocation() const { return location_; }
  void setLocation(const std::string& location) { location_ = location; }
  const std::string& getTopographicType() const { return topographic_type_; }
  void setTopographicType(const std::string& type) { topographic_type_ = type; }
  const std::string& getBuildingType() const { return building_type_; }
  void setBuildingType(const std::string& type) { building_type_ = type; }
  double getVn() const { return nominal_life_; }
  void setVn(double years) { nominal_life_ = years; }
  const std::string& getUseClass() const { return use_class_; }
  void setUseClass(const std::string& use_class) { use_class_ = use_class; }
  double getVr() const { return reference_life_; }
  void setVr(double years) { reference_life_ = years; }
  const std::string& getLimitState() const { return limit_state_; }
  void setLimitState(const std::string& state) { limit_state_ = state; }
  double getPvr() const { return exceedance_; }
  void setPvr(double probability) { exceedance_ = probability; }
  double getTr() const { return return_period_; }
  void setTr(double years) { return_period_ = years; }
  double getF0() const { return amplification_; }
  void setF0(double factor) { amplification_ = factor; }
  double getSs() const { return stratigraphic_factor_; }
  void setSs(double factor) { stratigraphic_factor_ = factor; }
  double getAlpha() const { return alpha_; }
  void setAlpha(double alpha) { alpha_ = alpha; }
  double getBeta() const { return beta_; }
  void setBeta(double beta) { beta_ = beta; }

  /// A second pair for the host [-]; it is neither stored nor read by the analysis.
  arma::Col<double>::fixed<2> hostCoefficients{arma::fill::zeros};

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;

  std::string location_;
  std::string topographic_type_;
  std::string building_type_;
  double nominal_life_ = 0.0;  ///< [years]
  std::string use_class_;
  double reference_life_ = 0.0;  ///< [years]
  std::string limit_state_;
  double exceedance_ = 0.0;            ///< probability of exceedance in the reference life [-]
  double return_period_ = 0.0;         ///< [years]
  double amplification_ = 0.0;         ///< greatest spectral amplification [-]
  double stratigraphic_factor_ = 0.0;  ///< [-]
  double alpha_ = 0.0;                 ///< factor for the deformability of the soil [-]
  double beta_ = 0.0;                  ///< factor for the wall's capacity to move [-]
};

/// A seismic action by Eurocode 8, with the parameters of its spectrum.
class OSTREL_API xSeismicActionEC8 : public xSeismicAction {
public:
  /// @name Persisted object, version 1
  ///@{
  void reset() override;
  std::string getIOClass() const override;
  void pub_read(instream& in) override;
  void pub_write(outstream& out) const override;
  ///@}

  const std::string& getSpectrumType() const { return spectrum_type_; }
  void setSpectrumType(const std::string& type) { spectrum_type_ = type; }
  double getAgR() const { return reference_acceleration_; }
  void setAgR(double acceleration) { reference_acceleration_ = acceleration; }
  double getGammaI() const { return importance_factor_; }
  void setGammaI(double factor) { importance_factor_ = factor; }
  double getAg() const { return design_acceleration_; }
  void setAg(double acceleration) { design_acceleration_ = acceleration; }
  void setTypeWall(const std::string& type) { wall_type_ = type; }
  const std::string& setTypeWall() const { return wall_type_; }  // sic: the reader, by this name
  double getR() const { return displacement_factor_; }
  void setR(double factor) { displacement_factor_ = factor; }
  double getLambda() const { return lambda_; }
  void setLambda(double lambda) { lambda_ = lambda; }

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;

  std::string spectrum_type_;
  double reference_acceleration_ = 0.0;  ///< on rock, in the host's unit
  double importance_factor_ = 0.0;       ///< [-]
  double design_acceleration_ = 0.0;     ///< on rock, in the host's unit
  std::string wall_type_;
  double displacement_factor_ = 0.0;  ///< factor r of the horizontal coefficient [-]
  double lambda_ = 0.0;               ///< [-]
};
