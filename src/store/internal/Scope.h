#pragma once

#include <compare>
#include <string>
#include <vector>

#include "store/internal/Catalog.h"
#include "store/internal/Syntax.h"

namespace norvane::store {

/// A column of one of the tables that a statement names.
struct ColumnReference {
  std::size_t table = 0;
  std::size_t column = 0;
  auto operator<=>(const ColumnReference&) const = default;  // NOLINT(modernize-use-nullptr): clang-tidy 14 errs
};

/// The tables that a statement names, and which columns are known to be equal.
class Scope {
 public:
  /// Raises -2147217900 if the table is named twice.
  void Add(const TableSchema& table);
  /// Two columns that an inner join makes equal in every row.
  void AddEquality(ColumnReference a, ColumnReference b) { equalities_.emplace_back(a, b); }

  const std::vector<const TableSchema*>& Tables() const { return tables_; }
  /// Raises -2147217904 for an unknown name, -2147217900 for one that several tables have.
  ColumnReference Resolve(const syntax::Name& name) const;
  FieldType TypeOf(ColumnReference column) const { return ColumnOf(column).type; }
  const std::string& NameOf(ColumnReference column) const { return ColumnOf(column).name; }
  std::string Sql(ColumnReference column) const;
  /// What puts the rows in the order of the first table's key, then of the next one's as far as that is not settled.
  std::vector<ColumnReference> KeyOrder() const;

  /// The columns without those that depend on the others: what a key determines need not be grouped by, and rows
  /// grouped by one key are read in key order without a sort.
  std::vector<ColumnReference> WithoutDependent(std::vector<ColumnReference> columns) const;

 private:
  const TableSchema::Column& ColumnOf(ColumnReference column) const {
    return tables_[column.table]->columns[column.column];
  }
  /// The closure of the columns: themselves and every column that they functionally determine, through keys and
  /// equalities.
  std::vector<ColumnReference> Closure(std::vector<ColumnReference> columns) const;
  bool DependsOn(ColumnReference column, const std::vector<ColumnReference>& others) const;

  std::vector<const TableSchema*> tables_;
  std::vector<std::pair<ColumnReference, ColumnReference>> equalities_;
};

}  // namespace norvane::store
