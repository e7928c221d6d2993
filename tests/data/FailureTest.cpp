#include <functional>
#include <utility>

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

/// A save deletes the row before it inserts it again, so that one with an apostrophe loses what was there.
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

TEST_F(FailureTest, ARefusedNewRowHasNoNumberAndARefusedOldOneKeepsItsOwn) {
  const auto invoice = Opened<Invoice>();
  const auto inventory = Opened<Inventory>();
  const auto vendor = Opened<Vendor>();
  invoice->InvoiceNum = invoice->CustNum = 7;
  struct Case {
    std::string table, key;
    std::int32_t first;
    std::string allocation, label;
    std::function<std::int32_t(std::int32_t, const std::string&)> save;  ///< returns the number it leaves
  };
  const Case cases[] = {
      {"tb_trans", "TransNum", 1001, "Invoice.NewTransNum -", "Invoice.SaveTransAccess -",
       [&](std::int32_t key, const std::string& text) {
         return invoice->TransNum = key, invoice->TransNotes = text, invoice->SaveTransAccess(), invoice->TransNum;
       }},
      {"tb_Receive", "TransNum", 1001, "Invoice.NewPayNum -", "Invoice.SavePayment -",
       [&](std::int32_t key, const std::string& text) {
         return invoice->PayNum = key, invoice->PayNotes = text, invoice->SavePayment(), invoice->PayNum;
       }},
      {"tb_Inventory", "ItemNum", 1001, "Inventory.NewItemNum -", "Inventory.SaveItemAccess -",
       [&](std::int32_t key, const std::string& text) {
         return inventory->description = text, inventory->SaveItemAccess(key), key;
       }},
      {"tb_InvCategories", "CatNum", 1, "Inventory.NewCategoryNum -", "Inventory.SaveCategory -",
       [&](std::int32_t key, const std::string& text) {
         return inventory->SaveCategory(key, text), inventory->CatNum;
       }},
      {"tb_GL", "TransNum", 1001, "Vendor.NewPayNum -", "Vendor.SaveLedgerEntry -",
       [&](std::int32_t key, const std::string& text) {
         return vendor->TransNum = key, vendor->LedgerNotes = text, vendor->SaveLedgerEntry(), vendor->TransNum;
       }},
  };
  database.Clear();
  for (const Case& c : cases) {
    SCOPED_TRACE(c.label);
    EXPECT_EQ(c.save(0, "6' pole"), 0);
    ExpectReport(c.label, kSyntaxError);
    EXPECT_EQ(c.save(0, "pole"), c.first);
    EXPECT_EQ(c.save(c.first, "6' pole"), c.first);
    ExpectReport(c.label, kSyntaxError);
    EXPECT_EQ(c.save(0, "other"), c.first + 1) << "the first number is still on the screen";
    database.Execute("update " + c.table + " set " + c.key + " = 2147483647");
    EXPECT_EQ(c.save(0, "no number left"), 0);
    ExpectReport(c.allocation, 6);
    EXPECT_THAT(database.Rows("select " + c.key + " from " + c.table), ElementsAre("2147483647"));
  }
}

TEST_F(FailureTest, ARecordThatCouldNotBeReadHasNoNumberAndIsNotStored) {
  database.Execute(
      "insert into tb_Client (CustNum, Lname, Discount) values (1001, 'Abbot', 5);"
      "insert into tb_Vendor (VendorNum, Company, Discount) values (1001, 'Acme', 5);"
      "insert into tb_Invoice values (1001, 1001, 1, 'Chairs', 5, 0, 0, 1, '', '', 0, '', '');"
      "insert into tb_Inventory values (1001, 3, 'Pen', 1, 1, 1, '')");
  const auto client = Opened<Client>();
  const auto invoice = Opened<Invoice>();
  const auto inventory = Opened<Inventory>();
  const auto vendor = Opened<Vendor>();
  client->GetClient(1001);
  invoice->GetInvoice(1001);
  inventory->GetItem(1001);
  vendor->GetVendor("Acme");
  {
    const OtherUser other(database, OtherUser::Work::Locking);
    client->GetClient(1001);
    invoice->GetInvoice(1001);
    inventory->GetItem(1001);
    vendor->GetVendor("Acme");
    EXPECT_EQ(std::exchange(reporter.reports, {}).size(), 4U);
  }
  EXPECT_EQ(client->CustNum + invoice->InvoiceNum + inventory->ItemNum + vendor->VendorNum, 0);
  EXPECT_EQ(client->Discount + invoice->Discount + vendor->Discount + inventory->Par, 0);
  EXPECT_EQ(client->lname + invoice->CustNum.Text() + invoice->description + inventory->description + vendor->Company,
            "");
  client->SaveClientAccess(1001);
  ExpectReport("Client.SaveClientAccess -", 5);
  invoice->CustNum = 1001;
  invoice->SaveInvoiceAccess(1001);
  ExpectReport("Invoice.SaveInvoiceAccess -", 5);
  vendor->SaveVendorAccess(1001);
  ExpectReport("Vendor.SaveVendorAccess -", 5);
  EXPECT_THAT(database.Rows("select Lname from tb_Client union all select Description from tb_Invoice union all "
                            "select Company from tb_Vendor"),
              ElementsAre("Abbot", "Chairs", "Acme"));
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
    client->CustNum = 1001;
    client->SaveClientAccess(1001);
    ExpectReport("Client.SaveClientAccess -", kFileOrKey);
    invoice->InvoiceNum = 1;
    invoice->SaveTransAccess();
    ExpectReport("Invoice.SaveTransAccess -", kFileOrKey);
    EXPECT_EQ(invoice->TransNum, 0);
    setup->SaveCompanyInfo();
  }
  EXPECT_THAT(database.Rows("select Lname from tb_Client union all select TransNum from tb_trans union all "
                            "select Name from tb_Company"),
              ElementsAre("Old", "7", "Old"));
}

}  // namespace norvane::test
