// SPDX-License-Identifier: Apache-2.0
#include "ostrel/spring_interval.h"

#include "services/label_table.h"

std::map<xSpringInterval::QlimSpring, std::string>* xSpringInterval::QlimSpringypeMap() {
  using quillet::translatable;
  static std::map<QlimSpring, std::string> table;
  return ostrel::services::fill_once(table,
                                     {{limitUltimate, translatable("Ultima")},
                                      {limitPassive, translatable("Passiva")},
                                      {limitSmaller, translatable("Minimo tra Passiva e Ultima")}});
}
