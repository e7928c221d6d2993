#include "ui/Theme.h"

#include <algorithm>

#include <QApplication>
#include <QFile>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QIcon>
#include <QIconEngine>
#include <QPainter>
#include <QStyleFactory>
#include <QSvgRenderer>

#include "ui/Convert.h"

namespace norvane::ui {
namespace {

/// Draws an SVG whose strokes are "currentColor" in the current colour of text, so that a change of theme needs no new
/// icons.
class StrokeIcon : public QIconEngine {
 public:
  explicit StrokeIcon(QByteArray svg) : svg_(std::move(svg)) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
    const auto& colours = Colours::Of(QGuiApplication::palette());
    const QColor ink = mode == QIcon::Disabled ? colours.edge : colours.text;
    QByteArray svg = svg_;
    svg.replace("currentColor", ink.name().toLatin1());
    QSvgRenderer(svg).render(painter, rect);
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paint(&painter, QRect(QPoint(), size), mode, state);
    return pixmap;
  }

  QIconEngine* clone() const override { return new StrokeIcon(svg_); }

 private:
  QByteArray svg_;
};

QByteArray ReadResource(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QPalette PaletteOf(const Colours& c) {
  QPalette palette;
  palette.setColor(QPalette::Window, c.window);
  palette.setColor(QPalette::WindowText, c.text);
  palette.setColor(QPalette::Base, c.surface);
  palette.setColor(QPalette::AlternateBase, c.band);
  palette.setColor(QPalette::ToolTipBase, c.surface);
  palette.setColor(QPalette::ToolTipText, c.text);
  palette.setColor(QPalette::PlaceholderText, c.muted);
  palette.setColor(QPalette::Text, c.text);
  palette.setColor(QPalette::Button, c.surface);
  palette.setColor(QPalette::ButtonText, c.text);
  palette.setColor(QPalette::BrightText, c.red);
  palette.setColor(QPalette::Light, c.hover);
  palette.setColor(QPalette::Midlight, c.band);
  palette.setColor(QPalette::Mid, c.line);
  palette.setColor(QPalette::Dark, c.edge);
  palette.setColor(QPalette::Highlight, c.accent);
  palette.setColor(QPalette::HighlightedText, c.onAccent);
  palette.setColor(QPalette::Link, c.accent);
  palette.setColor(QPalette::LinkVisited, c.accent);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, c.muted);
  }
  palette.setColor(QPalette::Disabled, QPalette::Base, c.window);
  return palette;
}

/// A desktop that names a font of its own keeps it; the generic fallback gives way to a compact face.
QFont FontOf(const QFont& system) {
  QFont font = system;
  const QString family = font.family();
  if (family.isEmpty() || family.startsWith("Sans") || family.startsWith("DejaVu") || family == "Helvetica") {
    font.setFamilies({"Inter", "Noto Sans", "Open Sans", "Liberation Sans", "Arial"});
  }
  // A larger one is the choice of a user who needs it.
  constexpr double kSmallest = 10;
  font.setPointSizeF(std::max(font.pointSizeF(), kSmallest));
  return font;
}

QString StyleSheetOf(const Colours& c, bool dark) {
  QString sheet = QString::fromUtf8(ReadResource(":/norvanes/style.qss"));
  const std::pair<const char*, QColor> names[] = {
      {"@window", c.window}, {"@surface", c.surface}, {"@band", c.band},         {"@text", c.text},
      {"@muted", c.muted},   {"@line", c.line},       {"@edge", c.edge},         {"@accent", c.accent},
      {"@hover", c.hover},   {"@current", c.current}, {"@onaccent", c.onAccent}, {"@red", c.red},
      {"@idle", c.idle},
  };
  for (const auto& [name, colour] : names) sheet.replace(QLatin1String(name) + ";", colour.name() + ";");
  return sheet.replace("@scheme", dark ? "dark" : "light");
}

}  // namespace

const Colours& Colours::Light() {
  static const Colours colours{.window = "#f4f6f8",
                               .surface = "#ffffff",
                               .band = "#eceff3",
                               .stripe = "#f7f9fa",
                               .text = "#1d2733",
                               .muted = "#5f6c7b",
                               .line = "#cdd4dc",
                               .edge = "#7c8896",
                               .accent = "#17686f",
                               .onAccent = "#ffffff",
                               .current = "#bfe0e3",
                               .idle = "#dfe4ea",
                               .hover = "#e3e8ed",
                               .red = "#b3232a"};
  return colours;
}

const Colours& Colours::Dark() {
  static const Colours colours{.window = "#20252b",
                               .surface = "#181c21",
                               .band = "#282e35",
                               .stripe = "#1c2126",
                               .text = "#e4e8ec",
                               .muted = "#9aa5b1",
                               .line = "#3f4751",
                               .edge = "#737e8a",
                               .accent = "#56b8c2",
                               .onAccent = "#10262a",
                               .current = "#1d4a50",
                               .idle = "#323a43",
                               .hover = "#323941",
                               .red = "#ff8a82"};
  return colours;
}

const Colours& Colours::Of(const QPalette& palette) {
  return palette.color(QPalette::Window).lightness() < 128 ? Dark() : Light();
}

bool IsDark(const QApplication& application) {
  return application.palette().color(QPalette::Window).lightness() < 128;
}

void ApplyTheme(QApplication& application, bool dark) {
  const Colours& colours = dark ? Colours::Dark() : Colours::Light();
  application.setStyle(QStyleFactory::create("Fusion"));
  application.setPalette(PaletteOf(colours));
  application.setFont(FontOf(QFontDatabase::systemFont(QFontDatabase::GeneralFont)));
  application.setStyleSheet(StyleSheetOf(colours, dark));
}

QIcon NamedIcon(const std::string& name) {
  const QByteArray svg = ReadResource(":/norvanes/icons/" + ToQt(name) + ".svg");
  return svg.isEmpty() ? QIcon() : QIcon(new StrokeIcon(svg));
}

QPixmap NamedPicture(const std::string& name, double devicePixelRatio) {
  QSvgRenderer renderer(":/norvanes/pictures/" + ToQt(name) + ".svg");
  if (!renderer.isValid()) return {};
  QPixmap pixmap(renderer.defaultSize() * devicePixelRatio);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  renderer.render(&painter);
  painter.end();
  pixmap.setDevicePixelRatio(devicePixelRatio);
  return pixmap;
}

}  // namespace norvane::ui
