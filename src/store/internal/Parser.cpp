#include "store/internal/Parser.h"

#include <array>
#include <optional>

#include "core/Characters.h"
#include "store/internal/StoreError.h"

namespace norvane::store {
namespace {

using namespace syntax;

/// Beyond this no statement was written by hand; it keeps the recursion of parser and translator shallow.
constexpr int kMostOperators = 500;

constexpr std::array<std::string_view, 17> kKeywords = {"select", "from",  "where", "group", "order", "by",
                                                        "having", "inner", "left",  "join",  "on",    "as",
                                                        "and",    "or",    "not",   "like",  "set"};

bool IsKeyword(const Token& token) {
  if (token.kind != TokenKind::Name) return false;
  for (const std::string_view keyword : kKeywords) {
    if (EqualNoCase(token.source, keyword)) return true;
  }
  return false;
}

class StatementParser {
 public:
  StatementParser(const Lexed& lexed, std::string_view statement) : tokens_(lexed.tokens), statement_(statement) {}

  Statement Run() {
    if (Current().kind == TokenKind::End) throw error::NoStatement();
    Statement result = ParseStatement();
    if (TakeSymbol(";") && Current().kind != TokenKind::End) throw error::CharactersAfterEnd();
    if (Current().kind != TokenKind::End) throw error::SyntaxErrorIn(clause_);
    return result;
  }

 private:
  // Tokens.

  const Token& Current() const { return tokens_[position_]; }
  const Token& Next() const { return tokens_[std::min(position_ + 1, tokens_.size() - 1)]; }
  void Advance() {
    if (position_ + 1 < tokens_.size()) ++position_;
  }

  bool AtKeyword(std::string_view keyword) const {
    return Current().kind == TokenKind::Name && EqualNoCase(Current().source, keyword);
  }
  bool AtSymbol(std::string_view symbol) const {
    return Current().kind == TokenKind::Symbol && Current().source == symbol;
  }
  bool TakeKeyword(std::string_view keyword) {
    const bool taken = AtKeyword(keyword);
    if (taken) Advance();
    return taken;
  }
  bool TakeSymbol(std::string_view symbol) {
    const bool taken = AtSymbol(symbol);
    if (taken) Advance();
    return taken;
  }
  void ExpectKeyword(std::string_view keyword) {
    if (!TakeKeyword(keyword)) throw error::SyntaxErrorIn(clause_);
  }
  void ExpectSymbol(std::string_view symbol) {
    if (!TakeSymbol(symbol)) throw error::SyntaxErrorIn(clause_);
  }

  bool AtName() const {
    return Current().kind == TokenKind::BracketedName || (Current().kind == TokenKind::Name && !IsKeyword(Current()));
  }
  std::string_view TakeName() {
    if (!AtName()) throw error::SyntaxErrorIn(clause_);
    std::string_view name = Current().source;
    if (Current().kind == TokenKind::BracketedName) name = name.substr(1, name.size() - 2);
    Advance();
    return name;
  }

  // Statements.

  Statement ParseStatement() {
    if (TakeKeyword("select")) return ParseSelect();
    if (TakeKeyword("insert")) return ParseInsert();
    if (TakeKeyword("delete")) return ParseDelete();
    if (TakeKeyword("update")) return ParseUpdate();
    throw error::NotAStatement();
  }

  Select ParseSelect() {
    Select select;
    clause_ = "SELECT statement";
    do {
      select.items.push_back(ParseSelectItem());
    } while (TakeSymbol(","));
    ExpectKeyword("from");
    clause_ = "FROM clause";
    select.from = ParseSource();
    select.where = ParseWhere();
    if (TakeKeyword("group")) select.groupBy = ParseGroupBy();
    if (TakeKeyword("having")) select.having = ParseWholeExpression("HAVING clause");
    if (TakeKeyword("order")) select.orderBy = ParseOrderBy();
    return select;
  }

  SelectItem ParseSelectItem() {
    if (TakeSymbol("*")) return {};
    SelectItem item{ParseWholeExpression(clause_), {}};
    if (TakeKeyword("as")) item.alias = TakeName();
    return item;
  }

  SourcePtr ParseSource() {
    SourcePtr source = ParseSourceOperand();
    while (AtKeyword("inner") || AtKeyword("left")) {
      CountOperator();
      Join join;
      join.left = AtKeyword("left");
      Advance();
      ExpectKeyword("join");
      join.first = std::move(source);
      join.second = ParseSourceOperand();
      ExpectKeyword("on");
      join.on = ParseWholeExpression("JOIN operation");
      clause_ = "FROM clause";
      source = std::make_unique<Source>(Source{std::move(join)});
    }
    return source;
  }

  SourcePtr ParseSourceOperand() {
    if (!TakeSymbol("(")) return std::make_unique<Source>(Source{Table{TakeName()}});
    CountOperator();
    SourcePtr source = ParseSource();
    ExpectSymbol(")");
    return source;
  }

