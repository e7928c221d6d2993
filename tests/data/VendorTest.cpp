#include "data/DataTest.h"
#include "data/Vendor.h"

namespace norvane::test {

using ::testing::ElementsAre;

class VendorTest : public DataTest {
 protected:
  std::shared_ptr<Vendor> vendor = Opened<Vendor>();
};

TEST_F(VendorTest, EveryColumnComesAndGoesBack) {
  database.Execute("insert into tb_Vendor (VendorNum, Discount) values (1001, 2.5)");
  FillTexts("tb_Vendor");
  const std::string row = database.Rows("select * from tb_Vendor")[0];
  vendor->CardNum1 = "kept";
  vendor->GetVendor("\"COMPANY\"; --");
  EXPECT_EQ(vendor->Discount, 2.5);
  for (const auto& [column, property] : {std::pair{"State", vendor->State}, {"Fax", vendor->Fax}}) {
    EXPECT_EQ(property, "\"" + std::string(column) + "\"; --");
  }
  vendor->VendorNum = 1003;
  vendor->SaveVendorAccess(1);
  EXPECT_THAT(database.Rows("select * from tb_Vendor"), ElementsAre(row, "1003" + row.substr(4)));

  vendor->GetVendor("nobody");
  vendor->SaveVendorAccess(1001);
  EXPECT_THAT(database.Rows("select * from tb_Vendor"),
              ElementsAre("1003" + row.substr(4), "1004" + std::string(14, '|') + "0.0"));
  EXPECT_EQ(vendor->CardNum1, "kept");
}

TEST_F(VendorTest, ListAndNames) {
  database.Execute("insert into tb_Vendor (VendorNum, Company) values (1001, 'beta'), (1002, 'Alpha'), (1003, 'Beta')");
  EXPECT_THAT(Rows(vendor->GetAllVendors(), {"company", "vendornum"}),
              ElementsAre("Alpha|1002", "beta|1001", "Beta|1003"));
  EXPECT_EQ(vendor->VendorCompany(1002), "Alpha");
  EXPECT_EQ(vendor->VendorName(1002), "");
  ExpectReport("Vendor.VendorName -", kUnknownColumn);
  EXPECT_EQ(vendor->VendorBal(1002), Currency());
  ExpectReport("Vendor.VendorBal -", kUnknownColumn);
  EXPECT_FALSE(vendor->GetVendorRS(1));
}

TEST_F(VendorTest, DeletingTakesTheCompanysLedgerUnlessItCannotBeTold) {
  database.Execute(
      "insert into tb_Vendor (VendorNum, Company) values (1001, 'Acme'), (1002, 'O''Hara');"
      "insert into tb_GL (TransNum, Vendor, Payment, Deposit) values (1, 'ACME', 300000, 0), (2, 'O''Hara', 10000, 0)");
  vendor->DeleteVendor(1009);
  ExpectReport("Vendor.DeleteVendor -", 3021);
  vendor->DeleteVendor(1002);
  ExpectReport("Vendor.DeleteVendor -", kSyntaxError);
  EXPECT_EQ(vendor->LedgerEndBal(), Money(-31));
  vendor->DeleteVendor(1001);
  EXPECT_EQ(vendor->LedgerEndBal(), Money(-1));
  EXPECT_THAT(database.Rows("select VendorNum from tb_Vendor"), ElementsAre("1002"));
}

class LedgerTest : public VendorTest {
 protected:
  void SetUp() override {
    database.Execute(
        "insert into tb_GL (TransNum, Date, CheckNum, Vendor, Payment, Cleared, Category, Deposit, Notes) values "
        "(1, 45000, '20', 'Acme', 300000, 0, 'Rent', 0, 'a'), (2, 45000, '10', 'Bell', 10000, -1, 'Rent', 0, 'b'),"
        "(3, 45001, 'ATM', 'Acme', 5, 0, 'Phone', 0, 'A'), (4, 44000, '', 'Acme', 10000, 0, 'Rent', 0, 'a'),"
        "(5, 45009, '', '', 0, -1, 'Rent', 1000000, 'a'), (6, 44000, '', '', 0, 0, '', 1, '')");
  }
};

TEST_F(LedgerTest, BalancesAreDepositsLessPayments) {
  EXPECT_EQ(vendor->LedgerEndBal(), Money(68 + 0.0001 - 0.0005));
  EXPECT_EQ(vendor->LedgerCurrentBal(), Money(99));
  database.Clear();
  EXPECT_EQ(vendor->LedgerEndBal(), Money(0));
  EXPECT_EQ(vendor->LedgerCurrentBal(), Money(0));
}

TEST_F(LedgerTest, SelectionsShowPaymentsSinceADayButDepositsOfAllTimes) {
  const auto selected = [&](const std::string& field, const std::string& value) {
    return Rows(vendor->LedgerEntries(field, value, Date(45000)), {"TransNum"});
  };
  EXPECT_THAT(selected("vendor", "all"), ElementsAre("2", "1", "3"));
  EXPECT_THAT(selected("VENDOR", "acme"), ElementsAre("1", "3"));
  EXPECT_THAT(selected("Category", "Rent"), ElementsAre("2", "1"));
  EXPECT_THAT(selected("NOTES", "a"), ElementsAre("1", "3"));
  EXPECT_THAT(selected("Deposit", "anything"), ElementsAre("6", "5"));
  EXPECT_THAT(Rows(vendor->LedgerEntriesAll(), {"TransNum"}), ElementsAre("4", "6", "2", "1", "3", "5"));
}

TEST_F(LedgerTest, SelectionsThatTheStoreCannotReadGiveNothing) {
  EXPECT_FALSE(vendor->LedgerEntries("CLEARED", "True", Date()));
  ExpectReport("Vendor.LedgerEntries -", kCriteriaMismatch);
  EXPECT_FALSE(vendor->LedgerEntries("CLEARED", "perhaps", Date()));
  ExpectReport("Vendor.LedgerEntries -", 13);
  EXPECT_FALSE(vendor->LedgerEntries("Payee", "x", Date()));
  EXPECT_THAT(reporter.reports, ElementsAre(::testing::StartsWith("Vendor.LedgerEntries -")));
  reporter.reports.clear();
}

TEST_F(LedgerTest, AnEntryIsSavedWithItsNextNumberAndReplacedUnderItsNumber) {
  vendor->TransDate = Day(2026, 11, 1);
  vendor->Checknum = "ATM";
  vendor->LedgerVendor = "Acme";
  vendor->Payment = Money(1.25);
  vendor->Category = "Rent";
  vendor->Deposit = Money(0);
  vendor->LedgerNotes = "n";
  vendor->Cleared = true;
  vendor->SaveLedgerEntry();
  EXPECT_EQ(vendor->TransNum, 7);
  vendor->Cleared = false;
  vendor->SaveLedgerEntry();
  EXPECT_THAT(database.Rows("select * from tb_GL where TransNum > 6"),
              ElementsAre("7|" + Serial(2026, 11, 1) + "|ATM|Acme|12500|0|Rent|0|n"));
  vendor->DeleteLedgerEntry(7);
  EXPECT_EQ(vendor->NewPayNum(), 7);
}

}  // namespace norvane::test
