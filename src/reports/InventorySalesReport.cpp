#include "reports/InventorySalesReport.h"

#include "core/FileNames.h"
#include "data/Reports.h"
#include "store/Recordset.h"

namespace norvane {

namespace {

constexpr int kFirstYear = 2001;

}  // namespace

const TableKind InventorySalesReport::kSales{pages::TableBorder::List, "0.5in|2.75in|^0.75in|>1in;",
                                             "Item#|Description|Qty|Total Sales;"};

InventorySalesReport::InventorySalesReport(Program& host, const Kind& kind)
    : PeriodReport(host, kind.name, kind.caption), kind_(kind) {
  SetReportLayout({BeginningField("For Dates:"), EndingField("-"), btnGo});
}

void InventorySalesReport::Form_Load() {
  Build(kind_.labels.formLoad, [this] {
    SetPeriod(Date::FromYearMonthDay(kFirstYear, 1, 1), desktop.Today());
    SetForm();
  });
}

// A date typed into a box doesn't count: the boxes show again the dates that do.
void InventorySalesReport::SetForm() {
  Build(kind_.labels.setForm, [this] {
    SetPeriod(DTbegdate.Value(), dtEndDate.Value());
    Reports reports(workspace);
    reports.BegDate = DTbegdate.Value();
    reports.EndDate = dtEndDate.Value();
    reports.InitAccess(workspace.File(kDatabaseFile));
    reports.OpenCn();
    InventoryPreview(reports);
    reports.CloseCn();
  });
}

void InventorySalesReport::InventoryPreview(Reports& reports) {
  Build(kind_.labels.preview, [&] {
    const Object<Recordset> sales = reports.rsInventorySales();
    sales->Sort(kind_.order);
    if (sales->RecordCount() == 0) return NothingToPrint("No inventory sales for selected time period to print");
    sales->MoveFirst();
    const std::string period = convert.ToText(DTbegdate.Value()) + " - " + convert.ToText(dtEndDate.Value());
    StartList(std::string(kind_.title) + " " + period, ListHeader(kind_.title));
    VSregistry.SetBold(true);
    VSregistry.WriteParagraph(period);
    VSregistry.WriteParagraph("");
    ListSales(*sales);
    VSregistry.EndDocument();
  });
}

void InventorySalesReport::AddRow(ReportTable& table, const Recordset& sale) {
  table.Row(sale.Field("ItemNum"), sale.Field("description"), sale.Field("Qty"), Money{sale.Field("TotalSales")});
}

}  // namespace norvane
