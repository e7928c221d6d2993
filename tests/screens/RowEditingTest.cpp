#include <map>
#include <sstream>

#include "Office.h"
#include "screens/RowEditing.h"

namespace norvane::test {
namespace {

enum Column { kMarker, kKey, kText, kAmount };

/// A row-editing screen without a table, over the rows "1 a 10" to "3 c 30" and an empty one. A row is complete once it
/// has a text; its routines read the amount as a number, and amounts above 99 can't be stored.
class Rows : public Form, private Reporter {
 public:
  Rows(Program& host, RowEditingRules rules, std::string& log)
      : Form(host, "Rows", {.caption = "Rows"}),
        scheme(List, globals, *this, std::move(rules), [this](std::int32_t row) { StoreRow(row); }),
        log_(log) {
    SetLayout(layout::Column({List, Beside}));
    List.SetFormatString("^|Key|Text|>Amount");
    for (const char* row : {"\t1\ta\t10", "\t2\tb\t20", "\t3\tc\t30", ""}) List.AddItem(row);
    List.AfterEdit = [this](int row, int) {
      scheme.AfterEdit(row, [&] { return convert.ToLong(List.Cell(row, kAmount)) >= 0; });
    };
  }
  using Form::globals;
  Grid List{*this, "List", GridKind::Editable};
  TextBox Beside{*this, "Beside"};
  RowEditing scheme;

 private:
  /// Notes the row, and how the row entered is marked meanwhile. Then it goes on to the last row, as the registry does.
  void StoreRow(std::int32_t row) {
    if (List.Cell(row, kText).empty()) return;
    if (convert.ToLong(List.Cell(row, kAmount)) > 99) Raise(ErrorNumber::Overflow);
    log_ += " " + RowText(List, row, kKey) + "(" + List.Cell(scheme.NewRow, kMarker) + ")";
    scheme.OldRow = List.Rows() - 1;
  }
  void Report(const std::string& text) override { log_ += " " + text.substr(0, text.find(' ')); }
  void Form_Unload() override { scheme.Close(); }

