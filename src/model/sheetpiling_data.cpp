// SPDX-License-Identifier: Apache-2.0
#include "ostrel/sheetpiling_data.h"

xSheetpilingData::xSheetpilingData() {
  calcSettings.reset();
  xSheetpilingData::reset();
}

void xSheetpilingData::reset() {
  props = nullptr;
  soilLayers.clear();
  boundLayer.reset();
  embankment.reset();
  waterTable.reset();
  loadConds.clear();
  loadCombs.clear();
  restriction.reset();
  anchors.clear();
  calcSettings.reset();
}
