#pragma once

#include <filesystem>
#include <vector>

#include <QMainWindow>
#include <QUrl>

class QLineEdit;
class QListWidget;

namespace norvane::ui {

class HelpPage;

/// The help window: the titles of a folder's pages on the left, the current page on the right. Words typed into the
/// search field leave the pages that have them.
class HelpViewer : public QMainWindow {
 public:
  static constexpr const char* kFirstPage = "index.html";

  /// The folder holds HTML pages, `kFirstPage` among them. The window deletes itself when it is closed.
  explicit HelpViewer(const std::filesystem::path& folder);

  /// Opens the page that names the screen in its "screens" meta element, if there is one.
  void GoToPageOf(const QString& screen);

 private:
  struct Page {
    QString text;
    QStringList screens;
  };
  void BuildTools();
  void AddPage(const QString& path);
  void MarkPage(const QUrl& page);
  void Find(const QString& words);
  void GoToNext();
  int NextListed(int row) const;

  QListWidget* contents_;
  HelpPage* page_;
  QLineEdit* find_;
  std::vector<Page> pages_;  ///< in the order of the contents
};

}  // namespace norvane::ui
