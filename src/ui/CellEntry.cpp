#include "ui/CellEntry.h"

#include <cmath>

#include <QRegularExpression>

#include "core/RuntimeError.h"
#include "ui/Convert.h"

namespace norvane::ui {
namespace {

/// Numbers with the four operations and parentheses; the decimal sign is a point.
class Sum {
 public:
  explicit Sum(QString text) : text_(std::move(text)) {}

  std::optional<double> Value() {
    const double value = Terms();
    return failed_ || at_ < text_.size() || !std::isfinite(value) ? std::nullopt : std::optional(value);
  }

 private:
  bool Take(char c) {
    if (at_ >= text_.size() || text_[at_] != QLatin1Char(c)) return false;
    ++at_;
    return true;
  }
  double Terms() {
    double value = Factors();
    while (!failed_) {
      if (Take('+')) {
        value += Factors();
      } else if (Take('-')) {
        value -= Factors();
      } else {
        break;
      }
    }
    return value;
  }
  double Factors() {
    double value = Operand();
    while (!failed_) {
      if (Take('*')) {
        value *= Operand();
      } else if (Take('/')) {
        value /= Operand();
      } else {
        break;
      }
    }
    return value;
  }
  double Operand() {
    if (++depth_ > kDeepest) failed_ = true;
    if (failed_) return 0;
    if (Take('-')) return -Operand();
    if (Take('(')) {
      const double value = Terms();
      failed_ = failed_ || !Take(')');
      return value;
    }
    const qsizetype start = at_;
    while (at_ < text_.size() && (text_[at_].isDigit() || text_[at_] == '.')) ++at_;
    bool isNumber = false;
    const double value = text_.mid(start, at_ - start).toDouble(&isNumber);
    failed_ = failed_ || !isNumber;
    return value;
  }

  static constexpr int kDeepest = 200;
  QString text_;
  qsizetype at_ = 0;
  int depth_ = 0;
  bool failed_ = false;
};

}  // namespace

std::optional<QString> CellEntry::DateByKey(const QString& key, const QString& text) const {
  const bool isToday = key.compare("t", Qt::CaseInsensitive) == 0;
  if (!isToday && key != "+" && key != "-") return std::nullopt;
  const std::string shown = FromQt(text.trimmed());
  if (!isToday && !shown.empty() && !convert_.IsDate(shown)) return std::nullopt;
  const Date from = isToday || shown.empty() ? clock_.Today() : convert_.ToDate(shown);
  const int days = isToday ? 0 : key == "+" ? 1 : -1;
  return ToQt(convert_.ToText(Date(from.Day() + days)));
}

std::optional<QString> CellEntry::ValueOfSum(const QString& text, const QString& before) const {
  const QString point = ToQt(convert_.Settings().decimalPoint);
  const auto plain = [&](QString figure) {
    return figure.remove(' ').remove(ToQt(convert_.Settings().thousandsSeparator)).replace(point, ".");
  };
  QString sum = plain(text);
  static const QRegularExpression characters("^[-+]?[\\d.()]+([-+*/][-\\d.()]*)*$");
  static const QRegularExpression operation("[\\d.)] *[-+*/]");
  const bool adds = sum.startsWith('+');
  if (!characters.match(sum).hasMatch() || (!adds && !operation.match(sum).hasMatch())) return std::nullopt;
  if (adds) {
    const std::string old = FromQt(before.trimmed());
    if (!old.empty() && !convert_.IsNumeric(old)) return std::nullopt;
    sum.prepend(old.empty() ? "0" : QString::number(convert_.ToDouble(old), 'f', 4));
  }
  const auto value = Sum(sum).Value();
  if (!value) return std::nullopt;
  return ToQt(convert_.ToText(std::round(*value * 10000) / 10000));
}

}  // namespace norvane::ui
