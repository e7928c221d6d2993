#include "core/IniText.h"

#include <optional>
#include <vector>

#include "core/Characters.h"

namespace norvane {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

/// One line of the file and what it means.
struct Line {
  enum class Kind { Section, Entry, Other };

  std::string_view whole;  ///< with its line end
  Kind kind = Kind::Other;
  std::string_view name;   ///< of the section, or the key
  std::string_view value;  ///< all that follows the equals sign, whitespace included

  Line(std::string_view text, bool first) : whole(text) {
    text.remove_suffix(LineEnd().size());
    if (first) Take(text, kByteOrderMark);
    const std::string_view content = Trimmed(text);
    const std::size_t equals = text.find('=');
    if (content.starts_with('[')) {
      kind = Kind::Section;
      name = Trimmed(content.substr(1, content.find(']') - 1));
    } else if (equals != std::string_view::npos && !content.starts_with(';')) {
      kind = Kind::Entry;
      name = Trimmed(text.substr(0, equals));
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
    lines.emplace_back(content.substr(0, end == std::string_view::npos ? end : end + 1), lines.empty());
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

/// Quotes around a value keep its whitespace and are no part of it.
std::string_view Unquoted(std::string_view value) {
  const bool quoted =
      value.size() >= 2 && (value.front() == '"' || value.front() == '\'') && value.front() == value.back();
  return quoted ? value.substr(1, value.size() - 2) : value;
}

bool IsOneLine(std::string_view text) {
  return text.find_first_of("\r\n") == std::string_view::npos;
}

/// What the format cannot hold would read back as something else.
bool CanBeWritten(std::string_view section, std::string_view key, std::string_view value) {
  return IsOneLine(section) && IsOneLine(key) && IsOneLine(value) && section.find(']') == std::string_view::npos &&
         !key.empty() && key.find('=') == std::string_view::npos && !key.starts_with(';') && !key.starts_with('[');
}

/// The line end that the file uses.
std::string LineEndOf(const std::vector<Line>& lines) {
  const std::string_view end = lines.empty() ? std::string_view() : lines.front().LineEnd();
  return std::string(end.empty() ? "\n" : end);
}

/// The end of the section's last line with anything on it; the empty lines before the next section stay there.
std::size_t EndOfEntries(std::string_view content, const std::vector<Line>& lines, const Section& section) {
  std::size_t last = section.last;
  while (last > section.first && lines[last - 1].IsBlank()) --last;
  const std::string_view line = lines[last - 1].whole;
  return line.data() + line.size() - content.data();
}

}  // namespace

std::optional<std::string_view> IniValue(std::string_view content, std::string_view section, std::string_view key) {
  const std::vector<Line> lines = Lines(content);
  const std::optional<Section> place = FindSection(lines, Trimmed(section));
  const Line* entry = place ? FindEntry(lines, *place, Trimmed(key)) : nullptr;
  if (!entry) return std::nullopt;
  return Unquoted(Trimmed(entry->value));
}

std::optional<std::string> WithIniValue(std::string_view content, std::string_view section, std::string_view key,
                                        std::string_view value) {
  section = Trimmed(section);
  key = Trimmed(key);
  if (!CanBeWritten(section, key, value)) return std::nullopt;
  const std::vector<Line> lines = Lines(content);
  const std::optional<Section> place = FindSection(lines, section);
  std::string changed(content);
  if (const Line* line = place ? FindEntry(lines, *place, key) : nullptr) {
    return changed.replace(line->value.data() - content.data(), line->value.size(), value);
  }
  const std::string lineEnd = LineEndOf(lines);
  std::string added = std::string(key) + '=' + std::string(value) + lineEnd;
  if (!place) added = '[' + std::string(section) + ']' + lineEnd + added;
  const std::size_t end = place ? EndOfEntries(content, lines, *place) : content.size();
  // The last line of the file may lack its end.
  if (end > 0 && content[end - 1] != '\n') added = lineEnd + added;
  return changed.insert(end, added);
}

}  // namespace norvane
