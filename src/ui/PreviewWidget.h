#pragma once

#include <QFrame>

#include "ui/Binding.h"
#include "ui/PageCanvas.h"
#include "ui/PageFonts.h"

class QLabel;
class QMenu;
class QPushButton;
class QSpinBox;

namespace norvane::ui {

class Strip;
class WidgetFactory;

/// Shows a report's document below the bar that turns, zooms, prints and saves its pages.
class PreviewWidget : public QFrame {
 public:
  PreviewWidget(Preview& preview, QWidget* parent);
  Binding* Bound() const { return binding_; }
  const PageCanvas& Canvas() const { return *canvas_; }
  /// Adds a widget of the form's at the right end of the bar.
  void AddToBar(QWidget& widget);

 private:
  QPushButton* AddTool(const char* icon, const QString& name, const std::function<void(Preview&)>& action);
  void BuildBar();
  void BuildSaved();
  void ShowSaved(const QString& file);
  void BuildZoomButton();
  void Follow(Aspect aspect);
  void FollowBar();
  QString ZoomText() const;
  /// Runs an action of the user's on the preview, unless its form has been destroyed.
  void Act(const std::function<void(Preview&)>& action);

  Preview* preview_;
  const QtFontMetrics metrics_;
  Strip* bar_;
  PageCanvas* canvas_;
  Binding* binding_;
  QSpinBox* page_ = nullptr;
  QLabel* count_ = nullptr;
  QLabel* surplus_ = nullptr;  ///< how many rows the forms have no room for
  QPushButton* zoom_ = nullptr;
  QPushButton *first_ = nullptr, *previous_ = nullptr, *next_ = nullptr, *last_ = nullptr;
  QPushButton *print_ = nullptr, *save_ = nullptr, *send_ = nullptr;
  QWidget* saved_ = nullptr;
  QLabel* savedAs_ = nullptr;
  QString file_;  ///< the PDF saved last
};

/// Registers the widget of the preview.
void RegisterPreview(WidgetFactory& factory);

}  // namespace norvane::ui
