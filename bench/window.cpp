// The time from the start of the program to a usable main window, and to refresh the client list, with a hundred
// thousand clients.

#include <benchmark/benchmark.h>

#include "LargeBusiness.h"
#include "Offscreen.h"
#include "app/Composition.h"
#include "core/RegionalSettings.h"
#include "forms/Form.h"
#include "ui/QtDesktop.h"

namespace norvane {
namespace {

const bench::LargeBusiness& Business() {
  static const bench::LargeBusiness business({.clients = 100'000, .invoices = 10, .lines = 30});
  return business;
}

void MainWindowUsable(benchmark::State& state) {
  Business();
  for (auto _ : state) {
    ui::QtDesktop desktop{RegionalSettings{}};
    Program program(desktop, RegionalSettings{}, Business().Folder());
    Compose(program);
    program.Start("Customer");
    QApplication::processEvents();
    state.PauseTiming();
    program.screens.Unload("Customer");
    state.ResumeTiming();
  }
}
BENCHMARK(MainWindowUsable)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()->UseRealTime();

void ClientListRefreshed(benchmark::State& state) {
  ui::QtDesktop desktop{RegionalSettings{}};
  Program program(desktop, RegionalSettings{}, Business().Folder());
  Compose(program);
  program.Start("Customer");
  Form& customer = program.screens.Touch("Customer");
  auto* refresh = static_cast<Button*>(*std::find_if(customer.Controls().begin(), customer.Controls().end(),
                                                     [](Control* control) { return control->Name() == "btnRefresh"; }));
  for (auto _ : state) {
    refresh->Press();
    QApplication::processEvents();
  }
}
BENCHMARK(ClientListRefreshed)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()->UseRealTime();

}  // namespace
}  // namespace norvane

int main(int argc, char** argv) {
  return norvane::bench::RunOffscreen(argc, argv);
}
