#pragma once

namespace norvane::ui {

class WidgetFactory;

/// Registers the controls of forms/FileLists.h.
void RegisterFileListWidgets(WidgetFactory& factory);

}  // namespace norvane::ui
