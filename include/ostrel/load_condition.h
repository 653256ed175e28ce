#pragma once
/// @file  A load condition: a named list of loads. Room: loads
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/export.h"
#include "ostrel/identity.h"
#include "ostrel/soil_load.h"
#include "ostrel/stream.h"
#include "ostrel/wall_load.h"

#include <osg/ref_ptr>

#include <string>
#include <vector>

/// Loads that act together.
///
/// Copies are deep: every load is made anew, and entries without a load are left out. A moved
/// condition hands its loads over as they are.
///
/// @oddity A point load (`xPuntiformLoad`) is stored like the others, but a stored one cannot be
/// read back: it lives only in memory. Stored documents depend on it.
class OSTREL_API xLoadCond : public xObjectID {
public:
  xLoadCond() = default;
  xLoadCond(const xLoadCond& other);
  xLoadCond(xLoadCond&& other) noexcept;
  xLoadCond& operator=(const xLoadCond& other);
  xLoadCond& operator=(xLoadCond&& other) noexcept;

  /// @name Persisted object, version 1
  /// Reading throws `std::runtime_error` "unknown class in read_vec_refptr" for a load of a class
  /// that its list does not take.
  ///@{
  void reset() override;
  using xObjectID::copy;  // takes id and name alone
  std::string getIOClass() const override;
  void pub_read(instream& in) override;
  void pub_write(outstream& out) const override;
  ///@}

  /// Makes this condition a deep copy of `other`; a copy of itself changes nothing.
  virtual void copy(const xLoadCond& other);

  std::vector<osg::ref_ptr<xSoilLoad>> soilLoads;      ///< on the ground
  std::vector<osg::ref_ptr<xShpileLoad>> shpileLoads;  ///< on the wall

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;
};
