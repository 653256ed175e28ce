#pragma once
/// @file  The quick way to the moments of a circle. Room: slope
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/load_combination.h"
#include "ostrel/load_condition.h"
#include "ostrel/soil_layer.h"
#include "slope/circle_cut.h"
#include "slope/clean_cut.h"
#include "slope/place.h"
#include "slope/slice_loads.h"
#include "slope/slice_sums.h"
#include "slope/stripes.h"

#include <array>
#include <cstddef>
#include <vector>

namespace ostrel::slope {

/// The moments of one circle [N mm].
struct CircleMoments {
  double stab = 0.0;
  double destab = 0.0;
};

/// Tries circles on the cut ground for one combination.
///
/// It gives what `intersectStripes` and the sums over its stripes give, within rounding errors, but
/// factors every soil once, not for every slice, and makes no pieces: after the first circles a
/// trial allocates nothing. In a stripe whose pieces lie one above the other the pieces below the
/// circle are passed over together, and those that it holds whole are added as one sum. Working
/// fields of shared pieces that the next circle would find are left as those would leave them, but
/// for those that every circle fills anew.
class CircleTrial {
public:
  /// @param stripes  the cut ground; must outlive the trial unchanged
  /// @param spacing  extent of the slices along the wall [mm]
  /// @param gamma_water  [N/mm³]
  CircleTrial(const Stripes& stripes, double spacing, double gamma_water,
              const std::vector<xLoadCond>& conds, const xLoadComb& comb, const xWaterTable& water);

  /// Finds the slices of a circle. @return false if it meets the ground above its centre
  bool cut(Place center, double radius);

  /// The moments of the circle cut last.
  CircleMoments moments(bool bishop);

private:
  /// A soil with its design values.
  struct Soil {
    double unit_weight = 0.0;            ///< characteristic [N/mm³]
    double saturated_unit_weight = 0.0;  ///< characteristic [N/mm³]
    double friction = 0.0;               ///< characteristic [rad]
    double cohesion = 0.0;               ///< characteristic [N/mm²]
    double dry_gamma = 0.0;              ///< design, above the water [N/mm³]
    double wet_gamma = 0.0;              ///< design, effective below the water [N/mm³]
    double design_phi = 0.0;             ///< [rad]
    double tan_phi = 0.0;                ///< design [-]
    double design_cohesion = 0.0;        ///< [N/mm²]
  };

  /// A piece of the cut ground, with what all circles share.
  struct Piece {
    double xmin = 0.0;
    double ymin = 0.0;
    double xmax = 0.0;
    double ymax = 0.0;
    Place centroid;
    double gamma = 0.0;        ///< design unit weight [N/mm³]
    double raw_weight = 0.0;   ///< of the whole piece, without factors of actions [N]
    std::size_t first = 0;     ///< of its vertices
    std::size_t vertices = 0;  ///< how many
    std::size_t soil = 0;
    bool regular = false;                  ///< its sides are neither tiny nor huge
    bool clean = false;                    ///< as `is_clean` has it
    double middle = 0.0;                   ///< of its box, along x [mm]
    std::array<double, 2> middle_loads{};  ///< on a base below the middle, by `actType` [N]
    sliceSeg* source = nullptr;
  };

  /// A piece and all that lie above it in its stripe.
  struct Column {
    double raw_weight = 0.0;  ///< [N]
    double raw_moment = 0.0;  ///< about the left edge of the stripe, positive to its left [N mm]
  };

  struct StripeRange {
    std::size_t first = 0;  ///< of its pieces
    std::size_t end = 0;
    double xmin = 0.0;
    double xmax = 0.0;
    double ymax = 0.0;
    bool layered = false;  ///< neither tops nor bottoms come down from piece to piece
  };

  /// The pieces of a stripe that have to be looked at one by one. Those before them lie outside the
  /// circle, those after them lie inside whole.
  struct Doubtful {
    std::size_t first = 0;
    std::size_t end = 0;
  };

  /// What a circle leaves of a stripe.
  struct StripeCut {
    const Piece* base = nullptr;  ///< the lowest piece; null as long as there is none
    bool base_is_whole = false;
    double base_length = 0.0;
    Place base_mid;
    double raw_weight = 0.0;  ///< without factors of actions [N]
    double raw_moment = 0.0;  ///< about the centre of the circle, positive to its left [N mm]
  };

  void add_stripe(const Stripe& stripe, const xLoadComb& comb, double gamma_water);
  void add_piece(sliceSeg& source, const xLoadComb& comb, double gamma_water);
  void add_columns(const StripeRange& range);
  std::size_t soil_of(const xSoilProps& soil, const xLoadComb& comb, double gamma_water);
  Doubtful doubtful_pieces(const StripeRange& stripe) const;
  CutKind classify(const Piece& piece) const;
  bool cut_stripe(const StripeRange& stripe);
  bool cut_piece(const Piece& piece, StripeCut& cut);
  void take_whole(const Piece& piece, StripeCut& cut) const;
  void take_part(const Piece& piece, OutlineView part, Place chord_mid, double chord_length,
                 StripeCut& cut) const;
  void take_columns_from(std::size_t lowest, const StripeRange& stripe, StripeCut& cut) const;
  double base_resistance_of(const StripeCut& cut, const StripeSums& sums, double loads,
                            bool bishop) const;
  void add_moments(const StripeCut& cut, bool bishop, CircleMoments& moments) const;
  double stripe_loads(const StripeCut& cut, actType act) const;
  void note_base(const StripeCut& cut, const BaseResistance& resistance) const;

  double spacing_;
  double gamma_water_;
  double tolerance_;
  bool has_conditions_;
  SliceSeismic seismic_;
  std::array<double, 2> weight_factor_;
  xWaterTable water_;
  std::vector<GroundLoad> ground_loads_;
  std::vector<WallLoad> wall_loads_;

  std::vector<StripeRange> stripes_;
  std::vector<Piece> pieces_;
  std::vector<double> tops_;     ///< of the pieces [mm]
  std::vector<double> bottoms_;  ///< likewise
  std::vector<Column> columns_;  ///< likewise, where the stripe is layered
  std::vector<Place> vertices_;
  std::vector<Soil> soils_;

  Place center_;
  double radius_ = 0.0;
  Rim rim_;
  CleanCut clean_cut_;
  std::vector<StripeCut> cuts_;  ///< of the circle, from left to right
  CutBuffers buffers_;
};

}  // namespace ostrel::slope
