#pragma once

#include <cstdint>
#include <string>

#include "core/Object.h"
#include "forms/Form.h"
#include "screens/RowEditing.h"

namespace norvane {

class Recordset;

/// The check register: every payment and deposit in the order of date and check number, each with the balance after it,
/// edited in place. The last row is always empty.
///
/// Rows are in order after a load only: an entry whose date is changed stays where it is, and the balances are those of
/// the rows as they are shown.
class GL : public Form {
 public:
  static constexpr const char* kName = screen::kGL;
  explicit GL(Program& program);

  /// The columns of PaymentList. A category chosen from the drop-down is held as the item's key; money is currency
  /// text, empty for 0.
  enum LedgerColumn {
    kMarker,
    kTransNum,
    kDate,
    kNum,
    kVendor,
    kCategory,
    kPayment,
    kCleared,
    kDeposit,
    kBalance,
    kNotes
  };

  Frame Frame2{*this, "Frame2"};
  Button btnNew{*this, "btnNew", {.toolTip = "Add New Payment/Deposit", .icon = "add"}};
  Button btnDelete{*this, "btnDelete", {.toolTip = "Delete Selected Payment/Deposit", .icon = "delete"}};
  Frame Frame1{*this, "Frame1"};
  Button btnPaymentCategories{
      *this,
      "btnPaymentCategories",
      {.caption = "Payment &Categories", .toolTip = "Payment Categories", .icon = "categories"}};
  Button btnVendors{*this, "btnVendors", {.toolTip = "Vendor Profiles", .icon = "vendors"}};
  Button btnPrint{*this, "btnPrint", {.toolTip = "Registry Print Options", .icon = "print"}};
  Button Command2{*this, "Command2", {.toolTip = "Exit Registry", .icon = "exit"}};
  Grid PaymentList{*this, "PaymentList", GridKind::Editable};
  Label Label2{*this, "Label2", "Current Balance:"};
  Label lblCurBal{*this, "lblCurBal"};
  Label Label3{*this, "Label3", "Ending Balance:"};
  Label lblEndBal{*this, "lblEndBal"};

  /// Reads the whole ledger again and lists it, after carrying out a pending deletion. What waits to be stored is given
  /// up.
  void SetPayments();
  /// Marks an entry's row as a click does. False if the registry doesn't list it.
  bool MarkEntry(std::int32_t number);
  /// Gives the category column the expense types in memory. Raises 3021 if there are none.
  void OfferCategories();
  /// Gives the vendor column the vendors in memory. Raises 3021 if there are none.
  void OfferVendors();

 private:
  void Form_Load() override;
  void ReadLedger();
  void SetUpGrid();
  void ReadVendors();
  void ListLedger();
  std::string CellsOf(const Recordset& entry);

  void PaymentList_GotFocus();
  void PaymentList_LeaveCell();
  void PaymentList_RowColChange();
  void PaymentList_EnterCell();
  void PaymentList_Click();
  void PaymentList_CellButtonClick(int col);
  void PaymentList_AfterEdit(int row);
  bool HasDateAndAmount(std::int32_t row) const;
  Currency FormatAmount(std::int32_t row, int col);
  Currency AmountIn(std::int32_t row, int col) const;

  void StoreRow(std::int32_t row);
  void CalcBal(std::int32_t& row);
  void ShowBalances();

  void btnDelete_Click();
  void Form_Resize() override;
  void Form_Unload() override;
  void Form_Terminate() override;

  RowEditing rows_;
  std::int32_t LedgerRow = 1;  ///< the next row while entries are listed, then the empty one at the end
  Currency RunningBal;         ///< after the row listed last
  Date EntryDate;              ///< the one entered last, by the cursor
  std::int32_t SelPayNum = 0;  ///< of the row clicked last, 0 if it had none or none was clicked since the load
  bool DeletePending = false;  ///< the next load deletes SelPayNum first
};

}  // namespace norvane
