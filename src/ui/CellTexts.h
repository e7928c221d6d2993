#pragma once

#include <QRegularExpression>
#include <QString>

#include "core/RegionalSettings.h"
#include "forms/Grid.h"

namespace norvane::ui {

/// Classifies the texts of cells under the region's settings.
class CellTexts {
 public:
  explicit CellTexts(const RegionalSettings& settings);

  /// A number or an amount, which are aligned on the right. Never a date, whatever separates its parts.
  bool IsFigure(const QString& text) const;
  /// A date, an amount or the like: useless once it is cut off.
  bool IsExact(const QString& text) const;
  /// The widest text to expect in a column that is still empty; empty if its type says nothing.
  QString Sample(ColumnType type) const;

 private:
  QRegularExpression figure_;
  QRegularExpression exact_;
  QRegularExpression date_;
  QString amount_;
};

}  // namespace norvane::ui
