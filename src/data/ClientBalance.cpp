#include "core/Clock.h"
#include "data/Client.h"
#include "data/Invoice.h"
#include "data/Statement.h"

namespace norvane {

namespace {

/// The totals of the invoices up to a day. The sum is a Double that passes through Currency at each step. All invoices
/// of the system are assumed to lie after the first day of 1981; one on or before it is in no balance.
double Invoiced(Invoice& invoices, std::int32_t custNum, Date balDate) {
  double total = 0;
  const Object<Recordset> list = invoices.GetCustInvoices(custNum, Date::FromYearMonthDay(1981, 1, 1));
  for (; !list->Eof(); list->MoveNext()) {
    if (list->Date("InvoiceDate") > balDate) continue;
    total = (Currency::FromDouble(total) + invoices.InvoiceTotal(list->Long("InvoiceNum"))).ToDouble();
  }
  return total;
}

}  // namespace

Object<Recordset> Client::ClientBals() {
  return List("Client.ClientBals -",
              "SELECT ClientBals.CustNum as CustNum, ClientBals.Fullname AS FullName, ClientBals.Balance as Bal "
              "FROM ClientBals order by ClientBals.Fullname ");
}

Object<Recordset> Client::rsLastPayment(std::int32_t custNum) {
  return List("Client.rsLastPayment -", sql::Statement("select [date], Amount from tb_Receive where custnum = ",
                                                       custNum, " ORDER BY [DATE] DESC, TRANSNUM DESC"));
}

Currency Client::ClientBal(std::int32_t custNum, Date& balDate) {
  return Result("Client.ClientBal -", [&] {
    if (balDate == Date()) balDate = workspace_.clock.Today() + 1;
    const Object<Invoice> oInvoice = workspace_.globals.oInvoice;
    oInvoice->OpenCn();
    const double total = Invoiced(*oInvoice, custNum, balDate);
    const auto payments = Read(sql::Statement(
        "SELECT tb_Client.CustNum, Sum(tb_Receive.Amount) AS SumOfPay FROM tb_Receive INNER JOIN tb_Client ON "
        "tb_Receive.CustNum = tb_Client.CustNum Where (((tb_Receive.Date) <= ",
        balDate, ")) GROUP BY tb_Client.CustNum HAVING (((tb_Client.CustNum)=", custNum, "));"));
    const double paid = payments->Eof() ? 0 : payments->Double("SumOfPay");
    const Currency balance = Currency::FromDouble(total - paid);
    oInvoice->CloseCn();
    return balance;
  });
}

}  // namespace norvane
