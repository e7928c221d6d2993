#include "SalesOffice.h"
#include "screens/RowOf.h"
#include "screens/clients/CustSearch.h"
#include "screens/clients/Profile.h"
#include "screens/sales/Receipts.h"

namespace norvane::test {
namespace {

class MixedWindowsTest : public SalesOffice {
 protected:
  static constexpr int kBea = 1, kAdaRow = 2, kCarl = 3;  // Rows of the clients.

  std::vector<std::string> Invoices() {
    return database.Rows("SELECT InvoiceNum, CustNum, Date, Description FROM tb_Invoice");
  }
  std::vector<std::string> Payments() {
    return database.Rows("SELECT TransNum, CustNum, Amount, Notes FROM tb_Receive");
  }
  Profile& OpenProfile(int row) {
    Select(row);
    Main().btnCustInfo.Press();
    return The<Profile>();
  }
  Grid& PaymentList() { return The<Receipts>().PaymentList; }
};

/// One morning with every window open, and always another client clicked than the one a window shows.
TEST_F(MixedWindowsTest, EachWindowWorksOnTheRecordItShows) {
  StandIn({"PrtInvoice", "PrtReceipt"});
  AddInvoice(1001);
  AddInvoice(1002, 1001, kNewYear + 50);
  database.Execute(
      "UPDATE tb_Client SET Discount = 25, Notes = 'Rings twice' WHERE CustNum = 1002;"
      "INSERT INTO tb_Receive (TransNum, CustNum, Type, Date, Amount) VALUES (1001, 1003, 'Cash', 46100, 250000)");
  Start();

  // What is asked about is what would be deleted: on the list the client marked, on a profile the one shown.
  OpenProfile(kAdaRow);
  Select(kBea);
  The<Profile>().btnExit.Press();
  Choose(Main().mnuDelete, "Delete Client ... Adams, Bea ?", Answer::No);
  OpenProfile(kAdaRow);
  Select(kBea);
  Press(The<Profile>().btnDelete, "Delete Client ... Moss, Ada?", Answer::No);

  // A profile's invoice is its client's, with that client's discount; its notes outlive every save.
  Profile& bea = OpenProfile(kBea);
  Select(kAdaRow);
  bea.btnNewInvoice.Press();
  EXPECT_EQ(Sheet().lblCustomer.Caption() + Sheet().txtDiscount.Text(), "Bea  Adams25");
  Press(Sheet().btnExit, "Save changes to invoice?", Answer::No);
  for (const char* city : {"Bath", "Wells"}) {
    bea.txtCity.UserType(city);
    bea.btnSave.Press();
    Select(kCarl);
    Main().btnReceipts.Press();
  }
  EXPECT_THAT(database.Rows("SELECT City, Notes FROM tb_Client ORDER BY CustNum"),
              ElementsAre("NULL|NULL", "Wells|Rings twice", "NULL|NULL"));
  bea.btnExit.Press();

  // The sheet keeps its own day and text, whatever the list marks, and takes no other's where a box holds no date.
  ListAll();
  InvoiceDetail& sheet = Open(1001);
  Sales().InvoiceList.UserClick(1, 1);
  sheet.txtDescription.UserType("Corrected");
  sheet.txtDate.UserType("3/1/2026");
  sheet.btnSave.Press();
  EXPECT_EQ(Sales().InvoiceList.Cell(2, 0) + Sales().InvoiceList.Cell(2, 6), "3/1/2026Corrected");
  Sales().btnPrint.Press();
  EXPECT_EQ(globals.CurInvoiceNum + globals.CurCustNum, 1002 + 1001) << "made out to its own client";
  sheet.txtDate.UserType("2/31/2026");
  Press(sheet.btnPrint, "Save changes to invoice?", Answer::Yes);
  EXPECT_EQ(globals.CurInvoiceNum + globals.CurCustNum, 1001 + kAda);
  EXPECT_THAT(Invoices(), ElementsAre("1001|1003|46082|Corrected", "1002|1001|46073|Order 1002"));
  sheet.btnExit.Press();
  Sales().btnDetails.Press();
  EXPECT_EQ(Sheet().txtDescription.Text() + Sheet().txtDate.Text(), "Order 10022/20/2026") << "1002's own";

  // Its payments are its client's, and a payment keeps its client.
  Open(1001);
  Select(kBea);
  Sheet().btnPayments.Press();
  Select(kCarl);
  Enter(PaymentList(), 1, Receipts::kNotes, "late");
  TypeCells(PaymentList(), {""});
  PaymentList().UserClick(2, Receipts::kDate);
  Select(kCarl);
  PaymentList().SetFocus();
  TypeCells(PaymentList(), {"11/20/2026", "Ca", "", "", "7", "new"});
  EXPECT_THAT(Payments(), ElementsAre("1001|1003|250000|late", "1002|1003|70000|new"));
  The<Receipts>().CmbReceipt.UserPick(1);
  The<Receipts>().btnGo.Press();
  The<Receipts>().CmbReceipt.UserPick(0);
  Enter(PaymentList(), 1, Receipts::kNotes, "later");
  Select(kCarl);
  EXPECT_EQ(Payments().at(0), "1001|1003|250000|later") << "no payment is all clients'";

  // A client picked goes to the row that asked, and is stored with it.
  PaymentList().PressCellButton(1, Receipts::kClient);
  Select(kBea);
  PaymentList().UserClick(2, Receipts::kNotes);
  DoubleClick(The<CustSearch>().CustList, 1, 0);
  Select(kCarl);
  EXPECT_EQ(Payments().at(0), "1001|1002|250000|later");
  EXPECT_EQ(Payments().at(1), "1002|1003|70000|new");
  The<Receipts>().Command2.Press();
  EXPECT_EQ(globals.CurCustNum, 1001);

  // A new invoice on the sheet is the same client's, and no item picked for the old one goes into it.
  Sheet().btnNewItem.Press();
  Sheet().btnNew.Press();
  EXPECT_FALSE(IsOpen("InvSearch"));
  EXPECT_EQ(Sheet().lblCustomer.Caption() + Sheet().txtDiscount.Text(), "Ada  Moss0");
  Press(Sheet().btnExit, "Save changes to invoice?", Answer::No);

  // A client who goes takes the open windows and the listed invoices along, and an invoice that is gone isn't stored.
  Open(1002);
  Select(kCarl);
  Choose(Main().mnuDelete, "Delete Client ... Moss, Carl ?", Answer::Yes);
  EXPECT_FALSE(IsOpen("InvoiceDetail"));
  EXPECT_EQ(norvane::RowOf(Sales().InvoiceList, CustInvoices::kInvoiceNum, "1002"), 0);
  globals.CurInvoiceNum = 1002;
  InvoiceDetail& gone = Sheet();
  EXPECT_EQ(gone.lblCustomer.Caption(), "");
  Press(gone.btnSave, "InvoiceDetail.btnSave_Click -5 ");
  Press(gone.btnNewItem, "InvoiceDetail.btnNewItem_Click -5 ");
  Press(gone.btnPrint, "InvoiceDetail.btnPrint_Click -5 ");
  EXPECT_THAT(Invoices(), ElementsAre("1001|1003|46082|Corrected"));
  EXPECT_EQ(database.Cell("SELECT COUNT(*) FROM tb_trans"), "1");
}

/// While the file can't be read nothing is shown that a save could put in another record's place.
TEST_F(MixedWindowsTest, WhatCouldNotBeReadIsNotStored) {
  AddInvoice(1001);
  InvoiceDetail& sheet = StartWith(1001);
  const auto elsewhere = database.Folder() / "elsewhere";
  std::filesystem::rename(database.File(), elsewhere);
  Press(sheet.btnNew, "Client.GetClient -");
  EXPECT_EQ(sheet.lblInvoiceNum.Caption(), "1001");
  desktop.Expect("Client.GetClient -");
  Main().btnNewCust.Press();
  std::filesystem::rename(elsewhere, database.File());
  EXPECT_EQ(The<Profile>().lblCustNum.Caption(), "");
  The<Profile>().txtLname.UserType("Nobody");
  Press(The<Profile>().btnSave, "Profile.btnSave_Click -5 ");
  EXPECT_EQ(database.Cell("SELECT COUNT(*) FROM tb_Client"), "3");
}

}  // namespace
}  // namespace norvane::test
