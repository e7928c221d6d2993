#include "ReportOffice.h"
#include "data/SharedLists.h"
#include "data/Vendor.h"
#include "reports/PrtBals.h"
#include "reports/PrtReceipt.h"
#include "reports/PrtRegistry.h"

namespace norvane::test {
namespace {

/// What all reports share, seen on one of each family.
class ReportFormTest : public ReportOffice {
 protected:
  ReportFormTest() {
    globals.oVendor = Made<Vendor>();
    globals.LedgerField = Vendor::kByVendor;
    globals.LedgerFieldValue = Vendor::kAll;
    SetupInit(program.workspace);
  }
};

TEST_F(ReportFormTest, AnErrorAtThePressOfAButtonShowsTheDocumentSoFarOnce) {
  auto& report = Open<PrtRegistry>();
  database.Execute("INSERT INTO tb_GL (TransNum, Date, Deposit) VALUES (7, 46002, 5)");
  int shown = 0;
  report.VSregistry.observer = [&](Aspect aspect) { shown += aspect == Aspect::Pages; };
  report.OptDeposits.Press();
  desktop.Expect("PrtRegistry.DepositPreview -94");
  report.btnGo.Press();
  EXPECT_EQ(shown, 1);
  EXPECT_THAT(WordsOf(report.VSregistry), ElementsAre("ALL", "Registry Report", "11/22/2026"));
}

TEST_F(ReportFormTest, ResizesByTheRuleOfItsFamily) {
  const auto placesOf = [](const Form& form, const Control& preview) {
    const Control* exit = form.Controls().front();
    return std::vector<Twips>{preview.Left(), preview.Width(), preview.Height(), exit->Left()};
  };
  auto& balances = Open<PrtBals>();
  EXPECT_TRUE(balances.VSInvoice.HasFocus());
  balances.UserResize(10'000, 8'000);
  EXPECT_THAT(placesOf(balances, balances.VSInvoice), ElementsAre(0, 9830, 7350, 9000));
  balances.UserResize(999, 600);
  EXPECT_THAT(placesOf(balances, balances.VSInvoice), ElementsAre(0, 829, 7350, 9000)) << "what is too small stays";

  auto& registry = Open<PrtRegistry>();
  const Twips frame = registry.Frame1.Width();
  EXPECT_EQ(registry.Width(), 13'500 + frame) << "it opens wide enough for page and frame";
  registry.UserResize(10'000 + frame, 8'000);
  EXPECT_THAT(placesOf(registry, registry.VSregistry), ElementsAre(25, 9750, 7200, 9000 + frame));
  EXPECT_EQ(registry.Frame1.Left(), 9800);
  registry.UserResize(200 + frame, 700);
  EXPECT_THAT(placesOf(registry, registry.VSregistry), ElementsAre(25, 9750, 7200, frame - 800));
}

TEST_F(ReportFormTest, TheCompanysLinesHaveTheirPrefixesAndTheSlashStaysAlone) {
  EXPECT_THAT(WordsOf(Open<PrtReceipt>().VSInvoice), IsSupersetOf({",  ", " / "}));
  program.screens.Unload(PrtReceipt::kName);
  database.Execute(
      "INSERT INTO tb_Company (Name, Address1, Address2, City, State, ZipCode, Phone, Fax, WebSite, Statetaxrate) "
      "VALUES ('Norvane | Co;', '12 Harbour Road', 'unprinted', 'Portland', 'ME', '04101', '555-0100', '555-0101', "
      "'norvane.example', 0)");
  const auto words = WordsOf(Open<PrtReceipt>().VSInvoice);
  EXPECT_THAT(words, IsSupersetOf({"Norvane | Co;", "12 Harbour Road", "Portland, ME 04101",
                                   "Phone: 555-0100 / Fax: 555-0101", "Web: norvane.example"}));
  EXPECT_THAT(words, Not(Contains("unprinted")));
}

}  // namespace
}  // namespace norvane::test
