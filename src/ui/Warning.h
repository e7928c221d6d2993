#pragma once

#include <QString>

class QWidget;

namespace norvane::ui {

/// Reports in a box what a window could not do for the user.
void Warn(QWidget* parent, const QString& text);

}  // namespace norvane::ui
