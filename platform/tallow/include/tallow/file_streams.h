#pragma once
/// @file  Typed binary streams over files. Library: tallow
// SPDX-License-Identifier: Apache-2.0

#include "tallow/binary_streams.h"
#include "tallow/export.h"

#include <filesystem>

/// Reads a file.
class TALLOW_API iFileInStream : public iInStream {
public:
  /// @throws std::runtime_error with the path and the system's reason when the file cannot be
  ///         opened or is a directory
  explicit iFileInStream(const std::filesystem::path& path);
  ~iFileInStream() override;

private:
  class File;
};

/// Writes a file that appears whole or not at all.
///
/// The bytes go to a temporary file in the same folder, which `commit` moves into place. Without
/// `commit` the destructor removes it, and an older file of that name is as it was.
class TALLOW_API iFileOutStream : public iOutStream {
public:
  /// @throws std::runtime_error with the path and the system's reason when no file can be made in
  ///         that folder or `path` is a directory
  explicit iFileOutStream(const std::filesystem::path& path);
  ~iFileOutStream() override;

  /// Brings all bytes to the disk and the file into place, with the permissions of the older file
  /// if there is one; a symbolic link of that name is replaced by the file. The stream takes no
  /// further bytes.
  /// @throws std::runtime_error with the path and the reason when that fails, when any write failed
  ///         before, or when it was called before; the older file is then as it was
  void commit();

private:
  class File;

  explicit iFileOutStream(File* file);  ///< takes it over

  File* file_;
};
