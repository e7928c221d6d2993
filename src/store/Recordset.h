#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "core/Value.h"
#include "store/Connection.h"
#include "store/FieldType.h"

namespace norvane {

enum class CursorType { ForwardOnly = 0, Keyset = 1, Dynamic = 2, Static = 3 };
enum class LockType { Unspecified = -1, ReadOnly = 1, Pessimistic = 2, Optimistic = 3 };

/// Rows read by a statement, held in memory with a cursor over them; or rows fabricated with AppendField and AddNew.
///
/// Fields are looked up by name without regard to case (3265 if unknown). A read or MoveFirst without a current row
/// raises 3021, any use of a closed recordset but State, RecordCount and Open raises 3704.
class Recordset {
 public:
  Recordset();
  ~Recordset();
  Recordset(const Recordset&) = delete;
  Recordset& operator=(const Recordset&) = delete;

  // Set before a bare Open.
  std::string Source;
  norvane::CursorLocation CursorLocation = norvane::CursorLocation::Server;
  norvane::CursorType CursorType = norvane::CursorType::ForwardOnly;
  /// The connection must outlive the next Open and every Update; clearing it detaches the rows.
  void SetActiveConnection(Connection* connection);

  /// Runs the statement. One that returns no rows leaves the recordset closed. 3705 if it is open already.
  void Open(std::string_view source, Connection& connection, norvane::CursorType cursorType,
            LockType lockType = LockType::ReadOnly);
  /// Runs Source on the active connection.
  void Open();
  void Close();
  /// 0 closed, 1 open.
  int State() const;

  /// Past the last row, which is where an empty recordset is from the start.
  bool Eof() const;
  /// Exact; 0 of a recordset that was never opened.
  std::int32_t RecordCount() const;
  void MoveFirst();
  void MoveNext();
  /// An independent cursor over the same rows, on the first of them; it outlives this recordset.
  std::shared_ptr<Recordset> Clone() const;
  /// "<column> [desc], ...": stable, text without regard to case, Null first; then moves to the first row.
  void Sort(std::string_view order);

  int FieldCount() const;
  std::string FieldName(int index) const;
  FieldType FieldTypeOf(int index) const;
  Value Field(std::string_view name) const;
  /// A field by its place in the row, from 0.
  Value Field(int index) const;

  // Reads of the current row. All but Text and IsNull raise 94 on a Null.
  bool IsNull(std::string_view name) const;
  /// The field's default text under United States settings joined with the empty text, so that a Null is empty.
  std::string Text(std::string_view name) const;
  std::int32_t Long(std::string_view name) const;
  double Double(std::string_view name) const;
  norvane::Currency Currency(std::string_view name) const;
  norvane::Date Date(std::string_view name) const;
  bool Boolean(std::string_view name) const;

  // Rows changed in place, and fabricated ones.
  void AppendField(std::string_view name, FieldType type, int size = 0);
  /// Opens a recordset whose fields were appended.
  void OpenFabricated();
  void AddNew();
  /// -2147217887 if the text is too long, or a Null, for an appended field.
  void SetField(std::string_view name, const Value& value);
  /// Writes what was set since AddNew or the move to this row: into the table if the rows were read with an optimistic
  /// lock, else into memory.
  void Update();

 private:
  struct State_;
  std::unique_ptr<State_> state_;
};

/// "If open": False of a recordset that is nothing.
bool IsOpen(const std::shared_ptr<Recordset>& recordset);

}  // namespace norvane
