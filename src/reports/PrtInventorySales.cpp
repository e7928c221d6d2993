#include "reports/PrtInventorySales.h"

#include "core/Characters.h"
#include "store/Recordset.h"

namespace norvane {

namespace {

constexpr InventorySalesReport::Kind kKind{
    .name = PrtInventorySales::kName,
    .caption = "Print Inventory Sales",
    .title = "Inventory Sales",
    .order = "Category, TotalSales desc",
    .labels = {"PrtInventorySales.Form_Load -", "PrtInventorySales.SetForm -", "PrtInventorySales.InventoryPreview -"}};

}  // namespace

PrtInventorySales::PrtInventorySales(Program& host) : InventorySalesReport(host, kKind) {}

void PrtInventorySales::ListSales(Recordset& sales) {
  Currency total;
  while (!sales.Eof()) total += ListCategory(sales);
  WriteGrandTotal("Grand Total Inventory Sales:  ", total);
}

// Categories that differ by case alone are one, as the rows' order takes them.
Currency PrtInventorySales::ListCategory(Recordset& sales) {
  const std::string category = sales.Text("Category");
  WriteGroupTitle(category);
  ReportTable table(VSregistry, convert, kSales);
  Currency total;
  for (; !sales.Eof() && EqualNoCase(sales.Text("Category"), category); sales.MoveNext()) {
    total += sales.Currency("TotalSales");
    AddRow(table, sales);
  }
  table.End();
  return total;
}

}  // namespace norvane
