#pragma once
/// @file  Verification of global stability by slip circles. Room: slope
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/check_frame.h"
#include "ostrel/diagram.h"
#include "ostrel/error.h"
#include "ostrel/export.h"
#include "ostrel/load_combination.h"
#include "ostrel/load_condition.h"
#include "ostrel/sheetpiling_data.h"
#include "ostrel/slip_circle.h"
#include "ostrel/slope_settings.h"
#include "ostrel/soil_layer.h"
#include "ostrel/stream.h"

#include <armadillo>
#include <osg/ref_ptr>

#include <string>
#include <vector>

/// A circle with its moments and its factor.
struct OSTREL_API stabChekData {  // sic: the interface's spelling
  double xc = 0.0;                ///< x of the centre [mm]
  double yc = 0.0;                ///< y of the centre [mm]
  double sf = 1e10;               ///< safety factor [-]
  double radius = 0.0;            ///< [mm]
  double Mstab = 0.0;             ///< stabilising moment by the factor of resistance [N mm]
  double Mdestab = 0.0;           ///< destabilising moment, signed [N mm]
};

/// The best circle of one centre.
class OSTREL_API xGridPointResults {
public:
  /// @name Persisted object, version 2
  /// Reading refuses older versions by throwing the version as an int.
  ///@{
  virtual void reset();
  virtual std::string getIOClass() const;
  virtual void pub_read(instream& in);
  virtual void pub_write(outstream& out) const;
  ///@}
  virtual ~xGridPointResults() = default;
  xGridPointResults() = default;
  xGridPointResults(const xGridPointResults&) = default;
  xGridPointResults& operator=(const xGridPointResults&) = default;

  double Mstab = 0.0;    ///< stabilising moment by the factor of resistance [N mm]
  double Mdestab = 0.0;  ///< destabilising moment, signed [N mm]
  xPoint2d center;       ///< (x, y) [mm]
  double sf = 1e10;      ///< safety factor [-]
  double radius = 0.0;   ///< [mm]

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 2; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;
};

/// The circles around one centre that were left out because they meet the ground above it.
struct OSTREL_API err_circle {
  double x = 0.0;     ///< of the centre [mm]
  double y = 0.0;     ///< of the centre [mm]
  double Rmin = 0.0;  ///< smallest radius left out [mm]
  double Rmax = 0.0;  ///< largest radius left out [mm]
};

/// A circle whose factor is below 1.
class OSTREL_API slopeStabilityCheckInfo : public xCheckInfo {
public:
  ~slopeStabilityCheckInfo() override = default;
  slopeStabilityCheckInfo* clone() const override;
  std::string getString() const override;

  slopeStabilityCheckInfo() = default;
  slopeStabilityCheckInfo(const slopeStabilityCheckInfo&) = default;
  slopeStabilityCheckInfo& operator=(const slopeStabilityCheckInfo&) = default;

  stabChekData data;
};

/// The search for one combination: the circle with the smallest factor and what led to it.
class OSTREL_API xSlopeStability : public xCheckCombID {
public:
  /// Stripes of ground, each with its pieces from the lowest to the highest.
  using Stripes = std::vector<std::vector<osg::ref_ptr<sliceSeg>>>;
  using Center = arma::Col<double>::fixed<2>;

  /// @name Persisted object, version 1
  ///@{
  void reset() override;
  std::string getIOClass() const override;
  void pub_read(instream& in) override;
  void pub_write(outstream& out) const override;
  ///@}

  /// Tries every circle of the settings and keeps the one with the smallest factor.
  ///
  /// Of equal factors the earliest circle wins. Results of centres are appended to those that are
  /// there. A centre of one radius needs no step. A step of 0, or one that would make more than a
  /// million radii at a centre, is refused like a wrong range; one against the range may leave a
  /// centre no radius, and it is passed over.
  ///
  /// @param spacing   extent of the slices along the wall [mm]
  /// @param gammaW    unit weight of water [N/mm³]
  /// @param settings  centres, radii, width of the stripes, formulation
  /// @param layers    the ground
  /// @param boundary  a further body of soil; it comes before the layers
  /// @param conds     the load conditions
  /// @param comb      the combination
  /// @param water     the water on the two sides
  /// @param stripes   the cut ground; cut here if empty, taken as it stands if not
  /// @param ignored   circles that meet the ground above their centre are added here
  /// @retval errCircleBounds      the radii of a centre are reversed, or too many by the step
  /// @retval errStabilityFactors  the factor of resistance is missing, zero or no number
  /// @retval errEmptyCentersGrid  no centre has a circle that could be reckoned
  /// @retval errEmptyPolygons     a layer holds an empty polygon, or the width of the stripes is
  ///   not positive or makes more than a million of them
  /// @retval errStabilityFormula  the formulation is neither 0 nor 1
  OstrelErrorType check(double spacing, double gammaW, const xSlopeStabilitySettings& settings,
                        const std::vector<xBoundSoilLayer>& layers, const xBoundSoilLayer& boundary,
                        const std::vector<xLoadCond>& conds, const xLoadComb& comb,
                        const xWaterTable& water, Stripes& stripes,
                        std::vector<err_circle>& ignored);

  /// The failure record of this result.
  osg::ref_ptr<slopeStabilityCheckInfo> getCheckInfo() const;

