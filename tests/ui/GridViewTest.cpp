#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QScrollBar>
#include <QTableView>

#include "ui/CellTexts.h"
#include "ui/GridCellPainter.h"
#include "ui/WindowTest.h"

namespace norvane::ui {
namespace {

class GridInWindow : public WindowTest {
 protected:
  GridInWindow() {
    Rows().SetFocus();
    Log();
  }
  Grid& Rows() { return Demo().Rows; }
  QTableView& Table() { return Of<QTableView>(Rows()); }
  QRect Cell(int row, int col) { return Table().visualRect(Table().model()->index(row - 1, col)); }
  void ClickCell(int row, int col) {
    QTest::mouseClick(Table().viewport(), Qt::LeftButton, {}, Cell(row, col).center());
    Settle();
  }
  void ClickHelper(int row, int col) {
    QTest::mouseClick(Table().viewport(), Qt::LeftButton, {}, GridCellPainter::HelperRect(Cell(row, col)).center());
    Settle();
  }
  QString Shown(int row, int col) { return Table().model()->index(row - 1, col).data().toString(); }
};

TEST_F(GridInWindow, AnAccentedLetterBeginsAnEdit) {
  ClickCell(2, 1);
  EXPECT_TRUE(Table().testAttribute(Qt::WA_InputMethodEnabled));
  QInputMethodEvent composed;
  composed.setCommitString("\u00e9");
  QApplication::sendEvent(&Table(), &composed);
  EXPECT_EQ(Rows().EditText(), "\u00e9");
}

TEST_F(GridInWindow, F2KeepsTheTextAndEscapeDropsTheEdit) {
  ClickCell(1, 1);
  Log();
  Key(Qt::Key_F2);
  auto* field = qobject_cast<QLineEdit*>(QApplication::focusWidget());
  ASSERT_TRUE(field);
  EXPECT_EQ(field->text(), "Paper");
  Key(Qt::Key_End);
  Type("!");
  EXPECT_EQ(Rows().EditText(), "Paper!");
  Key(Qt::Key_Left);  // moves in the text
  EXPECT_TRUE(Rows().Editing());
  Key(Qt::Key_Escape);
  EXPECT_EQ(Rows().Cell(1, 1), "Paper");
  EXPECT_EQ(Log(), "BeforeEdit");
  EXPECT_TRUE(program.screens.Find(DemoForm::kName)) << "Escape in an edit is not the cancel button's";
}

TEST_F(GridInWindow, ADropDownShowsTextsAndKeepsKeys) {
  EXPECT_EQ(Shown(1, 2), "Goods");
  ClickCell(1, 2);
  Log();
  ClickHelper(1, 2);
  auto* list = Table().viewport()->findChild<QComboBox*>();
  ASSERT_TRUE(list->isVisible());
  ASSERT_TRUE(list->view()->isVisible());
  QTest::keyClick(list->view(), Qt::Key_Down);
  QTest::keyClick(list->view(), Qt::Key_Return);
  EXPECT_EQ(Rows().Cell(1, 2), "2");
  EXPECT_EQ(Shown(1, 2), "Services");
  EXPECT_EQ(Log(), "Click BeforeEdit AfterEdit=2");
  EXPECT_TRUE(Table().hasFocus());

  Type("F");
  EXPECT_EQ(Rows().EditText(), "Freight") << "letters search";
  Key(Qt::Key_Return);
  EXPECT_EQ(Rows().Cell(1, 2), "3");
  Key(Qt::Key_F4);
  EXPECT_TRUE(list->view()->isVisible());
  QTest::keyClick(list->view(), Qt::Key_Up);
  QTest::keyClick(list->view(), Qt::Key_Tab);
  EXPECT_EQ(Rows().Cell(1, 2), "2");
  EXPECT_EQ(Rows().Col(), 3) << "Tab picks and moves on";
  Rows().SetCol(2);
  Key(Qt::Key_F4);
  QTest::keyClick(list->view(), Qt::Key_Escape);
  EXPECT_FALSE(list->view()->isVisible() || Rows().Editing());
}

TEST_F(GridInWindow, AnEditKeepsTheKeyboardUntilAClickBesideTheRows) {
  ClickCell(1, 1);
  Type("ab");
  QTest::mouseClick(Table().viewport(), Qt::RightButton, {}, Cell(2, 6).center());
  Settle();
  EXPECT_TRUE(qobject_cast<QLineEdit*>(QApplication::focusWidget()));
  Log();
  QTest::mouseClick(Table().viewport(), Qt::LeftButton, {}, Cell(3, 6).center() + QPoint(0, 60));
  EXPECT_EQ(Log(), "AfterEdit=ab");
  EXPECT_TRUE(Table().hasFocus());
}

TEST_F(GridInWindow, DoubleClicksBoxesAndButtonsReachTheirCells) {
  ClickCell(2, 6);
  QTest::mouseDClick(Table().viewport(), Qt::LeftButton, {}, Cell(2, 6).center());
  EXPECT_TRUE(Rows().Editing());
  Key(Qt::Key_Return);
  ClickCell(1, 4);
  Key(Qt::Key_Space);
  EXPECT_EQ(Rows().Cell(1, 4), "0") << "ticked and cleared again";
  EXPECT_EQ(Table().model()->index(1, 4).data(Qt::CheckStateRole), Qt::Checked);
  Log();
  ClickHelper(1, 5);
  EXPECT_EQ(Log(), "LeaveCell RowColChange EnterCell CellButtonClick") << "a cell button is no click";
}

TEST_F(GridInWindow, ManyRowsAreCaughtUpWithInOneStep) {
  int steps = 0;
  QObject::connect(Table().model(), &QAbstractItemModel::rowsInserted, &Table(), [&] { ++steps; });
  for (int row = 0; row < 5000; ++row) Rows().AddItem("\tItem " + std::to_string(row));
  Settle();
  EXPECT_EQ(Table().model()->rowCount(), 5003);
  EXPECT_EQ(steps, 1);
  EXPECT_GT(Rows().VisibleRows(), 3);

  Rows().SetRow(4000);
  Settle();
  EXPECT_EQ(Table().verticalScrollBar()->value(), Rows().TopRow() - 1);
  EXPECT_TRUE(Table().viewport()->rect().contains(Cell(4000, 1)));
  Table().verticalScrollBar()->setValue(99);
  EXPECT_EQ(Rows().TopRow(), 100);
  Rows().SetRows(2);
  Settle();
  EXPECT_EQ(Table().model()->rowCount(), 1);
}

TEST_F(GridInWindow, ColumnsTakeWidthHeadingAndAlignmentFromTheModel) {
  Rows().SetColWidth(6, 0);
  Rows().SetCell(0, 1, "Article");
  Settle();
  EXPECT_TRUE(Table().isColumnHidden(6));
  EXPECT_EQ(Table().model()->headerData(1, Qt::Horizontal, Qt::DisplayRole), "Article");
  EXPECT_GE(Table().columnWidth(1), 1300 / 15);
  const auto alignment = Table().model()->index(0, 3).data(Qt::TextAlignmentRole).value<Qt::Alignment>();
  EXPECT_TRUE(alignment.testFlag(Qt::AlignRight));
  const int last = Table().columnViewportPosition(5) + Table().columnWidth(5);
  EXPECT_EQ(last, Table().viewport()->width()) << "the last column shown takes the rest";
}

class NamesForm : public Form {
 public:
  static constexpr const char* kName = "NamesForm";
  explicit NamesForm(Program& owner) : Form(owner, kName, {.caption = "Names"}) {
    SetLayout(layout::Stretch(Names));
    Names.SetFormatString("|Name|Phone");
    const Twips widths[] = {0, 2000, 1200};
    for (int col = 0; col < 3; ++col) Names.SetColWidth(col, widths[col]);
    for (const auto* name : {"Adams", "Mills", "Möss", "Moore", "van Acker", "van Dam"}) {
      Names.AddItem("7\t" + std::string(name) + (name == std::string("Adams") ? "\t666" : "\t555"));
    }
    Names.Click = [this] { clicked.push_back(Names.Cell(Names.Row(), 1)); };
  }
  Grid Names{*this, "Names", GridKind::List};
  std::vector<std::string> clicked;
};

TEST_F(GridInWindow, LettersLookForARowOfAList) {
  program.screens.Add<NamesForm>();
  program.screens.Show(NamesForm::kName);
  auto& form = program.screens.Touch<NamesForm>();
  ASSERT_TRUE(QTest::qWaitForWindowActive(desktop.WindowOf(form)));
  form.Names.SetCol(2);
  Type("mo");
  const int together = QApplication::keyboardInputInterval();
  QApplication::setKeyboardInputInterval(0);
  for (const char* letter : {"m", "6", "v"}) {
    QTest::qWait(2);  // each measures again
    Type(letter);
  }
  QApplication::setKeyboardInputInterval(together);
  Type("an d");
  EXPECT_THAT(form.clicked, testing::ElementsAre("Mills", "Möss", "Moore", "Adams", "van Acker", "van Dam"));
  EXPECT_EQ(form.Names.Col(), 2);
}

TEST_F(GridInWindow, EnterIsRefusedWhileNoRowMatchesTheWordTyped) {
  program.screens.Add<NamesForm>();
  program.screens.Show(NamesForm::kName);
  auto& form = program.screens.Touch<NamesForm>();
  ASSERT_TRUE(QTest::qWaitForWindowActive(desktop.WindowOf(form)));
  int enters = 0;
  form.Names.KeyPress = [&](int code) { enters += code == static_cast<int>(norvane::Key::Enter); };
  Type("dax");
  EXPECT_EQ(form.Names.Cell(form.Names.Row(), 1), "van Dam") << "the last row that matched, by a later word";
  Key(Qt::Key_Return);
  EXPECT_EQ(enters, 0);
  Key(Qt::Key_Backspace);
  Key(Qt::Key_Return);
  EXPECT_EQ(enters, 1);
}

TEST_F(GridInWindow, ColumnsStayWhileTheUserWorksInTheGrid) {
  ClickCell(2, 6);
  const int before = Table().columnWidth(1);
  Type("A note much longer than its narrow cell");
  const auto* field = qobject_cast<QLineEdit*>(QApplication::focusWidget());
  EXPECT_GT(field->width(), Table().columnWidth(6));
  EXPECT_TRUE(Table().viewport()->rect().contains(field->geometry()));
  Rows().AddItem("\tA much longer name than before");
  Settle();
  EXPECT_EQ(Table().columnWidth(1), before);
}

TEST_F(GridInWindow, DatesAndSumsAreQuickToEnter) {
  Rows().SetColDataType(1, ColumnType::Date);
  Rows().SetColDataType(6, ColumnType::Number);
  Rows().SetCell(2, 6, "8");
  ClickCell(2, 1);
  Rows().SetCell(2, 1, "11/30/2026");
  Type("++-");
  Key(Qt::Key_Return);
  EXPECT_EQ(Rows().Cell(2, 1), "12/1/2026");
  ClickCell(3, 1);
  Key(Qt::Key_Apostrophe, Qt::ControlModifier);
  Key(Qt::Key_Return);
  EXPECT_EQ(Rows().Cell(3, 1), "12/1/2026") << "the cell above";
  ClickCell(2, 6);
  Type("x+1x0");
  Key(Qt::Key_Return);
  EXPECT_EQ(Rows().Cell(2, 6), "18") << "added to what was there, without the letters";
  ClickCell(1, 3);
  Type("12*3.50");
  Key(Qt::Key_Tab);
  EXPECT_EQ(Rows().Cell(1, 3), "42");
}

TEST(CellTexts, TellFiguresFromDatesUnderTheRegionsSettings) {
  RegionalSettings sweden;
  sweden.currencySymbol = "kr";
  sweden.currencyThousandsSeparator = "\u00A0";
  sweden.currencyDecimalPoint = ",";
  sweden.positiveCurrency = "%n %s";
  const CellTexts home{RegionalSettings()};
  const CellTexts abroad(sweden);
  EXPECT_EQ(abroad.Sample(ColumnType::Currency), QString("0\u00A0000,00 kr"));
  for (const char* amount : {"-12\u00A0339,08 kr", "9,59 kr", "0,5"}) {
    EXPECT_TRUE(abroad.IsFigure(amount) && abroad.IsExact(amount)) << amount;
  }
  for (const char* amount : {"$1,234.50", "($1,234.50)", "-£9.59", "￥ -12,339.08"}) {
    EXPECT_TRUE(home.IsFigure(amount) && home.IsExact(amount)) << amount;
  }
  for (const char* date : {"17.04.2026", "2026. 04. 17", "2026-04-17", "4/17/2026"}) {
    EXPECT_TRUE(!home.IsFigure(date) && home.IsExact(date)) << date;
  }
  EXPECT_TRUE(home.IsFigure("1042") && !home.IsExact("1042"));
  for (const char* word : {"1 year", "555 kr", "", "12 mm"}) EXPECT_FALSE(home.IsFigure(word)) << word;
}

}  // namespace
}  // namespace norvane::ui
