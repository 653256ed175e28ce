// SPDX-License-Identifier: Apache-2.0
#include "atomic_file.h"

#include "host_testing.h"

#include <gmock/gmock.h>

#include <sys/stat.h>
#include <unistd.h>

namespace ostrel::host {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
namespace fs = std::filesystem;

TEST(WrittenFile, IsThereWhole) {
  const TemporaryFolder folder;
  EXPECT_FALSE(write_whole((folder / "f").string(), "contents"));
  EXPECT_EQ(contents_of(folder / "f"), "contents");
  EXPECT_THAT(folder.names(), ElementsAre("f"));
}

TEST(WrittenFile, TakesThePlaceAndThePermissionsOfTheOldOne) {
  const TemporaryFolder folder;
  const fs::path file = folder.write("f", "old and longer");
  fs::permissions(file, fs::perms::owner_read | fs::perms::owner_write);
  EXPECT_FALSE(write_whole(file.string(), "new"));
  EXPECT_EQ(contents_of(file), "new");
  EXPECT_EQ(fs::status(file).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST(WrittenFile, HasTheUsualPermissionsWhenNew) {
  const TemporaryFolder folder;
  const mode_t mask = umask(022);
  EXPECT_FALSE(write_whole((folder / "f").string(), "x"));
  umask(mask);
  struct stat status {};
  ASSERT_EQ(stat((folder / "f").c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777u, 0644u);
}

TEST(WrittenFile, GoesWhereALinkLeads) {
  const TemporaryFolder folder;
  folder.write("target", "old");
  fs::create_symlink(folder / "target", folder / "link");
  EXPECT_FALSE(write_whole((folder / "link").string(), "new"));
  EXPECT_TRUE(fs::is_symlink(folder / "link"));
  EXPECT_EQ(contents_of(folder / "target"), "new");
}

TEST(WrittenFile, LeavesNothingWhereItCannotBe) {
  const TemporaryFolder folder;
  EXPECT_EQ(write_whole((folder / "none/f").string(), "x"), std::errc::no_such_file_or_directory);
  EXPECT_EQ(write_whole(folder.path().string(), "x"), std::errc::is_a_directory);
  EXPECT_THAT(folder.names(), IsEmpty());
}

TEST(WrittenFile, TellsThatADeviceIsFull) {
  EXPECT_EQ(write_whole("/dev/full", "x"), std::errc::no_space_on_device);
}

TEST(WrittenFile, MayBeADevice) {
  EXPECT_FALSE(write_whole("/dev/null", "x"));
  EXPECT_FALSE(try_writing("/dev/null"));
}

TEST(TriedFile, LeavesTheFolderAsItWas) {
  const TemporaryFolder folder;
  folder.write("f", "old");
  EXPECT_FALSE(try_writing((folder / "f").string()));
  EXPECT_FALSE(try_writing((folder / "g").string()));
  EXPECT_EQ(try_writing((folder / "none/g").string()), std::errc::no_such_file_or_directory);
  EXPECT_THAT(folder.names(), ElementsAre("f"));
  EXPECT_EQ(contents_of(folder / "f"), "old");
}

}  // namespace
}  // namespace ostrel::host
