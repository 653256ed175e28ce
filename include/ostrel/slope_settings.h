#pragma once
/// @file  What the search of slip circles tries. Room: slope
// SPDX-License-Identifier: Apache-2.0
//
// x is horizontal with the wall on x = 0 and the retained side on x >= 0, y points up with y = 0 at
// the wall head.

#include "ostrel/export.h"

#include <armadillo>

#include <vector>

/// One centre of slip circles with the radii to try around it.
class OSTREL_API xGridPoint {
public:
  /// Sets both radii to 0; the centre stays.
  virtual void reset();
  virtual ~xGridPoint() = default;
  xGridPoint() = default;
  xGridPoint(const xGridPoint&) = default;
  xGridPoint& operator=(const xGridPoint&) = default;

  void clear() { reset(); }

  double getMinRadius() const { return min_radius_; }
  void setMinRadius(double radius) { min_radius_ = radius; }
  double getMaxRadius() const { return max_radius_; }
  void setMaxRadius(double radius) { max_radius_ = radius; }

  arma::Col<double>::fixed<2> center{arma::fill::zeros};  ///< (x, y) [mm]

private:
  double min_radius_ = 0.0;  ///< smallest radius to try [mm]
  double max_radius_ = 0.0;  ///< end of the range of radii [mm]
};

/// The centres to try, as a regular grid or entered one by one.
class OSTREL_API xCentersGrid {
public:
  /// Sets the step and its numbers to 0; origin and points stay.
  virtual void reset();
  virtual ~xCentersGrid() = default;
  xCentersGrid() = default;
  xCentersGrid(const xCentersGrid&) = default;
  xCentersGrid(xCentersGrid&&) = default;
  xCentersGrid& operator=(const xCentersGrid&) = default;
  xCentersGrid& operator=(xCentersGrid&&) = default;

  /// Zeroes the origin, empties the points and resets the rest.
  void clear();

  /// Appends (Xsteps + 1) x (Ysteps + 1) centres to `points`, along x first, from the origin to the
  /// right and up, with radii 0. A negative number of steps, or more than a million centres,
  /// appends nothing.
  void buildCentersGrid();

  double getSteps() const { return step_; }
  void setStep(double step) { step_ = step; }
  int getXsteps() const { return x_steps_; }
  void setXsteps(int steps) { x_steps_ = steps; }
  int getYsteps() const { return y_steps_; }
  void setYsteps(int steps) { y_steps_ = steps; }

  arma::Col<double>::fixed<2> origin{arma::fill::zeros};  ///< the lower left centre [mm]
  std::vector<xGridPoint> points;

private:
  double step_ = 0.0;  ///< spacing of the centres in both directions [mm]
  int x_steps_ = 0;    ///< number of steps along x [-]
  int y_steps_ = 0;    ///< number of steps along y [-]
};

/// Settings of the verification of global stability.
class OSTREL_API xSlopeStabilitySettings {
public:
  /// Zeroes the three numbers and clears the grid.
  virtual void reset();
  virtual ~xSlopeStabilitySettings() = default;
  xSlopeStabilitySettings() = default;
  xSlopeStabilitySettings(const xSlopeStabilitySettings&) = default;
  xSlopeStabilitySettings(xSlopeStabilitySettings&&) = default;
  xSlopeStabilitySettings& operator=(const xSlopeStabilitySettings&) = default;
  xSlopeStabilitySettings& operator=(xSlopeStabilitySettings&&) = default;

  int getFormulation() const { return formulation_; }
  void setFormulation(int formulation) { formulation_ = formulation; }
  double getWidthstripe() const { return width_stripe_; }
  void setWidthstripe(double width) { width_stripe_ = width; }
  double getStepradius() const { return step_radius_; }
  void setStepradius(double step) { step_radius_ = step; }

  xCentersGrid grid;

private:
  int formulation_ = 0;        ///< 0 the form of Fellenius, 1 the form of Bishop
  double width_stripe_ = 0.0;  ///< wanted width of a stripe of ground [mm]
  double step_radius_ = 0.0;   ///< wanted step between radii at one centre [mm]
};
