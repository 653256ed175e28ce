// SPDX-License-Identifier: Apache-2.0
#include "ostrel/sheetpiling_model.h"

#include "model/stratigraphy.h"

void xSheetpilingModel::reset() {
  layers.clear();
  fem.reset();
  anchors.clear();
}

bool xSheetpilingModel::splitLayer(double depth, const xWaterTable& water, xSoilLayer& layer) {
  return ostrel::model::split_layer(depth, water, layer, layers);
}

void xSheetpilingModel::insert_WaterTable(const xWaterTable& water, xSoilLayer& layer) {
  ostrel::model::insert_water_table(water, layer, layers);
}
