// SPDX-License-Identifier: Apache-2.0
#include "tallow/file_streams.h"

#include "fault_teller.h"

#include <array>
#include <atomic>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <fstream>
#include <random>
#include <stdexcept>
#include <string>
#include <system_error>
#include <type_traits>
#include <unistd.h>
#include <utility>

namespace fs = std::filesystem;

namespace {

std::error_code system_error() {
  return {errno, std::generic_category()};
}

std::string fault_text(const char* action, const fs::path& path, const std::error_code& reason) {
  return std::string("cannot ") + action + " " + path.string() + ": " + reason.message();
}

// A name that no other writer in the folder uses. It does not contain the name of the file, which
// may be as long as the file system lets it.
std::string temporary_name() {
  static std::atomic<unsigned int> count{0};
  std::random_device chance;
  std::array<char, 64> name{};
  std::snprintf(name.data(), name.size(), ".tallow-%08x%08x-%u.tmp", chance(), chance(), ++count);
  return name.data();
}

// A renamed file outlasts a failure of power only when its folder is on the disk as well. Not every
// file system lets that be asked for, and the file is in place either way.
void sync_folder(const fs::path& folder) {
  const int descriptor = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descriptor < 0) return;
  ::fsync(descriptor);
  ::close(descriptor);
}

}  // namespace

/// A file to read from, which remembers why a read failed.
class iFileInStream::File final : public std::filebuf, public Tallow::FaultTeller {
public:
  explicit File(const fs::path& path) : path_(path) {
    std::error_code ignored;  // the opening itself tells of any other trouble
    if (fs::is_directory(path, ignored)) {
      throw std::runtime_error(
          fault_text("read", path, std::make_error_code(std::errc::is_a_directory)));
    }
    if (!open(path, std::ios::in | std::ios::binary)) {
      throw std::runtime_error(fault_text("read", path, system_error()));
    }
  }

protected:
  int_type underflow() override {
    return remembering([this] { return std::filebuf::underflow(); });
  }
  std::streamsize xsgetn(char* bytes, std::streamsize size) override {
    return remembering([this, bytes, size] { return std::filebuf::xsgetn(bytes, size); });
  }

private:
  template <class Read>
  std::invoke_result_t<Read> remembering(const Read& read) {
    try {
      return read();
    } catch (const std::ios::failure& failure) {
      remember_fault(fault_text("read", path_, failure.code()));
      throw;
    }
  }

  fs::path path_;
};

iFileInStream::iFileInStream(const fs::path& path) : iInStream(std::make_unique<File>(path)) {}

iFileInStream::~iFileInStream() = default;

/// A temporary file that can take the place of another. It never throws at a write, since the
/// standard streams flush in a destructor: it gives the sign of failure and remembers the reason.
class iFileOutStream::File final : public std::streambuf, public Tallow::FaultTeller {
public:
  explicit File(const fs::path& path);
  File(const File&) = delete;
  File& operator=(const File&) = delete;
  ~File() override;

  /// Closes the file and moves it into place, unless something failed since it was opened.
  /// @throws std::runtime_error with the first failure
  void replace_target();

  /// Keeps the file from being moved into place.
  void refuse(const std::string& reason) {
    remember_fault("cannot write " + path_.string() + ": " + reason);
  }

protected:
  int_type overflow(int_type byte) override;
  std::streamsize xsputn(const char* bytes, std::streamsize size) override;
  int sync() override;
  pos_type seekoff(off_type offset, std::ios::seekdir way, std::ios::openmode which) override;
  pos_type seekpos(pos_type position, std::ios::openmode which) override {
    return seekoff(off_type(position), std::ios::beg, which);
  }

private:
  void remember(const std::error_code& reason) {
    remember_fault(fault_text("write", path_, reason));
  }
  void open_temporary();
  void bring_to_disk();
  void rename_temporary();
  void remove_temporary();

  fs::path path_;    // as the caller gave it, for messages
  fs::path target_;  // the same, whatever the working folder becomes
  fs::path temporary_;
  std::FILE* file_ = nullptr;
};

