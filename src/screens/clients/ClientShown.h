#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace norvane {

class Program;
struct Globals;

/// A client's number with the name that captions and questions give. A screen keeps both of the client that it shows;
/// the selection in the shared state only hands a client from one screen to the next.
struct ClientShown {
  std::int32_t number = 0;  ///< 0 for none, -1 for all of them on the payments screen
  std::string name;
};

ClientShown SelectedClient(const Globals& globals);
/// Selects a client for all screens, and marks it in the main screen's list if it is there.
void SelectClient(Program& program, const ClientShown& client);
/// Reads a client's record into oClient. Number 0 if there is no such client; nothing if it can't be read, which is
/// reported.
std::optional<ClientShown> ReadClient(Program& program, std::int32_t number);

/// A screen that shows what belongs to a client. It closes before the client is deleted.
class ClientScreen {
 public:
  virtual ~ClientScreen() = default;
  virtual bool Shows(std::int32_t custNum) const = 0;
};

}  // namespace norvane
