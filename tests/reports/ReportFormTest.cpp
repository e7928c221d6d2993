#include "ReportOffice.h"
#include "reports/Headings.h"
#include "reports/PeriodReport.h"
#include "reports/ReportTable.h"

namespace norvane::test {
namespace {

constexpr const char* kNotice = screen::kLoadingClients;

/// A report with criteria beside it. It goes on only with a number in LedgerFieldValue.
class Criteria : public PeriodReport {
 public:
  static constexpr const char* kName = "Criteria";
  explicit Criteria(Program& host) : PeriodReport(host, kName, "Print Criteria") {
    SetFramedLayout(Frame1, layout::Column({BeginningField("Since:"), EndingField("To:"), btnGo}));
  }

  Frame Frame1{*this, "Frame1", "Print"};

 private:
  void Form_Load() override {
    Build("Criteria.Form_Load -", [this] {
      ShowNotice(kNotice);
      SetPeriod(Date::FromYearMonthDay(2025, 1, 1), desktop.Today());
      ListPreview();
      screens.Unload(kNotice);
    });
  }
  void btnGo_Click() override {
    Build("Criteria.btnGo_Click -", [this] { ListPreview(); });
  }

  void ListPreview() {
    VSregistry.Clear();
    StartList("Criteria", ListHeader("Criteria"), {.margins = {.top = "0.25in"}});
    VSregistry.WriteParagraph("Since " + convert.ToText(convert.ToDateFromMask(txtBegDate.Text())));
    VSregistry.WriteParagraph(convert.ToText(convert.ToLong(globals.LedgerFieldValue)));
    VSregistry.EndDocument();
  }
};

/// A form with the blocks of a receipt.
class Receipt : public VSInvoiceReport {
 public:
  static constexpr const char* kName = "Receipt";
  explicit Receipt(Program& host) : VSInvoiceReport(host, kName, "Print Receipt") { SetReportLayout(); }

