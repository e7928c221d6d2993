#include "ui/CellTexts.h"

#include "ui/Convert.h"

namespace norvane::ui {
namespace {

/// An amount with the region's symbol, or any other single one, on either side. The digits may be grouped by any
/// region's separator, no-break spaces among them, but not by the ordinary space.
QRegularExpression Amount(const RegionalSettings& settings, const QString& digits) {
  const QString symbol = "(?: ?(?:" + QRegularExpression::escape(ToQt(settings.currencySymbol)) + R"(|[^\w\s/-]) ?)?)";
  return QRegularExpression("^[-(]?" + symbol + "-?" + digits + symbol + "[-)]?$");
}

QString SampleAmount(const RegionalSettings& settings) {
  const QString number = "0" + ToQt(settings.currencyThousandsSeparator) + "000" + ToQt(settings.currencyDecimalPoint);
  return ToQt(settings.positiveCurrency).replace("%s", ToQt(settings.currencySymbol)).replace("%n", number + "00");
}

}  // namespace

CellTexts::CellTexts(const RegionalSettings& settings)
    : figure_(Amount(settings, R"(\d[\d.,'\x{2019}\x{A0}\x{202F}]*)")),
      exact_(Amount(settings, R"(\d[\d.,'\x{2019}\x{A0}\x{202F}/-]*[.,/-]\d+)")),
      date_(R"(^\d{1,4}(\.|\. |/|-)\d{1,2}\1\d{1,4}$)"),
      amount_(SampleAmount(settings)) {}

bool CellTexts::IsFigure(const QString& text) const {
  return figure_.match(text).hasMatch() && !date_.match(text).hasMatch();
}

bool CellTexts::IsExact(const QString& text) const {
  return exact_.match(text).hasMatch() || date_.match(text).hasMatch();
}

QString CellTexts::Sample(ColumnType type) const {
  switch (type) {
    case ColumnType::Currency:
      return amount_;
    case ColumnType::Date:
      return "00/00/0000";
    case ColumnType::Plain:
    case ColumnType::Number:
    case ColumnType::Boolean:
      break;
  }
  return {};
}

}  // namespace norvane::ui
