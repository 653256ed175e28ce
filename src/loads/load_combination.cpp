// SPDX-License-Identifier: Apache-2.0
#include "ostrel/load_combination.h"

#include "services/label_table.h"

#include <tallow/class_registry.h>

using ostrel::services::fill_once;
using ostrel::services::label;
using quillet::translatable;

namespace {

struct Family {
  SupportedSoilLoadItem::TypeGroup group;
  const char* text;
  const char* root;
};

constexpr Family families[] = {
    {SupportedSoilLoadItem::groupUniform, translatable("Uniforme"), "mCaricoUniformeGroup"},
    {SupportedSoilLoadItem::groupStrip, translatable("Nastriforme"), "mCaricoNastriformeGroup"},
    {SupportedSoilLoadItem::groupLine, translatable("Lineare"), "mCaricoLineareGroup"},
    {SupportedSoilLoadItem::groupPoint, translatable("Puntiforme"), "mCaricoPuntiformeGroup"},
};

}  // namespace

void xAction::reset() {
  *this = xAction{};
}

void xAction::set(const std::string& name, const bool& active, const double& first,
                  const double& second) {
  first_factor_ = first;
  second_factor_ = second;
  is_active_ = active;
  condition_name_ = name;
}

xLoadComb::xLoadComb() {
  initChecks(checks);
}

void xLoadComb::reset() {
  *this = xLoadComb{};
}

void xLoadComb::initChecks(std::map<pCheckTypes, bool>& wanted) {
  wanted.clear();
  for (const auto& [type, text] : *xGetChecksTypeMap()) {
    wanted[type] = false;
  }
}

bool xLoadComb::checkActive(pCheckTypes type) const {
  const auto found = checks.find(type);
  return found != checks.end() && found->second;
}

std::string getPredefined_CondName(int index) {
  static std::map<int, std::string> names;
  fill_once(names, {{0, translatable("Permanente strutturali")},
                    {1, translatable("Permanenti geotecniche")},
                    {2, translatable("Spinta idrostatica")}});
  const auto found = names.find(index);
  return found != names.end() ? found->second : std::string();
}

bool SupportedSoilLoadItem::build(TypeGroup type_group, const char* menu_label,
                                  const char* root_class) {
  group = type_group;
  label = menu_label ? menu_label : "";
  if (!root_class) {
    classes.clear();
  } else {
    Tallow::getChildrenClassesList(root_class, classes, 1);
  }
  return isValid();
}

void SupportedSoilLoadItem::reset() {
  build(groupNone, nullptr, nullptr);
}

std::vector<SupportedSoilLoadItem>* getSupportedCarchiTerrenoClass() {
  static std::vector<SupportedSoilLoadItem> list;
  if (list.empty()) {
    for (const Family& family : families) {
      SupportedSoilLoadItem item;
      if (item.build(family.group, label(family.text).c_str(), family.root)) list.push_back(item);
    }
  }
  return &list;
}

void getSupportedCarchiTerrenoClass(
    std::map<SupportedSoilLoadItem::TypeGroup, SupportedSoilLoadItem*>& items) {
  items.clear();
  for (SupportedSoilLoadItem& item : *getSupportedCarchiTerrenoClass()) {
    items[item.group] = &item;
  }
}