 private:
  void Form_Load() override {
    Build("Receipt.Form_Load -", [this] {
      const CompanyHeading company = TakeCompanyHeading(globals.oSetup);
      constexpr TableKind kTable{pages::TableBorder::Grid, "1in|1in;", "A|B;"};
      StartReport("Receipt");
      WriteCompanyHeading(VSInvoice, company, company.Name);
      ReportTable table(VSInvoice, convert, kTable);
      table.Row("a", "b");
      table.EndForm();
      VSInvoice.EndDocument();
    });
  }
};

class ReportFormTest : public ReportOffice {
 protected:
  ReportFormTest() {
    globals.LedgerFieldValue = "1";
    program.screens.Add<Criteria>();
    program.screens.Add<Receipt>();
  }
  bool NoticeIsOpen() { return program.screens.Find(kNotice) != nullptr; }
};

TEST_F(ReportFormTest, AnErrorIsReportedOnceAndLeavesWhatWasBuilt) {
  globals.LedgerFieldValue = "none";
  desktop.Expect("Criteria.Form_Load -13 Type mismatch.  If error persists contact Norvanes author.");
  Criteria& report = Open<Criteria>();
  EXPECT_TRUE(report.IsVisible());
  EXPECT_TRUE(NoticeIsOpen());
  EXPECT_THAT(WordsOf(report.VSregistry),
              ElementsAre("Criteria", "Norvane & Daughters", "11/22/2026", "Since 1/1/2025"));
  globals.LedgerFieldValue = "2";
  report.btnGo.Press();
  EXPECT_THAT(WordsOf(report.VSregistry), Contains("2"));

  globals.LedgerFieldValue = "none";
  int toldOfPages = 0;
  report.VSregistry.observer = [&](Aspect aspect) { toldOfPages += aspect == Aspect::Pages; };
  desktop.Expect("Criteria.btnGo_Click -13");
  report.btnGo.Press();
  EXPECT_EQ(toldOfPages, 1);
  EXPECT_THAT(WordsOf(report.VSregistry), Not(Contains("2")));
  report.btnExit.Press();
  EXPECT_FALSE(NoticeIsOpen());

  globals.LedgerFieldValue = "3";
  desktop.DuringDoEvents([&] { EXPECT_TRUE(NoticeIsOpen()); });
  Criteria& again = Open<Criteria>();
  EXPECT_FALSE(NoticeIsOpen());
  globals.LedgerFieldValue = "4";
  Open<Receipt>().UserClose();
  EXPECT_THAT(WordsOf(again.VSregistry), Contains("3")) << "each has its own document";
}

TEST_F(ReportFormTest, TheTwoHalvesOfADateGoTheirOwnWaysAfterTyping) {
  Criteria& report = Open<Criteria>();
  EXPECT_EQ(report.txtBegDate.Text(), "01/01/25");
  report.txtBegDate.UserType("03/04/26");
  EXPECT_EQ(report.DTbegdate.Value(), Date::FromYearMonthDay(2025, 1, 1));
  report.btnGo.Press();
  EXPECT_THAT(WordsOf(report.VSregistry), Contains("Since 3/4/2026"));
  report.DTbegdate.UserPick(Date::FromYearMonthDay(2024, 12, 31));
  EXPECT_EQ(report.txtBegDate.Text(), "12/31/24");
  report.txtBegDate.UserType("02/30/26");
  desktop.Expect("Criteria.btnGo_Click -13");
  report.btnGo.Press();
}

TEST_F(ReportFormTest, ResizesByTheRuleOfItsKind) {
  const auto placesOf = [](const Form& form, const Control& preview) {
    const Control* exit = form.Controls().front();
    return std::vector<Twips>{preview.Left(), preview.Width(), preview.Height(), exit->Left()};
  };
  Receipt& receipt = Open<Receipt>();
  EXPECT_TRUE(receipt.VSInvoice.HasFocus());
  receipt.UserResize(10'000, 8'000);
  EXPECT_THAT(placesOf(receipt, receipt.VSInvoice), ElementsAre(0, 9830, 7350, 9000));
  receipt.UserResize(999, 600);
  EXPECT_THAT(placesOf(receipt, receipt.VSInvoice), ElementsAre(0, 829, 7350, 9000)) << "what is too small stays";

  Criteria& criteria = Open<Criteria>();
  const Twips frame = criteria.Frame1.Width();
  EXPECT_EQ(criteria.Width(), 13'500 + frame) << "it opens wide enough for page and frame";
  criteria.UserResize(10'000 + frame, 8'000);
  EXPECT_THAT(placesOf(criteria, criteria.VSregistry), ElementsAre(25, 9750, 7200, 9000 + frame));
  EXPECT_EQ(criteria.Frame1.Left(), 9800);
  criteria.UserResize(200 + frame, 700);
  EXPECT_THAT(placesOf(criteria, criteria.VSregistry), ElementsAre(25, 9750, 7200, frame - 800));
}

TEST_F(ReportFormTest, TheCompanysLinesBearTheirPrefixesAndTheSlashStaysAlone) {
  EXPECT_THAT(WordsOf(Open<Receipt>().VSInvoice), ElementsAre(",  ", " / ", "A", "B", "a", "b"));
  program.screens.Unload("Receipt");
  database.Execute(
      "INSERT INTO tb_Company (Name, Address1, Address2, City, State, ZipCode, Phone, Fax, WebSite, Statetaxrate) "
      "VALUES ('Norvane | Co;', '12 Harbour Road', 'unprinted', 'Portland', 'ME', '04101', '555-0100', '555-0101', "
      "'norvane.example', 0)");
  EXPECT_THAT(WordsOf(Open<Receipt>().VSInvoice),
              ElementsAre("Norvane | Co;", "12 Harbour Road", "Portland, ME 04101", "Phone: 555-0100 / Fax: 555-0101",
                          "Web: norvane.example", "A", "B", "a", "b"));
}

}  // namespace
}  // namespace norvane::test
