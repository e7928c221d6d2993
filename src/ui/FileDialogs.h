#pragma once

#include <QString>

#include "forms/Desktop.h"

class QWidget;

namespace norvane::ui {

/// Asks for a file or folder, in the documents folder at first. Empty if the user chooses none.
QString AskForFile(const FileRequest& request, QWidget* parent);

}  // namespace norvane::ui
