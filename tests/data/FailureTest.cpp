#include <functional>

#include "data/Client.h"
#include "data/DataTest.h"
#include "data/Inventory.h"
#include "data/Invoice.h"
#include "data/Vendor.h"
#include "data/cSetup.h"

namespace norvane::test {

using ::testing::ElementsAre;
using ::testing::StartsWith;

/// What an operation leaves behind when its statements fail one by one. Nothing is undone.
class FailureTest : public DataTest {};

TEST_F(FailureTest, WhatCameBeforeTheRefusedStatementStaysDone) {
  struct Case {
    std::string rows;
    std::string statement, table;
    std::function<void()> operation;
    std::string label;
    std::string remaining;  ///< clients, payments, invoices, lines, categories, items, vendors, entries of the ledger
  };
  const Case cases[] = {
      {"insert into tb_Client (CustNum) values (1001); insert into tb_Receive (TransNum, CustNum) values (1, 1001);"
       "insert into tb_Invoice (InvoiceNum, CustNum) values (11, 1001), (12, 1001);"
       "insert into tb_trans (TransNum, InvoiceNum) values (21, 11), (22, 12)",
       "delete", "tb_trans", [&] { Opened<Client>()->DeleteClient(1001); }, "Client.DeleteClient -", "0|0|2|2|0|0|0|0"},
      {"insert into tb_Inventory (ItemNum, Par, InStock) values (1, 1, 0);"
       "insert into tb_Invoice (InvoiceNum) values (9);"
       "insert into tb_trans (TransNum, InvoiceNum, ItemNum, Qty) values (1, 9, 1, 4)",
       "update", "tb_Inventory", [&] { Opened<Invoice>()->DeleteInvoice(9); }, "Invoice.DeleteInvoice -",
       "0|0|0|1|0|1|0|0"},
      {"insert into tb_InvCategories values (1, 'Pens'); insert into tb_Inventory (ItemNum, CatNum) values (1, 1)",
       "delete", "tb_Inventory", [&] { Opened<Inventory>()->DeleteCategory(1); }, "Inventory.DeleteCategory -",
       "0|0|0|0|0|1|0|0"},
      {"insert into tb_Vendor (VendorNum, Company) values (1001, 'Acme');"
       "insert into tb_GL (TransNum, Vendor) values (1, 'Acme')",
       "delete", "tb_GL", [&] { Opened<Vendor>()->DeleteVendor(1001); }, "Vendor.DeleteVendor -", "0|0|0|0|0|0|1|1"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.label);
    database.Clear();
    database.Execute(c.rows + "; create trigger refuse before " + c.statement + " on " + c.table +
                     " begin select raise(abort, 'refused'); end");
    c.operation();
    EXPECT_THAT(reporter.reports, ElementsAre(StartsWith(c.label)));
    reporter.reports.clear();
    database.Execute("drop trigger refuse");
    EXPECT_THAT(
        database.Rows("select (select count(*) from tb_Client), (select count(*) from tb_Receive), (select count(*) "
                      "from tb_Invoice), (select count(*) from tb_trans), (select count(*) from tb_InvCategories), "
                      "(select count(*) from tb_Inventory), (select count(*) from tb_Vendor), (select count(*) from "
                      "tb_GL)"),
        ElementsAre(c.remaining));
  }
}

/// A save deletes the row before it inserts it anew, so that one with an apostrophe loses what was there.
TEST_F(FailureTest, ARefusedSaveLosesTheRow) {
  const auto client = Opened<Client>();
  const auto invoice = Opened<Invoice>();
  const auto inventory = Opened<Inventory>();
  const auto vendor = Opened<Vendor>();
  client->CustNum = vendor->VendorNum = vendor->TransNum = 7;
  invoice->InvoiceNum = invoice->CustNum = invoice->TransNum = invoice->PayNum = 7;
  const std::string text = client->lname = invoice->TransNotes = invoice->PayNotes = invoice->description =
      inventory->description = vendor->Company = vendor->LedgerNotes = "6' pole";
  std::int32_t item = 7;
  struct Case {
    std::string table, key;
    std::function<void()> save;
    std::string label;
  };
  const Case cases[] = {
      {"tb_Client", "CustNum", [&] { client->SaveClientAccess(7); }, "Client.SaveClientAccess -"},
      {"tb_Invoice", "InvoiceNum", [&] { invoice->SaveInvoiceAccess(7); }, "Invoice.SaveInvoiceAccess -"},
      {"tb_trans", "TransNum", [&] { invoice->SaveTransAccess(); }, "Invoice.SaveTransAccess -"},
      {"tb_Receive", "TransNum", [&] { invoice->SavePayment(); }, "Invoice.SavePayment -"},
      {"tb_Inventory", "ItemNum", [&] { inventory->SaveItemAccess(item); }, "Inventory.SaveItemAccess -"},
      {"tb_InvCategories", "CatNum", [&] { inventory->SaveCategory(7, text); }, "Inventory.SaveCategory -"},
      {"tb_Vendor", "VendorNum", [&] { vendor->SaveVendorAccess(7); }, "Vendor.SaveVendorAccess -"},
      {"tb_GL", "TransNum", [&] { vendor->SaveLedgerEntry(); }, "Vendor.SaveLedgerEntry -"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.label);
    database.Execute("delete from " + c.table + "; insert into " + c.table + " (" + c.key + ") values (7), (8)");
    c.save();
    ExpectReport(c.label, kSyntaxError);
    EXPECT_THAT(database.Rows("select " + c.key + " from " + c.table), ElementsAre("8"));
  }
}

TEST_F(FailureTest, AFileThatAnotherWritesCanBeReadButNotChanged) {
  database.Execute(
      "insert into tb_Client (CustNum, Lname) values (1001, 'Old'); insert into tb_trans (TransNum) values (7);"
      "insert into tb_Company (Name) values ('Old')");
  const auto client = Opened<Client>();
  const auto invoice = Opened<Invoice>();
  const auto setup = Opened<cSetup>();
  {
    const OtherUser other(database, OtherUser::Work::Writing);
    EXPECT_EQ(client->GetAllClients()->RecordCount(), 1);
    client->SaveClientAccess(1001);
    ExpectReport("Client.SaveClientAccess -", kFileOrKey);
    invoice->InvoiceNum = 1;
    invoice->SaveTransAccess();
    ExpectReport("Invoice.SaveTransAccess -", kFileOrKey);
    EXPECT_EQ(invoice->TransNum, 8) << "the number was taken before";
    setup->SaveCompanyInfo();
  }
  EXPECT_THAT(database.Rows("select Lname from tb_Client union all select TransNum from tb_trans union all "
                            "select Name from tb_Company"),
              ElementsAre("Old", "7", "Old"));
}

}  // namespace norvane::test
