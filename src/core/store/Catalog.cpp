#include "core/store/Catalog.h"

#include <array>
#include <utility>

#include "core/Characters.h"
#include "core/store/Sqlite.h"

namespace norvane {
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

constexpr const char* kColumns =
    "select tables.name, tables.type = 'view', columns.name, columns.type, columns.pk "
    "from sqlite_schema as tables join pragma_table_info(tables.name) as columns "
    "where tables.type in ('table', 'view') order by tables.rowid, columns.cid";

}  // namespace

int TableSchema::Find(std::string_view column) const {
  for (std::size_t i = 0; i < columns.size(); ++i) {
    if (EqualNoCase(columns[i].name, column)) return static_cast<int>(i);
  }
  return -1;
}

Catalog Catalog::Read(sqlite3* database, const std::string& file) {
  Catalog catalog;
  const StatementHandle rows = Prepare(database, kColumns, file);
  while (Step(rows.get(), file)) {
    const std::string_view table = ColumnText(rows.get(), 0);
    if (catalog.tables_.empty() || catalog.tables_.back().name != table) {
      catalog.tables_.push_back({std::string(table), {}, {}, sqlite3_column_int(rows.get(), 1) != 0});
    }
    TableSchema& schema = catalog.tables_.back();
    schema.columns.push_back({std::string(ColumnText(rows.get(), 2)), DeclaredType(ColumnText(rows.get(), 3))});
    const auto placeInKey = static_cast<std::size_t>(sqlite3_column_int(rows.get(), 4));
    if (placeInKey > schema.key.size()) schema.key.resize(placeInKey);
    if (placeInKey > 0) schema.key[placeInKey - 1] = schema.columns.size() - 1;
  }
  return catalog;
}

const TableSchema* Catalog::Find(std::string_view table) const {
  for (const TableSchema& schema : tables_) {
    if (EqualNoCase(schema.name, table)) return &schema;
  }
  return nullptr;
}

}  // namespace norvane
