#pragma once

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <string>

#include <QDate>
#include <QString>

#include "core/Date.h"
#include "forms/Control.h"

/// Between the models' values and the toolkit's.
namespace norvane::ui {

inline constexpr double kTwipsPerPixel = 15;

/// Lengths come from a settings file, which may hold anything: they are limited to what a window system can draw.
inline int ToPixels(Twips twips) {
  constexpr double kMost = 16383;
  return static_cast<int>(std::lround(std::clamp(twips / kTwipsPerPixel, -kMost, kMost)));
}
inline Twips ToTwips(int pixels) {
  return pixels * kTwipsPerPixel;
}

inline QString ToQt(const std::string& text) {
  return QString::fromStdString(text);
}
inline std::string FromQt(const QString& text) {
  return text.toStdString();
}

inline std::filesystem::path ToPath(const QString& path) {
  return {path.toStdU16String()};
}
inline QString FromPath(const std::filesystem::path& path) {
  return QString::fromStdU16String(path.u16string());
}

inline QDate ToQt(Date date) {
  return QDate(1899, 12, 30).addDays(date.Day());
}
inline Date FromQt(QDate date) {
  return Date(static_cast<double>(QDate(1899, 12, 30).daysTo(date)));
}

}  // namespace norvane::ui
