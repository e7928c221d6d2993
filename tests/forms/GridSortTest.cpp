#include <gmock/gmock.h>

#include "GridForm.h"
#include "forms/ListText.h"
#include "support/Gestures.h"
#include "support/Machines.h"

namespace norvane::test {
namespace {

using ::testing::ElementsAre;

class SortedList : public GridFormTest {
 protected:
  void SetUp() override {
    GridFormTest::SetUp();
    list().SetColumns({{"Key", 0},
                       {"Name", 1000},
                       {">Owed", 1000, ColumnType::Currency, "", true},
                       {"Since", 1000},
                       {">Units", 500}});
    list().AddItem("1\tZola\t$900.00\t11/2/2026\t10");
    list().AddItem("2\tÄrger\t($1,000.00)\t2/11/2026\t9");
    list().AddItem("3\tarm\t\t12/30/2025\t100");
    list().AddItem("4\tAst\t$1,000.50\t1/1/2027\t-1");
    list().SetRow(2);
    Taken();
  }
  std::vector<std::string> Keys() { return ColumnOf(list(), 0); }
};

TEST_F(SortedList, RowsGoByValueAndTheCursorWithItsRow) {
  list().UserSort(1, kUnitedStates);
  EXPECT_THAT(Keys(), ElementsAre("2", "3", "4", "1"));
  EXPECT_EQ(list().Row(), 1);
  list().UserSort(2, kUnitedStates);
  EXPECT_THAT(Keys(), ElementsAre("3", "2", "1", "4"));
  list().UserSort(2, kUnitedStates);
  EXPECT_THAT(Keys(), ElementsAre("4", "1", "2", "3"));
  EXPECT_EQ(list().Row(), 3);
  list().UserSort(3, kUnitedStates);
  EXPECT_THAT(Keys(), ElementsAre("3", "2", "1", "4"));
  list().UserSort(4, kUnitedStates);
  EXPECT_THAT(Keys(), ElementsAre("4", "2", "1", "3"));
  EXPECT_THAT(Taken(), ElementsAre());
  // What is added later is put in its place, with the cursor where it was.
  list().AddItem("5\tNew\t$1.00\t1/1/2026\t50");
  list().KeepSorted(kUnitedStates);
  EXPECT_THAT(Keys(), ElementsAre("4", "2", "1", "5", "3"));
  EXPECT_EQ(list().Cell(list().Row(), 0), "2");
  // What is edited in place keeps its order: rows are stored by their place.
  grid().UserSort(2, kUnitedStates);
  EXPECT_FALSE(grid().SortedBy());
}

TEST_F(SortedList, MarksStayOnTheirRowsAndEndWithAMove) {
  list().UserToggleMark(4);
  EXPECT_EQ(list().Row(), 4);
  list().UserSort(1, kUnitedStates);
  EXPECT_THAT(list().MarkedRows(), ElementsAre(1, 3));
  EXPECT_EQ(TabbedText(list(), list().MarkedRows()),
            "Ärger\t($1,000.00)\t2/11/2026\t9\nAst\t$1,000.50\t1/1/2027\t-1\n");
  EXPECT_EQ(SummaryText(list(), kUnitedStates), "4 rows, Owed $900.50      2 marked, Owed $0.50");
  list().UserKey(Key::Up, {.shift = true});
  list().UserKey(Key::Up, {.shift = true});
  EXPECT_THAT(list().MarkedRows(), ElementsAre(1, 2, 3));
  list().UserMarkTo(4);
  EXPECT_THAT(list().MarkedRows(), ElementsAre(3, 4));
  list().UserContext(3, 1);
  EXPECT_EQ(list().Row(), 4) << "The menu of marked rows leaves them marked";
  list().UserClick(4, 1);
  EXPECT_THAT(list().MarkedRows(), ElementsAre(4));
  list().UserMarkAll();
  list().RemoveItem(1);
  EXPECT_THAT(list().MarkedRows(), ElementsAre(3));
}

TEST_F(SortedList, ASpreadsheetReadsItsFile) {
  list().SetCell(1, 1, "=cmd()");
  EXPECT_EQ(
      CsvText(list(), kUnitedStates),
      "Name,Owed,Since,Units\r\n'=cmd(),900,2026-11-02,10\r\nÄrger,-1000,2026-02-11,9\r\narm,\"\",2025-12-30,100\r\n"
      "Ast,1000.5,2027-01-01,-1\r\n");
}

}  // namespace
}  // namespace norvane::test
