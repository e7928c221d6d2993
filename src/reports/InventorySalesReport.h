#pragma once

#include "reports/PeriodReport.h"
#include "reports/ReportTable.h"

namespace norvane {

class Recordset;
class Reports;

/// What the two reports on the sales of stock items share. They open on all years, and the pickers count, not the
/// boxes.
class InventorySalesReport : public PeriodReport {
 public:
  /// The reports differ in their names, the title of their header, the order of their rows and what they list.
  struct Kind {
    const char* name;
    const char* caption;
    const char* title;
    const char* order;
    struct Labels {
      const char *formLoad, *setForm, *preview;
    } labels;
  };

 protected:
  InventorySalesReport(Program& host, const Kind& kind);

  static const TableKind kSales;
  static void AddRow(ReportTable& table, const Recordset& sale);

 private:
  void Form_Load() override;
  void btnGo_Click() override { SetForm(); }
  void SetForm();
  void InventoryPreview(Reports& reports);
  /// Writes the report's tables of the rows, from the first one on; there is at least one.
  virtual void ListSales(Recordset& sales) = 0;

  const Kind& kind_;
};

}  // namespace norvane
