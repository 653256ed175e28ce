#pragma once
/// @file  How the bearing capacity of piles is verified. Room: geotech
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/export.h"

#include <cstdint>

/// How a pile is made; each has its own earth pressure coefficients and adhesion.
enum xtechPiles : std::int32_t { pileDriven = 0, pileBored = 1, pileAugered = 2 };

/// The section of a pile.
class OSTREL_API bearSecPile {
public:
  /// What stands for the diameter of a rectangle; any other value is the diameter of equal area.
  enum evalDiamMethod : std::int32_t { diamSmallerSide = 0, diamLargerSide = 1, diamEqualArea = 2 };

  void reset();

  double getArea() const;     ///< [mm²]
  double getPerim() const;    ///< [mm]
  double getEqvDiam() const;  ///< equivalent diameter [mm]

  std::int32_t type = 0;                  ///< 1 and 2 rectangular, any other circular
  evalDiamMethod method = diamEqualArea;  ///< for rectangles
  double d = 0.0;                         ///< diameter or first side [mm]
  double h = 0.0;                         ///< second side [mm]
};

/// Settings of the bearing capacity of piles.
class OSTREL_API xBearCapacityPileSettings {
public:
  virtual void reset();
  virtual ~xBearCapacityPileSettings() = default;
  xBearCapacityPileSettings() = default;
  xBearCapacityPileSettings(const xBearCapacityPileSettings&) = default;
  xBearCapacityPileSettings& operator=(const xBearCapacityPileSettings&) = default;

  bearSecPile::evalDiamMethod getDiamMethod() const { return diam_method_; }
  void setDiamMethod(bearSecPile::evalDiamMethod method) { diam_method_ = method; }
  xtechPiles getTechnologyType() const { return technology_type_; }
  void setTechnologyType(xtechPiles type) { technology_type_ = type; }
  bool getApplyKishida() const { return apply_kishida_; }
  void setApplyKishida(bool apply) { apply_kishida_ = apply; }
  double getEta() const { return eta_; }
  void setEta(double eta) { eta_ = eta; }
  double getCsi3() const { return csi3_; }
  void setCsi3(double factor) { csi3_ = factor; }
  double getCsi4() const { return csi4_; }
  void setCsi4(double factor) { csi4_ = factor; }
  std::int32_t getValueType() const { return value_type_; }
  void setValueType(std::int32_t type) { value_type_ = type; }

private:
  bearSecPile::evalDiamMethod diam_method_ = bearSecPile::diamEqualArea;
  xtechPiles technology_type_ = pileDriven;
  bool apply_kishida_ = false;   // the friction angle follows the way the pile is made
  double eta_ = 0.0;             // group efficiency [-]; no computation reads it
  double csi3_ = 0.0;            // correlation factor on mean values [-]
  double csi4_ = 0.0;            // correlation factor on minimum values [-]
  std::int32_t value_type_ = 0;  // 0 selects Csi3, any other Csi4
};
