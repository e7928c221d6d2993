#pragma once

#include <stdexcept>
#include <vector>

#include <QProcess>
#include <QSizeF>
#include <QString>
#include <QXmlStreamReader>

namespace norvane::ui {

/// What a tool of poppler's says of a file.
inline QString ReadPdf(const QString& tool, const QStringList& arguments) {
  QProcess process;
  process.start(tool, arguments);
  if (!process.waitForFinished() || process.exitCode() != 0) {
    throw std::runtime_error(tool.toStdString() + " failed; it belongs to poppler-utils");
  }
  return QString::fromUtf8(process.readAllStandardOutput());
}

struct PdfWord {
  QString text;
  double left = 0, top = 0, bottom = 0;  ///< in points
};

struct PdfPage {
  QSizeF size;
  std::vector<PdfWord> words;
};

/// The words of a PDF, in the order in which a reader takes them from it.
inline std::vector<PdfPage> PagesOfPdf(const QString& file) {
  std::vector<PdfPage> pages;
  QXmlStreamReader xml(ReadPdf("pdftotext", {"-bbox", file, "-"}));
  while (!xml.atEnd()) {
    if (xml.readNext() != QXmlStreamReader::StartElement) continue;
    const auto figure = [attributes = xml.attributes()](const char* name) {
      return attributes.value(QLatin1String(name)).toDouble();
    };
    if (xml.name() == QLatin1String("page")) pages.push_back({QSizeF(figure("width"), figure("height")), {}});
    if (xml.name() != QLatin1String("word")) continue;
    const double left = figure("xMin"), top = figure("yMin"), bottom = figure("yMax");
    pages.back().words.push_back({xml.readElementText(), left, top, bottom});
  }
  return pages;
}

}  // namespace norvane::ui
