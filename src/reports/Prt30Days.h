#pragma once

#include "reports/ReportForm.h"

namespace norvane {

class Recordset;

/// Lists the clients whose last payment is more than AgingDays days ago, the oldest payment first. Neither balances nor
/// the dates of invoices count; a client who never paid isn't listed.
class Prt30Days : public VSInvoiceReport {
 public:
  static constexpr const char* kName = screen::kPrt30Days;
  explicit Prt30Days(Program& program);

 private:
  void Form_Load() override;
  Object<Recordset> FindPastDue();
  void ListClients(Recordset& pastDue);
};

}  // namespace norvane
