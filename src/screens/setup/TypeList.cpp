#include "screens/setup/TypeList.h"

#include <functional>

namespace norvane {

TypeList::TypeList(Program& host, const TypeListKind& kind)
    : Form(host, kind.name, {.caption = kind.caption, .width = 4800, .height = 5200}),
      kind_(kind),
      rows_(PaymentList, globals, desktop, {.labels = kind.rowLabels, .testColumns = {1}}, [this] { SaveRow(); }) {
  SetLayout(
      layout::Column({layout::Stretch(PaymentList), layout::Strip({btnNew, btnDelete, layout::Space(), btnExit})}));
  SetExitButton(btnExit);
  PaymentList.GotFocus = [this] { PaymentList.SetCol(1); };
  PaymentList.AfterEdit = [this](int row, int) { PaymentList_AfterEdit(row); };
  PaymentList.Click = [this] { PaymentList_Click(); };
  btnNew.Click = [this] { btnNew_Click(); };
  btnDelete.Click = [this] { btnDelete_Click(); };
  btnExit.Click = [this] { btnExit_Click(); };
}

void TypeList::Form_Load() {
  Trapped(kind_.labels.formLoad, [&] {
    PaymentList.Clear();
    PaymentList.SetCols(2);
    PaymentList.SetFormatString(kind_.formatString);
    PaymentList.SetColWidth(0, 300);
    PaymentList.SetColWidth(1, 1500);
    PaymentList.SetTopRow(1);
    if (List().RecordCount() > 0) List().MoveFirst();
    for (; !List().Eof(); List().MoveNext()) PaymentList.AddItem("\t" + List().Text("Type"));
    PaymentList.SetRows(List().RecordCount() + 1);
    if (PaymentList.Rows() == 1) {
      PaymentList.SetRows(2);
      rows_.SetMarker(1, "*");
    }
  });
}

void TypeList::PaymentList_AfterEdit(int row) {
  Trapped(kind_.labels.afterEdit, [&] {
    if (!PaymentList.Cell(row, 1).empty()) {
      rows_.TakeCurrentRow();
      SaveRow();
    }
    rows_.SetOldRowStatus();
  });
}

void TypeList::SaveRow() {
  Trapped(kind_.labels.saveRow, [&] {
    const std::int32_t row = rows_.RowLeft();
    if (row > 0 && !PaymentList.Cell(row, 1).empty()) {
      cSetup& setup = *globals.oSetup;
      setup.OpenCn();
      std::invoke(kind_.save, setup, PaymentList.Cell(row, 1));
      ReadList();
      setup.CloseCn();
      rows_.SetMarker(row, "");
    }
    globals.RowChanged = false;
    rows_.SetOldRowStatus();
  });
}

// Every drop-down built later sees the change.
void TypeList::ReadList() {
  globals.*kind_.list = std::invoke(kind_.read, *globals.oSetup);
}

void TypeList::PaymentList_Click() {
  Trapped(kind_.labels.click, [&] {
    if (PaymentList.Row() >= 1) SelectedType = PaymentList.Cell(PaymentList.Row(), 1);
  });
}

void TypeList::btnNew_Click() {
  Trapped(kind_.labels.btnNew, [&] { rows_.GoToNewRow(); });
}

void TypeList::btnDelete_Click() {
  Trapped(kind_.labels.btnDelete, [&] {
    const int row = PaymentList.Row();
    if (row < 1) return;
    SelectedType = PaymentList.Cell(row, 1);
    if (SelectedType.empty()) return;
    if (!AskYesNo("Delete payment type... " + SelectedType + "?", "Delete Payment Type")) return;
    (globals.*kind_.list).Release();
    cSetup& setup = *globals.oSetup;
    setup.OpenCn();
    std::invoke(kind_.remove, setup, SelectedType);
    ReadList();
    setup.CloseCn();
    rows_.RemoveRow(PaymentList.Row());
  });
}

void TypeList::btnExit_Click() {
  rows_.CommitPending();
  Unload();
}

}  // namespace norvane
