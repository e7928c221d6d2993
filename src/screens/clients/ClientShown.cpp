#include "screens/clients/ClientShown.h"

#include "data/Client.h"
#include "forms/Program.h"
#include "screens/clients/Customer.h"

namespace norvane {

ClientShown SelectedClient(const Globals& globals) {
  return {globals.CurCustNum, globals.CurClientName};
}

void SelectClient(Program& program, const ClientShown& client) {
  program.globals.CurCustNum = client.number;
  program.globals.CurClientName = client.name;
  if (auto* customer = program.screens.Find<Customer>()) customer->MarkClient(client.number);
}

std::optional<ClientShown> ReadClient(Program& program, std::int32_t number) {
  const Object<Client> client = program.globals.oClient;
  client->OpenCn();
  const bool exists = client->GetClient(number);
  client->CloseCn();
  if (client->CustNum == 0) return std::nullopt;
  if (!exists) return ClientShown();
  return ClientShown{number, client->lname + ", " + client->fname};
}

}  // namespace norvane
