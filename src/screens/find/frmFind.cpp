#include "screens/find/frmFind.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "core/Characters.h"
#include "core/FileNames.h"
#include "data/FindIndex.h"
#include "screens/find/GoTo.h"

namespace norvane {

namespace {

constexpr double kMostSeconds = 0.012;  // of work at a time, then the user's keys
constexpr double kSecondsInDay = 86400;

/// By FindKind.
constexpr const char* kGroups[] = {"Clients", "Invoices", "Payments", "Inventory", screen::kVendors, "Registry"};
constexpr const char* kHint = "Type a name, number, telephone or amount. All words must match.";

}  // namespace

frmFind::frmFind(Program& host)
    : Form(host, kName, {.caption = "Find Anything", .width = 11400, .height = 7200, .goesWithOwner = true}) {
  using namespace layout;
  SetLayout(
      Column({Fields({Field("&Find:", txtFind)}), Stretch(FoundList), Strip({lblFound, Space(), btnOpen, btnClose})}));
  SetExitButton(btnClose);
  txtFind.Change = [this] { txtFind_Change(); };
  txtFind.KeyDown = [this](int keyCode) { txtFind_KeyDown(keyCode); };
  FoundList.DblClick = [this] { btnOpen_Click(); };
  FoundList.KeyPress = [this](int keyAscii) {
    if (keyAscii == static_cast<int>(Key::Enter)) btnOpen_Click();
  };
  tmrFind.Tick = [this] { tmrFind_Timer(); };
  btnOpen.Click = [this] { btnOpen_Click(); };
  btnClose.Click = [this] { Unload(); };
}

void frmFind::Form_Load() {
  txtFind.SetFocus();
  Trapped("Find.Form_Load -", [&] {
    if (!globals.oFindIndex) {
      globals.oFindIndex = std::make_shared<FindIndex>(workspace);
      globals.oFindIndex->InitAccess(workspace.File(kDatabaseFile));
    }
    FoundList.SetColumns(
        {{"", 1500}, {"Found", 3200}, {"Details", 3400}, {"Date", 1000}, {">Amount", 1100}, {"", 0}, {"", 0}});
    FoundList.SetSortable(false);  // rows without a group belong to the one above
    FoundList.SetRows(1);
    BeginSearch();
  });
}

void frmFind::txtFind_Change() {
  Trapped("Find.txtFind_Change -", [&] { BeginSearch(); });
}

void frmFind::BeginSearch() {
  globals.oFindIndex->ReadIfChanged();
  SearchTables();
  Work();
  ShowFound();
}

void frmFind::SearchTables() {
  tables_ = globals.oFindIndex->Tables();
  search_.emplace(tables_, FindWords(txtFind.Text(), convert));
}

// Searches and reads for as long as the user doesn't notice; the timer goes on with the rest.
void frmFind::Work() {
  const Object<FindIndex> index = globals.oFindIndex;
  const Date start = desktop.Now();
  bool isAtWork = true;
  tmrFind.SetRunning(false);
  while (isAtWork && (desktop.Now().Serial() - start.Serial()) * kSecondsInDay < kMostSeconds) {
    if (search_->Step(index->Complete())) continue;
    isAtWork = index->Reading();
    index->ReadSlice();
    if (index->Tables() != tables_) SearchTables();
  }
  tmrFind.SetRunning(isAtWork);
}

void frmFind::tmrFind_Timer() {
  Trapped("Find.tmrFind_Timer -", [&] {
    Work();
    if (search_->Count() != listed_ || !tmrFind.Running()) ShowFound();
  });
}

// The list.

void frmFind::ShowFound() {
  const std::string marked = FoundList.Row() > 1 ? RecordIn(FoundList.Row()) : std::string();
  listed_ = search_->Count();
  FoundList.SetRows(1);
  for (const FindSearch::Group& group : search_->Groups()) ListGroup(group);
  lblFound.SetCaption(FoundText());
  btnOpen.SetEnabled(FoundList.Rows() > 1);
  MarkRecord(marked);
}

void frmFind::ListGroup(const FindSearch::Group& group) {
  const FindTable& table = search_->Table(group.kind);
  std::string heading = GroupText(group);
  const std::string kind = convert.ToText(static_cast<std::int32_t>(group.kind));
  for (const FindSearch::Hit& hit : group.best) {
    FoundList.AddItem(Concat({std::exchange(heading, {}), "\t", table.Shown(hit.record), "\t", kind, "\t",
                              convert.ToText(table.Number(hit.record))}));
  }
}

std::string frmFind::GroupText(const FindSearch::Group& group) const {
  const auto number = [&](std::size_t count) { return convert.ToText(static_cast<std::int32_t>(count)); };
  const std::string shown = group.count > group.best.size() ? number(group.best.size()) + " of " : "";
  return std::string(kGroups[static_cast<std::size_t>(group.kind)]) + " (" + shown + number(group.count) + ")";
}

std::string frmFind::FoundText() const {
  if (Trimmed(txtFind.Text()).empty()) return kHint;
  if (!search_->Done()) return "Searching...";
  return listed_ == 0 ? "Nothing found" : convert.ToText(static_cast<std::int32_t>(listed_)) + " found";
}

std::string frmFind::RecordIn(int row) const {
  return FoundList.Cell(row, kKind) + " " + FoundList.Cell(row, kNumber);
}

/// The row of a record that is still listed, else the first.
void frmFind::MarkRecord(const std::string& record) {
  int row = std::min(1, FoundList.Rows() - 1);
  for (int i = 1; !record.empty() && i < FoundList.Rows(); ++i) {
    if (RecordIn(i) == record) row = i;
  }
  FoundList.SetRow(row);
  FoundList.SetTopRow(row);
}

// The arrows move in the list while the keyboard stays in the box.
void frmFind::txtFind_KeyDown(int keyCode) {
  const auto key = static_cast<Key>(keyCode);
  const int page = std::max(1, FoundList.VisibleRows() - 1);
  const int by = key == Key::PageUp || key == Key::PageDown ? page : 1;
  const int row = FoundList.Row() + (key == Key::Up || key == Key::PageUp ? -by : by);
  if (FoundList.Rows() > 1) FoundList.SetRow(std::clamp(row, 1, FoundList.Rows() - 1));
}

// What has gone since it was read isn't found again.
void frmFind::btnOpen_Click() {
  Trapped("Find.btnOpen_Click -", [&] {
    const int row = FoundList.Row();
    if (row == 0) return;
    const auto kind = static_cast<FindKind>(convert.ToLong(FoundList.Cell(row, kKind)));
    if (GoTo(program, {kind, convert.ToLong(FoundList.Cell(row, kNumber)), FoundList.Cell(row, kWhat)}))
      return Unload();
    BeginSearch();
  });
}

}  // namespace norvane
