#pragma once
/// @file  The wall record: material, geometry, piles. Room: model
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/check_settings.h"
#include "ostrel/export.h"
#include "ostrel/soil_props.h"
#include "ostrel/stream.h"

#include <sorrel/cross_section.h>

#include <osg/Referenced>
#include <osg/ref_ptr>

#include <cstdint>
#include <string>

/// Material of the wall.
class OSTREL_API xSheetpilingMaterial : public xElasticProps {
public:
  /// @name Persisted object, version 1
  ///@{
  void reset() override;
  std::string getIOClass() const override;
  void pub_read(instream& in) override;
  void pub_write(outstream& out) const override;
  ///@}
  ~xSheetpilingMaterial() override = default;
  xSheetpilingMaterial() = default;
  xSheetpilingMaterial(const xSheetpilingMaterial&) = default;
  xSheetpilingMaterial& operator=(const xSheetpilingMaterial&) = default;

  double getUnitWeight() const { return UnitWeight; }
  void setUnitWeight(double weight) { UnitWeight = weight; }

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;

  double UnitWeight = 0.0;  ///< unit weight [N/mm³]
};

/// A wall of any kind. It is shared by reference between the host's input and the solver's copy.
class OSTREL_API xSheetpiling_Props : public osg::Referenced {
public:
  /// @name Persisted object, version 1
  ///@{
  virtual void reset();
  virtual std::string getIOClass() const;
  virtual void pub_read(instream& in);
  virtual void pub_write(outstream& out) const;
  ///@}
  ~xSheetpiling_Props() override = default;
  xSheetpiling_Props() = default;
  xSheetpiling_Props(const xSheetpiling_Props&) = default;
  xSheetpiling_Props& operator=(const xSheetpiling_Props&) = default;

  double getLength() const { return Length; }
  void setLength(double length) { Length = length; }
  double getDepth() const { return Depth; }
  void setDepth(double depth) { Depth = depth; }
  double getExtension() const { return Extension; }
  void setExtension(double extension) { Extension = extension; }

  xSheetpilingMaterial material;
  xCheckSettings checkSettings;

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;

  double Length = 0.0;     ///< length of the wall, from the head down [mm]
  double Depth = 0.0;      ///< depth of the excavation below the head [mm]
  double Extension = 1.0;  ///< extent of the wall along its line [mm]
};

/// A row of piles.
class OSTREL_API xPile_Sheetpiling : public xSheetpiling_Props {
public:
  /// @name Persisted object, version 2
  ///@{
  void reset() override;
  std::string getIOClass() const override;
  void pub_read(instream& in) override;
  void pub_write(outstream& out) const override;
  ///@}
  /// A new object that shares the section with this one.
  virtual xPile_Sheetpiling* clone() const;
  ~xPile_Sheetpiling() override = default;
  xPile_Sheetpiling() = default;
  xPile_Sheetpiling(const xPile_Sheetpiling&) = default;
  xPile_Sheetpiling& operator=(const xPile_Sheetpiling&) = default;

  /// A new object for "xPile_Sheetpiling", null for any other name.
  static xPile_Sheetpiling* classFactory(const std::string& name);

  int getNumPiles() const { return NumPiles; }
  void set_NumPiles(int count) { NumPiles = count; }
  std::int64_t getIdObj() const { return IdObj; }
  void setIdObj(std::int64_t id) { IdObj = id; }
  double getSpacing() const { return Spacing; }
  void setSpacing(double spacing) { Spacing = spacing; }
  double getHtrave() const { return Htrave; }
  void setHtrave(double height) { Htrave = height; }
  double getBtrave() const { return Btrave; }
  void setBtrave(double width) { Btrave = width; }

  osg::ref_ptr<xCrossSecProp> section;  ///< of one pile: an `xCircSecProp` or an `xRectSecProp`

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 2; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;

  int NumPiles = 0;         ///< piles per unit of the model [-]
  std::int64_t IdObj = -1;  ///< id in the host's document, -1 when unset
  double Spacing = 0.0;     ///< distance between pile axes; pressures are multiplied by it [mm]
  double Htrave = 0.0;      ///< height of the cap beam [mm]
  double Btrave = 0.0;      ///< width of the cap beam [mm]
};

/// The wall record as a persisted and queried whole.
class OSTREL_API DispData : public osg::Referenced {
public:
  /// @name Persisted object, version 1
  ///@{
  virtual void reset();
  virtual std::string getIOClass() const;
  virtual void pub_read(instream& in);
  virtual void pub_write(outstream& out) const;
  ///@}
  ~DispData() override = default;
  DispData() = default;
  DispData(const DispData&) = default;
  DispData& operator=(const DispData&) = default;

  /// Sizes of the piles in the unit of the caller. A null pointer is skipped; without a record
  /// nothing is written.
  ///
  /// @param unit      the caller's unit per mm
  /// @param diameter  of a circle; the second dimension of a rectangle; 0 for any other section
  /// @param length    length of the wall
  /// @param spacing   distance between pile axes
  void getInfoPali(double unit, double* diameter, double* length, double* spacing) const;

  /// True where the piles touch and form a continuous diaphragm: rectangles whose first dimension
  /// is not below the spacing. Circles never do.
  bool isParete() const;

  osg::ref_ptr<xPile_Sheetpiling> sheetpiling;  ///< null when absent

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;
};