  /// @name One circle
  /// Each gives the factor [-] and the two moments [N mm] of the slices of one circle, and fills
  /// the working fields of its pieces.
  /// @param center   of the circle (x, y) [mm]
  /// @param R        its radius [mm]
  /// @param spacing  extent of the slices along the wall [mm]
  /// @param gammaW   unit weight of water [N/mm³]
  /// @param stripes  the slices, as the circle cuts them out of the ground
  /// @param Mstab    receives the stabilising moment, without a factor of resistance
  /// @param Mdestab  receives the destabilising moment, signed
  ///@{
  double fellenius_new(const Center& center, double R, double spacing, double gammaW,
                       const std::vector<xLoadCond>& conds, const xLoadComb& comb,
                       const xWaterTable& water, Stripes& stripes, double& Mstab, double& Mdestab);

  /// @oddity This is not the method of Bishop: the trial factor stays at 1 and the base normal is
  /// that of the ordinary method, while the resistance is still divided by the m of Bishop. In soil
  /// without friction each base so counts c l / cos(alpha), where both textbook methods have c l:
  /// the factor comes out a quarter too high where bases are inclined up to 60 degrees, half too high
  /// up to 74, on the unsafe side. With friction m is above 1, on the safe side, for bases flatter
  /// than 2 phi, and below it for steeper ones. On cohesive ground the ordinary form is the one to
  /// choose. Stored results depend on it.
  double bishop_new(const Center& center, double R, double spacing, double gammaW,
                    const std::vector<xLoadCond>& conds, const xLoadComb& comb,
                    const xWaterTable& water, Stripes& stripes, double& Mstab, double& Mdestab);

  /// By the number of the formulation. @param err  receives success or `errStabilityFormula`, and
  /// the factor is 0 then
  double calcSafetyFactor_new(int formulation, Center center, double R, double spacing,
                              double gammaW, const std::vector<xLoadCond>& conds,
                              const xLoadComb& comb, const xWaterTable& water, Stripes& stripes,
                              OstrelErrorType& err, double& Mstab, double& Mdestab);
  ///@}

  /// The loads on the ground over one slice [N], with the factors of `act`; they are noted in it.
  ///
  /// @oddity A stripe that lies wholly on the excavated side keeps whatever loads an earlier circle
  /// noted in it. Stored results depend on it.
  double soil_LoadEffect_new(double spacing, const std::vector<xLoadCond>& conds,
                             const xLoadComb& comb, osg::ref_ptr<sliceSeg>& slice, actType act);

  /// Adds the moments of the loads on the wall about `center` to the two sums [N mm].
  void shpileLoadLoadEffect(const Center& center, double spacing,
                            const std::vector<xLoadCond>& conds, const xLoadComb& comb,
                            double& stab, double& destab);

  std::vector<xGridPointResults>& get_gridPointRes() { return gridPointRes; }
  const std::vector<xGridPointResults>& get_gridPointRes() const { return gridPointRes; }
  std::vector<std::vector<xClipData>>& getStripesMin() { return StripesMin; }
  const std::vector<std::vector<xClipData>>& getStripesMin() const { return StripesMin; }

  stabChekData& getstabChekData() { return data; }
  const stabChekData& getstabChekData() const { return data; }
  double getXC() const { return data.xc; }
  double getYC() const { return data.yc; }
  double getSf() const { return data.sf; }
  void setSf(double factor) { data.sf = factor; }
  double getRadius() const { return data.radius; }
  void setRadius(double radius) { data.radius = radius; }
  double getMstab() const { return data.Mstab; }
  void setMstab(double moment) { data.Mstab = moment; }
  double getMdestab() const { return data.Mdestab; }
  void setMdestab(double moment) { data.Mdestab = moment; }

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;

  double calc_sfslope(const Center& center, double R, double spacing, double gammaW, double F,
                      bool bishop, const std::vector<xLoadCond>& conds, const xLoadComb& comb,
                      const xWaterTable& water, Stripes& stripes, double& Mstab, double& Mdestab);

  std::vector<xGridPointResults> gridPointRes;     ///< one for each centre with a circle, in order
  std::vector<std::vector<xClipData>> StripesMin;  ///< the slices of the governing circle
  stabChekData data;                               ///< the governing circle
};

/// The verification of global stability over all combinations.
class OSTREL_API xSlopeStabilityDesign : public xBaseResults {
public:
  /// @name Persisted object, version 1
  ///@{
  void reset() override;
  std::string getIOClass() const override;
  void pub_read(instream& in) override;
  void pub_write(outstream& out) const override;
  ///@}

  /// Searches for every combination that asks for this verification, in their order.
  ///
  /// The ground is cut for the first of them and serves them all. A combination that fails ends
  /// the verification with its code; what was found before stays.
  ///
  /// @param errors  receives a warning for every centre with circles that were left out
  /// @retval errNoWall  there is no row of piles
  OstrelErrorType check(const xSheetpilingData& data, std::vector<xVeldError>& errors);

  /// Smallest factor over all combinations [-], 1e10 if there is none.
  ///
  /// @oddity Only those failures are appended that lowered the smallest factor found so far; a
  /// later one above it is left out. Stored results depend on it.
  ///
  /// @param failed  receives the failures; may be null
  double getSfMin(std::vector<osg::ref_ptr<xCheckInfo>>* failed);

  /// Finds the smallest factor and which result holds it.
  void computeSfMin();

  std::vector<xSlopeStability>& getResults() { return results; }
  const std::vector<xSlopeStability>& getResults() const { return results; }

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;

  std::vector<xSlopeStability> results;  ///< one for each combination that asks for it, in order
};
