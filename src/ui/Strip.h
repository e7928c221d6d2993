#pragma once

#include <QEvent>
#include <QFrame>

#include "ui/FlowLayout.h"

namespace norvane::ui {

/// A strip of buttons and small fields. It is always as high as the lines that its width makes of them.
class Strip : public QFrame {
 public:
  explicit Strip(QWidget* parent) : QFrame(parent), flow_(new FlowLayout(this)) {}
  FlowLayout& Flow() { return *flow_; }

 protected:
  bool event(QEvent* event) override {
    const bool done = QFrame::event(event);
    if (event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest) {
      const int frame = height() - contentsRect().height();
      setMinimumHeight(flow_->HeightFor(contentsRect().width()) + frame);
    }
    return done;
  }

 private:
  FlowLayout* flow_;
};

}  // namespace norvane::ui
