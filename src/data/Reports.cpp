#include "data/Reports.h"

#include "core/Clock.h"
#include "core/FileNames.h"
#include "data/Invoice.h"
#include "data/Statement.h"

namespace norvane {

Reports::Reports(Workspace& workspace)
    : DataObject(workspace),
      BegDate(Date::FromYearMonthDay(workspace.clock.Today().Year(), 1, 1)),
      EndDate(workspace.clock.Today()) {}

Currency Reports::Payments(const std::string& category) {
  return Result("Reports.Payments -", [&] {
    const auto sum = Read(sql::Statement("SELECT sum(Payment) as TotalPaid from tb_GL where Category = '", category,
                                         "' and [date] >= ", BegDate, " and [date]<= ", EndDate));
    return SumOrZero(*sum, "TotalPaid");
  });
}

// Unlike Payments this has no guard: a period in which nothing was received is reported as an error.
Currency Reports::Receipts() {
  return Result("Reports.Receipts -", [&] {
    return Read(sql::Statement("SELECT sum(Amount) as TotalReceived from tb_Receive where [date] >= ", BegDate,
                               " and [date]<= ", EndDate))
        ->Currency("TotalReceived");
  });
}

Object<Recordset> Reports::rsInventorySales() {
  return List(
      "Reports.rsInventorySales -",
      sql::Statement("SELECT tb_Inventory.ItemNum as ItemNum, tb_InvCategories.Description as Category, "
                     "tb_Inventory.Description as Description, Sum(tb_trans.Qty) AS Qty, "
                     "Sum(tb_trans.Amount) AS TotalSales FROM ((tb_trans INNER JOIN tb_Inventory ON "
                     "tb_trans.ItemNum = tb_Inventory.ItemNum) INNER JOIN tb_InvCategories ON "
                     "tb_Inventory.CatNum = tb_InvCategories.CatNum) INNER JOIN tb_Invoice ON "
                     "tb_trans.InvoiceNum = tb_Invoice.InvoiceNum where (((tb_Invoice.Date)>=",
                     BegDate, " And (tb_Invoice.Date)<=", EndDate,
                     ")) GROUP BY tb_Inventory.ItemNum, tb_InvCategories.Description, tb_Inventory.Description;"));
}

Currency Reports::TotalSales(const std::function<void()>& step) {
  return Result("Reports.TotalSales -", [&] {
    Object<Invoice>& oInvoice = workspace_.globals.oInvoice;
    oInvoice = std::make_shared<Invoice>(workspace_);
    oInvoice->InitAccess(workspace_.File(kDatabaseFile));
    oInvoice->OpenCn();
    const auto invoices =
        Read(sql::Statement("select InvoiceNum from tb_Invoice where [date]>= ", BegDate, " and [date]<= ", EndDate));
    Currency total;
    for (; !invoices->Eof(); invoices->MoveNext()) {
      total += oInvoice->InvoiceTotal(invoices->Long("InvoiceNum"));
      step();
    }
    invoices->Close();
    oInvoice->CloseCn();
    oInvoice.Release();
    return total;
  });
}

}  // namespace norvane
