#pragma once
/// @file  What reinforcement a design may choose. Room: structural
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/export.h"
#include "ostrel/materials.h"
#include "ostrel/reinforcement_bars.h"
#include "ostrel/stream.h"

#include <osg/Referenced>
#include <osg/ref_ptr>

#include <cstdint>
#include <string>

/// What the reinforcement of the cap beam may be.
class OSTREL_API xReinforcement_SettingsTrave {
public:
  /// @name Persisted object, version 1
  ///@{
  virtual std::string getIOClass() const;
  virtual void pub_read(instream& in);
  virtual void pub_write(outstream& out) const;
  ///@}
  virtual ~xReinforcement_SettingsTrave() = default;
  xReinforcement_SettingsTrave() = default;
  xReinforcement_SettingsTrave(const xReinforcement_SettingsTrave&) = default;
  xReinforcement_SettingsTrave& operator=(const xReinforcement_SettingsTrave&) = default;

  void reset();

  double Cover = 0.0;        ///< distance of the bar axes from the face [mm]
  std::int32_t Step = 0;     ///< bars added at each step of a design
  std::int32_t BarDiam = 0;  ///< diameter of the bars [mm]
  double minRatio = 0.0;     ///< least bars of both sides together, percent of the section [-]
  double maxRatio = 0.0;     ///< most bars of both sides together, percent of the section [-]
  xBracketSettings bracket;

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;
};

/// What the reinforcement of a member may be, whatever its shape.
class OSTREL_API xReinforcement_Settings : public osg::Referenced {
public:
  ~xReinforcement_Settings() override = default;
  /// @name Persisted object, version 4
  ///@{
  virtual void reset();
  virtual std::string getIOClass() const;
  virtual void pub_read(instream& in);
  virtual void pub_write(outstream& out) const;
  ///@}
  virtual xReinforcement_Settings* clone() const;  ///< a new copy

  xReinforcement_Settings() = default;
  xReinforcement_Settings(const xReinforcement_Settings&) = default;
  xReinforcement_Settings& operator=(const xReinforcement_Settings&) = default;

  /// New settings of the class `name`, "xCircularReinfSettings" or "xRectReinfSettings"; null for
  /// any other name.
  static xReinforcement_Settings* newSett(const std::string& name);

  double getBarDiam() const { return bar_diam_; }
  void setBarDiam(double diameter) { bar_diam_ = diameter; }
  double getCover() const { return cover_; }
  void setCover(double cover) { cover_ = cover; }
  std::uint32_t getStep() const { return step_; }
  void setStep(std::uint32_t step) { step_ = step; }

  xBracketSettings bracket;
  xMaterialProps material;
  xReinforcement_SettingsTrave trave;  ///< of the cap beam

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 4; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;

  double bar_diam_ = 0.0;   // diameter of all longitudinal bars [mm]
  double cover_ = 0.0;      // distance of the bar axes from the face [mm]
  std::uint32_t step_ = 0;  // bars added at each step of a design
};

/// What the reinforcement of a rectangle may be.
class OSTREL_API xRectReinfSettings : public xReinforcement_Settings {
public:
  /// @name Persisted object, version 1
  /// `useVertexBars` is not stored: reading leaves it as it is, and so does `reset`.
  ///@{
  void reset() override;
  std::string getIOClass() const override;
  void pub_read(instream& in) override;
  void pub_write(outstream& out) const override;
  ///@}
  xRectReinfSettings* clone() const override;

  /// @name Bars of a side, percent of the section
  ///@{
  double minValle = 0.0;  ///< least on the valley side [-]
  double maxValle = 0.0;  ///< most on the valley side [-]
  double minMonte = 0.0;  ///< least on the uphill side [-]
  double maxMonte = 0.0;  ///< most on the uphill side [-]
  ///@}
  double ratio = 100.0;  ///< uphill bars in percent of the valley bars [-], 0 for independent rows

  /// Bars stand in the corners. Whoever fills the settings says so; until then there are some, as
  /// in a new record of reinforcement: stirrups need a bar in each of their corners.
  bool useVertexBars = true;

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;
};

/// What the reinforcement of a circle may be.
class OSTREL_API xCircularReinfSettings : public xReinforcement_Settings {
public:
  /// @name Persisted object, version 3
  ///@{
  void reset() override;
  std::string getIOClass() const override;
  void pub_read(instream& in) override;
  void pub_write(outstream& out) const override;
  ///@}
  xCircularReinfSettings* clone() const override;

  double getMinRatio() const { return min_ratio_; }
  void setMinRatio(double percent) { min_ratio_ = percent; }
  double getMaxRatio() const { return max_ratio_; }
  void setMaxRatio(double percent) { max_ratio_ = percent; }

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 3; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;

  double min_ratio_ = 0.0;  // least bars, percent of the section [-]
  double max_ratio_ = 0.0;  // most bars, percent of the section [-]
};
