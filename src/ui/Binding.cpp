#include "ui/Binding.h"

#include <QRegularExpression>

#include "forms/Controls.h"
#include "ui/Convert.h"
#include "ui/Shortcuts.h"

namespace norvane::ui {
namespace {

/// "Since Date" of "txtSinceDate": what assistive tools read out for a field without a label.
QString ReadableName(const Control& control) {
  static const QRegularExpression prefix("^(txt|cmb|Cmb|DT|dt|Opt)(?=[A-Z])");
  static const QRegularExpression wordStart("(?<=[a-z])(?=[A-Z0-9])");
  return ToQt(control.Name()).remove(prefix).replace(wordStart, " ");
}

bool NamesItself(const Control& control) {
  return !control.TakesFocus() || dynamic_cast<const Button*>(&control) || dynamic_cast<const OptionButton*>(&control);
}

}  // namespace

Binding::Binding(Control& control, QWidget& widget, Follow follow)
    : QObject(&widget), control_(control), widget_(widget), follow_(std::move(follow)) {
  widget.setObjectName(ToQt(control.Name()));
  if (!NamesItself(control) && widget.accessibleName().isEmpty()) widget.setAccessibleName(ReadableName(control));
  control.observer = [this](Aspect aspect) { Changed(aspect); };
  Refresh();
}

void Binding::Refresh() {
  FollowShared();
  if (!follow_) return;
  for (const auto aspect : {Aspect::Caption, Aspect::Items, Aspect::Text, Aspect::State, Aspect::Colour}) {
    follow_(aspect);
  }
}

void Binding::SetKey(const QKeySequence& key) {
  key_ = key;
  FollowShared();
}

void Binding::SetCompanion(QWidget* companion) {
  companion_ = companion;
  FollowShared();
}

Binding* Binding::Of(QWidget* widget) {
  for (; widget; widget = widget->parentWidget()) {
    for (QObject* child : widget->children()) {
      if (auto* binding = dynamic_cast<Binding*>(child)) return binding;
    }
  }
  return nullptr;
}

void Binding::Changed(Aspect aspect) {
  switch (aspect) {
    case Aspect::Enabled:
    case Aspect::Visible:
    case Aspect::ToolTip:
      return FollowShared();
    case Aspect::Focus:
      if (focused) focused(*this);
      return;
    case Aspect::Place:
      return;  // real layouts place the widgets
    default:
      if (follow_) follow_(aspect);
  }
}

void Binding::FollowShared() {
  widget_.setEnabled(control_.Enabled());
  widget_.setToolTip(WithKey(ToQt(control_.ToolTip()), key_));
  if (widget_.isHidden() == control_.Visible()) widget_.setVisible(control_.Visible());
  if (companion_ && companion_->isHidden() == control_.Visible()) companion_->setVisible(control_.Visible());
}

}  // namespace norvane::ui
