// Any file: a value set in it is the one that is read afterwards, and nothing else has changed. The first three lines
// of the input are section, key and value, the rest is the file.

#include <algorithm>
#include <cstdint>

#include "Check.h"
#include "core/IniText.h"

namespace {

std::string_view TakeLine(std::string_view& text) {
  const std::size_t end = std::min(text.find('\n'), text.size());
  const std::string_view line = text.substr(0, end);
  text.remove_prefix(std::min(end + 1, text.size()));
  return line;
}

/// What was taken out of `before` where it first differs from `after`.
std::string_view Removed(std::string_view before, std::string_view after) {
  const auto [difference, other] = std::mismatch(before.begin(), before.end(), after.begin(), after.end());
  const std::size_t start = difference - before.begin();
  before.remove_prefix(start);
  after.remove_prefix(start);
  while (!before.empty() && !after.empty() && before.back() == after.back()) {
    before.remove_suffix(1);
    after.remove_suffix(1);
  }
  return before;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string_view content(reinterpret_cast<const char*>(data), size);
  const std::string_view section = TakeLine(content);
  const std::string_view key = TakeLine(content);
  const std::string_view value = TakeLine(content);
  const std::optional<std::string_view> before = norvane::IniValue(content, section, key);
  const std::optional<std::string> changed = norvane::WithIniValue(content, section, key, value);
  if (!changed) return 0;

  const std::string_view removed = Removed(content, *changed);
  Check(before ? removed.find('\n') == std::string_view::npos : removed.empty());
  const std::string written = "[s]\nk=" + std::string(value);
  Check(norvane::IniValue(*changed, section, key) == norvane::IniValue(written, "s", "k"));
  Check(norvane::WithIniValue(*changed, section, key, value) == changed);
  return 0;
}
