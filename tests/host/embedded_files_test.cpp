// SPDX-License-Identifier: Apache-2.0
#include "embedded_files.h"

#include "host_testing.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <string>

namespace ostrel::host {
namespace {

using ::testing::EndsWith;
using ::testing::StartsWith;

// From its first byte to its last, with nothing before or behind.
TEST(EmbeddedFiles, HoldAFileAsItIs) {
  for (const char* name : {"anchored.json", "cantilever.json", "propped.json", "seismic.json"}) {
    const std::string file = (std::filesystem::path(OSTREL_EXAMPLES) / name).string();
    ASSERT_FALSE(contents_of(file).empty()) << file;
    EXPECT_EQ(embedded_file(name), contents_of(file)) << name;
  }
}

TEST(EmbeddedFiles, HoldThePageOfAReport) {
  EXPECT_THAT(embedded_file("page.html"), StartsWith("<!DOCTYPE html>"));
  EXPECT_THAT(embedded_file("page.html"), EndsWith("</html>\n"));
  EXPECT_THAT(embedded_file("report.css"), EndsWith("}\n"));
  EXPECT_THAT(embedded_file("report.js"), EndsWith("show();\n"));
}

TEST(EmbeddedFiles, HoldNoLicenceWithoutItsProgram) {
  EXPECT_EQ(embedded_file("plotly.js").empty(), embedded_file("plotly.licence").empty());
}

TEST(EmbeddedFiles, AreEmptyForANameThatIsNone) {
  EXPECT_TRUE(embedded_file("").empty());
  EXPECT_TRUE(embedded_file("anchored").empty());
}

}  // namespace
}  // namespace ostrel::host
