#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace norvane {

/// The bytes of a regular file; nothing if there is none or it cannot be read.
std::optional<std::string> ReadWholeFile(const std::filesystem::path& file);

/// Puts `content` in the place of the file, or makes it: written beside, synchronised and renamed, so that a crash
/// leaves the old or the new one. Keeps the file's mode, gives a new one 0600, and follows a link. False, and the old
/// file as it was, if that is not possible or the file is read-only.
bool WriteFileAtomically(const std::filesystem::path& file, std::string_view content);

/// Makes the names in a folder last: what was made, renamed or deleted there survives a power cut. Does what the folder
/// allows; on a file system that can't do it the names are as safe as that system makes them.
void SynchronizeFolder(const std::filesystem::path& folder);

}  // namespace norvane
