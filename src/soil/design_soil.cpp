// SPDX-License-Identifier: Apache-2.0
#include "ostrel/design_soil.h"

#include "services/class_frame.h"
#include "soil/earth_pressure_coefficients.h"

#include <ostrel/tolerances.h>

namespace {

ostrel::soil::WallAngles angles_of(const xSoilProps& soil, double theta, double beta) {
  return {.phi = soil.getInternalFriction(),
          .delta = soil.getInterfaceFriction(),
          .theta = theta,
          .beta = beta};
}

}  // namespace

void xDesignSoil::reset() {
  K = 0.0;
  soil.reset();
}

void xDesignSoil::compute_Coeff(formulType type, double theta, double beta,
                                arma::Col<double>::fixed<2> acc, bool active) {
  switch (type) {
    case formulaAtRest:
      K = steady(theta, beta);
      return;
    case formulaRankine:
      K = rankine(active, beta);
      return;
    case formulaCoulomb:
      K = coulomb(active, theta, beta);
      return;
    default:
      K = mononobeOkabe(active, theta, beta, acc);
  }
}

double xDesignSoil::steady(double theta, double beta) const {
  return ostrel::soil::at_rest(soil.getInternalFriction(), soil.getPoissonRatio(), soil.getOCR(),
                               theta, beta);
}

double xDesignSoil::rankine(bool active, double beta) const {
  return ostrel::soil::rankine(active, soil.getInternalFriction(), beta);
}

double xDesignSoil::coulomb(bool active, double theta, double beta) const {
  return ostrel::soil::coulomb(active, angles_of(soil, theta, beta),
                               (*getTolerances())[xTolerances::friction_angle]);
}

double xDesignSoil::mononobeOkabe(bool active, double theta, double beta,
                                  arma::Col<double>::fixed<2> acc) const {
  return ostrel::soil::mononobe_okabe(active, angles_of(soil, theta, beta),
                                      ostrel::soil::seismic_inclination(acc[0], acc[1]));
}

std::string xDesignSoil::getIOClass() const {
  return "xDesignSoil";
}
void xDesignSoil::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xDesignSoil::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1.
void xDesignSoil::Read(instream& in, int) {
  ostrel::read_fields(in, K, soil);
}
void xDesignSoil::Write(outstream& out) const {
  ostrel::write_fields(out, K, soil);
}
