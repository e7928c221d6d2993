#pragma once

#include <QProgressDialog>

namespace norvane::ui {

/// Shows which page is being printed and where, once the work takes longer than a moment. Its button cancels the
/// work.
class PageProgress {
 public:
  /// `toPrint` pages of a document of `pagesOfDocument` go to the device.
  PageProgress(const QString& document, const QString& device, std::size_t pagesOfDocument, std::size_t toPrint,
               QWidget* parent);

  /// The next page, counted from 0 in the document, is about to be printed. False if the user has cancelled.
  bool Next(std::size_t page);

 private:
  QProgressDialog box_;
  const QString tail_;  ///< the label's text after the number of the page
  int begun_ = 0;
};

}  // namespace norvane::ui
