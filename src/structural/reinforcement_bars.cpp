// SPDX-License-Identifier: Apache-2.0
#include "ostrel/reinforcement_bars.h"

#include "services/class_frame.h"
#include "services/exact.h"
#include "structural/whole_numbers.h"

#include <algorithm>
#include <limits>
#include <numbers>

using ostrel::exactly_equal;
using ostrel::structural::rounded_up;

namespace {

double circle_area(double diameter) {
  return std::numbers::pi * diameter * diameter / 4.0;
}

/// `number` changed by `change`, kept within the range of a number of bars.
std::uint32_t changed_number(std::uint32_t number, std::int64_t change) {
  constexpr std::int64_t largest = std::numeric_limits<std::uint32_t>::max();
  return static_cast<std::uint32_t>(std::clamp<std::int64_t>(number + change, 0, largest));
}

}  // namespace

void xReinforcementBar::reset() {
  *this = xReinforcementBar{};
}

double xReinforcementBar::barArea() const {
  return circle_area(diameter_);
}

double xReinforcementBar::area() const {
  return barArea() * number_;
}

void xReinforcementBar::calcBarNumFromArea(double a) {
  const double bar_area = barArea();
  number_ = bar_area > 0.0 ? rounded_up(a / bar_area) : 0;
}

void xReinforcementBar::addBars(int n) {
  number_ = changed_number(number_, n);
}

void xReinforcementBar::addArm(int n, int d) {
  const int added = std::max(n, 0);
  if (number_ == 0 || exactly_equal(diameter_, 0.0)) {
    number_ = static_cast<std::uint32_t>(added);
    diameter_ = d;
  } else if (exactly_equal(diameter_, d)) {
    addBars(added);
  } else {
    number_ = changed_number(number_, rounded_up(added * circle_area(d) / barArea()));
  }
}

void xReinforcementBar::eraseArm(int n, int d) {
  const double bar_area = barArea();
  const double left = area() - std::max(n, 0) * circle_area(d);
  number_ = left >= 0.001 * bar_area ? rounded_up(left / bar_area) : 0;
}

std::string xReinforcementBar::getIOClass() const {
  return "xReinforcementBar";
}
void xReinforcementBar::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xReinforcementBar::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1.
void xReinforcementBar::Read(instream& in, int) {
  ostrel::read_fields(in, number_, diameter_);
}
void xReinforcementBar::Write(outstream& out) const {
  ostrel::write_fields(out, number_, diameter_);
}

void xBracket::Default() {
  *this = xBracket{};
}

double xBracket::Asw() const {
  return n_arms_ * circle_area(diameter_);
}

double xBracket::AswForStep() const {
  const double step = std::max(diameter_, step_);
  return step >= 0.001 ? Asw() / step : 0.0;
}

std::string xBracket::getIOClass() const {
  return "xBracket";
}
void xBracket::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xBracket::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 2; none before it is read.
void xBracket::Read(instream& in, int version) {
  ostrel::refuse_older_than(2, version);
  ostrel::read_fields(in, n_arms_, diameter_, step_);
}
void xBracket::Write(outstream& out) const {
  ostrel::write_fields(out, n_arms_, diameter_, step_);
}

void xBracketSettings::reset() {
  *this = xBracketSettings{};
}

std::string xBracketSettings::getIOClass() const {
  return "xBracketSettings";
}
void xBracketSettings::pub_read(instream& in) {
  ostrel::read_frame(in, *this);
}
void xBracketSettings::pub_write(outstream& out) const {
  ostrel::write_frame(out, *this);
}

// Stored form, version 1: without the number of arms.
void xBracketSettings::Read(instream& in, int) {
  ostrel::read_fields(in, min_step_, max_step_, step_incr_, bar);
}
void xBracketSettings::Write(outstream& out) const {
  ostrel::write_fields(out, min_step_, max_step_, step_incr_, bar);
}
