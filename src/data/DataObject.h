#pragma once

#include <cstdint>
#include <filesystem>
#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

#include "core/Object.h"
#include "core/Trap.h"
#include "core/Workspace.h"
#include "store/Command.h"
#include "store/Connection.h"
#include "store/Recordset.h"

namespace norvane {

/// A table whose rows are numbered by a column, from the number after `base` on.
struct NumberedTable {
  std::string_view name, key;
  std::int32_t base = 1000;
};

/// What all record classes share: a connection of their own, and the few ways of reading and writing through it.
///
/// Callers bracket every use with OpenCn and CloseCn, so that the file is closed between operations. An operation
/// reports its own errors under its label and returns its result so far: nothing, zero or an empty text.
class DataObject {
 public:
  DataObject(const DataObject&) = delete;
  DataObject& operator=(const DataObject&) = delete;

  /// Names the database file to work on. Opens nothing.
  void InitAccess(const std::filesystem::path& database);
  /// Names a server's database instead.
  void Init(const std::string& userId, const std::string& password, const std::string& database,
            const std::string& server);
  /// Opens the connection if it is closed. A failure isn't reported here: the first statement after it raises it.
  void OpenCn();
  /// Closes the connection, however often it was opened before.
  void CloseCn();

 protected:
  explicit DataObject(Workspace& workspace);
  ~DataObject() = default;

  /// Runs `body` under the standard trap. True if it came to its end.
  template <class Body>
  bool Trapped(std::string_view label, Body&& body) const {
    return Trap(workspace_.reporter, label, std::forward<Body>(body));
  }

  /// What `body` returns, or after a report the zero, empty text or nothing of its type.
  template <class Body>
  std::invoke_result_t<Body> Result(std::string_view label, Body&& body) const {
    std::invoke_result_t<Body> result{};
    Trapped(label, [&] { result = body(); });
    return result;
  }

  /// Reads rows for a caller: a copy that stays readable after CloseCn and belongs to the caller.
  Object<Recordset> Detached(std::string_view statement);
  /// `Detached` under the trap; nothing after a report.
  Object<Recordset> List(std::string_view label, std::string_view statement);

  /// Reads rows for the operation itself, on the first of them.
  std::unique_ptr<Recordset> Read(std::string_view statement);
  /// Rows that may be changed in place with SetField and Update.
  std::unique_ptr<Recordset> ReadToUpdate(std::string_view statement);
  /// Runs a statement that returns no rows.
  void Run(std::string_view statement);
  /// Reads one record's row. If the statement fails, `clear` empties the record before the error goes on, so that no
  /// save can mistake the record read before for this one.
  template <class Clear>
  std::unique_ptr<Recordset> ReadRecord(std::string_view statement, Clear&& clear) {
    try {
      return Read(statement);
    } catch (const RuntimeError&) {
      std::forward<Clear>(clear)();
      throw;
    }
  }
  /// Saves a row whole: the old one goes, the new one comes. Nothing binds the two, so an insert that is refused leaves
  /// the row deleted.
  void Replace(std::string_view deletion, std::string_view insertion);
  /// The key after the highest present; the first one in an empty table. A highest key that was deleted is used
  /// again, unless a refused save has removed its row. Raises 6 past the last Long.
  std::int32_t NextKey(const NumberedTable& table);
  /// Runs `replace`, which saves a row under a number that the caller has. If it is refused the number stays that
  /// row's. Raises 5 if one of the numbers, that of the old row and that of the new one, is 0.
  template <class Body>
  void SaveUnder(const NumberedTable& table, std::int32_t oldKey, std::int32_t key, Body&& replace) {
    if (oldKey == 0 || key == 0) Raise(ErrorNumber::InvalidProcedureCall);
    try {
      std::forward<Body>(replace)();
    } catch (const RuntimeError&) {
      workspace_.numbersInUse.emplace(table.name, key);
      throw;
    }
  }
  /// The same for a row that may be new: a `key` of 0 becomes the number that `next` returns. If that is 0, as after a
  /// report, nothing is saved; if the new row is refused `key` is 0 again.
  template <class Next, class Body>
  void SaveNumbered(const NumberedTable& table, std::int32_t& key, Next&& next, Body&& replace) {
    if (key != 0) return SaveUnder(table, key, key, std::forward<Body>(replace));
    key = std::forward<Next>(next)();
    if (key == 0) return;
    try {
      std::forward<Body>(replace)();
    } catch (const RuntimeError&) {
      key = 0;
      throw;
    }
  }
  /// Runs a stored procedure of the server's.
  void RunProcedure(std::string_view name, std::initializer_list<Parameter> parameters);

  Workspace& workspace_;
  Connection connection_;
  /// The rows read last for a caller, shared with that caller.
  Object<Recordset> recordset_;

 private:
  std::string connectionString_;
};

/// A text field that must not be Null: raises 94 if it is.
std::string RequiredText(const Recordset& rows, std::string_view field);
/// A sum, 0 if there was nothing to add up.
Currency SumOrZero(const Recordset& rows, std::string_view field);

}  // namespace norvane
