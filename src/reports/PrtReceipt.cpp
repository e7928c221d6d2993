#include "reports/PrtReceipt.h"

#include "data/Client.h"
#include "data/Invoice.h"
#include "reports/Headings.h"
#include "reports/StatementTable.h"
#include "store/Recordset.h"

namespace norvane {

PrtReceipt::PrtReceipt(Program& host) : VSInvoiceReport(host, kName, "Print Receipt") {
  SetReportLayout();
}

void PrtReceipt::Form_Load() {
  Build("PrtReceipt.Form_Load -", [this] {
    ShowNotice(screen::kLoadingBilling);
    const CompanyHeading company = TakeCompanyHeading(globals.oSetup);
    const Object<Client> client = globals.oClient;
    const Object<Invoice> invoice = globals.oInvoice;
    const std::int32_t custNum = globals.CurCustNum;
    client->OpenCn();
    client->GetClient(custNum);
    // Not used, but a balance beyond 16 bits ends the receipt here.
    Date today;
    convert.ToInteger(client->ClientBal(custNum, today));
    Date opening = globals.ReceiptDate - 1;
    const Currency balance = client->ClientBal(custNum, opening);
    invoice->OpenCn();
    const Object<Recordset> payments = invoice->AllPayments(opening, custNum);

    StartReport("Receipt " + globals.CurClientName + " " + convert.ToText(globals.ReceiptDate));
    VSInvoice.SetLetter({MailAddressOf(*client), "Receipt " + convert.ToText(globals.ReceiptDate)});
    WriteStatementHead(VSInvoice, company, *client);
    // The day shown is yesterday, whatever the day of the opening balance.
    StatementTable table(VSInvoice, convert, desktop.Today() - 1, balance);
    table.Payments(*payments);
    table.End();
    VSInvoice.SetFooter(kThanksFooter);
    VSInvoice.EndDocument();
    client->CloseCn();
    invoice->CloseCn();
    screens.Unload(screen::kLoadingBilling);
  });
}

}  // namespace norvane
