// SPDX-License-Identifier: Apache-2.0
#include "atomic_file.h"

#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace ostrel::host {

namespace {

namespace fs = std::filesystem;

// A file under a temporary name, removed when it goes unless it was renamed.
class TemporaryFile {
public:
  explicit TemporaryFile(const fs::path& target) {
    // What stands there already keeps its permissions; a new file gets the usual ones.
    struct stat status {};
    const bool replaces = stat(target.c_str(), &status) == 0;
    for (unsigned attempt = 0; attempt < most_attempts && handle_ < 0; ++attempt) {
      name_ = target.string() + "." + std::to_string(getpid()) + "." + std::to_string(attempt);
      handle_ = open(name_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
      if (handle_ < 0 && errno != EEXIST) break;
    }
    made_ = handle_ >= 0;
    error_ = made_ ? 0 : errno;
    if (made_ && replaces && fchmod(handle_, status.st_mode & 07777u) != 0) error_ = errno;
  }
  ~TemporaryFile() {
    if (handle_ >= 0) close(handle_);
    if (made_ && !renamed_) unlink(name_.c_str());
  }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;

  void write(std::string_view contents) {
    while (error_ == 0 && !contents.empty()) {
      const ssize_t written = ::write(handle_, contents.data(), contents.size());
      if (written < 0) {
        if (errno != EINTR) error_ = errno;
        continue;
      }
      contents.remove_prefix(static_cast<std::size_t>(written));
    }
  }

  void rename_to(const fs::path& target) {
    if (error_ == 0 && fsync(handle_) != 0) error_ = errno;
    if (error_ == 0) {
      if (close(handle_) != 0) error_ = errno;
      handle_ = -1;
    }
    if (error_ == 0 && std::rename(name_.c_str(), target.c_str()) != 0) error_ = errno;
    renamed_ = error_ == 0;
  }

  int error() const { return error_; }

private:
  static constexpr unsigned most_attempts = 1000;

  std::string name_;
  int handle_ = -1;
  int error_ = 0;
  bool made_ = false;
  bool renamed_ = false;
};

std::error_code code_of(int error) {
  return {error, std::generic_category()};
}

std::error_code write_directly(const std::string& path, std::string_view contents) {
  std::FILE* file = std::fopen(path.c_str(), "wb");
  if (file == nullptr) return code_of(errno);
  int error = 0;
  if (std::fwrite(contents.data(), 1, contents.size(), file) != contents.size()) error = errno;
  if (std::fclose(file) != 0 && error == 0) error = errno;
  return code_of(error);
}

bool is_special(const std::string& path) {
  std::error_code code;
  const fs::file_status status = fs::status(path, code);
  return !code && fs::exists(status) && !fs::is_regular_file(status);
}

// The file that a symbolic link leads to: the link itself is not to be replaced.
fs::path resolved(const std::string& path) {
  std::error_code code;
  const fs::path target = fs::weakly_canonical(path, code);
  return code ? fs::path(path) : target;
}

}  // namespace

std::error_code write_whole(const std::string& path, std::string_view contents) {
  if (is_special(path)) {
    std::error_code code;
    if (fs::is_directory(path, code)) return code_of(EISDIR);
    return write_directly(path, contents);
  }
  const fs::path target = resolved(path);
  TemporaryFile file(target);
  file.write(contents);
  file.rename_to(target);
  return code_of(file.error());
}

std::error_code try_writing(const std::string& path) {
  if (is_special(path)) {
    std::error_code code;
    return fs::is_directory(path, code) ? code_of(EISDIR) : std::error_code();
  }
  const TemporaryFile file(resolved(path));
  return code_of(file.error());
}

}  // namespace ostrel::host
