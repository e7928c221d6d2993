#pragma once

#include <QString>

class QLineEdit;

namespace norvane::ui {

/// The text with typographic apostrophes (U+2019), which statements take as they are.
inline QString WithApostrophes(QString text) {
  return text.replace('\'', QChar(0x2019));
}

/// Makes every apostrophe that the user types or pastes into the field a typographic one.
void TypeApostrophes(QLineEdit& field);

/// Shows a text as it is stored, whatever apostrophes it has.
void ShowStored(QLineEdit& field, const QString& text);

}  // namespace norvane::ui
