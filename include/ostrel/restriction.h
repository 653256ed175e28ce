#pragma once
/// @file  Imposed displacements and concentrated springs on the wall. Room: model
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/export.h"

#include <vector>

/// One degree of freedom of a constraint.
class OSTREL_API xNodeConstraint {
public:
  virtual void reset();
  virtual ~xNodeConstraint() = default;
  xNodeConstraint() = default;
  xNodeConstraint(const xNodeConstraint&) = default;
  xNodeConstraint& operator=(const xNodeConstraint&) = default;

  bool getActive() const { return active_; }
  void setActive(bool active) { active_ = active; }
  double getValue() const { return value_; }
  void setValue(double value) { value_ = value; }

private:
  bool active_ = false;
  double value_ = 0.0;  ///< imposed: [mm] or [rad]; as a spring: [N/mm] or [Nmm]
};

/// What acts on the wall at one level.
class OSTREL_API xConstraint {
public:
  virtual void reset();
  virtual ~xConstraint() = default;
  xConstraint() = default;
  xConstraint(const xConstraint&) = default;
  xConstraint& operator=(const xConstraint&) = default;

  double getPosition() const { return position_; }
  void setPosition(double depth) { position_ = depth; }

  xNodeConstraint horizontal;  ///< degree of freedom 1, across the wall
  xNodeConstraint axial;       ///< degree of freedom 0, along the wall; imposed: positive upwards
  xNodeConstraint rotation;    ///< degree of freedom 2

private:
  double position_ = 0.0;  ///< depth of the level [mm]
};

/// All that holds the wall besides soil and anchors.
class OSTREL_API xRestriction {
public:
  virtual void reset();
  virtual ~xRestriction() = default;
  xRestriction() = default;
  xRestriction(const xRestriction&) = default;
  xRestriction(xRestriction&&) = default;
  xRestriction& operator=(const xRestriction&) = default;
  xRestriction& operator=(xRestriction&&) = default;

  std::vector<xConstraint> imposed;  ///< imposed displacements
  std::vector<xConstraint> springs;  ///< concentrated springs
};
