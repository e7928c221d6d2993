#pragma once

#include "TestForms.h"

namespace norvane::test {

/// A form with a grid of each kind that writes down every event, with the cursor as "row,col" behind it.
class GridForm : public Form {
 public:
  GridForm(Program& program_, Log& log_) : Form(program_, "GridForm", {.width = 8000, .height = 6000}), log(log_) {
    Wire(grid);
    Wire(list);
    other.GotFocus = [this] { log.push_back("other.GotFocus"); };
    ok.Click = [this] { log.push_back("ok.Click"); };
    SetLayout(layout::Column({grid, list, other, ok}));
  }

  Grid grid{*this, "grid", GridKind::Editable};
  Grid list{*this, "list", GridKind::List};
  Grid fresh{*this, "fresh", GridKind::Editable};
  TextBox other{*this, "other"};
  Button ok{*this, "ok", {.caption = "OK", .isDefault = true}};
  Log& log;

  /// Writes down the event of that name, then does what the test wants done in it.
  void Note(const std::string& event) {
    log.push_back(event);
    const auto found = reactions.find(event.substr(0, event.find(' ')));
    if (found == reactions.end()) return;
    const auto reaction = found->second;
    reaction();
  }
  std::map<std::string, std::function<void()>> reactions;  ///< by the event's name

 private:
  static std::string At(int row, int col) { return " " + std::to_string(row) + "," + std::to_string(col); }
  void Wire(Grid& g) {
    const auto note = [this, &g](std::string event) {
      return [this, &g, event] { Note(event + At(g.Row(), g.Col())); };
    };
    g.GotFocus = note("GotFocus");
    g.LostFocus = note("LostFocus");
    g.LeaveCell = note("LeaveCell");
    g.RowColChange = note("RowColChange");
    g.EnterCell = note("EnterCell");
    g.Click = note("Click");
    g.DblClick = note("DblClick");
    g.BeforeEdit = [this](int row, int col) { Note("BeforeEdit" + At(row, col)); };
    g.AfterEdit = [this](int row, int col) { Note("AfterEdit" + At(row, col)); };
    g.CellButtonClick = [this](int row, int col) { Note("CellButtonClick" + At(row, col)); };
    g.KeyDown = [this](int key) { Note("KeyDown " + std::to_string(key)); };
    g.KeyPress = [this](int key) { Note("KeyPress " + std::to_string(key)); };
  }
};

/// A shown grid of three rows: a marker, a hidden key, a name, a price.
class GridFormTest : public FormsTest {
 protected:
  void SetUp() override {
    program.screens.AddFactory("GridForm",
                               [this](Program& program_) { return std::make_shared<GridForm>(program_, log); });
    program.screens.Show("GridForm");
    Grid& g = grid();
    g.SetFormatString("^|Key|Name|>Price");
    g.SetColWidth(1, 0);
    g.AddItem("\t1\tBolt\t$1.00");
    g.AddItem("\t2\tNut\t$2.00");
    g.AddItem("\t3\tScrew\t$3.00");
    g.SetCol(2);
    Taken();
  }
  GridForm& form() { return static_cast<GridForm&>(program.screens.Touch("GridForm")); }
  Grid& grid() { return form().grid; }
  Grid& list() { return form().list; }
  void On(const std::string& event, std::function<void()> reaction) { form().reactions[event] = std::move(reaction); }
};

}  // namespace norvane::test
