// Pages on paper and in the preview, with the fonts of this machine.

#include <QApplication>
#include <QFile>
#include <QPainter>
#include <QPdfWriter>
#include <QTemporaryDir>

#include "LongList.h"
#include "Measuring.h"
#include "Offscreen.h"
#include "forms/Form.h"
#include "forms/Preview.h"
#include "forms/Program.h"
#include "pages/Layout.h"
#include "ui/PageFonts.h"
#include "ui/PagePdf.h"
#include "ui/QtDesktop.h"

namespace norvane::ui {
namespace {

constexpr std::int64_t kPages = 1'000;
constexpr int kResolution = 1'200;

/// The content of the pages as bare calls of a painter, to compare with.
class BarePages {
 public:
  explicit BarePages(const pages::Pages& document) {
    for (const pages::Font& font : document.fonts) fonts_.push_back(PageFont(font.face, font.size));
    for (const pages::Page& page : document.pages) Take(page);
  }

  void WritePdf(const QString& name) const {
    QFile file(name);
    file.open(QIODevice::WriteOnly);
    QPdfWriter writer(&file);
    writer.setResolution(kResolution);
    writer.setPageLayout(LetterPortrait());
    QPainter painter(&writer);
    for (std::size_t page = 0; page < pages_.size(); ++page) {
      if (page > 0) writer.newPage();
      Paint(painter, pages_[page]);
    }
  }

 private:
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

/// Laid out and written against the bare calls that put the same texts and rules into the same writer. `layout` is the
/// layout's share of the whole, which is not to be above a tenth.
void ListAsPdf(benchmark::State& state) {
  const QTemporaryDir folder;
  const QtFontMetrics metrics;
  pages::DocumentBuilder report;
  pages::WriteList(report, kPages);
  const pages::Document& document = *report.Recorded();
  const BarePages bare(pages::LayOut(document, metrics));
  const auto ours = [&] {
    const PdfOutcome outcome = WritePdf(pages::LayOut(document, metrics), "List", folder.filePath("ours.pdf"));
    if (outcome.painted != Painted::All) state.SkipWithError("not written");
  };
  bench::Compare(
      state, ours, [&] { bare.WritePdf(folder.filePath("bare.pdf")); }, 1.3);
  const double layout = bench::Seconds([&] { benchmark::DoNotOptimize(pages::LayOut(document, metrics)); });
  state.counters["layout"] = layout / bench::Seconds(ours);
  state.counters["bytes"] = static_cast<double>(QFile(folder.filePath("ours.pdf")).size());
  state.counters["bare_bytes"] = static_cast<double>(QFile(folder.filePath("bare.pdf")).size());
}
BENCHMARK(ListAsPdf)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(5);

/// A report whose document is a long list.
class ListReport : public Form {
 public:
  static constexpr const char* kName = "ListReport";
  ListReport(Program& host, std::int64_t pages)
      : Form(host, kName, {.caption = "List", .width = 12'000, .height = 9'000}), pages_(pages) {
    SetLayout(VSregistry);
  }
  Preview VSregistry{*this, "VSregistry"};

 private:
  void Form_Load() override { pages::WriteList(VSregistry, pages_); }
  std::int64_t pages_;
};

/// The program with an empty main window, so that it goes on when the report is closed.
struct Office {
  explicit Office(std::int64_t pages) {
    program.screens.AddFactory("Main", [](Program& host) { return std::make_shared<Form>(host, "Main", FormStyle{}); });
    program.screens.AddFactory(ListReport::kName,
                               [pages](Program& host) { return std::make_shared<ListReport>(host, pages); });
    program.Start("Main");
    Settle();
  }
  Preview& Open() {
    program.screens.Show(ListReport::kName);
    Settle();
    return program.screens.Touch<ListReport>().VSregistry;
  }
  void Close() {
    program.screens.Unload(ListReport::kName);
    Settle();
  }
  static void Settle() {
    QApplication::processEvents();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  QtDesktop desktop{RegionalSettings{}};
  Program program{desktop, RegionalSettings{}, {}};
};

/// Recording the document included.
void OpenPreview(benchmark::State& state) {
  Office office(kPages);
  double taken = 0;
  for (auto _ : state) {
    const double seconds = bench::Seconds([&] { office.Open(); });
    state.SetIterationTime(seconds);
    taken += seconds;
    office.Close();
  }
  state.counters["ratio"] = taken / static_cast<double>(state.iterations()) / 2;
  state.counters["limit"] = 1;
}
BENCHMARK(OpenPreview)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(5);

void TurnAPage(benchmark::State& state) {
  Office office(kPages);
  Preview& preview = office.Open();
  int page = 1;
  bench::Measure(state, 0.05, [&] {
    page = (page + 7'919) % static_cast<int>(kPages) + 1;
    preview.SetCurrentPage(page);
    Office::Settle();
  });
}
BENCHMARK(TurnAPage)->UseManualTime()->Unit(benchmark::kMillisecond);

/// Bytes on the heap for each page, and the share of them that is left when the window has closed.
void WeightOfPreview(benchmark::State& state) {
  Office office(state.range(0));
  office.Open();
  office.Close();
  for (auto _ : state) {
    const auto before = static_cast<double>(bench::BytesInUse());
    office.Open();
    const double taken = static_cast<double>(bench::BytesInUse()) - before;
    office.Close();
    state.counters["bytes/page"] = taken / static_cast<double>(state.range(0));
    state.counters["left"] = (static_cast<double>(bench::BytesInUse()) - before) / taken;
  }
}
BENCHMARK(WeightOfPreview)->Arg(10)->Arg(100)->Arg(1'000)->Iterations(1)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace norvane::ui

int main(int argc, char** argv) {
  return norvane::bench::RunOffscreen(argc, argv);
}
