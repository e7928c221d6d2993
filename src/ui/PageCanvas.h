#pragma once

#include <functional>

#include <QAbstractScrollArea>

#include "reports/Pages.h"

namespace norvane::ui {

/// How large the pages are shown: to fit in one of these ways, or at a percentage of their real size.
enum class PageFit { WholePage, PageWidth, TwoPages, Thumbnail, Percent };

/// Pages on a table, as many side by side as there is room for, to be scrolled.
class PageCanvas : public QAbstractScrollArea {
 public:
  explicit PageCanvas(QWidget* parent);

  void SetPages(pages::Pages pages);
  const pages::Pages& Document() const { return pages_; }
  int PageCount() const { return static_cast<int>(pages_.pages.size()); }

  void SetFit(PageFit fit, int percent = 100);
  PageFit Fit() const { return fit_; }
  /// The scale in percent that is in force, whatever the fit.
  int Percent() const;
  void ZoomBy(double factor);

  /// The first page in view, counted from 1; 0 if there is none.
  int CurrentPage() const;
  void GoToPage(int page);

  /// Told of another scale, current page or count of pages.
  std::function<void()> changed;

  QSize sizeHint() const override { return {560, 520}; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;

 private:
  void Arrange();
  double ScaleFor(QSize room) const;
  int Columns() const { return columns_; }
  /// Where a page stands in the viewport now.
  QRectF PlaceOf(int index) const;
  QSizeF PageSize() const;
  void Tell();

  pages::Pages pages_;
  PageFit fit_ = PageFit::Percent;
  double wanted_ = 1;  ///< at PageFit::Percent; 1 is real size
  double scale_ = 1;   ///< pixels to a point
  int columns_ = 1;
  QPoint dragged_;
};

}  // namespace norvane::ui
