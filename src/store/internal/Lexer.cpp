#include "store/internal/Lexer.h"

#include "core/Characters.h"
#include "core/RuntimeError.h"
#include "core/TextFolding.h"
#include "core/UnitedStates.h"

namespace norvane::store {
namespace {

bool IsBlank(char c) {
  return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}
bool IsNameStart(char c) {
  return IsLetter(c) || c == '_';
}
bool IsNamePart(char c) {
  return IsNameStart(c) || IsDigit(c);
}

class Scanner {
 public:
  explicit Scanner(std::string_view statement) : statement_(statement) {}

  Lexed Run() {
    result_.tokens.reserve(statement_.size() / 6 + 2);
    result_.fingerprint.reserve(statement_.size());
    while (SkipWhitespace(), position_ < statement_.size()) Next();
    Add(TokenKind::End, 0);
    return std::move(result_);
  }

 private:
  char Peek(std::size_t ahead = 0) const {
    return position_ + ahead < statement_.size() ? statement_[position_ + ahead] : '\0';
  }

  void SkipWhitespace() {
    while (position_ < statement_.size() && IsBlank(statement_[position_])) ++position_;
  }

  void Next() {
    const char c = Peek();
    if (IsNameStart(c)) return Name();
    if (IsDigit(c) || (c == '.' && IsDigit(Peek(1)))) return Number();
    if (c == '\'' || c == '"') return Text(c);
    if (c == '#') return DateBetweenHashes();
    if (c == '[') return Bracketed();
    Symbol();
  }

  Token& Add(TokenKind kind, std::size_t length) {
    result_.tokens.push_back({kind, statement_.substr(position_, length), position_, -1});
    position_ += length;
    return result_.tokens.back();
  }

  void AddLiteral(TokenKind kind, std::size_t length, Literal literal) {
    literal.kind = kind;
    Add(kind, length).literal = static_cast<int>(result_.literals.size());
    result_.literals.push_back(std::move(literal));
  }

  void Name() {
    std::size_t length = 1;
    while (IsNamePart(Peek(length))) ++length;
    const Token& token = Add(TokenKind::Name, length);
    for (const char c : token.source) result_.fingerprint += ToLower(c);
    result_.fingerprint += ' ';
  }

  std::size_t Digits(std::size_t from) const {
    while (IsDigit(Peek(from))) ++from;
    return from;
  }

  void Number() {
    std::size_t length = Digits(0);
    if (Peek(length) == '.') length = Digits(length + 1);
    if (ToLower(Peek(length)) == 'e') {
      const std::size_t sign = Peek(length + 1) == '+' || Peek(length + 1) == '-' ? 2 : 1;
      if (IsDigit(Peek(length + sign))) length = Digits(length + sign);
    }
    AddLiteral(TokenKind::Number, length, {TokenKind::Number, std::string(statement_.substr(position_, length)), {}});
    result_.fingerprint += "0 ";
  }

  void Text(char quote) {
    Literal literal;
    std::size_t length = 1;
    for (; position_ + length < statement_.size(); ++length) {
      if (Peek(length) == quote && Peek(++length) != quote) {
        // An ASCII text is compared through the column's own order, which an index serves; any other is folded first.
        result_.fingerprint += IsAscii(literal.text) ? "' " : "\" ";
        return AddLiteral(TokenKind::Text, length, std::move(literal));
      }
      literal.text += Peek(length);
    }
    AddUnterminated();
  }

  void DateBetweenHashes() {
    const std::size_t end = statement_.find('#', position_ + 1);
    if (end == std::string_view::npos) return AddUnterminated();
    const std::string_view text = statement_.substr(position_ + 1, end - position_ - 1);
    const std::size_t length = end - position_ + 1;
    try {
      Literal literal;
      literal.date = Date(UnitedStates().ToDate(text).Day());
      AddLiteral(TokenKind::Date, length, std::move(literal));
      result_.fingerprint += "# ";
    } catch (const RuntimeError&) {
      AddUnreadable(TokenKind::BadDate, length);
    }
  }

  void Bracketed() {
    const std::size_t end = statement_.find(']', position_ + 1);
    if (end == std::string_view::npos) return AddUnterminated();
    Token& token = Add(TokenKind::BracketedName, end - position_ + 1);
    for (const char c : token.source) result_.fingerprint += ToLower(c);
    result_.fingerprint += ' ';
  }

  void Symbol() {
    const std::string_view two = statement_.substr(position_, 2);
    Add(TokenKind::Symbol, two == "<>" || two == "<=" || two == ">=" ? 2 : 1);
    result_.fingerprint += result_.tokens.back().source;
    result_.fingerprint += ' ';
  }

  void AddUnterminated() { AddUnreadable(TokenKind::Unterminated, statement_.size() - position_); }

  void AddUnreadable(TokenKind kind, std::size_t length) {
    Add(kind, length);
    result_.fingerprint += "! ";
  }

  std::string_view statement_;
  std::size_t position_ = 0;
  Lexed result_;
};

}  // namespace

Lexed Lex(std::string_view statement) {
  return Scanner(statement).Run();
}

}  // namespace norvane::store
