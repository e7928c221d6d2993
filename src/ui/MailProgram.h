#pragma once

#include "forms/Preview.h"
#include "pages/Pages.h"

class QString;
class QWidget;

namespace norvane::ui {

/// Opens the desktop's mail program on a new letter with the pages attached as a PDF. Says so where the desktop has
/// none. The PDF stays for a day in a folder that no one else may read: the mail program takes it when it likes.
void SendPages(const pages::Pages& document, const QString& title, const Letter& letter, QWidget* window);

}  // namespace norvane::ui
