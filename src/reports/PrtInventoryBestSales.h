#pragma once

#include "reports/InventorySalesReport.h"

namespace norvane {

/// The twenty items that sold best in a period. Ties at the twentieth place are cut.
class PrtInventoryBestSales : public InventorySalesReport {
 public:
  static constexpr const char* kName = screen::kPrtInventoryBestSales;
  explicit PrtInventoryBestSales(Program& program);

 private:
  void ListSales(Recordset& sales) override;
};

}  // namespace norvane
