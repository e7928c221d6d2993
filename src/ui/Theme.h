#pragma once

#include <string>

#include <QColor>
#include <QPalette>

class QApplication;
class QFont;
class QIcon;
class QPixmap;
class QSize;

namespace norvane::ui {

enum class Theme { System, Light, Dark };

/// The size for which icons are drawn, in pixels.
inline constexpr int kIconSize = 24;

/// The colours of one theme. Everything drawn takes its colours from here. `edge`, the frames of fields, and `accent`,
/// the focus, have a contrast of 3:1 or more against what is around them, texts of 4.5:1.
struct Colours {
  QColor window, surface, band;
  QColor stripe;  ///< every second row of a list
  QColor text, muted, line, edge, accent, onAccent;
  QColor current;  ///< the current row with the focus
  QColor idle;     ///< and without
  QColor hover, red;

  static const Colours& Light();
  static const Colours& Dark();
  /// The theme of a palette, recognised by the lightness of its window.
  static const Colours& Of(const QPalette& palette);
};

/// Whether the palette in force is dark: before the first ApplyTheme, the platform's.
bool IsDark(const QApplication& application);

/// Sets the application's style, palette, font and style sheet.
void ApplyTheme(QApplication& application, bool dark);

/// A picture of resources/icons in the palette's text colour, at any size. Empty if there is none of that name.
QIcon NamedIcon(const std::string& name);

/// A picture of resources/pictures at its natural size. Empty if there is none of that name.
QPixmap NamedPicture(const std::string& name, double devicePixelRatio);

}  // namespace norvane::ui
