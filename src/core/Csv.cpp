#include "core/Csv.h"

#include <array>
#include <charconv>
#include <cstdio>

#include "core/Characters.h"
#include "core/NumberText.h"
#include "core/Val.h"

namespace norvane::csv {

namespace {

constexpr std::string_view kFormulaSigns = "=+-@\t\r";

/// Digits with a sign and one point at most.
bool IsPlainNumber(std::string_view text) {
  if (!text.empty() && (text.front() == '-' || text.front() == '+')) text.remove_prefix(1);
  const auto point = text.find('.');
  const auto digits = [](std::string_view part) {
    return !part.empty() && part.find_first_not_of("0123456789") == std::string_view::npos;
  };
  if (point == std::string_view::npos) return digits(text);
  return digits(text.substr(0, point)) && digits(text.substr(point + 1));
}

bool NeedsQuotes(std::string_view text) {
  return text.empty() || text.find_first_of(",;\"\r\n\t") != std::string_view::npos || text.front() == ' ' ||
         text.back() == ' ';
}

}  // namespace

bool LooksLikeFormula(std::string_view text) {
  const auto begin = text.find_first_not_of('\'');
  return begin != std::string_view::npos && kFormulaSigns.find(text[begin]) != std::string_view::npos;
}

std::string NumberText(Currency value) {
  return norvane::NumberText(value, ".");
}

std::string NumberText(double value) {
  std::array<char, 32> text{};
  const auto result = std::to_chars(text.data(), text.data() + text.size(), value);
  return {text.data(), result.ptr};
}

std::string DateText(Date day) {
  std::array<char, 16> text{};
  const int length =
      std::snprintf(text.data(), text.size(), "%04d-%02d-%02d", day.Year(), day.Month(), day.DayOfMonth());
  return {text.data(), static_cast<std::size_t>(length)};
}

std::optional<Date> DateOf(std::string_view text) {
  if (text.size() != 10 || text[4] != '-' || text[7] != '-') return {};
  for (const std::size_t place : {0, 1, 2, 3, 5, 6, 8, 9}) {
    if (!IsDigit(text[place])) return {};
  }
  const auto part = [&](std::size_t at, std::size_t length) { return ValLong(text.substr(at, length)); };
  if (!Date::Exists(part(0, 4), part(5, 2), part(8, 2))) return {};
  return Date::FromYearMonthDay(part(0, 4), part(5, 2), part(8, 2));
}

void Writer::Separate() {
  if (!std::exchange(first_, false)) text_ += ',';
}

void Writer::Text(std::string_view text) {
  Separate();
  const bool protect = LooksLikeFormula(text) && !IsPlainNumber(text);
  const bool quote = NeedsQuotes(text);
  if (quote) text_ += '"';
  if (protect) text_ += '\'';
  for (const char c : text) {
    if (c == '"') text_ += '"';
    text_ += c;
  }
  if (quote) text_ += '"';
}

void Writer::Value(std::string_view text) {
  Separate();
  text_ += text;
}

void Writer::Empty() {
  Separate();
}

void Writer::EndRow() {
  text_ += "\r\n";
  first_ = true;
}

}  // namespace norvane::csv
