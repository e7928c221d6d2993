#include "reports/PrtInvoice.h"

#include <cmath>

#include "core/Val.h"
#include "data/Client.h"
#include "data/Invoice.h"
#include "reports/Headings.h"
#include "reports/ReportTable.h"
#include "store/Recordset.h"

namespace norvane {

namespace {

constexpr TableKind kOrderTable{pages::TableBorder::Grid, "^1in|^3in|^2in|^1.5in;", "Date|Ship Via|Sales Rep|Terms;"};
constexpr TableKind kLineTable{pages::TableBorder::Grid, "^0.75in|^0.75in|^0.75in|<3in|>1.125in|>1.125in;",
                               "Qty|BackOrd|Item#|Description|Charge|Total;"};

}  // namespace

struct PrtInvoice::Order {
  std::int32_t CustNum = 0;
  std::string description;
  Date InvoiceDate;
  std::string SalesRep, ShippingType, Terms;
  double Discount = 0;  ///< percent
  Currency ShippingCharge, Tax, Interest;
  Object<Recordset> lines;
};

PrtInvoice::PrtInvoice(Program& host) : VSInvoiceReport(host, kName, "Print Invoice") {
  SetReportLayout();
}

void PrtInvoice::Form_Load() {
  Build("PrtInvoice.Form_Load -", [this] {
    const std::string number = std::to_string(globals.CurInvoiceNum);
    const CompanyHeading company = TakeCompanyHeading(globals.oSetup);
    const Order order = ReadOrder();
    const Object<Client> client = globals.oClient;
    ReadClient(client, order.CustNum);
    StartReport("Invoice " + number);
    VSInvoice.SetLetter({MailAddressOf(*client), "Invoice " + number});
    VSInvoice.SetHeader("||Invoice #" + number);
    WriteCompanyHeading(VSInvoice, company, "Remit to: " + company.Name);
    WriteBillTo(VSInvoice, *client);
    WriteShipTo(*client);
    VSInvoice.WriteParagraph("");
    VSInvoice.WriteParagraph("Description: " + order.description);
    VSInvoice.WriteParagraph("");
    WriteOrderTable(order);
    WriteTotals(order, WriteLineTable(*order.lines));
    VSInvoice.SetFooter(kThanksFooter);
    VSInvoice.EndDocument();
  });
}

// An invoice is made out to its own client, whatever client is selected; one that is gone to the client selected. The
// shipping charge is rounded to cents here and nowhere else, so the printed total may differ from the client's balance
// in the last place.
PrtInvoice::Order PrtInvoice::ReadOrder() {
  const Object<Invoice> invoice = globals.oInvoice;
  invoice->OpenCn();
  invoice->GetInvoice(globals.CurInvoiceNum);
  const bool exists = !invoice->CustNum.Text().empty();
  Order order{exists ? invoice->CustNum : globals.CurCustNum,
              invoice->description,
              invoice->InvoiceDate,
              invoice->SalesRep,
              invoice->ShippingType,
              invoice->Terms,
              invoice->Discount,
              invoice->ShippingCharge,
              invoice->Tax,
              invoice->Interest,
              {}};
  order.lines = invoice->GetInvoiceItems(globals.CurInvoiceNum);
  invoice->CloseCn();
  order.ShippingCharge = convert.ToCurrency(convert.CurrencyText(order.ShippingCharge));
  return order;
}

// The box reaches past the right margin, and is meant to.
void PrtInvoice::WriteShipTo(const Client& client) {
  WriteAddress(VSInvoice, "Ship To:", "5in",
               {client.ShipFname, client.ShipLname, client.ShipAddress1, client.Shipcity, client.ShipState,
                client.ShipZipCode, client.ShipHomePhone});
}

void PrtInvoice::WriteOrderTable(const Order& order) {
  ReportTable table(VSInvoice, convert, kOrderTable);
  table.Row(order.InvoiceDate, order.ShippingType, order.SalesRep, order.Terms);
  table.Bold(0, 4);
  table.End();
  VSInvoice.WriteParagraph("");
}

/// Returns the sum of all lines, those that the form has no room for included.
Currency PrtInvoice::WriteLineTable(Recordset& lines) {
  Currency subTotal;
  ReportTable table(VSInvoice, convert, kLineTable);
  if (lines.RecordCount() > 0) lines.MoveFirst();
  for (; !lines.Eof(); lines.MoveNext()) {
    WriteLine(table, lines);
    subTotal += lines.Currency("amount");
  }
  table.EndForm();
  return subTotal;
}

void PrtInvoice::WriteLine(ReportTable& table, const Recordset& line) {
  const Value quantity = line.Field("Qty");
  Currency unitCharge;
  if (!IsNull(quantity) && convert.ToDouble(quantity) > 0) {
    unitCharge = convert.ToCurrency(Divide(line.Field("amount"), quantity, convert));
  }
  const double backOrder = std::abs(Val(line.Text("BackOrder")));
  table.Row(quantity, backOrder == 0 ? "" : convert.ToText(backOrder), line.Field("ItemNum"), line.Field("Notes"),
            Money{unitCharge}, Money{line.Field("amount")});
}

// The discount is shown as computed, but rounded to four decimals before it goes into the total.
void PrtInvoice::WriteTotals(const Order& order, Currency subTotal) {
  const double discount = subTotal.ToDouble() * (order.Discount / 100);
  const Currency total = subTotal - Currency::FromDouble(discount) + order.Interest + order.Tax + order.ShippingCharge;
  const std::string heading = "SubTotal|" + convert.CurrencyText(subTotal) + ";";
  ReportTable table(VSInvoice, convert, {pages::TableBorder::Totals, ">1.125in|>1.125in;", heading});
  VSInvoice.SetAlignment(pages::Alignment::Right);
  table.Row("Discount:", Money{discount});
  table.Row("Interest:", Money{order.Interest});
  table.Row("Sales Tax:", Money{order.Tax});
  table.Row("Shipping:", Money{order.ShippingCharge});
  table.Row("Total:", Money{total});
  table.Bold(5, 2);
  table.End();
}

}  // namespace norvane
