#pragma once

#include <benchmark/benchmark.h>

#include <QApplication>

namespace norvane::bench {

/// The `main` of a bench with windows: they are drawn nowhere, so that a window system's speed stays out of it.
inline int RunOffscreen(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}

}  // namespace norvane::bench
