#include "pages/TextRuler.h"

#include "core/Utf8.h"

namespace norvane::pages {
namespace {

// Letters up to the Armenian ones need no shaping, nor do the punctuation and currency signs of
// the second block.
constexpr char32_t kEndOfLetters = 0x590;
constexpr char32_t kFirstSign = 0x2000;
constexpr char32_t kEndOfSigns = 0x20D0;
constexpr std::size_t kSlots = kEndOfLetters + (kEndOfSigns - kFirstSign);
constexpr std::size_t kNoSlot = kSlots;

bool IsCombiningOrControl(char32_t code) {
  return (code >= 0x300 && code < 0x370) || (code >= 0x483 && code < 0x48A) || code == 0xAD ||
         (code >= 0x200B && code < 0x2010) || (code >= 0x2028 && code < 0x202F) || (code >= 0x2060 && code < 0x2070);
}

std::size_t SlotOf(char32_t code) {
  if (code < 0x80) return code;
  if (IsCombiningOrControl(code)) return kNoSlot;
  if (code < kEndOfLetters) return code;
  return code >= kFirstSign && code < kEndOfSigns ? code - kFirstSign + kEndOfLetters : kNoSlot;
}

constexpr Face kFaces[] = {
    {Family::Arial, false}, {Family::Arial, true}, {Family::CourierNew, false}, {Family::CourierNew, true}};

}  // namespace

TextRuler::TextRuler(const FontMetrics& metrics) : metrics_(metrics) {
  for (const Face face : kFaces) {
    const double ascent = metrics.Ascent(face);
    faces_[Index(face)] = {ascent, ascent + metrics.Descent(face), std::vector<float>(kSlots, -1.0F)};
  }
}

double TextRuler::Width(Face face, std::string_view text) {
  std::vector<float>& widths = faces_[Index(face)].widths;
  double width = 0;
  for (std::size_t place = 0; place < text.size();) {
    const Character character = CharacterAt(text, place);
    const std::size_t slot = SlotOf(character.code);
    if (slot == kNoSlot) return metrics_.Advance(face, text);
    // Tabs and other control characters are drawn as spaces.
    if (widths[slot] < 0) {
      const std::string_view shown = slot < ' ' ? " " : text.substr(place, character.length);
      widths[slot] = static_cast<float>(metrics_.Advance(face, shown));
    }
    width += widths[slot];
    place += character.length;
  }
  return width;
}

}  // namespace norvane::pages
