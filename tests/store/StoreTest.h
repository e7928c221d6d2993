#pragma once

#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <string>

#include "core/RuntimeError.h"
#include "store/Engine.h"
#include "store/Recordset.h"
#include "support/Database.h"

namespace norvane {

/// A connection as the record classes make it.
inline std::unique_ptr<Connection> ConnectionTo(Engine& engine, const std::string& file) {
  auto connection = std::make_unique<Connection>(engine);
  connection->ConnectionString = "Provider=Microsoft.Jet.OLEDB.4.0;Data Source = \"" + file +
                                 "\" ;Mode=Read|Write|Share Deny None;Persist Security Info=False";
  connection->CursorLocation = CursorLocation::Client;
  return connection;
}

/// "number text" of the error that `work` raises, "" if it raises none.
inline std::string ErrorOf(const std::function<void()>& work) {
  try {
    work();
  } catch (const RuntimeError& error) {
    return std::to_string(error.Number()) + " " + error.Text();
  }
  return "";
}

/// The delivered database, emptied, with an open connection to it.
class StoreTest : public testing::Test {
 protected:
  StoreTest() : connection(ConnectionTo(engine, database.File().string())) {
    database.Clear();
    connection->Open();
  }

  void Run(const std::string& statement) {
    Recordset().Open(statement, *connection, CursorType::Dynamic, LockType::Optimistic);
  }

  std::shared_ptr<Recordset> Read(const std::string& statement, LockType lock = LockType::ReadOnly) {
    auto rows = std::make_shared<Recordset>();
    rows->Open(statement, *connection, CursorType::ForwardOnly, lock);
    return rows;
  }

  /// The fields of all rows as texts: "1001|Smith;1002|Jones".
  static std::string RowsOf(Recordset& rows) {
    std::string text;
    for (; !rows.Eof(); rows.MoveNext()) {
      if (!text.empty()) text += ';';
      for (int i = 0; i < rows.FieldCount(); ++i) {
        const std::string name = rows.FieldName(i);
        text += (i == 0 ? "" : "|") + (rows.IsNull(name) ? "Null" : rows.Text(name));
      }
    }
    return text;
  }
  std::string RowsOf(const std::string& statement) { return RowsOf(*Read(statement)); }

  std::string ErrorIn(const std::string& statement) {
    return ErrorOf([&] { Run(statement); });
  }

  test::Database database;
  Engine engine;
  std::unique_ptr<Connection> connection;
};

}  // namespace norvane
