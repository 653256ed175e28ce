#pragma once
/// @file  Anchors, the settings of their checks, and their link to the beam. Room: anchors
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/export.h"
#include "ostrel/soil_props.h"
#include "ostrel/vocabulary.h"

#include <cstdint>

/// How the anchors at one level are verified.
class OSTREL_API xAnchorSettings {
public:
  virtual void reset();
  virtual ~xAnchorSettings() = default;
  xAnchorSettings() = default;
  xAnchorSettings(const xAnchorSettings&) = default;
  xAnchorSettings& operator=(const xAnchorSettings&) = default;

  bool getuse_soil() const { return use_soil_; }
  void setuse_soil(bool use_soil) { use_soil_ = use_soil; }
  double getadesione() const { return adhesion_; }
  void setadesione(double adhesion) { adhesion_ = adhesion; }
  double getattrito() const { return friction_; }
  void setattrito(double friction) { friction_ = friction; }
  double getFyk() const { return yield_strength_; }
  void setFyk(double yield_strength) { yield_strength_ = yield_strength; }
  double getGammaS() const { return steel_factor_; }
  void setGammaS(double steel_factor) { steel_factor_ = steel_factor; }
  double getCsi3() const { return csi3_; }
  void setCsi3(double csi3) { csi3_ = csi3; }
  double getCsi4() const { return csi4_; }
  void setCsi4(double csi4) { csi4_ = csi4; }
  AnchorCsiData get_ValueType() const { return value_type_; }
  void set_ValueType(AnchorCsiData value_type) { value_type_ = value_type; }
  int getSoilCoeffType() const { return soil_coeff_type_; }
  void setSoilCoeffType(int soil_coeff_type) { soil_coeff_type_ = soil_coeff_type; }

private:
  bool use_soil_ = true;         ///< bond from the soil's interface; else from the next two
  double adhesion_ = 0.0;        ///< replaces the soil's adhesion [N/mm²]
  double friction_ = 0.0;        ///< replaces the soil's interface friction angle [rad]
  double yield_strength_ = 0.0;  ///< yield strength of the tendon [N/mm²]
  double steel_factor_ = 0.0;    ///< partial factor of the tendon [-]
  double csi3_ = 0.0;            ///< correlation factor on mean values [-]
  double csi4_ = 0.0;            ///< correlation factor on minimum values [-]
  AnchorCsiData value_type_ = csiMeanValues;  ///< which correlation factor applies
  int soil_coeff_type_ = coeffAtRest;         ///< a `SoilCoeffKType`; other numbers mean the mean
};

/// The anchors at one level of the wall: a tendon, inclined downwards, free at first and then
/// bonded to the ground.
class OSTREL_API xAnchor {
public:
  /// Back to the defaults, but for `AlphaD`, which keeps its value.
  virtual void reset();
  virtual ~xAnchor() = default;
  xAnchor() = default;
  xAnchor(const xAnchor&) = default;
  xAnchor(xAnchor&&) = default;
  xAnchor& operator=(const xAnchor&) = default;
  xAnchor& operator=(xAnchor&&) = default;

  std::int64_t getIdObj() const { return id_obj_; }
  void setIdObj(std::int64_t id_obj) { id_obj_ = id_obj; }
  double getcableDiam() const { return cable_diameter_; }
  void setcableDiam(double diameter) { cable_diameter_ = diameter; }
  double getbulbDiam() const { return bulb_diameter_; }
  void setbulbDiam(double diameter) { bulb_diameter_ = diameter; }
  double getAlphaD() const { return bulb_enlargement_; }
  void setAlphaD(double enlargement) { bulb_enlargement_ = enlargement; }
  double getAngleRad() const { return angle_; }
  void setAngleRad(double angle) { angle_ = angle; }
  double getFreeLength() const { return free_length_; }
  void setFreeLength(double length) { free_length_ = length; }
  double getBulbLength() const { return bulb_length_; }
  void setBulbLength(double length) { bulb_length_ = length; }
  std::int32_t getNumber() const { return number_; }
  void setNumber(std::int32_t number) { number_ = number; }
  double getPreStress() const { return prestress_; }
  void setPreStress(double force) { prestress_ = force; }

  double CableArea() const;  ///< pi d² / 4 of one tendon [mm²]

  xElasticProps material;    ///< of the tendon
  xAnchorSettings settings;  ///< of its checks
  double z = 0.0;            ///< depth of the head on the wall [mm]
  bool modeFlag = false;     ///< pulls for a positive (false) or negative (true) displacement

private:
  std::int64_t id_obj_ = -1;
  double cable_diameter_ = 0.0;    ///< equivalent diameter of the tendon [mm]
  double bulb_diameter_ = 0.0;     ///< diameter of the grout body [mm]
  double bulb_enlargement_ = 1.0;  ///< enlargement factor of the grout body [-]
  double angle_ = 0.0;             ///< inclination below the horizontal [rad]
  double free_length_ = 0.0;       ///< [mm]
  double bulb_length_ = 0.0;       ///< [mm]
  std::int32_t number_ = 2;        ///< anchors at this level in the width modelled
  double prestress_ = 0.0;         ///< added to the force from the analysis [N]
};

/// The link between an anchor and the beam.
struct OSTREL_API info_Fem_anchor {
  double level = 0.0;     ///< elevation of the anchor: the negative of its depth [mm]
  std::int32_t id = -1;   ///< index of the anchor in the input
  std::int32_t node = 0;  ///< node of the beam, -1 for none
  bool modeFlag = false;  ///< copy of the anchor's
  double kSS = 0.0;       ///< k sin²(alpha) [N/mm]
  double kCC = 0.0;       ///< k cos²(alpha) [N/mm]
  double kSC = 0.0;       ///< k sin(alpha) cos(alpha) [N/mm]
  double cosA = 1.0;      ///< cos(alpha) [-]
  double sinA = 0.0;      ///< sin(alpha) [-]
  double share = 1.0;     ///< part of the force that falls to one anchor [-]

  /// The force in one anchor, without its prestress:
  ///
  ///     -(u sin(alpha) + v cos(alpha)) (kSS + kCC) share
  ///
  /// @param u  displacement of its node along the wall, positive downwards [mm]
  /// @param v  displacement of its node across the wall [mm]
  /// @return [N]
  double get_Force(double u, double v) const;
};
