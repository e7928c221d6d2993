#include <algorithm>
#include <array>
#include <cerrno>

#include "core/Csv.h"
#include "core/FileSystem.h"
#include "core/Utf8.h"

namespace norvane::csv {

namespace {

constexpr std::size_t kBlock = 1 << 16;

/// What the Windows encoding has at 0x80 to 0x9F, where ISO 8859-1 has control characters.
constexpr std::array<char16_t, 32> kWindows = {0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                               0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x8D,   0x017D, 0x8F,
                                               0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                               0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};

/// Reads a block more. False at the end.
bool ReadBlock(std::ifstream& file, std::string& bytes) {
  const std::size_t before = bytes.size();
  bytes.resize(before + kBlock);
  file.read(bytes.data() + before, static_cast<std::streamsize>(kBlock));
  bytes.resize(before + static_cast<std::size_t>(file.gcount()));
  return bytes.size() > before;
}

/// The bytes at the end that may be the beginning of a longer character.
std::size_t OpenTail(std::string_view bytes) {
  for (std::size_t back = 1; back <= std::min<std::size_t>(3, bytes.size()); ++back) {
    const auto byte = static_cast<unsigned char>(bytes[bytes.size() - back]);
    if (byte >= 0xC0) return back < (byte >= 0xF0 ? 4U : byte >= 0xE0 ? 3U : 2U) ? back : 0;
    if (byte < 0x80) return 0;
  }
  return 0;
}

bool IsValid(std::string_view text) {
  for (std::size_t place = 0; place < text.size();) {
    const Character next = CharacterAt(text, place);
    if (next.length == 1 && static_cast<unsigned char>(text[place]) >= 0x80) return false;
    place += next.length;
  }
  return true;
}

std::string FromWindows(std::string_view bytes) {
  std::string text;
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    AppendCharacter(text, byte >= 0x80 && byte < 0xA0 ? kWindows[byte - 0x80U] : byte);
  }
  return text;
}

/// Takes whole characters off the front of `bytes`; half a pair at the file's end is no character.
std::string FromUtf16(std::string& bytes, bool bigEndian) {
  const auto unit = [&](std::size_t at) {
    const auto first = static_cast<unsigned char>(bytes[at]);
    const auto second = static_cast<unsigned char>(bytes[at + 1]);
    return static_cast<char32_t>(bigEndian ? first << 8 | second : second << 8 | first);
  };
  std::string text;
  std::size_t at = 0;
  while (at + 1 < bytes.size()) {
    const char32_t code = unit(at);
    const bool high = code >= 0xD800 && code < 0xDC00;
    if (high && at + 3 >= bytes.size()) break;
    if (high && unit(at + 2) >= 0xDC00 && unit(at + 2) < 0xE000) {
      AppendCharacter(text, 0x10000 + ((code - 0xD800) << 10) + (unit(at + 2) - 0xDC00));
      at += 4;
      continue;
    }
    AppendCharacter(text, code >= 0xD800 && code < 0xE000 ? U'\uFFFD' : code);
    at += 2;
  }
  bytes.erase(0, at);
  return text;
}

/// Takes the apostrophe away that keeps a spreadsheet from computing.
void TakeProtection(std::string& text) {
  if (!text.empty() && text.front() == '\'' && LooksLikeFormula(text)) text.erase(0, 1);
}

}  // namespace

Reader::Reader(const std::filesystem::path& file) {
  errno = 0;
  if (!FileExists(file)) Raise(ErrorNumber::FileNotFound);
  file_.open(file, std::ios::binary);
  if (!file_) RaiseFileError(errno, ErrorNumber::FileNotFound);
  size_ = static_cast<double>(std::filesystem::file_size(file));
  FindEncoding();
  file_.clear();
  file_.seekg(static_cast<std::streamoff>(mark_));
  FindSeparator();
}

void Reader::FindEncoding() {
  std::string start(3, '\0');
  file_.read(start.data(), 3);
  start.resize(static_cast<std::size_t>(file_.gcount()));
  const auto begins = [&](std::string_view mark) { return start.substr(0, mark.size()) == mark; };
  if (begins("\xFF\xFE") || begins("\xFE\xFF")) {
    encoding_ = begins("\xFF\xFE") ? Encoding::Utf16LittleEndian : Encoding::Utf16BigEndian;
    mark_ = 2;
    return;
  }
  if (begins("\xEF\xBB\xBF")) mark_ = 3;
  file_.clear();
  file_.seekg(0);
  if (!IsUtf8()) encoding_ = Encoding::Windows1252;
}

