// The layout of documents, without painting.

#include <benchmark/benchmark.h>

#include "LongList.h"
#include "SampleInvoice.h"
#include "pages/Layout.h"
#include "support/PinnedFontMetrics.h"

namespace norvane::pages {
namespace {

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
  DocumentBuilder report;
  WriteList(report, state.range(0));
  const Document& document = *report.Recorded();
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
