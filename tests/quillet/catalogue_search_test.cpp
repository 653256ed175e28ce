// SPDX-License-Identifier: Apache-2.0
#include "catalogue_search.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

/// A folder of its own for each test, with nothing in it.
class CatalogueSearch : public testing::Test {
protected:
  void SetUp() override {
    std::string name = testing::TempDir() + "catalogue_search_" + std::string(6, 'X');
    ASSERT_NE(mkdtemp(name.data()), nullptr);
    root_ = name;
  }

  void TearDown() override { fs::remove_all(root_); }

  /// Makes the folder `share/locale` in the folder `prefix` of this test.
  fs::path make_catalogues(const fs::path& prefix) {
    const fs::path folder = root_ / prefix / "share" / "locale";
    fs::create_directories(folder);
    return folder;
  }

  fs::path root_;
};

TEST_F(CatalogueSearch, FindsTheFolderOfAnInstalledLibrary) {
  const fs::path catalogues = make_catalogues("usr");
  fs::create_directories(root_ / "usr/lib/x86_64-linux-gnu");
  EXPECT_EQ(quillet::find_catalogue_folder(root_ / "usr/lib/x86_64-linux-gnu/libOstrel.so"),
            catalogues);
}

TEST_F(CatalogueSearch, FindsTheFolderBesideTheModule) {
  const fs::path catalogues = make_catalogues("bin");
  make_catalogues("");
  EXPECT_EQ(quillet::find_catalogue_folder(root_ / "bin/ostrel"), catalogues);
}

TEST_F(CatalogueSearch, TakesTheNearestOfSeveral) {
  make_catalogues("");
  const fs::path nearest = make_catalogues("opt/ostrel");
  EXPECT_EQ(quillet::find_catalogue_folder(root_ / "opt/ostrel/lib/libOstrel.so"), nearest);
}

TEST_F(CatalogueSearch, ClimbsFourFolders) {
  const fs::path catalogues = make_catalogues("");
  EXPECT_EQ(quillet::find_catalogue_folder(root_ / "a/b/c/d/module.so"), catalogues);
}

TEST_F(CatalogueSearch, ClimbsNoFifthFolder) {
  make_catalogues("");
  EXPECT_EQ(quillet::find_catalogue_folder(root_ / "a/b/c/d/e/module.so"), fs::path());
}

TEST_F(CatalogueSearch, PassesOverAFileOfThatName) {
  const fs::path catalogues = make_catalogues("");
  fs::create_directories(root_ / "bin/share");
  std::ofstream(root_ / "bin/share/locale") << "no folder";
  EXPECT_EQ(quillet::find_catalogue_folder(root_ / "bin/ostrel"), catalogues);
}

TEST(CatalogueSearchFrom, NowhereFindsNothing) {
  EXPECT_EQ(quillet::find_catalogue_folder({}), fs::path());
}

TEST(CatalogueSearchFrom, ABareNameFindsNothing) {
  EXPECT_EQ(quillet::find_catalogue_folder("module.so"), fs::path());
}

TEST(ModuleFile, IsTheProgramWhereTheCodeIsLinkedIntoIt) {
  EXPECT_EQ(quillet::module_file(), fs::canonical("/proc/self/exe"));
}

}  // namespace
