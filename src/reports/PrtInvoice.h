#pragma once

#include "reports/ReportForm.h"

namespace norvane {

class Client;
class Recordset;
class ReportTable;

/// Prints the invoice CurInvoiceNum on one form-like page.
class PrtInvoice : public VSInvoiceReport {
 public:
  static constexpr const char* kName = screen::kPrtInvoice;
  explicit PrtInvoice(Program& program);

 private:
  struct Order;

  void Form_Load() override;
  Order ReadOrder();
  void WriteShipTo(const Client& client);
  void WriteOrderTable(const Order& order);
  Currency WriteLineTable(Recordset& lines);
  void WriteLine(ReportTable& table, const Recordset& line);
  void WriteTotals(const Order& order, Currency subTotal);
};

}  // namespace norvane
