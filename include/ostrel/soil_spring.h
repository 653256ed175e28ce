#pragma once
/// @file  The soil springs of the embedded wall. Room: soil
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/error.h"
#include "ostrel/export.h"
#include "ostrel/soil_layer.h"
#include "ostrel/soil_props.h"
#include "ostrel/spring_interval.h"
#include "ostrel/stream.h"
#include "ostrel/vocabulary.h"

#include <cstdint>
#include <map>
#include <string>
#include <vector>

/// The soil spring of one node: elastic up to a limit displacement, perfectly plastic beyond it,
/// and the same in both directions.
class OSTREL_API NodeModulus {
public:
  /// @name Persisted object, version 1
  ///@{
  virtual std::string getIOClass() const;
  virtual void pub_read(instream& in);
  virtual void pub_write(outstream& out) const;
  ///@}
  virtual ~NodeModulus() = default;
  NodeModulus() = default;
  NodeModulus(const NodeModulus&) = default;
  NodeModulus(NodeModulus&&) = default;
  NodeModulus& operator=(const NodeModulus&) = default;
  NodeModulus& operator=(NodeModulus&&) = default;

  /// The displacement that limits the spring [mm]: the ultimate limit for type 0, the passive one
  /// for type 1, and for every other type the smaller of both, NaN if either is.
  double getDyLim() const;

  /// The secant modulus at a displacement:
  ///
  ///     modulus              where L >= |d|
  ///     modulus * L / |d|    elsewhere,  L = getDyLim()
  ///
  /// @param displacement  d, across the wall, of either sign [mm]
  /// @return [N/mm³]; NaN for a displacement or a limit that is NaN, not finite at no displacement
  ///         where the limit is negative
  double getKmolla(double displacement) const;

  /// The pressure at a displacement d: modulus * d while |d| is below the limit L, and modulus * L
  /// with the sign of d from there on; -0.0 counts as positive.
  ///
  /// @param displacement  across the wall, of either sign [mm]
  /// @return [N/mm²]; 0 for a spring without modulus, whatever its limit; NaN for a displacement
  ///         that is NaN
  double q(double displacement) const;

  xSpringInterval::QlimSpring type = xSpringInterval::limitSmaller;
  std::int32_t node = -1;        ///< index of the node in the beam
  double position = 0.0;         ///< depth of the node below the wall's head [mm]
  double ultimate_limit = 25.4;  ///< displacement at the limit load [mm]
  /// Displacement at the passive pressure [mm].
  /// @oddity It is not stored: a record that is read keeps the one it had. The springs of a result
  /// that was read back have 0, and so with the types 1 and 2 the limit 0.
  double passive_limit = 0.0;
  double modulus = 0.0;  ///< pressure by displacement [N/mm³]

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;
};

/// The soil springs of one combination.
class OSTREL_API xSubgradeReactionModulus {
public:
  /// @name Persisted object, version 1
  ///@{
  virtual std::string getIOClass() const;
  virtual void pub_read(instream& in);
  virtual void pub_write(outstream& out) const;
  ///@}
  virtual ~xSubgradeReactionModulus() = default;
  xSubgradeReactionModulus() = default;
  xSubgradeReactionModulus(const xSubgradeReactionModulus&) = default;
  xSubgradeReactionModulus(xSubgradeReactionModulus&&) = default;
  xSubgradeReactionModulus& operator=(const xSubgradeReactionModulus&) = default;
  xSubgradeReactionModulus& operator=(xSubgradeReactionModulus&&) = default;

  /// Forgets all springs.
  void clear() { springs.clear(); }

  /// Gives every node of the embedded wall its spring; springs of an earlier call are forgotten.
  ///
  /// The node is seen as the base of a strip foundation as wide as `spacing`, buried as deep as it
  /// lies below the excavation:
  ///
  ///     modulus        = limit load / disp_limit * factor of the interval
  ///     ultimate limit = disp_limit
  ///     passive limit  = K sigma_v / modulus
  ///
  /// with the vertical stress sigma_v of the soil below the excavation and the passive coefficient
  /// K of `formula` without acceleration. The layers used are those that reach below the
  /// excavation, without the last of them. At the border of two layers the lower one counts.
  ///
  /// @oddity The last layer that counts is left out whatever it is. It is meant to be the piece
  /// below the foot; a column of soil that ends at the foot loses its last embedded layer instead,
  /// and a single embedded layer makes no springs at all. Stored results depend on it.
  ///
  /// @oddity No vertical stress, and so no passive pressure, acts on the first node: with the types
  /// 1 and 2 its limit is 0 and it carries nothing. Where `formula` is the pressure at rest the
  /// passive limit takes K0. Stored results depend on both.
  ///
  /// @param first_node  index of the node at the excavation; the others follow downwards
  /// @param formula     the earth pressure formula of the passive limit
  /// @param theta       inclination of the wall's back to the vertical [rad]
  /// @param intervals   limit and factor of each stretch of the embedded length
  /// @param factor_type, factors  partial factors of the soil, applied to a copy of each layer's
  /// @param layers      along the wall, from the top down, with their levels; a layer without weight
  ///                    under another gives springs that are not numbers
  /// @param depth       of the excavation below the wall's head [mm]
  /// @param length      of the wall [mm]
  /// @param spacing     of the piles, the width of the foundation [mm]
  /// @param disp_limit  displacement at the limit load [mm]
  /// @retval errNoUltimatePressure  a node lies in no interval; the nodes above it are kept
  /// @retval errLoadTooInclined     from the limit load; the nodes above are kept
  OstrelErrorType compute_SkSpring(int first_node, formulType formula, double theta,
                                   const std::vector<xSpringInterval>& intervals,
                                   geoFactorType factor_type,
                                   const std::vector<GeoCombFactor>& factors,
                                   const std::vector<xSoilLayer>& layers, double depth,
                                   double length, double spacing, double disp_limit);

  /// The first interval that holds `x`, ends included and widened by 1e-6; null if there is none,
  /// as for a NaN.
  ///
  /// @param x  depth below the excavation as a fraction of the embedded length [-]
  static const xSpringInterval* find_SprInterval(const std::vector<xSpringInterval>& intervals,
                                                 double x);

  std::map<int, NodeModulus> springs;  ///< by the index of the node

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;
};
