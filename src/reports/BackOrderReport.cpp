#include "reports/BackOrderReport.h"

#include <cmath>

#include "reports/ReportTable.h"
#include "store/Recordset.h"

namespace norvane {

namespace {

constexpr const char* kFormat = "^0.75in|^0.75in|0.75in|2in|^0.5in|1.25in|1.25in;";
constexpr ReportMargins kMargins{.left = "0.5in", .right = "0.25in", .top = "0.25in", .bottom = "0.5in"};

constexpr BackOrderReport::Kind kToOrder{.name = PrtBackOrders::kName,
                                         .caption = "Print Items to Back Order",
                                         .title = "Invoice Items to BackOrder",
                                         .heading = "Date|Inventory#|Invoice#|Description|Qty|Client|Sales Rep;",
                                         .dateField = "InvoiceDate",
                                         .label = "PrtBackOrders.BackOrderItemsPreview -"};
constexpr BackOrderReport::Kind kOnOrder{.name = PrtBackOrdered::kName,
                                         .caption = "Print Backordered Items",
                                         .title = "Invoice Items BackOrdered",
                                         .heading = "Ordered|Inventory#|Invoice#|Description|Qty|Client|Sales Rep;",
                                         .dateField = "ordered",
                                         .label = "PrtBackOrdered.BackOrderItemsPreview -"};

}  // namespace

BackOrderReport::BackOrderReport(Program& host, const Kind& kind)
    : VSregistryReport(host, kind.name, kind.caption), kind_(kind) {}

void BackOrderReport::BackOrderItemsPreview() {
  Build(kind_.label, [this] {
    const std::string title = kind_.title;
    StartList(title, "|" + title + "|" + convert.ToText(desktop.Today()), {.margins = kMargins});
    VSregistry.WriteParagraph("");
    ReportTable table(VSregistry, convert, {pages::TableBorder::List, kFormat, kind_.heading});
    const Object<Recordset> lines = globals.rsBackOrders;
    if (lines->RecordCount() > 0) lines->MoveFirst();
    for (; !lines->Eof(); lines->MoveNext()) {
      table.Row(lines->Field(kind_.dateField), lines->Field("ItemNum"), lines->Field("InvoiceNum"),
                lines->Field("Notes"), std::abs(convert.ToDouble(lines->Field("backorderqty"))),
                lines->Text("fname") + " " + lines->Text("lname"), lines->Field("SalesRep"));
    }
    table.EndList("0.2in");
    VSregistry.EndDocument();
  });
}

PrtBackOrders::PrtBackOrders(Program& host) : BackOrderReport(host, kToOrder) {
  SetReportLayout({btnOrder});
  WireTo(btnOrder, screen::kBackOrderSet);
}

void PrtBackOrders::Form_Resize() {
  VSregistryReport::Form_Resize();
  IgnoringErrors([this] { btnOrder.SetLeft(Width() - 1500); });
}

PrtBackOrdered::PrtBackOrdered(Program& host) : BackOrderReport(host, kOnOrder) {
  SetReportLayout();
}

}  // namespace norvane
