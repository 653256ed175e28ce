#pragma once
/// @file  Pressure of soil and water on the wall, one diagram per layer. Room: soil
// SPDX-License-Identifier: Apache-2.0
//
// A diagram holds pressure times the spacing of the wall: a force per unit length of wall [N/mm],
// partial factor included.

#include "ostrel/diagram.h"
#include "ostrel/error.h"
#include "ostrel/export.h"
#include "ostrel/soil_layer.h"
#include "ostrel/soil_props.h"
#include "ostrel/stream.h"
#include "ostrel/vocabulary.h"

#include <armadillo>

#include <string>
#include <vector>

/// The pressure on one stretch of the wall.
class OSTREL_API xLayerPress {
public:
  /// @name Persisted object, version 1
  ///@{
  virtual void reset();
  virtual std::string getIOClass() const;
  virtual void pub_read(instream& in);
  virtual void pub_write(outstream& out) const;
  ///@}
  virtual ~xLayerPress() = default;
  xLayerPress() = default;
  xLayerPress(const xLayerPress&) = default;
  xLayerPress(xLayerPress&&) = default;
  xLayerPress& operator=(const xLayerPress&) = default;
  xLayerPress& operator=(xLayerPress&&) = default;

  /// Works out `Rx`, `Ry` and `pos` from the points, the pressure running straight between them.
  ///
  /// A diagram whose resultant is exactly 0 has it in the middle between its first and last point;
  /// one without points has it at 0.
  ///
  /// @param angle  inclination of the pressure to the horizontal [rad]
  void computeResultant(double angle);

  /// The value at the local position `s` [mm], straight between the points; where two stand at `s`,
  /// that of the earlier one. 0 beyond the points and with fewer than two of them [N/mm].
  double getPressAt(double s) const;

  /// The point of the plane at the local position `*s` [mm]; at `pos` for a null pointer.
  xPoint2d getGlobalPos(const double* s) const;

  /// The local position of the foot of `point` on the diagram's axis [mm].
  double getLocalPos(const xPoint2d& point) const;

  xPoint2d start;                  ///< upper end: x = 0, y = the negated depth of the top [mm]
  xPoint2d end;                    ///< lower end: x = 0, y = the negated depth of the bottom [mm]
  std::vector<diag_Point> points;  ///< s from `start` downwards [mm], value [N/mm]
  double Rx = 0.0;                 ///< resultant, x component [N]
  double Ry = 0.0;                 ///< resultant, y component [N]
  double pos = 0.0;                ///< local position of the resultant [mm]

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;
};

/// Merges a list of diagrams, from the top down, into one; a jump between two layers stays as two
/// points at the same position. The one left spans all, with its resultant horizontal. A list of
/// fewer than two entries stays as it is.
OSTREL_API void packLayerPress(std::vector<xLayerPress>& list);

/// The pressure of the soil, from the top layer down.
class OSTREL_API xEarthPress {
public:
  /// @name Persisted object, version 1
  ///@{
  virtual void reset();
  virtual std::string getIOClass() const;
  virtual void pub_read(instream& in);
  virtual void pub_write(outstream& out) const;
  ///@}
  virtual ~xEarthPress() = default;
  xEarthPress() = default;
  xEarthPress(const xEarthPress&) = default;
  xEarthPress(xEarthPress&&) = default;
  xEarthPress& operator=(const xEarthPress&) = default;
  xEarthPress& operator=(xEarthPress&&) = default;

  /// Appends the active pressure of all layers above `bottom`; without layers, nothing.
  /// The arguments are those of `compute_EarthPress`.
  OstrelErrorType computeActiveEarthPress(geoFactorType type,
                                          const std::vector<GeoCombFactor>& factors, double gamma,
                                          formulType formula, double theta,
                                          const std::vector<xSoilLayer>& layers,
                                          arma::Col<double>::fixed<2> acc, double bottom,
                                          double spacing);

  /// Appends to `out` one diagram for each layer between two depths.
  ///
  /// A level inside a layer holds the pressure at the top of the step below it; only the last level
  /// holds one at the bottom of a step. By Wood's formula an active pressure is the one at rest and
  /// a seismic part, and it is not cut at 0; every other pressure is. A passive pressure always
  /// goes by Coulomb's formula. A pressure that is not a number counts as 0 where it is cut.
  ///
  /// @param type, factors  partial factors on the soil
  /// @param gamma    partial factor on the pressure [-]
  /// @param formula  formula of an active pressure
  /// @param theta    inclination of the wall's back to the vertical [rad]
  /// @param layers   from the top down
  /// @param acc      kh, then kv, with the sign of kv that the formulas use [-]
  /// @param spacing  of the wall [mm]
  /// @param active   false for the passive pressure
  /// @param top      layers that end above this depth, or at it, are left out [mm]
  /// @param bottom   the first layer that begins below this depth, or at it, ends the list [mm]
  /// @return always success
  static OstrelErrorType compute_EarthPress(geoFactorType type,
                                            const std::vector<GeoCombFactor>& factors, double gamma,
                                            formulType formula, double theta,
                                            const std::vector<xSoilLayer>& layers,
                                            arma::Col<double>::fixed<2> acc, double spacing,
                                            bool active, double top, double bottom,
                                            std::vector<xLayerPress>& out);

  std::vector<xLayerPress> diagrams;  ///< one diagram per layer

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;
};

/// The pressure of the water on the retained side, from the top layer down.
class OSTREL_API xHydrostaticPress {
public:
  /// @name Persisted object, version 1
  ///@{
  virtual void reset();
  virtual std::string getIOClass() const;
  virtual void pub_read(instream& in);
  virtual void pub_write(outstream& out) const;
  ///@}
  virtual ~xHydrostaticPress() = default;
  xHydrostaticPress() = default;
  xHydrostaticPress(const xHydrostaticPress&) = default;
  xHydrostaticPress(xHydrostaticPress&&) = default;
  xHydrostaticPress& operator=(const xHydrostaticPress&) = default;
  xHydrostaticPress& operator=(xHydrostaticPress&&) = default;

  /// Appends one diagram for each layer under water above `bottom`.
  ///
  /// @param water_depth   depth of the water on the retained side [mm]
  /// @param gamma        partial factor [-]
  /// @param layers  from the top down
  /// @param bottom       the first layer that begins below this depth, or at it, ends the list [mm]
  /// @param spacing      of the wall [mm]
  /// @return always 0
  int computeHydroPress(double water_depth, double gamma, const std::vector<xSoilLayer>& layers,
                        double bottom, double spacing);

  std::vector<xLayerPress> diagrams;  ///< one diagram per layer under water

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;
};
