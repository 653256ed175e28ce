// SPDX-License-Identifier: Apache-2.0
#include "validation/validation_page.h"

#include <algorithm>
#include <cmath>
#include <sstream>

namespace ostrel::validation {
namespace {

constexpr const char* head = R"(# Validation against published cases

Each figure below was published in a book, a standard or a manual, or was worked out by another program or a
closed form; beside it stands what this system gives for the same inputs. The program `ostrel_validation` runs all
cases and writes this page (`script/validation`); a test runs them too and holds that every figure keeps its
tolerance and that the page is what the run writes.

A case has a class. **A**: the source follows the same formula. **B**: the same physics, with a difference that is
stated. **C**: another model; the order of magnitude counts. Where a rule of this system departs from the source, the
table tells what the rule gives when it is worked out by hand, the tolerance refers to that, and the reason stands
below the table.

Sources that are programs or their verifications: XC (github.com/xcfem/xc at fe707f4afdf7), groundhog
(github.com/snakesonabrain/groundhog), structuralcodes (github.com/fib-international/structuralcodes at a0386546cad9),
GEOLib (github.com/Deltares/GEOLib at ae3b2ab54c0a, with the verification of D-Sheet Piling 24.1), and for several
examples of the FHWA, Caltrans and Das the collection at github.com/soconnell345-geotech/GeotechStaffEngineer
(8f5285238f7a).
)";

constexpr const char* tail = R"(## Cases that are not run

| source | why not |
| --- | --- |
| Dawkins, CWALSSI user guide, example 2 | the level of the excavation is not in the quotation at hand, and the wall there has springs on both sides |
| Caltrans, Trenching and Shoring Manual, examples 7-1B and 8-1 | the inputs are not in the quotation at hand, and limit equilibrium finds a depth there, which this system does not search |
| Caltrans, Trenching and Shoring Manual, example 10-3 | the printed length of the arc (113.55 ft) does not fit its radius and slices, whose chords add up to 83.8 ft |
| Jiménez Salas, Ka of 0.085 for phi 40 on an inclined back | two digits, 2 % from the formula |
| Smolčić and Grandić, circular column of 500 mm | the printed reinforcement does not carry the printed moment, by two programs |
| published factors of slopes with a water table | the pore pressure of this system carries no spacing, and weights below the water are buoyant |
)";

const char* letter(Likeness likeness) {
  switch (likeness) {
    case Likeness::same_formula:
      return "A";
    case Likeness::same_physics:
      return "B";
    case Likeness::indicative:
      return "C";
  }
  return "";
}

bool is_absolute(const Figure& figure) {
  return figure.tolerance.absolute > 0.0;
}

std::string with_unit(const std::string& value, const std::string& unit) {
  return unit.empty() ? value : value + " " + unit;
}

/// Digits that show a difference as large as the tolerance.
int digits_of(const Figure& figure) {
  const double allowed = figure.allowed() / std::abs(figure.reference());
  const double wanted = 1.0 + std::ceil(-std::log10(allowed));
  return static_cast<int>(std::clamp(wanted, 5.0, 8.0));
}

std::string told_tolerance(const Figure& figure) {
  if (is_absolute(figure)) return with_unit(number(figure.tolerance.absolute, 2), figure.unit);
  return number(100.0 * figure.tolerance.relative, 2) + " %";
}

bool follows_a_rule(const Figure& figure) {
  return figure.by_rule.has_value();
}

std::string verdict(const Case& each) {
  const auto& figures = each.figures;
  const auto agreeing = std::count_if(figures.begin(), figures.end(),
                                      [](const Figure& figure) { return figure.agrees(); });
  const auto ruled = std::count_if(figures.begin(), figures.end(), follows_a_rule);
  std::ostringstream text;
  text << agreeing << " of " << figures.size();
  if (ruled > 0) text << ", " << ruled << " by a rule of this system";
  return text.str();
}

void write_summary(std::ostream& out, const std::vector<Chapter>& chapters) {
  out << "\n## All cases\n\n| case | subject | class | figures that agree |\n"
         "| --- | --- | --- | --- |\n";
  for (const Chapter& chapter : chapters) {
    for (const Case& each : chapter.cases)
      out << "| " << each.id << " | " << each.subject << " | " << letter(each.likeness) << " | "
          << verdict(each) << " |\n";
  }
}

void write_figure(std::ostream& out, const Figure& figure, bool with_rule) {
  out << "| " << figure.what << " | " << figure.unit << " | " << number(figure.published, 9)
      << " | ";
  if (with_rule)
    out << (figure.by_rule ? number(*figure.by_rule, digits_of(figure)) : std::string()) << " | ";
  out << number(figure.ours, digits_of(figure)) << " | " << told_difference(figure) << " | "
      << told_tolerance(figure) << " |\n";
}

void write_case(std::ostream& out, const Case& each) {
  out << "\n### " << each.id << ": " << each.subject << "\n\nClass " << letter(each.likeness)
      << ". Source: " << each.source << ".\nInputs: " << each.inputs << ".\n\n";
  const bool with_rule = std::any_of(each.figures.begin(), each.figures.end(), follows_a_rule);
  out << "| figure | unit | published |" << (with_rule ? " by our rule |" : "")
      << " ours | difference | tolerance |\n| --- | --- | ---: |" << (with_rule ? " ---: |" : "")
      << " ---: | ---: | ---: |\n";
  for (const Figure& figure : each.figures)
    write_figure(out, figure, with_rule);
  if (!each.reason.empty()) out << "\n" << each.reason << "\n";
}

}  // namespace

std::string number(double value, int digits) {
  std::ostringstream text;
  text.precision(digits);
  text << value;
  return text.str();
}

std::string told_difference(const Figure& figure) {
  const double unit = is_absolute(figure) ? 1.0 : std::abs(figure.published) / 100.0;
  const double least = std::max(figure.allowed() / 10.0, 1e-8 * std::abs(figure.published)) / unit;
  const double step = std::pow(10.0, std::floor(std::log10(least)));
  const double steps = std::round(figure.difference() / unit / step);
  if (!(std::abs(steps) > 0.0)) return "0";
  const std::string text = (steps > 0.0 ? "+" : "") + number(steps * step, 2);
  return is_absolute(figure) ? with_unit(text, figure.unit) : text + " %";
}

std::string validation_page(const std::vector<Chapter>& chapters) {
  std::ostringstream out;
  out << head;
  write_summary(out, chapters);
  for (const Chapter& chapter : chapters) {
    out << "\n## " << chapter.title << "\n\n" << chapter.introduction << "\n";
    for (const Case& each : chapter.cases)
      write_case(out, each);
  }
  out << "\n" << tail;
  return out.str();
}

}  // namespace ostrel::validation
