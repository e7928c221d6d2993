#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "store/internal/Scope.h"
#include "store/internal/Translator.h"

namespace norvane::store {

/// An expression in SQLite's dialect with the type of what it gives.
struct Typed {
  enum class Kind { Sql, Literal, Null };
  Kind kind = Kind::Sql;
  FieldType type = FieldType::Text;
  std::string sql;  ///< none for a literal, whose parameter depends on its context
  syntax::Constant literal{};
};

/// Turns expressions over the tables of a scope into typed SQL, adding a binding for each literal.
class ExpressionTyper {
 public:
  ExpressionTyper(const Scope& scope, const std::vector<Literal>& literals, std::vector<Binding>& bindings)
      : scope_(scope), literals_(literals), bindings_(bindings) {}

  /// A condition. Raises -2147217913 if it is a text.
  std::string Condition(const syntax::Expression& expression);
  /// A value to show: column, aggregate, joined text or constant.
  Typed Result(const syntax::Expression& expression);
  /// A value to put into a column.
  std::string Stored(const syntax::Expression& expression, FieldType column);

  /// Whether sum and max are allowed in the expressions that follow.
  void AllowAggregates(bool allowed) { aggregatesAllowed_ = allowed; }

 private:
  Typed Translate(const syntax::Expression& expression);
  Typed TranslateBinary(const syntax::Binary& binary);
  Typed TranslateFunction(const syntax::Expression& expression, const syntax::Function& function);
  Typed Aggregate(const syntax::Expression& expression, const syntax::Function& function);
  Typed Compare(std::string_view op, const Typed& left, const Typed& right);
  std::string CompareTexts(std::string_view op, const Typed& left, const Typed& right);
  std::string CompareNumbers(std::string_view op, const Typed& left, const Typed& right);
  Typed Like(const Typed& left, const Typed& right);
  Typed JoinTexts(const Typed& left, const Typed& right);

  std::string Bind(const syntax::Constant& literal, BindAs as);
  std::string Plain(const Typed& typed);
  std::string Scaled(const Typed& typed);
  std::string AsText(const Typed& typed);
  bool IsAsciiLiteral(const Typed& typed) const;

  const Scope& scope_;
  const std::vector<Literal>& literals_;
  std::vector<Binding>& bindings_;
  bool aggregatesAllowed_ = false;
};

/// A text's sort key, as the function that the store adds to SQLite gives it.
std::string FoldedSql(const std::string& sql);

/// Whether the expression contains sum or max.
bool HasAggregate(const syntax::Expression& expression);

}  // namespace norvane::store
