#include "data/Invoice.h"
#include "data/Statement.h"

namespace norvane {

namespace {

constexpr NumberedTable kLines{"tb_Trans", "TransNum"};

constexpr std::string_view kBackOrders =
    "SELECT tb_trans.TransNum as TransNum, tb_trans.InvoiceNum as InvoiceNum, tb_trans.ItemNum as ItemNum, "
    "tb_trans.Notes as Notes, tb_trans.BackOrder as BackOrderQty, tb_trans.Ordered as Ordered, "
    "tb_Invoice.Date as InvoiceDate, tb_Invoice.SalesRep as SalesRep, tb_Client.Lname as Lname, "
    "tb_Client.Fname as Fname FROM (tb_trans INNER JOIN tb_Invoice ON tb_trans.InvoiceNum = tb_Invoice.InvoiceNum) "
    "INNER JOIN tb_Client ON tb_Invoice.CustNum = tb_Client.CustNum WHERE ((val(tb_trans.BackOrder)<0) AND ";

constexpr std::string_view kCountedBackOrders =
    "SELECT tb_trans.TransNum as TransNum, tb_trans.InvoiceNum as InvoiceNum, tb_trans.ItemNum as ItemNum, "
    "tb_trans.Notes as Notes, tb_trans.BackOrder as BackOrderQty, tb_trans.Ordered as Ordered, "
    "tb_Invoice.Date as InvoiceDate, tb_Invoice.SalesRep as SalesRep, tb_Client.Lname as Lname, "
    "tb_Client.Fname as Fname, tb_Inventory.InStock as InStock "
    "FROM ((tb_trans INNER JOIN tb_Invoice ON tb_trans.InvoiceNum = tb_Invoice.InvoiceNum) "
    "INNER JOIN tb_Client ON tb_Invoice.CustNum = tb_Client.CustNum) "
    "INNER JOIN tb_Inventory ON tb_trans.ItemNum = tb_Inventory.ItemNum "
    "WHERE ((val(tb_trans.BackOrder)<0) AND (tb_Inventory.Par>0)) "
    "order by tb_Invoice.Date, tb_Invoice.InvoiceNum, tb_trans.TransNum";

}  // namespace

Object<Recordset> Invoice::GetInvoiceItems(std::int32_t invoiceNum) {
  return List("Invoice.GetInvoiceItems -", sql::Statement("select * from tb_trans where InvoiceNum = ", invoiceNum));
}

// Ordered isn't among the columns: a line that is edited has to be ordered again.
void Invoice::SaveTransAccess() {
  Trapped("Invoice.SaveTransAccess -", [&] {
    SaveNumbered(
        kLines, TransNum, [&] { return NewTransNum(); },
        [&] {
          Replace(sql::Statement("delete * from tb_trans where Transnum = ", TransNum),
                  sql::Insert("Insert into tb_trans (TransNum,InvoiceNum,ItemNum,Qty,Amount,Notes,Backorder) values (",
                              TransNum, sql::Bare{InvoiceNum.Text()}, ItemNum, Qty, charge, TransNotes, BackOrder));
        });
  });
}

void Invoice::DeleteInvoiceItem(std::int32_t transNum) {
  Trapped("Invoice.DeleteInvoiceItem -",
          [&] { Run(sql::Statement("delete * from tb_trans where Transnum = ", transNum)); });
}

std::int32_t Invoice::NewTransNum() {
  return Result("Invoice.NewTransNum -", [&] { return NextKey(kLines); });
}

Object<Recordset> Invoice::GetBackOrderItems() {
  return List("Invoice.GetBackOrderItems -", sql::Statement(kBackOrders, "isnull(TB_TRANS.ordered))"));
}

Object<Recordset> Invoice::GetBackOrderedItems() {
  return List("Invoice.GetBackOrderedItems -", sql::Statement(kBackOrders, "not isnull(TB_TRANS.ordered))"));
}

void Invoice::SaveOrderDate(std::int32_t transNum, Date orderDate) {
  Trapped("Invoice.SaveOrderDate -",
          [&] { Run(sql::Statement("update tb_trans set ordered = ", orderDate, " where TransNum = ", transNum)); });
}

Object<Recordset> Invoice::GetCountedBackOrders() {
  return List("Invoice.GetCountedBackOrders -", kCountedBackOrders);
}

bool Invoice::ClearBackOrder(std::int32_t transNum) {
  return Trapped("Invoice.ClearBackOrder -",
                 [&] { Run(sql::Statement("update tb_trans set BackOrder = '0' where TransNum = ", transNum)); });
}

// The procedure is older than the record: it takes the payment's number, amount and notes.
void Invoice::SaveTrans() {
  RunProcedure("sp_insert_Trans", {{"@TransNum", ParameterType::Integer, 0, TransNum},
                                   {"@InvoiceNum", ParameterType::Integer, 0, InvoiceNum.Text()},
                                   {"@ItemNum", ParameterType::Integer, 0, ItemNum},
                                   {"@CheckNum", ParameterType::Integer, 0, Checknum},
                                   {"@Qty", ParameterType::Integer, 0, Qty},
                                   {"@TransDate", ParameterType::Date, 0, InvoiceDate},
                                   {"@Charge", ParameterType::Currency, 0, charge},
                                   {"@Pay", ParameterType::Currency, 0, Payment},
                                   {"@Notes", ParameterType::Char, 256, PayNotes}});
}

void Invoice::AddToInvoice(std::int32_t invoiceNum, std::int32_t itemNum, std::int32_t qty, Currency amount,
                           const std::string& notes, bool backOrder) {
  Trapped("Invoice.AddtoInvoice -", [&] {
    recordset_->AddNew();
    recordset_->SetField("InvoiceNum", invoiceNum);
    recordset_->SetField("ItemNum", itemNum);
    recordset_->SetField("Qty", qty);
    recordset_->SetField("Amount", amount);
    recordset_->SetField("Notes", notes);
    recordset_->SetField("BackOrder", backOrder);
    recordset_->Update();
  });
}

}  // namespace norvane
