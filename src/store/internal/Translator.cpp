#include "store/internal/Translator.h"

#include <algorithm>
#include <set>

#include "core/Characters.h"
#include "store/internal/ExpressionTyper.h"
#include "store/internal/Scope.h"
#include "store/internal/SqlWriting.h"
#include "store/internal/StoreError.h"

namespace norvane::store {
namespace {

using namespace syntax;

constexpr std::size_t kMostFields = 255;

class StatementTranslator {
 public:
  StatementTranslator(const Lexed& lexed, const Catalog& catalog)
      : catalog_(catalog), typer_(scope_, lexed.literals, result_.bindings) {}

  Translation Run(const Statement& statement) {
    std::visit([&](const auto& each) { Translate(each); }, statement);
    return std::move(result_);
  }

 private:
  void Append(std::string_view text) { result_.sql += text; }
  void Append(std::initializer_list<std::string_view> parts) {
    for (const std::string_view part : parts) Append(part);
  }

  const TableSchema& Find(const Table& table) const {
    const TableSchema* schema = catalog_.Find(table.name);
    if (!schema) throw error::UnknownTable(table.name);
    return *schema;
  }

  const TableSchema& FindToChange(const Table& table) {
    const TableSchema& schema = Find(table);
    if (schema.isQuery) throw error::NotUpdatable();
    scope_.Add(schema);
    return schema;
  }

  /// A column that the statement has not named before.
  const TableSchema::Column& ColumnToChange(const TableSchema& table, std::string_view name) {
    const int column = table.Find(name);
    if (column < 0) throw error::MissingParameter();
    if (!changed_.insert(column).second) throw error::DuplicateDestination(name);
    return table.columns[column];
  }

  // Select.

  void Translate(const Select& select) {
    AddTables(*select.from);
    const std::string from = From(*select.from);
    grouped_ = !select.groupBy.empty() || HasAggregates(select);
    for (const ExpressionPtr& each : select.groupBy) groupColumns_.push_back(GroupColumn(*each));
    Append("SELECT ");
    AppendItems(select);
    Append({" FROM ", from});
    AppendConditions(select);
    AppendGrouping(select);
    AppendOrder(select);
    if (!grouped_) DescribeTable();
  }

  void AddTables(const Source& source) {
    if (const auto* table = std::get_if<Table>(&source.node)) return scope_.Add(Find(*table));
    const auto& join = std::get<Join>(source.node);
    AddTables(*join.first);
    AddTables(*join.second);
  }

  std::string From(const Source& source) {
    if (const auto* table = std::get_if<Table>(&source.node)) return QuotedName(Find(*table).name);
    const auto& join = std::get<Join>(source.node);
    if (!join.left) LearnEqualities(*join.on);
    const std::string first = From(*join.first);
    const bool nested = std::holds_alternative<Join>(join.second->node);
    const std::string second = nested ? Concat({"(", From(*join.second), ")"}) : From(*join.second);
    return Concat({first, join.left ? " LEFT JOIN " : " JOIN ", second, " ON ", typer_.Condition(*join.on)});
  }

  void LearnEqualities(const Expression& condition) {
    const auto* binary = std::get_if<Binary>(&condition.node);
    if (!binary) return;
    if (binary->op == BinaryOperator::And) {
      LearnEqualities(*binary->left);
      LearnEqualities(*binary->right);
    }
    const auto* left = std::get_if<Name>(&binary->left->node);
    const auto* right = std::get_if<Name>(&binary->right->node);
    if (binary->op != BinaryOperator::Equal || !left || !right) return;
    const ColumnReference a = scope_.Resolve(*left);
    const ColumnReference b = scope_.Resolve(*right);
    // Equal texts may differ in case, so one does not determine the other's spelling.
    if (scope_.TypeOf(a) != FieldType::Text) scope_.AddEquality(a, b);
  }

  static bool HasAggregates(const Select& select) {
    return std::any_of(select.items.begin(), select.items.end(),
                       [](const SelectItem& item) { return item.expression && HasAggregate(*item.expression); });
  }

  ColumnReference GroupColumn(const Expression& expression) const {
    const auto* name = std::get_if<Name>(&expression.node);
    if (!name) throw error::SyntaxErrorIn("GROUP BY clause");
    return scope_.Resolve(*name);
  }

