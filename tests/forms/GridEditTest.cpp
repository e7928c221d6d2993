#include "GridForm.h"

namespace norvane::test {
namespace {

class GridEditTest : public GridFormTest {};

TEST_F(GridEditTest, TypingBeginsAnEditAndEnterEndsIt) {
  grid().UserText("N");
  EXPECT_THAT(Taken(), ElementsAre("KeyPress 78", "BeforeEdit 1,2"));
  Type(grid(), "ail");
  EXPECT_EQ(grid().EditText(), "Nail");
  EXPECT_EQ(grid().Cell(1, 2), "Bolt") << "not before the end of the edit";
  On("AfterEdit", [&] { log.push_back(grid().Cell(1, 2)); });
  EXPECT_TRUE(grid().UserKey(Key::Enter));
  EXPECT_THAT(Taken(), ElementsAre("AfterEdit 1,2", "Nail"));
  EXPECT_EQ(grid().Row(), 1);
  EXPECT_FALSE(grid().Editing());
}

TEST_F(GridEditTest, EscapeAndAnUnchangedContentRaiseNothing) {
  Type(grid(), "Nail");
  EXPECT_TRUE(grid().UserKey(Key::Escape));
  EXPECT_EQ(grid().Cell(1, 2), "Bolt");
  grid().UserKey(Key::F2);
  grid().SetEditText("Nail");
  grid().SetEditText("Bolt");
  Taken();
  grid().CommitEdit();
  EXPECT_THAT(Taken(), IsEmpty());
}

TEST_F(GridEditTest, KeysThatEndAnEditAndMove) {
  struct Case {
    Key key;
    bool byTyping;
    bool used;
    std::pair<int, int> cell;
  };
  const std::vector<Case> cases = {
      {Key::Up, true, true, {1, 2}},    {Key::Down, true, true, {3, 2}},  {Key::Tab, true, true, {2, 3}},
      {Key::Right, true, true, {2, 3}}, {Key::Left, true, true, {2, 2}},  {Key::Down, false, true, {3, 2}},
      {Key::Tab, false, true, {2, 3}},  {Key::Home, true, false, {2, 2}}, {Key::Right, false, false, {2, 2}},
  };
  for (const Case& c : cases) {
    grid().CancelEdit();
    grid().SetCol(2);
    grid().SetRow(2);
    grid().SetCell(2, 2, "Nut");
    ASSERT_TRUE(grid().BeginEdit(c.byTyping ? Grid::BeginBy::Typing : Grid::BeginBy::Command));
    grid().SetEditText("Nail");
    const int key = static_cast<int>(c.key);
    EXPECT_EQ(grid().UserKey(c.key), c.used) << key;
    EXPECT_EQ(std::pair(grid().Row(), grid().Col()), c.cell) << key;
    EXPECT_EQ(grid().Editing(), !c.used) << key;
    EXPECT_EQ(grid().Cell(2, 2), c.used ? "Nail" : "Nut") << key;
  }
}

TEST_F(GridEditTest, AnArrowOrAClickElsewhereEndsTheEditBeforeItMoves) {
  Type(grid(), "x");
  Taken();
  grid().UserKey(Key::Down);
  EXPECT_THAT(Taken(), ElementsAre("AfterEdit 1,2", "LeaveCell 1,2", "RowColChange 2,2", "EnterCell 2,2", "Click 2,2"));
  Type(grid(), "y");
  Taken();
  On("AfterEdit", [&] { grid().AddItem(""); });
  grid().UserClick(3, 2);
  EXPECT_THAT(Taken(), ElementsAre("AfterEdit 2,2", "LeaveCell 2,2", "RowColChange 3,2", "EnterCell 3,2", "Click 3,2"));
  grid().SetRow(4);
  Type(grid(), "z");
  grid().UserKey(Key::Down);
  EXPECT_EQ(grid().Row(), 5) << "to the row that AfterEdit added";
}

TEST_F(GridEditTest, WhereNoEditBegins) {
  const auto refused = [&](int row, int col) {
    grid().SetRow(row);
    grid().SetCol(col);
    return !grid().BeginEdit();
  };
  EXPECT_TRUE(refused(0, 2));
  EXPECT_TRUE(refused(1, 0));
  EXPECT_TRUE(refused(1, 1)) << "hidden";
  grid().SetColEditable(3, false);
  EXPECT_TRUE(refused(1, 3));
  EXPECT_FALSE(refused(1, 2));
  grid().CancelEdit();
  grid().SetEnabled(false);
  EXPECT_TRUE(refused(1, 2));

  list().AddItem("a\tb");
  EXPECT_FALSE(list().BeginEdit());
  list().SetColEditable(1, true);
  list().SetCol(1);
  EXPECT_TRUE(list().BeginEdit()) << "the one column of a list that may be edited";
  list().SetEditText("one\ttwo\r\nthree\nfour");
  form().other.SetFocus();
  list().CommitEdit();
  EXPECT_EQ(list().Cell(1, 1), "one two three four") << "a cell holds one line";
}

TEST_F(GridEditTest, BeforeEditMayPutAnEndToIt) {
  On("BeforeEdit", [&] { grid().SetRow(2); });
  EXPECT_FALSE(grid().BeginEdit());
  On("BeforeEdit", [&] { grid().SetRows(1); });
  EXPECT_FALSE(grid().BeginEdit());
  On("BeforeEdit", [&] { form().Unload(); });
  grid().SetRows(2);
  EXPECT_FALSE(grid().BeginEdit());
}

TEST_F(GridEditTest, TheFormMayGoInTheMiddleOfAnEdit) {
  const Dispatch untilTheEnd(program);
  GridForm& dead = form();
  On("AfterEdit", [&] { dead.Unload(); });
  Type(grid(), "x");
  Taken();
  dead.grid.UserKey(Key::Down);
  EXPECT_THAT(log, ElementsAre("AfterEdit 1,2"));
  EXPECT_EQ(program.screens.Find("GridForm"), nullptr);
}

TEST_F(GridEditTest, RowsThatMoveUnderAnEditDropIt) {
  const std::vector<std::function<void()>> moves = {
      [&] { grid().AddItem("", 1); },
      [&] { grid().RemoveItem(1); },
      [&] { grid().SetRows(1); },
      [&] { grid().Clear(); },
  };
  for (const auto& move : moves) {
    grid().SetRows(4);
    Type(grid(), "x");
    ASSERT_TRUE(grid().Editing());
    Taken();
    move();
    EXPECT_FALSE(grid().Editing());
    EXPECT_THAT(log, IsEmpty());
  }
  grid().SetRows(4);
  Type(grid(), "x");
  grid().AddItem("");
  EXPECT_TRUE(grid().Editing()) << "a row added behind it moves nothing";
}

TEST_F(GridEditTest, AKeyedDropDownHoldsTheKey) {
  Grid& g = grid();
  g.SetColComboList(2, "#3;Cash|#4;Check|#5;Cheese");
  g.PickItem(1);
  EXPECT_THAT(Taken(), ElementsAre("BeforeEdit 1,2", "AfterEdit 1,2"));
  EXPECT_EQ(g.Cell(1, 2), "4");
  g.PickItem(1);
  EXPECT_THAT(Taken(), ElementsAre("BeforeEdit 1,2")) << "nothing changed";
  g.UserKey(Key::F4);
  EXPECT_EQ(g.EditText(), "Check");
  g.SetEditText("no such item");
  g.UserKey(Key::Enter);
  EXPECT_EQ(g.Cell(1, 2), "4");

  g.SetRow(2);
  g.UserKey(Key::Down, {.alt = true});
  EXPECT_EQ(g.EditText(), "Nut") << "what is no key stays unless an item is chosen";
  g.UserKey(Key::Enter);
  EXPECT_EQ(g.Cell(2, 2), "Nut");
  g.SetCell(2, 2, "3");
  EXPECT_EQ(g.DisplayText(2, 2), "3") << "a text that looks like a key";
  Taken();
  g.PickItem(0);
  EXPECT_THAT(Taken(), ElementsAre("BeforeEdit 2,2", "AfterEdit 2,2"));
  EXPECT_EQ(g.Cell(2, 2) + g.DisplayText(2, 2), "3Cash");

  g.SetCell(3, 2, "5");
  g.SetColComboList(2, "#4;Card|#5;Check");
  EXPECT_EQ(g.Cell(1, 2) + g.Cell(2, 2) + g.DisplayText(3, 2), "CheckCash5") << "keys of the old list take their texts";
}

TEST_F(GridEditTest, LettersSearchADropDown) {
  Grid& g = grid();
  g.SetColComboList(2, "Cash|Check|Cheese|Visa");
  Type(g, "chee");
  EXPECT_EQ(g.EditText(), "Cheese");
  Type(g, "v");
  EXPECT_EQ(g.EditText(), "Visa") << "a letter that goes on with nothing starts again";
  Type(g, "q");
  EXPECT_EQ(g.EditText(), "Visa");
  Type(g, "cc");
  EXPECT_EQ(g.EditText(), "Check") << "the same letter leads on";
  Type(g, "v");
  g.UserKey(Key::Down);
  EXPECT_EQ(g.Cell(1, 2), "Visa");
  EXPECT_EQ(g.Row(), 2);
  Type(g, "q");
  g.UserKey(Key::Enter);
  EXPECT_EQ(g.Cell(2, 2), "Nut") << "a list takes only its items";
}

TEST_F(GridEditTest, CheckBoxes) {
  Grid& g = grid();
  g.SetColDataType(3, ColumnType::Boolean);
  g.SetCell(1, 3, "");
  g.UserClick(1, 3);
  EXPECT_THAT(Taken(), ElementsAre("LeaveCell 1,2", "RowColChange 1,3", "EnterCell 1,3", "Click 1,3", "BeforeEdit 1,3",
                                   "AfterEdit 1,3"));
  EXPECT_EQ(g.Cell(1, 3), "-1");
  g.UserKey(Key::Space);
  EXPECT_EQ(g.Cell(1, 3), "0");
  g.UserKey(Key::F2);
  Type(g, "x");
  EXPECT_FALSE(g.Editing());
  On("RowColChange", [&] { g.SetRow(1); });
  g.UserClick(2, 3);
  EXPECT_EQ(g.Cell(1, 3), "0");
  EXPECT_EQ(g.Cell(2, 3), "$2.00") << "the click was on a cell that isn't current any more";
}

}  // namespace
}  // namespace norvane::test
