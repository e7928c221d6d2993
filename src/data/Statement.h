#pragma once

#include <concepts>
#include <string>
#include <string_view>

#include "core/SqlText.h"

namespace norvane::sql {

/// A text that goes into the values of an insert without apostrophes.
struct Bare {
  std::string_view text;
};

namespace detail {

template <class T>
concept TextLike = std::convertible_to<const T&, std::string_view>;

template <class T>
void AppendPart(std::string& statement, const T& part) {
  if constexpr (TextLike<T>) {
    statement += std::string_view(part);
  } else {
    statement += Text(part);
  }
}

inline void AppendValue(std::string& statement, Bare value) {
  statement += value.text;
}

/// Apostrophes within a text are left alone: the store refuses such a statement, and the operation reports it.
template <class T>
void AppendValue(std::string& statement, const T& value) {
  if constexpr (TextLike<T>) {
    statement.append(1, '\'').append(std::string_view(value)).append(1, '\'');
  } else {
    statement += Text(value);
  }
}

}  // namespace detail

/// A statement joined from its parts: texts unchanged, so that apostrophes around a value belong to the parts
/// beside it; numbers and Booleans bare and dates between hash signs, in United States form.
template <class... Parts>
std::string Statement(const Parts&... parts) {
  std::string statement;
  (detail::AppendPart(statement, parts), ...);
  return statement;
}

/// An insert: `head` up to the opening parenthesis, the values with commas between them, the closing one. Texts
/// are put between apostrophes unchanged.
template <class First, class... Rest>
std::string Insert(std::string_view head, const First& first, const Rest&... rest) {
  std::string statement(head);
  detail::AppendValue(statement, first);
  ((statement += ',', detail::AppendValue(statement, rest)), ...);
  return statement += ')';
}

}  // namespace norvane::sql
