#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>

#include <QRect>

#include "forms/Grid.h"
#include "ui/Theme.h"

namespace norvane::ui {

/// What the windows keep from one run to the next, in sections of their own of the settings file: places of windows
/// whose screens store none, widths of columns that the user has set, and the theme chosen.
class WindowMemory {
 public:
  /// Without a file nothing is kept.
  explicit WindowMemory(std::filesystem::path file) : file_(std::move(file)) {}

  std::optional<QRect> Place(const std::string& screen) const;
  void KeepPlace(const std::string& screen, const QRect& place);

  /// By column, in pixels.
  std::map<int, int> ColumnWidths(const Grid& grid) const;
  void KeepColumnWidths(const Grid& grid, const std::map<int, int>& widths);

  Theme ChosenTheme() const;
  void KeepTheme(Theme theme);

 private:
  QStringList Read(const std::string& section, const char* key) const;
  void Write(const std::string& section, const char* key, const QString& value);

  std::filesystem::path file_;
};

}  // namespace norvane::ui
