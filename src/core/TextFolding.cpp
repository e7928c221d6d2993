#include "core/TextFolding.h"

#include <algorithm>
#include <cstdint>

#include "core/Characters.h"
#include "core/Utf8.h"

namespace norvane {
namespace {

/// The plain letter of each accented one, by blocks of Latin letters. '.' means none, a digit the two letters under
/// which people file a ligature.
struct Block {
  std::uint32_t first;
  std::string_view plain;
};
constexpr Block kBlocks[] = {
    {0xC0,
     "aaaaaa2ceeeeiiiidnooooo.ouuuuy41aaaaaa2ceeeeiiiidnooooo.ouuuuy4yaaaaaaccccccccddddeeeeeeeeeegggg"
     "gggghhhhiiiiiiiiii55jjkkkllllllllllnnnnnnnnnoooooo33rrrrrrssssssssttttttuuuuuuuuuuuuwwyyyzzzzzzs"},
    {0x180,
     "..................f.............oo.............uu............................aaiioouuuuuuuuuu.aa"
     "aa22..ggkkoooo..j...gg..nnaa22ooaaaaeeeeiiiioooorrrruuuusstt..hh......aaeeooooooooyy............"
     "................"},
    {0x1E00,
     "aabbbbbbccddddddddddeeeeeeeeeeffgghhhhhhhhhhiiiikkkkkkllllllllmmmmmmnnnnnnnnoooooooopppprrrrrrrr"
     "ssssssssssttttttttuuuuuuuuuuvvvvwwwwwwwwwwxxxxyyzzzzzzhtwy.s..1.aaaaaaaaaaaaaaaaaaaaaaaaeeeeeeee"
     "eeeeeeeeiiiioooooooooooooooooooooooouuuuuuuuuuuuuuyyyyyyyy......"},
};
constexpr std::string_view kLigatures[] = {"", "ss", "ae", "oe", "th", "ij"};

constexpr bool Within(std::uint32_t c, std::uint32_t first, std::uint32_t last) {
  return c >= first && c <= last;
}

/// Blocks in which each even code is a capital and the next one its small letter.
bool EvenCapitals(std::uint32_t c) {
  return Within(c, 0x100, 0x137) || Within(c, 0x14A, 0x177) || Within(c, 0x1A0, 0x1A5) || Within(c, 0x1DE, 0x1EF) ||
         Within(c, 0x1F8, 0x21F) || Within(c, 0x222, 0x233) || Within(c, 0x246, 0x24F) || Within(c, 0x460, 0x481) ||
         Within(c, 0x48A, 0x4BF) || Within(c, 0x4D0, 0x52F) || Within(c, 0x1E00, 0x1E95) || Within(c, 0x1EA0, 0x1EFF);
}

bool OddCapitals(std::uint32_t c) {
  return Within(c, 0x139, 0x148) || Within(c, 0x179, 0x17E) || c == 0x1AF || Within(c, 0x1CD, 0x1DC) ||
         Within(c, 0x4C1, 0x4CE);
}

/// The small letter of a Latin, Greek or Cyrillic capital.
std::uint32_t Lower(std::uint32_t c) {
  if (c < 0x80) return static_cast<std::uint32_t>(ToLower(static_cast<char>(c)));
  if (Within(c, 0xC0, 0xDE)) return c == 0xD7 ? c : c + 32;
  if (c == 0x130) return 'i';
  if (c == 0x178) return 0xFF;
  if (EvenCapitals(c)) return c | 1;
  if (OddCapitals(c)) return c + c % 2;
  if (c == 0x386) return 0x3AC;
  if (Within(c, 0x388, 0x38A)) return c + 37;
  if (c == 0x38C) return 0x3CC;
  if (Within(c, 0x38E, 0x38F)) return c + 63;
  if (Within(c, 0x391, 0x3AB)) return c + 32;
  if (Within(c, 0x400, 0x40F)) return c + 80;
  return Within(c, 0x410, 0x42F) ? c + 32 : c;
}

/// The plain letter of a small one outside the Latin blocks.
std::uint32_t PlainGreekOrCyrillic(std::uint32_t c) {
  switch (c) {
    case 0x3AC:
      return 0x3B1;
    case 0x3AD:
      return 0x3B5;
    case 0x3AE:
      return 0x3B7;
    case 0x3AF:
    case 0x3CA:
      return 0x3B9;
    case 0x3C2:
      return 0x3C3;
    case 0x3CC:
      return 0x3BF;
    case 0x3CD:
    case 0x3CB:
      return 0x3C5;
    case 0x3CE:
      return 0x3C9;
    case 0x450:
    case 0x451:
      return 0x435;
    default:
      return c;
  }
}

/// The next character of a UTF-8 text; a damaged byte counts as the character of that code.
std::uint32_t NextCharacter(std::string_view text, std::size_t& position) {
  const Character next = CharacterAt(text, position);
  const auto byte = static_cast<unsigned char>(text[position]);
  position += next.length;
  return next.length == 1 ? byte : next.code;
}

void AppendPlain(std::string& key, std::uint32_t lower) {
  if (Within(lower, 0x300, 0x36F)) return;  // an accent on its own belongs to the letter before it
  for (const Block& block : kBlocks) {
    if (!Within(lower, block.first, block.first + block.plain.size() - 1)) continue;
    const char plain = block.plain[lower - block.first];
    if (plain == '.') break;
    key += plain > '5' ? std::string_view(&plain, 1) : kLigatures[plain - '0'];
    return;
  }
  AppendCharacter(key, PlainGreekOrCyrillic(lower));
}

std::u32string LowerCharacters(std::string_view text) {
  std::u32string characters;
  for (std::size_t i = 0; i < text.size();) characters += static_cast<char32_t>(Lower(NextCharacter(text, i)));
  return characters;
}

/// Between the letters of a key and its accents: before any character that a longer name could go on with.
constexpr char kAccentsFollow = '\x01';

}  // namespace

bool IsAscii(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

void FoldKey(std::string_view text, std::string& key) {
  key.clear();
  for (const char c : text) key += ToLower(c);
  if (IsAscii(key)) return;
  key.clear();
  for (std::size_t i = 0; i < text.size();) AppendPlain(key, Lower(NextCharacter(text, i)));
  key += kAccentsFollow;
  for (std::size_t i = 0; i < text.size();) AppendCharacter(key, Lower(NextCharacter(text, i)));
}

std::string PlainLetters(std::string_view text) {
  std::string folded;
  folded.reserve(text.size());
  constexpr std::uint32_t kOpening = 0x2018;
  constexpr std::uint32_t kApostrophe = 0x2019;
  for (std::size_t i = 0; i < text.size();) {
    const char c = text[i];
    if (static_cast<unsigned char>(c) < 0x80) {
      folded += static_cast<unsigned char>(c) < ' ' ? ' ' : ToLower(c);
      ++i;
      continue;
    }
    const std::uint32_t character = NextCharacter(text, i);
    AppendPlain(folded, character == kOpening || character == kApostrophe ? '\'' : Lower(character));
  }
  return folded;
}

bool MatchesPattern(std::string_view text, std::string_view pattern) {
  const std::u32string characters = LowerCharacters(text);
  const std::u32string wanted = LowerCharacters(pattern);
  std::size_t at = 0;
  std::size_t next = 0;
  std::size_t afterAny = std::u32string::npos;  // where the pattern continues after its last %
  std::size_t anyEnds = 0;                      // how far that % reaches so far
  while (at < characters.size()) {
    if (next < wanted.size() && wanted[next] == U'%') {
      afterAny = ++next;
      anyEnds = at;
    } else if (next < wanted.size() && (wanted[next] == U'_' || wanted[next] == characters[at])) {
      ++next;
      ++at;
    } else if (afterAny != std::u32string::npos) {
      next = afterAny;
      at = ++anyEnds;
    } else {
      return false;
    }
  }
  return wanted.find_first_not_of(U'%', next) == std::u32string::npos;
}

}  // namespace norvane
