#pragma once

#include <QApplication>

namespace norvane {

class Desktop;

/// The toolkit's event loop under the program's outermost handler: an exception that leaves an event, whatever it is,
/// is shown in a box and the program goes on.
class Application : public QApplication {
 public:
  using QApplication::QApplication;
  /// Where exceptions are shown; not owned. Without one they end the program.
  void ReportTo(Desktop& desktop) { desktop_ = &desktop; }
  bool notify(QObject* receiver, QEvent* event) override;

 private:
  Desktop* desktop_ = nullptr;
};

}  // namespace norvane
