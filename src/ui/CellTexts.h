#pragma once

#include <QRegularExpression>
#include <QString>

#include "core/RegionalSettings.h"
#include "forms/Grid.h"

namespace norvane::ui {

/// What a cell's text looks like to one who reads it under the region's settings.
class CellTexts {
 public:
  explicit CellTexts(const RegionalSettings& settings);

  /// A number or an amount, which belong under one another on the right. Not a date, whatever stands between its parts.
  bool IsFigure(const QString& text) const;
  /// A date, an amount or the like: of no use once it is cut off.
  bool IsExact(const QString& text) const;
  /// What the cells of a column will hold, as long as they are empty; nothing if that can't be told.
  QString Sample(ColumnType type) const;

 private:
  QRegularExpression figure_;
  QRegularExpression exact_;
  QRegularExpression date_;
  QString amount_;
};

}  // namespace norvane::ui
