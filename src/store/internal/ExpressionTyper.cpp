#include "store/internal/ExpressionTyper.h"

#include "core/Characters.h"
#include "core/TextFolding.h"
#include "store/internal/SqlFunctions.h"
#include "store/internal/StoreError.h"

namespace norvane::store {
namespace {

using namespace syntax;

Typed Sql(std::string sql, FieldType type) {
  return {Typed::Kind::Sql, type, std::move(sql), {}};
}

bool IsText(const Typed& typed) {
  return typed.kind != Typed::Kind::Null && typed.type == FieldType::Text;
}
bool IsMoney(const Typed& typed) {
  return typed.kind == Typed::Kind::Sql && typed.type == FieldType::Currency;
}

FieldType TypeOfLiteral(const Literal& literal) {
  switch (literal.kind) {
    case TokenKind::Text:
      return FieldType::Text;
    case TokenKind::Date:
      return FieldType::Date;
    default:
      return FieldType::Double;
  }
}

FieldType TypeOfSum(FieldType type) {
  if (type == FieldType::Boolean) return FieldType::Long;
  return type == FieldType::Date ? FieldType::Double : type;
}

BindAs BindingFor(FieldType column) {
  switch (column) {
    case FieldType::Long:
      return BindAs::Long;
    case FieldType::Double:
      return BindAs::Double;
    case FieldType::Currency:
      return BindAs::Currency;
    case FieldType::Date:
      return BindAs::Date;
    case FieldType::Boolean:
      return BindAs::Boolean;
    case FieldType::Text:
      break;
  }
  return BindAs::Text;
}

std::string_view Spelling(BinaryOperator op) {
  switch (op) {
    case BinaryOperator::Equal:
      return " = ";
    case BinaryOperator::NotEqual:
      return " <> ";
    case BinaryOperator::Less:
      return " < ";
    case BinaryOperator::LessOrEqual:
      return " <= ";
    case BinaryOperator::Greater:
      return " > ";
    default:
      return " >= ";
  }
}

std::string Parenthesised(std::string_view a, std::string_view op, std::string_view b) {
  return Concat({"(", a, op, b, ")"});
}

}  // namespace

std::string FoldedSql(const std::string& sql) {
  return Concat({kFoldFunction, "(", sql, ")"});
}

bool HasAggregate(const Expression& expression) {
  if (const auto* binary = std::get_if<Binary>(&expression.node)) {
    return HasAggregate(*binary->left) || HasAggregate(*binary->right);
  }
  if (const auto* inverse = std::get_if<Not>(&expression.node)) return HasAggregate(*inverse->operand);
  const auto* function = std::get_if<Function>(&expression.node);
  if (!function) return false;
  const bool aggregate = function->name == FunctionName::Sum || function->name == FunctionName::Max;
  return aggregate || HasAggregate(*function->argument);
}

std::string ExpressionTyper::Condition(const Expression& expression) {
  const Typed typed = Translate(expression);
  if (IsText(typed)) throw error::TypeMismatchInCriteria();
  return Plain(typed);
}

Typed ExpressionTyper::Result(const Expression& expression) {
  Typed typed = Translate(expression);
  typed.sql = Plain(typed);
  typed.kind = Typed::Kind::Sql;
  return typed;
}

std::string ExpressionTyper::Stored(const Expression& expression, FieldType column) {
  const Typed typed = Translate(expression);
  if (typed.kind == Typed::Kind::Literal) return Bind(typed.literal, BindingFor(column));
  if (typed.kind == Typed::Kind::Null || typed.type == column) return typed.sql;
  if (typed.type != FieldType::Boolean) throw error::TypeMismatchInCriteria();
  if (column == FieldType::Currency) return Parenthesised(typed.sql, " * ", "10000");
  return typed.sql;
}

Typed ExpressionTyper::Translate(const Expression& expression) {
  if (const auto* constant = std::get_if<Constant>(&expression.node)) {
    return {Typed::Kind::Literal, TypeOfLiteral(literals_[constant->literal]), {}, *constant};
  }
  if (const auto* word = std::get_if<Word>(&expression.node)) {
    if (*word == Word::Null) return {Typed::Kind::Null, FieldType::Text, "NULL", {}};
    return Sql(*word == Word::True ? "-1" : "0", FieldType::Boolean);
  }
  if (const auto* name = std::get_if<Name>(&expression.node)) {
    const ColumnReference column = scope_.Resolve(*name);
    return Sql(scope_.Sql(column), scope_.TypeOf(column));
  }
  if (const auto* binary = std::get_if<Binary>(&expression.node)) return TranslateBinary(*binary);
  if (const auto* inverse = std::get_if<Not>(&expression.node)) {
    return Sql(Concat({"(NOT ", Condition(*inverse->operand), ")"}), FieldType::Boolean);
  }
  return TranslateFunction(expression, std::get<Function>(expression.node));
}

Typed ExpressionTyper::TranslateBinary(const Binary& binary) {
  if (binary.op == BinaryOperator::And || binary.op == BinaryOperator::Or) {
    const std::string left = Condition(*binary.left);
    const std::string right = Condition(*binary.right);
    return Sql(Parenthesised(left, binary.op == BinaryOperator::And ? " AND " : " OR ", right), FieldType::Boolean);
  }
  const Typed left = Translate(*binary.left);
  const Typed right = Translate(*binary.right);
  if (binary.op == BinaryOperator::Join) return JoinTexts(left, right);
  if (binary.op == BinaryOperator::Like) return Like(left, right);
  return Compare(Spelling(binary.op), left, right);
}

Typed ExpressionTyper::Compare(std::string_view op, const Typed& left, const Typed& right) {
  if (left.kind == Typed::Kind::Null || right.kind == Typed::Kind::Null) {
    const std::string leftSql = Plain(left);
    return Sql(Parenthesised(leftSql, op, Plain(right)), FieldType::Boolean);
  }
  if (IsText(left) != IsText(right)) throw error::TypeMismatchInCriteria();
  return Sql(IsText(left) ? CompareTexts(op, left, right) : CompareNumbers(op, left, right), FieldType::Boolean);
}

std::string ExpressionTyper::CompareTexts(std::string_view op, const Typed& left, const Typed& right) {
  const bool equality = op == " = " || op == " <> ";
  const std::string column = Plain(left);
  // No accented text equals one without accents, so the column's own order decides, and its index is used.
  if (equality && IsAsciiLiteral(right)) return Concat({"(", column, op, Plain(right), " COLLATE NOCASE)"});
  return Parenthesised(FoldedSql(column), op, FoldedSql(Plain(right)));
}

std::string ExpressionTyper::CompareNumbers(std::string_view op, const Typed& left, const Typed& right) {
  const bool money = IsMoney(left) || IsMoney(right);
  const std::string leftSql = money ? Scaled(left) : Plain(left);
  return Parenthesised(leftSql, op, money ? Scaled(right) : Plain(right));
}

Typed ExpressionTyper::Like(const Typed& left, const Typed& right) {
  const std::string text = AsText(left);
  return Sql(Concat({kLikeFunction, "(", text, ", ", AsText(right), ")"}), FieldType::Boolean);
}

Typed ExpressionTyper::JoinTexts(const Typed& left, const Typed& right) {
  const std::string first = AsText(left);
  return Sql(Concat({"(ifnull(", first, ", '') || ifnull(", AsText(right), ", ''))"}), FieldType::Text);
}

Typed ExpressionTyper::TranslateFunction(const Expression& expression, const Function& function) {
  switch (function.name) {
    case FunctionName::Val:
      return Sql(Concat({kValFunction, "(", AsText(Translate(*function.argument)), ")"}), FieldType::Double);
    case FunctionName::IsNull:
      return Sql(Concat({"(", Plain(Translate(*function.argument)), " IS NULL)"}), FieldType::Boolean);
    default:
      return Aggregate(expression, function);
  }
}

Typed ExpressionTyper::Aggregate(const Expression& expression, const Function& function) {
  if (!aggregatesAllowed_) throw error::AggregateNotAllowed(expression.source);
  aggregatesAllowed_ = false;
  Typed argument = Translate(*function.argument);
  aggregatesAllowed_ = true;
  const bool sum = function.name == FunctionName::Sum;
  if (sum && IsText(argument)) throw error::TypeMismatchInCriteria();
  return Sql(Concat({sum ? "sum(" : "max(", Plain(argument), ")"}), sum ? TypeOfSum(argument.type) : argument.type);
}

std::string ExpressionTyper::Bind(const Constant& literal, BindAs as) {
  bindings_.push_back({literal.literal, literal.negative, as});
  return Concat({"?", std::to_string(bindings_.size())});
}

std::string ExpressionTyper::Plain(const Typed& typed) {
  if (typed.kind != Typed::Kind::Literal) return typed.sql;
  if (typed.type == FieldType::Text) return Bind(typed.literal, BindAs::Text);
  return Bind(typed.literal, typed.type == FieldType::Date ? BindAs::Date : BindAs::Number);
}

/// A number as money is kept.
std::string ExpressionTyper::Scaled(const Typed& typed) {
  if (IsMoney(typed)) return typed.sql;
  return typed.kind == Typed::Kind::Literal ? Bind(typed.literal, BindAs::Money)
                                            : Parenthesised(typed.sql, " * ", "10000");
}

std::string ExpressionTyper::AsText(const Typed& typed) {
  if (typed.kind == Typed::Kind::Literal) return Bind(typed.literal, BindAs::Text);
  if (IsText(typed) || typed.kind == Typed::Kind::Null) return typed.sql;
  return Concat({kTextFunction, "(", typed.sql, ", ", std::to_string(static_cast<int>(typed.type)), ")"});
}

bool ExpressionTyper::IsAsciiLiteral(const Typed& typed) const {
  return typed.kind == Typed::Kind::Literal && IsAscii(literals_[typed.literal.literal].text);
}

}  // namespace norvane::store
