#pragma once

#include "core/Date.h"

namespace norvane {

class Clock;
class Program;

// What several screens do with sales invoices. All of it works on the shared state of the program.

/// January 1st of this year, since when sales are listed at first.
Date StartOfYear(const Clock& clock);

/// Recreates oInvoice, carries out the deletion of CurInvoiceNum if InvoicesStale says that it is pending, and fills
/// the sales screen with the selected client's invoices later than `sinceDate` and the balance. The latest invoice
/// becomes the selected one, or the one selected while the list was shown before; without any the selection stays.
/// Reports its errors; the busy notice then stays too.
void GetInvoices(Program& program, Date sinceDate);

/// Recreates oInvoice and fills the sales screen with all clients' invoices later than the date on it; one of them
/// becomes selected in the same way. The balance stays as it was, a pending deletion too, and oInvoice's connection
/// stays open. Reports its errors.
void GetAllInvoices(Program& program);

}  // namespace norvane
