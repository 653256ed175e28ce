#pragma once
/// @file  Loads that act on the wall directly. Room: loads
// SPDX-License-Identifier: Apache-2.0
//
// Positions are depths along the wall, from its head downwards [mm].

#include "ostrel/export.h"
#include "ostrel/soil_load.h"
#include "ostrel/stream.h"

#include <armadillo>

#include <string>

/// A load on the wall.
///
/// @oddity `reset` of a load on the wall returns only its forces, moments and positions to zero and
/// leaves `id` and `name` as they are, while a load on the ground loses them.
class OSTREL_API xShpileLoad : public xBaseLoad {
public:
  /// @name Persisted object, version 1
  ///@{
  void reset() override;
  std::string getIOClass() const override;
  void pub_read(instream& in) override;
  void pub_write(outstream& out) const override;
  ///@}
  xShpileLoad* clone() const override = 0;

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;
};

/// A force at one depth.
class OSTREL_API xConcenterdLoad : public xShpileLoad {  // sic: the interface's spelling
public:
  /// @name Persisted object, version 1
  ///@{
  void reset() override;
  std::string getIOClass() const override;
  void pub_read(instream& in) override;
  void pub_write(outstream& out) const override;
  ///@}
  xShpileLoad* clone() const override;

  double getPosition() const { return position_; }
  void setPosition(double position) { position_ = position; }

  /// Along the wall, then across it: [N], of an `xDistribuitedLoad` [N/mm].
  arma::Col<double>::fixed<2> force{arma::fill::zeros};

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;

  double position_ = 0.0;  ///< [mm]
};

/// A force at one depth for each mm of the wall's width.
class OSTREL_API xDistribuitedLoad : public xConcenterdLoad {  // sic: the interface's spelling
public:
  /// @name Persisted object, version 1
  ///@{
  std::string getIOClass() const override;
  void pub_read(instream& in) override;
  void pub_write(outstream& out) const override;
  ///@}
  xShpileLoad* clone() const override;

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;
};

/// A moment at one depth.
class OSTREL_API xTorqueLoad : public xShpileLoad {
public:
  /// @name Persisted object, version 1
  ///@{
  void reset() override;
  std::string getIOClass() const override;
  void pub_read(instream& in) override;
  void pub_write(outstream& out) const override;
  ///@}
  xShpileLoad* clone() const override;

  double getPosition() const { return position_; }
  void setPosition(double position) { position_ = position; }
  double getValue() const { return value_; }
  void setValue(double value) { value_ = value; }

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;

  double position_ = 0.0;  ///< [mm]
  double value_ = 0.0;     ///< [N mm], of an `xDistribuitedTorque` [N mm/mm]
};

/// A moment at one depth for each mm of the wall's width.
class OSTREL_API xDistribuitedTorque : public xTorqueLoad {  // sic: the interface's spelling
public:
  /// @name Persisted object, version 1
  ///@{
  std::string getIOClass() const override;
  void pub_read(instream& in) override;
  void pub_write(outstream& out) const override;
  ///@}
  xShpileLoad* clone() const override;

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;
};
