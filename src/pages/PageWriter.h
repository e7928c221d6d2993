#pragma once

#include <string_view>

#include "pages/Pages.h"
#include "pages/TextRuler.h"

namespace norvane::pages {

/// Writes text and lines on the last page, in points.
class PageWriter {
 public:
  explicit PageWriter(TextRuler& ruler) : ruler_(ruler) {}

  void NewPage();
  bool HasPage() const { return !pages_.pages.empty(); }
  /// One line of text whose top edge and left edge are given. An empty one leaves no trace.
  void Write(double left, double top, const Font& font, std::string_view text);
  void Rule(double x1, double y1, double x2, double y2, double width, double grey = 0);
  void Fill(const Box& box) { pages_.pages.back().boxes.push_back(box); }
  void AddLink(const Link& link) { pages_.pages.back().links.push_back(link); }
  /// Adds to the rows that have no room on this page.
  void CountSurplusRows(int rows) { pages_.pages.back().surplusRows += rows; }
  Pages TakePages() { return std::move(pages_); }

 private:
  std::uint16_t IndexOf(const Font& font);

  TextRuler& ruler_;
  Pages pages_;
};

}  // namespace norvane::pages
