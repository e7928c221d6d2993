#include "screens/sales/InvoiceDetail.h"

#include "core/Val.h"
#include "data/Client.h"
#include "data/Invoice.h"
#include "screens/Suggestions.h"
#include "screens/clients/ClientCommands.h"
#include "screens/sales/CustInvoices.h"
#include "screens/sales/GetInvoices.h"
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
  ItemList.SetEmptyHint("Press + to add items from stock.");
  lblSaved.SetForeColor(Colour::Grey);
  lblLessStored.SetForeColor(Colour::Red);
  SetLayout(
      Column({Strip({btnSave, btnNew, btnPrint, btnPayments, btnCopy, Space(), btnExit}), Head(),
              Stretch(Group("Invoice Items",
                            Column({Stretch(ItemList), Strip({btnNewItem, btnRemove, Space(), lblSaved, lblLessStored,
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
  btnCopy.Click = [this] { CopyToNew(); };
  btnExit.Click = [this] { btnExit_Click(); };
  btnTax.Click = [this] { btnTax_Click(); };
}

// A change counts only as a change: the total waits for the next line that is left.
void InvoiceDetail::WireChanges() {
  const auto changed = [this] {
    globals.InvoiceDirty = true;
    ShowSaved(false);
  };
  for (TextBox* box : {&txtDate, &txtDescription, &txtDiscount, &txtInterest, &txtSalesRep, &txtShipCharge,
                       &txtShipDate, &txtTax, &txtTerms, &txtTrackNum}) {
    box->Change = changed;
  }
  cmbShipType.Change = changed;
  txtShipCharge.LostFocus = [this] { txtShipCharge_LostFocus(); };
  Suggest(txtTerms, workspace, &UsedTexts::Terms);
  Suggest(txtSalesRep, workspace, &UsedTexts::SalesReps);
}

// Loading.

void InvoiceDetail::Form_Load() {
  if (!IsVisible()) txtDescription.SetFocus();
  Trapped("InvoiceDetail.Form_Load -", [&] {
    SkipTotal = true;
    globals.BeforeQty = rows_.OldRow = rows_.NewRow = 0;
    rows_.StartOver();
    lblLessStored.SetCaption("");
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

// The record read says whose invoice it is, of what day and for what. A number that has gone has no client.
void InvoiceDetail::OpenInvoice() {
  const Object<Invoice> invoice = globals.oInvoice;
  const std::int32_t number = globals.CurInvoiceNum;
  invoice->OpenCn();
  invoice->GetInvoice(number);
  if (invoice->InvoiceNum == 0) return ShowNone();
  headIsStored_ = !invoice->CustNum.Text().empty();
  client_ = headIsStored_ ? ReadClient(program, invoice->CustNum).value_or(ClientShown()) : ClientShown();
  date_ = invoice->InvoiceDate;
  lblInvoiceNum.SetCaption(convert.ToText(number));
  txtDescription.SetText(invoice->description);
  lblCustomer.SetCaption(client_.name);
  txtDate.SetText(convert.ToText(date_));
  txtSalesRep.SetText(invoice->SalesRep);
  txtDiscount.SetText(convert.ToText(invoice->Discount));
  ShowShippingAndCharges();
  rsItems = invoice->GetInvoiceItems(number);
  lblTotal.SetCaption(convert.CurrencyText(invoice->InvoiceTotal(number)));
  invoice->CloseCn();
  ListItems();
  // Filling the fields has set it.
  globals.InvoiceDirty = false;
  ShowSaved(true);
}

// What oInvoice holds of the last invoice carries over, so that a run of similar invoices needs no retyping.
void InvoiceDetail::BeginInvoice() {
  NewInvoice = true;
  headIsStored_ = false;
  client_ = SelectedClient(globals);
  date_ = desktop.Today();
  const Object<Invoice> invoice = globals.oInvoice;
  invoice->OpenCn();
  invoice->GetnewInvoiceNum();
  if (invoice->InvoiceNum == 0) return ShowNone();
  lblInvoiceNum.SetCaption(convert.ToText(std::int32_t{invoice->InvoiceNum}));
  txtDescription.SetText("");
  txtDate.SetText(convert.ToText(date_));
  txtSalesRep.SetText(invoice->SalesRep);
  txtDiscount.SetText(convert.ToText(globals.ClientDiscount));
  ShowShippingAndCharges();
  invoice->CloseCn();
  globals.oClient->OpenCn();
  lblCustomer.SetCaption(globals.oClient->ClientName(client_.number));
  globals.oClient->CloseCn();
  globals.InvoiceDirty = true;
  ShowSaved(false);
}

/// Nothing could be read, and nothing of what is typed can be stored.
void InvoiceDetail::ShowNone() {
  globals.oInvoice->CloseCn();
  client_ = {};
  for (Label* label : {&lblInvoiceNum, &lblCustomer, &lblTotal}) label->SetCaption("");
  for (TextBox* box : {&txtDate, &txtDescription, &txtSalesRep, &txtTerms, &txtShipDate, &txtShipCharge, &txtTrackNum,
                       &txtDiscount, &txtInterest, &txtTax}) {
    box->SetText("");
  }
  cmbShipType.SetText("");
  globals.InvoiceDirty = false;
  lblSaved.SetCaption("");
}

void InvoiceDetail::ShowShippingAndCharges() {
  const Object<Invoice> invoice = globals.oInvoice;
  shippingDate_ = invoice->Shippingdate;
  txtShipDate.SetText(convert.ToText(shippingDate_));
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

/// Raises 5 where no invoice is shown, or one that has gone.
void InvoiceDetail::RequireInvoice() const {
  if (NumberShown() == 0 || client_.number < 1) Raise(ErrorNumber::InvalidProcedureCall);
}

/// What other screens are to act on.
void InvoiceDetail::SelectShown() {
  SelectInvoice(program, {NumberShown(), date_, txtDescription.Text(), client_});
}

// Saving.

void InvoiceDetail::ShowSaved(bool saved) {
  lblSaved.SetCaption(saved ? "Saved" : "Not saved");
}

void InvoiceDetail::btnSave_Click() {
  Save();
}

/// True if the head is stored. After a refusal the saving goes on as if it were.
bool InvoiceDetail::Save() {
  bool stored = false;
  Trapped("InvoiceDetail.btnSave_Click -", [&] {
    RequireInvoice();
    TakeFromControls();
    const Object<Invoice> invoice = globals.oInvoice;
    invoice->OpenCn();
    stored = headIsStored_ = invoice->SaveInvoiceAccess(NumberShown());
    date_ = invoice->InvoiceDate;
    shippingDate_ = invoice->Shippingdate;
    lblTotal.SetCaption(convert.CurrencyText(invoice->InvoiceTotal(NumberShown())));
    auto& sales = screens.Touch<CustInvoices>();
    sales.RefreshInvoice({NumberShown(), date_, invoice->description, client_});
    invoice->CloseCn();
    sales.ShowBalanceDue();
    globals.InvoiceDirty = false;
    ShowSaved(stored);
  });
  return stored;
}

// A box without a date leaves the invoice's own.
void InvoiceDetail::TakeFromControls() {
  const Object<Invoice> invoice = globals.oInvoice;
  const auto dateIn = [&](const TextBox& box, Date own) {
    return convert.IsDate(box.Text()) ? convert.ToDate(box.Text()) : own;
  };
  lblLessStored.SetCaption("");
  invoice->InvoiceNum = NumberShown();
  invoice->CustNum = client_.number;
  invoice->InvoiceDate = dateIn(txtDate, date_);
  invoice->description = txtDescription.Text();
  invoice->SalesRep = txtSalesRep.Text();
  invoice->Discount = convert.LeadingNumber(txtDiscount.Text());
  invoice->Shippingdate = dateIn(txtShipDate, shippingDate_);
  invoice->ShippingCharge = MoneyIn(txtShipCharge, "Shipping Charge");
  invoice->ShippingType = cmbShipType.Text();
  invoice->TrackingNum = txtTrackNum.Text();
  invoice->Terms = txtTerms.Text();
  invoice->Interest = MoneyIn(txtInterest, "Interest Charge");
  invoice->Tax = MoneyIn(txtTax, "Sales Tax");
}

/// The leading number, which is 0 where the text begins with the currency's symbol. The user is to know if that is less
/// than the box shows.
Currency InvoiceDetail::MoneyIn(const TextBox& box, const char* label) {
  const Currency money = Currency::FromDouble(convert.LeadingNumber(box.Text()));
  if (convert.IsNumeric(box.Text()) && convert.ToCurrency(box.Text()) > money) {
    const std::string before = lblLessStored.Caption();
    lblLessStored.SetCaption((before.empty() ? "Stored less than shown: " : before + ", ") + label);
  }
  return money;
}

// Totals.

double InvoiceDetail::DiscountRate() const {
  return convert.ToDouble(txtDiscount.Text()) / 100;
}

// From what the screen shows: two decimals a line, and no charges without lines.
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
  if (convert.LeadingNumber(txtShipCharge.Text()) > 0)
    txtShipCharge.SetText(convert.CurrencyText(txtShipCharge.Text()));
}

// Leaving.

/// Asks about changes of the head. False if the user wants to stay, or wants to save what is refused.
bool InvoiceDetail::OfferToSave() {
  if (!globals.InvoiceDirty) return true;
  SelectShown();
  const Answer answer = AskYesNoCancel("Save changes to invoice?", "Save Invoice?");
  if (answer == Answer::Cancel) return false;
  globals.InvoiceDirty = answer == Answer::Yes && !Save();
  return !globals.InvoiceDirty;
}

void InvoiceDetail::btnPrint_Click() {
  Trapped("InvoiceDetail.btnPrint_Click -", [&] {
    RequireInvoice();
    if (!OfferToSave()) return;
    SelectShown();
    screens.Reopen(screen::kPrtInvoice);
    if (Form* report = screens.Find(screen::kPrtInvoice)) report->Refresh();
  });
}

// The open invoice is neither saved nor asked about.
void InvoiceDetail::btnNew_Click() {
  Trapped("InvoiceDetail.btnNew_Click -", [&] {
    if (!SelectNewInvoice(program, client_)) return;
    // An item picked for this invoice must not go into the next.
    screens.Unload(screen::kInvSearch);
    Form_Load();
  });
}

void InvoiceDetail::btnPayments_Click() {
  ShowReceipts(program, client_);
}

void InvoiceDetail::btnExit_Click() {
  Trapped("InvoiceDetail.btnExit_Click -", [&] {
    if (!OfferToSave()) return;
    if (globals.ItemsChanged) ReloadSales();
    Unload();
  });
}

void InvoiceDetail::ReloadSales() {
  SelectShown();
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
