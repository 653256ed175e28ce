// SPDX-License-Identifier: Apache-2.0
#include "page_print.h"

#include "atomic_file.h"

#include <array>
#include <cerrno>
#include <chrono>
#include <cstddef>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <signal.h>
#include <spawn.h>
#include <sstream>
#include <string_view>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace ostrel::host {

namespace {

namespace fs = std::filesystem;

constexpr std::array<const char*, 6> browsers{"chromium",      "chromium-browser",
                                              "google-chrome", "google-chrome-stable",
                                              "chrome",        "chromium-headless-shell"};

// A folder with a name of its own that goes with the object.
class ScratchFolder {
public:
  ScratchFolder() {
    std::error_code error;
    path_ = (fs::temp_directory_path(error) / "ostrel-print-XXXXXX").string();
    made_ = !error && mkdtemp(path_.data()) != nullptr;
  }
  ~ScratchFolder() {
    std::error_code error;
    if (made_) fs::remove_all(path_, error);
  }
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;

  bool made() const { return made_; }
  std::string operator/(const char* name) const { return (fs::path(path_) / name).string(); }

private:
  std::string path_;
  bool made_ = false;
};

// Starts a program in a process group of its own, without a shell and with nothing to say.
// @return its process, -1 where it cannot be started
pid_t started(const std::vector<std::string>& arguments) {
  std::vector<char*> words;
  for (const std::string& argument : arguments) {
    words.push_back(const_cast<char*>(argument.c_str()));
  }
  words.push_back(nullptr);
  posix_spawn_file_actions_t actions;
  posix_spawnattr_t attributes;
  posix_spawn_file_actions_init(&actions);
  posix_spawnattr_init(&attributes);
  posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
  for (const int handle : {STDOUT_FILENO, STDERR_FILENO}) {
    posix_spawn_file_actions_addopen(&actions, handle, "/dev/null", O_WRONLY, 0);
  }
  posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETPGROUP);
  posix_spawnattr_setpgroup(&attributes, 0);
  pid_t process = -1;
  const int error = posix_spawn(&process, words[0], &actions, &attributes, words.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  posix_spawnattr_destroy(&attributes);
  return error == 0 ? process : -1;
}

// Waits for a process, and ends its group when its time is up.
PrintProblem ended(pid_t process, int seconds) {
  const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(seconds);
  int status = 0;
  for (;;) {
    const pid_t which = waitpid(process, &status, WNOHANG);
    if (which == process) {
      const bool fine = WIFEXITED(status) && WEXITSTATUS(status) == 0;
      return fine ? PrintProblem::none : PrintProblem::failed;
    }
    if (which < 0 && errno != EINTR) return PrintProblem::failed;
    if (std::chrono::steady_clock::now() >= end) break;
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
  }
  kill(-process, SIGKILL);
  waitpid(process, &status, 0);
  return PrintProblem::too_slow;
}

std::string contents_of(const std::string& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

// The page draws its figures one after the other and lets the browser breathe between them, which
// would otherwise print what it has when the page is loaded. This time is the page's own [ms]: it runs
// on to the next timer as soon as nothing else is to be done.
constexpr const char* page_time = "--virtual-time-budget=60000";

}  // namespace

std::string found_browser() {
  const char* path = std::getenv("PATH");
  for (const char* browser : browsers) {
    std::istringstream folders(path != nullptr ? path : "");
    for (std::string folder; std::getline(folders, folder, ':');) {
      if (folder.empty()) continue;
      const std::string file = (fs::path(folder) / browser).string();
      std::error_code error;
      if (fs::is_regular_file(file, error) && access(file.c_str(), X_OK) == 0) return file;
    }
  }
  return {};
}

std::string browser_names() {
  std::string names;
  for (const char* browser : browsers) {
    names += (names.empty() ? "" : ", ") + std::string(browser);
  }
  return names;
}

Print print_page(const std::string& browser, const std::string& html, int seconds) {
  const ScratchFolder folder;
  const std::string page = folder / "report.html";
  const std::string pdf = folder / "report.pdf";
  if (!folder.made() || write_whole(page, html)) return {"", PrintProblem::failed};
  const pid_t process =
      started({browser, "--headless", "--no-sandbox", "--disable-gpu", "--no-first-run",
               "--user-data-dir=" + (folder / "profile"), "--no-pdf-header-footer", page_time,
               "--print-to-pdf=" + pdf, "file://" + page});
  if (process < 0) return {"", PrintProblem::failed};
  Print print;
  print.problem = ended(process, seconds);
  if (print.problem != PrintProblem::none) return print;
  print.bytes = contents_of(pdf);
  if (!std::string_view(print.bytes).starts_with("%PDF-")) return {"", PrintProblem::failed};
  return print;
}

}  // namespace ostrel::host
