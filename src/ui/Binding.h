#pragma once

#include <functional>

#include <QKeySequence>
#include <QObject>
#include <QPointer>
#include <QWidget>

#include "forms/Control.h"

namespace norvane::ui {

/// Ties a widget to its control: makes the widget follow the model, and is the context of every connection that
/// forwards the user to it. Deleting the binding cuts the widget off, which is what happens when the form is destroyed.
class Binding : public QObject {
 public:
  using Follow = std::function<void(Aspect)>;

  /// `follow` draws what changed; it is called for all aspects but those that all widgets share. The binding belongs to
  /// the widget.
  Binding(Control& control, QWidget& widget, Follow follow);

  Control& Model() const { return control_; }
  QWidget& Widget() const { return widget_; }

  /// Draws everything again, for a widget that gets its content after the binding.
  void Refresh();

  /// Sets the key that presses the widget, which its tool tip names.
  void SetKey(const QKeySequence& key);

  /// Sets the label that is shown and hidden with the widget.
  void SetCompanion(QWidget* companion);

  /// What stands directly below the widget, null for nothing.
  QWidget* Below() const { return below_; }
  void SetBelow(QWidget* below) { below_ = below; }

  /// Called when the model has given the control the focus.
  std::function<void(Binding&)> focused;

  /// The binding of the widget or of its nearest ancestor with one, null outside of forms.
  static Binding* Of(QWidget* widget);

 private:
  void Changed(Aspect aspect);
  void FollowShared();

  Control& control_;
  QWidget& widget_;
  Follow follow_;
  QKeySequence key_;
  QPointer<QWidget> companion_;
  QPointer<QWidget> below_;
};

}  // namespace norvane::ui
