#include "core/Characters.h"

#include <algorithm>

namespace norvane {

bool EqualNoCase(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) { return ToLower(x) == ToLower(y); });
}

bool StartsWithNoCase(std::string_view text, std::string_view start) {
  return !start.empty() && EqualNoCase(text.substr(0, start.size()), start);
}

std::size_t WhitespaceLength(std::string_view text) {
  if (text.empty()) return 0;
  if (text[0] == ' ' || text[0] == '\t') return 1;
  if (text.starts_with("\u00A0")) return 2;
  // The thin spaces that locales put between thousands.
  return text.starts_with("\u202F") || text.starts_with("\u2009") ? 3 : 0;
}

void SkipWhitespace(std::string_view& text) {
  while (const std::size_t length = WhitespaceLength(text)) text.remove_prefix(length);
}

std::string_view Trimmed(std::string_view text) {
  constexpr std::string_view kWhitespace = " \t\r";
  const std::size_t first = text.find_first_not_of(kWhitespace);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kWhitespace) - first + 1);
}

bool Take(std::string_view& text, std::string_view start) {
  if (start.empty() || !text.starts_with(start)) return false;
  text.remove_prefix(start.size());
  return true;
}

std::string OneLine(std::string_view text) {
  std::string line;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (c == '\n' && i > 0 && text[i - 1] == '\r') continue;
    line += c == '\t' || c == '\n' || c == '\r' ? ' ' : c;
  }
  return line;
}

std::string Concat(std::initializer_list<std::string_view> parts) {
  std::string text;
  for (const std::string_view part : parts) text += part;
  return text;
}

}  // namespace norvane
