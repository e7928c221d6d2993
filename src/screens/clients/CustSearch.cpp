#include "screens/clients/CustSearch.h"

#include "screens/sales/Receipts.h"
#include "store/Recordset.h"

namespace norvane {

CustSearch::CustSearch(Program& host)
    : Form(host, kName, {.caption = "Select Client", .width = 4200, .height = 5400, .goesWithOwner = true}) {
  SetLayout(layout::Column({layout::Stretch(CustList), layout::Strip({layout::Space(), btnOK, btnCancel})}));
  SetExitButton(btnCancel);
  CustList.SetEmptyHint("No clients yet.");
  CustList.DblClick = [this] { btnOK_Click(); };
  CustList.KeyDown = [this](int keyCode) {
    if (keyCode == static_cast<int>(Key::Enter)) btnOK_Click();
  };
  btnOK.Click = [this] { btnOK_Click(); };
  btnCancel.Click = [this] { Unload(); };
}

void CustSearch::Form_Load() {
  Trapped("CustSearch.Form_Load -", [&] {
    row_ = globals.RowSelected;
    CustList.Clear();
    CustList.SetColumns({{"Name", 2000}, {"custnum", 0}});
    CustList.SetTopRow(1);
    const Object<Recordset> clients = globals.rsClientPick;
    for (clients->MoveFirst(); !clients->Eof(); clients->MoveNext()) {
      CustList.AddItem(GridRow({clients->Text("lname") + ", " + clients->Text("fname"), clients->Text("CustNum")}));
    }
  });
}

// Reports under the other button's label.
void CustSearch::btnOK_Click() {
  Trapped("CustSearch.btnCancel_Click -", [&] {
    const int row = CustList.Row();
    if (row == 0) return;
    SelectClient(program, {convert.ToLong(CustList.Cell(row, kCustNum)), CustList.Cell(row, kClient)});
    if (auto* payments = screens.Find<Receipts>()) payments->TakeClient(row_, SelectedClient(globals));
    Unload();
  });
}

}  // namespace norvane
