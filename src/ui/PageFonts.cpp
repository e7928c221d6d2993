#include "ui/PageFonts.h"

#include <QFontMetricsF>
#include <QStringList>

namespace norvane::ui {
namespace {

constexpr int kMeasuringSize = 1000;  // pixels: large enough that no rounding shows

QFont FaceOf(pages::Face face) {
  QFont font;
  const QString standIn = face.family == pages::Family::Arial ? "Liberation Sans" : "Liberation Mono";
  font.setFamilies({pages::FamilyName(face.family), standIn});
  font.setBold(face.bold);
  font.setKerning(false);
  font.setHintingPreference(QFont::PreferNoHinting);
  font.setStyleStrategy(QFont::PreferOutline);
  return font;
}

QFontMetricsF MetricsOf(pages::Face face) {
  QFont font = FaceOf(face);
  font.setPixelSize(kMeasuringSize);
  return QFontMetricsF(font);
}

}  // namespace

QFont PageFont(pages::Face face, double points) {
  QFont font = FaceOf(face);
  font.setPointSizeF(points);
  return font;
}

double QtFontMetrics::Ascent(pages::Face face) const {
  return MetricsOf(face).ascent() / kMeasuringSize;
}

double QtFontMetrics::Descent(pages::Face face) const {
  return MetricsOf(face).descent() / kMeasuringSize;
}

double QtFontMetrics::Advance(pages::Face face, std::string_view text) const {
  const QString run = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
  return MetricsOf(face).horizontalAdvance(run) / kMeasuringSize;
}

}  // namespace norvane::ui
