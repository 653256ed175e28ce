#pragma once
/// @file  The outcome of one anchor in one combination. Room: anchors
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/check_frame.h"
#include "ostrel/export.h"
#include "ostrel/stream.h"

#include <string>

/// Design force and resistance of one anchor in one combination.
class OSTREL_API xAnchorResults : public xCheckCombID {
public:
  /// @name Persisted object, version 1
  ///@{
  void reset() override;
  std::string getIOClass() const override;
  void pub_read(instream& in) override;
  void pub_write(outstream& out) const override;
  ///@}

  double getRd() const { return Rd; }
  void setRd(double resistance) { Rd = resistance; }
  double getFd() const { return Fd; }
  void setFd(double force) { Fd = force; }
  double getSf() const { return Sf; }
  void setSf(double factor) { Sf = factor; }

  double depth = 0.0;  ///< of the anchor's head below the wall head [mm]

protected:
  double Rd = 0.0;  ///< design resistance [N]
  double Fd = 0.0;  ///< design force, positive in tension [N]
  double Sf = 0.0;  ///< safety factor [-]

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;
};
