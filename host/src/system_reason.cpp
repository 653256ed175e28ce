// SPDX-License-Identifier: Apache-2.0
#include "system_reason.h"

#include <array>
#include <cerrno>
#include <cstring>
#include <utility>

namespace ostrel::host {

std::string reason_of(const std::error_code& error, const Texts& texts) {
  static constexpr std::array<std::pair<std::errc, Text>, 7> known{{
      {std::errc::no_such_file_or_directory, Text::no_such_file},
      {std::errc::permission_denied, Text::permission_denied},
      {std::errc::is_a_directory, Text::is_a_folder},
      {std::errc::not_a_directory, Text::not_a_folder},
      {std::errc::file_exists, Text::not_a_folder},
      {std::errc::no_space_on_device, Text::no_space},
      {std::errc::read_only_file_system, Text::read_only},
  }};
  if (!error) return {};
  for (const auto& [code, text] : known) {
    if (error == code) return std::string(texts(text));
  }
  const char* description = strerrordesc_np(error.value());
  return description != nullptr ? description : fmt::format("error {}", error.value());
}

std::error_code last_error() {
  return {errno != 0 ? errno : EIO, std::generic_category()};
}

}  // namespace ostrel::host