  std::string& log_;
};

const std::map<std::string, void (*)(Rows&)> kSteps = {
    {"down", [](Rows& s) { s.List.UserKey(Key::Down); }},
    {"up", [](Rows& s) { s.List.UserKey(Key::Up); }},
    {"leave", [](Rows& s) { s.Beside.SetFocus(); }},
    {"new", [](Rows& s) { s.scheme.GoToNewRow(); }},
    {"remove", [](Rows& s) { s.scheme.RemoveRow(s.List.Row()); }},
    {"stored", [](Rows& s) { s.scheme.MarkStored(s.List.Row()); }},
    {"refill", [](Rows& s) { s.scheme.StartOver(); }},
    {"close", [](Rows& s) { s.Unload(); }},
    {"elsewhere", [](Rows& s) { s.globals.RowChanged = true; }},
    {"small", [](Rows& s) { s.List.SetVisibleRows(1); }},
    {"seven", [](Rows& s) { s.List.SetRows(7), s.List.SetVisibleRows(5), s.List.SetRow(6), s.List.SetTopRow(1); }},
    {"cut", [](Rows& s) { s.List.SetRows(2); }},
};

/// One of the steps above; "2:3" for a click on a cell, "2:3=text" for an edit of it, "2:3~text" for a text put there
/// by the program.
void Do(Rows& screen, const std::string& step) {
  if (const auto named = kSteps.find(step); named != kSteps.end()) return named->second(screen);
  const int row = step.at(0) - '0';
  const int col = step.at(2) - '0';
  const std::string text = step.size() > 4 ? step.substr(4) : "";
  if (step.size() == 3) return screen.List.UserClick(row, col);
  if (step[3] == '~') return screen.List.SetCell(row, col, text);
  if (text.empty()) return Empty(screen.List, row, col);
  Enter(screen.List, row, col, text);
}

/// The markers from row 1 on, "-" for none; the cursor's row/the first row shown; rows stored and errors reported;
/// "waits" for RowChanged.
std::string Outcome(const std::string& steps, RowEditingRules rules) {
  rules.testColumns = {kText};
  rules.labels = {.afterEdit = "edit:", .saveRow = "save:"};
  ScriptedDesktop desktop;
  Program program(desktop, {}, std::filesystem::temp_directory_path());
  std::string log;
  program.screens.AddFactory("Rows", [&](Program& host) { return std::make_shared<Rows>(host, rules, log); });
  const Dispatch dispatch(program);
  auto& screen = static_cast<Rows&>(program.screens.Touch("Rows"));
  screen.Show();
  std::istringstream words(steps);
  for (std::string step; words >> step;) Do(screen, step);
  std::string outcome;
  for (const std::string& marker : ColumnOf(screen.List, kMarker)) outcome += marker.empty() ? "-" : marker;
  outcome += " " + std::to_string(screen.List.Row()) + "/" + std::to_string(screen.List.TopRow()) + log;
  return outcome + (program.globals.RowChanged ? " waits" : "");
}

TEST(RowEditing, StoresWhatWasEditedWhenItIsLeft) {
  struct Case {
    const char* what;
    const char* steps;
    const char* outcome;
    RowEditingRules rules = {};
  };
  const Case cases[] = {
      {"an edit waits", "1:3=11", "?--- 1/1 waits"},
      {"until an arrow key leaves its row", "1:3=11 down", "->-* 2/1 1|a|11(?)"},
      {"where the row entered keeps its marker", "1:3=11 down", "->-* 2/1 1|a|11()", {.marksRowEntered = false}},
      {"or the grid is left", "2:3=21 leave", "->-* 2/1 2|b|21(?)"},
      {"or it is stored at once", "2:3=21", "->-* 2/1 2|b|21(>)", {.storesAtOnce = true}},
      {"no other row is stored", "elsewhere down down leave", "-->- 3/1 waits"},
      {"nor one that the screen stored", "1:3=11 stored down leave", "->-- 2/1"},
      {"a cursor that moved by itself", "3:2 remove remove leave", "-> 2/1"},
      {"a row started", "1:1~0 down", "?>-- 2/1"},
      {"a row named 0", "1:1~0 down", "->-- 2/1", {.zeroMeansStarted = false}},
      {"an incomplete row takes the cursor back", "small 2:2= down", "->-- 2/2"},
      {"and the first row shown", "small 2:2= down", "->-- 2/1", {.scrollsBack = true}},
      {"while another is stored", "1:2~ 3:3=31 2:2", ">--- 1/1 3|c|31(>)"},
      {"the empty row is used again", "new new", "---* 4/1"},
      {"with the rows above it in sight", "seven new", "-----* 6/2"},
      {"or not", "seven new", "-----* 6/1", {.scrollsToNewRow = false}},

      {"an unreadable row is reported and not stored", "1:3=100 down", "?>-- 2/1 save:6 waits"},
      {"once, and not as it is entered", "1:3=100 down up down leave", "?>-- 2/1 save:6 waits"},
      {"again with other texts", "1:3=100 down 1:3=101 leave", "?--- 1/1 save:6 save:6 waits"},
      {"again after it was stored", "1:3=100 down 1:3=1 down 1:3=100 down", "?>-* 2/1 save:6 1|a|1(?) save:6 waits"},
      {"an edit that can't be read stores nothing", "1:3=x down", "->-- 2/1 edit:13"},
      {"and is reported when it is typed again", "1:3=x 1:3=1 1:3=x", "?--- 1/1 edit:13 edit:13 waits"},
      {"but not as its row is left", "1:2=A 1:3=x down leave", "?>-- 2/1 edit:13 waits"},
      {"several wait each for itself", "1:3=100 2:3=200 3:2 1:3=1 down", "-?-* 2/1 save:6 save:6 1|a|1(?) waits"},
      {"are tried again when the grid is left", "1:3=100 2:3=200 3:2 1:3~1 2:3~2 leave",
       "-->- 3/1 save:6 save:6 1|a|1(>) 2|b|2(>)"},
      {"and when the screen closes", "1:3=100 2:3=200 leave 1:3~1 close", "-?-- 2/1 save:6 save:6 1|a|1(?)"},
      {"follow their rows", "3:3=100 1:2 remove 2:3~3 leave", ">-- 1/1 save:6 3|c|3()"},
      {"go with them", "2:3=200 1:2 2:2 remove leave", "->- 2/1 save:6"},
      {"or where rows are cut off", "3:3=31 cut leave", "> 1/1 waits"},
      {"and with a new list", "1:3=100 down refill 1:3~1 leave", "?>-- 2/1 save:6"},
  };
  for (const Case& c : cases) EXPECT_EQ(Outcome(c.steps, c.rules), c.outcome) << c.what << ": " << c.steps;
}

}  // namespace
}  // namespace norvane::test
