#pragma once
/// @file  A soil by its design values, and its earth pressure coefficient. Room: soil
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/export.h"
#include "ostrel/soil_props.h"
#include "ostrel/stream.h"
#include "ostrel/vocabulary.h"

#include <armadillo>

#include <string>

/// A soil by its design values (after `applyGeoFactors`), and the coefficient worked out last.
///
/// In all operations `theta` is the inclination of the wall's back to the vertical [rad], `beta`
/// the slope of the ground [rad], and `active` tells the wall that gives way to the soil from the
/// wall that presses into it. All coefficients are in [-].
class OSTREL_API xDesignSoil {
public:
  /// @name Persisted object, version 1
  ///@{
  virtual void reset();
  virtual std::string getIOClass() const;
  virtual void pub_read(instream& in);
  virtual void pub_write(outstream& out) const;
  ///@}
  virtual ~xDesignSoil() = default;
  xDesignSoil() = default;
  xDesignSoil(const xDesignSoil&) = default;
  xDesignSoil(xDesignSoil&&) = default;
  xDesignSoil& operator=(const xDesignSoil&) = default;
  xDesignSoil& operator=(xDesignSoil&&) = default;

  double getK() const { return K; }
  void setK(double coefficient) { K = coefficient; }

  /// Works out K by one formula and keeps it.
  ///
  /// At rest `active` and `acc` play no part; by Rankine `theta` and `acc`; by Coulomb `acc`.
  /// Every other value of `type`, Wood's too, is Mononobe-Okabe.
  ///
  /// @param acc  kh, then kv, with the sign of kv that the formulas use [-]
  void compute_Coeff(formulType type, double theta, double beta, arma::Col<double>::fixed<2> acc,
                     bool active);

  /// @name The formulas, with the angles of this soil
  /// They return a coefficient and leave K as it is.
  ///@{
  double steady(double theta, double beta) const;  ///< at rest
  double rankine(bool active, double beta) const;  ///< NaN for a ground steeper than the friction
  double coulomb(bool active, double theta, double beta) const;
  double mononobeOkabe(bool active, double theta, double beta,
                       arma::Col<double>::fixed<2> acc) const;
  ///@}

  xSoilProps soil;

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;

  double K = 0.0;  ///< earth pressure coefficient [-]
};
