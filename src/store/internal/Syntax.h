#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace norvane::store::syntax {

struct Name {
  std::string_view table;  ///< empty if the name is not qualified
  std::string_view name;
};

struct Expression;
using ExpressionPtr = std::unique_ptr<Expression>;

struct Constant {
  int literal = 0;  ///< which of the statement's literals
  bool negative = false;
};
enum class Word { True, False, Null };
enum class BinaryOperator { Or, And, Equal, NotEqual, Less, LessOrEqual, Greater, GreaterOrEqual, Like, Join };
struct Binary {
  BinaryOperator op;
  ExpressionPtr left;
  ExpressionPtr right;
};
struct Not {
  ExpressionPtr operand;
};
enum class FunctionName { Val, IsNull, Sum, Max };
struct Function {
  FunctionName name;
  ExpressionPtr argument;
};

struct Expression {
  std::variant<Constant, Word, Name, Binary, Not, Function> node;
  std::string_view source;  ///< as written in the statement
};

struct Table {
  std::string_view name;
};
struct Source;
using SourcePtr = std::unique_ptr<Source>;
struct Join {
  bool left = false;  ///< keeps rows of the left side that have no partner
  SourcePtr first;
  SourcePtr second;
  ExpressionPtr on;
};
struct Source {
  std::variant<Table, Join> node;
};

struct SelectItem {
  ExpressionPtr expression;  ///< none for the star
  std::string_view alias;
};
struct OrderItem {
  ExpressionPtr expression;
  bool descending = false;
};
struct Select {
  std::vector<SelectItem> items;
  SourcePtr from;
  ExpressionPtr where;
  std::vector<ExpressionPtr> groupBy;
  ExpressionPtr having;
  std::vector<OrderItem> orderBy;
};

struct Insert {
  Table table;
  std::vector<std::string_view> columns;
  std::vector<ExpressionPtr> values;
};
struct Delete {
  Table table;
  ExpressionPtr where;
};
struct Assignment {
  std::string_view column;
  ExpressionPtr value;
};
struct Update {
  Table table;
  std::vector<Assignment> assignments;
  ExpressionPtr where;
};

using Statement = std::variant<Select, Insert, Delete, Update>;

}  // namespace norvane::store::syntax
