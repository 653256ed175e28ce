// SPDX-License-Identifier: Apache-2.0
#include "bilingual.h"

#include "phrases.h"

#include <cstddef>
#include <map>
#include <string_view>
#include <vector>

namespace ostrel::host {

namespace {

/// A text with places for what is put into it: "a {0} b" has "a " and " b" around place 0.
struct Form {
  std::vector<std::string> fixed{""};  ///< before the first place, between places, behind the last
  std::vector<int> places = {};        ///< which argument stands there
};
using Arguments = std::map<int, std::string>;

Form form_of(std::string_view text) {
  Form form;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != '{') {
      form.fixed.back() += text[i];
      continue;
    }
    form.places.push_back(text[i + 1] - '0');
    form.fixed.emplace_back();
    i = text.find('}', i);
  }
  return form;
}

// What was put into a form, as it was written there; none where the text is not of that form.
std::optional<Arguments> arguments_of(std::string_view told, const Form& form) {
  if (!told.starts_with(form.fixed.front())) return std::nullopt;
  told.remove_prefix(form.fixed.front().size());
  if (form.places.empty()) return told.empty() ? std::optional(Arguments{}) : std::nullopt;
  Arguments arguments;
  for (std::size_t i = 0; i < form.places.size(); ++i) {
    const std::string& behind = form.fixed[i + 1];
    const bool last = i + 1 == form.places.size();
    const std::size_t end = last ? told.size() - behind.size() : told.find(behind);
    if (!told.ends_with(last ? behind : "") || end == std::string_view::npos) return std::nullopt;
    arguments[form.places[i]] = told.substr(0, end);
    told.remove_prefix(end + behind.size());
  }
  return arguments;
}

std::string filled(const Form& form, const Arguments& arguments) {
  std::string text = form.fixed.front();
  for (std::size_t i = 0; i < form.places.size(); ++i) {
    const auto argument = arguments.find(form.places[i]);
    if (argument != arguments.end()) text += argument->second;
    text += form.fixed[i + 1];
  }
  return text;
}

std::optional<Both> retold_by(const std::string& told, std::string_view in_italian,
                              std::string_view in_english) {
  const Form italian = form_of(in_italian);
  const Form english = form_of(in_english);
  for (const Form& form : {italian, english}) {
    if (const auto arguments = arguments_of(told, form)) {
      return Both{filled(italian, *arguments), filled(english, *arguments)};
    }
  }
  return std::nullopt;
}

}  // namespace

Both operator+(const Both& first, const Both& second) {
  return {first.italian + second.italian, first.english + second.english};
}

Both decimals(const std::string& text) {
  const auto is_digit = [](char letter) { return letter >= '0' && letter <= '9'; };
  Both both = same(text);
  for (std::size_t i = 1; i + 1 < text.size(); ++i) {
    if (text[i] == '.' && is_digit(text[i - 1]) && is_digit(text[i + 1])) both.italian[i] = ',';
  }
  return both;
}

std::optional<Both> retold(const std::string& told, Text text) {
  return retold_by(told, Texts(Language::italian)(text), Texts(Language::english)(text));
}

std::optional<Both> retold(const std::string& told, const Phrase& text) {
  return retold_by(told, text.in(Texts(Language::italian)), text.in(Texts(Language::english)));
}

void to_json(OrderedJson& json, const Both& text) {
  json = {{"it", text.italian}, {"en", text.english}};
}

OrderedJson in_language(const OrderedJson& value, Language language) {
  const bool both =
      value.is_object() && value.size() == 2 && value.contains("it") && value.contains("en");
  if (both) return value[code_of(language)];
  OrderedJson copy = value;
  if (copy.is_structured()) {
    for (OrderedJson& part : copy) {
      part = in_language(part, language);
    }
  }
  return copy;
}

}  // namespace ostrel::host
