#include "screens/registry/VendorSearch.h"

#include "data/Vendor.h"
#include "screens/sales/Receipts.h"
#include "store/Recordset.h"

namespace norvane {

VendorSearch::VendorSearch(Program& host)
    : Form(host, kName, {.caption = "Vendor Listing", .width = 4600, .height = 5400, .goesWithOwner = true}) {
  SetLayout(layout::Column({layout::Stretch(VendorList), layout::Strip({layout::Space(), btnOK, btnCancel})}));
  SetExitButton(btnCancel);
  VendorList.SetEmptyHint("No vendors yet.");
  VendorList.DblClick = [this] { btnOK_Click(); };
  btnOK.Click = [this] { btnOK_Click(); };
  btnCancel.Click = [this] { Unload(); };
}

void VendorSearch::Form_Load() {
  Trapped("VendorSearch.Form_Load -", [&] {
    VendorList.SetColumns({{"Name", 2200}, {"vendornum", 500}});
    VendorList.SetRows(1);
    const Object<Vendor> vendor = globals.oVendor;
    vendor->OpenCn();
    const Object<Recordset> vendors = vendor->GetAllVendors();
    vendor->CloseCn();
    for (; !vendors->Eof(); vendors->MoveNext()) {
      VendorList.AddItem(GridRow({vendors->Text("Company"), vendors->Text("VendorNum")}));
    }
  });
}

// The columns are those of the client in a payment's row.
void VendorSearch::btnOK_Click() {
  Trapped("VendorSearch.btnOK_Click -", [&] {
    const int row = VendorList.Row();
    if (row == 0) return;
    Grid& payments = screens.Touch<Receipts>().PaymentList;
    payments.SetCell(globals.RowSelected, Receipts::kCustNum, VendorList.Cell(row, kVendorNum));
    payments.SetCell(globals.RowSelected, Receipts::kClient, VendorList.Cell(row, kCompany));
    Unload();
    globals.VendorPicked = true;
  });
}

}  // namespace norvane
