#include "ui/WindowMemory.h"

#include "core/SettingsFile.h"
#include "forms/Form.h"
#include "ui/Convert.h"

namespace norvane::ui {
namespace {

constexpr const char* kPlace = "Place";
constexpr const char* kColumns = "Columns";
constexpr const char* kLook = "Look";
constexpr const char* kTheme = "Theme";

std::string SectionOf(const std::string& screen) {
  return "Window " + screen;
}

std::string SectionOf(const Grid& grid) {
  return SectionOf(grid.Parent().Name()) + " " + grid.Name();
}

const std::map<Theme, const char*>& ThemeNames() {
  static const std::map<Theme, const char*> names = {
      {Theme::System, "System"}, {Theme::Light, "Light"}, {Theme::Dark, "Dark"}};
  return names;
}

}  // namespace

QStringList WindowMemory::Read(const std::string& section, const char* key) const {
  if (file_.empty()) return {};
  return ToQt(GetIniString(section, key, "", file_)).split(',', Qt::SkipEmptyParts);
}

void WindowMemory::Write(const std::string& section, const char* key, const QString& value) {
  if (!file_.empty()) WriteIniString(section, key, FromQt(value), file_);
}

std::optional<QRect> WindowMemory::Place(const std::string& screen) const {
  const QStringList parts = Read(SectionOf(screen), kPlace);
  if (parts.size() != 4) return std::nullopt;
  const QRect place(parts[0].toInt(), parts[1].toInt(), parts[2].toInt(), parts[3].toInt());
  return place.isValid() ? std::optional(place) : std::nullopt;
}

void WindowMemory::KeepPlace(const std::string& screen, const QRect& place) {
  Write(SectionOf(screen), kPlace,
        QString("%1,%2,%3,%4").arg(place.x()).arg(place.y()).arg(place.width()).arg(place.height()));
}

std::map<int, int> WindowMemory::ColumnWidths(const Grid& grid) const {
  std::map<int, int> widths;
  for (const QString& part : Read(SectionOf(grid), kColumns)) {
    const QStringList pair = part.split(':');
    if (pair.size() == 2 && pair[1].toInt() > 0) widths[pair[0].toInt()] = pair[1].toInt();
  }
  return widths;
}

void WindowMemory::KeepColumnWidths(const Grid& grid, const std::map<int, int>& widths) {
  QStringList parts;
  for (const auto& [column, width] : widths) parts.append(QString("%1:%2").arg(column).arg(width));
  Write(SectionOf(grid), kColumns, parts.join(','));
}

Theme WindowMemory::ChosenTheme() const {
  const QString chosen = Read(kLook, kTheme).value(0);
  for (const auto& [theme, name] : ThemeNames()) {
    if (chosen.compare(QLatin1String(name), Qt::CaseInsensitive) == 0) return theme;
  }
  return Theme::System;
}

void WindowMemory::KeepTheme(Theme theme) {
  Write(kLook, kTheme, ThemeNames().at(theme));
}

}  // namespace norvane::ui
