#include "ReportOffice.h"
#include "data/SharedLists.h"
#include "data/Vendor.h"
#include "reports/PrtRegistry.h"
#include "support/Golden.h"

namespace norvane::test {
namespace {

class PrtRegistryTest : public ReportOffice {
 protected:
  PrtRegistryTest() {
    globals.oVendor = Made<Vendor>();
    SetupInit(program.workspace);
    database.Execute(
        "INSERT INTO tb_Vendor (VendorNum, Company) VALUES (1001, 'Acme'), (1002, 'Bolt');"
        "INSERT INTO tb_GL (TransNum, Date, CheckNum, Vendor, Category, Payment, Deposit, Cleared, Notes) VALUES "
        "(1, 45657, '1', 'Acme', 'Rent', 100000, 0, 0, 'the year before'),"
        "(2, 45658, '9', 'Bolt', 'rent', 5050, 0, 0, ''), (3, 45658, '10', 'Acme', 'Rent', 12345678, 0, -1, ''),"
        "(4, 46000, 'EFT', 'Acme', 'Travel', 200000, 0, 0, ''), (5, 45000, 'DEP', '', '', 0, 990000, -1, 'Cards'),"
        "(6, 46001, 'DEP', '', '', 70000, 10000, 0, 'a refund')");
  }

  PrtRegistry& OpenOn(const char* field, const char* value) {
    globals.LedgerField = field;
    globals.LedgerFieldValue = value;
    program.screens.Reopen(PrtRegistry::kName);
    return Report();
  }
  PrtRegistry& Report() { return *program.screens.Find<PrtRegistry>(); }
  std::vector<std::string> Words() { return WordsOf(Report().VSregistry); }
};

TEST_F(PrtRegistryTest, OpensOnWhatTheRegisterLeft) {
  std::string pages;
  for (const auto& [field, value] : {std::pair(Vendor::kByVendor, "ALL"), std::pair(Vendor::kByVendor, "acme"),
                                     std::pair(Vendor::kByCategory, "Rent"), std::pair(Vendor::kByDeposit, "ALL"),
                                     std::pair(Vendor::kByCategory, "Insurance")}) {
    pages += TextOf(OpenOn(field, value).VSregistry);
  }
  ExpectGolden("prt_registry.txt", pages);
  EXPECT_EQ(Report().txtSinceDate.Text(), "01/01/25");
}

TEST_F(PrtRegistryTest, TheOptionThatIsOnCountsWhereverTheRegistersCursorHasGone) {
  PrtRegistry& report = OpenOn(Vendor::kByVendor, "ALL");
  EXPECT_THAT(report.CmbPrintCrit.Items(), ElementsAre("Acme", "Bolt"));
  report.OptCategory.Press();
  EXPECT_THAT(report.CmbPrintCrit.Items(), Contains("Travel"));
  report.CmbPrintCrit.UserPick(6);
  globals.LedgerField = Vendor::kByDeposit;
  globals.LedgerFieldValue = "ALL";
  report.btnGo.Press();
  EXPECT_THAT(Words(), IsSupersetOf({"Registry entries for: Travel", "12/9/2025", "EFT", "$20.00"}));

  report.OptAll.Press();
  EXPECT_EQ(report.CmbPrintCrit.Text(), "All");
  EXPECT_FALSE(report.CmbPrintCrit.Enabled());
  report.DTPicker1.UserPick(Date(45657));
  report.btnGo.Press();
  EXPECT_THAT(Words(), IsSupersetOf({"Registry entries for: All", "12/31/2024", "Bolt", "$1,272.07"}));

  report.OptDeposits.Press();
  EXPECT_FALSE(report.CmbPrintCrit.Enabled()) << "left as it was";
  report.btnGo.Press();
  EXPECT_THAT(Words(), IsSupersetOf({"3/15/2023", "$99.00", "Cards"}));
  EXPECT_THAT(Words(), Not(Contains("Total")));

  globals.rsVendors.Release();  // as the registry does when it closes
  report.OptVendor.Press();
  EXPECT_THAT(report.CmbPrintCrit.Items(), ElementsAre("Acme", "Bolt"));
  report.txtSinceDate.UserType("02/30/25");
  desktop.Expect("PrtRegistry.btnGo_Click -13 Type mismatch");
  report.btnGo.Press();
}

TEST_F(PrtRegistryTest, WhatCannotBeSelectedOrAddedUpIsReported) {
  database.Execute("INSERT INTO tb_GL (TransNum, Date, Deposit) VALUES (7, 46002, 5)");
  desktop.Expect("PrtRegistry.DepositPreview -94 Invalid use of Null");
  OpenOn(Vendor::kByDeposit, "ALL");
  desktop.Expect("Vendor.LedgerEntries --2147217900");
  desktop.Expect("PrtRegistry.VendorPaymentPreview -91");
  OpenOn(Vendor::kByVendor, "O'Hara");
  EXPECT_THAT(Words(), ElementsAre("Registry entries for: O'Hara", "11/22/2026"));
}

}  // namespace
}  // namespace norvane::test
