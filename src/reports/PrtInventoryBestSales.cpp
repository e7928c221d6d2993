#include "reports/PrtInventoryBestSales.h"

#include "store/Recordset.h"

namespace norvane {

namespace {

constexpr int kMostItems = 20;

constexpr InventorySalesReport::Kind kKind{
    .name = PrtInventoryBestSales::kName,
    .caption = "Print 20 Best Inventory Sellers",
    .title = "Top 20 Inventory Sellers",
    .order = "TotalSales desc",
    .labels = {"PrtInventoryBestSales.Form_Load -", "PrtInventoryBestSales.SetForm -",
               "PrtInventoryBestSales.InventoryPreview -"}};

}  // namespace

PrtInventoryBestSales::PrtInventoryBestSales(Program& host) : InventorySalesReport(host, kKind) {}

// The one table is set off like a category, without a title.
void PrtInventoryBestSales::ListSales(Recordset& sales) {
  WriteGroupTitle("");
  ReportTable table(VSregistry, convert, kSales);
  for (int count = 0; count < kMostItems && !sales.Eof(); ++count, sales.MoveNext()) AddRow(table, sales);
  table.End();
}

}  // namespace norvane
