#pragma once
/// @file  What the verifications of a wall need besides the combinations. Room: structural
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/export.h"
#include "ostrel/identity.h"
#include "ostrel/pile_bearing_settings.h"
#include "ostrel/reinforcement_settings.h"
#include "ostrel/stream.h"

#include <osg/ref_ptr>

#include <string>

/// Settings of the verifications. A copy shares the reinforcement settings.
class OSTREL_API xCheckSettings : public xDescription {
public:
  /// @name Persisted object, version 4
  /// Only the description and the reinforcement settings are stored: reading leaves the settings of
  /// the piles and both limits as they are.
  ///@{
  void reset() override;
  std::string getIOClass() const override;
  void pub_read(instream& in) override;
  void pub_write(outstream& out) const override;
  ///@}

  double getHeadDispLim() const { return head_disp_lim_; }
  void setHeadDispLim(double limit) { head_disp_lim_ = limit; }
  double getJtsDispLim() const { return jts_disp_lim_; }
  void setJtsDispLim(double limit) { jts_disp_lim_ = limit; }

  osg::ref_ptr<xReinforcement_Settings> reinforcementSettings;  ///< of the wall; may be null
  xBearCapacityPileSettings pileSettings;

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 4; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;

  double head_disp_lim_ = 0.0;  // limit on the displacement of the wall head [mm]
  double jts_disp_lim_ = 0.0;   // limit on the displacement at the excavation level [mm]
};
