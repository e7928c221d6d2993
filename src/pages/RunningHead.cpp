#include "pages/RunningHead.h"

#include <algorithm>

#include "core/Characters.h"
#include "core/Utf8.h"
#include "pages/LineBreaker.h"
#include "pages/TableFormat.h"

namespace norvane::pages {
namespace {

constexpr float kSmallestSize = 8.0F;

}  // namespace

RunningHead::RunningHead(TextRuler& ruler, std::string_view text, double left, double right)
    : left_(left), right_(right) {
  for (std::string& part : parts_) part = OneLine(TakeCell(text));
  Shrink(ruler);
  if (Collides(ruler)) Shorten(ruler);
  const auto widths = Widths(ruler);
  places_ = {left_, (left_ + right_ - widths[1]) / 2, right_ - widths[2]};
}

void RunningHead::WriteOn(PageWriter& writer, double top) const {
  for (std::size_t i = 0; i < parts_.size(); ++i) writer.Write(places_[i], top, font_, parts_[i]);
}

void RunningHead::Shrink(TextRuler& ruler) {
  while (font_.size > kSmallestSize && Collides(ruler)) font_.size = std::max(font_.size - kSizeStep, kSmallestSize);
}

void RunningHead::Shorten(TextRuler& ruler) {
  std::array<std::string, 3> kept;
  for (std::size_t i = 0; i < parts_.size(); ++i) {
    // What goes beyond the whole line is cut in any case.
    kept[i] = parts_[i].substr(0, FittingLength(ruler, font_.face, parts_[i], (right_ - left_) / font_.size));
  }
  while (Collides(ruler)) {
    const auto widths = Widths(ruler);
    const auto longest = static_cast<std::size_t>(std::max_element(widths.begin(), widths.end()) - widths.begin());
    if (kept[longest].empty()) return;
    DropLastCharacter(kept[longest]);
    parts_[longest] = kept[longest] + std::string(kEllipsis);
  }
}

bool RunningHead::Collides(TextRuler& ruler) const {
  const auto [left, centre, right] = Widths(ruler);
  const double space = ruler.Width(font_.face, " ") * font_.size;
  const double room = right_ - left_;
  const auto gap = [&](double width) { return width > 0 ? width + space : 0; };
  if (centre > 0) return centre > room || std::max(gap(left), gap(right)) > (room - centre) / 2;
  return right > 0 ? gap(left) + right > room : left > room;
}

std::array<double, 3> RunningHead::Widths(TextRuler& ruler) const {
  std::array<double, 3> widths{};
  std::transform(parts_.begin(), parts_.end(), widths.begin(),
                 [&](const std::string& part) { return ruler.Width(font_.face, part) * font_.size; });
  return widths;
}

}  // namespace norvane::pages
