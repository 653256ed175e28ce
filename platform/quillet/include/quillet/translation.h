#pragma once
/// @file  Translation of the texts shown to people. Library: quillet
// SPDX-License-Identifier: Apache-2.0

#include <string>

/// The translation of `text` in the language in force, or `text` itself where there is none.
///
/// @param text  a zero-terminated text in the source language (Italian); null gives an empty text,
///              and so does an empty one
/// @return a zero-terminated text that lives as long as the process or as `text`
const char* iTranslate(const char* text);

/// Binds the text domain `domain` for all later translations of this process: finds the folder
/// `share/locale` that belongs to the library or program this code is part of, in the build tree as
/// in the install tree, and expects catalogues in UTF-8. Without such a folder, or with a null
/// domain, texts stay in the source language.
void iBindLocale(const char* domain);

namespace quillet {

/// Marks a text for the catalogue without translating it, as in a constant table.
constexpr const char* translatable(const char* text) {
  return text;
}

/// Chooses the language of later translations, "en" or "it" for instance; "it" and any language
/// without a catalogue give the source texts, an empty text goes back to what the environment asks
/// for. It changes the environment variable LANGUAGE and, where the process runs in the plain "C"
/// locale, the category LC_MESSAGES, and nothing else: call it before other threads run.
///
/// @param language  a single language, with a country or a character set if need be; anything that
///                  no language is called by, a path or a list for instance, is refused and changes
///                  nothing
/// @return true when the texts of the bound domain will come in that language: the source language
///         or one with a catalogue; always true for an empty text
bool set_language(const std::string& language);

/// The folder that holds the catalogues, empty when none was found: the nearest `share/locale` in
/// the folder of the library or program this code is part of or in one of the four above it. It is
/// looked for once.
std::string catalogue_folder();

}  // namespace quillet
