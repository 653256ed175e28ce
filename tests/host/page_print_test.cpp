// SPDX-License-Identifier: Apache-2.0
// Browsers of these tests are small scripts, but for the last one.
#include "page_print.h"

#include "host_testing.h"

#include <gmock/gmock.h>

#include <chrono>
#include <cstdlib>

namespace ostrel::host {
namespace {

namespace fs = std::filesystem;
using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

// A PATH for the time of a test.
class Path {
public:
  explicit Path(const std::string& path) : before_(std::getenv("PATH")) {
    setenv("PATH", path.c_str(), 1);
  }
  ~Path() { setenv("PATH", before_.c_str(), 1); }
  Path(const Path&) = delete;
  Path& operator=(const Path&) = delete;

private:
  std::string before_;
};

class PagePrint : public ::testing::Test {
protected:
  std::string browser(const std::string& name, const std::string& script) {
    const fs::path file = folder_.write(name, "#!/bin/sh\n" + script);
    fs::permissions(file, fs::perms::owner_all);
    return file.string();
  }

  TemporaryFolder folder_;
};

// Writes what it was asked to print to the file that it was asked for, and its arguments beside
// itself.
constexpr const char* copying = R"(for word; do
  case $word in
    --print-to-pdf=*) pdf=${word#--print-to-pdf=} ;;
    file://*) page=${word#file://} ;;
  esac
done
printf '%s\n' "$@" >"$0.arguments"
{ printf '%%PDF-'; cat "$page"; } >"$pdf"
)";

TEST_F(PagePrint, FindsTheFirstBrowserOfThePath) {
  const std::string second = browser("chromium-browser", "");
  folder_.write("chromium", "not a program");  // nobody may run it
  const Path path("/nowhere:" + folder_.path().string());
  EXPECT_EQ(found_browser(), second);
  EXPECT_THAT(browser_names(), HasSubstr("chromium"));
}

TEST_F(PagePrint, FindsNothingInAnEmptyPath) {
  const Path path("");
  EXPECT_THAT(found_browser(), IsEmpty());
}

TEST_F(PagePrint, HandsThePageToTheBrowserAndTakesWhatItPrints) {
  const std::string program = browser("chromium", copying);
  const Print print = print_page(program, "<p>$(touch 'x')", 30);
  EXPECT_EQ(print.problem, PrintProblem::none);
  EXPECT_EQ(print.bytes, "%PDF-<p>$(touch 'x')");
  const std::string arguments = contents_of(program + ".arguments");
  EXPECT_THAT(arguments, AllOf(HasSubstr("--headless\n"), HasSubstr("--no-sandbox\n"),
                               HasSubstr("--user-data-dir=")));
  // Nothing of it is left behind.
  const std::string page = arguments.substr(arguments.find("file://") + 7);
  EXPECT_FALSE(fs::exists(fs::path(page).parent_path()));
}

TEST_F(PagePrint, FailsWithTheBrowser) {
  EXPECT_EQ(print_page(browser("a", "exit 1"), "", 30).problem, PrintProblem::failed);
  EXPECT_EQ(print_page(browser("b", "exit 0"), "", 30).problem, PrintProblem::failed);
  EXPECT_EQ(print_page((folder_ / "missing").string(), "", 30).problem, PrintProblem::failed);
}

TEST_F(PagePrint, EndsABrowserThatDoesNot) {
  const auto start = std::chrono::steady_clock::now();
  const Print print = print_page(browser("slow", "sleep 600"), "", 1);
  EXPECT_EQ(print.problem, PrintProblem::too_slow);
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(60));
}

// Without one there is nothing to start, which is told as a failure and leaves no bytes.
TEST(PagePrintBrowser, PrintsWhereOneIsInstalledAndFailsWhereNoneIs) {
  const std::string browser = found_browser();
  const Print print = print_page(browser, "<!doctype html><title>t</title><p>wall</p>", 120);
  EXPECT_EQ(print.problem, browser.empty() ? PrintProblem::failed : PrintProblem::none);
  EXPECT_EQ(print.bytes.substr(0, 5), browser.empty() ? "" : "%PDF-");
}

// Its title changes half a second after it is loaded, in 50 steps. Without a browser there are no
// bytes.
TEST(PagePrintBrowser, WaitsUntilThePageIsDrawn) {
  const std::string browser = found_browser();
  const Print print = print_page(browser,
                                 "<!doctype html><title>early</title><p>wall</p><script>"
                                 "let steps = 0; function draw() { if (++steps < 50) setTimeout("
                                 "draw, 10); else document.title = 'late'; } draw();</script>",
                                 120);
  EXPECT_EQ(print.problem, browser.empty() ? PrintProblem::failed : PrintProblem::none);
  EXPECT_EQ(print.bytes.find("/Title (late)") != std::string::npos, !browser.empty());
}

}  // namespace
}  // namespace ostrel::host
