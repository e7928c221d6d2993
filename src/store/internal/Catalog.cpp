#include "store/internal/Catalog.h"

#include <array>
#include <utility>

#include "core/Characters.h"
#include "core/Trap.h"
#include "store/internal/Sqlite.h"

namespace norvane::store {
namespace {

FieldType DeclaredType(std::string_view declaration) {
  constexpr std::array<std::pair<std::string_view, FieldType>, 6> kTypes = {{
      {"INTEGER", FieldType::Long},
      {"LONG", FieldType::Long},
      {"DOUBLE", FieldType::Double},
      {"CURRENCY", FieldType::Currency},
      {"DATE", FieldType::Date},
      {"BOOLEAN", FieldType::Boolean},
  }};
  for (const auto& [name, type] : kTypes) {
    if (EqualNoCase(declaration, name)) return type;
  }
  return FieldType::Text;
}

/// Adds one column to the schema, from a row of pragma_table_info.
void AddColumn(TableSchema& schema, sqlite3_stmt* row) {
  schema.columns.push_back({std::string(ColumnText(row, 0)), DeclaredType(ColumnText(row, 1))});
  const auto placeInKey = static_cast<std::size_t>(sqlite3_column_int(row, 2));
  if (placeInKey > schema.key.size()) schema.key.resize(placeInKey);
  if (placeInKey > 0) schema.key[placeInKey - 1] = schema.columns.size() - 1;
}

TableSchema ReadTable(sqlite3* database, const std::string& file, const std::string& name, bool isQuery) {
  TableSchema schema{name, {}, {}, isQuery};
  const StatementHandle rows = Prepare(database, "select name, type, pk from pragma_table_info(?) order by cid", file);
  sqlite3_bind_text(rows.get(), 1, name.data(), static_cast<int>(name.size()), SQLITE_STATIC);
  while (Step(rows.get(), file)) AddColumn(schema, rows.get());
  return schema;
}

}  // namespace

int TableSchema::Find(std::string_view column) const {
  for (std::size_t i = 0; i < columns.size(); ++i) {
    if (EqualNoCase(columns[i].name, column)) return static_cast<int>(i);
  }
  return -1;
}

Catalog Catalog::Read(sqlite3* database, const std::string& file) {
  Catalog catalog;
  const StatementHandle rows = Prepare(
      database, "select name, type = 'view' from sqlite_schema where type in ('table', 'view') order by rowid", file);
  while (Step(rows.get(), file)) {
    const std::string name(ColumnText(rows.get(), 0));
    const bool isQuery = sqlite3_column_int(rows.get(), 1) != 0;
    const auto add = [&] { catalog.tables_.push_back(ReadTable(database, file, name, isQuery)); };
    // A saved query whose table is gone takes nothing else with it.
    isQuery ? IgnoringErrors(add) : add();
  }
  return catalog;
}

const TableSchema* Catalog::Find(std::string_view table) const {
  for (const TableSchema& schema : tables_) {
    if (EqualNoCase(schema.name, table)) return &schema;
  }
  return nullptr;
}

}  // namespace norvane::store
