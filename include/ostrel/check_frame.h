#pragma once
/// @file  What all verifications share: safety factor, results, failures. Room: structural
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/export.h"
#include "ostrel/stream.h"

#include <osg/Referenced>

#include <cstdint>
#include <string>

/// The safety factor of every verification [-]: |resistance / demand|, at most 1e10; 1e10 also for
/// a demand of exactly 0, whatever the resistance. The signs are lost, and a NaN stays one.
OSTREL_API double CalculateSF(double demand, double resistance);

/// The outcome of one level of a verification.
class OSTREL_API xBaseResults {
public:
  /// @name Persisted object, version 1
  ///@{
  virtual void reset();
  virtual std::string getIOClass() const;
  virtual void pub_read(instream& in);
  virtual void pub_write(outstream& out) const;
  ///@}
  virtual ~xBaseResults() = default;
  xBaseResults() = default;
  xBaseResults(const xBaseResults&) = default;
  xBaseResults& operator=(const xBaseResults&) = default;

  double getSf() const { return sf; }
  void setSf(double factor) { sf = factor; }

  /// Position of the record that gave the safety factor.
  ///
  /// @oddity A position is handed out as a double. The interface has it so.
  double getIndex() const { return index; }
  void setIndex(std::int32_t position) { index = position; }

protected:
  double sf = 1e10;        ///< smallest safety factor of the level [-]
  std::int32_t index = 0;  ///< position of the record that gave it

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;
};

/// The object and the combination that a record of a verification speaks of.
class OSTREL_API xCheckCombID {
public:
  /// @name Persisted object, version 1
  ///@{
  virtual void reset();
  virtual std::string getIOClass() const;
  virtual void pub_read(instream& in);
  virtual void pub_write(outstream& out) const;
  ///@}
  virtual ~xCheckCombID() = default;
  xCheckCombID() = default;
  xCheckCombID(const xCheckCombID&) = default;
  xCheckCombID(xCheckCombID&&) = default;
  xCheckCombID& operator=(const xCheckCombID&) = default;
  xCheckCombID& operator=(xCheckCombID&&) = default;

  std::int64_t getIdObj() const { return idObj; }
  void setIdObj(std::int64_t id) { idObj = id; }
  std::int32_t getCombIndex() const { return combIndex; }
  void setCombIndex(std::int32_t position) { combIndex = position; }
  const std::string& getCombName() const { return combName; }
  void setxCombName(const std::string& name) { combName = name; }  // sic: the interface's spelling

  void setCheckID(const xCheckCombID& other);
  void setCheckID(std::int64_t id, int position, const std::string& name);

protected:
  std::int64_t idObj = -1;     ///< the wall or an anchor
  std::int32_t combIndex = 0;  ///< position of the combination
  std::string combName;

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;
};

/// One failed verification. Records of failures are made on request and not stored.
class OSTREL_API xCheckInfo : public osg::Referenced {
public:
  ~xCheckInfo() override = default;
  virtual xCheckInfo* clone() const = 0;      ///< a new copy
  virtual std::string getString() const = 0;  ///< the message, in the language in force

  xCheckInfo() = default;
  xCheckInfo(const xCheckInfo&) = default;
  xCheckInfo& operator=(const xCheckInfo&) = default;

  double sf = 1e10;            ///< safety factor [-]
  std::int32_t combIndex = 0;  ///< position of the combination
  std::string combName;
  std::int64_t idObj = 0;
};

/// A failure of a reinforced concrete section.
class OSTREL_API concreteCheckInfo : public xCheckInfo {
public:
  concreteCheckInfo* clone() const override;
  std::string getString() const override;

  bool isShear = false;   ///< failed in shear, otherwise in bending with axial force
  double abscissa = 0.0;  ///< position of the section along the member [mm]
};

/// A failure of an anchor.
class OSTREL_API anchorCheckInfo : public xCheckInfo {
public:
  anchorCheckInfo* clone() const override;
  std::string getString() const override;

  bool isResistance = false;  ///< failed in its own strength, otherwise pulled out
  double depth = 0.0;         ///< depth of the anchor's head below the wall head [mm]
};
