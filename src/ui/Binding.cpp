#include "ui/Binding.h"

#include "ui/Convert.h"

namespace norvane::ui {

Binding::Binding(Control& control, QWidget& widget, Follow follow)
    : QObject(&widget), control_(control), widget_(widget), follow_(std::move(follow)) {
  widget.setObjectName(ToQt(control.Name()));
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
  widget_.setToolTip(ToQt(control_.ToolTip()));
  if (widget_.isHidden() == control_.Visible()) widget_.setVisible(control_.Visible());
  if (companion_ && companion_->isHidden() == control_.Visible()) companion_->setVisible(control_.Visible());
}

}  // namespace norvane::ui
