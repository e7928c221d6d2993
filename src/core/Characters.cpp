#include "core/Characters.h"

#include <algorithm>

namespace norvane {
namespace {

bool ContinuesCharacter(char c) {
  return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

}  // namespace

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
  // The thin blanks that locales put between thousands.
  return text.starts_with("\u202F") || text.starts_with("\u2009") ? 3 : 0;
}

void SkipWhitespace(std::string_view& text) {
  while (const std::size_t length = WhitespaceLength(text)) text.remove_prefix(length);
}

bool Take(std::string_view& text, std::string_view start) {
  if (start.empty() || !text.starts_with(start)) return false;
  text.remove_prefix(start.size());
  return true;
}

std::string_view FirstBytes(std::string_view text, std::size_t count) {
  if (text.size() <= count) return text;
  // A character has four bytes at most; what runs on longer is no text and is cut where it is.
  std::size_t end = count;
  while (end > 0 && count - end < 3 && ContinuesCharacter(text[end])) --end;
  return text.substr(0, ContinuesCharacter(text[end]) ? count : end);
}

std::string_view FirstCharacters(std::string_view text, std::size_t count) {
  std::size_t end = 0;
  for (; end < text.size() && count > 0; --count) {
    ++end;
    while (end < text.size() && ContinuesCharacter(text[end])) ++end;
  }
  return text.substr(0, end);
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

}  // namespace norvane
