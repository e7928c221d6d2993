#pragma once

#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

#include <QApplication>
#include <QTest>

#include "forms/Program.h"
#include "ui/DemoForm.h"
#include "ui/FormWindow.h"
#include "ui/QtDesktop.h"

namespace norvane::ui {

/// A program with the demo form in a real window.
class WindowTest : public testing::Test {
 protected:
  WindowTest() {
    program.screens.Add<DemoForm>();
    program.screens.Add<CalendarForm>();
    program.Start(DemoForm::kName);
    EXPECT_TRUE(QTest::qWaitForWindowActive(&Window()));
    Settle();
    Demo().log.clear();
  }

  DemoForm& Demo() { return program.screens.Touch<DemoForm>(); }
  FormWindow& Window() { return *desktop.WindowOf(Demo()); }

  template <class Widget = QWidget>
  Widget& Of(const Control& control) {
    return dynamic_cast<Widget&>(*desktop.WindowOf(control.Parent())->WidgetOf(control));
  }

  /// Lets everything happen that was put off until the toolkit is done.
  static void Settle() {
    for (int i = 0; i < 3; ++i) QApplication::processEvents();
  }
  /// What was logged since the last call.
  std::string Log() {
    Settle();
    return Demo().TakeLog();
  }
  void Click(const Control& control) { QTest::mouseClick(&Of(control), Qt::LeftButton); }
  static void Key(Qt::Key key, Qt::KeyboardModifiers held = {}) {
    QWidget* target = QApplication::focusWidget();
    ASSERT_TRUE(target);
    QTest::keyClick(target, key, held);
    Settle();
  }
  static void Type(const char* text) {
    for (; *text; ++text) {
      ASSERT_TRUE(QApplication::focusWidget());
      QTest::keyClick(QApplication::focusWidget(), *text);
    }
    Settle();
  }

  QtDesktop desktop{{}, Theme::Light};
  Program program{desktop, {}, std::filesystem::temp_directory_path()};
};

}  // namespace norvane::ui
