#pragma once
/// @file  Reinforcement of a section, and its records along a member. Room: structural
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/export.h"
#include "ostrel/reinforcement_bars.h"
#include "ostrel/stream.h"

#include <osg/Referenced>
#include <osg/ref_ptr>

#include <cstdint>
#include <string>
#include <vector>

/// The groups of bars of a section. The valley side is y > 0 in the section, the uphill side y < 0.
enum TipoFerro2d : std::int32_t { barsValley = 0, barsUphill = 1, barsVertex = 2 };

/// The reinforcement of one section, whatever its shape.
class OSTREL_API xReinfCrossSection : public osg::Referenced {
public:
  ~xReinfCrossSection() override = default;
  virtual void reset();
  virtual xReinfCrossSection* clone() const = 0;  ///< a new copy
  virtual double Atot() const = 0;                ///< section of all bars [mm²]

  /// @name Groups of bars
  ///@{
  virtual xReinforcementBar& AValleEff() = 0;    ///< valley side, without the corners
  virtual xReinforcementBar& AMonteEff() = 0;    ///< uphill side, without the corners
  virtual xReinforcementBar& AVerticeEff() = 0;  ///< corners
  virtual void SetAfMonte(const xReinforcementBar& bars) = 0;
  virtual void SetAfValle(const xReinforcementBar& bars) = 0;
  virtual void SetAfVertex(const xReinforcementBar& bars) = 0;
  /// The group of that kind; any other value gives the corners.
  virtual xReinforcementBar& getAf(TipoFerro2d kind);
  ///@}

  /// @name Texts of a report
  ///@{
  /// The bars of both sides, as "4D20": number, `prefix` (null for none), diameter in whole mm.
  virtual void getBarString(const char* prefix, std::string& uphill, std::string& valley) const = 0;
  /// The stirrups, as "1D8/20": diameter in whole mm, then the step times `factor` [-], truncated
  /// to two decimals.
  virtual std::string getBracketString(const char* prefix, double factor) const;
  ///@}

  virtual void setBracket(const xBracket& bracket);

  /// @name Persisted object, version 1
  ///@{
  virtual std::string getIOClass() const;
  virtual void pub_read(instream& in);
  virtual void pub_write(outstream& out) const;
  ///@}

  xReinfCrossSection() = default;
  xReinfCrossSection(const xReinfCrossSection&) = default;
  xReinfCrossSection& operator=(const xReinfCrossSection&) = default;

  const xBracket& getBracket() const { return bracket_; }
  double getAbscissa() const { return abscissa_; }  ///< position along the member [mm]
  void setAbscissa(double abscissa) { abscissa_ = abscissa; }

protected:
  xBracket bracket_;

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;

  double abscissa_ = 0.0;
};

/// The reinforcement of a rectangle: bars in the corners and a row on either side.
class OSTREL_API xReinfRectSection : public xReinfCrossSection {
public:
  void reset() override;
  xReinfRectSection* clone() const override;
  double Atot() const override;
  xReinforcementBar& AValleEff() override { return valley_; }
  xReinforcementBar& AMonteEff() override { return uphill_; }
  xReinforcementBar& AVerticeEff() override { return vertex_; }
  void SetAfMonte(const xReinforcementBar& bars) override;
  void SetAfValle(const xReinforcementBar& bars) override;
  void SetAfVertex(const xReinforcementBar& bars) override;
  /// Each side shows half of the corner bars, rounded down, and its own row, joined by "+".
  void getBarString(const char* prefix, std::string& uphill, std::string& valley) const override;
  /// As "1D8/20/2", with the number of arms last.
  std::string getBracketString(const char* prefix, double factor) const override;

  /// @name Persisted object, version 2
  ///@{
  std::string getIOClass() const override;
  void pub_read(instream& in) override;
  void pub_write(outstream& out) const override;
  ///@}

  double AValle() const;     ///< valley row and half the corners [mm²]
  double AMonte() const;     ///< uphill row and half the corners [mm²]
  bool hasAfVertex() const;  ///< corner bars are wanted and have a section

  bool vertexBars = true;  ///< corner bars are wanted

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 2; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;

  xReinforcementBar vertex_;
  xReinforcementBar valley_;
  xReinforcementBar uphill_;
};

/// The reinforcement of a circle: one ring, which stands for every group.
class OSTREL_API xReinfCircSection : public xReinfCrossSection {
public:
  void reset() override;
  xReinfCircSection* clone() const override;
  double Atot() const override;
  xReinforcementBar& AValleEff() override { return ring_; }
  xReinforcementBar& AMonteEff() override { return ring_; }
  xReinforcementBar& AVerticeEff() override { return ring_; }
  void SetAfMonte(const xReinforcementBar& bars) override;
  void SetAfValle(const xReinforcementBar& bars) override;
  void SetAfVertex(const xReinforcementBar& bars) override;
  /// The ring goes into `uphill`, "--" into `valley`.
  void getBarString(const char* prefix, std::string& uphill, std::string& valley) const override;
  /// Takes `bracket`, always with two arms.
  void setBracket(const xBracket& bracket) override;

  /// @name Persisted object, version 1
  ///@{
  std::string getIOClass() const override;
  void pub_read(instream& in) override;
  void pub_write(outstream& out) const override;
  ///@}

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;

  xReinforcementBar ring_;
};

/// The records along a member. A copy shares the records, `deepcopy` does not.
class OSTREL_API xReinforcement {
public:
  /// @name Persisted object, version 2
  /// Reading throws `std::runtime_error` for a record of unknown class.
  ///@{
  virtual void reset();
  virtual std::string getIOClass() const;
  virtual void pub_read(instream& in);
  virtual void pub_write(outstream& out) const;
  ///@}
  virtual ~xReinforcement() = default;
  xReinforcement() = default;
  xReinforcement(const xReinforcement&) = default;
  xReinforcement(xReinforcement&&) = default;
  xReinforcement& operator=(const xReinforcement&) = default;
  xReinforcement& operator=(xReinforcement&&) = default;

  /// The first record whose abscissa is nearer than `tol` [mm] to `abscissa` [mm], or null; exactly
  /// `tol` is not near.
  osg::ref_ptr<xReinfCrossSection> getAt(double abscissa, double tol) const;

  /// Replaces the records with clones of those of `other`.
  void deepcopy(const xReinforcement& other);

  std::vector<osg::ref_ptr<xReinfCrossSection>> sections;

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 2; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;
};
