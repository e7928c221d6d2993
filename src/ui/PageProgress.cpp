#include "ui/PageProgress.h"

#include <QApplication>

namespace norvane::ui {
namespace {

constexpr int kPatienceMilliseconds = 300;

}  // namespace

PageProgress::PageProgress(const QString& document, const QString& device, std::size_t pagesOfDocument,
                           std::size_t toPrint, QWidget* parent)
    : box_(QString(), "Cancel", 0, static_cast<int>(toPrint), parent),
      tail_(QString(" %1\n").arg(pagesOfDocument) +
            QString::asprintf("on the %s on %s", qUtf8Printable(document), qUtf8Printable(device))) {
  box_.setWindowTitle("Printing...");
  box_.setWindowModality(Qt::ApplicationModal);
  box_.setMinimumDuration(kPatienceMilliseconds);
  box_.setMinimumWidth(360);
}

// Pages are counted when they are begun, so that the box stays until the last one is on paper.
bool PageProgress::Next(std::size_t page) {
  box_.setLabelText(QString::asprintf("Now printing Page %d of", static_cast<int>(page) + 1) + tail_);
  box_.setValue(begun_++);
  QApplication::processEvents();
  return !box_.wasCanceled();
}

}  // namespace norvane::ui
