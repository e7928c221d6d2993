#include "pages/PageWriter.h"

#include <algorithm>

namespace norvane::pages {

void PageWriter::NewPage() {
  Page page;
  if (HasPage()) {
    // The pages of a report are much the same.
    const Page& last = pages_.pages.back();
    page.runs.reserve(last.runs.size());
    page.lines.reserve(last.lines.size());
    page.text.reserve(last.text.size());
  }
  pages_.pages.push_back(std::move(page));
}

void PageWriter::Write(double left, double top, const Font& font, std::string_view text) {
  if (text.empty()) return;
  Page& page = pages_.pages.back();
  page.runs.push_back({static_cast<float>(left), static_cast<float>(top + ruler_.Ascent(font)),
                       static_cast<std::uint32_t>(page.text.size()), static_cast<std::uint32_t>(text.size()),
                       IndexOf(font)});
  std::replace_copy_if(
      text.begin(), text.end(), std::back_inserter(page.text),
      [](char c) { return static_cast<unsigned char>(c) < ' '; }, ' ');
}

void PageWriter::Rule(double x1, double y1, double x2, double y2, double width, double grey) {
  pages_.pages.back().lines.push_back({static_cast<float>(x1), static_cast<float>(y1), static_cast<float>(x2),
                                       static_cast<float>(y2), static_cast<float>(width), static_cast<float>(grey)});
}

std::uint16_t PageWriter::IndexOf(const Font& font) {
  const auto found = std::find(pages_.fonts.begin(), pages_.fonts.end(), font);
  const auto index = static_cast<std::uint16_t>(found - pages_.fonts.begin());
  if (found == pages_.fonts.end()) pages_.fonts.push_back(font);
  return index;
}

}  // namespace norvane::pages
