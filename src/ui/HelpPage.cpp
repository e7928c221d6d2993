#include "ui/HelpPage.h"

#include <algorithm>

#include <QFile>
#include <QIcon>
#include <QRegularExpression>
#include <QTextDocument>

#include "ui/Convert.h"
#include "ui/Theme.h"

namespace norvane::ui {
namespace {

constexpr int kCharactersPerLine = 92;
constexpr int kMargin = 16;

/// The toolkit's HTML knows neither frames of paragraphs nor those of words: a note becomes a table of one cell, a key
/// a coloured run.
QString WithFrames(QString html, const Colours& colours) {
  static const QRegularExpression note("<p class=\"note\">(.*?)</p>", QRegularExpression::DotMatchesEverythingOption);
  static const QRegularExpression key("<kbd>(.*?)</kbd>");
  html.replace(note, QString("<table width='100%' cellpadding='10' cellspacing='0' border='1' "
                             "style='border-style:solid;border-color:%1' bgcolor='%2'><tr><td>\\1</td></tr></table>")
                         .arg(colours.accent.name(), colours.band.name()));
  return html.replace(key,
                      QString("<span style='background-color:%1'>&nbsp;\\1&nbsp;</span>").arg(colours.hover.name()));
}

}  // namespace

HelpPage::HelpPage(QWidget* parent) : QTextBrowser(parent) {
  document()->setDocumentMargin(kMargin);
  setOpenExternalLinks(true);
  setAccessibleName(tr("Page"));
}

QVariant HelpPage::loadResource(int type, const QUrl& name) {
  if (type == QTextDocument::ImageResource && name.scheme() == "icon") {
    return NamedIcon(FromQt(name.path())).pixmap(kIconSize).toImage();
  }
  if (type != QTextDocument::HtmlResource) return QTextBrowser::loadResource(type, name);
  QFile file(name.toLocalFile());
  if (!file.open(QIODevice::ReadOnly)) return QTextBrowser::loadResource(type, name);
  return WithFrames(QString::fromUtf8(file.readAll()), Colours::Of(palette()));
}

void HelpPage::resizeEvent(QResizeEvent* event) {
  const int widest = fontMetrics().averageCharWidth() * kCharactersPerLine + 2 * kMargin;
  const int around = std::max(0, (width() - widest) / 2);
  setViewportMargins(around, 0, around, 0);
  QTextBrowser::resizeEvent(event);
}

void HelpPage::Mark(const QString& words) {
  const auto& colours = Colours::Of(palette());
  QList<ExtraSelection> places;
  for (QTextCursor at(document()); !words.isEmpty() && !(at = document()->find(words, at)).isNull();) {
    ExtraSelection place{at, {}};
    place.format.setBackground(colours.accent);
    place.format.setForeground(colours.onAccent);
    places.append(place);
  }
  setExtraSelections(places);
}

QString PlainTextOf(const QString& html) {
  QTextDocument text;
  text.setHtml(html);
  return text.toPlainText();
}

}  // namespace norvane::ui
