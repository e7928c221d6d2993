#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "core/RuntimeError.h"

namespace norvane {

// Plain file operations, with the errors that the user knows.

/// The path that a text names: a backslash separates as a slash does, "C:" is the root, and separators that follow one
/// another count as one.
std::filesystem::path PathOf(std::string_view text);

/// Raise nothing; an empty path and a thing of the other kind are False.
bool FolderExists(const std::filesystem::path& folder);
bool FileExists(const std::filesystem::path& file);

/// Makes the last level only. Raises 5 for an empty path, 58 if the name is taken, 76 without the level above, 70, 61.
void CreateFolder(const std::filesystem::path& folder);

/// In bytes. Raises 53 if there is no such file, 6 if the size doesn't fit into a Long.
std::int32_t FileSize(const std::filesystem::path& file);

/// The file itself or, as the platform's file names have no case, the one beside it that differs in case alone.
std::filesystem::path Located(const std::filesystem::path& file);

/// The names of the folders in a folder, sorted without regard to case; hidden ones are left out. Raises 76 if there is
/// no such folder, 70 if it can't be read.
std::vector<std::string> SubfoldersOf(const std::filesystem::path& folder);

/// The names of the plain files in a folder that match a pattern with "*" and "?" without regard to case: the exact
/// name first, the others sorted. A folder that can't be read has none.
std::vector<std::string> FilesLike(const std::filesystem::path& folder, const std::string& pattern);

/// Raises the error of a file operation that ended with `code`, a value of errno: `missing` if there is no such file or
/// folder, 61 without room for it, 68 if the device has gone, else 70.
[[noreturn]] void RaiseFileError(int code, ErrorNumber missing = ErrorNumber::PathNotFound);

}  // namespace norvane
