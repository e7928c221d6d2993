#include "pages/LineBreaker.h"

#include <algorithm>

#include "core/Utf8.h"

namespace norvane::pages {
namespace {

constexpr double kTolerance = 1e-4;  // of the font's size

/// Removes and returns the text before the next line feed; a carriage return counts too, and both together as one.
std::string_view TakeLine(std::string_view& text, bool& more) {
  const std::size_t end = text.find_first_of("\r\n");
  const std::string_view line = text.substr(0, end);
  more = end != std::string_view::npos;
  if (more) text.remove_prefix(end + (text.substr(end).starts_with("\r\n") ? 2 : 1));
  return line;
}

/// Wraps one line that is too wide.
class Wrapper {
 public:
  Wrapper(TextRuler& ruler, Face face, std::string_view text, double width, std::vector<BrokenLine>& lines)
      : ruler_(ruler), face_(face), text_(text), width_(width + kTolerance), lines_(lines) {}

  void Run() {
    for (std::size_t place = 0; place < text_.size();) {
      const std::size_t word = std::min(text_.find_first_not_of(' ', place), text_.size());
      const std::size_t end = std::min(text_.find(' ', word), text_.size());
      if (word < end) AddWord(place, word, end);
      place = end;
    }
    PushLine();
  }

 private:
  void AddWord(std::size_t spaces, std::size_t word, std::size_t end) {
    const double reached = used_ + ruler_.Width(face_, text_.substr(spaces, end - spaces));
    if (reached <= width_) {
      used_ = reached;
      end_ = end;
      return;
    }
    if (end_ > begin_) PushLine();
    begin_ = word;
    BreakWord(end);
  }

  // Looks no further than each line reaches: a text without spaces may be long.
  void BreakWord(std::size_t end) {
    while (true) {
      const std::string_view rest = text_.substr(begin_, end - begin_);
      const std::size_t length = FittingLength(ruler_, face_, rest, width_);
      end_ = begin_ + length;
      if (length == rest.size()) break;
      PushLine();
    }
    used_ = ruler_.Width(face_, text_.substr(begin_, end_ - begin_));
  }

  void PushLine() {
    const std::string_view line = text_.substr(begin_, end_ - begin_);
    lines_.push_back({line, ruler_.Width(face_, line)});
    begin_ = end_;
    used_ = 0;
  }

  TextRuler& ruler_;
  Face face_;
  std::string_view text_;
  double width_;
  std::vector<BrokenLine>& lines_;
  std::size_t begin_ = 0;  // of the current line
  std::size_t end_ = 0;
  double used_ = 0;
};

}  // namespace

void BreakLines(TextRuler& ruler, Face face, std::string_view text, double width, std::vector<BrokenLine>& lines) {
  for (bool more = true; more;) {
    const std::string_view line = TakeLine(text, more);
    const double whole = ruler.Width(face, line);
    if (whole <= width + kTolerance) {
      lines.push_back({line, whole});
    } else {
      Wrapper(ruler, face, line, width, lines).Run();
    }
  }
}

void BreakAtLineFeeds(TextRuler& ruler, Face face, std::string_view text, std::vector<BrokenLine>& lines) {
  for (bool more = true; more;) {
    const std::string_view line = TakeLine(text, more);
    lines.push_back({line, ruler.Width(face, line)});
  }
}

double WidestWord(TextRuler& ruler, Face face, std::string_view text) {
  constexpr std::string_view kBetweenWords = " \r\n";
  double widest = 0;
  while (!text.empty()) {
    const std::string_view word = text.substr(0, text.find_first_of(kBetweenWords));
    widest = std::max(widest, ruler.Width(face, word));
    text.remove_prefix(std::min(word.size() + 1, text.size()));
  }
  return widest;
}

std::size_t FittingLength(TextRuler& ruler, Face face, std::string_view text, double width) {
  double used = 0;
  for (std::size_t place = 0; place < text.size();) {
    const std::size_t length = ClusterLength(text, place);
    used += ruler.Width(face, text.substr(place, length));
    if (place > 0 && used > width) return place;
    place += length;
  }
  return text.size();
}

std::string Shortened(TextRuler& ruler, Face face, std::string_view text, double width) {
  const double room = width - ruler.Width(face, kEllipsis);
  return std::string(text.substr(0, FittingLength(ruler, face, text, room))).append(kEllipsis);
}

float FittingSize(double width, double room, float size, float smallest) {
  while (width * size > room + kFitTolerance && size > smallest) size = std::max(size - kSizeStep, smallest);
  return size;
}

}  // namespace norvane::pages
