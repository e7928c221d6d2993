#pragma once

#include <cstdint>
#include <string>

#include "core/Object.h"
#include "forms/Form.h"
#include "screens/RowEditing.h"
#include "screens/clients/ClientShown.h"
#include "store/Recordset.h"

namespace norvane {

/// The payments received since a date, of the selected client or of all, edited in place.
class Receipts : public Form, public ClientScreen {
 public:
  static constexpr const char* kName = screen::kReceipts;
  explicit Receipts(Program& program);

  /// The columns of PaymentList. A type chosen from the drop-down is held as the item's key.
  enum PaymentColumn { kMarker, kTransNum, kCustNum, kDate, kType, kCheckNum, kClient, kAmount, kNotes };

  ComboBox CmbReceipt{*this, "CmbReceipt", ComboStyle::ItemsOnly, 16};
  MaskedBox txtSinceDate{*this, "txtSinceDate"};
  DatePicker DTPicker1{*this, "DTPicker1"};
  Button btnGo{*this, "btnGo", {.toolTip = "Get payments for client and since date criteria", .icon = "go"}};
  Button btnPrint{*this, "btnPrint", {.toolTip = "Print receipt for selected payment", .icon = "print"}};
  Button Command2{*this, "Command2", {.toolTip = "Exit Payments Received", .icon = "exit"}};
  Button btnNew{*this, "btnNew", {.toolTip = "Add new client payment", .icon = "add"}};
  Button btnDelete{*this, "btnDelete", {.toolTip = "Delete selected client payment", .icon = "delete"}};
  Label lblClient{*this, "lblClient"};
  Label Label3{*this, "Label3", "Balance Due:"};
  Label lblBalDue{*this, "lblBalDue"};
  Grid PaymentList{*this, "PaymentList", GridKind::Editable};

  bool Shows(std::int32_t custNum) const override;
  /// The picker has found the client of a row: the cursor goes to the row, and the row waits to be stored.
  void TakeClient(int row, const ClientShown& client);
  /// Marks a payment's row as a click does, after listing from its day on if need be. False if it isn't listed.
  bool MarkPayment(std::int32_t number, Date date);

 private:
  void Form_Load() override;
  void SetPayments();
  void ReadPayments();
  void SetUpGrid();
  void ReadClientOfList();
  void ShowBalance();
  std::string TypeItems() const;
  void ListPayments();
  std::string CellsOf(const Recordset& payment) const;

  bool ShowsAllClients() const;
  void btnGo_Click();
  void TakeClientOfRow();

  void PaymentList_Click();
  void PaymentList_GotFocus();
  void AfterPick(bool& picked, int col);
  void PaymentList_AfterEdit(int row, int col);
  bool AreFilled(int row, std::initializer_list<int> cols) const;
  void FillClient(int row, const ClientShown& client);
  void FillCardNumber(int row);
  void PaymentList_CellButtonClick(int row, int col);
  void StoreRow(std::int32_t row);

  void btnDelete_Click();
  void btnPrint_Click();
  void Form_Resize() override;
  void Form_Unload() override;

  RowEditing rows_;
  Object<Recordset> rsPayments;
  ClientShown client_;          ///< whose payments are listed; -1 for all clients'
  bool clientIsKnown_ = false;  ///< it is one client, and was found
  int PayRow = 1;               ///< the next row while payments are listed, then the empty one at the end
  Date SinceDate;               ///< the payments listed are later than this
  std::int32_t SelPayNum = 0;   ///< of the row clicked last, 0 if it had none
  bool DeletePending = false;   ///< the next listing deletes SelPayNum first
  std::string CardType1, CardType2;
  std::string CardNo1, CardNo2;
};

}  // namespace norvane
