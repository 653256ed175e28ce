#pragma once
/// @file  Verification of one concrete section in shear and in bending. Room: structural
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/export.h"
#include "ostrel/materials.h"
#include "ostrel/reinforcement_bars.h"
#include "ostrel/reinforcement_settings.h"
#include "ostrel/stream.h"

#include <string>

/// Shear in a section: the strengths of a truss with struts of variable slope, and the demand.
class OSTREL_API xShear {
public:
  virtual void reset();
  virtual xShear* clone() const;  ///< a new copy
  /// @name Persisted object, version 1
  ///@{
  virtual std::string getIOClass() const;
  virtual void pub_read(instream& in);
  virtual void pub_write(outstream& out) const;
  ///@}
  virtual ~xShear() = default;
  xShear() = default;
  xShear(const xShear&) = default;
  xShear& operator=(const xShear&) = default;

  double getVRds() const { return vrds_; }
  void setVRds(double strength) { vrds_ = strength; }
  double getVRdmax() const { return vrdmax_; }
  void setVRdmax(double strength) { vrdmax_ = strength; }
  double getVRd() const { return vrd_; }
  void setVRd(double strength) { vrd_ = strength; }
  double getVd() const { return vd_; }
  void setVd(double force) { vd_ = force; }

  double getSf() const;  ///< safety factor [-]

  /// Sets the three strengths of a rectangle. A step of 0 leaves the strength of the stirrups
  /// without a finite value and the struts at 45 degrees.
  /// @param b  width [mm]
  /// @param h  height, in the direction of the shear [mm]
  /// @param c  cover: distance of the bar axes from the face [mm]
  /// @param m  concrete and steel
  /// @param s  stirrups
  void calcShearStrength(double b, double h, double c, const xMaterialProps& m, const xBracket& s);

  double abscissa = 0.0;  ///< position along the member [mm]

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;

  double vrds_ = 0.0;    // strength of the stirrups [N]
  double vrdmax_ = 0.0;  // strength of the concrete struts [N]
  double vrd_ = 0.0;     // the smaller of the two [N]
  double vd_ = 0.0;      // acting shear [N]
};

/// Shear in a rectangle.
class OSTREL_API xRectShear : public xShear {
public:
  xRectShear* clone() const override;
  /// @name Persisted object, version 1
  ///@{
  std::string getIOClass() const override;
  void pub_read(instream& in) override;
  void pub_write(outstream& out) const override;
  ///@}

  /// Sets the strengths as `calcShearStrength` and the demand `V` [N].
  void check(double V, double b, double h, double c, const xMaterialProps& m, const xBracket& s);

  /// The stirrups that carry `V` [N], searched from the largest step on down to the smallest; they
  /// have the last step tried where even that falls short. The strengths are those of the last try.
  /// A search that cannot come nearer ends where it stands: increments that do not close up the
  /// stirrups, or more than 100 000 tries. Without settings there are no stirrups.
  /// @param b  width [mm]
  /// @param h  height, in the direction of the shear [mm]
  xBracket reinforcementDesign(double b, double h, double V, const xRectReinfSettings* s);

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;
};

/// Shear in a circle, through a rectangle that stands for it.
class OSTREL_API xCircShear : public xShear {
public:
  xCircShear* clone() const override;
  /// @name Persisted object, version 1
  ///@{
  std::string getIOClass() const override;
  void pub_read(instream& in) override;
  void pub_write(outstream& out) const override;
  ///@}

  /// Sets the three strengths.
  /// @param D  diameter [mm]
  /// @param c  cover: distance of the bar axes from the face [mm]
  void calcShearStrength(double D, double c, const xMaterialProps& m, const xBracket& s);

  /// Sets the strengths and the demand `V` [N].
  void check(double V, double D, double c, const xMaterialProps& m, const xBracket& s);

  /// As for a rectangle; the stirrups have two arms whatever the settings say.
  /// @param D  diameter [mm]
  xBracket reinforcementDesign(double D, double V, const xCircularReinfSettings* s);

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;
};

/// Bending with axial force in a section.
class OSTREL_API xFlexCheck {
public:
  /// @name Persisted object, version 1
  ///@{
  virtual void reset();
  virtual std::string getIOClass() const;
  virtual void pub_read(instream& in);
  virtual void pub_write(outstream& out) const;
  ///@}
  virtual ~xFlexCheck() = default;
  xFlexCheck() = default;
  xFlexCheck(const xFlexCheck&) = default;
  xFlexCheck& operator=(const xFlexCheck&) = default;

  double getSf() const;  ///< safety factor [-]

  double Nd = 0.0;   ///< acting axial force, tension positive [N]
  double Md = 0.0;   ///< acting moment [N mm]
  double Mrd = 0.0;  ///< resisting moment at that axial force, on the side of `Md` [N mm]

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;
};

/// The verification of one section.
class OSTREL_API xSectionCheck {
public:
  /// @name Persisted object, version 1
  ///@{
  virtual void reset();
  virtual std::string getIOClass() const;
  virtual void pub_read(instream& in);
  virtual void pub_write(outstream& out) const;
  ///@}
  virtual ~xSectionCheck() = default;
  xSectionCheck() = default;
  xSectionCheck(const xSectionCheck&) = default;
  xSectionCheck& operator=(const xSectionCheck&) = default;

  double getSf() const;  ///< the smaller factor of shear and bending [-]; NaN where either is

  xShear shear;
  xFlexCheck flex;
  double abscissa = 0.0;  ///< position along the member [mm]

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;
};
