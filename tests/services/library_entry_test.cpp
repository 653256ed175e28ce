// SPDX-License-Identifier: Apache-2.0
#include <quillet/translation.h>

#include <gtest/gtest.h>
#include <libintl.h>

#include <cstdlib>
#include <string>

namespace {

// Nothing in this program binds the domain but the loading of the library's code itself.
TEST(LibraryEntry, BindsTheCataloguesWhenTheProcessLoadsIt) {
  const char* folder = bindtextdomain("Gorm", nullptr);
  ASSERT_NE(folder, nullptr);
  EXPECT_EQ(std::string(folder), quillet::catalogue_folder());
  EXPECT_FALSE(quillet::catalogue_folder().empty());
}

}  // namespace
