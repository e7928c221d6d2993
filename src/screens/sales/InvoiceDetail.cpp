#include "screens/sales/InvoiceDetail.h"

#include <utility>

#include "core/Val.h"
#include "data/Client.h"
#include "data/Invoice.h"
#include "screens/sales/CustInvoices.h"
#include "screens/sales/GetInvoices.h"
#include "screens/sales/Receipts.h"
#include "store/Recordset.h"

namespace norvane {

InvoiceDetail::InvoiceDetail(Program& host)
    : Form(host, kName, {.caption = "Invoice Details", .width = 15300, .height = 8700}),
      rows_(ItemList, globals, desktop,
            {.labels = {.setOldRowStatus = "InvoiceDetail.SetOldRowStatus -",
                        .setNewRowStatus = "InvoiceDetail.SetNewRowStatus -",
                        .afterRowEdit = "InvoiceDetail.ItemList_AfterRowEdit -",
                        .afterEdit = "InvoiceDetail.ItemList_AfterEdit -",
                        .saveRow = "InvoiceDetail.SaveRow -"},
             .testColumns = {kItemNum},
             .scrollsBack = true},
            [this](std::int32_t row) { StoreRow(row); }) {
  using namespace layout;
  txtTax.SetToolTip("Sales Tax");
  SetLayout(Column(
      {Strip({btnSave, btnNew, btnPrint, btnPayments, Space(), btnExit}), Head(),
       Stretch(Group("Invoice Items", Column({Stretch(ItemList), Strip({btnNewItem, btnRemove, Space(),
                                                                        Field("Total Charges:", lblTotal)})})))}));
  SetExitButton(btnExit);
  WireButtons();
  WireChanges();
  WireLines();
}

layout::Node InvoiceDetail::Head() {
  using namespace layout;
  return Column(
      {Fields({Field("Invoice #:", lblInvoiceNum), Field("Customer:", lblCustomer), Field("Date:", txtDate),
               Field("Description:", txtDescription), Field("Sales Rep:", txtSalesRep), Field("Terms:", txtTerms)},
              2),
       Row({Stretch(
                Group("Shipping", Fields({Field("Type:", cmbShipType), Field("Date:", txtShipDate),
                                          Field("Shipping Charge:", txtShipCharge), Field("Tracking#:", txtTrackNum)},
                                         2))),
            Group("Charges", Fields({Field("Discount%:", txtDiscount), Field("Interest Charge:", txtInterest),
                                     Field("", Row({btnTax, txtTax}))}))})});
}

void InvoiceDetail::WireButtons() {
  btnSave.Click = [this] { btnSave_Click(); };
  btnNew.Click = [this] { btnNew_Click(); };
  WireTo(btnPrint, screen::kPrtInvoice, [this] { btnPrint_Click(); });
  btnPayments.Click = [this] { btnPayments_Click(); };
  btnExit.Click = [this] { btnExit_Click(); };
  btnTax.Click = [this] { btnTax_Click(); };
}

// A change counts only as a change: the total waits for the next line that is left.
void InvoiceDetail::WireChanges() {
  const auto changed = [this] { globals.InvoiceDirty = true; };
  for (TextBox* box : {&txtDate, &txtDescription, &txtDiscount, &txtInterest, &txtSalesRep, &txtShipCharge,
                       &txtShipDate, &txtTax, &txtTerms, &txtTrackNum}) {
    box->Change = changed;
  }
  cmbShipType.Change = changed;
  txtShipCharge.LostFocus = [this] { txtShipCharge_LostFocus(); };
}

// Loading.

void InvoiceDetail::Form_Load() {
  if (!IsVisible()) txtDescription.SetFocus();
  Trapped("InvoiceDetail.Form_Load -", [&] {
    SkipTotal = true;
    globals.BeforeQty = rows_.OldRow = rows_.NewRow = 0;
    rows_.StartOver();
    SetUpGrid();
    FillShippingTypes();
    if (globals.CurInvoiceNum != 0) {
      OpenInvoice();
    } else {
      BeginInvoice();
    }
  });
}

void InvoiceDetail::FillShippingTypes() {
  cmbShipType.Clear();
  const Object<Recordset> types = globals.rsShippingTypes;
  for (types->MoveFirst(); !types->Eof(); types->MoveNext()) {
    cmbShipType.AddItem(types->Text("Service") + " " + types->Text("Option"));
  }
}

void InvoiceDetail::OpenInvoice() {
  const Object<Invoice> invoice = globals.oInvoice;
  invoice->OpenCn();
  invoice->GetInvoice(globals.CurInvoiceNum);
  if (invoice->InvoiceNum == globals.CurInvoiceNum) CustShown = invoice->CustNum;
  lblInvoiceNum.SetCaption(convert.ToText(globals.CurInvoiceNum));
  txtDescription.SetText(globals.CurInvoiceDesc);
  lblCustomer.SetCaption(globals.CurClientName);
  txtDate.SetText(convert.ToText(globals.CurInvoiceDate));
  txtSalesRep.SetText(invoice->SalesRep);
  txtDiscount.SetText(convert.ToText(invoice->Discount));
  ShowShippingAndCharges();
  rsItems = invoice->GetInvoiceItems(globals.CurInvoiceNum);
  lblTotal.SetCaption(convert.CurrencyText(invoice->InvoiceTotal(globals.CurInvoiceNum)));
  invoice->CloseCn();
  ListItems();
  // Filling the fields has set it.
  globals.InvoiceDirty = false;
}

// What oInvoice holds of the last invoice carries over, so that a run of similar invoices needs no retyping.
void InvoiceDetail::BeginInvoice() {
  NewInvoice = true;
  const Object<Invoice> invoice = globals.oInvoice;
  invoice->OpenCn();
  invoice->GetnewInvoiceNum();
  lblInvoiceNum.SetCaption(convert.ToText(std::int32_t{invoice->InvoiceNum}));
  txtDescription.SetText("");
  txtDate.SetText(convert.ToText(desktop.Today()));
  txtSalesRep.SetText(invoice->SalesRep);
  txtDiscount.SetText(convert.ToText(globals.ClientDiscount));
  ShowShippingAndCharges();
  invoice->CloseCn();
  globals.oClient->OpenCn();
  lblCustomer.SetCaption(globals.oClient->ClientName(CustShown));
  globals.oClient->CloseCn();
  globals.InvoiceDirty = true;
}

void InvoiceDetail::ShowShippingAndCharges() {
  const Object<Invoice> invoice = globals.oInvoice;
  txtShipDate.SetText(convert.ToText(invoice->Shippingdate));
  txtShipCharge.SetText(convert.CurrencyText(invoice->ShippingCharge));
  cmbShipType.SetText(invoice->ShippingType);
  txtTrackNum.SetText(invoice->TrackingNum);
  txtTerms.SetText(invoice->Terms);
  txtTax.SetText(convert.CurrencyText(invoice->Tax));
  txtInterest.SetText(convert.CurrencyText(invoice->Interest));
}

std::int32_t InvoiceDetail::NumberShown() const {
  return ValLong(lblInvoiceNum.Caption());
}

// Saving.

void InvoiceDetail::btnSave_Click() {
  Trapped("InvoiceDetail.btnSave_Click -", [&] {
    globals.oInvoice->OpenCn();
    TakeFromControls();
    globals.oInvoice->SaveInvoiceAccess(NumberShown());
    lblTotal.SetCaption(convert.CurrencyText(globals.oInvoice->InvoiceTotal(NumberShown())));
    globals.oInvoice->CloseCn();
    ShowBalanceDue(program);
    globals.InvoiceDirty = false;
  });
}

// A date that is none leaves the earlier one. Money counts by its leading number: text that begins with the currency's
// symbol counts as 0.
void InvoiceDetail::TakeFromControls() {
  const Object<Invoice> invoice = globals.oInvoice;
  const auto money = [](const TextBox& box) { return Currency::FromDouble(Val(box.Text())); };
  invoice->InvoiceNum = NumberShown();
  invoice->CustNum = CustShown;
  if (convert.IsDate(txtDate.Text())) invoice->InvoiceDate = convert.ToDate(txtDate.Text());
  invoice->description = txtDescription.Text();
  invoice->SalesRep = txtSalesRep.Text();
  invoice->Discount = Val(txtDiscount.Text());
  if (convert.IsDate(txtShipDate.Text())) invoice->Shippingdate = convert.ToDate(txtShipDate.Text());
  invoice->ShippingCharge = money(txtShipCharge);
  invoice->ShippingType = cmbShipType.Text();
  invoice->TrackingNum = txtTrackNum.Text();
  invoice->Terms = txtTerms.Text();
  invoice->Interest = money(txtInterest);
  invoice->Tax = money(txtTax);
}

// Totals.

double InvoiceDetail::DiscountRate() const {
  return convert.ToDouble(txtDiscount.Text()) / 100;
}

// The invoice's own total by what stands on the screen: two decimals a line, and no charges without lines.
void InvoiceDetail::GetInvoiceTotal() {
  Trapped("InvoiceDetail.GetInvoiceTotal -", [&] {
    double total = 0;
    for (int row = 1; row < ItemList.Rows(); ++row) {
      const std::string line = ItemList.Cell(row, kTotal);
      if (!line.empty()) total += convert.ToDouble(line);
    }
    if (ItemList.Rows() > 1) {
      total -= DiscountRate() * total;
      for (const TextBox* charge : {&txtShipCharge, &txtInterest, &txtTax}) total += convert.ToDouble(charge->Text());
    }
    lblTotal.SetCaption(convert.CurrencyText(total));
  });
}

void InvoiceDetail::btnTax_Click() {
  GetTax();
}

// On the lines less the discount, never on shipping or interest.
void InvoiceDetail::GetTax() {
  Trapped("InvoiceDetail.GetTax -", [&] {
    Currency subtotal;
    for (int row = 1; row < ItemList.Rows(); ++row) {
      const std::string line = ItemList.Cell(row, kTotal);
      if (!line.empty()) subtotal += convert.ToCurrency(line);
    }
    if (ItemList.Rows() >= 2) subtotal -= Currency::FromDouble(subtotal.ToDouble() * DiscountRate());
    txtTax.SetText(convert.CurrencyText(subtotal.ToDouble() * (globals.StateTaxRate / 100)));
    GetInvoiceTotal();
  });
}

void InvoiceDetail::txtShipCharge_LostFocus() {
  if (Val(txtShipCharge.Text()) > 0) txtShipCharge.SetText(convert.CurrencyText(txtShipCharge.Text()));
}

// Leaving.

/// Asks about changes of the head. False if the user would rather stay.
bool InvoiceDetail::OfferToSave() {
  if (!globals.InvoiceDirty) return true;
  const Answer answer = AskYesNoCancel("Save changes to invoice?", "Save Invoice?");
  if (answer == Answer::Cancel) return false;
  if (answer == Answer::Yes) btnSave_Click();
  globals.InvoiceDirty = false;
  return true;
}

void InvoiceDetail::btnPrint_Click() {
  Trapped("InvoiceDetail.btnPrint_Click -", [&] {
    if (!OfferToSave()) return;
    globals.CurInvoiceNum = NumberShown();
    // The report is made out to the client selected, who may be another than this invoice's.
    const std::int32_t selected = std::exchange(globals.CurCustNum, CustShown);
    screens.Reopen(screen::kPrtInvoice);
    globals.CurCustNum = selected;
    if (Form* report = screens.Find(screen::kPrtInvoice)) report->Refresh();
  });
}

// The open invoice is neither saved nor asked about.
void InvoiceDetail::btnNew_Click() {
  Trapped("InvoiceDetail.btnNew_Click -", [&] {
    globals.CurInvoiceNum = 0;
    globals.CurInvoiceDate = desktop.Today();
    globals.CurClientName.clear();
    globals.CurInvoiceDesc.clear();
    Form_Load();
  });
}

void InvoiceDetail::btnPayments_Click() {
  if (screens.Close(Receipts::kName)) screens.Show(Receipts::kName);
}

void InvoiceDetail::btnExit_Click() {
  Trapped("InvoiceDetail.btnExit_Click -", [&] {
    if (!OfferToSave()) return;
    if (globals.ItemsChanged) ReloadSales();
    Unload();
  });
}

void InvoiceDetail::ReloadSales() {
  screens.Touch<CustInvoices>().Hide();
  desktop.DoEvents();
  GetInvoices(program, Date());
  screens.Show(CustInvoices::kName);
  globals.ItemsChanged = false;
}

void InvoiceDetail::Form_Unload() {
  rows_.Close();
}

}  // namespace norvane
