#pragma once

#include <string>

#include <QColor>
#include <QPalette>

#include "forms/Controls.h"

class QApplication;
class QFont;
class QIcon;
class QPixmap;
class QSize;

namespace norvane::ui {

enum class Theme { System, Light, Dark };

/// The colours of one theme. Everything drawn takes its colours from here.
struct Colours {
  QColor window, surface, band, text, muted, line, edge, accent, onAccent, current, hover, red;

  static const Colours& Light();
  static const Colours& Dark();
  /// The theme of a palette, recognised by the lightness of its window.
  static const Colours& Of(const QPalette& palette);
  /// A model's colour, readable on this theme's window.
  QColor Map(Colour colour) const { return colour == Colour::Red ? red : text; }
};

/// Sets the application's style, palette, font and style sheet. `System` takes light or dark from the platform's
/// palette.
void ApplyTheme(QApplication& application, Theme theme);

/// A picture of resources/icons in the palette's text colour, at any size. Empty if there is none of that name.
QIcon NamedIcon(const std::string& name);

/// A picture of resources/pictures at its natural size. Empty if there is none of that name.
QPixmap NamedPicture(const std::string& name, double devicePixelRatio);

}  // namespace norvane::ui
