#include "core/SettingsFile.h"

#include <optional>
#include <vector>

#include "core/Characters.h"
#include "core/WholeFile.h"

namespace norvane {
namespace {

constexpr std::size_t kLongestValue = 255;
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

std::string_view Trimmed(std::string_view text) {
  constexpr std::string_view kBlanks = " \t\r";
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

/// One line of the file as it stands, with what it means.
struct Line {
  enum class Kind { Section, Entry, Other };

  std::string_view whole;  ///< with its line end
  Kind kind = Kind::Other;
  std::string_view name;  ///< of the section, or the key
  std::string_view value;

  explicit Line(std::string_view text) : whole(text) {
    text.remove_suffix(LineEnd().size());
    Take(text, kByteOrderMark);
    text = Trimmed(text);
    const std::size_t equals = text.find('=');
    if (text.starts_with('[')) {
      kind = Kind::Section;
      name = Trimmed(text.substr(1, text.find(']') - 1));
    } else if (equals != std::string_view::npos && !text.starts_with(';')) {
      kind = Kind::Entry;
      name = Trimmed(text.substr(0, equals));
      // Kept as a place in the line even if empty, so that a new value can be put there.
      value = text.substr(equals + 1);
    }
  }

  bool Is(Kind wanted, std::string_view wantedName) const { return kind == wanted && EqualNoCase(name, wantedName); }
  bool IsBlank() const { return Trimmed(whole.substr(0, whole.size() - LineEnd().size())).empty(); }
  std::string_view LineEnd() const {
    return whole.ends_with("\r\n") ? whole.substr(whole.size() - 2) : whole.ends_with('\n') ? "\n" : "";
  }
};

std::vector<Line> Lines(std::string_view content) {
  std::vector<Line> lines;
  while (!content.empty()) {
    const std::size_t end = content.find('\n');
    lines.emplace_back(content.substr(0, end == std::string_view::npos ? end : end + 1));
    content.remove_prefix(lines.back().whole.size());
  }
  return lines;
}

/// The lines of one section, its heading left out: [first, last). Only the first section of a name counts.
struct Section {
  std::size_t first;
  std::size_t last;
};

std::optional<Section> FindSection(const std::vector<Line>& lines, std::string_view name) {
  std::size_t first = 0;
  while (first < lines.size() && !lines[first].Is(Line::Kind::Section, name)) ++first;
  if (first == lines.size()) return std::nullopt;
  std::size_t last = ++first;
  while (last < lines.size() && lines[last].kind != Line::Kind::Section) ++last;
  return Section{first, last};
}

const Line* FindEntry(const std::vector<Line>& lines, const Section& section, std::string_view key) {
  for (std::size_t i = section.first; i < section.last; ++i) {
    if (lines[i].Is(Line::Kind::Entry, key)) return &lines[i];
  }
  return nullptr;
}

/// Quotes around a value keep its blanks and are no part of it.
std::string_view Unquoted(std::string_view value) {
  const bool quoted =
      value.size() >= 2 && (value.front() == '"' || value.front() == '\'') && value.front() == value.back();
  return quoted ? value.substr(1, value.size() - 2) : value;
}

/// The content with the value set. Everything else stays, byte for byte.
std::string WithValue(const std::string& content, std::string_view section, std::string_view key,
                      std::string_view value) {
  const std::vector<Line> lines = Lines(content);
  const std::string_view firstEnd = lines.empty() ? "" : lines.front().LineEnd();
  const std::string lineEnd(firstEnd.empty() ? "\n" : firstEnd);
  const std::string entry = std::string(key) + '=' + std::string(value);
  const std::optional<Section> place = FindSection(lines, section);
  std::string changed = content;
  if (!place) {
    if (!content.empty() && !content.ends_with('\n')) changed += lineEnd;
    return changed + '[' + std::string(section) + ']' + lineEnd + entry + lineEnd;
  }
  if (const Line* line = FindEntry(lines, *place, key)) {
    return changed.replace(line->value.data() - content.data(), line->value.size(), value);
  }
  // Behind the section's last line with anything on it, so that the blank lines ahead of the next section stay there.
  std::size_t last = place->last;
  while (last > place->first && lines[last - 1].IsBlank()) --last;
  const Line& before = lines[last - 1];
  const std::size_t offset = before.whole.data() + before.whole.size() - content.data();
  return changed.insert(offset, before.LineEnd().empty() ? lineEnd + entry : entry + lineEnd);
}

bool IsOneLine(std::string_view text) {
  return text.find_first_of("\r\n") == std::string_view::npos;
}

/// What the format cannot hold would read back as something else.
bool CanBeWritten(std::string_view section, std::string_view key, std::string_view value) {
  return IsOneLine(section) && IsOneLine(key) && IsOneLine(value) && section.find(']') == std::string_view::npos &&
         !key.empty() && key.find('=') == std::string_view::npos && !key.starts_with(';') && !key.starts_with('[');
}

}  // namespace

std::string GetIniString(std::string_view section, std::string_view key, std::string_view fallback,
                         const std::filesystem::path& file) {
  const std::string content = ReadWholeFile(file).value_or("");
  const std::vector<Line> lines = Lines(content);
  const std::optional<Section> place = FindSection(lines, Trimmed(section));
  const Line* entry = place ? FindEntry(lines, *place, Trimmed(key)) : nullptr;
  return std::string(FirstBytes(entry ? Unquoted(Trimmed(entry->value)) : fallback, kLongestValue));
}

bool WriteIniString(std::string_view section, std::string_view key, std::string_view value,
                    const std::filesystem::path& file) {
  section = Trimmed(section);
  key = Trimmed(key);
  if (!CanBeWritten(section, key, value)) return false;
  std::error_code error;
  const std::optional<std::string> content = ReadWholeFile(file);
  // A file that is there but cannot be read is not replaced by one with a single value.
  if (!content && std::filesystem::exists(std::filesystem::symlink_status(file, error))) return false;
  return ReplaceWholeFile(file, WithValue(content.value_or(""), section, key, value));
}

}  // namespace norvane
