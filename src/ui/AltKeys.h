#pragma once

class QApplication;

namespace norvane::ui {

/// A letter typed with Alt that is nobody's accelerator is lost; the toolkit alone would write it into the field.
void KeepAltFromTyping(QApplication& application);

}  // namespace norvane::ui
