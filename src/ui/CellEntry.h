#pragma once

#include <optional>

#include <QString>

#include "core/Conversions.h"

namespace norvane::ui {

/// What makes entry in cells of dates and numbers quick. What a cell accepts is not its business.
class CellEntry {
 public:
  /// Both are kept by reference.
  CellEntry(const Conversions& convert, const Clock& clock) : convert_(convert), clock_(clock) {}

  /// The date that "t", "+" or "-" makes of a text: today, a day later, a day earlier. Nothing for other keys and for
  /// texts that are no date; an empty one counts as today.
  std::optional<QString> DateByKey(const QString& key, const QString& text) const;

  /// The value of a small sum such as "12*3.50" in the region's form. A leading "+" adds to `before`, the content of
  /// the cell. Nothing for what is no sum.
  std::optional<QString> ValueOfSum(const QString& text, const QString& before) const;

 private:
  const Conversions& convert_;
  const Clock& clock_;
};

}  // namespace norvane::ui
