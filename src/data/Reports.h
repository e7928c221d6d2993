#pragma once

#include <functional>
#include <string>

#include "core/Currency.h"
#include "core/Date.h"
#include "data/DataObject.h"

namespace norvane {

/// The totals of a period. An object serves one run of a report.
class Reports : public DataObject {
 public:
  /// The period is this year up to today.
  explicit Reports(Workspace& workspace);

  Date BegDate;  ///< first day of the period
  Date EndDate;  ///< last day of the period

  /// Paid from the ledger under a category.
  Currency Payments(const std::string& category);
  /// Received from clients. A period without payments is reported, and 0.
  Currency Receipts();
  /// What was sold of each item: ItemNum, Category, Description, Qty, TotalSales, the last being the sum of the lines.
  Object<Recordset> rsInventorySales();
  /// The totals of all invoices. Replaces the shared oInvoice for its work, and leaves nothing in its place. Calls
  /// `step` after each invoice.
  Currency TotalSales(const std::function<void()>& step = [] {});
};

}  // namespace norvane
