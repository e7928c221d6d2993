#include "pages/Layout.h"

#include <algorithm>
#include <vector>

#include "pages/LineBreaker.h"
#include "pages/PageFlow.h"
#include "pages/TableLayout.h"

namespace norvane::pages {
namespace {

constexpr float kSmallestSizeInBox = 6.0F;

class DocumentLayout {
 public:
  DocumentLayout(const Document& document, const FontMetrics& metrics)
      : document_(document), flow_(document, metrics) {}

  Pages Run() {
    for (; index_ < document_.elements.size(); ++index_) {
      std::visit([this](const auto& element) { Place(element); }, document_.elements[index_]);
    }
    return flow_.Finish();
  }

 private:
  void Place(const Paragraph& paragraph) {
    flow_.KeepTogether(KeptHeight(index_));
    const Font& font = paragraph.font;
    const double height = flow_.Ruler().LineHeight(font);
    for (const BrokenLine& line : LinesOf(paragraph)) {
      if (flow_.NeedsNewPage(height)) flow_.NewPage();
      const double left = flow_.Area().Place(paragraph.alignment, line.width * font.size);
      flow_.Writer().Write(left, flow_.Position(), font, line.text);
      flow_.Advance(height);
    }
  }

  void Place(const TextBox& box) {
    lines_.clear();
    BreakAtLineFeeds(flow_.Ruler(), box.font.face, box.text, lines_);
    double top = box.top;
    for (const BrokenLine& line : lines_) {
      WriteInBox(box, top, line);
      top += flow_.Ruler().LineHeight(box.font);
    }
    flow_.ContinueBelowBox(box.top + box.height);
  }

  // A line set smaller stays on the baseline that it would have.
  void WriteInBox(const TextBox& box, double top, BrokenLine line) {
    TextRuler& ruler = flow_.Ruler();
    Font font = box.font;
    font.size = FittingSize(line.width, box.width, font.size, kSmallestSizeInBox);
    std::string shortened;
    if (line.width * font.size > box.width + kFitTolerance) {
      shortened = Shortened(ruler, font.face, line.text, box.width / font.size);
      line = {shortened, ruler.Width(font.face, shortened)};
    }
    const double left = Aligned(box.alignment, box.left, box.left + box.width, line.width * font.size);
    flow_.Writer().Write(left, top + ruler.Ascent(box.font) - ruler.Ascent(font), font, line.text);
  }

  void Place(const PageBreak&) { flow_.NewPage(); }
  void Place(const FilledBox& filled) { flow_.Writer().Fill(filled.box); }
  void Place(const LinkedBox& linked) { flow_.Writer().AddLink(linked.link); }

  void Place(const Table& table) {
    PlaceTable(flow_, table, table.isForm && index_ + 1 < document_.elements.size() ? KeptHeight(index_ + 1) : 0);
    flow_.Writer().CountSurplusRows(table.surplusRows);
  }

  /// How much of an element, with what belongs to it, stays on one page.
  double KeptHeight(std::size_t index) {
    const Element& element = document_.elements[index];
    if (const auto* table = std::get_if<Table>(&element)) return KeptHeightOf(flow_, *table);
    if (const auto* paragraph = std::get_if<Paragraph>(&element)) {
      return IsTitle(*paragraph) ? HeightWithTable(index) : flow_.Ruler().LineHeight(paragraph->font);
    }
    return 0;
  }

  static bool IsTitle(const Paragraph& paragraph) { return paragraph.font.face.bold && !paragraph.text.empty(); }

  /// Of a title, the bold paragraphs after it and the beginning of their table; of one line where no table follows.
  double HeightWithTable(std::size_t title) {
    double height = 0;
    for (std::size_t i = title; i < document_.elements.size(); ++i) {
      if (const auto* table = std::get_if<Table>(&document_.elements[i])) return height + KeptHeightOf(flow_, *table);
      const auto* paragraph = std::get_if<Paragraph>(&document_.elements[i]);
      if (!paragraph || !paragraph->font.face.bold) break;
      height += static_cast<double>(LinesOf(*paragraph).size()) * flow_.Ruler().LineHeight(paragraph->font);
    }
    return flow_.Ruler().LineHeight(std::get<Paragraph>(document_.elements[title]).font);
  }

  const std::vector<BrokenLine>& LinesOf(const Paragraph& paragraph) {
    const Font& font = paragraph.font;
    lines_.clear();
    BreakLines(flow_.Ruler(), font.face, paragraph.text, flow_.Area().Width() / font.size, lines_);
    return lines_;
  }

  const Document& document_;
  PageFlow flow_;
  std::size_t index_ = 0;  ///< of the element that is placed
  std::vector<BrokenLine> lines_;
};

}  // namespace

Pages LayOut(const Document& document, const FontMetrics& metrics) {
  return DocumentLayout(document, metrics).Run();
}

}  // namespace norvane::pages
