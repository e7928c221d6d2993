#include <QAction>
#include <QCalendarWidget>
#include <QClipboard>
#include <QComboBox>
#include <QCompleter>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QStatusBar>
#include <QTabWidget>
#include <QTableView>
#include <QTimer>

#include "ui/WindowTest.h"

namespace norvane::ui {
namespace {

using Controls = WindowTest;

TEST_F(Controls, ATextBoxTellsWhatIsTypedAndShowsWhatCodeSets) {
  Click(Demo().txtFirst);
  Type("An");
  Key(Qt::Key_Z, Qt::AltModifier);
  EXPECT_EQ(Demo().txtFirst.Text(), "An") << "a letter that is no accelerator types nothing";
  EXPECT_EQ(Log(), "-btnSave +txtFirst txtFirst_Change txtFirst_Change");

  Demo().txtFirst.SetText("Bea");
  EXPECT_EQ(Of<QLineEdit>(Demo().txtFirst).text(), "Bea");
  EXPECT_EQ(Log(), "txtFirst_Change");
  EXPECT_EQ(Of<QLineEdit>(Demo().txtAmount).alignment() & Qt::AlignHorizontal_Mask, Qt::AlignRight);
}

TEST_F(Controls, ADateThatIsNoneIsMarkedWhenItsBoxIsLeft) {
  const auto isMarked = [&] { return Of(Demo().txtDue).property("unreadable").toBool(); };
  Click(Demo().txtDue);
  Type("2/30/2026");
  EXPECT_FALSE(isMarked()) << "it may still grow";
  Click(Demo().txtFirst);
  Settle();
  EXPECT_TRUE(isMarked());
  Click(Demo().txtDue);
  Key(Qt::Key_A, Qt::ControlModifier);
  Type("t");
  EXPECT_EQ(Demo().txtDue.Text(), program.convert.ToText(desktop.Today())) << "today";
  EXPECT_FALSE(isMarked());
}

TEST_F(Controls, ASuggestionPickedIsTyped) {
  Demo().txtFirst.SetSuggestions({"Net 10", "Net 30"});
  Click(Demo().txtFirst);
  Type("n");
  auto* list = Of<QLineEdit>(Demo().txtFirst).completer()->popup();
  ASSERT_TRUE(list->isVisible());
  QTest::keyClick(list, Qt::Key_Down);
  QTest::keyClick(list, Qt::Key_Return);
  EXPECT_EQ(Demo().txtFirst.Text(), "Net 10");
}

TEST_F(Controls, AMaskedBoxKeepsItsSlashes) {
  EXPECT_EQ(Of<QLineEdit>(Demo().txtSince).displayText(), "__/__/__");
  Click(Demo().txtSince);
  Key(Qt::Key_Home);
  Type("112226");
  EXPECT_EQ(Demo().txtSince.Text(), "11/22/26");
  Demo().txtSince.SetText("");
  EXPECT_EQ(Of<QLineEdit>(Demo().txtSince).displayText(), "__/__/__");
  Key(Qt::Key_Home);
  Type("1/12/26");
  EXPECT_EQ(Demo().txtSince.Text(), "01/12/26") << "a lone digit gets its zero";
}

TEST_F(Controls, APickerIsAButtonInItsBoxThatOpensACalendar) {
  QWidget& picker = Of(Demo().DTSince);
  EXPECT_EQ(picker.parentWidget(), &Of(Demo().txtSince));
  Click(Demo().DTSince);
  auto* calendar = picker.findChild<QCalendarWidget*>();
  ASSERT_TRUE(calendar && calendar->isVisible());
  EXPECT_EQ(calendar->selectedDate(), QDate(2026, 11, 22));
  emit calendar->clicked(QDate(2026, 12, 24));
  EXPECT_EQ(Demo().DTSince.Value(), Date::FromYearMonthDay(2026, 12, 24));
  EXPECT_THAT(Log(), testing::EndsWith("+DTSince DTSince_Change"));
  QTest::keyClick(&picker, Qt::Key_Down);
  EXPECT_EQ(Demo().DTSince.Value(), Date::FromYearMonthDay(2026, 12, 23));
}

TEST_F(Controls, AnApostropheTypedOrPastedIsTypographicAStoredOneStays) {
  Demo().txtFirst.SetText("O'Hara");
  EXPECT_EQ(Of<QLineEdit>(Demo().txtFirst).text(), "O'Hara");
  QApplication::clipboard()->setText("D'Arcy");
  Demo().txtLast.SetFocus();
  Type("O'");
  Of<QLineEdit>(Demo().txtLast).paste();
  EXPECT_EQ(Demo().txtLast.Text(), "O\u2019D\u2019Arcy");
}

TEST_F(Controls, KeysPressTheButtonsOfTheirRoles) {
  Demo().txtFirst.SetFocus();
  Log();
  Key(Qt::Key_S, Qt::ControlModifier);
  Key(Qt::Key_P, Qt::ControlModifier);
  EXPECT_EQ(Log(), "-txtFirst +btnSave btnSave_Click -btnSave +btnPrint btnPrint_Click");
}

TEST_F(Controls, ACombosPickRaisesChangeThenClick) {
  Of(Demo().cmbTerms).setFocus();
  Settle();
  Log();
  Key(Qt::Key_Down);
  EXPECT_EQ(Demo().cmbTerms.Text(), "30 days");
  EXPECT_EQ(Log(), "cmbTerms_Change cmbTerms_Click");
  Key(Qt::Key_End);
  Type("!");
  EXPECT_EQ(Demo().cmbTerms.Text(), "30 days!");
  EXPECT_EQ(Log(), "cmbTerms_Change");
}

TEST_F(Controls, AnItemsOnlyComboTakesNoOtherText) {
  Of(Demo().cmbWhich).setFocus();
  Settle();
  Type("A");
  EXPECT_EQ(Demo().cmbWhich.Text(), "All Clients");
  Type("x");
  EXPECT_EQ(Demo().cmbWhich.Text(), "All Clients");
  Demo().cmbWhich.SetText("Selected Client");
  EXPECT_EQ(Of<QComboBox>(Demo().cmbWhich).currentText(), "Selected Client");
}

TEST_F(Controls, AWheelOverAFieldWithoutTheFocusChangesNothing) {
  Demo().cmbWhich.SetText("Selected Client");
  Demo().txtFirst.SetFocus();
  auto& combo = Of<QComboBox>(Demo().cmbWhich);
  QWheelEvent turn(QPointF(5, 5), combo.mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                   Qt::NoScrollPhase, false);
  QApplication::sendEvent(&combo, &turn);
  EXPECT_EQ(Demo().cmbWhich.Text(), "Selected Client");
}

TEST_F(Controls, OptionsExcludeEachOther) {
  Click(Demo().OptBilling);
  EXPECT_EQ(Log(), "-btnSave +OptBilling OptBilling_Click");
  EXPECT_FALSE(Of<QRadioButton>(Demo().OptClient).isChecked());
  Key(Qt::Key_Left);
  EXPECT_TRUE(Demo().OptClient.Value());
  EXPECT_FALSE(Of<QRadioButton>(Demo().OptBilling).isChecked());
  Demo().OptClient.SetValue(false);
  EXPECT_FALSE(Of<QRadioButton>(Demo().OptClient).isChecked());
}

TEST_F(Controls, AButtonIsPressedByMouseKeyAcceleratorAndAsTheDefault) {
  Click(Demo().btnSave);
  EXPECT_EQ(Log(), "btnSave_Click");
  Key(Qt::Key_Return);
  EXPECT_EQ(Log(), "btnSave_Click");
  Key(Qt::Key_Space);
  EXPECT_EQ(Log(), "btnSave_Click");
  QTest::keyClick(&Window(), Qt::Key_O, Qt::AltModifier);
  EXPECT_EQ(Log(), "-btnSave +btnOk btnOk_Click");
  Demo().txtFirst.SetFocus();
  Log();
  Key(Qt::Key_Return);
  EXPECT_EQ(Log(), "-txtFirst +btnOk btnOk_Click");
  Demo().btnOk.SetEnabled(false);
  Click(Demo().btnOk);
  EXPECT_EQ(Log().find("btnOk_Click"), std::string::npos);
}

TEST_F(Controls, EscapePressesTheCancelButton) {
  Demo().txtFirst.SetFocus();
  Key(Qt::Key_Escape);
  EXPECT_FALSE(program.screens.Find(DemoForm::kName));
}

TEST_F(Controls, AMenuEntryMovesNoFocus) {
  Demo().txtFirst.SetFocus();
  Log();
  int boxes = 0;
  QTimer::singleShot(0, &Window(), [&] {
    ++boxes;
    QApplication::activeModalWidget()->close();
  });
  QMenu* file = Window().menuBar()->actions().front()->menu();
  EXPECT_EQ(file->title(), "&File");
  file->actions().front()->trigger();
  EXPECT_EQ(boxes, 1);
  EXPECT_EQ(Log(), "");
  Demo().mnuAsk.SetEnabled(false);
  EXPECT_FALSE(file->actions().front()->isEnabled());
}

TEST_F(Controls, WidgetsFollowWhatTheirControlsAre) {
  EXPECT_EQ(Of(Demo().btnSave).toolTip(), "Save the record (Ctrl+S)");
  EXPECT_EQ(Of(Demo().btnSave).accessibleName(), "Save the record");
  EXPECT_EQ(Of(Demo().txtFirst).accessibleName(), "First");
  EXPECT_EQ(Of(Demo().lblBalance).palette().color(QPalette::WindowText), Colours::Light().red);
  EXPECT_FALSE(Of<QPushButton>(Demo().btnSave).icon().isNull());

  Demo().lblBalance.SetCaption("Fish & Chips");
  EXPECT_EQ(Of<QLabel>(Demo().lblBalance).text(), "Fish & Chips");
  Demo().StatusBar1.SetPanelText(2, "13 Clients");
  EXPECT_EQ(Of<QStatusBar>(Demo().StatusBar1).findChildren<QLabel*>().back()->text(), "13 Clients");

  Demo().txtFirst.SetVisible(false);
  EXPECT_TRUE(Of(Demo().txtFirst).isHidden());
  const auto labels = Window().findChildren<QLabel*>();
  const auto isFirst = [](const QLabel* label) { return label->text() == "&First:"; };
  const auto label = std::find_if(labels.begin(), labels.end(), isFirst);
  ASSERT_NE(label, labels.end());
  EXPECT_TRUE((*label)->isHidden());
  Demo().txtFirst.SetVisible(true);
  EXPECT_TRUE((*label)->isVisible());
}

TEST_F(Controls, ALabelsAcceleratorLeadsToItsField) {
  QTest::keyClick(&Window(), Qt::Key_L, Qt::AltModifier);
  Settle();
  EXPECT_TRUE(Demo().txtLast.HasFocus());
}

TEST_F(Controls, ACalendarTellsClicksAndKeys) {
  program.screens.Show(CalendarForm::kName);
  Settle();
  auto& calendar = program.screens.Touch<CalendarForm>();
  auto& month = Of<QCalendarWidget>(calendar.MonthView1);
  EXPECT_EQ(month.selectedDate(), QDate(2026, 11, 22));
  calendar.MonthView1.SetFocus();
  Key(Qt::Key_Left);
  EXPECT_EQ(calendar.MonthView1.Value(), Date::FromYearMonthDay(2026, 11, 21));
  Key(Qt::Key_Return);
  EXPECT_EQ(calendar.keys, (std::vector<int>{37, 13}));
  emit month.clicked(QDate(2026, 11, 3));
  EXPECT_EQ(calendar.clicked, Date::FromYearMonthDay(2026, 11, 3));
}

TEST_F(Controls, TabsFollowTheModelAndTellIt) {
  program.screens.Show(CalendarForm::kName);
  auto& calendar = program.screens.Touch<CalendarForm>();
  auto& tabs = Of<QTabWidget>(calendar.SSTab1);
  calendar.SSTab1.SetTab(1);
  EXPECT_EQ(tabs.currentIndex(), 1);
  tabs.setCurrentIndex(0);
  EXPECT_EQ(calendar.SSTab1.Tab(), 0);
}

}  // namespace
}  // namespace norvane::ui
