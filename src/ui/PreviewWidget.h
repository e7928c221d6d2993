#pragma once

#include <QFrame>

#include "reports/Pages.h"
#include "ui/PageCanvas.h"

class QLabel;
class QMenu;
class QSpinBox;
class QToolButton;

namespace norvane::ui {

/// A document to look at, page by page, and to print or save: the page bar above the pages.
class PreviewWidget : public QFrame {
 public:
  explicit PreviewWidget(QWidget* parent);

  /// `title` names the document to the printer and in a PDF.
  void ShowPages(pages::Pages pages, const QString& title, int percent);
  PageCanvas& Canvas() { return *canvas_; }

 private:
  QToolButton* AddTool(const char* icon, const QString& name, const std::function<void()>& action);
  void BuildBar();
  QMenu* BuildZoomMenu();
  void FollowCanvas();
  QString ZoomText() const;

  PageCanvas* canvas_;
  QFrame* bar_;
  QSpinBox* page_ = nullptr;
  QLabel* count_ = nullptr;
  QToolButton* zoom_ = nullptr;
  QToolButton *first_ = nullptr, *previous_ = nullptr, *next_ = nullptr, *last_ = nullptr;
  QToolButton *print_ = nullptr, *save_ = nullptr;
  QString title_;
};

}  // namespace norvane::ui