  void AppendItems(const Select& select) {
    typer_.AllowAggregates(true);
    for (const SelectItem& item : select.items) {
      if (item.expression) {
        AppendItem(item);
      } else {
        AppendAllColumns();
      }
    }
    typer_.AllowAggregates(false);
  }

  void AppendAllColumns() {
    if (grouped_) throw error::NotInAggregate("*");
    for (std::size_t table = 0; table < scope_.Tables().size(); ++table) {
      for (std::size_t column = 0; column < scope_.Tables()[table]->columns.size(); ++column) {
        const ColumnReference reference{table, column};
        AppendColumn(scope_.Sql(reference), {scope_.NameOf(reference), scope_.TypeOf(reference)},
                     scope_.NameOf(reference));
      }
    }
  }

  void AppendItem(const SelectItem& item) {
    CheckGrouping(*item.expression);
    const Typed typed = typer_.Result(*item.expression);
    const auto* name = std::get_if<Name>(&item.expression->node);
    const std::string column = name ? scope_.NameOf(scope_.Resolve(*name)) : "";
    // What has no name is numbered as the platform does.
    std::string title = name ? column : Concat({"Expr", std::to_string(1000 + result_.columns.size())});
    if (!item.alias.empty()) title = item.alias;
    AppendColumn(typed.sql, {std::move(title), typed.type}, column);
  }

  void AppendColumn(const std::string& sql, ResultColumn column, const std::string& tableColumn) {
    if (result_.columns.size() == kMostFields) throw error::TooManyFields();
    Append({result_.columns.empty() ? "" : ", ", sql});
    result_.columns.push_back(std::move(column));
    result_.tableColumns.push_back(tableColumn);
  }

  /// Every column outside of an aggregate must be one that is grouped by.
  void CheckGrouping(const Expression& expression) const {
    if (!grouped_) return;
    if (const auto* name = std::get_if<Name>(&expression.node)) {
      const ColumnReference column = scope_.Resolve(*name);
      if (std::find(groupColumns_.begin(), groupColumns_.end(), column) == groupColumns_.end()) {
        throw error::NotInAggregate(expression.source);
      }
    } else if (const auto* binary = std::get_if<Binary>(&expression.node)) {
      CheckGrouping(*binary->left);
      CheckGrouping(*binary->right);
    } else if (const auto* inverse = std::get_if<Not>(&expression.node)) {
      CheckGrouping(*inverse->operand);
    } else if (const auto* function = std::get_if<Function>(&expression.node)) {
      if (function->name == FunctionName::Val || function->name == FunctionName::IsNull) {
        CheckGrouping(*function->argument);
      }
    }
  }

  /// A condition on the groups that asks for no aggregate holds for all rows of a group or for none, so it is asked of
  /// the rows, before they are joined and summed.
  void AppendConditions(const Select& select) {
    std::string_view lead = " WHERE ";
    if (select.where) {
      Append({lead, typer_.Condition(*select.where)});
      lead = " AND ";
    }
    if (!select.having) return;
    if (select.groupBy.empty()) throw error::SyntaxErrorIn("HAVING clause");
    CheckGrouping(*select.having);
    if (HasAggregate(*select.having)) return;
    Append({lead, typer_.Condition(*select.having)});
  }

  void AppendGrouping(const Select& select) {
    if (select.groupBy.empty()) return;
    groupKey_ = scope_.WithoutDependent(groupColumns_);
    std::string_view lead = " GROUP BY ";
    for (const ColumnReference column : groupKey_) {
      Append({lead, scope_.Sql(column)});
      lead = ", ";
    }
    if (!select.having || !HasAggregate(*select.having)) return;
    typer_.AllowAggregates(true);
    Append({" HAVING ", typer_.Condition(*select.having)});
    typer_.AllowAggregates(false);
  }

  /// What is asked for, then the key: rows that are otherwise equal keep their places from one reading to the
  /// next.
  void AppendOrder(const Select& select) {
    std::vector<std::string> terms;
    std::vector<std::string> plain;
    typer_.AllowAggregates(grouped_);
    for (const OrderItem& item : select.orderBy) {
      CheckGrouping(*item.expression);
      if (IsConstant(*item.expression)) throw error::SyntaxErrorIn("ORDER BY clause");
      const Typed typed = typer_.Result(*item.expression);
      plain.push_back(typed.sql);
      terms.push_back(Concat({Sortable(typed.sql, typed.type), item.descending ? " DESC" : ""}));
    }
    typer_.AllowAggregates(false);
    for (const ColumnReference column : grouped_ ? groupKey_ : scope_.KeyOrder()) {
      const std::string sql = scope_.Sql(column);
      if (std::find(plain.begin(), plain.end(), sql) != plain.end()) continue;
      terms.push_back(Sortable(sql, scope_.TypeOf(column)));
    }
    for (std::size_t i = 0; i < terms.size(); ++i) Append({i == 0 ? " ORDER BY " : ", ", terms[i]});
  }

