// SPDX-License-Identifier: Apache-2.0
#include <tallow/file_streams.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <memory>
#include <stdexcept>
#include <string>
#include <sys/resource.h>
#include <vector>

namespace {

namespace fs = std::filesystem;

using testing::ElementsAre;
using testing::IsEmpty;
using testing::StrEq;
using testing::ThrowsMessage;

void store_text(const fs::path& path, const std::string& text) {
  std::ofstream(path, std::ios::binary) << text;
}

std::string text_of(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

// No file of this process may grow beyond `bytes` while the object lives.
class FileSizeLimit {
public:
  explicit FileSizeLimit(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &before_);
    rlimit narrow = before_;
    narrow.rlim_cur = bytes;
    setrlimit(RLIMIT_FSIZE, &narrow);
  }
  FileSizeLimit(const FileSizeLimit&) = delete;
  FileSizeLimit& operator=(const FileSizeLimit&) = delete;
  ~FileSizeLimit() {
    setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, handler_);
  }

private:
  rlimit before_{};
  void (*handler_)(int);
};

// A folder of its own for each test, empty at the beginning and removed at the end.
class FileStreams : public testing::Test {
protected:
  FileStreams() {
    std::string name = (fs::temp_directory_path() / "tallow-test-XXXXXX").string();
    folder_ = ::mkdtemp(name.data());
    wall_ = folder_ / "wall.bin";
  }
  ~FileStreams() override { fs::remove_all(folder_); }

  std::vector<std::string> names() const {
    std::vector<std::string> found;
    for (const auto& entry : fs::directory_iterator(folder_)) {
      found.push_back(entry.path().filename().string());
    }
    return found;
  }

  // What a stream over the file at `path` throws when it is opened.
  static std::string fault_of_reading(const fs::path& path) {
    try {
      const iFileInStream in(path);
    } catch (const std::runtime_error& error) {
      return error.what();
    }
    return "";
  }
  static std::string fault_of_writing(const fs::path& path) {
    try {
      const iFileOutStream out(path);
    } catch (const std::runtime_error& error) {
      return error.what();
    }
    return "";
  }

  fs::path folder_;
  fs::path wall_;
};

