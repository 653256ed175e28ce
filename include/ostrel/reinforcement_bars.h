#pragma once
/// @file  Bars, stirrups, and what stirrups may be. Room: structural
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/export.h"
#include "ostrel/stream.h"

#include <cstdint>
#include <string>

/// A group of equal bars. Counts that an area asks for are rounded up; a quotient within 1e-9 of a
/// whole number is that number. No count leaves the range of its type: it stops at the limit.
class OSTREL_API xReinforcementBar {
public:
  /// @name Persisted object, version 1
  ///@{
  virtual void reset();
  virtual std::string getIOClass() const;
  virtual void pub_read(instream& in);
  virtual void pub_write(outstream& out) const;
  ///@}
  virtual ~xReinforcementBar() = default;

  std::uint32_t getNumber() const { return number_; }
  void setNumber(std::uint32_t number) { number_ = number; }
  double getDiameter() const { return diameter_; }
  void setDiameter(double diameter) { diameter_ = diameter; }

  double barArea() const;  ///< section of one bar [mm²]
  double area() const;     ///< section of all bars [mm²]

  /// Takes as many bars as give at least the area `a` [mm²]; none where `a` or the section of a bar
  /// is not positive.
  void calcBarNumFromArea(double a);

  /// Adds `n` bars; a negative `n` takes bars away, down to none.
  void addBars(int n);

  /// Adds `n` bars of diameter `d` [mm]. A group without bars or without a diameter becomes these
  /// bars; another keeps its diameter and grows by the bars that give their area. A negative `n`
  /// counts as 0.
  void addArm(int n, int d);

  /// Takes away the area of `n` bars of diameter `d` [mm]; a rest below a thousandth of a bar is
  /// nothing. A negative `n` counts as 0.
  void eraseArm(int n, int d);

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;

  std::uint32_t number_ = 0;
  double diameter_ = 0.0;  // [mm]
};

/// Stirrups at equal distances.
class OSTREL_API xBracket {
public:
  /// @name Persisted object, version 2
  ///@{
  virtual std::string getIOClass() const;
  virtual void pub_read(instream& in);
  virtual void pub_write(outstream& out) const;
  ///@}
  virtual ~xBracket() = default;
  xBracket() = default;
  xBracket(const xBracket&) = default;
  xBracket& operator=(const xBracket&) = default;

  void Default();

  double getDiameter() const { return diameter_; }
  void setDiameter(double diameter) { diameter_ = diameter; }
  std::int32_t getNArms() const { return n_arms_; }
  void setNArms(std::int32_t arms) { n_arms_ = arms; }
  double getStep() const { return step_; }
  void setStep(double step) { step_ = step; }

  double Asw() const;  ///< section of all arms of one stirrup [mm²]

  /// Section of the arms by unit of length [mm²/mm]. A step below the diameter counts as the
  /// diameter, so that a step of 0 stays comparable; 0 where the larger of both is below 0.001 mm.
  double AswForStep() const;

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 2; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;

  double diameter_ = 0.0;  // [mm]
  std::int32_t n_arms_ = 2;
  double step_ = 0.0;  // distance between stirrups [mm]
};

/// What stirrups a design may choose.
class OSTREL_API xBracketSettings {
public:
  /// @name Persisted object, version 1
  /// The number of arms is not stored: reading leaves it as it is.
  ///@{
  virtual void reset();
  virtual std::string getIOClass() const;
  virtual void pub_read(instream& in);
  virtual void pub_write(outstream& out) const;
  ///@}
  virtual ~xBracketSettings() = default;

  double getMinStep() const { return min_step_; }
  void setMinStep(double step) { min_step_ = step; }
  double getMaxStep() const { return max_step_; }
  void setMaxStep(double step) { max_step_ = step; }
  double _getStepIncr() const { return step_incr_; }  // sic: the interface's spelling
  void setStepIncr(double increment) { step_incr_ = increment; }
  std::int32_t getNArms() const { return n_arms_; }
  void setNArms(std::int32_t arms) { n_arms_ = arms; }

  xReinforcementBar bar;  ///< its diameter is that of the stirrups

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;

  double min_step_ = 0.0;   // smallest distance between stirrups [mm]
  double max_step_ = 0.0;   // largest distance between stirrups [mm]
  double step_incr_ = 0.0;  // by how much a design closes them up at a time [mm]
  std::int32_t n_arms_ = 2;
};
