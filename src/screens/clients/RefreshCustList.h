#pragma once

namespace norvane {

class Program;

/// Recreates oClient and fills the main screen's list with all clients; rsClientPick keeps a copy for the client
/// picker. Reports its errors.
void RefreshCustList(Program& program);

}  // namespace norvane
