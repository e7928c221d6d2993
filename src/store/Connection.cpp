#include "store/Connection.h"

#include "core/Characters.h"
#include "store/Engine.h"
#include "store/internal/Session.h"
#include "store/internal/StoreError.h"

namespace norvane {
namespace {

/// The path between the quotes of `Data Source = "..."`; nothing else of such a string is quoted.
std::string DataSource(const std::string& connectionString) {
  const std::size_t open = connectionString.find('"');
  const std::size_t close = connectionString.rfind('"');
  if (open == close) return "";
  return connectionString.substr(open + 1, close - open - 1);
}

bool IsFileProvider(const std::string& connectionString) {
  return StartsWithNoCase(connectionString, "Provider=Microsoft.Jet.OLEDB");
}

}  // namespace

Connection::Connection(Engine& engine) : engine_(engine) {}
Connection::~Connection() = default;

int Connection::State() const {
  return session_ ? 1 : 0;
}

void Connection::Open(const std::string&, const std::string&) {
  if (session_) throw store::error::ObjectOpen();
  failure_.clear();
  try {
    if (!IsFileProvider(ConnectionString)) throw store::error::NoServer();
    session_ = std::make_unique<store::Session>(engine_.Internals(), DataSource(ConnectionString));
  } catch (const RuntimeError& error) {
    failure_ = error.Text();
    throw;
  }
}

void Connection::Close() {
  if (!session_) throw store::error::ObjectClosed();
  session_.reset();
}

store::Session& Connection::Use() {
  if (!session_) throw store::error::ConnectionInvalid(failure_);
  return *session_;
}

}  // namespace norvane
