#include "core/SettingsFile.h"

#include <optional>

#include "core/Characters.h"
#include "core/IniText.h"
#include "core/Utf8.h"
#include "core/WholeFile.h"

namespace norvane {
namespace {

constexpr std::size_t kLongestValue = 255;

}  // namespace

std::string GetIniString(std::string_view section, std::string_view key, std::string_view fallback,
                         const std::filesystem::path& file) {
  const std::string content = ReadWholeFile(file).value_or("");
  return std::string(FirstBytes(IniValue(content, section, key).value_or(fallback), kLongestValue));
}

bool WriteIniString(std::string_view section, std::string_view key, std::string_view value,
                    const std::filesystem::path& file) {
  std::error_code error;
  const std::optional<std::string> content = ReadWholeFile(file);
  // A file that is there but cannot be read is not replaced by one with a single value.
  if (!content && std::filesystem::exists(std::filesystem::symlink_status(file, error))) return false;
  const std::optional<std::string> changed = WithIniValue(content.value_or(""), section, key, value);
  return changed && WriteFileAtomically(file, *changed);
}

}  // namespace norvane
