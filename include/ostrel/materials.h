#pragma once
/// @file  Concrete, reinforcing steel, and the two together. Room: structural
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/export.h"
#include "ostrel/stream.h"

#include <string>

/// Concrete of a member, by its cube strength; all other values follow from the fields.
class OSTREL_API xConcreteProps {
public:
  /// @name Persisted object, version 1
  ///@{
  virtual void reset();
  virtual std::string getIOClass() const;
  virtual void pub_read(instream& in);
  virtual void pub_write(outstream& out) const;
  ///@}
  virtual ~xConcreteProps() = default;

  double getRck() const { return rck_; }
  void setRck(double strength) { rck_ = strength; }
  double getEc2() const { return ec2_; }
  void setEc2(double strain) { ec2_ = strain; }
  double getEcu() const { return ecu_; }
  void setEcu(double strain) { ecu_ = strain; }
  double getAlfaCC() const { return alfa_cc_; }
  void setAlfaCC(double coefficient) { alfa_cc_ = coefficient; }
  double getGammaC() const { return gamma_c_; }
  void setGammaC(double factor) { gamma_c_ = factor; }
  double getEta() const { return eta_; }
  void setEta(double factor) { eta_ = factor; }

  /// @name Derived values, computed at each call
  /// A GammaC of zero gives infinite design strengths.
  ///@{
  double Fck() const;   ///< cylinder strength, 0.83 Rck [N/mm²]
  double Fcm() const;   ///< mean strength, Fck + 8 [N/mm²]
  double Fcd() const;   ///< design strength, Fck AlfaCC / GammaC [N/mm²]
  double Fctk() const;  ///< characteristic tensile strength, 0.7 Fctm [N/mm²]
  double Fcfm() const;  ///< mean strength in bending, 1.2 Fctm [N/mm²]
  double Fctd() const;  ///< design tensile strength, Fctk / GammaC [N/mm²]
  double Fbk() const;   ///< characteristic bond strength, 2.25 Eta Fctk [N/mm²]
  double Fbd() const;   ///< design bond strength, Fbk / GammaC [N/mm²]
  double Ecm() const;   ///< secant modulus, 22000 (Fcm / 10)^0.3 [N/mm²]

  /// Mean tensile strength [N/mm²]: 0.3 Fck^(2/3) while Fck is not above 50 N/mm², otherwise
  /// 2.12 ln(Fcm / 10 + 1).
  double Fctm() const;
  ///@}

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;

  double rck_ = 30.0;      // characteristic cube strength [N/mm²]
  double ec2_ = 0.002;     // strain at the peak stress [-]
  double ecu_ = 0.0035;    // ultimate strain [-]
  double alfa_cc_ = 0.85;  // coefficient for long-term effects [-]
  double gamma_c_ = 1.5;   // partial factor [-]
  double eta_ = 1.0;       // factor for the bond conditions [-]
};

/// Reinforcing steel of a member.
class OSTREL_API xSteelProps {
public:
  /// @name Persisted object, version 1
  ///@{
  virtual std::string getIOClass() const;
  virtual void pub_read(instream& in);
  virtual void pub_write(outstream& out) const;
  ///@}
  virtual ~xSteelProps() = default;
  xSteelProps() = default;
  xSteelProps(const xSteelProps&) = default;
  xSteelProps& operator=(const xSteelProps&) = default;

  void reset();

  double Fyk() const { return fyk_; }
  void setFyk(double strength) { fyk_ = strength; }
  double Es() const { return es_; }
  void setEs(double modulus) { es_ = modulus; }
  void setEuk(double strain) { euk_ = strain; }
  double K() const { return k_; }
  void setK(double ratio) { k_ = ratio; }
  double getGammaS() const { return gamma_s_; }
  void setGammaS(double factor) { gamma_s_ = factor; }

  /// @name Derived values, computed at each call
  ///@{
  double Fyd() const;  ///< design strength, Fyk / GammaS [N/mm²]; infinite while GammaS is 0
  double Eyd() const;  ///< design strain at yield, Fyd / Es [-]
  double Eud() const;  ///< design ultimate strain, 0.9 Euk [-]

  /// Slope of the hardening branch [N/mm²]: the larger of 0 and (K - 1) Fyd / (Eud - Eyd); 0 where
  /// that is not a number, as with a GammaS of 0.
  double getEpostYeld() const;  // sic: the interface's spelling
  ///@}

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;

  double fyk_ = 450.0;    // characteristic yield strength [N/mm²]
  double es_ = 210000.0;  // elastic modulus [N/mm²]
  double euk_ = 0.075;    // characteristic ultimate strain [-]
  double k_ = 1.2;        // ratio of ultimate to yield strength [-]
  double gamma_s_ = 0.0;  // partial factor [-]; has to come from the input
};

/// Concrete and steel of a reinforced member.
class OSTREL_API xMaterialProps {
public:
  /// @name Persisted object, version 1
  ///@{
  virtual void reset();
  virtual std::string getIOClass() const;
  virtual void pub_read(instream& in);
  virtual void pub_write(outstream& out) const;
  ///@}
  virtual ~xMaterialProps() = default;

  double getAlfaC() const { return alfa_c_; }
  void setAlfaC(double ratio) { alfa_c_ = ratio; }

  xConcreteProps concrete;
  xSteelProps steel;

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;

  double alfa_c_ = 15.0;  // modular ratio of steel to concrete [-]
};
