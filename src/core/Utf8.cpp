#include "core/Utf8.h"

#include <algorithm>

namespace norvane {
namespace {

constexpr Character kDamaged{0xFFFD, 1};
constexpr char32_t kJoiner = 0x200D;

bool ContinuesCharacter(char c) {
  return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U;
}

std::size_t LengthByFirstByte(unsigned char byte) {
  if (byte >= 0xC2 && byte < 0xE0) return 2;
  if (byte >= 0xE0 && byte < 0xF0) return 3;
  if (byte >= 0xF0 && byte < 0xF5) return 4;
  return 0;
}

bool IsBetween(char32_t code, char32_t first, char32_t last) {
  return code >= first && code <= last;
}

bool BelongsToTheOneBefore(char32_t code) {
  return IsBetween(code, 0x0300, 0x036F) || IsBetween(code, 0x0591, 0x05C7) || IsBetween(code, 0x064B, 0x065F) ||
         IsBetween(code, 0x20D0, 0x20FF) || IsBetween(code, 0xFE00, 0xFE0F) || IsBetween(code, 0x1F3FB, 0x1F3FF) ||
         code == kJoiner;
}

}  // namespace

Character internal::LongCharacterAt(std::string_view text, std::size_t place) {
  const auto first = static_cast<unsigned char>(text[place]);
  const std::size_t length = LengthByFirstByte(first);
  if (length == 0 || place + length > text.size()) return kDamaged;
  char32_t code = first & (0xFFU >> (length + 1));
  for (std::size_t i = 1; i < length; ++i) {
    if (!ContinuesCharacter(text[place + i])) return kDamaged;
    code = (code << 6U) | (static_cast<unsigned char>(text[place + i]) & 0x3FU);
  }
  return {code, length};
}

std::size_t ClusterLength(std::string_view text, std::size_t place) {
  Character last = CharacterAt(text, place);
  std::size_t end = place + last.length;
  while (end < text.size()) {
    const Character next = CharacterAt(text, end);
    if (!BelongsToTheOneBefore(next.code) && last.code != kJoiner) break;
    end += next.length;
    last = next;
  }
  return end - place;
}

void AppendCharacter(std::string& text, char32_t code) {
  if (code < 0x80) {
    text += static_cast<char>(code);
  } else if (code < 0x800) {
    text += static_cast<char>(0xC0 | code >> 6);
    text += static_cast<char>(0x80 | (code & 0x3F));
  } else if (code < 0x10000) {
    text += static_cast<char>(0xE0 | code >> 12);
    text += static_cast<char>(0x80 | (code >> 6 & 0x3F));
    text += static_cast<char>(0x80 | (code & 0x3F));
  } else {
    text += static_cast<char>(0xF0 | code >> 18);
    text += static_cast<char>(0x80 | (code >> 12 & 0x3F));
    text += static_cast<char>(0x80 | (code >> 6 & 0x3F));
    text += static_cast<char>(0x80 | (code & 0x3F));
  }
}

std::size_t CharacterCount(std::string_view text) {
  return static_cast<std::size_t>(
      std::count_if(text.begin(), text.end(), [](char c) { return !ContinuesCharacter(c); }));
}

std::string_view FirstCharacters(std::string_view text, std::size_t count) {
  std::size_t end = 0;
  for (; end < text.size() && count > 0; --count) {
    ++end;
    while (end < text.size() && ContinuesCharacter(text[end])) ++end;
  }
  return text.substr(0, end);
}

std::string_view FirstBytes(std::string_view text, std::size_t count) {
  if (text.size() <= count) return text;
  // A character has four bytes at most; what runs on longer is no text and is cut where it is.
  std::size_t end = count;
  while (end > 0 && count - end < 3 && ContinuesCharacter(text[end])) --end;
  return text.substr(0, ContinuesCharacter(text[end]) ? count : end);
}

void DropLastCharacter(std::string& text) {
  while (!text.empty() && ContinuesCharacter(text.back())) text.pop_back();
  if (!text.empty()) text.pop_back();
}

}  // namespace norvane