  /// What orders nothing; SQLite would take a whole number for the place of a column.
  static bool IsConstant(const Expression& expression) {
    return std::holds_alternative<Constant>(expression.node) || std::holds_alternative<Word>(expression.node);
  }

  static std::string Sortable(const std::string& sql, FieldType type) {
    return type == FieldType::Text ? FoldedSql(sql) : sql;
  }

  void DescribeTable() {
    const TableSchema& table = *scope_.Tables().front();
    if (scope_.Tables().size() != 1 || table.isQuery) return;
    for (const std::size_t column : table.key) {
      const auto& names = result_.tableColumns;
      const auto found = std::find(names.begin(), names.end(), table.columns[column].name);
      if (found == names.end()) return;
      result_.key.push_back(static_cast<std::size_t>(found - names.begin()));
    }
    result_.table = table.name;
  }

  // Changes.

  void Translate(const Insert& insert) {
    const TableSchema& table = Find(insert.table);
    if (table.isQuery) throw error::NotUpdatable();
    std::string columns;
    std::string values;
    std::vector<std::string> stored(table.columns.size(), "NULL");
    if (insert.columns.size() != insert.values.size()) throw error::ValueCountDiffers();
    for (std::size_t i = 0; i < insert.columns.size(); ++i) {
      const TableSchema::Column& column = ColumnToChange(table, insert.columns[i]);
      const std::string value = typer_.Stored(*insert.values[i], column.type);
      columns += Concat({i == 0 ? "" : ", ", QuotedName(column.name)});
      values += Concat({i == 0 ? "" : ", ", value});
      stored[&column - table.columns.data()] = value;
    }
    for (const std::size_t column : table.key) {
      if (stored[column] == "NULL") throw error::NullKey();
    }
    Append({"INSERT INTO ", QuotedName(table.name), " (", columns, ") SELECT ", values});
    if (table.HasTextKey()) AppendKeyGuard(table, stored);
  }

  /// The key's index knows capitals of plain letters only; this knows those with accents.
  void AppendKeyGuard(const TableSchema& table, const std::vector<std::string>& stored) {
    Append({" WHERE NOT EXISTS (SELECT 1 FROM ", QuotedName(table.name)});
    std::string_view lead = " WHERE ";
    for (const std::size_t column : table.key) {
      Append({lead, FoldedSql(QuotedName(table.columns[column].name)), " = ", FoldedSql(stored[column])});
      lead = " AND ";
    }
    Append(")");
    result_.mustChange = true;
  }

  void Translate(const Delete& deletion) {
    const TableSchema& table = FindToChange(deletion.table);
    Append({"DELETE FROM ", QuotedName(table.name)});
    AppendWhere(deletion.where);
  }

  void Translate(const Update& update) {
    const TableSchema& table = FindToChange(update.table);
    Append({"UPDATE ", QuotedName(table.name)});
    std::string_view lead = " SET ";
    for (const Assignment& assignment : update.assignments) {
      const TableSchema::Column& column = ColumnToChange(table, assignment.column);
      Append({lead, QuotedName(column.name), " = ", typer_.Stored(*assignment.value, column.type)});
      lead = ", ";
    }
    AppendWhere(update.where);
  }

  void AppendWhere(const ExpressionPtr& where) {
    if (where) Append({" WHERE ", typer_.Condition(*where)});
  }

  const Catalog& catalog_;
  Scope scope_;
  Translation result_;
  ExpressionTyper typer_;
  std::set<int> changed_;
  bool grouped_ = false;
  std::vector<ColumnReference> groupColumns_;
  std::vector<ColumnReference> groupKey_;
};

}  // namespace

Translation Translate(const Statement& statement, const Lexed& lexed, const Catalog& catalog) {
  return StatementTranslator(lexed, catalog).Run(statement);
}

}  // namespace norvane::store
