#include "data/Invoice.h"
#include "data/Statement.h"

namespace norvane {

namespace {

constexpr NumberedTable kPayments{"tb_Receive", "TransNum"};
constexpr std::int32_t kAllClients = -1;

constexpr std::string_view kPaymentsAfter =
    "SELECT tb_Client.CustNum, tb_Client.Fname, tb_Client.Lname, "
    "[tb_Client].[lname] & \", \" & [tb_client].[fname] AS FullName, tb_Receive.TransNum, tb_Receive.Type, "
    "tb_Receive.CheckNum, tb_Receive.Date, tb_Receive.Amount, tb_Receive.Notes "
    "FROM tb_Client INNER JOIN tb_Receive ON tb_Client.CustNum = tb_Receive.CustNum WHERE (((tb_Receive.Date)>";

}  // namespace

Object<Recordset> Invoice::AllPayments(Date sinceDate, std::int32_t custNum) {
  return Result("Invoice.AllPayments -", [&] {
    CustNum = custNum;
    const std::string client = custNum == kAllClients ? "" : sql::Statement(" and tb_Receive.CustNum = ", custNum);
    return Detached(
        sql::Statement(kPaymentsAfter, sinceDate, "))", client, " order by tb_Receive.Date, tb_Receive.TransNum;"));
  });
}

Object<Recordset> Invoice::rsPayment(std::int32_t transNum) {
  return List("Invoice.rsPayment -",
              sql::Statement("select CustNum, [Date] from tb_Receive where TransNum = ", transNum));
}

void Invoice::SavePayment() {
  Trapped("Invoice.SavePayment -", [&] {
    SaveNumbered(
        kPayments, PayNum, [&] { return NewPayNum(); },
        [&] {
          Replace(sql::Statement("delete * from tb_Receive where Transnum = ", PayNum),
                  sql::Insert("Insert into tb_Receive (TransNum,CustNum,Type,CheckNum,[Date],[Amount],Notes) values (",
                              PayNum, sql::Bare{CustNum.Text()}, Paytype, Checknum, PayDate, Payment, PayNotes));
        });
  });
}

void Invoice::DeletePayment(std::int32_t transNum) {
  Trapped("Invoice.DeletePayment -",
          [&] { Run(sql::Statement("delete * from tb_Receive where Transnum = ", transNum)); });
}

std::int32_t Invoice::NewPayNum() {
  return Result("Invoice.NewPayNum -", [&] { return NextKey(kPayments); });
}

}  // namespace norvane
