#include "reports/Prt30Days.h"

#include <memory>

#include "data/Client.h"
#include "forms/LongWork.h"
#include "reports/ReportTable.h"
#include "store/Recordset.h"

namespace norvane {

namespace {

constexpr TableKind kPastDue{pages::TableBorder::List, "^1in|2.5in|>1.125in|>1.5in|>1.5in;",
                             "Client#|Name|Balance|Last Pmt Date|Last Pmt Amount|;"};

Object<Recordset> MakeWorkingTable() {
  const auto table = std::make_shared<Recordset>();
  table->AppendField("CustNum", FieldType::Text, 12);
  table->AppendField("FullName", FieldType::Text, 50);
  table->AppendField("Bal", FieldType::Currency);
  table->AppendField("LastPayDate", FieldType::Date);
  table->AppendField("LastPayAmount", FieldType::Currency);
  table->OpenFabricated();
  return table;
}

void AddPastDue(Recordset& table, const Recordset& client, const Recordset& payment) {
  table.AddNew();
  table.SetField("CustNum", client.Field("CustNum"));
  table.SetField("FullName", client.Field("Fullname"));
  table.SetField("Bal", client.Field("Bal"));
  table.SetField("LastPayDate", payment.Field("Date"));
  table.SetField("LastPayAmount", payment.Field("amount"));
  table.Update();
}

}  // namespace

Prt30Days::Prt30Days(Program& host)
    : VSInvoiceReport(host, kName, "Print clients with balances over 30 days without payment") {
  SetReportLayout();
}

void Prt30Days::Form_Load() {
  Build("Prt30days.Form_Load -", [this] {
    SetCaption("Clients with balance " + convert.ToText(std::int32_t{globals.AgingDays}) + " days past due");
    const Object<Recordset> pastDue = FindPastDue();
    StartList(Caption(), ListHeader("Client Balances"), {.fontSize = kBodySize});
    VSInvoice.WriteParagraph("");
    ListClients(*pastDue);
    VSInvoice.EndDocument();
    screens.Unload(screen::kLoadingClients);
  });
}

// The connection stays open for the next use of the shared object.
Object<Recordset> Prt30Days::FindPastDue() {
  Object<Recordset> pastDue = MakeWorkingTable();
  ShowNotice(screen::kLoadingClients);
  const Object<Client> client = globals.oClient;
  client->OpenCn();
  const Object<Recordset> balances = client->ClientBals();
  const Date limit = desktop.Today() - globals.AgingDays;
  LongWork work(program, balances->RecordCount(), screen::kLoadingClients);
  for (; !balances->Eof(); balances->MoveNext(), work.Step()) {
    const Object<Recordset> payments = client->rsLastPayment(balances->Long("CustNum"));
    if (payments->RecordCount() == 0) continue;
    if (payments->Date("Date") < limit) AddPastDue(*pastDue, *balances, *payments);
  }
  return pastDue;
}

void Prt30Days::ListClients(Recordset& pastDue) {
  ReportTable table(VSInvoice, convert, kPastDue);
  Currency total;
  if (pastDue.RecordCount() > 0) pastDue.Sort("LastPayDate");
  for (; !pastDue.Eof(); pastDue.MoveNext()) {
    table.Row(pastDue.Field("CustNum"), pastDue.Field("FullName"), Money{pastDue.Field("Bal")},
              pastDue.Field("LastPayDate"), Money{pastDue.Field("LastPayAmount")});
    total += pastDue.Currency("Bal");
  }
  table.End();
  WriteGrandTotal("Grand Total: ", total);
}

}  // namespace norvane
