// SPDX-License-Identifier: Apache-2.0
#include "ostrel/diagram.h"

#include "services/class_frame.h"

#include <cmath>

void xPoint2d::set(double px, double py) {
  x = px;
  y = py;
}

void xPoint2d::zeros() {
  set(0.0, 0.0);
}

arma::Col<double>::fixed<2> xPoint2d::getVec() const {
  return {x, y};
}

xPoint2d xPoint2d::operator-() const {
  return {-x, -y};
}

bool xPoint2d::samePoint(const xPoint2d& a, const xPoint2d& b, double tol) {
  return tol > std::abs(a.x - b.x) && tol > std::abs(a.y - b.y);
}

std::string xPoint2d::getIOClass() const {
  return "xPoint2d";
}
void xPoint2d::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xPoint2d::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1.
void xPoint2d::Read(instream& in, int) {
  ostrel::read_fields(in, x, y);
}
void xPoint2d::Write(outstream& out) const {
  ostrel::write_fields(out, x, y);
}

void diag_Point::zeros() {
  s = 0.0;
  value = 0.0;
}

arma::Col<double>::fixed<2> diag_Point::getArmaVec() const {
  return {s, value};
}

std::string diag_Point::getIOClass() const {
  return "diag_Point";
}
void diag_Point::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void diag_Point::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1.
void diag_Point::Read(instream& in, int) {
  ostrel::read_fields(in, s, value);
}
void diag_Point::Write(outstream& out) const {
  ostrel::write_fields(out, s, value);
}

void xDiagram::reset() {
  start.zeros();
  end.zeros();
  points.clear();
}

std::string xDiagram::getIOClass() const {
  return "xDiagram";
}
void xDiagram::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xDiagram::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1.
void xDiagram::Read(instream& in, int) {
  ostrel::read_fields(in, start, end, points);
}
void xDiagram::Write(outstream& out) const {
  ostrel::write_fields(out, start, end, points);
}
