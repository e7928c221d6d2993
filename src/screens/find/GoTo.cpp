#include "screens/find/GoTo.h"

#include <memory>
#include <optional>

#include "core/FileNames.h"
#include "data/Inventory.h"
#include "data/Invoice.h"
#include "forms/Form.h"
#include "screens/clients/ClientCommands.h"
#include "screens/clients/Customer.h"
#include "screens/registry/GL.h"
#include "screens/registry/Vendors.h"
#include "screens/sales/CustInvoices.h"
#include "screens/sales/InvoiceDetail.h"
#include "screens/sales/InvoiceShown.h"
#include "screens/sales/Receipts.h"
#include "screens/stock/frmInventory.h"

namespace norvane {

namespace {

/// A record object of this unit's own: the shared one holds what carries over into a new record.
template <class Record>
std::unique_ptr<Record> Open(Program& program) {
  auto record = std::make_unique<Record>(program.workspace);
  record->InitAccess(program.workspace.File(kDatabaseFile));
  record->OpenCn();
  return record;
}

bool IsThere(Program& program, bool there) {
  if (!there) program.desktop.Say("This record is no longer there.");
  return there;
}

bool GoToClient(Program& program, std::int32_t number) {
  if (!program.screens.Close(screen::kProfile)) return false;
  const std::optional<ClientShown> client = ReadClient(program, number);
  if (!client || !IsThere(program, client->number != 0)) return false;
  SelectClient(program, *client);
  ShowProfile(program);
  return true;
}

bool GoToInvoice(Program& program, std::int32_t number) {
  if (!program.screens.Close(InvoiceDetail::kName)) return false;
  const auto invoice = Open<Invoice>(program);
  invoice->GetInvoice(number);
  invoice->CloseCn();
  if (invoice->InvoiceNum == 0 || !IsThere(program, !invoice->CustNum.Text().empty())) return false;
  const std::optional<ClientShown> client = ReadClient(program, invoice->CustNum);
  if (!client) return false;
  SelectInvoice(program, {number, invoice->InvoiceDate, invoice->description, *client});
  program.screens.Show(InvoiceDetail::kName);
  return true;
}

bool GoToPayment(Program& program, std::int32_t number) {
  if (!program.screens.Close(Receipts::kName)) return false;
  const auto invoice = Open<Invoice>(program);
  const Object<Recordset> payment = invoice->rsPayment(number);
  invoice->CloseCn();
  if (!payment || !IsThere(program, !payment->Eof())) return false;
  const std::optional<ClientShown> client = ReadClient(program, payment->Long("CustNum"));
  if (!client) return false;
  ShowReceipts(program, client->number == 0 ? ClientShown{-1, CustInvoices::kAllClients} : *client);
  return IsThere(program, program.screens.Touch<Receipts>().MarkPayment(number, payment->Date("Date")));
}

bool GoToItem(Program& program, std::int32_t number) {
  const auto item = Open<Inventory>(program);
  item->GetItem(number);
  item->CloseCn();
  if (item->ItemNum == 0 || !IsThere(program, item->ItemNum == number && !item->description.empty())) return false;
  if (!program.screens.Close(frmInventory::kName)) return false;
  program.globals.CurCatNum = item->Category;
  program.screens.Show(frmInventory::kName);
  return IsThere(program, program.screens.Touch<frmInventory>().MarkItem(item->Category, number));
}

bool GoToVendor(Program& program, const std::string& company) {
  program.screens.Show(Vendors::kName);
  return IsThere(program, program.screens.Touch<Vendors>().PickVendor(company));
}

bool GoToEntry(Program& program, std::int32_t number) {
  if (!program.screens.Close(GL::kName)) return false;
  program.screens.Touch<Customer>().mnuPay.Choose();
  GL* registry = program.screens.Find<GL>();
  return registry && IsThere(program, registry->MarkEntry(number));
}

}  // namespace

void ProvideInvoice(Program& program) {
  if (program.globals.oInvoice) return;
  program.globals.oInvoice = std::make_shared<Invoice>(program.workspace);
  program.globals.oInvoice->InitAccess(program.workspace.File(kDatabaseFile));
}

bool GoTo(Program& program, const Place& place) {
  ProvideInvoice(program);
  switch (place.kind) {
    case FindKind::Client:
      return GoToClient(program, place.number);
    case FindKind::Invoice:
      return GoToInvoice(program, place.number);
    case FindKind::Payment:
      return GoToPayment(program, place.number);
    case FindKind::Item:
      return GoToItem(program, place.number);
    case FindKind::Vendor:
      return GoToVendor(program, place.name);
    case FindKind::Entry:
      return GoToEntry(program, place.number);
  }
  return false;
}

}  // namespace norvane
