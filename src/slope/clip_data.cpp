// SPDX-License-Identifier: Apache-2.0
#include "ostrel/slip_circle.h"
#include "services/class_frame.h"
#include "slope/stripes.h"

#include <algorithm>
#include <array>
#include <cmath>

void xClipData::reset() {
  *this = xClipData{};
}

std::string xClipData::getIOClass() const {
  return "xClipData";
}
void xClipData::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xClipData::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 2; version 1 is refused.
void xClipData::Read(instream& in, int version) {
  ostrel::refuse_older_than(2, version);
  ostrel::read_fields(in, soil);
  read_vec(polygon, in);
  ostrel::read_fields(in, ownerFlag, hasLoad[0], hasLoad[1], width, baseLength, baseMid, belowWater,
                      area, baricenter, volume, weight, seismicForce, verticalWeight, armY, phi,
                      cohesion, alpha, porePressure, uniformLoad[0], stripLoad[0], lineLoad[0],
                      pointLoad[0], uniformLoad[1], stripLoad[1], lineLoad[1], pointLoad[1]);
}
void xClipData::Write(outstream& out) const {
  ostrel::write_fields(out, soil);
  write_vec(polygon, out);
  ostrel::write_fields(out, ownerFlag, hasLoad[0], hasLoad[1], width, baseLength, baseMid,
                       belowWater, area, baricenter, volume, weight, seismicForce, verticalWeight,
                       armY, phi, cohesion, alpha, porePressure, uniformLoad[0], stripLoad[0],
                       lineLoad[0], pointLoad[0], uniformLoad[1], stripLoad[1], lineLoad[1],
                       pointLoad[1]);
}

void sliceSeg::getPseudoMinDist(const arma::Col<double>::fixed<2>& center, double& dmin,
                                double& dmax) const {
  const std::array<double, 4> corners{std::hypot(xmin - center[0], ymin - center[1]),
                                      std::hypot(xmin - center[0], ymax - center[1]),
                                      std::hypot(xmax - center[0], ymin - center[1]),
                                      std::hypot(xmax - center[0], ymax - center[1])};
  const auto [nearest, farthest] = std::minmax_element(corners.begin(), corners.end());
  dmin = *nearest;
  dmax = *farthest;
}

void ostrel::slope::copyStripes(const Stripes& source,
                                std::vector<std::vector<xClipData>>& target) {
  target.clear();
  target.reserve(source.size());
  for (const auto& stripe : source) {
    std::vector<xClipData>& copies = target.emplace_back();
    copies.reserve(stripe.size());
    for (const osg::ref_ptr<sliceSeg>& piece : stripe) {
      copies.push_back(piece->clip);
    }
  }
}
