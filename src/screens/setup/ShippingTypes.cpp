#include "screens/setup/ShippingTypes.h"

#include "data/cSetup.h"
#include "store/Recordset.h"

namespace norvane {

ShippingTypes::ShippingTypes(Program& host)
    : Form(host, kName, {.caption = "Edit / Add Shipping Options", .width = 6600, .height = 5400}),
      rows_(ShippingList, globals, desktop,
            {.labels = {.setOldRowStatus = "ShippingTypes.SetOldRowStatus -",
                        .setNewRowStatus = "ShippingTypes.SetNewRowStatus -",
                        .afterRowEdit = "ShippingTypes.ShippingList_AfterRowEdit -",
                        .afterEdit = "ShippingTypes.ShippingList_AfterEdit -",
                        .saveRow = "ShippingTypes.SaveRow -",
                        .rowColChange = "ShippingTypes.RowColChange -"},
             .testColumns = {kService},
             .zeroMeansStarted = false},
            [this](std::int32_t row) { StoreRow(row); }) {
  SetLayout(
      layout::Column({layout::Stretch(ShippingList), layout::Strip({btnNew, btnDelete, layout::Space(), btnExit})}));
  SetExitButton(btnExit);
  ShippingList.GotFocus = [this] { ShippingList.SetCol(kService); };
  ShippingList.AfterEdit = [this](int row, int) { ShippingList_AfterEdit(row); };
  ShippingList.Click = [this] { ShippingList_Click(); };
  btnNew.Click = Trapping("ShippingTypes.btnNew_Click -", [this] { rows_.GoToNewRow(); });
  btnDelete.Click = [this] { btnDelete_Click(); };
  btnExit.Click = [this] { Unload(); };
}

void ShippingTypes::Form_Load() {
  Trapped("ShippingTypes.Form_Load -", [&] {
    ShippingList.Clear();
    ShippingList.SetColumns({{"^", 300}, {"Service", 2000}, {"Weight", 1400}, {"Charge", 700}});
    rows_.Fill(globals.rsShippingTypes, [&](const Recordset& type) {
      return GridRow({"", type.Text("Service"), type.Text("Option"), convert.CurrencyText(type.Field("charge"))});
    });
  });
}

bool ShippingTypes::HasKey(std::int32_t row) const {
  return !ShippingList.Cell(row, kService).empty() && !ShippingList.Cell(row, kWeight).empty();
}

void ShippingTypes::ShippingList_AfterEdit(int row) {
  rows_.AfterEdit(row, [&] { return HasKey(row); });
}

void ShippingTypes::StoreRow(std::int32_t row) {
  if (!HasKey(row)) return;
  if (ShippingList.Cell(row, kCharge).empty()) ShippingList.SetCell(row, kCharge, "0");
  const Currency charge = convert.ToCurrency(ShippingList.Cell(row, kCharge));
  globals.oSetup->OpenCn();
  globals.oSetup->SaveShippingType(ShippingList.Cell(row, kService), ShippingList.Cell(row, kWeight), charge);
  ReadList();
  globals.oSetup->CloseCn();
}

void ShippingTypes::ReadList() {
  globals.rsShippingTypes = globals.oSetup->rsShippingTypes();
}

void ShippingTypes::ShippingList_Click() {
  Trapped("ShippingTypes.ShippingList_Click -", [&] {
    if (ShippingList.Row() < 1) return;
    SelectedType = ShippingList.Cell(ShippingList.Row(), kService);
    SelectedOption = ShippingList.Cell(ShippingList.Row(), kWeight);
  });
}

void ShippingTypes::btnDelete_Click() {
  Trapped("ShippingTypes.btnDelete_Click -", [&] {
    const int row = ShippingList.Row();
    if (row < 1) return;
    SelectedType = ShippingList.Cell(row, kService);
    SelectedOption = ShippingList.Cell(row, kWeight);
    if (SelectedType.empty()) return;
    if (!AskYesNo("Delete Shipping Option ... " + SelectedType + "?", "Delete Shipping Option?")) return;
    globals.oSetup->OpenCn();
    globals.oSetup->DeleteShippingType(SelectedType, SelectedOption);
    ReadList();
    globals.oSetup->CloseCn();
    rows_.RemoveRow(ShippingList.Row());
  });
}

void ShippingTypes::Form_Unload() {
  rows_.Close();
}

}  // namespace norvane