  ExpressionPtr ParseWhere() { return TakeKeyword("where") ? ParseWholeExpression("WHERE clause") : nullptr; }

  std::vector<ExpressionPtr> ParseGroupBy() {
    clause_ = "GROUP BY clause";
    ExpectKeyword("by");
    std::vector<ExpressionPtr> result;
    do {
      result.push_back(ParseWholeExpression(clause_));
    } while (TakeSymbol(","));
    return result;
  }

  std::vector<OrderItem> ParseOrderBy() {
    clause_ = "ORDER BY clause";
    ExpectKeyword("by");
    std::vector<OrderItem> result;
    do {
      OrderItem item{ParseWholeExpression(clause_), false};
      item.descending = TakeKeyword("desc");
      if (!item.descending) TakeKeyword("asc");
      result.push_back(std::move(item));
    } while (TakeSymbol(","));
    return result;
  }

  Insert ParseInsert() {
    Insert insert;
    clause_ = "INSERT INTO statement";
    ExpectKeyword("into");
    insert.table = {TakeName()};
    ExpectSymbol("(");
    do {
      insert.columns.push_back(TakeName());
    } while (TakeSymbol(","));
    ExpectSymbol(")");
    ExpectKeyword("values");
    ExpectSymbol("(");
    do {
      insert.values.push_back(ParseWholeExpression(clause_));
    } while (TakeSymbol(","));
    ExpectSymbol(")");
    return insert;
  }

  Delete ParseDelete() {
    clause_ = "DELETE statement";
    TakeSymbol("*");
    clause_ = "FROM clause";
    ExpectKeyword("from");
    Delete result{{TakeName()}, nullptr};
    result.where = ParseWhere();
    return result;
  }

  Update ParseUpdate() {
    clause_ = "UPDATE statement";
    Update update{{TakeName()}, {}, nullptr};
    ExpectKeyword("set");
    do {
      const std::string_view column = TakeName();
      ExpectSymbol("=");
      update.assignments.push_back({column, ParseWholeExpression(clause_)});
    } while (TakeSymbol(","));
    update.where = ParseWhere();
    return update;
  }

  // Expressions. What follows a complete one decides how its error reads, so each is parsed as a whole.

  ExpressionPtr ParseWholeExpression(std::string_view clause) {
    clause_ = clause;
    expressionStart_ = position_;
    ExpressionPtr expression = ParseOr();
    if (StartsOperand()) throw error::MissingOperator(ExpressionText());
    return expression;
  }

  /// Whether a second operand is where an operator should be, as after an apostrophe inside a text.
  bool StartsOperand() const {
    switch (Current().kind) {
      case TokenKind::Name:
        return !IsKeyword(Current()) && !AtKeyword("desc") && !AtKeyword("asc") && !AtKeyword("values");
      case TokenKind::Symbol:
        return AtSymbol("(");
      case TokenKind::End:
        return false;
      default:
        return true;
    }
  }

  /// From the expression's first token to the clause's end.
  std::string_view ExpressionText() const {
    const std::size_t begin = tokens_[expressionStart_].offset;
    std::size_t end = statement_.size();
    int depth = 0;
    for (std::size_t i = expressionStart_; i < tokens_.size(); ++i) {
      const Token& token = tokens_[i];
      if (token.source == "(") ++depth;
      if ((token.source == ")" && --depth < 0) || (depth == 0 && i > position_ && EndsClause(token))) {
        end = token.offset;
        break;
      }
    }
    while (end > begin && (statement_[end - 1] == ' ' || statement_[end - 1] == '\n')) --end;
    return statement_.substr(begin, end - begin);
  }

  static bool EndsClause(const Token& token) {
    if (token.kind == TokenKind::Symbol) return token.source == "," || token.source == ";";
    return token.kind == TokenKind::Name &&
           (EqualNoCase(token.source, "group") || EqualNoCase(token.source, "having") ||
            EqualNoCase(token.source, "order") || EqualNoCase(token.source, "from"));
  }

  [[noreturn]] void FailInExpression() const {
    if (clause_ == "INSERT INTO statement") throw error::SyntaxErrorIn(clause_);
    throw error::MissingOperator(ExpressionText());
  }

  void CountOperator() {
    if (++operators_ > kMostOperators) throw error::TooComplex();
  }

  ExpressionPtr Make(std::size_t firstToken, decltype(Expression::node) node) const {
    const Token& last = tokens_[position_ == 0 ? 0 : position_ - 1];
    const std::size_t begin = tokens_[firstToken].offset;
    const std::string_view source = statement_.substr(begin, last.offset + last.source.size() - begin);
    return std::make_unique<Expression>(Expression{std::move(node), source});
  }

  ExpressionPtr MakeBinary(std::size_t firstToken, BinaryOperator op, ExpressionPtr left, ExpressionPtr right) {
    CountOperator();
    return Make(firstToken, Binary{op, std::move(left), std::move(right)});
  }

