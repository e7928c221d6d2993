#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "core/Date.h"

namespace norvane::store {

enum class TokenKind {
  Name,           ///< a bare word, keyword or not
  BracketedName,  ///< never a keyword
  Number,
  Text,
  Date,
  BadDate,       ///< between hash signs, but no such day
  Unterminated,  ///< a quote, bracket or hash sign that nothing closes
  Symbol,
  End,
};

struct Token {
  TokenKind kind = TokenKind::End;
  std::string_view source;  ///< as written in the statement
  std::size_t offset = 0;   ///< of its first byte in the statement
  int literal = -1;         ///< which literal of the statement it is, if it is one
};

/// A constant of a statement; it becomes a parameter.
struct Literal {
  TokenKind kind = TokenKind::Number;
  std::string text;  ///< the digits of a number, or a text without its quotes and doubled quotes
  Date date;
};

/// A statement cut into tokens. The views point into the statement's text.
struct Lexed {
  std::vector<Token> tokens;  ///< the last is an End
  std::vector<Literal> literals;
  /// The statement without its constants and whitespace: two statements with one fingerprint differ in literals alone.
  std::string fingerprint;
};

/// Never fails: what cannot be read becomes a token that no rule of the grammar takes.
Lexed Lex(std::string_view statement);

}  // namespace norvane::store
