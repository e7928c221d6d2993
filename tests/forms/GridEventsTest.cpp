#include "GridForm.h"

namespace norvane::test {
namespace {

class GridEventsTest : public GridFormTest {};

TEST_F(GridEventsTest, WritingTheCursorRaisesThreeEvents) {
  grid().SetRow(2);
  EXPECT_THAT(Taken(), ElementsAre("LeaveCell 1,2", "RowColChange 2,2", "EnterCell 2,2"));
  grid().SetCol(3);
  EXPECT_THAT(Taken(), ElementsAre("LeaveCell 2,2", "RowColChange 2,3", "EnterCell 2,3"));
  grid().SetRow(2);
  grid().SetCol(3);
  EXPECT_THAT(Taken(), IsEmpty());
  form().Hide();
  grid().SetRow(0);
  EXPECT_EQ(Taken().back(), "EnterCell 0,3") << "in a hidden form as well";
}

TEST_F(GridEventsTest, EventsNestWhenAHandlerSendsTheCursorBack) {
  bool sent = false;
  On("RowColChange", [&] {
    if (std::exchange(sent, true)) return;
    grid().SetRow(2);
    log.push_back("the handler goes on");
  });
  grid().SetRow(3);
  EXPECT_THAT(log, ElementsAre("LeaveCell 1,2", "RowColChange 3,2", "LeaveCell 3,2", "RowColChange 2,2",
                               "EnterCell 2,2", "the handler goes on", "EnterCell 2,2"));
  EXPECT_EQ(grid().Row(), 2);
}

TEST_F(GridEventsTest, AMoveIsDroppedIfItsRowGoesMeanwhile) {
  On("LeaveCell", [&] { grid().SetRows(2); });
  grid().SetRow(3);
  EXPECT_THAT(log, ElementsAre("LeaveCell 1,2"));
  EXPECT_EQ(grid().Row(), 1);
}

TEST_F(GridEventsTest, AClickBringsFocusCursorAndClickInOrder) {
  form().other.SetFocus();
  Taken();
  grid().UserClick(3, 3);
  EXPECT_THAT(Taken(), ElementsAre("GotFocus 1,2", "LeaveCell 1,2", "RowColChange 3,3", "EnterCell 3,3", "Click 3,3"));
  grid().UserDoubleClick(3, 3);
  EXPECT_THAT(Taken(), ElementsAre("DblClick 3,3", "BeforeEdit 3,3"));
  grid().CancelEdit();
  grid().UserClick(0, 2);
  grid().UserDoubleClick(0, 2);
  EXPECT_THAT(Taken(), IsEmpty()) << "the heading raises none";
  grid().UserClick(2, 0);
  EXPECT_THAT(Taken(), ElementsAre("LeaveCell 3,3", "RowColChange 2,3", "EnterCell 2,3", "Click 2,3"))
      << "the marker keeps the column";
  EXPECT_FALSE(grid().Editing());
}

TEST_F(GridEventsTest, ADoubleClickEditsOnlyTheCellThatIsStillCurrent) {
  On("DblClick", [&] { grid().SetRow(1); });
  DoubleClick(grid(), 3, 3);
  EXPECT_FALSE(grid().Editing());
  On("DblClick", [&] { form().other.SetFocus(); });
  DoubleClick(grid(), 3, 3);
  EXPECT_FALSE(grid().Editing());
  On("DblClick", [&] { form().Unload(); });
  DoubleClick(grid(), 3, 3);
  EXPECT_EQ(program.screens.Find("GridForm"), nullptr);
}

TEST_F(GridEventsTest, ArrowsMoveAndARowsMoveEndsWithClick) {
  grid().UserKey(Key::Down);
  EXPECT_THAT(Taken(), ElementsAre("KeyDown 40", "LeaveCell 1,2", "RowColChange 2,2", "EnterCell 2,2", "Click 2,2"));
  grid().UserKey(Key::Right);
  EXPECT_THAT(Taken(), ElementsAre("KeyDown 39", "LeaveCell 2,2", "RowColChange 2,3", "EnterCell 2,3"));
  grid().UserKey(Key::Right);
  EXPECT_THAT(Taken(), ElementsAre("KeyDown 39"));
  grid().UserKey(Key::Left);
  grid().UserKey(Key::Left);
  EXPECT_EQ(grid().Col(), 2) << "neither the hidden column nor the marker";
  for (int i = 0; i < 5; ++i) grid().UserKey(Key::Up);
  EXPECT_EQ(grid().Row(), 1);
}

TEST_F(GridEventsTest, PagesHomeAndEnd) {
  const auto press = [&](Grid& g, Key key, bool control = false) {
    g.UserKey(key, {.control = control});
    return std::pair(g.Row(), g.Col());
  };
  using Cell = std::pair<int, int>;
  grid().SetRows(31);
  grid().SetVisibleRows(10);
  EXPECT_EQ(press(grid(), Key::PageDown), Cell(11, 2));
  EXPECT_EQ(press(grid(), Key::PageUp), Cell(1, 2));
  EXPECT_EQ(press(grid(), Key::End), Cell(1, 3));
  EXPECT_EQ(press(grid(), Key::Home), Cell(1, 2));
  EXPECT_EQ(press(grid(), Key::End, true), Cell(30, 2));
  EXPECT_EQ(press(grid(), Key::PageDown), Cell(30, 2));
  EXPECT_EQ(press(grid(), Key::Home, true), Cell(1, 2));

  list().SetRows(31);
  EXPECT_EQ(press(list(), Key::End), Cell(30, 0));
  EXPECT_EQ(press(list(), Key::Home), Cell(1, 0));
  list().SetRows(1);
  for (const Key key : {Key::Home, Key::End, Key::Up, Key::Down, Key::PageUp, Key::PageDown}) {
    EXPECT_EQ(press(list(), key), Cell(0, 0));
  }
}

TEST_F(GridEventsTest, EnterIsDeliveredAndMovesNothing) {
  EXPECT_TRUE(grid().UserKey(Key::Enter));
  EXPECT_THAT(Taken(), ElementsAre("KeyDown 13", "KeyPress 13"));
  EXPECT_FALSE(grid().UserKey(Key::Escape)) << "left to the form's cancel button";
  On("KeyDown", [&] { form().Unload(); });
  Taken();
  grid().UserKey(Key::Enter);
  EXPECT_THAT(log, ElementsAre("KeyDown 13")) << "nothing more reaches the unloaded form";
}

TEST_F(GridEventsTest, TabStopsAtCellsThatCanBeEdited) {
  EXPECT_TRUE(grid().UserKey(Key::Tab));
  EXPECT_TRUE(grid().UserKey(Key::Tab));
  EXPECT_EQ(grid().Row(), 2);
  EXPECT_EQ(grid().Col(), 2) << "the first cell behind marker and hidden column";
  EXPECT_EQ(log.back(), "Click 2,2");
  EXPECT_TRUE(grid().UserKey(Key::Tab, {.shift = true}));
  EXPECT_EQ(grid().Row(), 1);
  EXPECT_EQ(grid().Col(), 3);
  EXPECT_FALSE(grid().UserKey(Key::Tab, {.control = true}));
  grid().SetRow(3);
  EXPECT_FALSE(grid().UserKey(Key::Tab)) << "behind the last cell the form goes on";
  grid().SetRow(1);
  grid().SetCol(2);
  EXPECT_FALSE(grid().UserKey(Key::Tab, {.shift = true}));

  list().AddItem("a\tb");
  EXPECT_FALSE(list().UserKey(Key::Tab)) << "a list leaves at once";
}

TEST_F(GridEventsTest, LosingTheFocus) {
  grid().UserClick(2, 2);
  Taken();
  form().other.SetFocus();
  EXPECT_THAT(Taken(), ElementsAre("LeaveCell 2,2", "LostFocus 2,2", "other.GotFocus"));
  grid().SetFocus();
  Type(grid(), "x");
  Taken();
  form().ok.Press();
  EXPECT_THAT(Taken(), ElementsAre("AfterEdit 2,2", "LeaveCell 2,2", "LostFocus 2,2", "ok.Click"));
}

TEST_F(GridEventsTest, TheButtonOfACell) {
  grid().SetColComboList(3, "...");
  form().other.SetFocus();
  Taken();
  grid().PressCellButton(2, 3);
  EXPECT_THAT(Taken(),
              ElementsAre("GotFocus 1,2", "LeaveCell 1,2", "RowColChange 2,3", "EnterCell 2,3", "CellButtonClick 2,3"));
  Enter(grid(), 2, 3, "1/5/24");
  EXPECT_EQ(grid().Cell(2, 3), "1/5/24") << "it can be typed into as well";
  Taken();
  Type(grid(), "x");
  grid().PressCellButton();
  EXPECT_THAT(Taken(), ElementsAre("KeyPress 120", "BeforeEdit 2,3", "AfterEdit 2,3", "CellButtonClick 2,3"));
  grid().UserKey(Key::F4);
  EXPECT_THAT(Taken(), ElementsAre("KeyDown 115", "CellButtonClick 2,3"));
  grid().PressCellButton(2, 2);
  EXPECT_THAT(Taken(), IsEmpty()) << "there is none";
}

}  // namespace
}  // namespace norvane::test
