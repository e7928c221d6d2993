#include "screens/sales/InvoiceShown.h"

#include "forms/Program.h"

namespace norvane {

InvoiceShown SelectedInvoice(const Globals& globals) {
  return {globals.CurInvoiceNum, globals.CurInvoiceDate, globals.CurInvoiceDesc, SelectedClient(globals)};
}

void SelectInvoice(Program& program, const InvoiceShown& invoice) {
  program.globals.CurInvoiceNum = invoice.number;
  program.globals.CurInvoiceDate = invoice.date;
  program.globals.CurInvoiceDesc = invoice.description;
  SelectClient(program, invoice.client);
}

}  // namespace norvane
