#pragma once

#include <algorithm>
#include <functional>

#include <QAbstractScrollArea>

#include "forms/Preview.h"

namespace norvane::ui {

/// Shows pages in a scrolling area, as many side by side as there is room for.
class PageCanvas : public QAbstractScrollArea {
 public:
  explicit PageCanvas(QWidget* parent);

  /// The pages are not owned and must outlive the next call; null shows none.
  void Show(const pages::Pages* pages);
  int PageCount() const { return pages_ ? static_cast<int>(pages_->pages.size()) : 0; }

  /// `percent` is used with ZoomChoice::Percent only.
  void SetZoom(ZoomChoice choice, double percent);
  /// The current scale in percent, whatever the choice.
  double Percent() const;

  /// The current page, from 1; 0 if there is none.
  int CurrentPage() const { return std::min(current_, PageCount()); }
  void GoToPage(int page);

  /// Called when the user turns to another page, and when the user scales the pages by a factor.
  std::function<void()> turned;
  std::function<void(double factor)> zoomed;

  /// Called when the user clicks on a place of a page that opens something.
  std::function<void(const std::string& target)> followed;

  QSize sizeHint() const override { return {560, 520}; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;

 private:
  void Arrange();
  double ScaleFor(QSize room) const;
  int Rows() const;
  int PageInView() const;
  void Turn(int page);
  /// Where a page is in the viewport now.
  QRectF PlaceOf(int index) const;
  QSizeF PageSize() const;
  void Hover(QPointF position);

  const pages::Pages* pages_ = nullptr;
  ZoomChoice choice_ = ZoomChoice::Percent;
  double percent_ = 100;
  double scale_ = 1;  ///< pixels to a point
  int columns_ = 1;
  int current_ = 1;
  bool going_ = false;  ///< scrolling by code, which turns no page
  QPoint dragged_;
  QPoint pressed_;
  std::string target_;  ///< of the link below the mouse, empty for none
  QRectF linked_;       ///< its place, from the corner of its page, in points
  int linkedPage_ = 0;
};

}  // namespace norvane::ui
