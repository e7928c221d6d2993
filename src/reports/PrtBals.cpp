#include "reports/PrtBals.h"

#include "data/Client.h"
#include "reports/ReportTable.h"
#include "store/Recordset.h"

namespace norvane {

namespace {

constexpr TableKind kBalances{pages::TableBorder::List, "^1in|3in|>1.125in;", "Client#|Name|Balance;"};

Object<Recordset> ReadBalances(const Object<Client>& client) {
  client->OpenCn();
  Object<Recordset> balances = client->ClientBals();
  balances->Sort("FullName");
  client->CloseCn();
  return balances;
}

}  // namespace

PrtBals::PrtBals(Program& host) : VSInvoiceReport(host, kName, "Print Clients with Balances") {
  SetReportLayout();
}

void PrtBals::Form_Load() {
  Build("PrtBals.Form_Load -", [this] {
    ShowNotice(screen::kLoadingClients);
    const Object<Recordset> balances = ReadBalances(globals.oClient);
    StartList("Client balances", ListHeader("Client Balances"), {.fontSize = kBodySize});
    VSInvoice.WriteParagraph("");
    ReportTable table(VSInvoice, convert, kBalances);
    Currency total;
    for (; !balances->Eof(); balances->MoveNext()) {
      table.Row(balances->Field("CustNum"), balances->Field("Fullname"), Money{balances->Field("Bal")});
      total += balances->Currency("Bal");
    }
    table.End();
    WriteGrandTotal("Grand Total: ", total);
    VSInvoice.EndDocument();
    screens.Unload(screen::kLoadingClients);
  });
}

}  // namespace norvane
