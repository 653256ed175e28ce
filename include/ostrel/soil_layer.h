#pragma once
/// @file  Soil layers as entered, soil layers along the wall, and the water. Room: model
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/export.h"
#include "ostrel/soil_props.h"
#include "ostrel/stream.h"

#include <armadillo>

#include <string>
#include <vector>

/// A soil layer as it is entered: polygons of the plane and the soil in them.
class OSTREL_API xBoundSoilLayer {
public:
  /// @name Persisted object, version 1
  ///@{
  virtual void reset();
  virtual std::string getIOClass() const;
  virtual void pub_read(instream& in);
  virtual void pub_write(outstream& out) const;
  ///@}
  virtual ~xBoundSoilLayer() = default;
  xBoundSoilLayer() = default;
  xBoundSoilLayer(const xBoundSoilLayer&) = default;
  xBoundSoilLayer(xBoundSoilLayer&&) = default;
  xBoundSoilLayer& operator=(const xBoundSoilLayer&) = default;
  xBoundSoilLayer& operator=(xBoundSoilLayer&&) = default;

  double getAngle() const { return Angle; }
  void setAngle(double angle) { Angle = angle; }

  /// Each polygon by its vertices (x, y) [mm], closed by repeating the first vertex; a side that
  /// is not stored does not count.
  std::vector<std::vector<arma::Col<double>::fixed<2>>> polygons;
  xSoilProps soil;

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;

  double Angle = 0.0;  ///< slope of the ground surface over the layer [rad]
};

/// A horizontal layer along the wall, with the levels of its nodes and springs.
class OSTREL_API xSoilLayer {
public:
  virtual void reset();
  virtual ~xSoilLayer() = default;
  xSoilLayer() = default;
  xSoilLayer(const xSoilLayer&) = default;
  xSoilLayer(xSoilLayer&&) = default;
  xSoilLayer& operator=(const xSoilLayer&) = default;
  xSoilLayer& operator=(xSoilLayer&&) = default;

  double getDepth() const { return Depth; }
  void setDepth(double depth) { Depth = depth; }
  double getThickness() const { return Thickness; }
  void setThickness(double thickness) { Thickness = thickness; }
  bool getUnderWater() const { return UnderWater; }
  void setUnderWater(bool under_water) { UnderWater = under_water; }
  double getStepSize() const { return StepSize; }
  void setStepSize(double step) { StepSize = step; }
  double getAngle() const { return Angle; }
  void set_Angle(double angle) { Angle = angle; }

  /// Appends the top and n equal steps below it to `levels`, n being the smallest number of steps
  /// none of which is longer than `StepSize`.
  ///
  /// A layer without a positive thickness, or with a step that is not positive, gets its top alone;
  /// so does one that would take more than a million steps.
  void discretize();

  xSoilProps soil;
  std::vector<double> levels;  ///< depths of the nodes in this layer, ascending [mm]

private:
  double Depth = 0.0;       ///< depth of the top below the wall's head [mm]
  double Thickness = 0.0;   ///< thickness [mm]
  bool UnderWater = false;  ///< the layer lies below the water table
  double StepSize = 250.0;  ///< wanted spacing of the levels [mm]
  double Angle = 0.0;  ///< slope of the ground; only the top piece of an input layer has one [rad]
};

/// The water on the two sides of the wall.
class OSTREL_API xWaterTable {
public:
  virtual void reset();
  virtual ~xWaterTable() = default;
  xWaterTable() = default;
  xWaterTable(const xWaterTable&) = default;
  xWaterTable& operator=(const xWaterTable&) = default;

  bool getIsDefined() const { return IsDefined; }
  void setIsDefined(bool defined) { IsDefined = defined; }
  double getLivelloMonte() const { return LivelloMonte; }
  void setLivelloMonte(double elevation) { LivelloMonte = elevation; }
  double getLivelloValle() const { return LivelloValle; }
  void setLivelloValle(double elevation) { LivelloValle = elevation; }

private:
  bool IsDefined = false;     ///< there is water at all
  double LivelloMonte = 0.0;  ///< elevation on the retained side, positive upwards [mm]
  double LivelloValle = 0.0;  ///< elevation on the excavated side, positive upwards [mm]
};
