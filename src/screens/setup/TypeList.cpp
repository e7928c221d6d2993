#include "screens/setup/TypeList.h"

#include <functional>

namespace norvane {

TypeList::TypeList(Program& host, const TypeListKind& kind)
    : Form(host, kind.name, {.caption = kind.caption, .width = 4800, .height = 5200}),
      kind_(kind),
      rows_(PaymentList, globals, desktop, {.labels = kind.rowLabels, .testColumns = {kType}, .storesAtOnce = true},
            [this](std::int32_t row) { StoreRow(row); }) {
  SetLayout(
      layout::Column({layout::Stretch(PaymentList), layout::Strip({btnNew, btnDelete, layout::Space(), btnExit})}));
  SetExitButton(btnExit);
  PaymentList.GotFocus = [this] { PaymentList.SetCol(kType); };
  PaymentList.AfterEdit = [this](int row, int) { PaymentList_AfterEdit(row); };
  PaymentList.Click = [this] { PaymentList_Click(); };
  btnNew.Click = Trapping(kind_.labels.btnNew, [this] { rows_.GoToNewRow(); });
  btnDelete.Click = [this] { btnDelete_Click(); };
  btnExit.Click = [this] { btnExit_Click(); };
}

void TypeList::Form_Load() {
  Trapped(kind_.labels.formLoad, [&] {
    PaymentList.Clear();
    PaymentList.SetColumns({{"^", 300}, {kind_.heading, 1500}});
    rows_.Fill(globals.*kind_.list, [](const Recordset& type) { return GridRow({"", type.Text("Type")}); });
  });
}

void TypeList::PaymentList_AfterEdit(int row) {
  rows_.AfterEdit(row, [&] { return !PaymentList.Cell(row, kType).empty(); });
}

void TypeList::StoreRow(std::int32_t row) {
  if (PaymentList.Cell(row, kType).empty()) return;
  const Object<cSetup> setup = globals.oSetup;
  setup->OpenCn();
  std::invoke(kind_.save, *setup, PaymentList.Cell(row, kType));
  ReadList();
  setup->CloseCn();
}

// Every drop-down built later sees the change.
void TypeList::ReadList() {
  globals.*kind_.list = std::invoke(kind_.read, *globals.oSetup);
}

void TypeList::PaymentList_Click() {
  Trapped(kind_.labels.click, [&] {
    if (PaymentList.Row() >= 1) SelectedType = PaymentList.Cell(PaymentList.Row(), kType);
  });
}

void TypeList::btnDelete_Click() {
  Trapped(kind_.labels.btnDelete, [&] {
    const int row = PaymentList.Row();
    if (row < 1) return;
    SelectedType = PaymentList.Cell(row, kType);
    if (SelectedType.empty()) return;
    if (!AskYesNo("Delete payment type... " + SelectedType + "?", "Delete Payment Type")) return;
    (globals.*kind_.list).Release();
    const Object<cSetup> setup = globals.oSetup;
    setup->OpenCn();
    std::invoke(kind_.remove, *setup, SelectedType);
    ReadList();
    setup->CloseCn();
    rows_.RemoveRow(PaymentList.Row());
  });
}

void TypeList::btnExit_Click() {
  Unload();
}

void TypeList::Form_Unload() {
  rows_.Close();
}

}  // namespace norvane
