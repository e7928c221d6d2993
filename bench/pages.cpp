// The layout of documents, without painting.

#include <benchmark/benchmark.h>
#include <string>

#include "reports/Layout.h"
#include "support/PinnedFontMetrics.h"
#include "support/SampleInvoice.h"

namespace norvane::pages {
namespace {

constexpr int kRowsPerPage = 40;

/// A list of six columns that fills so many pages.
Document ListOf(std::int64_t pages) {
  constexpr auto kFormat = ">0.5in|2.75in|>1in|^0.75in|^0.75in|1.75in;";
  constexpr auto kHeading = "Item#|Description|Charge|Par|In Stock|Warranty;";
  DocumentBuilder report;
  report.SetMargins("0.5in", "0.5in", "0.5in", "0.5in");
  report.StartDocument();
  report.SetHeader("Inventory|Norvane & Daughters|11/22/2026");
  report.StartTable();
  report.SetTableBorder(TableBorder::List);
  report.AddTable(kFormat, kHeading, "");
  report.SetTableRowHeight(0, "0.25in");
  for (int row = 1; row < pages * (kRowsPerPage - 1) + 1; ++row) {
    const std::string number = std::to_string(row);
    report.AddTable(kFormat, kHeading, number + "|Oak table, model " + number + "|$1,234.50|5|12|Two years;");
    report.SetTableRowHeight(row, "0.25in");
  }
  report.EndTable();
  report.EndDocument();
  return *report.Recorded();
}

template <class T>
std::size_t Bytes(const std::vector<T>& items) {
  return items.capacity() * sizeof(T);
}

std::size_t Bytes(const Pages& pages) {
  std::size_t bytes = Bytes(pages.pages);
  for (const Page& page : pages.pages) bytes += Bytes(page.runs) + Bytes(page.lines) + page.text.capacity();
  return bytes;
}

void OneInvoice(benchmark::State& state) {
  const PinnedFontMetrics metrics;
  for (auto _ : state) {
    DocumentBuilder report;
    WriteInvoice(report, {.lines = 20});
    benchmark::DoNotOptimize(LayOut(*report.Recorded(), metrics));
  }
}
BENCHMARK(OneInvoice)->Unit(benchmark::kMillisecond);

// Time and memory have to grow with the pages, not faster.
void List(benchmark::State& state) {
  const PinnedFontMetrics metrics;
  const Document document = ListOf(state.range(0));
  Pages pages;
  for (auto _ : state) pages = LayOut(document, metrics);
  const auto count = static_cast<double>(pages.pages.size());
  state.counters["pages"] = count;
  state.counters["bytes/page"] = static_cast<double>(Bytes(pages)) / count;
  state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations()) * static_cast<std::int64_t>(count));
}
BENCHMARK(List)->RangeMultiplier(10)->Range(1, 1000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace norvane::pages

BENCHMARK_MAIN();
