#include "reports/PrtBackOrderFill.h"

#include "reports/BackOrderFill.h"
#include "reports/ReportTable.h"

namespace norvane {

namespace {

constexpr TableKind kLines{pages::TableBorder::List, "^0.75in|^0.75in|0.75in|2in|^0.5in|1.25in|1.25in;",
                           "Date|Inventory#|Invoice#|Description|Qty|Client|Sales Rep;"};

}  // namespace

PrtBackOrderFill::PrtBackOrderFill(Program& host) : VSregistryReport(host, kName, "Print Picking List") {
  SetReportLayout();
}

void PrtBackOrderFill::Form_Load() {
  Build("PrtBackOrderFill.BackOrderItemsPreview -", [this] {
    const Grid& lines = screens.Touch<BackOrderFill>().InventoryList;
    StartList("Back Orders to Fill", ListHeader("Back Orders to Fill"));
    VSregistry.WriteParagraph("");
    ReportTable table(VSregistry, convert, kLines);
    for (const int row : lines.MarkedRows()) {
      const auto cell = [&](BackOrderFill::LineColumn col) { return lines.Cell(row, col); };
      table.Row(cell(BackOrderFill::kInvoiceDate), cell(BackOrderFill::kItemNum), cell(BackOrderFill::kInvoiceNum),
                cell(BackOrderFill::kDescription), cell(BackOrderFill::kQty), cell(BackOrderFill::kClient),
                cell(BackOrderFill::kSalesRep));
    }
    table.EndList("0.2in");
    VSregistry.EndDocument();
    complete_ = true;
  });
}

}  // namespace norvane
