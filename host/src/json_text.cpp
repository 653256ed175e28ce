// SPDX-License-Identifier: Apache-2.0
#include "json_text.h"

#include "system_reason.h"
#include "text_table.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <cerrno>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>
#include <utility>
#include <vector>

namespace ostrel::host {

namespace {

using Json = nlohmann::json;

// A forward iterator over a text that counts the lines it has gone over.
class LineCounter {
public:
  using iterator_category = std::input_iterator_tag;
  using value_type = char;
  using difference_type = std::ptrdiff_t;
  using pointer = const char*;
  using reference = const char&;

  struct Place {
    std::size_t line = 1;
    bool after_line_end = false;  // the last character was the end of a line
  };

  LineCounter(const char* at, Place* place) : at_(at), place_(place) {}
  reference operator*() const { return *at_; }
  LineCounter& operator++() {
    place_->after_line_end = *at_ == '\n';
    if (place_->after_line_end) ++place_->line;
    ++at_;
    return *this;
  }
  LineCounter operator++(int) {
    const LineCounter before = *this;
    ++*this;
    return before;
  }
  bool operator==(const LineCounter& other) const { return at_ == other.at_; }
  bool operator!=(const LineCounter& other) const { return at_ != other.at_; }

private:
  const char* at_;
  Place* place_;
};

// Follows the events of a parser and knows the path of the value that comes next. It answers each
// event with whether the parser shall go on.
class PathFollower : public nlohmann::json_sax<Json> {
public:
  bool null() override { return scalar(); }
  bool boolean(bool) override { return scalar(); }
  bool number_integer(number_integer_t) override { return scalar(); }
  bool number_unsigned(number_unsigned_t) override { return scalar(); }
  bool number_float(number_float_t, const string_t&) override { return scalar(); }
  bool string(string_t&) override { return scalar(); }
  bool binary(binary_t&) override { return scalar(); }
  bool start_object(std::size_t) override { return open(false); }
  bool start_array(std::size_t) override { return open(true); }
  bool end_object() override { return close(); }
  bool end_array() override { return close(); }
  bool key(string_t& name) override {
    levels_.back().field = name;
    return at_field(name);
  }
  bool parse_error(std::size_t, const std::string&, const nlohmann::detail::exception&) override {
    return false;
  }

protected:
  virtual bool at_value(bool /*is_container*/) { return true; }
  virtual bool at_field(const std::string& /*name*/) { return true; }
  virtual void at_open() {}
  virtual void at_close() {}

  std::size_t depth() const { return levels_.size(); }

  std::string path() const {
    std::string path;
    for (const Level& level : levels_) {
      path = level.is_list ? child_path(path, level.index) : child_path(path, level.field);
    }
    return path;
  }

private:
  struct Level {
    bool is_list = false;
    std::size_t index = 0;
    std::string field;
  };

  bool scalar() {
    const bool go_on = at_value(false);
    next();
    return go_on;
  }
  bool open(bool is_list) {
    const bool go_on = at_value(true);
    levels_.push_back({.is_list = is_list, .index = 0, .field = {}});
    at_open();
    return go_on;
  }
  bool close() {
    at_close();
    levels_.pop_back();
    next();
    return true;
  }
  void next() {
    if (!levels_.empty() && levels_.back().is_list) ++levels_.back().index;
  }

  std::vector<Level> levels_;
};

// What the parser says that it expected, and how that is told.
constexpr std::array<std::pair<std::string_view, Text>, 6> expectations{
    {{"expected '}'", Text::json_comma_or_brace},
     {"expected ']'", Text::json_comma_or_bracket},
     {"expected end of input", Text::json_nothing_more},
     {"expected string literal", Text::json_name},
     {"expected ':'", Text::json_colon},
     {"or a literal", Text::json_value}}};

Text expectation_of(std::string_view message) {
  const auto* const found =
      std::find_if(expectations.begin(), expectations.end(),
                   [&](const auto& row) { return message.ends_with(row.first); });
  return found == expectations.end() ? Text::valid_json : found->second;
}

constexpr std::string_view not_utf8 = "\xEF\xBF\xBD";  // stands for bytes that are none

// Bytes from elsewhere as a terminal can show them, with `not_utf8` for what is no UTF-8.
std::string showable(std::string_view bytes) {
  const Json text = std::string(bytes);
  return Json::parse(text.dump(-1, ' ', false, Json::error_handler_t::replace)).get<std::string>();
}

// Tells what a parser for trees would take badly or not notice.
class Gatekeeper final : public PathFollower {
public:
  Gatekeeper(std::string_view text, Problems& problems) : text_(text), problems_(problems) {}

