#pragma once
/// @file  Settings of a calculation. Room: model
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/export.h"
#include "ostrel/slope_settings.h"
#include "ostrel/vocabulary.h"

#include <array>
#include <string>

/// How the analysis calculates: formulas, spacing of the nodes, limit of the springs.
class OSTREL_API xCalcSettings {
public:
  /// Back to the defaults below.
  virtual void reset();
  virtual ~xCalcSettings() = default;
  xCalcSettings() = default;
  xCalcSettings(const xCalcSettings&) = default;
  xCalcSettings(xCalcSettings&&) = default;
  xCalcSettings& operator=(const xCalcSettings&) = default;
  xCalcSettings& operator=(xCalcSettings&&) = default;

  const std::string& getCalcName() const { return calc_name_; }
  void setCalcName(const std::string& name) { calc_name_ = name; }

  /// The earth pressure formula of combinations that are `seismic` or not.
  formulType get_EpFormuls(bool seismic) const { return formulas_[seismic ? 1 : 0]; }
  void setEpFormuls(bool seismic, formulType formula) { formulas_[seismic ? 1 : 0] = formula; }

  double getStepMolle() const { return step_molle_; }
  void setStepMolle(double step) { step_molle_ = step; }
  double getDispLim() const { return disp_lim_; }
  void setDispLim(double limit) { disp_lim_ = limit; }

  xSlopeStabilitySettings slope;

private:
  std::string calc_name_;
  std::array<formulType, 2> formulas_{formulaAtRest, formulaMononobeOkabe};
  double step_molle_ = 250.0;  ///< wanted spacing of nodes and springs along the wall [mm]
  double disp_lim_ = 25.4;     ///< displacement at which a spring reaches its limit pressure [mm]
};
