#pragma once

#include "reports/InventorySalesReport.h"

namespace norvane {

/// What was sold of each item in a period, by category, the best seller first.
class PrtInventorySales : public InventorySalesReport {
 public:
  static constexpr const char* kName = screen::kPrtInventorySales;
  explicit PrtInventorySales(Program& program);

 private:
  void ListSales(Recordset& sales) override;
  /// Lists the rows of the current row's category and returns their sum.
  Currency ListCategory(Recordset& sales);
};

}  // namespace norvane
