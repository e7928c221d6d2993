#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <span>
#include <sys/types.h>

#include "core/FileHandle.h"

namespace norvane {

/// A file in the making beside the one that it is to replace, whole or not at all: until it is committed, and if
/// anything fails, its target is as it was. A link is followed.
///
/// The unfinished file has a fixed name, so that what a crash left is written over by the next attempt, and is locked,
/// so that no two programs write into one.
class FileReplacement {
 public:
  /// Raises 70 if the target is no plain file, is read-only, is in a folder that can't be written, or is being replaced
  /// by another program; 76 without its folder; 61. `mode` is the permissions of a new file; a file system without
  /// permissions is no error.
  FileReplacement(const std::filesystem::path& target, mode_t mode);
  ~FileReplacement();
  FileReplacement(const FileReplacement&) = delete;
  FileReplacement& operator=(const FileReplacement&) = delete;

  const std::filesystem::path& Target() const { return target_; }
  const std::filesystem::path& Unfinished() const { return unfinished_; }
  int Handle() const { return handle_.Get(); }

  /// Raises 61 if the disk is full, 68 if the device fails.
  void Write(std::span<const std::byte> bytes);
  /// Begins again with an empty file.
  void StartOver();
  /// Brings what was written so far onto the disk. Raises as `Write` does.
  void Synchronize();
  /// Gives the file its name, on the disk before this returns. Raises as `Write` does, and 70.
  void Commit();

 private:
  void Open(mode_t mode);
  bool OpenUnfinished();

  std::filesystem::path target_;
  std::filesystem::path unfinished_;
  FileHandle handle_;
  bool committed_ = false;
};

}  // namespace norvane
