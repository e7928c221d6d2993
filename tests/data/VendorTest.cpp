#include "data/DataTest.h"
#include "data/Vendor.h"

namespace norvane::test {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class VendorTest : public DataTest {
 protected:
  std::shared_ptr<Vendor> vendor = Opened<Vendor>();
};

TEST_F(VendorTest, EveryPropertyGoesIntoItsColumnAndComesBack) {
  const std::vector<std::pair<std::string, std::string Vendor::*>> texts = {
      {"Company", &Vendor::Company}, {"Address1", &Vendor::Address1}, {"Address2", &Vendor::Address2},
      {"City", &Vendor::City},       {"State", &Vendor::State},       {"ZipCode", &Vendor::ZipCode},
      {"Phone", &Vendor::Phone},     {"CelPhone", &Vendor::CelPhone}, {"Fax", &Vendor::Fax},
      {"Email", &Vendor::Email},     {"WebPage", &Vendor::WebPage},   {"Notes", &Vendor::Notes},
      {"POnum", &Vendor::POnum}};
  for (const auto& [column, property] : texts) (*vendor).*property = column + "!";
  vendor->VendorNum = 1001;
  vendor->Discount = 2.5;
  vendor->SaveVendorAccess(1001);

  const auto other = Opened<Vendor>();
  other->CardNum1 = "kept";
  other->GetVendor("COMPANY!");
  EXPECT_EQ(other->VendorNum, 1001);
  EXPECT_EQ(other->Discount, 2.5);
  EXPECT_EQ(other->CardNum1, "kept");
  for (const auto& [column, property] : texts) {
    EXPECT_EQ((*other).*property, column + "!");
    EXPECT_EQ(database.Cell("select " + column + " from tb_Vendor"), column + "!");
  }

  other->GetVendor("nobody");
  EXPECT_EQ(other->VendorNum, 1002);
  EXPECT_EQ(other->Discount, 0);
  EXPECT_EQ(other->CardNum1, "kept");
  for (const auto& [column, property] : texts) EXPECT_EQ((*other).*property, "") << column;
}

TEST_F(VendorTest, WhatFailsLeavesTheProperties) {
  database.Execute("insert into tb_Vendor (VendorNum, Company, Notes) values (1001, 'Acme', 'new')");
  vendor->Notes = vendor->Company = "old";
  vendor->GetVendor("O'Hara");
  ExpectReport("Vendor.GetVendor -", kSyntaxError);
  EXPECT_EQ(vendor->Notes, "old");
  vendor->GetVendor("Acme");
  ExpectReport("Vendor.GetVendor -", 94);
  EXPECT_EQ(vendor->Notes, "new");
  EXPECT_EQ(vendor->Company, "old") << "it is read after the Discount that is Null";
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

TEST_F(VendorTest, ARefusedSaveLosesTheRow) {
  database.Execute("insert into tb_Vendor (VendorNum, Company) values (1001, 'Acme')");
  vendor->VendorNum = 1001;
  vendor->Company = "O'Hara";
  vendor->SaveVendorAccess(1001);
  ExpectReport("Vendor.SaveVendorAccess -", kSyntaxError);
  EXPECT_THAT(database.Rows("select * from tb_Vendor"), IsEmpty());
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
  std::vector<std::string> Selected(const std::string& field, const std::string& value) {
    return Rows(vendor->LedgerEntries(field, value, Date(45000)), {"TransNum"});
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
  EXPECT_THAT(Selected("vendor", "all"), ElementsAre("2", "1", "3"));
  EXPECT_THAT(Selected("VENDOR", "acme"), ElementsAre("1", "3"));
  EXPECT_THAT(Selected("Category", "Rent"), ElementsAre("2", "1"));
  EXPECT_THAT(Selected("NOTES", "a"), ElementsAre("1", "3"));
  EXPECT_THAT(Selected("Deposit", "anything"), ElementsAre("6", "5"));
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
  vendor->LedgerNotes = "it's";
  vendor->SaveLedgerEntry();
  ExpectReport("Vendor.SaveLedgerEntry -", kSyntaxError);
  EXPECT_THAT(database.Rows("select * from tb_GL where TransNum > 6"), IsEmpty());
  vendor->DeleteLedgerEntry(6);
  EXPECT_EQ(vendor->NewPayNum(), 6);
}

}  // namespace norvane::test
