#pragma once
/// @file  Pressure on the wall from loads on the ground. Room: soil
// SPDX-License-Identifier: Apache-2.0
//
// Each class turns one kind of load into diagrams over the layers above the excavation level. In
// all of them
//
//     gamma    partial factor on the load [-]
//     theta    inclination of the wall's back to the vertical [rad]
//     acc      kh, then kv, with the sign of kv that the formulas use [-]
//     depth    depth of the excavation level; the first layer that begins below it, or at it, ends
//              the list [mm]
//     spacing  of the wall [mm]
//
// and all values are multiplied by (1 - kv). An absent load gives no diagram.

#include "ostrel/design_soil.h"
#include "ostrel/export.h"
#include "ostrel/identity.h"
#include "ostrel/layer_pressure.h"
#include "ostrel/soil_layer.h"
#include "ostrel/soil_load.h"
#include "ostrel/soil_props.h"
#include "ostrel/stream.h"
#include "ostrel/vocabulary.h"

#include <armadillo>

#include <string>
#include <vector>

/// The pressure from one load; it carries the load's name and id.
class OSTREL_API xLoadPress : public xObjectID {
public:
  /// @name Persisted object, version 1
  /// `copy` takes name and id alone.
  ///@{
  void reset() override;
  std::string getIOClass() const override;
  void pub_read(instream& in) override;
  void pub_write(outstream& out) const override;
  ///@}

  std::vector<xLayerPress> diagrams;  ///< one diagram per layer, from the top down

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;
};

/// The pressures from all soil loads of one load condition; it carries the condition's name and id.
class OSTREL_API xLoadCondPress : public xObjectID {
public:
  /// @name Persisted object, version 1
  /// `copy` takes name and id alone.
  ///@{
  void reset() override;
  std::string getIOClass() const override;
  void pub_read(instream& in) override;
  void pub_write(outstream& out) const override;
  ///@}

  std::vector<xLoadPress> loads;  ///< one for each soil load, in the order of the condition

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;
};

/// Pressure from a load on the whole surface: the earth pressure coefficient of each layer, the
/// active one, times the load. Wood's formula counts as Mononobe-Okabe.
class OSTREL_API xUniform {
public:
  virtual void reset();
  virtual ~xUniform() = default;
  xUniform() = default;
  xUniform(const xUniform&) = default;
  xUniform(xUniform&&) = default;
  xUniform& operator=(const xUniform&) = default;
  xUniform& operator=(xUniform&&) = default;

  /// @param type, factors  partial factors on the soil
  xLoadPress compute_LoadPress(xUniformLoad* load, geoFactorType type,
                               const std::vector<GeoCombFactor>& factors, double gamma,
                               formulType formula, double theta,
                               const std::vector<xSoilLayer>& layers,
                               arma::Col<double>::fixed<2> acc, double depth, double spacing);

  xDesignSoil designSoil;  ///< of the layer worked on last
};

/// Pressure from a load on a strip beside the wall.
class OSTREL_API xNastriform {
public:
  xLoadPress computeLoadPress(xNastriformLoad* load, double gamma, double theta,
                              const std::vector<xSoilLayer>& layers,
                              const arma::Col<double>::fixed<2>& acc, double depth, double spacing);
};

/// Pressure from a load on a line parallel to the wall.
class OSTREL_API xLinear {
public:
  xLoadPress computeLoadPress(xLinearLoad* load, double gamma, double theta,
                              const std::vector<xSoilLayer>& layers,
                              arma::Col<double>::fixed<2> acc, double depth, double spacing);
};

/// Pressure from a load on a point of the ground.
class OSTREL_API xPuntiform {
public:
  /// A load at the wall itself (position 0) gives values that are not numbers.
  xLoadPress computeLoadPress(xPuntiformLoad* load, double gamma, double theta,
                              const std::vector<xSoilLayer>& layers,
                              arma::Col<double>::fixed<2> acc, double depth, double spacing);
};
