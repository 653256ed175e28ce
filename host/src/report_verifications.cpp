// SPDX-License-Identifier: Apache-2.0
#include "report_verifications.h"

#include "report_block.h"
#include "verification.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <regex>
#include <string>
#include <utility>
#include <vector>

namespace ostrel::host {

namespace {

using Verifications = std::vector<Verification>;

const Texts& italian() {
  static const Texts texts(Language::italian);
  return texts;
}

const Texts& english() {
  static const Texts texts(Language::english);
  return texts;
}

Both name_in_both(Check check) {
  return {std::string(name_of(check, italian())), std::string(name_of(check, english()))};
}

// Down to two decimals, so that a factor below the limit never shows as the limit.
double shown(double factor) {
  return factor < unlimited ? std::floor(100.0 * factor) / 100.0 : factor;
}

OrderedJson outcome_cell(const Verification& one) {
  if (!one.made) return Both{"non eseguita", "not made"};
  return verdict_cell(!is_below(one, 1.0));
}

/// One verification told in both languages.
struct Told {
  Verification verification;
  Both place;
};

// A place holds no names, so that a dash before a digit is a minus.
std::string with_minus(const std::string& place) {
  static const std::regex dash("-(?=[0-9])");
  return std::regex_replace(place, dash, "−");
}

std::vector<Told> in_both(const Verifications& in_italian, const Verifications& in_english) {
  std::vector<Told> told;
  for (std::size_t i = 0; i < in_english.size(); ++i) {
    told.push_back(
        {in_english[i],
         {decimals(with_minus(in_italian[i].place)).italian, with_minus(in_english[i].place)}});
  }
  return told;
}

std::vector<Told> worst_of_each(const Outcome& outcome) {
  return in_both(verifications_of(outcome.ultimate, outcome.serviceability, italian()),
                 verifications_of(outcome.ultimate, outcome.serviceability, english()));
}

std::vector<Told> worst_first(const Outcome& outcome) {
  std::vector<Told> all =
      in_both(verifications_by_combination(outcome.ultimate, outcome.serviceability, italian()),
              verifications_by_combination(outcome.ultimate, outcome.serviceability, english()));
  std::stable_sort(all.begin(), all.end(), [](const Told& a, const Told& b) {
    return is_worse(a.verification.factor, b.verification.factor);
  });
  return all;
}

const Both& or_dash(const Both& place) {
  static const Both dash = same("–");
  return place.english.empty() ? dash : place;
}

OrderedJson table_of_worst(const Outcome& outcome) {
  ReportTable table("verifications",
                    {"Fattore di sicurezza minimo di ogni verifica",
                     "Smallest safety factor of each verification"},
                    {{{"Verifica", "Verification"}},
                     {{"Fattore", "Factor"}, "", 2},
                     {{"Esito", "Outcome"}},
                     {{"Combinazione", "Combination"}},
                     {{"Dove", "Where"}}});
  for (const auto& [one, place] : worst_of_each(outcome)) {
    table.add({name_in_both(one.check), one.made ? OrderedJson(shown(one.factor)) : OrderedJson(),
               outcome_cell(one), one.made ? one.combination : "–", or_dash(place)});
  }
  return table.block();
}

OrderedJson table_of_all(const Outcome& outcome) {
  ReportTable table("all-verifications",
                    {"Ogni verifica di ogni combinazione, dalla peggiore",
                     "Every verification of every combination, the worst first"},
                    {{{"Combinazione", "Combination"}},
                     {{"Verifica", "Verification"}},
                     {{"Fattore", "Factor"}, "", 2},
                     {{"Esito", "Outcome"}},
                     {{"Dove", "Where"}},
                     {{"Punti non verificati", "Places not satisfied"}}});
  for (const auto& [one, place] : worst_first(outcome)) {
    table.add({one.combination, name_in_both(one.check), shown(one.factor), outcome_cell(one),
               or_dash(place),
               Both{fmt::format("{} su {}", one.failing, one.places),
                    fmt::format("{} of {}", one.failing, one.places)}});
  }
  return table.empty() ? OrderedJson() : folded(table.block());
}

}  // namespace

OrderedJson verdict_block(const Outcome& outcome) {
  const std::vector<Told> all = worst_first(outcome);
  if (all.empty()) return {};
  const auto& [worst, place] = all.front();
  const auto failing = std::count_if(
      all.begin(), all.end(), [](const Told& told) { return is_below(told.verification, 1.0); });
  return {{"kind", "verdict"},
          {"holds", failing == 0},
          {"failing", failing},
          {"count", all.size()},
          {"factor", number_cell(shown(worst.factor))},
          {"check", name_in_both(worst.check)},
          {"combination", worst.combination},
          {"place", place}};
}

OrderedJson verification_blocks(const Outcome& outcome) {
  OrderedJson blocks = OrderedJson::array();
  blocks.push_back(table_of_worst(outcome));
  if (OrderedJson all = table_of_all(outcome); !all.is_null()) blocks.push_back(std::move(all));
  return blocks;
}

}  // namespace ostrel::host
