#include "core/Utf8.h"

namespace norvane {
namespace {

constexpr Character kDamaged{0xFFFD, 1};
constexpr char32_t kJoiner = 0x200D;

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
    const auto next = static_cast<unsigned char>(text[place + i]);
    if ((next & 0xC0U) != 0x80U) return kDamaged;
    code = (code << 6U) | (next & 0x3FU);
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

}  // namespace norvane
