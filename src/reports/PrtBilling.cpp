#include "reports/PrtBilling.h"

#include "data/Client.h"
#include "data/Invoice.h"
#include "forms/LongWork.h"
#include "reports/Billing.h"
#include "reports/StatementTable.h"
#include "store/Recordset.h"

namespace norvane {

struct PrtBilling::Statement {
  Date opening;
  Currency balance;  ///< at the end of that day
  Object<Recordset> invoices, payments;
};

PrtBilling::PrtBilling(Program& host) : VSInvoiceReport(host, kName, "Print Billing Statements") {
  SetReportLayout();
}

void PrtBilling::Form_Load() {
  Build("PrtBilling.Form_Load -", [this] {
    ShowNotice(screen::kLoadingBilling);
    const CompanyHeading company = TakeCompanyHeading(globals.oSetup);
    const Billing& criteria = screens.Touch<Billing>();
    if (criteria.OptClient.Value()) {
      PrintSelectedClient(criteria, company);
    } else {
      PrintAllClients(criteria, company);
    }
    globals.oClient->CloseCn();
    globals.oInvoice->CloseCn();
    screens.Unload(screen::kLoadingBilling);
  });
}

// Balance and date of the row are converted, though nothing uses them: a balance beyond 16 bits or a client without a
// last payment ends the report here.
void PrtBilling::PrintSelectedClient(const Billing& criteria, const CompanyHeading& company) {
  const int row = criteria.CustList2.Row();
  SelectClient(criteria, row);
  convert.ToDate(criteria.CustList2.Cell(row, Billing::kLastDate));
  const Statement statement = ReadStatement(criteria);
  StartReport("Statement " + globals.CurClientName + " " + convert.ToText(desktop.Today()));
  VSInvoice.SetLetter({MailAddressOf(*globals.oClient), "Statement " + convert.ToText(desktop.Today())});
  WriteStatement(statement, company);
  VSInvoice.SetFooter(kThanksFooter);
  VSInvoice.EndDocument();
}

// All clients of the list get a statement, whatever they owe. One without a last payment passes here.
void PrtBilling::PrintAllClients(const Billing& criteria, const CompanyHeading& company) {
  const Grid& list = criteria.CustList2;
  const int last = list.Rows() - 1;
  StartReport("Statements " + convert.ToText(desktop.Today()));
  LongWork work(program, last, screen::kLoadingBilling);
  for (int row = 1; row <= last; ++row) {
    SelectClient(criteria, row);
    const std::string lastDate = list.Cell(row, Billing::kLastDate);
    if (!lastDate.empty()) convert.ToDate(lastDate);
    WriteStatement(ReadStatement(criteria), company);
    VSInvoice.SetFooter(kThanksFooter);
    if (row < last) VSInvoice.NewPage();
    work.Step();
  }
  VSInvoice.EndDocument();
}

void PrtBilling::SelectClient(const Billing& criteria, int row) {
  globals.CurCustNum = convert.ToLong(criteria.CustList2.Cell(row, Billing::kCustNum));
  globals.CurClientName = criteria.CustList2.Cell(row, Billing::kFullName);
  convert.ToInteger(criteria.CustList2.Cell(row, Billing::kBalance));
}

// The lists begin two days after the opening balance ends: what is dated on the day between is in neither.
PrtBilling::Statement PrtBilling::ReadStatement(const Billing& criteria) {
  const int days = criteria.Days();
  const Date listed = desktop.Today() - (days - 1);
  const Object<Client> client = globals.oClient;
  const Object<Invoice> invoice = globals.oInvoice;
  Statement statement{desktop.Today() - days, {}, {}, {}};
  client->OpenCn();
  client->GetClient(globals.CurCustNum);
  statement.balance = client->ClientBal(globals.CurCustNum, statement.opening);
  invoice->OpenCn();
  statement.invoices = invoice->GetCustInvoices(globals.CurCustNum, listed);
  statement.payments = invoice->AllPayments(listed, globals.CurCustNum);
  return statement;
}

void PrtBilling::WriteStatement(const Statement& statement, const CompanyHeading& company) {
  const Object<Client> client = globals.oClient;
  WriteStatementHead(VSInvoice, company, *client);
  StatementTable table(VSInvoice, convert, statement.opening, statement.balance);
  const Object<Recordset>& invoices = statement.invoices;
  for (; !invoices->Eof(); invoices->MoveNext()) {
    table.Charge(invoices->Field("InvoiceDate"), invoices->Field("description"),
                 globals.oInvoice->InvoiceTotal(invoices->Long("InvoiceNum")));
  }
  table.Payments(*statement.payments);
  table.End();
}

}  // namespace norvane
