#include <QAbstractItemView>
#include <QMessageBox>
#include <QTimer>

#include "ui/WindowTest.h"

namespace norvane::ui {
namespace {

class FocusOfWindows : public WindowTest {
 protected:
  /// Types into the second row's first cell and leaves the edit open.
  void EditACell() {
    Demo().Rows.SetFocus();
    Demo().Rows.SetRow(2);
    Demo().Rows.SetCol(1);
    Type("X");
    Log();
  }
};

TEST_F(FocusOfWindows, AClickOnAButtonCommitsTheEditBeforeTheClick) {
  EditACell();
  Click(Demo().btnSave);
  EXPECT_EQ(Log(), "AfterEdit=X LeaveCell -Rows +btnSave btnSave_Click");
}

TEST_F(FocusOfWindows, AnAcceleratorCommitsTheEditToo) {
  EditACell();
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_O, Qt::AltModifier);
  EXPECT_EQ(Log(), "AfterEdit=X LeaveCell -Rows +btnOk btnOk_Click");
}

TEST_F(FocusOfWindows, TheWindowsRaiseWhatTheModelRaises) {
  Demo().btnSave.SetFocus();
  Log();
  const auto byModel = [&] {
    Demo().Rows.UserClick(2, 1);
    Demo().Rows.UserText("Y");
    Demo().Rows.UserKey(norvane::Key::Down);
    Demo().btnDelete.Press();
    Demo().txtFirst.SetFocus();
    return Log();
  };
  const std::string expected = byModel();
  Demo().Rows.SetRow(1);
  Demo().Rows.SetCell(2, 1, "Delivery");
  Demo().btnSave.SetFocus();
  Log();

  auto& table = Of<QAbstractItemView>(Demo().Rows);
  QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, table.visualRect(table.model()->index(1, 1)).center());
  Type("Y");
  Key(Qt::Key_Down);
  Click(Demo().btnDelete);
  Click(Demo().txtFirst);
  EXPECT_EQ(Log(), expected);
}

TEST_F(FocusOfWindows, AMessageBoxRaisesNoFocusEvents) {
  Demo().txtFirst.SetFocus();
  Log();
  bool shown = false;
  QTimer::singleShot(0, &Window(), [&] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    shown = box && QTest::qWaitForWindowActive(box);
    QTest::keyClick(box, Qt::Key_Return);
  });
  EXPECT_EQ(desktop.Ask({.text = "Sure?", .title = "Question", .buttons = Buttons::YesNo, .preselected = Answer::No}),
            Answer::No);
  EXPECT_TRUE(shown);
  EXPECT_EQ(Log(), "");
  EXPECT_TRUE(Demo().txtFirst.HasFocus());
}

TEST_F(FocusOfWindows, EnterInAGridPressesNoDefaultButton) {
  Demo().Rows.SetFocus();
  Log();
  Key(Qt::Key_Return);
  EXPECT_EQ(Log(), "");
  EXPECT_TRUE(Demo().Rows.HasFocus());
}

TEST_F(FocusOfWindows, TabGoesInTheOrderOfTheLayout) {
  Demo().btnSave.SetFocus();
  std::vector<Control*> visited;
  do {
    visited.push_back(Demo().ActiveControl());
    // Within the grid Tab goes from cell to cell; Ctrl+Tab leaves it.
    Key(Qt::Key_Tab, Demo().Rows.HasFocus() ? Qt::ControlModifier : Qt::NoModifier);
  } while (!Demo().btnSave.HasFocus() && visited.size() < 30);
  // The options of a group are one stop.
  auto expected = Demo().TabOrder();
  std::erase(expected, &Demo().OptBilling);
  EXPECT_EQ(visited, expected);
}

TEST_F(FocusOfWindows, AButtonLetGoElsewhereHasTheFocusAndIsNotPressed) {
  Demo().txtFirst.SetFocus();
  Log();
  QWidget& button = Of(Demo().btnSave);
  QTest::mousePress(&button, Qt::LeftButton);
  EXPECT_EQ(Log(), "");
  QTest::mouseMove(&button, QPoint(-50, 200));
  QTest::mouseRelease(&button, Qt::LeftButton, {}, QPoint(-50, 200));
  EXPECT_EQ(Log(), "-txtFirst +btnSave");
}

TEST_F(FocusOfWindows, AnotherWindowTakesTheFocusAndGivesItBack) {
  Demo().txtFirst.SetFocus();
  Log();
  program.screens.Show(CalendarForm::kName);
  EXPECT_EQ(Log(), "-txtFirst");
  program.screens.Unload(CalendarForm::kName);
  EXPECT_EQ(Log(), "+txtFirst");
  EXPECT_TRUE(Of(Demo().txtFirst).hasFocus());

  Demo().Rows.SetFocus();
  Type("ab");
  program.screens.Show(CalendarForm::kName);
  EXPECT_TRUE(QTest::qWaitForWindowActive(desktop.WindowOf(program.screens.Touch<CalendarForm>())));
  EXPECT_EQ(Demo().Rows.Cell(1, 1), "ab");
  program.screens.Unload(CalendarForm::kName);
  EXPECT_TRUE(QTest::qWaitForWindowActive(&Window()));
  Settle();
  EXPECT_TRUE(Of(Demo().Rows).hasFocus());
}

}  // namespace
}  // namespace norvane::ui
