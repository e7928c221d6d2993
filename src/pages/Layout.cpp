#include "pages/Layout.h"

#include <algorithm>
#include <vector>

#include "pages/Flow.h"
#include "pages/LineBreaker.h"
#include "pages/TableLayout.h"

namespace norvane::pages {
namespace {

void Place(Flow& flow, const Paragraph& paragraph) {
  const Font& font = paragraph.font;
  std::vector<BrokenLine> lines;
  BreakLines(flow.Ruler(), font.face, paragraph.text, flow.Area().Width() / font.size, lines);
  const double height = flow.Ruler().LineHeight(font);
  for (const BrokenLine& line : lines) {
    if (flow.NeedsNewPage(height)) flow.NewPage();
    const double left = flow.Area().Place(paragraph.alignment, line.width * font.size);
    flow.Writer().Write(left, flow.Position(), font, line.text);
    flow.Advance(height);
  }
}

void Place(Flow& flow, const TextBox& box) {
  const Font& font = box.font;
  std::vector<BrokenLine> lines;
  BreakAtLineFeeds(flow.Ruler(), font.face, box.text, lines);
  double top = box.top;
  for (const BrokenLine& line : lines) {
    const double left = Aligned(box.alignment, box.left, box.left + box.width, line.width * font.size);
    flow.Writer().Write(left, top, font, line.text);
    top += flow.Ruler().LineHeight(font);
  }
  flow.ContinueBelowBox(box.top + box.height);
}

void Place(Flow& flow, const PageBreak&) {
  flow.NewPage();
}

void Place(Flow& flow, const Table& table) {
  PlaceTable(flow, table);
}

}  // namespace

Pages LayOut(const Document& document, const FontMetrics& metrics) {
  Flow flow(document, metrics);
  for (const Element& element : document.elements) {
    std::visit([&](const auto& one) { Place(flow, one); }, element);
  }
  return flow.Finish();
}

}  // namespace norvane::pages
