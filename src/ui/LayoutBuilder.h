#pragma once

#include <functional>

#include "forms/Layout.h"
#include "ui/WidgetFactory.h"

class QBoxLayout;
class QGridLayout;
class QLayout;
class QStatusBar;

namespace norvane::ui {

class PreviewWidget;

/// Turns a form's layout into widgets and real layouts. Widgets are made in the layout's order, which is the tab order.
class LayoutBuilder {
 public:
  using Made = std::function<void(Control&, Binding&)>;
  LayoutBuilder(const WidgetFactory& factory, Made made) : factory_(factory), made_(std::move(made)) {}

  /// Fills the page. Strips along its edges take its full width; the rest has margins.
  void Fill(QWidget& page, const layout::Node& root);
  /// The form's status bar, which belongs to the window and not to the page; null if there is none.
  QStatusBar* FoundStatusBar() const { return statusBar_; }

 private:
  /// What a node becomes: a widget, a layout, or neither.
  struct Piece {
    QWidget* widget = nullptr;
    QLayout* layout = nullptr;
  };

  Piece Build(const layout::Node& node, QWidget& page);
  Piece BuildControl(const layout::Node& node, QWidget& page);
  Piece BuildBox(const layout::Node& node, QWidget& page, Qt::Orientation orientation);
  Piece BuildStrip(const layout::Node& node, QWidget& page);
  Piece BuildFields(const layout::Node& node, QWidget& page);
  Piece BuildField(const layout::Node& node, QWidget& page);
  Piece BuildGroup(const layout::Node& node, QWidget& page);
  Piece BuildTabs(const layout::Node& node, QWidget& page);
  QWidget* BuildBand(const layout::Node& node, QWidget& page, const char* edge);

  void AddToBox(QBoxLayout& box, const layout::Node& node, QWidget& page, int stretch);
  void AddToGrid(QGridLayout& grid, const layout::Node& node, QWidget& page, int row, int column);
  QWidget* LabelFor(const layout::Node& field, QWidget& page, const Piece& content);
  Binding* BindFrame(const layout::Node& group, QWidget& widget);

  const WidgetFactory& factory_;
  Made made_;
  QStatusBar* statusBar_ = nullptr;
  PreviewWidget* preview_ = nullptr;
  QWidget* masked_ = nullptr;  ///< the masked box made last, if nothing came after it
};

}  // namespace norvane::ui