TEST_F(FileStreams, ReadBackWhatTheyWrote) {
  const std::string text(200'000, 'q');
  {
    iFileOutStream out(wall_);
    out.writeInt(-3);
    out.writeDouble(0.5);
    out.writeBool(true);
    out.writeString(text);
    out.commit();
  }
  iFileInStream in(wall_);
  EXPECT_EQ(in.readInt(), -3);
  EXPECT_DOUBLE_EQ(in.readDouble(), 0.5);
  EXPECT_TRUE(in.readBool());
  EXPECT_EQ(in.readString(), text);
  EXPECT_THAT([&in] { in.readInt(); },
              ThrowsMessage<std::runtime_error>(StrEq("stream ended while reading an int")));
}

TEST_F(FileStreams, TranslateNoLineEnds) {
  iFileOutStream out(wall_);
  out.writeInt(0x0A0D1A0A);
  out.commit();
  EXPECT_EQ(text_of(wall_), "\x0A\x1A\x0D\x0A");
}

TEST_F(FileStreams, FollowTheReadingPosition) {
  store_text(wall_, std::string("\1\0\0\0\2\0\0\0\3\0\0\0", 12));
  iFileInStream in(wall_);
  in.seekg(8);
  EXPECT_EQ(in.readInt(), 3);
  EXPECT_EQ(in.tellg(), std::streampos(12));
  in.seekg(-8, std::ios::cur);
  EXPECT_EQ(in.readInt(), 2);
  in.seekg(-12, std::ios::end);
  EXPECT_EQ(in.readInt(), 1);
}

TEST_F(FileStreams, FollowTheWritingPosition) {
  iFileOutStream out(wall_);
  EXPECT_EQ(out.tellp(), std::streampos(0));
  out.writeInt(1);
  out.writeInt(2);
  EXPECT_EQ(out.tellp(), std::streampos(8));
  out.seekp(0);
  out.writeInt(9);
  EXPECT_EQ(out.tellp(), std::streampos(4));
  out.seekp(-2, std::ios::end);
  EXPECT_EQ(out.tellp(), std::streampos(6));
  out.seekp(2, std::ios::cur);
  out.writeBool(true);
  out.commit();
  EXPECT_EQ(text_of(wall_), std::string("\11\0\0\0\2\0\0\0\1", 9));
}

TEST_F(FileStreams, DoNotSeekBeforeTheBeginning) {
  iFileOutStream out(wall_);
  out.writeInt(1);
  out.seekp(-1, std::ios::beg);
  EXPECT_TRUE(out.fail());
}

TEST_F(FileStreams, SayWhyAFileCannotBeRead) {
  const fs::path missing = folder_ / "missing.bin";
  EXPECT_EQ(fault_of_reading(missing),
            "cannot read " + missing.string() + ": No such file or directory");
  EXPECT_EQ(fault_of_reading(folder_), "cannot read " + folder_.string() + ": Is a directory");
  store_text(wall_, "");
  const fs::path below = wall_ / "x";
  EXPECT_EQ(fault_of_reading(below), "cannot read " + below.string() + ": Not a directory");
}

// The memory of a process is a file whose first bytes nobody may read.
TEST_F(FileStreams, SayWhyAReadFails) {
  iFileInStream in("/proc/self/mem");
  EXPECT_THAT([&in] { in.readInt(); },
              ThrowsMessage<std::runtime_error>(
                  StrEq("cannot read /proc/self/mem: Input/output error (reading an int)")));
  EXPECT_TRUE(in.bad());
}

TEST_F(FileStreams, SayWhyAFileCannotBeWritten) {
  const fs::path homeless = folder_ / "missing" / "wall.bin";
  EXPECT_EQ(fault_of_writing(homeless),
            "cannot write " + homeless.string() + ": No such file or directory");
  EXPECT_EQ(fault_of_writing(folder_), "cannot write " + folder_.string() + ": Is a directory");
  EXPECT_NE(fault_of_writing(""), "");
  store_text(wall_, "");
  const fs::path below = wall_ / "x";
  EXPECT_EQ(fault_of_writing(below), "cannot write " + below.string() + ": Not a directory");
  EXPECT_THAT(names(), ElementsAre("wall.bin"));
}

// The folder of processes takes no new files, not even from the superuser.
TEST_F(FileStreams, SayWhyAFolderTakesNoFile) {
  EXPECT_THAT(fault_of_writing("/proc/wall.bin"), testing::StartsWith("cannot write /proc/wall"));
}

TEST_F(FileStreams, ShowNothingOfANewFileBeforeTheCommit) {
  iFileOutStream out(wall_);
  out.writeInt(1);
  out.flush();
  EXPECT_FALSE(fs::exists(wall_));
  out.commit();
  EXPECT_THAT(names(), ElementsAre("wall.bin"));
}

TEST_F(FileStreams, LeaveAnOlderFileUntouchedWithoutACommit) {
  store_text(wall_, "older");
  {
    iFileOutStream out(wall_);
    out.writeInt(1);
    out.flush();
    EXPECT_EQ(text_of(wall_), "older");
  }
  EXPECT_EQ(text_of(wall_), "older");
  EXPECT_THAT(names(), ElementsAre("wall.bin"));
}

TEST_F(FileStreams, LeaveNothingBehindWithoutACommit) {
  { iFileOutStream(wall_).writeInt(1); }
  EXPECT_THAT(names(), IsEmpty());
}

TEST_F(FileStreams, ReplaceAnOlderFileByTheCommit) {
  store_text(wall_, "older and longer");
  iFileOutStream out(wall_);
  out << "newer";
  out.commit();
  EXPECT_EQ(text_of(wall_), "newer");
  EXPECT_THAT(names(), ElementsAre("wall.bin"));
}

TEST_F(FileStreams, KeepThePermissionsOfTheOlderFile) {
  store_text(wall_, "older");
  fs::permissions(wall_, fs::perms::owner_read | fs::perms::owner_write);
  iFileOutStream out(wall_);
  out.commit();
  EXPECT_EQ(fs::status(wall_).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(FileStreams, MayHaveTheLongestName) {
  const fs::path longest = folder_ / std::string(255, 'w');
  iFileOutStream out(longest);
  out.commit();
  EXPECT_TRUE(fs::exists(longest));
}

TEST_F(FileStreams, FindTheirFileAlsoWhenTheWorkingFolderChanges) {
  const fs::path before = fs::current_path();
  fs::current_path(folder_);
  iFileOutStream out("wall.bin");
  fs::current_path(before);
  out << "here";
  out.commit();
  EXPECT_EQ(text_of(wall_), "here");
}

TEST_F(FileStreams, DoNotDisturbEachOtherOverOneName) {
  iFileOutStream first(wall_);
  iFileOutStream second(wall_);
  first << "first";
  second << "second";
  second.commit();
  EXPECT_EQ(text_of(wall_), "second");
  first.commit();
  EXPECT_EQ(text_of(wall_), "first");
  EXPECT_THAT(names(), ElementsAre("wall.bin"));
}

TEST_F(FileStreams, TakeNothingAfterTheCommit) {
  iFileOutStream out(wall_);
  out << "whole";
  out.commit();
  EXPECT_EQ(out.tellp(), std::streampos(-1));
  EXPECT_THAT([&out] { out.writeInt(1); },
              ThrowsMessage<std::runtime_error>(StrEq("cannot write " + wall_.string()
                                                      + ": it was committed already "
                                                        "(writing an int)")));
  EXPECT_EQ(text_of(wall_), "whole");
}

TEST_F(FileStreams, AreCommittedOnce) {
  iFileOutStream out(wall_);
  out << "whole";
  out.commit();
  EXPECT_THAT([&out] { out.commit(); },
              ThrowsMessage<std::runtime_error>(
                  StrEq("cannot write " + wall_.string() + ": it was committed already")));
  EXPECT_EQ(text_of(wall_), "whole");
}

TEST_F(FileStreams, SayWhyTheFileCannotBeMovedIntoPlace) {
  iFileOutStream out(wall_);
  out.writeInt(1);
  fs::create_directory(wall_);
  EXPECT_THAT([&out] { out.commit(); },
              ThrowsMessage<std::runtime_error>(
                  StrEq("cannot write " + wall_.string() + ": Is a directory")));
  EXPECT_THAT(names(), ElementsAre("wall.bin"));
  EXPECT_TRUE(fs::is_directory(wall_));
}

// 100 000 bytes go beyond any buffer and beyond the limit, so the write itself meets the error.
TEST_F(FileStreams, SayWhyAWriteFails) {
  store_text(wall_, "older");
  {
    const FileSizeLimit limit(1000);
    iFileOutStream out(wall_);
    EXPECT_THAT([&out] { out.writeString(std::string(100'000, 'x')); },
                ThrowsMessage<std::runtime_error>(
                    StrEq("cannot write " + wall_.string()
                          + ": File too large (writing a string of 100000 bytes)")));
    out.clear();  // the stream may forget the failure, the file does not
    EXPECT_THAT([&out] { out.commit(); },
                ThrowsMessage<std::runtime_error>(
                    StrEq("cannot write " + wall_.string() + ": File too large")));
  }
  EXPECT_EQ(text_of(wall_), "older");
  EXPECT_THAT(names(), ElementsAre("wall.bin"));
}

// 1200 bytes still lie in the buffer when the commit begins.
TEST_F(FileStreams, SayWhyTheLastBytesCannotBeWritten) {
  store_text(wall_, "older");
  const FileSizeLimit limit(1000);
  auto out = std::make_unique<iFileOutStream>(wall_);
  out->writeBytes(std::string(1200, 'x').data(), 1200);
  EXPECT_THAT([&out] { out->commit(); },
              ThrowsMessage<std::runtime_error>(
                  StrEq("cannot write " + wall_.string() + ": File too large")));
  out.reset();
  EXPECT_EQ(text_of(wall_), "older");
  EXPECT_THAT(names(), ElementsAre("wall.bin"));
}

// With `unitbuf` the standard streams flush in a destructor, where an exception would be the end.
TEST_F(FileStreams, SurviveAFailureOfAFlushAfterEachWrite) {
  const FileSizeLimit limit(1000);
  iFileOutStream out(wall_);
  out.setf(std::ios::unitbuf);
  EXPECT_THROW(out.writeString(std::string(1200, 'x')), std::runtime_error);
}

TEST_F(FileStreams, AreNotCommittedAfterAFailureOfTheStream) {
  iFileOutStream out(wall_);
  out.setstate(std::ios::failbit);
  EXPECT_THAT([&out] { out.commit(); },
              ThrowsMessage<std::runtime_error>(
                  StrEq("cannot write " + wall_.string() + ": the stream failed before")));
  EXPECT_THAT(names(), IsEmpty());
}

}  // namespace
