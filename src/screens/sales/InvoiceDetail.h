#pragma once

#include <cstdint>
#include <map>
#include <string>

#include "forms/Form.h"
#include "screens/RowEditing.h"
#include "screens/clients/ClientShown.h"

namespace norvane {

/// One sales invoice: its head, its lines and what it comes to. CurInvoiceNum 0 begins a new one.
///
/// The head is stored by the save button, lines as soon as they are picked or left. Stock moves at the end of a cell's
/// edit, before the line is stored.
class InvoiceDetail : public Form, public ClientScreen {
 public:
  static constexpr const char* kName = screen::kInvoiceDetail;
  explicit InvoiceDetail(Program& program);

  /// The columns of ItemList. The charge is the price of one unit, which is stored nowhere; the back order is the units
  /// short as a negative number, empty for none.
  enum ItemColumn { kMarker, kTransNum, kItemNum, kQuantity, kCharge, kDescription, kTotal, kBackOrder };

  Button btnSave{*this, "btnSave", {.toolTip = "Save this invoice", .icon = "save"}};
  Button btnNew{*this, "btnNew", {.toolTip = "Enter new sales invoice for this client", .icon = "invoice-new"}};
  Button btnPrint{*this, "btnPrint", {.toolTip = "Print this invoice", .icon = "print"}};
  Button btnPayments{*this, "btnPayments", {.toolTip = "Enter payments received from this client", .icon = "receipts"}};
  Button btnCopy{*this, "btnCopy", {.toolTip = "Copy to new invoice", .icon = "copy"}};
  Button btnExit{*this, "btnExit", {.toolTip = "Exit Invoice Details", .icon = "exit"}};
  Label lblInvoiceNum{*this, "lblInvoiceNum"};
  Label lblCustomer{*this, "lblCustomer"};
  TextBox txtDate{*this, "txtDate", {.characters = 12, .content = TextContent::Date}};
  TextBox txtDescription{*this, "txtDescription", {.characters = 40}};
  TextBox txtSalesRep{*this, "txtSalesRep"};
  TextBox txtTerms{*this, "txtTerms"};
  ComboBox cmbShipType{*this, "cmbShipType"};
  TextBox txtShipDate{*this, "txtShipDate", {.characters = 12, .content = TextContent::Date}};
  TextBox txtShipCharge{
      *this, "txtShipCharge", {.characters = 12, .rightAligned = true, .content = TextContent::Number}};
  TextBox txtTrackNum{*this, "txtTrackNum"};
  TextBox txtDiscount{*this, "txtDiscount", {.characters = 12, .rightAligned = true, .content = TextContent::Number}};
  TextBox txtInterest{*this, "txtInterest", {.characters = 12, .rightAligned = true, .content = TextContent::Number}};
  Button btnTax{*this, "btnTax", {.caption = "Sales Tax ->", .toolTip = "Calculate State Sales Tax"}};
  TextBox txtTax{*this, "txtTax", {.characters = 12, .rightAligned = true, .content = TextContent::Number}};
  Grid ItemList{*this, "ItemList", GridKind::Editable};
  Button btnNewItem{*this, "btnNewItem", {.toolTip = "Add inventory item to invoice", .icon = "add"}};
  Button btnRemove{*this, "btnRemove", {.toolTip = "Delete Selected Item", .icon = "remove"}};
  Label lblSaved{*this, "lblSaved"};
  Label lblLessStored{*this, "lblLessStored"};
  Label lblTotal{*this, "lblTotal"};

  bool Shows(std::int32_t custNum) const override { return client_.number == custNum; }
  /// The invoice's number; 0 if none could be read.
  std::int32_t NumberShown() const;

  /// Shows the total of what is on the screen; the database isn't asked. Reports its errors and leaves the old
  /// total then.
  void GetInvoiceTotal();
  /// Takes one unit of an item out of stock and adds it as a new line, which is stored at once. A box
  /// reports the last unit and a back order. False if the stock can't be counted or there is no head for the line;
  /// nothing is added then. Raises 5 where no invoice is shown.
  bool AddItem(std::int32_t itemNum, const std::string& description, const std::string& price);
  /// Begins a new invoice of today for the same client with the same lines, and stores it. Each line takes its units
  /// out of stock and reports a back order as one entered by hand. A line whose item is gone is reported and left out.
  /// Asks about unsaved changes first.
  void CopyToNew();

 private:
  layout::Node Head();
  void WireButtons();
  void WireChanges();
  void WireLines();

  void Form_Load() override;
  void SetUpGrid();
  void FillShippingTypes();
  void OpenInvoice();
  void BeginInvoice();
  void ShowShippingAndCharges();
  void ShowNone();
  void ListItems();
  void RequireInvoice() const;
  void SelectShown();
  void ShowSaved(bool saved);

  void btnSave_Click();
  bool Save();
  void TakeFromControls();
  Currency MoneyIn(const TextBox& box, const char* label);
  void btnTax_Click();
  void GetTax();
  double DiscountRate() const;
  bool OfferToSave();
  void btnPrint_Click();
  void btnNew_Click();
  void btnPayments_Click();
  void txtShipCharge_LostFocus();
  void btnExit_Click();
  void ReloadSales();
  void Form_Unload() override;

  void ItemList_GotFocus();
  void ItemList_BeforeEdit(int row, int col);
  void ItemList_AfterEdit(int row, int col);
  void ChangeQuantity(int row);
  bool TakeFromStock(std::int32_t itemNum, std::int32_t before, std::int32_t after);
  bool IsShort() const;
  void ReportBackOrder(std::int32_t row);
  void ItemList_LeaveCell();
  void StoreRow(std::int32_t row);
  void StoreLine(std::int32_t row, std::int32_t transNum);
  std::int32_t AddLine(std::int32_t itemNum, const std::string& description, const std::string& price);
  void CopyHead(std::int32_t source);
  void CopyLine(const Recordset& line);
  void MarkBackOrder(std::int32_t row, std::int32_t quantity);
  void btnNewItem_Click();
  void btnRemove_Click();

  RowEditing rows_;
  Object<Recordset> rsItems;                        ///< the lines while they are loaded
  std::int32_t LineRow = 1;                         ///< the next row to fill while lines are loaded
  std::string BackOrderText;                        ///< of the line being loaded, empty for none
  std::map<std::int32_t, std::int32_t> CountedQty;  ///< by line: the quantity that the stock was last counted with
  bool SkipTotal = false;                           ///< the first LeaveCell after a load doesn't total
  ClientShown client_;                              ///< whose invoice it is; none if the invoice has gone
  Date date_, shippingDate_;                        ///< the invoice's own, for boxes that hold no date
  bool NewInvoice = false;                          ///< the invoice is a new one that no item has been added to
  bool headIsStored_ = false;
};

}  // namespace norvane
