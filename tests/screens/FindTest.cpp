#include <filesystem>

#include "Office.h"
#include "data/FindIndex.h"
#include "screens/clients/Profile.h"
#include "screens/find/frmFind.h"
#include "screens/registry/GL.h"
#include "screens/registry/Vendors.h"
#include "screens/sales/InvoiceDetail.h"
#include "screens/sales/Receipts.h"
#include "screens/stock/frmInventory.h"
#include "store/Recordset.h"

namespace norvane::test {
namespace {

class FindTest : public Office {
 protected:
  void SetUp() override {
    AddClients();
    database.Execute(
        "UPDATE tb_Client SET Lname = 'O’Brién', Company = 'Quill & Co', City = 'Springfield', HomePhone = "
        "'(555) 123-4567' WHERE CustNum = 1002;"
        "INSERT INTO tb_Invoice (InvoiceNum, CustNum, Date, Description, TrackingNum, Discount, Tax, "
        "ShippingCharge, Interest, Shippingdate) VALUES (1001, 1003, 46000, 'Oak table', '1Z999', 0, 0, 0, 0, 0), "
        "(1234, 1002, 46001, '100% wool', NULL, 0, 0, 0, 0, 0);"
        "INSERT INTO tb_Receive (TransNum, CustNum, Type, CheckNum, Date, Amount) VALUES "
        "(1001, 1003, 'Check', '4711', 40000, 12345600);"
        "INSERT INTO tb_InvCategories (CatNum, Description) VALUES (2, 'Lamps');"
        "INSERT INTO tb_Inventory (ItemNum, CatNum, Description, Charge, Par, InStock) VALUES "
        "(1001, 1, 'Table', 0, 0, 0), (1002, 2, 'Desk lamp', 250000, 1, 1);"
        "INSERT INTO tb_Vendor (VendorNum, Company, Discount) VALUES (1001, 'Acme', 0), (1002, 'Paper Mill', 0);"
        "INSERT INTO tb_GL (TransNum, Date, CheckNum, Vendor, Payment, Deposit, Cleared, Category, Notes) VALUES "
        "(1001, 46000, '88', 'Acme', 99900, 0, 0, 'Rent', 'March'), (1002, 46001, '', 'Acme', 0, 10000, 0, '', '')");
    Start();
    Main().mnuFind.Choose();
  }
  Grid& List() { return The<frmFind>().FoundList; }
  /// Group and name of each row found.
  std::vector<std::string> Find(const std::string& text) {
    The<frmFind>().txtFind.UserType(text);
    std::vector<std::string> found;
    for (int row = 1; row < List().Rows(); ++row) {
      found.push_back(List().Cell(row, frmFind::kGroup) + ": " + List().Cell(row, frmFind::kWhat));
    }
    return found;
  }
  void Open(const std::string& text) {
    if (!IsOpen("frmFind")) Main().mnuFind.Choose();
    ASSERT_FALSE(Find(text).empty()) << text;
    The<frmFind>().btnOpen.Press();
  }
};

TEST_F(FindTest, FindsEachKindByItsFields) {
  EXPECT_EQ(The<frmFind>().ActiveControl(), &The<frmFind>().txtFind);
  const std::vector<std::pair<std::string, std::string>> cases = {{"o'brien", "Clients (1): O’Brién, Bea"},
                                                                  {"O’BRIÉN b", "Clients (1): O’Brién, Bea"},
                                                                  {"quill spring", "Clients (1): O’Brién, Bea"},
                                                                  {"5551234", "Clients (1): O’Brién, Bea"},
                                                                  {"555-12", "Clients (1): O’Brién, Bea"},
                                                                  {"Moss, Carl", "Clients (1): Moss, Carl"},
                                                                  {"1z99", "Invoices (1): #1001 Oak table"},
                                                                  {"100%", "Invoices (1): #1234 100% wool"},
                                                                  {"$1,234.56", "Payments (1): Moss, Ada"},
                                                                  {"4711", "Payments (1): Moss, Ada"},
                                                                  {"lamp DESK", "Inventory (1): Desk lamp"},
                                                                  {"mill", "Vendors (1): Paper Mill"},
                                                                  {"9.99", "Registry (1): Acme"},
                                                                  {"88 march", "Registry (1): Acme"}};
  for (const auto& [typed, found] : cases) EXPECT_THAT(Find(typed), ElementsAre(found)) << typed;
  EXPECT_EQ(Connections(), 0);
}

TEST_F(FindTest, ListsTheBestFirstWhateverItsKind) {
  EXPECT_THAT(Find("1234"),
              ElementsAre("Invoices (1): #1234 100% wool", "Payments (1): Moss, Ada", "Clients (1): O’Brién, Bea"));
  EXPECT_THAT(Find("table"), ElementsAre("Inventory (1): Table", "Invoices (1): #1001 Oak table"));
  EXPECT_THAT(Find("acme"), ElementsAre("Vendors (1): Acme", "Registry (2): Acme", ": Acme"));
  EXPECT_EQ(List().Cell(2, frmFind::kAmount), "$1.00") << "the latest of equals, and a deposit's amount";
}

TEST_F(FindTest, WhatCannotBeFoundDoesNoHarm) {
  for (const std::string typed : {"'", "\"", "%", "  ", "", "zzz", "-", "moss zzz", "\xFF\xC3"}) {
    const std::size_t expected = typed == "'" || typed == "%" ? 1 : typed == "-" ? 1 : 0;
    EXPECT_EQ(Find(typed).size(), expected) << typed;
  }
  EXPECT_THAT(Find(std::string(100000, 'a')), IsEmpty());
  EXPECT_EQ(The<frmFind>().lblFound.Caption(), "Nothing found");
  EXPECT_FALSE(The<frmFind>().btnOpen.Enabled());
}

TEST_F(FindTest, ArrowsMoveInTheListWhileTyping) {
  ASSERT_EQ(Find("moss").size(), 2u);
  auto& box = The<frmFind>().txtFind;
  EXPECT_EQ(List().Row(), 1);
  EXPECT_TRUE(box.UserKey(Key::Down));
  EXPECT_EQ(List().Row(), 2);
  box.UserKey(Key::PageDown);
  EXPECT_EQ(List().Row(), 2);
  EXPECT_EQ(program.focus.Current(), &box);
  EXPECT_FALSE(box.UserKey(Key::Left)) << "the box keeps it";
  The<frmFind>().btnOpen.Press();
  EXPECT_EQ(The<Profile>().txtFname.Text(), "Carl");
}

TEST_F(FindTest, GoesToTheRecordOnItsScreen) {
  Open("quill");
  EXPECT_EQ(The<Profile>().lblCustNum.Caption(), "1002");
  EXPECT_EQ(globals.CurClientName, "O’Brién, Bea");
  EXPECT_EQ(Main().CustList2.Cell(Main().CustList2.Row(), 0), "1002");
  EXPECT_FALSE(IsOpen("frmFind"));

  globals.oInvoice.Release();
  Open("wool");
  EXPECT_EQ(The<InvoiceDetail>().lblInvoiceNum.Caption() + The<InvoiceDetail>().lblCustomer.Caption(),
            "1234O’Brién, Bea");
  Open("4711");
  const Grid& payments = The<Receipts>().PaymentList;
  EXPECT_EQ(payments.Cell(payments.Row(), 1), "1001") << "though it is older than what is listed at first";
  EXPECT_EQ(globals.CurCustNum, 1003);
  Open("lamp");
  const Grid& items = The<frmInventory>().InventoryList;
  EXPECT_EQ(items.Cell(items.Row(), 1) + The<frmInventory>().cmbCategory.Text(), "1002002 Lamps");
  Open("mill");
  EXPECT_EQ(The<Vendors>().lblVendorNum.Caption(), "1002");
  Open("march");
  const Grid& entries = The<GL>().PaymentList;
  EXPECT_EQ(entries.Cell(entries.Row(), GL::kTransNum), "1001");
}

TEST_F(FindTest, AsksBeforeItTakesTheScreenAndSaysWhatHasGone) {
  Open("quill");
  The<Profile>().txtFname.UserType("Beatrice");
  Main().mnuFind.Choose();
  Find("carl");
  Press(The<frmFind>().btnOpen, "Save Changes to", Answer::Cancel);
  EXPECT_EQ(The<Profile>().txtFname.Text(), "Beatrice");
  EXPECT_TRUE(IsOpen("frmFind"));

  Find("wool");
  database.Execute("DELETE FROM tb_Invoice WHERE InvoiceNum = 1234");
  Press(The<frmFind>().btnOpen, "This record is no longer there.");
  EXPECT_FALSE(IsOpen("InvoiceDetail"));
  EXPECT_THAT(Find("wool"), IsEmpty()) << "a file that has changed is read again";
}

TEST_F(FindTest, ReadsInSlicesWhateverTheNumbers) {
  database.Execute(
      "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 3000) "
      "INSERT INTO tb_Invoice (InvoiceNum, CustNum, Description) SELECT 2147483647 - i, 1, 'far' FROM n");
  FindIndex index(program.workspace);
  index.InitAccess(database.File());
  index.ReadIfChanged();
  int slices = 0;
  std::size_t found = 0;
  FindSearch search(index.Tables(), FindWords("far", program.convert));
  while (index.Reading() && ++slices < 200) {
    index.ReadSlice();
    while (search.Step(index.Complete())) found = search.Count();
    EXPECT_EQ(Connections(), 0);
  }
  EXPECT_GT(slices, 10);
  EXPECT_TRUE(search.Done());
  EXPECT_EQ(found, 3000u);
  ASSERT_EQ(search.Groups().size(), 1u);
  EXPECT_EQ(search.Groups()[0].best.size(), FindSearch::kMost);

  std::filesystem::remove(database.File());
  index.ReadIfChanged();
  EXPECT_THROW(index.ReadSlice(), RuntimeError);
  EXPECT_FALSE(index.Reading());
}

}  // namespace
}  // namespace norvane::test
