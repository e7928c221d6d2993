#pragma once

#include <QTextBrowser>

namespace norvane::ui {

/// A help page to read: lines no longer than one reads with ease, notes and keys in frames of their own, and every
/// place where the words looked for are marked. Pages show the program's icons by URLs such as "icon:save".
class HelpPage : public QTextBrowser {
 public:
  explicit HelpPage(QWidget* parent);

  /// Marks all places; an empty text marks none.
  void Mark(const QString& words);

 protected:
  QVariant loadResource(int type, const QUrl& name) override;
  void resizeEvent(QResizeEvent* event) override;
};

/// A page's text without its tags.
QString PlainTextOf(const QString& html);

}  // namespace norvane::ui
