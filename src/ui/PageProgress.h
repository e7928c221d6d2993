#pragma once

#include <QProgressDialog>

namespace norvane::ui {

/// Tells which page is being printed, and on what, if the work takes long enough for somebody to wonder. Its button
/// ends the work.
class PageProgress {
 public:
  /// `toPrint` pages of a document of `pagesOfDocument` go to the device.
  PageProgress(const QString& document, const QString& device, std::size_t pagesOfDocument, std::size_t toPrint,
               QWidget* parent);

  /// The next page, counted from 0 in the document, is about to be printed. False if the user has had enough.
  bool Next(std::size_t page);

 private:
  QProgressDialog box_;
  const QString tail_;  ///< what the label tells behind the page's number
  int begun_ = 0;
};

}  // namespace norvane::ui
