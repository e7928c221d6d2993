#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QTableView>
#include <QTest>

#include "app/Composition.h"
#include "forms/Program.h"
#include "screens/registry/GL.h"
#include "screens/sales/PaymentDate.h"
#include "support/Database.h"
#include "tour/TourDesktop.h"
#include "ui/FormWindow.h"
#include "ui/GridCellPainter.h"

namespace norvane {
namespace {

/// The registry in its window, with two entries of November 2026.
class RegistryInWindow : public testing::Test {
 protected:
  RegistryInWindow() {
    database.Execute(
        "INSERT INTO tb_Client (CustNum, Lname, Discount) VALUES (1001, 'Abbot', 0);"
        "INSERT INTO tb_Vendor (VendorNum, Company, Discount) VALUES (1001, 'Acme', 0), (1002, 'Bolt', 0);"
        "INSERT INTO tb_GL (TransNum, Date, CheckNum, Vendor, Category, Payment, Deposit, Cleared) VALUES "
        "(1, 46327, '1', 'Acme', 'Rent', 10000, 0, 0), (2, 46328, '2', 'Acme', 'Rent', 20000, 0, 0)");
    Compose(program);
    program.Start(screen::kCustomer);
    program.screens.Show(screen::kGL);
    Settle();
  }

  static void Settle() {
    for (int i = 0; i < 3; ++i) QApplication::processEvents();
  }
  Grid& List() { return program.screens.Touch<GL>().PaymentList; }
  QTableView& Table() { return dynamic_cast<QTableView&>(*desktop.WindowOf(List().Parent())->WidgetOf(List())); }
  QRect Cell(int row, int col) { return Table().visualRect(Table().model()->index(row - 1, col)); }
  void Click(QPoint place) {
    QTest::mouseClick(Table().viewport(), Qt::LeftButton, {}, place);
    Settle();
  }
  void ClickCell(int row, int col) { Click(Cell(row, col).center()); }
  void ClickHelper(int row, int col) { Click(ui::GridCellPainter::HelperRect(Cell(row, col)).center()); }
  void Choose(int row, int col, std::initializer_list<Qt::Key> keys) {
    ClickCell(row, col);  // the current cell alone shows its helper
    ClickHelper(row, col);
    auto* list = Table().viewport()->findChild<QComboBox*>();
    ASSERT_TRUE(list && list->view()->isVisible());
    for (const Qt::Key key : keys) QTest::keyClick(list->view(), key);
    Settle();
  }
  PaymentDate* Calendar() { return program.screens.Find<PaymentDate>(); }
  std::string Stored(const std::string& column, int key) {
    return database.Cell("SELECT " + column + " FROM tb_GL WHERE TransNum = " + std::to_string(key));
  }

  test::Database database;
  tour::TourDesktop desktop{ui::Theme::Light, Date(46348)};
  Program program{desktop, {}, database.Folder()};
};

TEST_F(RegistryInWindow, StaysInUseUnderItsCalendar) {
  ClickCell(1, GL::kDate);
  ClickHelper(1, GL::kDate);
  ASSERT_TRUE(Calendar());
  Choose(2, GL::kVendor, {Qt::Key_Down, Qt::Key_Return});
  ClickCell(2, GL::kCleared);
  ClickCell(1, GL::kNum);
  EXPECT_EQ(Stored("Vendor || Cleared", 2), "Bolt-1");
  ASSERT_TRUE(Calendar()) << "it isn't modal";

  // The day goes to the row that the cursor is in now, and is stored as the row is left.
  Calendar()->PayDate.UserClick(Date(46340));
  Settle();
  EXPECT_FALSE(Calendar());
  EXPECT_TRUE(Table().hasFocus());
  ClickCell(2, GL::kNum);
  EXPECT_EQ(Stored("Date", 1), "46340");

  // Left open, it outlives the registry, and a day picked then changes no entry.
  ClickCell(2, GL::kDate);
  ClickHelper(2, GL::kDate);
  ASSERT_TRUE(Calendar());
  desktop.WindowOf(List().Parent())->close();
  Settle();
  if (Calendar()) Calendar()->PayDate.UserClick(Date(46345));
  Settle();
  EXPECT_EQ(Stored("Date", 2), "46328");
  EXPECT_THAT(desktop.boxes, testing::IsEmpty());
}

}  // namespace
}  // namespace norvane
