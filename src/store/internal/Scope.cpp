#include "store/internal/Scope.h"

#include <algorithm>

#include "core/Characters.h"
#include "store/internal/SqlWriting.h"
#include "store/internal/StoreError.h"

namespace norvane::store {
namespace {

bool Contains(const std::vector<ColumnReference>& columns, ColumnReference column) {
  return std::find(columns.begin(), columns.end(), column) != columns.end();
}

}  // namespace

void Scope::Add(const TableSchema& table) {
  if (std::find(tables_.begin(), tables_.end(), &table) != tables_.end()) {
    throw error::SyntaxErrorIn("FROM clause");
  }
  tables_.push_back(&table);
}

ColumnReference Scope::Resolve(const syntax::Name& name) const {
  const ColumnReference none{tables_.size(), 0};
  ColumnReference found = none;
  for (std::size_t table = 0; table < tables_.size(); ++table) {
    if (!name.table.empty() && !EqualNoCase(tables_[table]->name, name.table)) continue;
    const int column = tables_[table]->Find(name.name);
    if (column < 0) continue;
    if (found != none) throw error::AmbiguousName(name.name);
    found = {table, static_cast<std::size_t>(column)};
  }
  if (found == none) throw error::MissingParameter();
  return found;
}

std::string Scope::Sql(ColumnReference column) const {
  return Concat({QuotedName(tables_[column.table]->name), ".", QuotedName(NameOf(column))});
}

std::vector<ColumnReference> Scope::KeyOrder() const {
  std::vector<ColumnReference> order;
  for (std::size_t table = 0; table < tables_.size(); ++table) {
    for (const std::size_t column : tables_[table]->key) {
      if (!DependsOn({table, column}, order)) order.push_back({table, column});
    }
  }
  return order;
}

std::vector<ColumnReference> Scope::Closure(std::vector<ColumnReference> columns) const {
  const auto add = [&](ColumnReference column) {
    const bool isNew = !Contains(columns, column);
    if (isNew) columns.push_back(column);
    return isNew;
  };
  const auto hasKey = [&](std::size_t table) {
    const auto& key = tables_[table]->key;
    return !key.empty() && std::all_of(key.begin(), key.end(), [&](std::size_t c) {
      return Contains(columns, {table, c});
    });
  };
  std::vector<bool> complete(tables_.size());
  for (bool growing = true; growing;) {
    growing = false;
    for (const auto& [a, b] : equalities_) {
      if (Contains(columns, a)) growing |= add(b);
      if (Contains(columns, b)) growing |= add(a);
    }
    for (std::size_t table = 0; table < tables_.size(); ++table) {
      if (complete[table] || !hasKey(table)) continue;
      complete[table] = growing = true;
      for (std::size_t column = 0; column < tables_[table]->columns.size(); ++column) add({table, column});
    }
  }
  return columns;
}

bool Scope::DependsOn(ColumnReference column, const std::vector<ColumnReference>& others) const {
  return Contains(Closure(others), column);
}

std::vector<ColumnReference> Scope::WithoutDependent(std::vector<ColumnReference> columns) const {
  for (std::size_t i = 0; i < columns.size();) {
    std::vector<ColumnReference> others = columns;
    others.erase(others.begin() + static_cast<std::ptrdiff_t>(i));
    if (DependsOn(columns[i], others)) {
      columns = std::move(others);
    } else {
      ++i;
    }
  }
  return columns;
}

}  // namespace norvane::store
