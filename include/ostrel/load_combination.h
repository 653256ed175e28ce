#pragma once
/// @file  Load combinations, and the loads on the ground that a host can offer. Room: loads
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/export.h"
#include "ostrel/seismic_action.h"
#include "ostrel/soil_props.h"
#include "ostrel/vocabulary.h"

#include <cstdint>
#include <map>
#include <string>
#include <vector>

/// Which of the two factors of an action.
enum actType : std::int32_t {
  actFirst = 0,   ///< the first factor
  actSecond = 1,  ///< the second factor, as any other value but 0
};

/// How one condition enters a combination.
class OSTREL_API xAction {
public:
  virtual void reset();
  virtual ~xAction() = default;
  xAction() = default;
  xAction(const xAction&) = default;
  xAction(xAction&&) = default;
  xAction& operator=(const xAction&) = default;
  xAction& operator=(xAction&&) = default;

  /// @param first   factor for the type 0 [-]
  /// @param second  factor for every other type [-]
  void set(const std::string& name, const bool& active, const double& first, const double& second);

  double getFactor(actType type) const { return type == actFirst ? first_factor_ : second_factor_; }

  /// An action that is not active is left out of the combination.
  bool getIsActive() const { return is_active_; }
  void setIsActive(bool active) { is_active_ = active; }
  const std::string& getCondName() const { return condition_name_; }
  void setCondName(const std::string& name) { condition_name_ = name; }

private:
  double first_factor_ = 1.0;   ///< [-]
  double second_factor_ = 1.0;  ///< [-]
  bool is_active_ = false;
  std::string condition_name_;
};

/// One combination: which conditions act and by which factors, the partial factors on soil and
/// resistances, the verifications wanted, and the seismic action.
class OSTREL_API xLoadComb {
public:
  xLoadComb();
  virtual void reset();
  virtual ~xLoadComb() = default;
  xLoadComb(const xLoadComb&) = default;
  xLoadComb(xLoadComb&&) = default;
  xLoadComb& operator=(const xLoadComb&) = default;
  xLoadComb& operator=(xLoadComb&&) = default;

  /// Enters every verification of `xGetChecksTypeMap` as not wanted, and nothing else.
  static void initChecks(std::map<pCheckTypes, bool>& wanted);

  /// Whether the verification is wanted; false for one that has no entry.
  bool checkActive(pCheckTypes type) const;

  int getcombIndex() const { return index_; }
  void setcombIndex(int index) { index_ = index; }
  const std::string& getCombName() const { return name_; }
  void setCombName(const std::string& name) { name_ = name; }
  pCombinationTypes getCombType() const { return type_; }
  void setCombType(pCombinationTypes type) { type_ = type; }
  double getSeismFact() const { return seismic_factor_; }
  void setSeismFact(double factor) { seismic_factor_ = factor; }

  xSeismicAction seismic;
  std::map<pCheckTypes, bool> checks;            ///< which verifications are wanted
  std::vector<GeoCombFactor> geoFactors;         ///< partial factors on the soil, by position
  std::map<checkUlsFactors, double> ulsFactors;  ///< partial factors on resistances [-]

  /// Weight of the structure, earth pressure, water pressure, and then one action for each load
  /// condition of the input, in its order: the condition at i goes with the action at i + 3.
  std::vector<xAction> actions;

private:
  int index_ = 0;
  std::string name_;
  pCombinationTypes type_ = combUltimate;
  double seismic_factor_ = 1.0;  ///< applied to the seismic coefficients in slope stability [-]
};

/// Name of the predefined condition at `index`: 0 weight of the structure, 1 earth pressure, 2
/// water pressure; empty for any other. The names are made at the first use and keep that language.
OSTREL_API std::string getPredefined_CondName(int index);

/// A family of loads on the ground that a host can offer in a menu.
struct OSTREL_API SupportedSoilLoadItem {
  enum TypeGroup : std::int32_t {
    groupNone = 0,
    groupUniform = 1,
    groupStrip = 2,
    groupLine = 3,
    groupPoint = 4,
  };

  /// Stores group and label and takes the classes from the registry.
  /// @param menu_label  text to show; null gives an empty one
  /// @param root_class  the class of the registry below which the family lies; null for none
  /// @return `isValid()`
  bool build(TypeGroup type_group, const char* menu_label, const char* root_class);
  void reset();

  /// Whether the registry has a class of this family.
  bool isValid() const { return !classes.empty(); }

  TypeGroup group = groupNone;
  std::vector<std::string> classes;  ///< direct children of the family's root in the registry
  std::string label;
};

/// @name The families that have a class in the registry
/// The list is made at the first use that finds one, and kept from then on, in that language; both
/// forms work on the same list.
///@{
OSTREL_API std::vector<SupportedSoilLoadItem>* getSupportedCarchiTerrenoClass();

/// Replaces the contents of `items` by the families, by their group. The pointers stay valid.
OSTREL_API void getSupportedCarchiTerrenoClass(
    std::map<SupportedSoilLoadItem::TypeGroup, SupportedSoilLoadItem*>& items);
///@}
