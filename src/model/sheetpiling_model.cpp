// SPDX-License-Identifier: Apache-2.0
#include "ostrel/sheetpiling_model.h"

#include "model/pile_wall.h"
#include "model/stratigraphy.h"
#include "ostrel/sheetpiling_data.h"

namespace {

// Depths of everything at which the ground is cut: excavation and foot of the wall, anchors,
// constraints [mm].
std::vector<double> levels_of(const xSheetpilingData& data) {
  std::vector<double> levels{data.props->getDepth(), data.props->getLength()};
  for (const xAnchor& anchor : data.anchors) {
    levels.push_back(anchor.z);
  }
  for (const auto* constraints : {&data.restriction.imposed, &data.restriction.springs}) {
    for (const xConstraint& constraint : *constraints) {
      levels.push_back(constraint.getPosition());
    }
  }
  return levels;
}

}  // namespace

void xSheetpilingModel::reset() {
  layers.clear();
  fem.reset();
  anchors.clear();
}

OstrelErrorType xSheetpilingModel::create_Stratigraphy(xSheetpilingData* data) {
  if (!data || !ostrel::model::pile_wall(*data)) return errNoWall;
  return ostrel::model::build_column(data->soilLayers, data->waterTable, levels_of(*data),
                                     data->calcSettings.getStepMolle(), layers);
}

bool xSheetpilingModel::splitLayer(double depth, const xWaterTable& water, xSoilLayer& layer) {
  return ostrel::model::split_layer(depth, water, layer, layers);
}

void xSheetpilingModel::insert_WaterTable(const xWaterTable& water, xSoilLayer& layer) {
  ostrel::model::insert_water_table(water, layer, layers);
}
