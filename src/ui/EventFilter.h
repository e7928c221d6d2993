#pragma once

#include <functional>

#include <QObject>

namespace norvane::ui {

/// Passes each event of a widget to `see` first; true from there keeps it from the widget. The widget owns it.
class EventFilter : public QObject {
 public:
  EventFilter(QObject& watched, std::function<bool(QEvent&)> see) : QObject(&watched), see_(std::move(see)) {
    watched.installEventFilter(this);
  }
  bool eventFilter(QObject*, QEvent* event) override { return see_(*event); }

 private:
  std::function<bool(QEvent&)> see_;
};

}  // namespace norvane::ui
