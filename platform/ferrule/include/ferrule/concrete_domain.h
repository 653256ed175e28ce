#pragma once
/// @file  A polygon of concrete with its bars, a component of a section. Library: ferrule
// SPDX-License-Identifier: Apache-2.0

#include "ferrule/slu_material.h"
#include "ferrule/steel_bar.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace Ferrule {

/// A vertex of an outline.
struct Point {
  double x = 0.0;  ///< [mm]
  double y = 0.0;  ///< [mm]
};

/// A polygon of one material. A component with a material that makes none, with an outline that
/// encloses no area or has a coordinate that is no finite number, or with a scale coefficient that
/// is not positive and finite, is unusable, and so is the section that holds it.
class BaseDomain {
public:
  /// The bars, of a domain that has any.
  virtual std::span<const SteelBar> bars() const { return {}; }

  virtual ~BaseDomain() = default;
  BaseDomain(const BaseDomain&) = delete;
  BaseDomain& operator=(const BaseDomain&) = delete;

  /// The closed polygon with the `n` vertices (x[i], y[i]) [mm]; the last one is joined to the
  /// first. It must not cross itself; clockwise order is taken as counter-clockwise.
  /// Less than three vertices, or a null pointer, leave the domain without an outline.
  void setExternBoundary(int n, const double* x, const double* y);
  std::span<const Point> externBoundary() const { return outline_; }

  /// Copies the laws of `model`, which may be released right after; null takes them away.
  void setMatModel(const BaseMaterialModel* model);
  const std::optional<MaterialLaws>& laws() const { return laws_; }

  /// Null makes it empty.
  void setName(const char* name);
  const std::string& getName() const { return name_; }

  /// Factor on the forces of concrete and bars of this domain [-].
  void setScaleCoefficient(double coefficient);
  double getScaleCoefficient() const { return scale_; }

  /// A number that changes whenever outline, laws, scale coefficient or bars do.
  std::uint64_t revision() const { return revision_; }
  /// The same for outline, laws and scale coefficient alone.
  std::uint64_t outlineRevision() const { return outline_revision_; }

protected:
  BaseDomain() = default;
  void barsChanged() { ++revision_; }

private:
  void outline_changed();

  std::vector<Point> outline_;
  std::optional<MaterialLaws> laws_;
  std::string name_;
  double scale_ = 1.0;
  std::uint64_t revision_ = 0;
  std::uint64_t outline_revision_ = 0;
};

/// A polygon of concrete with bars. The concrete is not deducted at the bars.
class ClsDomain final : public BaseDomain {
public:
  ClsDomain() = default;

  std::span<const SteelBar> bars() const override { return bars_; }

  /// Replaces the bars by a copy of the `n` bars at `bars`; null or a count below 1 leaves none.
  /// Bars whose radius is not positive, or with a value that is not finite, do not count.
  void setBars(int n, const SteelBar* bars);

private:
  std::vector<SteelBar> bars_;
};

}  // namespace Ferrule
