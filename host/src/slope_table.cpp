// SPDX-License-Identifier: Apache-2.0
#include "slope_table.h"

#include "text_table.h"
#include "units.h"
#include "verification.h"

#include <cmath>

namespace ostrel::host {

namespace {

using Side = TextTable::Side;

}  // namespace

std::string circle_table(const xSlopeStabilityDesign& design, const Texts& texts) {
  if (design.getResults().empty()) return "";
  TextTable table;
  table.add_column(std::string(texts(Text::heading_combination)), Side::left);
  table.add_column("xC [m]", Side::right);
  table.add_column("yC [m]", Side::right);
  for (const Text heading : {Text::heading_radius, Text::heading_resisting, Text::heading_driving,
                             Text::heading_factor}) {
    table.add_column(std::string(texts(heading)), Side::right);
  }
  for (const xSlopeStability& result : design.getResults()) {
    table.add_row(
        {result.getCombName(), number_text(m_of_mm(result.getXC()), 2),
         number_text(m_of_mm(result.getYC()), 2), number_text(m_of_mm(result.getRadius()), 2),
         number_text(std::abs(knm_of_nmm(result.getMstab())), 1),
         number_text(std::abs(knm_of_nmm(result.getMdestab())), 1), factor_text(result.getSf())});
  }
  return std::string(texts(Text::circles_title)) + "\n" + table.render();
}

}  // namespace ostrel::host
