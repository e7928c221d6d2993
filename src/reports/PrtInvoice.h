#pragma once

#include "reports/ReportForm.h"

namespace norvane {

class Client;
class Recordset;

/// Prints the invoice CurInvoiceNum of the client CurCustNum on one form-like page.
class PrtInvoice : public VSInvoiceReport {
 public:
  static constexpr const char* kName = "PrtInvoice";
  explicit PrtInvoice(Program& program);

 private:
  struct Order;

  void Form_Load() override;
  void ReadClient();
  Order ReadOrder();
  void WriteShipTo(const Client& client);
  void WriteOrderTable(const Order& order);
  Currency WriteLineTable(Recordset& lines);
  void WriteLine(const Recordset& line);
  void WriteTotals(const Order& order, Currency subTotal);
};

}  // namespace norvane
