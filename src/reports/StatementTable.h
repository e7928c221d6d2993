#pragma once

#include "core/Currency.h"
#include "core/Date.h"
#include "reports/ReportTable.h"

namespace norvane {

class Recordset;

/// The table of billing statements and receipts: an opening balance, then charges and payments, each with the balance
/// after it, on a form of 20 rows.
class StatementTable {
 public:
  StatementTable(pages::DocumentBuilder& document, const Conversions& convert, Date opening, Currency balance);

  void Charge(const Value& date, const Value& description, Currency total);
  /// Takes the rows from the current one on: Date, Amount. A Null amount raises 94.
  void Payments(Recordset& payments);
  void End() { table_.EndForm(); }

 private:
  ReportTable table_;
  Currency balance_;
};

}  // namespace norvane
