#pragma once

#include <algorithm>
#include <benchmark/benchmark.h>
#include <ctime>
#include <limits>
#include <malloc.h>

namespace norvane::bench {

/// Of the processor, so that a busy machine doesn't count.
double Seconds(const auto& work) {
  const auto now = [] {
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
  };
  const double start = now();
  work();
  return now() - start;
}

/// Runs both in turn. The time shown is ours; `ratio` is our best time to the best of the same work done by hand, which
/// is not to be above `limit`.
void Compare(benchmark::State& state, const auto& ours, const auto& byHand, double limit) {
  ours();
  byHand();
  double ourBest = std::numeric_limits<double>::max();
  double handBest = ourBest;
  for (auto _ : state) {
    const double seconds = Seconds(ours);
    state.SetIterationTime(seconds);
    ourBest = std::min(ourBest, seconds);
    handBest = std::min(handBest, Seconds(byHand));
  }
  state.counters["ratio"] = ourBest / handBest;
  state.counters["limit"] = limit;
}

/// `ratio` is the time taken to the seconds allowed.
void Measure(benchmark::State& state, double allowed, const auto& work) {
  double taken = 0;
  for (auto _ : state) {
    const double seconds = Seconds(work);
    state.SetIterationTime(seconds);
    taken += seconds;
  }
  state.counters["ratio"] = taken / static_cast<double>(state.iterations()) / allowed;
  state.counters["limit"] = 1;
}

/// On the heap.
inline std::size_t BytesInUse() {
  const struct mallinfo2 use = mallinfo2();
  return use.uordblks + use.hblkhd;
}

}  // namespace norvane::bench
