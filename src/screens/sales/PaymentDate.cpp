#include "screens/sales/PaymentDate.h"

#include <algorithm>
#include <iterator>

#include "screens/registry/GL.h"
#include "screens/sales/Receipts.h"

namespace norvane {

namespace {

struct Caller {
  std::string_view payDateCaller;
  const char* screen;
  int dateColumn;
};

constexpr Caller kCallers[] = {{PaymentDate::kForReceipts, Receipts::kName, Receipts::kDate},
                               {PaymentDate::kForRegistry, GL::kName, GL::kDate}};

/// Nothing if no screen has opened the calendar yet.
const Caller* CallerOf(const Globals& globals) {
  const auto* caller = std::find_if(std::begin(kCallers), std::end(kCallers), [&](const Caller& candidate) {
    return candidate.payDateCaller == globals.PayDateCaller;
  });
  return caller == std::end(kCallers) ? nullptr : caller;
}

/// The one grid that each caller has.
Grid& GridOf(const Form& caller) {
  for (Control* control : caller.Controls()) {
    if (auto* grid = dynamic_cast<Grid*>(control)) return *grid;
  }
  Raise(ErrorNumber::ObjectNotSet);
}

}  // namespace

PaymentDate::PaymentDate(Program& host)
    : Form(host, kName,
           {.caption = "Select Date...", .width = 4600, .height = 4600, .resizable = false, .goesWithOwner = true}) {
  SetLayout(layout::Column({layout::Stretch(PayDate), layout::Strip({layout::Space(), Command1})}));
  SetExitButton(Command1);
  PayDate.DateClick = [this](Date date) { PayDate_DateClick(date); };
  PayDate.KeyDown = [this](int keyCode) { PayDate_KeyDown(keyCode); };
  Command1.Click = [this] { Unload(); };
}

// It opens on today, whatever the cell holds.
void PaymentDate::Form_Load() {
  Trapped("PaymentDate.Form_Load -", [&] {
    PayDate.SetValue(desktop.Today());
    if (const Caller* caller = CallerOf(globals)) {
      const Form& screen = screens.Touch(caller->screen);
      PlaceBeside(screen, GridOf(screen));
    }
  });
}

// On the right of the grid's current cell, drawn back where it would leave the calling screen.
void PaymentDate::PlaceBeside(const Form& caller, const Grid& grid) {
  const Twips left = caller.Left() + grid.Left() + grid.CellLeft() + grid.CellWidth();
  const Twips top = caller.Top() + grid.Top() + grid.CellTop();
  const Twips lastLeft = caller.Left() + caller.Width() - Width();
  const Twips lastTop = caller.Top() + caller.Height() - Height();
  SetLeft(std::max(caller.Left(), std::min(left, lastLeft)));
  SetTop(std::max(caller.Top(), std::min(top, lastTop)));
}

// The flags are set before the focus goes back to the grid, which then treats the row as edited. The heading takes no
// date.
void PaymentDate::PayDate_DateClick(Date date) {
  Trapped("PaymentDate.PayDate_DateClick -", [&] {
    const Caller* caller = CallerOf(globals);
    if (!caller) return;
    Grid& grid = GridOf(screens.Touch(caller->screen));
    if (grid.Row() > 0) {
      globals.PayDateSet = true;
      grid.SetCell(grid.Row(), caller->dateColumn, convert.ToText(date));
      globals.RowChanged = true;
    }
    Unload();
    grid.SetFocus();
  });
}

void PaymentDate::PayDate_KeyDown(int keyCode) {
  Trapped("PaymentDate.PayDate_KeyDown -", [&] {
    if (keyCode == static_cast<int>(Key::Enter)) PayDate_DateClick(PayDate.Value());
    if (keyCode == static_cast<int>(Key::Escape)) Unload();
  });
}

}  // namespace norvane