  ExpressionPtr ParseOr() {
    const std::size_t first = position_;
    ExpressionPtr left = ParseAnd();
    while (TakeKeyword("or")) left = MakeBinary(first, BinaryOperator::Or, std::move(left), ParseAnd());
    return left;
  }

  ExpressionPtr ParseAnd() {
    const std::size_t first = position_;
    ExpressionPtr left = ParseNot();
    while (TakeKeyword("and")) left = MakeBinary(first, BinaryOperator::And, std::move(left), ParseNot());
    return left;
  }

  ExpressionPtr ParseNot() {
    const std::size_t first = position_;
    if (!TakeKeyword("not")) return ParseComparison();
    CountOperator();
    ExpressionPtr operand = ParseNot();
    return Make(first, Not{std::move(operand)});
  }

  std::optional<BinaryOperator> TakeComparison() {
    if (TakeKeyword("like")) return BinaryOperator::Like;
    if (TakeSymbol("=")) return BinaryOperator::Equal;
    if (TakeSymbol("<>")) return BinaryOperator::NotEqual;
    if (TakeSymbol("<=")) return BinaryOperator::LessOrEqual;
    if (TakeSymbol("<")) return BinaryOperator::Less;
    if (TakeSymbol(">=")) return BinaryOperator::GreaterOrEqual;
    if (TakeSymbol(">")) return BinaryOperator::Greater;
    return std::nullopt;
  }

  ExpressionPtr ParseComparison() {
    const std::size_t first = position_;
    ExpressionPtr left = ParseJoin();
    while (const auto op = TakeComparison()) left = MakeBinary(first, *op, std::move(left), ParseJoin());
    return left;
  }

  ExpressionPtr ParseJoin() {
    const std::size_t first = position_;
    ExpressionPtr left = ParseOperand();
    while (TakeSymbol("&")) left = MakeBinary(first, BinaryOperator::Join, std::move(left), ParseOperand());
    return left;
  }

  ExpressionPtr ParseOperand() {
    const std::size_t first = position_;
    switch (Current().kind) {
      case TokenKind::Number:
      case TokenKind::Text:
      case TokenKind::Date:
        return ParseConstant(false);
      case TokenKind::BadDate:
        throw error::BadDate(ExpressionText());
      case TokenKind::Symbol:
        return ParseSigned();
      default:
        break;
    }
    if (!AtName()) FailInExpression();
    if (const auto word = TakeWord()) return Make(first, *word);
    if (Next().kind == TokenKind::Symbol && Next().source == "(") return ParseFunction();
    return ParseColumn();
  }

  ExpressionPtr ParseConstant(bool negative) {
    const std::size_t first = position_;
    const int literal = Current().literal;
    Advance();
    return Make(first, Constant{literal, negative});
  }

  ExpressionPtr ParseSigned() {
    const std::size_t first = position_;
    if (TakeSymbol("(")) {
      CountOperator();
      ExpressionPtr inner = ParseOr();
      if (StartsOperand() || !TakeSymbol(")")) throw error::MissingOperator(ExpressionText());
      return Make(first, std::move(inner->node));
    }
    const bool negative = AtSymbol("-");
    if (!TakeSymbol("-") && !TakeSymbol("+")) FailInExpression();
    if (Current().kind != TokenKind::Number) FailInExpression();
    return ParseConstant(negative);
  }

  std::optional<Word> TakeWord() {
    if (TakeKeyword("true")) return Word::True;
    if (TakeKeyword("false")) return Word::False;
    if (TakeKeyword("null")) return Word::Null;
    return std::nullopt;
  }

  ExpressionPtr ParseFunction() {
    const std::size_t first = position_;
    const std::string_view name = TakeName();
    Advance();
    CountOperator();
    ExpressionPtr argument = ParseOr();
    if (!TakeSymbol(")")) throw error::MissingOperator(ExpressionText());
    for (const auto& [spelling, function] : {std::pair{"val", FunctionName::Val},
                                             {"isnull", FunctionName::IsNull},
                                             {"sum", FunctionName::Sum},
                                             {"max", FunctionName::Max}}) {
      if (EqualNoCase(name, spelling)) return Make(first, Function{function, std::move(argument)});
    }
    throw error::UndefinedFunction(name);
  }

  ExpressionPtr ParseColumn() {
    const std::size_t first = position_;
    Name name{{}, TakeName()};
    if (TakeSymbol(".")) {
      if (!AtName()) FailInExpression();
      name.table = name.name;
      name.name = TakeName();
    }
    return Make(first, name);
  }

  const std::vector<Token>& tokens_;
  std::string_view statement_;
  std::size_t position_ = 0;
  std::size_t expressionStart_ = 0;
  std::string_view clause_;
  int operators_ = 0;
};

}  // namespace

Statement Parse(const Lexed& lexed, std::string_view statement) {
  return StatementParser(lexed, statement).Run();
}

}  // namespace norvane::store
