// SPDX-License-Identifier: Apache-2.0
#include "verification_table.h"

#include "text_table.h"
#include "verification.h"

#include <osg/ref_ptr>

#include <algorithm>
#include <cmath>
#include <vector>

namespace ostrel::host {

namespace {

using Side = TextTable::Side;

std::vector<Verification> verifications_of(const RunData& data, const Texts& texts) {
  return host::verifications_of(data.ultimate, data.serviceability, texts);
}

Text outcome_of(const Verification& verification) {
  if (!verification.made) return Text::not_made;
  if (std::isnan(verification.factor)) return Text::not_determined;
  return verification.factor >= 1.0 ? Text::satisfied : Text::not_satisfied;
}

std::string table_of(const std::vector<Verification>& verifications, const Texts& texts) {
  TextTable table;
  table.add_column(std::string(texts(Text::heading_check)), Side::left);
  table.add_column(std::string(texts(Text::heading_factor)), Side::right);
  table.add_column(std::string(texts(Text::heading_combination)), Side::left);
  table.add_column(std::string(texts(Text::heading_place)), Side::left);
  table.add_column(std::string(texts(Text::heading_outcome)), Side::left);
  table.give_way(2);
  for (const Verification& verification : verifications) {
    table.add_row({std::string(name_of(verification.check, texts)),
                   verification.made ? factor_text(verification.factor) : "-",
                   verification.combination, verification.place,
                   std::string(texts(outcome_of(verification)))});
  }
  return table.render();
}

std::string notes_of(const std::vector<Verification>& verifications, bool through,
                     const Texts& texts) {
  const auto any = [&](auto&& condition) {
    return std::any_of(verifications.begin(), verifications.end(), condition);
  };
  std::string notes;
  const auto add = [&](Text text) {
    notes += wrapped(std::string(texts(text)), terminal_width, 0) + "\n";
  };
  if (any([](const Verification& v) { return v.made && v.factor >= unlimited; })) {
    add(Text::unlimited_note);
  }
  if (!through) {
    add(Text::checks_incomplete);
  } else if (any([](const Verification& v) { return !v.made; })) {
    add(Text::not_made_note);
  }
  return notes;
}

// The texts of the library in their order, each once: the two sections of a node often say the same.
std::vector<std::string> failures_of(const RunData& data) {
  std::vector<osg::ref_ptr<xCheckInfo>> failures;
  xUltimateLimitStates ultimate = data.ultimate;
  xServiceabilityLimitStates serviceability = data.serviceability;
  ultimate.getSfMin(&failures);
  serviceability.getSfMin(&failures);
  std::vector<std::string> lines;
  for (const auto& failure : failures) {
    const std::string line = failure->getString();
    if (std::find(lines.begin(), lines.end(), line) == lines.end()) lines.push_back(line);
  }
  return lines;
}

}  // namespace

std::string verification_table(const RunData& data, const Texts& texts) {
  const std::vector<Verification> verifications = verifications_of(data, texts);
  std::string text = std::string(texts(Text::verifications_title)) + "\n"
                   + table_of(verifications, texts) + notes_of(verifications, data.through, texts);
  const std::vector<std::string> failures = failures_of(data);
  if (!failures.empty()) text += "\n" + std::string(texts(Text::failures_title)) + "\n";
  for (const std::string& failure : failures) {
    text += wrapped("  " + failure, terminal_width, 4) + "\n";
  }
  return text;
}

std::string lines_below(const RunData& data, double limit, const Texts& texts) {
  std::string lines;
  for (const Verification& verification : verifications_of(data, texts)) {
    if (!is_below(verification, limit)) continue;
    const std::string_view name = name_of(verification.check, texts);
    const std::string line =
        std::isnan(verification.factor)
            ? texts(Text::below_limit_undetermined, name, verification.combination)
            : texts(Text::below_limit, name, factor_text(verification.factor), limit,
                    verification.combination);
    lines += fitted(line, columns_of(line)) + "\n";
  }
  return lines;
}

}  // namespace ostrel::host
