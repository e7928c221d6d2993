#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace norvane {

// The text of a profile file: [section] lines, key=value lines and, after a semicolon, comments. Sections and keys
// match without regard to case and to whitespace around them; only the first section of a name counts, and in it the
// first key.

/// The value without whitespace and one pair of quotes around it; it points into the content. Nothing if
/// section or key is missing.
std::optional<std::string_view> IniValue(std::string_view content, std::string_view section, std::string_view key);

/// The content with that value set and every other byte as it was. A missing key is added to its section, a missing
/// section at the end. Nothing if the format cannot hold such a name or value.
std::optional<std::string> WithIniValue(std::string_view content, std::string_view section, std::string_view key,
                                        std::string_view value);

}  // namespace norvane
