#pragma once
/// @file  Circular and rectangular sections of a pile and their elastic values. Library: sorrel
// SPDX-License-Identifier: Apache-2.0

#include "sorrel/export.h"

#include <osg/Referenced>

/// A cross-section and the values that elastic bending, torsion and axial force take from it.
///
/// Axes: y and z are the principal axes through the centroid. The wall bends in the plane of y and
/// the pile's axis, so y is the direction of the depth (from the excavation to the retained side,
/// up to sign) and z runs along the wall. A second moment is named after the axis about which it is
/// taken: Jy = ∫ z² dA and Jz = ∫ y² dA. The wall's bending therefore turns about z.
///
/// Stored and derived: the dimensions are stored by the derived class. `computeProp` derives all
/// values from them, and the accessors give what the last `computeProp` left: 0 before the first,
/// and the former values after a dimension has been set. The `Compute...` operations give one value
/// from the dimensions as they are now and change nothing.
///
/// No section: a dimension counts only from 1e-60 to 1e60 mm, bounds within which no value
/// overflows or vanishes. With any dimension outside of them (zero, negative, NaN, infinite) every
/// value is 0, radii and moduli too, so that a bad input shows as a beam with no stiffness and
/// never as a NaN, nor as a negative stiffness or, by two negative sides, as a plausible one.
class SORREL_API xCrossSecProp : public osg::Referenced {
public:
  /// Derives all values from the stored dimensions.
  virtual void computeProp();
  /// A new section with the same dimensions and values; it belongs to the caller.
  virtual xCrossSecProp* clone() const = 0;

  /// @name One value from the stored dimensions
  ///@{
  virtual double ComputeArea() const = 0;  ///< area [mm²]
  virtual double ComputeJy() const = 0;    ///< second moment about y, ∫ z² dA [mm⁴]
  virtual double ComputeJz() const = 0;    ///< second moment about z, ∫ y² dA [mm⁴]
  double ComputeJp() const;                ///< polar second moment, Jy + Jz [mm⁴]
  virtual double ComputeJt() const = 0;    ///< Saint-Venant's torsion constant [mm⁴]
  double ComputeRy() const;                ///< radius of gyration about y, sqrt(Jy / area) [mm]
  double ComputeRz() const;                ///< radius of gyration about z, sqrt(Jz / area) [mm]
  virtual double ComputeWy() const = 0;    ///< elastic modulus about y, Jy / largest |z| [mm³]
  virtual double ComputeWz() const = 0;    ///< elastic modulus about z, Jz / largest |y| [mm³]
  ///@}

  /// @name Values as `computeProp` left them
  ///@{
  double getArea() const { return values_.area; }  ///< [mm²]
  double getJy() const { return values_.jy; }      ///< [mm⁴]
  double getJz() const { return values_.jz; }      ///< [mm⁴]
  double getJp() const { return values_.jp; }      ///< [mm⁴]
  double getJt() const { return values_.jt; }      ///< [mm⁴]
  double getRy() const { return values_.ry; }      ///< [mm]
  double getRz() const { return values_.rz; }      ///< [mm]
  double getWy() const { return values_.wy; }      ///< [mm³]
  double getWz() const { return values_.wz; }      ///< [mm³]
  /// Second moment for the bending of the wall, in the plane in which the first dimension of a
  /// rectangle is the depth: Jz. The beam elements take this one [mm⁴].
  double getBendingJ() const { return values_.jz; }
  ///@}

protected:
  xCrossSecProp() = default;
  xCrossSecProp(const xCrossSecProp&) = default;
  xCrossSecProp& operator=(const xCrossSecProp&) = default;
  ~xCrossSecProp() override = default;

private:
  struct Values {
    double area = 0.0;
    double jy = 0.0;
    double jz = 0.0;
    double jp = 0.0;
    double jt = 0.0;
    double ry = 0.0;
    double rz = 0.0;
    double wy = 0.0;
    double wz = 0.0;
  };

  Values values_;
};

/// A full circle: area pi r², Jy = Jz = pi r⁴ / 4, Jp = Jt = pi r⁴ / 2, radii of gyration r / 2,
/// moduli pi r³ / 4.
class SORREL_API xCircSecProp final : public xCrossSecProp {
public:
  xCircSecProp() = default;

  xCircSecProp* clone() const override;
  double ComputeArea() const override;
  double ComputeJy() const override;
  double ComputeJz() const override;
  double ComputeJt() const override;
  double ComputeWy() const override;
  double ComputeWz() const override;

  double getRadius() const { return Radius; }
  void setRadius(double radius) { Radius = radius; }

protected:
  ~xCircSecProp() override = default;

private:
  double Radius = 0.0;  ///< radius of the circle, half of the pile's diameter [mm]
};

/// A full rectangle: area first second, Jy = first second³ / 12, Jz = second first³ / 12, radii of
/// gyration second / sqrt(12) about y and first / sqrt(12) about z, moduli first second² / 6 about
/// y and second first² / 6 about z. The torsion constant is the exact series, to double precision;
/// exchanging the sides leaves it as it is.
class SORREL_API xRectSecProp final : public xCrossSecProp {
public:
  xRectSecProp() = default;

  xRectSecProp* clone() const override;
  double ComputeArea() const override;
  double ComputeJy() const override;
  double ComputeJz() const override;
  /// @source Timoshenko, Goodier: Theory of Elasticity, 3rd edition (1970), art. 109
  double ComputeJt() const override;
  double ComputeWy() const override;
  double ComputeWz() const override;

  double getFirst() const { return First; }
  void setFirst(double first) { First = first; }
  double getSecond() const { return Second; }
  void setSecond(double second) { Second = second; }

protected:
  ~xRectSecProp() override = default;

private:
  double First = 0.0;   ///< first dimension: extent along y, the depth in the wall's bending [mm]
  double Second = 0.0;  ///< second dimension: extent along z, the width in the wall's bending [mm]
};
