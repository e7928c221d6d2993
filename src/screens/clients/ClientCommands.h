#pragma once

namespace norvane {

class Program;

// What several screens do with clients. All of it works on the shared state of the program.

/// Makes oClient anew and fills the main screen's grid with all clients; rsClientPick keeps a copy for the client
/// picker. Reports its errors.
void RefreshCustList(Program& program);

/// Asks whether the selected client is to go with all its transactions and deletes it on Yes. The list is read anew
/// with either answer. Reports no errors itself.
void DeleteSelectedClient(Program& program);

/// Opens the selected client's profile. One that is open is dropped without a question. Ignores errors.
void ShowProfile(Program& program);

/// Opens the invoice screen for a new invoice of the selected client, or asks for a selection. Ignores errors.
void StartNewInvoice(Program& program);

/// Opens the selected client's payments, or asks for a selection. Reports no errors itself.
void ShowReceipts(Program& program);

}  // namespace norvane
