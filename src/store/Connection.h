#pragma once

#include <memory>
#include <string>

namespace norvane {

class Engine;

namespace store {
class Session;
}  // namespace store

enum class CursorLocation { Server = 2, Client = 3 };

/// One connection to the database file. Open only between a caller's OpenCn and CloseCn.
class Connection {
 public:
  explicit Connection(Engine& engine);
  ~Connection();
  Connection(const Connection&) = delete;
  Connection& operator=(const Connection&) = delete;

  /// "Provider=...;Data Source = "<path>" ;..." for the file; any other provider is the server branch, for which no
  /// server is configured.
  std::string ConnectionString;
  norvane::CursorLocation CursorLocation = norvane::CursorLocation::Server;

  /// 0 closed, 1 open.
  int State() const;
  /// Raises -2147467259 with the reason if the file is missing, locked or no database; 3705 if it is open.
  void Open(const std::string& user = "", const std::string& password = "");
  /// Raises 3704 if it is closed.
  void Close();

  /// The open file, for Recordset and Command. Raises 3709 if it is closed; its cause is why the last Open failed.
  store::Session& Use();

 private:
  Engine& engine_;
  std::unique_ptr<store::Session> session_;
  std::string failure_;  ///< of the last Open
};

}  // namespace norvane
