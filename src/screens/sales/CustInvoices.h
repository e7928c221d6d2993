#pragma once

#include "forms/Form.h"
#include "screens/sales/InvoiceShown.h"

namespace norvane {

/// The sales invoices of the selected client, or of all clients, since a date.
class CustInvoices : public Form, public ClientScreen {
 public:
  static constexpr const char* kName = screen::kCustInvoices;
  static constexpr const char* kSelectedClient = "Selected Client";
  static constexpr const char* kAllClients = "All Clients";
  explicit CustInvoices(Program& program);

  /// The columns of InvoiceList.
  enum InvoiceColumn { kDate, kInvoiceNum, kCustNum, kLast, kClient, kCharges, kDescription };

  Frame Frame2{*this, "Frame2"};
  Button btnDetails{*this, "btnDetails", {.toolTip = "View details for selected sales invoice", .icon = "invoices"}};
  Button btnNewInvoice{
      *this, "btnNewInvoice", {.toolTip = "Enter new sales invoice for selected client", .icon = "invoice-new"}};
  Button btnDelete{*this, "btnDelete", {.toolTip = "Delete selected sales invoice", .icon = "delete"}};
  Button btnPrint{*this, "btnPrint", {.toolTip = "Print selected sales invoice", .icon = "print"}};
  Button btnCustInfo{*this, "btnCustInfo", {.toolTip = "Profile for selected client", .icon = "client"}};
  Button btnReceipts{*this, "btnReceipts", {.toolTip = "Client Payments Received", .icon = "receipts"}};
  Button btnCopy{*this, "btnCopy", {.toolTip = "Copy to new invoice", .icon = "copy"}};
  Frame Frame3{*this, "Frame3"};
  Button btnInventory{*this, "btnInventory", {.toolTip = "Add to/Edit Inventory", .icon = "inventory"}};
  Button btnExit{*this, "btnExit", {.toolTip = "Exit Client Sales", .icon = "exit"}};
  Frame Frame1{*this, "Frame1"};
  Label Label4{*this, "Label4", "Sales Invoices for:"};
  ComboBox CmbInvoice{*this, "CmbInvoice", ComboStyle::ItemsOnly, 16};
  Label Label2{*this, "Label2", "Since:"};
  MaskedBox txtSinceDate{*this, "txtSinceDate"};
  DatePicker DTPicker1{*this, "DTPicker1"};
  Button btnGo{*this, "btnGo", {.toolTip = "Get invoices for client and since date criteria", .icon = "go"}};
  Label lblClient{*this, "lblClient"};
  Grid InvoiceList{*this, "InvoiceList", GridKind::List};
  Label Label3{*this, "Label3", "Balance Due:"};
  Label lblBalDue{*this, "lblBalDue"};
  Timer Timer1{*this, "Timer1", 1000, false};

  /// The date typed or picked. Raises 13 if it is none.
  Date SinceDate() const { return convert.ToDateFromMask(txtSinceDate.Text()); }
  /// Empties the list, headings and widths as at first.
  void ClearList();
  /// Adds a row for each invoice and closes what had rows. They are those of `client`, or of all clients if that is
  /// none, as the combo then says. The cursor is on the invoice numbered `marked` if it is there, else on the first.
  void ListInvoices(Recordset& invoices, const ClientShown& client, std::int32_t marked);
  /// The invoice of the current row, 0 without one.
  std::int32_t MarkedNumber() const;
  /// The invoice of the current row becomes the selected one, under its client's name as the row shows it.
  void SelectMarked();
  /// Shows what the client whose invoices are listed owes today, red if it is anything. Reports no errors itself.
  void ShowBalanceDue();
  /// A list of this client alone.
  bool Shows(std::int32_t custNum) const override { return custNum != 0 && client_.number == custNum; }
  /// Takes a deleted client's rows out of the list of all clients: their numbers may be given again.
  void ForgetClient(std::int32_t custNum);
  /// Writes the row of an invoice that has been saved again, if it is in the list. oInvoice must be open.
  void RefreshInvoice(const InvoiceShown& saved);

 private:
  void Form_Load() override;
  void btnGo_Click();
  void InvoiceList_Click();
  void TakeSelection();
  void InvoiceList_DblClick();
  void btnCopy_Click();
  void btnDelete_Click();
  void btnInventory_Click();
  void Form_Resize() override;
  void Form_Unload() override;

  ClientShown client_ = SelectedClient(globals);  ///< whose invoices are listed; none for all clients'
};

}  // namespace norvane
