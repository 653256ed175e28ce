// SPDX-License-Identifier: Apache-2.0
#include "quillet/translation.h"

#include "catalogue_search.h"

#include <libintl.h>

#include <atomic>
#include <clocale>
#include <cstdlib>
#include <mutex>
#include <optional>
#include <set>
#include <string>
#include <string_view>

// The count by which gettext knows that the translations it keeps are out of date; it belongs to
// gettext's interface and has to be raised by whoever changes LANGUAGE.
extern "C" int _nl_msg_cat_cntr;  // NOLINT(bugprone-reserved-identifier)

namespace {

// These two are ready before any code runs, since a library binds its domain while it is loaded.
constinit std::mutex state_mutex;
constinit std::atomic<const char*> bound_domain{nullptr};

constexpr std::string_view source_language = "it";

// gettext copies a language's name onto the stack, as long as it is.
constexpr std::size_t longest_language_name = 64;

/// What a chosen language has put aside of the process's environment.
struct PutAside {
  std::optional<std::string> language_variable;  ///< LANGUAGE, if it was set
  std::string message_locale;                    ///< LC_MESSAGES, empty if it was left alone
  std::string substitute_locale;                 ///< what it was replaced by
};

/// Empty while no language is chosen.
std::optional<PutAside>& put_aside() {
  static std::optional<PutAside> kept;
  return kept;
}

/// The names of all domains ever bound: a thread may be translating with any of them. Texts asked
/// for after the end of this record stay in the source language.
struct DomainNames {
  std::set<std::string> names;

  ~DomainNames() { bound_domain.store(nullptr); }
};

/// A copy of `name` that lasts.
const char* kept_name(const char* name) {
  static DomainNames kept;
  return kept.names.insert(name).first->c_str();
}

/// Whether `name` looks like "en", "en_GB", "en_GB.UTF-8" or "sr@latin". Nothing that could name
/// another folder or a list of languages passes.
bool is_language_name(const std::string& name) {
  constexpr std::string_view letters = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ";
  constexpr std::string_view further = "0123456789_-@.";
  if (name.empty() || name.size() > longest_language_name) return false;
  if (letters.find(name.front()) == std::string_view::npos) return false;
  for (const char character : name) {
    if (letters.find(character) == std::string_view::npos
        && further.find(character) == std::string_view::npos) {
      return false;
    }
  }
  return true;
}

/// Whether `name` is the language of the texts themselves, in whatever country.
bool is_source_language(const std::string& name) {
  return std::string_view(name).substr(0, name.find_first_of("_-@.")) == source_language;
}

std::string message_locale() {
  const char* name = std::setlocale(LC_MESSAGES, nullptr);
  return name == nullptr ? std::string() : std::string(name);
}

/// gettext never translates in the locale "C" and heeds LANGUAGE in every other one, so the
/// messages (and nothing else) move to a locale that differs from it in no other way.
void leave_plain_locale(PutAside& aside) {
  const std::string current = message_locale();
  if (current != "C" && current != "POSIX") return;
  for (const char* substitute : {"C.UTF-8", "en_US.UTF-8"}) {
    if (std::setlocale(LC_MESSAGES, substitute) == nullptr) continue;
    aside.message_locale = current;
    aside.substitute_locale = message_locale();
    return;
  }
}

void put_back(const PutAside& aside) {
  if (aside.language_variable) {
    setenv("LANGUAGE", aside.language_variable->c_str(), 1);
  } else {
    unsetenv("LANGUAGE");
  }
  // A locale that the host has chosen since then stays.
  if (!aside.message_locale.empty() && message_locale() == aside.substitute_locale) {
    std::setlocale(LC_MESSAGES, aside.message_locale.c_str());
  }
}

/// Whether gettext finds a catalogue of the bound domain for the language in force. The translation
/// of the empty text is the catalogue's header.
bool has_catalogue() {
  const char* domain = bound_domain.load();
  return domain != nullptr && *dgettext(domain, "") != '\0';
}

}  // namespace

const char* iTranslate(const char* text) {
  if (text == nullptr || *text == '\0') return "";
  const char* domain = bound_domain.load();
  return domain == nullptr ? text : dgettext(domain, text);
}

void iBindLocale(const char* domain) {
  const std::string folder = quillet::catalogue_folder();
  const std::lock_guard lock(state_mutex);
  if (domain == nullptr || *domain == '\0' || folder.empty()) {
    bound_domain.store(nullptr);
    return;
  }
  bindtextdomain(domain, folder.c_str());
  bind_textdomain_codeset(domain, "UTF-8");
  bound_domain.store(kept_name(domain));
}

namespace quillet {

bool set_language(const std::string& language) {
  const std::lock_guard lock(state_mutex);
  auto& aside = put_aside();
  if (language.empty()) {
    if (aside) put_back(*aside);
    aside.reset();
    ++_nl_msg_cat_cntr;
    return true;
  }
  if (!is_language_name(language)) return false;
  if (!aside) {
    aside.emplace();
    if (const char* value = std::getenv("LANGUAGE")) aside->language_variable = value;
  }
  if (!is_source_language(language)) leave_plain_locale(*aside);
  setenv("LANGUAGE", language.c_str(), 1);
  ++_nl_msg_cat_cntr;
  return is_source_language(language) || has_catalogue();
}

std::string catalogue_folder() {
  static const std::string folder = find_catalogue_folder(module_file()).string();
  return folder;
}

}  // namespace quillet
