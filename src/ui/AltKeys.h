#pragma once

class QApplication;

namespace norvane::ui {

/// A letter typed with Alt that is no accelerator here types nothing; the toolkit would write it into the field.
void KeepAltFromTyping(QApplication& application);

}  // namespace norvane::ui
