#pragma once
/// @file  Designer of a reinforced concrete section of the wall. Room: structural
// SPDX-License-Identifier: Apache-2.0
//
// x runs along the wall, y across it; the valley (excavation) side is y > 0, the uphill side y < 0.
// Tension is positive, and a positive moment stretches y > 0.

#include "ostrel/export.h"
#include "ostrel/reinforcement.h"
#include "ostrel/reinforcement_settings.h"
#include "ostrel/section_check.h"

#include <sorrel/cross_section.h>

#include <osg/Referenced>
#include <osg/ref_ptr>

#include <memory>
#include <vector>

namespace Ferrule {
class Section;
struct Deform;
}  // namespace Ferrule

/// Grows a record of reinforcement until a section carries its forces, and tells what a section
/// with a given record resists.
class OSTREL_API designSection : public osg::Referenced {
public:
  ~designSection() override = default;
  /// Safety factor of the moment at constant axial force [-]; a moment of 0 counts as positive.
  virtual double getsf(double N, double M);
  virtual designSection* clone() const = 0;  ///< a new designer with a copy of the record
  /// The moment the section carries together with `N` [N], on the side of a positive or a negative
  /// moment, in either case >= 0 [N mm]; 0 where the section cannot carry N or cannot be analysed.
  virtual double getAbsMresist(double N, bool positive) = 0;
  /// Adds bars until the section carries the forces or a limit is reached.
  /// @param N  axial force, tension positive [N]
  /// @param M  bending moment [N mm]; forces that are not finite add nothing
  /// @return false only for settings of the wrong kind
  virtual bool AxialDesign(double N, double M) = 0;
  /// Replaces the stirrups by those that carry `V` [N], if these are denser.
  /// @return false only for settings of the wrong kind
  virtual bool ShearDesign(double V) = 0;
  /// Fills `out` with the strengths of the record and the demand `V` [N].
  /// @return false, and `out` as it was, for settings of the wrong kind
  virtual bool ShearChek(double V, xShear& out) = 0;  // sic: the interface's spelling
  /// Makes outline and material anew. @return true
  virtual bool build() = 0;
  /// Begins a new record at `abscissa` [mm], with the least reinforcement that the settings ask for.
  virtual void beginDesign(double abscissa) = 0;
  virtual osg::ref_ptr<xReinfCrossSection> getReinforcement() const = 0;  ///< the current record
  /// Takes a copy of `record` as the current one.
  /// @return false, and no change, before `build`, for a record of another shape, and for one with
  ///         a group of more than 2000 bars
  virtual bool setReinforcement(const osg::ref_ptr<xReinfCrossSection>& record) = 0;
};

/// A designer whose strength comes from an ultimate limit analysis of the section.
class OSTREL_API ConcreteSection : public designSection {
public:
  double getAbsMresist(double N, bool positive) override;
  ~ConcreteSection() override;

  /// The designer of a section, built; null for a shape that is neither a circle nor a rectangle,
  /// and for settings that are absent or of the other shape. The depth of a rectangle is its first
  /// stored dimension, its width the second.
  static ConcreteSection* createClsSection(const xCrossSecProp* prop,
                                           osg::ref_ptr<xReinforcement_Settings>& settings);

protected:
  explicit ConcreteSection(const osg::ref_ptr<xReinforcement_Settings>& settings);
  ConcreteSection(const ConcreteSection&) = delete;
  ConcreteSection& operator=(const ConcreteSection&) = delete;

  /// A corner of an outline or the axis of a bar [mm].
  struct Place {
    double x = 0.0;
    double y = 0.0;
  };

  /// Makes the library section of one concrete polygon, counter-clockwise.
  void build_section(const std::vector<Place>& outline);
  bool is_built() const { return section_ != nullptr; }
  Ferrule::Section& section() { return *section_; }
  /// Replaces the bars by those at `places` with their `diameters` [mm].
  void lay_out(const std::vector<Place>& places, const std::vector<double>& diameters);

  osg::ref_ptr<xReinforcement_Settings> settings_;

private:
  std::unique_ptr<Ferrule::Section> section_;  // null until built
};

/// A rectangle with bars in its corners and a row on either side.
class OSTREL_API rect_ConcreteSection : public ConcreteSection {
public:
  rect_ConcreteSection* clone() const override;
  bool AxialDesign(double N, double M) override;
  bool ShearDesign(double V) override;
  bool ShearChek(double V, xShear& out) override;
  bool build() override;
  void beginDesign(double abscissa) override;
  osg::ref_ptr<xReinfCrossSection> getReinforcement() const override { return record_.get(); }
  bool setReinforcement(const osg::ref_ptr<xReinfCrossSection>& record) override;

  /// @param b  width, across the bending plane [mm]
  /// @param h  depth, in the bending plane [mm]
  rect_ConcreteSection(double b, double h, const osg::ref_ptr<xReinforcement_Settings>& settings);
  ~rect_ConcreteSection() override = default;

  const xRectReinfSettings* getSettings() const;  ///< null when they are of the other kind

  /// Whether a strain plane within the ultimate domain balances the forces.
  /// @param N       axial force, tension positive [N]
  /// @param M       moment across the wall [N mm]
  /// @param My      moment along the wall [N mm]
  /// @param deform  where the search begins, and what it found
  /// @return false also before `build`
  bool mySolve(double N, double M, double My, Ferrule::Deform& deform, double tol, int maxIter);

protected:
  void setReinfBars();

private:
  /// One step of growth, on the more strained side.
  ///
  /// @oddity The uphill row follows the valley row by the ratio, whichever side was increased, so
  /// the ratio bounds the uphill side from below and nothing bounds the valley side. Stored results
  /// depend on it.
  void Incrementa(const Ferrule::Deform& deform, const xRectReinfSettings& settings);

  double b_;
  double h_;
  osg::ref_ptr<xReinfRectSection> record_;
};

/// A circle with a ring of bars.
class OSTREL_API circ_ConcreteSection : public ConcreteSection {
public:
  circ_ConcreteSection* clone() const override;
  /// @oddity The share of the bars is tested before a step, so the last step may pass the largest
  /// ratio. Stored results depend on it.
  bool AxialDesign(double N, double M) override;
  bool ShearDesign(double V) override;
  bool ShearChek(double V, xShear& out) override;
  bool build() override;
  void beginDesign(double abscissa) override;
  osg::ref_ptr<xReinfCrossSection> getReinforcement() const override { return record_.get(); }
  bool setReinforcement(const osg::ref_ptr<xReinfCrossSection>& record) override;

  /// @param D  diameter [mm]
  circ_ConcreteSection(double D, const osg::ref_ptr<xReinforcement_Settings>& settings);
  ~circ_ConcreteSection() override = default;

  const xCircularReinfSettings* getSettings() const;  ///< null when they are of the other kind

protected:
  void setReinfBars();

private:
  double D_;
  osg::ref_ptr<xReinfCircSection> record_;
};
