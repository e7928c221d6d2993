// Pages on paper and in the preview, with the fonts of this machine.

#include <QApplication>

#include "BarePages.h"
#include "LongList.h"
#include "Measuring.h"
#include "Offscreen.h"
#include "forms/Form.h"
#include "forms/Preview.h"
#include "forms/Program.h"
#include "ui/QtDesktop.h"

namespace norvane::ui {
namespace {

constexpr std::int64_t kPages = 1'000;

/// The layout is not to take above a tenth of the whole.
void ListAsPdf(benchmark::State& state) {
  pages::DocumentBuilder report;
  pages::WriteList(report, kPages);
  bench::CompareAsPdf(state, *report.Recorded());
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
