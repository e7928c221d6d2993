#pragma once

#include <vector>

#include <QFile>
#include <QPainter>
#include <QPdfWriter>
#include <QTemporaryDir>

#include "Measuring.h"
#include "pages/Layout.h"
#include "ui/PageFonts.h"
#include "ui/PagePdf.h"

namespace norvane::bench {

/// The content of pages as bare calls of a painter, to compare with.
class BarePages {
 public:
  explicit BarePages(const pages::Pages& document) {
    for (const pages::Font& font : document.fonts) fonts_.push_back(ui::PageFont(font.face, font.size));
    for (const pages::Page& page : document.pages) Take(page);
  }

  void WritePdf(const QString& name) const {
    QFile file(name);
    file.open(QIODevice::WriteOnly);
    QPdfWriter writer(&file);
    writer.setResolution(kResolution);
    writer.setPageLayout(ui::LetterPortrait());
    QPainter painter(&writer);
    for (std::size_t page = 0; page < pages_.size(); ++page) {
      if (page > 0) writer.newPage();
      Paint(painter, pages_[page]);
    }
  }

 private:
  static constexpr int kResolution = 1'200;

  struct Rule {
    QPen pen;
    QLineF line;
  };
  struct Run {
    std::size_t font;
    QPointF place;
    QString text;
  };
  struct Page {
    std::vector<Rule> rules;
    std::vector<Run> runs;
  };

  void Take(const pages::Page& page) {
    constexpr double kScale = kResolution / pages::kPointsPerInch;
    Page& bare = pages_.emplace_back();
    for (const auto& rule : page.lines) {
      const int grey = static_cast<int>(rule.grey * 255);
      bare.rules.push_back({QPen(QColor(grey, grey, grey), rule.width * kScale, Qt::SolidLine, Qt::FlatCap),
                            QLineF(rule.x1 * kScale, rule.y1 * kScale, rule.x2 * kScale, rule.y2 * kScale)});
    }
    for (const auto& run : page.runs) {
      const auto text = page.TextOf(run);
      bare.runs.push_back({run.font, QPointF(run.x, run.baseline) * kScale,
                           QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()))});
    }
  }

  void Paint(QPainter& painter, const Page& page) const {
    for (const Rule& rule : page.rules) {
      painter.setPen(rule.pen);
      painter.drawLine(rule.line);
    }
    painter.setPen(Qt::black);
    std::size_t font = fonts_.size();
    for (const Run& run : page.runs) {
      if (font != run.font) painter.setFont(fonts_[font = run.font]);
      painter.drawText(run.place, run.text);
    }
  }

  std::vector<QFont> fonts_;
  std::vector<Page> pages_;
};

/// Seconds of the processor.
struct PdfCost {
  double layout;
  double pdf;  ///< laid out and written
};

/// The document laid out and written as PDF, against the bare calls that put the same texts and rules into the same
/// writer. `layout` is the layout's share of the whole.
inline PdfCost CompareAsPdf(benchmark::State& state, const pages::Document& document) {
  const QTemporaryDir folder;
  const ui::QtFontMetrics metrics;
  const BarePages bare(pages::LayOut(document, metrics));
  const auto ours = [&] {
    const auto outcome = ui::WritePdf(pages::LayOut(document, metrics), "List", folder.filePath("ours.pdf"));
    if (outcome.painted != ui::Painted::All) state.SkipWithError("not written");
  };
  Compare(
      state, ours, [&] { bare.WritePdf(folder.filePath("bare.pdf")); }, 1.3);
  const PdfCost cost{Seconds([&] { benchmark::DoNotOptimize(pages::LayOut(document, metrics)); }), Seconds(ours)};
  state.counters["layout"] = cost.layout / cost.pdf;
  state.counters["bytes"] = static_cast<double>(QFile(folder.filePath("ours.pdf")).size());
  state.counters["bare_bytes"] = static_cast<double>(QFile(folder.filePath("bare.pdf")).size());
  return cost;
}

}  // namespace norvane::bench
