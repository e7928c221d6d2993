#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace norvane {

/// Reads one value of a profile file: at most 255 bytes, cut at a character's boundary. The default if file, section
/// or key is missing. Sections and keys match without regard to case; whitespace around key and value does not count.
std::string GetIniString(std::string_view section, std::string_view key, std::string_view fallback,
                         const std::filesystem::path& file);

/// Writes one value, leaving every other line as it is. The file is written beside and renamed, so a crash leaves the
/// old or the new one. False if that was not possible; like the platform call it raises nothing.
bool WriteIniString(std::string_view section, std::string_view key, std::string_view value,
                    const std::filesystem::path& file);

}  // namespace norvane
