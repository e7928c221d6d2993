#include "GridForm.h"

namespace norvane::test {
namespace {

/// A table without a cursor's events: what rows, columns and cells hold, and where the cursor is taken silently.
class GridTest : public GridFormTest {
 protected:
  std::string Row(int row) {
    std::string text;
    for (int col = 0; col < grid().Cols(); ++col) text += (col ? "|" : "") + grid().Cell(row, col);
    return text;
  }
};

TEST_F(GridTest, ANewGridHasItsHeadingAloneAndTheFormatGivesColumns) {
  Grid& fresh = form().fresh;
  EXPECT_EQ(fresh.Rows(), 1);
  EXPECT_EQ(std::pair(fresh.Row(), fresh.Col()), std::pair(0, 1));
  EXPECT_EQ(list().Col(), 0);
  fresh.SetRows(3);
  EXPECT_EQ(fresh.Row(), 1) << "the cursor is on the first data row when there is one";

  EXPECT_EQ(Row(0), "|Key|Name|Price");
  EXPECT_EQ(grid().Alignment(0), ColumnAlignment::Centre);
  EXPECT_EQ(grid().Alignment(2), ColumnAlignment::General);
  EXPECT_EQ(grid().Alignment(3), ColumnAlignment::Right);
  grid().SetFormatString("<A|B");
  EXPECT_EQ(grid().Alignment(0), ColumnAlignment::Left);
  EXPECT_EQ(Row(1), "|1");
  grid().SetCols(4);
  EXPECT_EQ(Row(1), "|1||") << "columns cut off are gone";
}

TEST_F(GridTest, RowsComeAndGo) {
  grid().AddItem("\t9\tWasher\t$9.00\tbeyond", 2);
  EXPECT_EQ(Row(2), "|9|Washer|$9.00");
  EXPECT_EQ(Row(3), "|2|Nut|$2.00");
  grid().RemoveItem(1);
  EXPECT_EQ(Row(1), "|9|Washer|$9.00");
  grid().SetRows(6);
  EXPECT_EQ(Row(5), "|||");
  grid().SetCell(5, 3, "a\tb");
  EXPECT_EQ(Row(5), "|||a b");
  grid().Clear();
  EXPECT_EQ(grid().Rows(), 6);
  EXPECT_EQ(Row(0), "|||");
  EXPECT_EQ(grid().ColWidth(1), 0);
  EXPECT_EQ(std::pair(grid().Row(), grid().Col()), std::pair(1, 2));
  EXPECT_THAT(log, IsEmpty());
}

TEST_F(GridTest, TheGridTakesItsCursorAlongSilently) {
  grid().SetRow(3);
  Taken();
  grid().AddItem("\t0\tabove\t", 1);
  EXPECT_EQ(grid().Row(), 3);
  grid().RemoveItem(3);
  EXPECT_EQ(grid().Row(), 3);
  grid().RemoveItem(3);
  EXPECT_EQ(grid().Row(), 2) << "the last one";
  grid().SetRows(1);
  EXPECT_EQ(grid().Row(), 0);
  grid().SetRows(2);
  EXPECT_EQ(grid().Row(), 1);
  EXPECT_THAT(log, IsEmpty());
  grid().SetRow(0);
  grid().AddItem("");
  EXPECT_EQ(grid().Row(), 0) << "put there by code, it stays";
}

TEST_F(GridTest, WhatIsOutsideIsRefused) {
  Grid& g = grid();
  const std::vector<std::function<void()>> refused = {
      [&] { g.Cell(4, 0); },          [&] { g.Cell(0, 4); },     [&] { g.SetCell(-1, 0, ""); },
      [&] { g.SetRow(4); },           [&] { g.SetRow(-1); },     [&] { g.SetCol(4); },
      [&] { g.RemoveItem(4); },       [&] { g.RemoveItem(0); },  [&] { g.AddItem("", 5); },
      [&] { g.SetColWidth(4, 100); }, [&] { g.AddItem("", 0); }, [&] { g.SetRows(0); },
  };
  for (std::size_t i = 0; i < refused.size(); ++i) EXPECT_EQ(NumberOf(refused[i]), 381) << i;
  EXPECT_EQ(g.Rows(), 4);
}

TEST_F(GridTest, AColumnsHelpersAndWhatItsCellsHoldAndShow) {
  Grid& g = grid();
  g.SetColDataType(3, ColumnType::Boolean);
  g.AddItem("\t4\tNail\tTrue");
  g.SetCell(1, 3, "False");
  g.SetCell(2, 3, "");
  EXPECT_EQ(g.Cell(4, 3) + "|" + g.Cell(1, 3) + "|" + g.Cell(2, 3) + "|" + g.Cell(0, 3), "-1|0||Price");

  g.SetColComboList(2, "#3;Cash|#4;Visa; gold");
  EXPECT_EQ(g.Helper(2), CellHelper::KeyedDropDown);
  EXPECT_THAT(g.DropDownItems(2), ElementsAre("Cash", "Visa; gold"));
  g.SetCell(2, 2, "4");
  EXPECT_EQ(g.DisplayText(2, 2), "4") << "a text that looks like a key";

  g.SetColComboList(2, "...");
  EXPECT_EQ(g.Helper(2), CellHelper::Button);
  g.SetColComboList(2, "#1 Plumbing|Acme");
  EXPECT_EQ(g.Helper(2), CellHelper::DropDown);
  EXPECT_THAT(g.DropDownItems(2), ElementsAre("#1 Plumbing", "Acme"));
  g.SetColComboList(2, "");
  EXPECT_EQ(g.Helper(2), CellHelper::None);
}

TEST_F(GridTest, ScrollsTheCursorIntoViewAndClampsTheTop) {
  Grid& g = grid();
  g.SetVisibleRows(5);
  g.SetRows(21);
  g.SetRow(5);
  EXPECT_EQ(g.TopRow(), 1);
  g.SetRow(20);
  EXPECT_EQ(g.TopRow(), 16);
  g.SetRow(18);
  EXPECT_EQ(g.TopRow(), 16);
  g.SetRow(3);
  EXPECT_EQ(g.TopRow(), 3);
  g.SetTopRow(99);
  EXPECT_EQ(g.TopRow(), 16) << "the last page is full";
  g.UserText("x");
  EXPECT_EQ(g.TopRow(), 3) << "what is typed shows";
  g.CancelEdit();
  g.SetTopRow(-5);
  EXPECT_EQ(g.TopRow(), 1);
  g.SetTopRow(15);
  g.SetRows(8);
  EXPECT_EQ(g.TopRow(), 3);
  g.SetVisibleRows(20);
  EXPECT_EQ(g.TopRow(), 1) << "a taller window shows them all";
}

}  // namespace
}  // namespace norvane::test
