#pragma once

#include "screens/clients/ClientShown.h"

namespace norvane {

// What several screens do with the client that they show or mark.

/// Asks whether the client is to be deleted with all transactions, and deletes it on Yes, after its screens have
/// closed. The list is read again with either answer. Reports no errors itself.
void DeleteClient(Program& program, const ClientShown& client);

/// Opens the selected client's profile. One that is open is dropped without a question. Ignores errors.
void ShowProfile(Program& program);

/// Selects a new invoice of the client, with the client's discount. False if there is no such client, which the user is
/// asked to select then, or if it can't be read.
bool SelectNewInvoice(Program& program, const ClientShown& client);
/// Opens the invoice screen for a new invoice of the client; an open one is dropped without a question. Ignores errors.
void StartNewInvoice(Program& program, const ClientShown& client);

/// Opens the client's payments, or asks for a selection. Reports no errors itself.
void ShowReceipts(Program& program, const ClientShown& client);

}  // namespace norvane