  bool parse_error(std::size_t position, const std::string& /*token*/,
                   const nlohmann::detail::exception& error) override {
    constexpr int number_too_large = 406;
    const Texts& texts = problems_.texts();
    const std::string_view message = error.what();
    const std::size_t last = std::min(std::max<std::size_t>(position, 1) - 1, text_.size());
    const auto tell = [&](std::string found, Text allowed) {
      problems_.add_at_line(line_of(last), std::move(found), std::string(texts(allowed)));
      return false;
    };
    if (error.id == number_too_large) return tell(before(last), Text::json_number);
    if (message.find("UTF-8") != std::string_view::npos) {
      return tell(texts(Text::json_byte, last_high_byte(last)), Text::json_in_utf8);
    }
    if (last == text_.size()) return tell(std::string(texts(Text::json_end)), Text::json_the_rest);
    const std::string found = before(last);
    if (found.find(not_utf8) != std::string::npos) {
      return tell(texts(Text::json_byte, last_high_byte(last)), Text::json_in_utf8);
    }
    return tell(found, expectation_of(message));
  }

private:
  bool at_value(bool is_container) override {
    if (!is_container || depth() < max_json_depth) return true;
    problems_.add(path(), std::string(problems_.texts()(Text::too_deep)),
                  problems_.texts()(Text::at_most, max_json_depth));
    return false;
  }
  bool at_field(const std::string& name) override {
    if (!seen_.back().insert(name).second) {
      problems_.add(path(), std::string(problems_.texts()(Text::repeated_field)),
                    std::string(problems_.texts()(Text::once)));
    }
    return true;
  }
  void at_open() override { seen_.emplace_back(); }
  void at_close() override { seen_.pop_back(); }
  std::size_t line_of(std::size_t place) const {
    const std::string_view lines = text_.substr(0, place);
    return 1 + static_cast<std::size_t>(std::count(lines.begin(), lines.end(), '\n'));
  }
  // The end of the line up to a place, which is where reading stopped.
  std::string before(std::size_t place) const {
    constexpr std::size_t longest = 40;  // bytes
    std::string_view line = text_.substr(0, place + 1);
    while (line.ends_with('\n') || line.ends_with('\r')) {
      line.remove_suffix(1);
    }
    const std::size_t end = line.find_last_of('\n');
    if (end != std::string_view::npos) line.remove_prefix(end + 1);
    line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size()));
    const bool cut = line.size() > longest;
    if (cut) line.remove_prefix(line.size() - longest);
    return (cut ? "…" : "") + fitted(showable(line), longest);
  }
  // The last byte beyond ASCII up to a place: the parser has gone one further.
  unsigned last_high_byte(std::size_t place) const {
    for (std::size_t i = std::min(place + 1, text_.size()); i-- > 0;) {
      const auto byte = static_cast<unsigned char>(text_[i]);
      if (byte >= 0x80) return byte;
    }
    return 0;
  }

  std::string_view text_;
  Problems& problems_;
  std::vector<std::set<std::string>> seen_;  // fields of each object that is open
};

class LineFinder final : public PathFollower {
public:
  LineFinder(const std::set<std::string>& wanted, const LineCounter::Place& place)
      : wanted_(wanted), place_(place) {}

  std::map<std::string, std::size_t> lines;

private:
  bool at_value(bool is_container) override {
    if (depth() > 2 * static_cast<std::size_t>(max_json_depth)) return false;
    const std::string here = path();
    // The end of a number is only seen one character later.
    const bool too_far = !is_container && place_.after_line_end;
    if (wanted_.contains(here)) lines.emplace(here, place_.line - (too_far ? 1 : 0));
    return true;
  }