bool Reader::IsUtf8() {
  std::string bytes;
  while (ReadBlock(file_, bytes)) {
    const std::size_t tail = OpenTail(bytes);
    if (!IsValid(std::string_view(bytes).substr(0, bytes.size() - tail))) return false;
    bytes.erase(0, bytes.size() - tail);
  }
  return bytes.empty();
}

void Reader::FindSeparator() {
  Peek();
  std::array<std::ptrdiff_t, 3> counts{};
  constexpr std::string_view kSeparators = ",;\t";
  bool quoted = false;
  for (const char c : block_) {
    if (c == '"') quoted = !quoted;
    if (quoted) continue;
    if (c == '\n' || c == '\r') break;
    if (const auto at = kSeparators.find(c); at != std::string_view::npos) ++counts[at];
  }
  separator_ = kSeparators[static_cast<std::size_t>(std::max_element(counts.begin(), counts.end()) - counts.begin())];
}

double Reader::Done() {
  return size_ <= 0 || file_.eof() ? 1.0 : std::min(1.0, static_cast<double>(file_.tellg()) / size_);
}

bool Reader::Fill() {
  place_ = 0;
  block_.clear();
  while (block_.empty()) {
    const bool more = ReadBlock(file_, raw_);
    if (!more && raw_.empty()) return false;
    switch (encoding_) {
      case Encoding::Utf8:
        block_ = std::exchange(raw_, {});
        break;
      case Encoding::Windows1252:
        block_ = FromWindows(std::exchange(raw_, {}));
        break;
      case Encoding::Utf16LittleEndian:
      case Encoding::Utf16BigEndian:
        block_ = FromUtf16(raw_, encoding_ == Encoding::Utf16BigEndian);
        if (!more) raw_.clear();
        break;
    }
    if (!more && block_.empty()) return false;
  }
  return true;
}

int Reader::Peek() {
  if (place_ >= block_.size() && !Fill()) return kEnd;
  return static_cast<unsigned char>(block_[place_]);
}

int Reader::Get() {
  const int c = Peek();
  if (c != kEnd) ++place_;
  return c;
}

bool Reader::Next(std::vector<Cell>& row) {
  while (problem_.empty() && Peek() != kEnd) {
    ++row_;
    if (!ReadRow(row)) return false;
    if (row.size() > 1 || !row.front().isEmpty) return true;
  }
  return false;
}

/// The cells of a row and its end. The vector's texts are used again.
bool Reader::ReadRow(std::vector<Cell>& row) {
  std::size_t cells = 0;
  for (;;) {
    if (row.size() <= cells) row.emplace_back();
    if (!ReadCell(row[cells++])) return false;
    const int c = Get();
    if (c == separator_) continue;
    if (c == '\r' && Peek() == '\n') Get();
    row.resize(cells);
    return true;
  }
}

/// Up to the separator or the end of the row.
bool Reader::ReadCell(Cell& cell) {
  cell.text.clear();
  cell.isEmpty = true;
  if (Peek() == '"' && !ReadQuoted(cell)) return false;
  for (int c = Peek(); c != kEnd && c != separator_ && c != '\r' && c != '\n'; c = Peek()) {
    if (c == 0) {
      problem_ = "Row " + std::to_string(row_) + " holds what is no text.";
      return false;
    }
    cell.text += static_cast<char>(Get());
    cell.isEmpty = false;
  }
  TakeProtection(cell.text);
  return true;
}

bool Reader::ReadQuoted(Cell& cell) {
  Get();
  cell.isEmpty = false;
  for (;;) {
    const int c = Get();
    if (c == kEnd) {
      problem_ = "A quotation mark in row " + std::to_string(row_) + " is never closed.";
      return false;
    }
    if (c != '"') {
      cell.text += static_cast<char>(c);
    } else if (Peek() == '"') {
      cell.text += static_cast<char>(Get());
    } else {
      return true;
    }
  }
}

}  // namespace norvane::csv
