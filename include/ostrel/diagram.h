#pragma once
/// @file  Points of the plane and diagrams along an axis. Room: model
// SPDX-License-Identifier: Apache-2.0

#include "ostrel/export.h"
#include "ostrel/stream.h"

#include <armadillo>

#include <string>
#include <vector>

/// A point of the plane [mm]: the wall stands on x = 0, x > 0 is the retained side, y points up.
class OSTREL_API xPoint2d {
public:
  xPoint2d() = default;
  xPoint2d(double px, double py) : x(px), y(py) {}

  /// @name Persisted object, version 1
  ///@{
  virtual std::string getIOClass() const;
  virtual void pub_read(instream& in);
  virtual void pub_write(outstream& out) const;
  ///@}
  virtual ~xPoint2d() = default;
  xPoint2d(const xPoint2d&) = default;
  xPoint2d& operator=(const xPoint2d&) = default;

  void set(double px, double py);
  void zeros();
  arma::Col<double>::fixed<2> getVec() const;  ///< (x, y)
  xPoint2d operator-() const;                  ///< both coordinates negated

  /// True when `a` and `b` are nearer than `tol` [mm] in x and in y; exactly `tol` is not near.
  static bool samePoint(const xPoint2d& a, const xPoint2d& b, double tol);

  double x = 0.0;
  double y = 0.0;

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;
};

/// One point of a diagram.
class OSTREL_API diag_Point {
public:
  diag_Point() = default;
  diag_Point(double position, double v) : s(position), value(v) {}

  /// @name Persisted object, version 1
  ///@{
  virtual std::string getIOClass() const;
  virtual void pub_read(instream& in);
  virtual void pub_write(outstream& out) const;
  ///@}
  virtual ~diag_Point() = default;
  diag_Point(const diag_Point&) = default;
  diag_Point& operator=(const diag_Point&) = default;

  void zeros();
  arma::Col<double>::fixed<2> getArmaVec() const;  ///< (s, value)

  double s = 0.0;      ///< position along the diagram's axis [mm]
  double value = 0.0;  ///< in the unit of the diagram

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;
};

/// Values along a straight axis of the plane.
class OSTREL_API xDiagram {
public:
  /// @name Persisted object, version 1
  ///@{
  virtual void reset();
  virtual std::string getIOClass() const;
  virtual void pub_read(instream& in);
  virtual void pub_write(outstream& out) const;
  ///@}
  virtual ~xDiagram() = default;
  xDiagram() = default;
  xDiagram(const xDiagram&) = default;
  xDiagram(xDiagram&&) = default;
  xDiagram& operator=(const xDiagram&) = default;
  xDiagram& operator=(xDiagram&&) = default;

  xPoint2d start;                  ///< where the axis begins
  xPoint2d end;                    ///< where the axis ends
  std::vector<diag_Point> points;  ///< in the order of the axis

private:
  friend struct ostrel::FrameAccess;
  int GetClassVer() const { return 1; }
  void Read(instream& in, int version);
  void Write(outstream& out) const;
};
