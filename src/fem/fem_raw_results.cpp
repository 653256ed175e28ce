// SPDX-License-Identifier: Apache-2.0
// The records of a solved beam: what they hold stands in the header, here is how they are stored.
#include "ostrel/fem_results.h"
#include "services/class_frame.h"

void xPointStress::reset() {
  *this = xPointStress{};
}

std::string xPointStress::getIOClass() const {
  return "xPointStress";
}
void xPointStress::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xPointStress::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1.
void xPointStress::Read(instream& in, int) {
  ostrel::read_fields(in, N, T, M);
}
void xPointStress::Write(outstream& out) const {
  ostrel::write_fields(out, N, T, M);
}

void xBeamStress::reset() {
  *this = xBeamStress{};
}

std::string xBeamStress::getIOClass() const {
  return "xBeamStress";
}
void xBeamStress::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xBeamStress::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1.
void xBeamStress::Read(instream& in, int) {
  ostrel::read_fields(in, start_node_, end_node_, points);
}
void xBeamStress::Write(outstream& out) const {
  ostrel::write_fields(out, start_node_, end_node_, points);
}

std::string reacTerr::getIOClass() const {
  return "reacTerr";
}
void reacTerr::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void reacTerr::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1.
void reacTerr::Read(instream& in, int) {
  ostrel::read_fields(in, reaction, limited);
}
void reacTerr::Write(outstream& out) const {
  ostrel::write_fields(out, reaction, limited);
}

std::string Fsoil::getIOClass() const {
  return "Fsoil";
}
void Fsoil::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void Fsoil::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 2.
void Fsoil::Read(instream& in, int version) {
  ostrel::refuse_older_than(2, version);
  ostrel::read_fields(in, elevation, springForce, limitForce, limitMoment);
}
void Fsoil::Write(outstream& out) const {
  ostrel::write_fields(out, elevation, springForce, limitForce, limitMoment);
}

void xCombRes::reset() {
  *this = xCombRes{};
}

std::string xCombRes::getIOClass() const {
  return "xCombRes";
}
void xCombRes::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xCombRes::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 2.
void xCombRes::Read(instream& in, int version) {
  ostrel::refuse_older_than(2, version);
  ostrel::read_fields(in, resName, displacements, nodalForces, soilReactions, beamStress,
                      soilForces, appliedForces);
}
void xCombRes::Write(outstream& out) const {
  ostrel::write_fields(out, resName, displacements, nodalForces, soilReactions, beamStress,
                       soilForces, appliedForces);
}

void AnchorSoll::reset() {
  *this = AnchorSoll{};
}

std::string AnchorSoll::getIOClass() const {
  return "AnchorSoll";
}
void AnchorSoll::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void AnchorSoll::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1.
void AnchorSoll::Read(instream& in, int) {
  ostrel::read_fields(in, idObj, axial, shear, moment);
}
void AnchorSoll::Write(outstream& out) const {
  ostrel::write_fields(out, idObj, axial, shear, moment);
}