  const std::set<std::string>& wanted_;
  const LineCounter::Place& place_;
};

// The paths around `path`, the nearest first, down to that of the whole text.
std::vector<std::string> paths_around(std::string path) {
  std::vector<std::string> around;
  while (!path.empty()) {
    const std::size_t end = path.find_last_of(".[");
    path.erase(end == std::string::npos ? 0 : end);
    around.push_back(path);
  }
  return around;
}

}  // namespace

std::string child_path(const std::string& path, const std::string& field) {
  return path.empty() ? field : path + "." + field;
}

std::string child_path(const std::string& path, std::size_t index) {
  return fmt::format("{}[{}]", path, index);
}

std::optional<std::string> read_file(const std::string& file, Problems& problems,
                                     std::size_t max_bytes) {
  const Texts& texts = problems.texts();
  const auto cannot = [&](const std::error_code& error) {
    problems.add("", texts(Text::cannot_read, reason_of(error, texts)),
                 std::string(texts(Text::a_readable_file)));
    return std::nullopt;
  };
  std::error_code code;
  if (std::filesystem::is_directory(file, code)) {
    return cannot(make_error_code(std::errc::is_a_directory));
  }
  errno = 0;
  std::ifstream stream(file, std::ios::binary);
  if (!stream) return cannot(last_error());
  std::string text;
  std::vector<char> block(1u << 16u);
  while (stream.read(block.data(), static_cast<std::streamsize>(block.size())),
         stream.gcount() > 0) {
    text.append(block.data(), static_cast<std::size_t>(stream.gcount()));
    if (text.size() > max_bytes) {
      problems.add("", std::string(texts(Text::file_too_large)),
                   texts(Text::at_most_megabytes, max_bytes >> 20u));
      return std::nullopt;
    }
  }
  if (stream.bad()) return cannot(make_error_code(std::errc::io_error));
  return text;
}

std::string quote_words_for_numbers(std::string_view text) {
  static constexpr std::array<std::string_view, 3> words{"NaN", "-Infinity", "Infinity"};
  std::string out;
  out.reserve(text.size());
  bool in_text = false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (in_text) {
      out += text[i];
      if (text[i] == '\\' && i + 1 < text.size()) {
        out += text[++i];
      } else {
        in_text = text[i] != '"';
      }
      continue;
    }
    std::string_view word;
    for (const std::string_view candidate : words) {
      if (text.substr(i).starts_with(candidate)) word = candidate;
    }
    if (!word.empty()) {
      out.append("\"").append(word).append("\"");
      i += word.size() - 1;
      continue;
    }
    in_text = text[i] == '"';
    out += text[i];
  }
  return out;
}

std::optional<Json> parse_json(std::string_view text, Problems& problems) {
  const std::size_t before = problems.errors().size();
  Gatekeeper gatekeeper(text, problems);
  const bool sound = Json::sax_parse(text, &gatekeeper);
  if (!sound || problems.errors().size() != before) return std::nullopt;
  return Json::parse(text, nullptr, false);
}

std::map<std::string, std::size_t> find_lines(std::string_view text,
                                              const std::set<std::string>& paths) {
  std::set<std::string> wanted = paths;
  for (const std::string& path : paths) {
    for (const std::string& around : paths_around(path)) {
      wanted.insert(around);
    }
  }
  LineCounter::Place place;
  LineFinder finder(wanted, place);
  Json::sax_parse(LineCounter(text.data(), &place), LineCounter(text.data() + text.size(), &place),
                  &finder);
  std::map<std::string, std::size_t> lines;
  for (const std::string& path : paths) {
    std::vector<std::string> candidates = paths_around(path);
    candidates.insert(candidates.begin(), path);
    for (const std::string& candidate : candidates) {
      const auto found = finder.lines.find(candidate);
      if (found == finder.lines.end()) continue;
      lines.emplace(path, found->second);
      break;
    }
  }
  return lines;
}

}  // namespace ostrel::host
