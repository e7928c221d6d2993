#pragma once

#include <filesystem>

#include <QMainWindow>
#include <QUrl>

class QListWidget;
class QTextBrowser;

namespace norvane::ui {

/// The help window: the titles of a folder's pages on the left, the current page on the right.
class HelpViewer : public QMainWindow {
 public:
  static constexpr const char* kFirstPage = "index.html";

  /// The folder holds HTML pages, `kFirstPage` among them. The window deletes itself when it is closed.
  explicit HelpViewer(const std::filesystem::path& folder);

 private:
  void BuildTools();
  void ListPages(const QString& folder);
  void MarkPage(const QUrl& page);
  void Find(const QString& words);

  QListWidget* contents_;
  QTextBrowser* page_;
};

}  // namespace norvane::ui