iFileOutStream::File::File(const fs::path& path) : path_(path) {
  std::error_code error;
  target_ = fs::absolute(path, error);
  if (error) throw std::runtime_error(fault_text("write", path, error));
  if (fs::is_directory(target_, error)) {
    throw std::runtime_error(
        fault_text("write", path, std::make_error_code(std::errc::is_a_directory)));
  }
  open_temporary();
}

iFileOutStream::File::~File() {
  if (file_) std::fclose(file_);
  remove_temporary();
}

void iFileOutStream::File::open_temporary() {
  for (int attempts_left = 100; !file_ && attempts_left > 0; --attempts_left) {
    const fs::path candidate = target_.parent_path() / temporary_name();
    file_ = std::fopen(candidate.c_str(), "wbx");
    if (file_) temporary_ = candidate;
    if (!file_ && errno != EEXIST) break;
  }
  if (!file_) throw std::runtime_error(fault_text("write", path_, system_error()));
}

iFileOutStream::File::int_type iFileOutStream::File::overflow(int_type byte) {
  if (traits_type::eq_int_type(byte, traits_type::eof())) return traits_type::not_eof(byte);
  const char one = traits_type::to_char_type(byte);
  return xsputn(&one, 1) == 1 ? byte : traits_type::eof();
}

std::streamsize iFileOutStream::File::xsputn(const char* bytes, std::streamsize size) {
  if (!(size > 0)) return 0;
  if (!file_) {
    refuse("it was committed already");
    return 0;
  }
  const std::size_t written = std::fwrite(bytes, 1, static_cast<std::size_t>(size), file_);
  if (written != static_cast<std::size_t>(size)) remember(system_error());
  return static_cast<std::streamsize>(written);
}

int iFileOutStream::File::sync() {
  if (!file_ || std::fflush(file_) == 0) return 0;
  remember(system_error());
  return -1;
}

iFileOutStream::File::pos_type iFileOutStream::File::seekoff(off_type offset, std::ios::seekdir way,
                                                             std::ios::openmode which) {
  const pos_type failed(off_type(-1));
  if (!file_ || !(which & std::ios::out)) return failed;
  const bool asks_only = offset == 0 && way == std::ios::cur;
  if (!asks_only) {
    if (sync() != 0) return failed;
    const int origin = way == std::ios::beg ? SEEK_SET : way == std::ios::cur ? SEEK_CUR : SEEK_END;
    if (::fseeko(file_, offset, origin) != 0) return failed;
  }
  return pos_type(off_type(::ftello(file_)));
}

void iFileOutStream::File::replace_target() {
  if (!file_) refuse("it was committed already");
  if (fault().empty()) bring_to_disk();
  if (fault().empty()) rename_temporary();
  if (!fault().empty()) {
    remove_temporary();
    throw std::runtime_error(fault());
  }
  sync_folder(target_.parent_path());
}

void iFileOutStream::File::bring_to_disk() {
  if (std::fflush(file_) != 0 || ::fsync(::fileno(file_)) != 0) remember(system_error());
  if (std::fclose(std::exchange(file_, nullptr)) != 0) remember(system_error());
}

void iFileOutStream::File::rename_temporary() {
  std::error_code error;
  const fs::file_status older = fs::status(target_, error);
  if (fs::is_regular_file(older)) fs::permissions(temporary_, older.permissions(), error);
  fs::rename(temporary_, target_, error);
  if (error) return remember(error);
  temporary_.clear();
}

void iFileOutStream::File::remove_temporary() {
  std::error_code ignored;  // nothing is left to be done about it
  if (!temporary_.empty()) fs::remove(temporary_, ignored);
  temporary_.clear();
}

iFileOutStream::iFileOutStream(const fs::path& path)
    : iFileOutStream(std::make_unique<File>(path).release()) {}

iFileOutStream::iFileOutStream(File* file)
    : iOutStream(std::unique_ptr<std::streambuf>(file)), file_(file) {}

iFileOutStream::~iFileOutStream() = default;

void iFileOutStream::commit() {
  if (fail() && file_->fault().empty()) file_->refuse("the stream failed before");
  file_->replace_target();
}
