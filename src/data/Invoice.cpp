#include "data/Invoice.h"

#include "core/Clock.h"
#include "core/Rounding.h"
#include "core/Val.h"
#include "data/Statement.h"

namespace norvane {

namespace {

constexpr NumberedTable kInvoices{"tb_Invoice", "InvoiceNum"};

constexpr std::string_view kInvoiceList =
    "SELECT tb_Client.CustNum, tb_Client.Lname as Lname, tb_Client.Fname as Fname, tb_Invoice.Date as InvoiceDate, "
    "tb_Invoice.InvoiceNum as InvoiceNum, tb_Invoice.Discount as Discount, "
    "tb_Invoice.ShippingCharge as ShippingCharge, tb_Invoice.Interest as Interest, tb_Invoice.Tax as Tax, "
    "Sum(tb_trans.amount) AS Charge, tb_Invoice.Description as Description "
    "FROM (tb_Client inner JOIN tb_Invoice ON tb_Client.CustNum = tb_Invoice.CustNum) "
    "left JOIN tb_trans ON tb_Invoice.InvoiceNum = tb_trans.InvoiceNum "
    "GROUP BY tb_Client.CustNum, tb_Client.Lname, tb_Client.Fname, tb_Invoice.Date, tb_Invoice.InvoiceNum, "
    "tb_Invoice.Discount, tb_Invoice.ShippingCharge, tb_Invoice.Interest, tb_Invoice.Tax, tb_Invoice.Description ";

}  // namespace

Invoice::Invoice(Workspace& workspace)
    : DataObject(workspace),
      InvoiceDate(workspace.clock.Today()),
      Shippingdate(workspace.clock.Today()),
      PayDate(workspace.clock.Today()) {}

Object<Recordset> Invoice::GetAllInvoices(Date sinceDate) {
  return List("Invoice.GetAllInvoices -", sql::Statement(kInvoiceList, "HAVING (((tb_invoice.date)>", sinceDate,
                                                         ")) order by tb_Invoice.InvoiceNum desc;"));
}

Object<Recordset> Invoice::GetCustInvoices(std::int32_t custNum, Date sinceDate) {
  return List("Invoice.GetCustInvoices -",
              sql::Statement(kInvoiceList, "HAVING (((tb_Client.CustNum)=", custNum, ") and tb_invoice.date>",
                             sinceDate, ") order by tb_Invoice.InvoiceNum desc;"));
}

void Invoice::GetInvoice(std::int32_t invoiceNum) {
  Trapped("Invoice.GetInvoice -", [&] {
    const auto row = ReadRecord(sql::Statement("select * from tb_Invoice where InvoiceNum = ", invoiceNum),
                                [this] { ClearInvoice(); });
    if (row->Eof()) {
      GetnewInvoiceNum();
      BlankInvoice();
    } else {
      ReadInvoice(*row);
    }
  });
}

// Discount keeps what it was: the opener of a new invoice has put the client's there.
void Invoice::BlankInvoice() {
  CustNum.Clear();
  for (std::string* text : {&description, &ShippingType, &TrackingNum, &SalesRep, &Terms}) text->clear();
  InvoiceDate = Shippingdate = workspace_.clock.Today();
  ShippingCharge = Tax = Interest = Currency();
}

void Invoice::ClearInvoice() {
  InvoiceNum = 0;
  Discount = 0;
  BlankInvoice();
}

void Invoice::ReadInvoice(const Recordset& row) {
  InvoiceNum = row.Long("InvoiceNum");
  CustNum = row.Long("CustNum");
  InvoiceDate = row.Date("Date");
  description = row.Text("description");
  Discount = row.Double("Discount");
  ShippingCharge = row.Currency("ShippingCharge");
  Shippingdate = row.Date("Shippingdate");
  ShippingType = row.Text("ShippingType");
  TrackingNum = row.Text("TrackingNum");
  Interest = row.Currency("Interest");
  Tax = row.Currency("Tax");
  SalesRep = row.Text("SalesRep");
  Terms = row.Text("Terms");
}

bool Invoice::SaveInvoiceAccess(std::int32_t invoiceNum) {
  return Trapped("Invoice.SaveInvoiceAccess -", [&] {
    const std::string insertion = sql::Insert(
        "Insert into tb_Invoice (InvoiceNum,CustNum,[Date],Description,discount,tax,shippingcharge,shippingdate,"
        "shippingtype,trackingnum,interest,SalesRep,Terms) values (",
        sql::Bare{InvoiceNum.Text()}, sql::Bare{CustNum.Text()}, InvoiceDate, description, Discount, Tax,
        ShippingCharge, Shippingdate, ShippingType, TrackingNum, Interest, SalesRep, Terms);
    SaveUnder(kInvoices, invoiceNum, ValLong(InvoiceNum.Text()),
              [&] { Replace(sql::Statement("Delete * from tb_Invoice where InvoiceNum = ", invoiceNum), insertion); });
  });
}

void Invoice::DeleteInvoice(std::int32_t invoiceNum) {
  Trapped("Invoice.DeleteInvoice -", [&] {
    Run(sql::Statement("delete * from tb_invoice where InvoiceNum = ", invoiceNum));
    const auto lines = ReadToUpdate(sql::Statement("Select * from tb_trans where InvoiceNum = ", invoiceNum));
    if (lines->Eof()) return;
    for (; !lines->Eof(); lines->MoveNext()) ReturnToStock(*lines);
    lines->Close();
    Run(sql::Statement("delete * from tb_trans where InvoiceNum = ", invoiceNum));
  });
}

// The whole quantity goes back, whatever part of it was on back order.
void Invoice::ReturnToStock(const Recordset& line) {
  const auto item = ReadToUpdate(sql::Statement("select * from tb_inventory where itemnum = ", line.Long("ItemNum")));
  if (item->Long("Par") > 0) item->SetField("InStock", RoundToLong(item->Long("InStock") + line.Double("Qty")));
  item->Update();
}

void Invoice::GetnewInvoiceNum() {
  InvoiceNum = Result("Invoice.GetNewInvoiceNum -", [&] { return NextKey(kInvoices); });
}

Currency Invoice::InvoiceTotal(std::int32_t invoiceNum) {
  Currency result;
  Trapped("Invoice.InvoiceTotal -", [&] {
    result = SumOrZero(
        *Read(sql::Statement("select sum(amount) as SumOfCharge from tb_trans where InvoiceNum = ", invoiceNum)),
        "sumofcharge");
    const auto invoice = Read(sql::Statement(
        "select discount, tax, shippingcharge, interest from tb_Invoice where InvoiceNum = ", invoiceNum));
    if (invoice->Eof()) return;
    const double lines = result.ToDouble();
    const double rate = invoice->Double("Discount") / 100;
    const double total = lines - rate * lines + invoice->Currency("ShippingCharge").ToDouble() +
                         invoice->Currency("Interest").ToDouble() + invoice->Currency("Tax").ToDouble();
    result = Currency::FromDouble(total);
  });
  return result;
}

void Invoice::SaveInvoice() {
  RunProcedure("sp_insert_Invoice", {{"@InvoiceNum", ParameterType::Char, 16, InvoiceNum.Text()},
                                     {"@CustNum", ParameterType::Char, 16, CustNum.Text()},
                                     {"@InvoiceDate", ParameterType::Date, 0, InvoiceDate},
                                     {"@Description", ParameterType::Char, 256, description}});
}

}  // namespace norvane
