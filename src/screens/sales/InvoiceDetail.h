#pragma once

#include <cstdint>
#include <map>
#include <string>

#include "forms/Form.h"
#include "screens/RowEditing.h"

namespace norvane {

/// One sales invoice: its head, its lines and what it comes to. CurInvoiceNum 0 begins a new one.
///
/// The head is stored by the save button, lines as soon as they are picked or left. Stock moves at the end of a cell's
/// edit, before the line is stored.
class InvoiceDetail : public Form {
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
  Button btnExit{*this, "btnExit", {.toolTip = "Exit Invoice Details", .icon = "exit"}};
  Label lblInvoiceNum{*this, "lblInvoiceNum"};
  Label lblCustomer{*this, "lblCustomer"};
  TextBox txtDate{*this, "txtDate", {.characters = 12}};
  TextBox txtDescription{*this, "txtDescription", {.characters = 40}};
  TextBox txtSalesRep{*this, "txtSalesRep"};
  TextBox txtTerms{*this, "txtTerms"};
  ComboBox cmbShipType{*this, "cmbShipType"};
  TextBox txtShipDate{*this, "txtShipDate", {.characters = 12}};
  TextBox txtShipCharge{*this, "txtShipCharge", {.characters = 12, .rightAligned = true}};
  TextBox txtTrackNum{*this, "txtTrackNum"};
  TextBox txtDiscount{*this, "txtDiscount", {.characters = 12, .rightAligned = true}};
  TextBox txtInterest{*this, "txtInterest", {.characters = 12, .rightAligned = true}};
  Button btnTax{*this, "btnTax", {.caption = "Sales Tax ->", .toolTip = "Calculate State Sales Tax"}};
  TextBox txtTax{*this, "txtTax", {.characters = 12, .rightAligned = true}};
  Grid ItemList{*this, "ItemList", GridKind::Editable};
  Button btnNewItem{*this, "btnNewItem", {.toolTip = "Add inventory item to invoice", .icon = "add"}};
  Button btnRemove{*this, "btnRemove", {.toolTip = "Delete Selected Item", .icon = "remove"}};
  Label lblTotal{*this, "lblTotal"};

  /// Shows the total of what stands on the screen; the database isn't asked. Reports its errors and leaves the old
  /// total then.
  void GetInvoiceTotal();
  /// Writes a line to the database under the key `transNum`, 0 for a new line, and the key into the grid.
  void StoreLine(std::int32_t row, std::int32_t transNum);
  /// Whether QtyLeft says that the line's item has run out.
  bool IsShort() const;
  /// Tells that the line's item has run out.
  void ReportBackOrder(std::int32_t row);

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
  void ListItems();
  std::int32_t NumberShown() const;

  void btnSave_Click();
  void TakeFromControls();
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
  void ItemList_LeaveCell();
  void StoreRow(std::int32_t row);
  void btnNewItem_Click();
  void btnRemove_Click();

  RowEditing rows_;
  Object<Recordset> rsItems;                        ///< the lines while they are loaded
  std::int32_t LineRow = 1;                         ///< the next row to fill while lines are loaded
  std::string BackOrderText;                        ///< of the line being loaded, empty for none
  std::map<std::int32_t, std::int32_t> CountedQty;  ///< by line: the quantity that the stock was last counted with
  bool SkipTotal = false;                           ///< the first LeaveCell after a load doesn't total
  std::int32_t CustShown = globals.CurCustNum;      ///< whose invoice it is, whoever is selected meanwhile
  bool NewInvoice = false;                          ///< the head isn't stored yet
};

}  // namespace norvane
