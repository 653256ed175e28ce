#pragma once
/// @file  Pieces of ground that a slip circle cuts. Room: slope
// SPDX-License-Identifier: Apache-2.0
//
// x is horizontal with the wall on x = 0 and the retained (uphill) side on x >= 0, y points up with
// y = 0 at the wall head. Polygons are closed: the first vertex is repeated at the end.
//
// The ground is cut into upright stripes, a stripe into pieces of one soil each, split at the water
// level. The pieces of a stripe stand from the lowest to the highest.

#include "ostrel/export.h"
#include "ostrel/soil_layer.h"
#include "ostrel/stream.h"

#include <armadillo>
#include <osg/Referenced>
#include <osg/ref_ptr>

#include <array>
#include <string>
#include <utility>
#include <vector>

/// The data of one piece of ground. What stands from `volume` on belongs to a circle: 0 until the
/// sums over its slices fill it.
class OSTREL_API xClipData {
public:
  /// @name Persisted object, version 2
  /// Reading refuses older versions by throwing the version as an int.
  ///@{
  virtual void reset();
  virtual std::string getIOClass() const;
  virtual void pub_read(instream& in);
  virtual void pub_write(outstream& out) const;
  ///@}
  virtual ~xClipData() = default;
  xClipData() = default;
  xClipData(const xClipData&) = default;
  xClipData(xClipData&&) = default;
  xClipData& operator=(const xClipData&) = default;
  xClipData& operator=(xClipData&&) = default;

  xBoundSoilLayer soil;                              ///< the layer that owns the piece
  std::vector<arma::Col<double>::fixed<2>> polygon;  ///< outline (x, y) [mm]
  bool ownerFlag = false;                            ///< the flag stored with the owner
  std::array<bool, 2> hasLoad{};                     ///< carries a load on the ground, by `actType`
  double width = 0.0;                                ///< width of the stripe [mm]
  double baseLength = 0.0;                           ///< length of the base [mm]
  arma::Col<double>::fixed<2> baseMid{arma::fill::zeros};     ///< middle of the base (x, y) [mm]
  bool belowWater = false;                                    ///< lies below the water level
  double area = 0.0;                                          ///< [mm²]
  arma::Col<double>::fixed<2> baricenter{arma::fill::zeros};  ///< centroid (x, y) [mm]

  double volume = 0.0;          ///< area times spacing [mm³]
  double weight = 0.0;          ///< factored weight, effective below the water [N]
  double seismicForce = 0.0;    ///< horizontal inertia force [N]
  double verticalWeight = 0.0;  ///< weight reduced by the vertical inertia [N]
  double armY = 0.0;            ///< height of the centre above the centroid [mm]
  double phi = 0.0;             ///< design friction angle at the base [rad]
  double cohesion = 0.0;        ///< design cohesion at the base [N/mm²]
  double alpha = 0.0;           ///< inclination of the base [rad]
  double porePressure = 0.0;    ///< water pressure at the base [N/mm²]

  /// @name Vertical loads on the stripe, by `actType` [N]
  ///@{
  std::array<double, 2> uniformLoad{};
  std::array<double, 2> stripLoad{};
  std::array<double, 2> lineLoad{};
  std::array<double, 2> pointLoad{};
  ///@}

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 2; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;
};

/// A piece of ground, shared between the cut ground and the circles that hold it whole.
class OSTREL_API sliceSeg : public osg::Referenced {
public:
  ~sliceSeg() override = default;
  sliceSeg() = default;
  sliceSeg(const sliceSeg&) = default;
  sliceSeg& operator=(const sliceSeg&) = default;

  /// Distances from `center` to the nearest and the farthest corner of the bounding box [mm].
  ///
  /// @oddity These are no distances to the polygon: a circle that enters through the middle of a
  /// side and leaves all corners outside counts as outside. Stored results depend on it.
  void getPseudoMinDist(const arma::Col<double>::fixed<2>& center, double& dmin,
                        double& dmax) const;

  /// Gives the part of the piece within a circle, its arc replaced by a chord.
  ///
  /// @param center  centre of the circle (x, y) [mm]
  /// @param R       its radius [mm]
  /// @param out     this very piece if it lies inside whole, a new piece if it is cut, null if
  ///   nothing of it lies inside
  /// @return false if the circle meets the piece above its centre; the circle is then no slip circle
  bool iIntersect(const arma::Col<double>::fixed<2>& center, double R, osg::ref_ptr<sliceSeg>& out);

  /// Extends a polyline along the outline of the piece to the full width of its box.
  ///
  /// @param polyline  points (x, y) on the outline [mm]; comes back sorted by x
  /// @param tol       how near to the sides of the box is near enough [mm]
  void make_poly_edge(std::vector<arma::Col<double>::fixed<2>>& polyline, double tol) const;

  /// @name Bounding box of the polygon [mm]
  ///@{
  double xmin = 0.0;
  double ymin = 0.0;
  double xmax = 0.0;
  double ymax = 0.0;
  ///@}
  xClipData clip;
};

/// The polygons of the ground and the soils they belong to. The order decides: where polygons
/// overlap the first one owns the place.
class OSTREL_API xPolyClipHelper {
public:
  using polygon = std::vector<arma::Col<double>::fixed<2>>;

  /// Appends a polygon and its owner. @return false, with nothing stored, for an empty polygon
  bool pushPolygon(const polygon& outline, const xBoundSoilLayer* owner, bool flag);

  /// The owner of a point drawn inside `outline`; null if nobody owns it or there is no inside.
  const xBoundSoilLayer* findPolygonOwner(const polygon& outline, bool* flag) const;

  /// The owner of the first polygon that holds `point`; null, with `flag` left as it is, if none
  /// does. @param flag  receives what was stored with the owner; may be null
  const xBoundSoilLayer* findPolygonOwner_fromPolyPoint(const arma::Col<double>::fixed<2>& point,
                                                        bool* flag) const;

  /// The box around all polygons [mm]; (0, 0) twice without any.
  void getBBox(arma::Col<double>::fixed<2>& min, arma::Col<double>::fixed<2>& max) const;

  void clear();

  std::vector<polygon> polygons;
  std::vector<std::pair<const xBoundSoilLayer*, bool>> owners;  ///< parallel to `polygons`
};
