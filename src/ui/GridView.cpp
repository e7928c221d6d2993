#include "ui/GridView.h"

#include <algorithm>

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QHelpEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QStyle>
#include <QToolTip>

#include "core/WholeFile.h"
#include "forms/Form.h"
#include "forms/ListText.h"
#include "ui/Apostrophe.h"
#include "ui/Convert.h"
#include "ui/FileDialogs.h"
#include "ui/GridCellEditor.h"
#include "ui/GridCellPainter.h"
#include "ui/GridTableModel.h"
#include "ui/ListMenu.h"
#include "ui/Shortcuts.h"
#include "ui/Theme.h"
#include "ui/TypeAhead.h"
#include "ui/Warning.h"
#include "ui/WindowMemory.h"

namespace norvane::ui {
namespace {

constexpr int kRowPadding = 9;
constexpr int kRowsAskedFor = 10;
constexpr int kFewestRows = 4;
constexpr int kNarrowest = 20;
constexpr int kNarrowestText = 60;  // texts are cut to no less
constexpr int kWidestText = 260;    // no column asks for more
constexpr int kHeadingPadding = 10;
constexpr int kSortSign = 12;
constexpr int kHintMargin = 12;

}  // namespace

GridView::GridView(Grid& grid, QWidget* parent, const WidgetServices& services)
    : QTableView(parent),
      grid_(&grid),
      table_(new GridTableModel(grid)),
      painter_(new GridCellPainter(grid, services.convert, this)),
      typed_(new TypeAhead(this)),
      summary_(new QLabel(parent)),
      convert_(services.convert),
      texts_(services.convert.Settings()),
      memory_(services.memory),
      userWidths_(memory_.ColumnWidths(grid)) {
  table_->setParent(this);
  setModel(table_);
  setItemDelegate(painter_);
  SetLook();
  editor_ = new GridCellEditor(grid, viewport(), CellEntry(services.convert, services.clock),
                               [this](int col) { return table_->AlignmentOf(col); });
  grid.view = this;
  binding_ = new Binding(grid, *this, nullptr);
  binding_->SetBelow(summary_);
  connect(binding_, &QObject::destroyed, this, &GridView::Abandon);
  connect(horizontalHeader(), &QHeaderView::sectionResized, this,
          [this](int section, int, int width) { SectionResized(section, width); });
  connect(horizontalHeader(), &QHeaderView::sectionClicked, this, [this](int section) { SortBy(section); });
  connect(verticalScrollBar(), &QScrollBar::valueChanged, this, [this](int value) {
    if (grid_ && !following_) grid_->SetTopRow(value + 1);
  });
  Sync();
}

void GridView::SetLook() {
  setSelectionMode(NoSelection);
  setEditTriggers(NoEditTriggers);
  setShowGrid(false);
  setWordWrap(false);
  setTabKeyNavigation(false);
  setVerticalScrollMode(ScrollPerItem);
  setHorizontalScrollMode(ScrollPerPixel);
  setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  setCornerButtonEnabled(false);
  const int rowHeight = fontMetrics().height() + kRowPadding;
  verticalHeader()->hide();
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->setMinimumSectionSize(rowHeight);
  verticalHeader()->setDefaultSectionSize(rowHeight);
  horizontalHeader()->setStretchLastSection(true);
  horizontalHeader()->setMinimumSectionSize(kNarrowest);
  horizontalHeader()->setTextElideMode(Qt::ElideRight);
  horizontalHeader()->setHighlightSections(false);
  horizontalHeader()->setSectionsClickable(false);
  summary_->setProperty("summary", true);
  summary_->setTextFormat(Qt::PlainText);
  summary_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  summary_->hide();
  horizontalHeader()->setFixedHeight(rowHeight + 2);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  grid_->SetRowHeight(ToTwips(rowHeight));
}

void GridView::Abandon() {
  grid_ = nullptr;
  painter_->Abandon();
  editor_->Abandon();
  table_->Abandon();
}

QSize GridView::minimumSizeHint() const {
  const int rowHeight = verticalHeader()->defaultSectionSize();
  return {240, horizontalHeader()->height() + kFewestRows * rowHeight};
}

QSize GridView::sizeHint() const {
  const int rows = horizontalHeader()->height() + kRowsAskedFor * verticalHeader()->defaultSectionSize();
  int columns = verticalScrollBar()->sizeHint().width() + 2 * frameWidth();
  for (int col = 0; grid_ && col < grid_->Cols(); ++col) {
    columns += static_cast<int>(ToPixels(grid_->ColWidth(col)) * kColumnGrowth);
  }
  return {std::clamp(columns, minimumSizeHint().width(), 960), rows + 2 * frameWidth()};
}

// Synchronising.

void GridView::ScheduleSync() {
  if (waiting_) return;
  waiting_ = true;
  QMetaObject::invokeMethod(this, &GridView::Sync, Qt::QueuedConnection);
  viewport()->update();
}

void GridView::Sync() {
  waiting_ = false;
  if (!grid_) return;
  grid_->KeepSorted(convert_);
  {
    const QScopedValueRollback following(following_, true);
    table_->Sync();
  }
  ShowSummary();
  ShowSortSign();
  if (std::exchange(allWaiting_, false)) {
    if (!KeepsWidths()) {
      MeasureColumns();
      ArrangeColumns();
    }
    table_->RefreshAll();
  }
  FollowTopRow();
  editor_->Place(CurrentCell());
}

/// Nothing moves under the eyes of a user who works in the grid.
bool GridView::KeepsWidths() {
  return !std::exchange(columnsWaiting_, false) && grid_->HasFocus() && hadRows_;
}

void GridView::ColumnsChanged() {
  columnsWaiting_ = true;
  RowsReset();
}

void GridView::RowsReset() {
  allWaiting_ = true;
  sumsWaiting_ = true;
  ScheduleSync();
}

void GridView::RowsInserted(int, int) {
  RowsReset();
}

void GridView::RowsRemoved(int, int) {
  RowsReset();
}

void GridView::CellChanged(int row, int col) {
  sumsWaiting_ = sumsWaiting_ || grid_->ColTotalled(col);
  if (sumsWaiting_ || grid_->SortedBy()) ScheduleSync();
  if (!waiting_) table_->RefreshRow(row);
}

void GridView::CursorMoved() {
  ScheduleSync();
  if (grid_->Row() < 1) return;
  const QScopedValueRollback following(following_, true);
  const QModelIndex cell = table_->index(grid_->Row() - 1, grid_->Col());
  if (!cell.isValid()) return;
  selectionModel()->setCurrentIndex(cell, QItemSelectionModel::NoUpdate);
  ShowCurrentColumn();
}

/// Scrolls no further than it must, but all the way back where that shows the column too, since the markers are there.
void GridView::ShowCurrentColumn() {
  const int start = horizontalHeader()->sectionPosition(grid_->Col());
  const int end = start + columnWidth(grid_->Col());
  const int room = viewport()->width();
  QScrollBar& bar = *horizontalScrollBar();
  if (start < bar.value()) {
    bar.setValue(end <= room ? 0 : start);
  } else if (end > bar.value() + room) {
    bar.setValue(std::min(start, end - room));
  }
}

void GridView::TopRowChanged() {
  ScheduleSync();
}

void GridView::EditChanged() {
  if (waiting_) Sync();
  if (grid_->Editing()) ShowCurrentColumn();
  editor_->Follow(CurrentCell());
  viewport()->update();
}

void GridView::FollowTopRow() {
  const QScopedValueRollback following(following_, true);
  executeDelayedItemsLayout();
  verticalScrollBar()->setValue(grid_->TopRow() - 1);
}

QRect GridView::CurrentCell() const {
  return visualRect(table_->index(grid_->Row() - 1, grid_->Col()));
}

void GridView::MeasureColumns() {
  hadRows_ = grid_->Rows() > 1;
  needs_.assign(static_cast<std::size_t>(grid_->Cols()), {});
  std::vector<bool> figures(needs_.size(), false);
  for (int col = 0; col < grid_->Cols(); ++col) {
    if (grid_->ColWidth(col) == 0) continue;
    const auto at = static_cast<std::size_t>(col);
    const ColumnContent content = LookAt(*grid_, col, texts_, fontMetrics());
    const bool hasHelper = grid_->Helper(col) != CellHelper::None;
    const int helper = hasHelper ? GridCellPainter::HelperRect(rect()).width() : 0;
    const int heading = content.heading + kHeadingPadding + (grid_->Sortable() ? kSortSign : 0);
    const int text = std::max(content.width + 2 * GridCellPainter::kPadding + 1, heading) + helper;
    needs_[at] = {.given = ToPixels(grid_->ColWidth(col)),
                  .whole = std::min(text, kWidestText),
                  .least = content.isExact ? text : std::min(text, std::max(heading, kNarrowestText))};
    // What the user enters stays on the left, but for amounts: a check number may be a word as well.
    figures[at] = content.isFigures && (content.isExact || grid_->Kind() == GridKind::List);
  }
  table_->SetFigures(std::move(figures));
}

void GridView::ArrangeColumns() {
  const QScopedValueRollback arranging(arranging_, true);
  const bool spreads = grid_->Kind() == GridKind::List;
  const std::vector<int> widths =
      FitColumns(needs_, viewport()->width(), {.column = ColumnForRest(), .spreads = spreads});
  for (std::size_t at = 0; at < widths.size(); ++at) {
    const int col = static_cast<int>(at);
    setColumnHidden(col, grid_->ColWidth(col) == 0);
    if (grid_->ColWidth(col) == 0) continue;
    const auto own = userWidths_.find(col);
    setColumnWidth(col, own == userWidths_.end() ? widths[at] : own->second);
  }
}

/// The column that takes the width left over: -1 for the last one, which stretches by itself. Figures at the far right
/// would be too far from their row, so then it is the widest column of texts.
int GridView::ColumnForRest() const {
  int last = -1;
  int widest = -1;
  for (int col = 0; col < grid_->Cols(); ++col) {
    if (grid_->ColWidth(col) == 0) continue;
    last = col;
    const bool isText = !table_->IsRightAligned(col) && grid_->Alignment(col) != ColumnAlignment::Centre;
    if (isText && (widest < 0 || grid_->ColWidth(col) > grid_->ColWidth(widest))) widest = col;
  }
  return last >= 0 && table_->IsRightAligned(last) ? widest : -1;
}

void GridView::SectionResized(int section, int width) {
  if (!arranging_ && QApplication::mouseButtons() & Qt::LeftButton && horizontalHeader()->underMouse()) {
    userWidths_[section] = width;
    if (grid_) memory_.KeepColumnWidths(*grid_, userWidths_);
  }
  if (grid_) editor_->Place(CurrentCell());
}

void GridView::ReportVisibleRows() {
  if (grid_) grid_->SetVisibleRows(viewport()->height() / verticalHeader()->defaultSectionSize());
}

// The window around it.

void GridView::resizeEvent(QResizeEvent* event) {
  QTableView::resizeEvent(event);
  typed_->Place();
  ReportVisibleRows();
  if (grid_ && !allWaiting_) ArrangeColumns();
}

void GridView::paintEvent(QPaintEvent* event) {
  QTableView::paintEvent(event);
  constexpr int kMostRows = 3;  // a row to begin with is no content
  if (!grid_ || grid_->EmptyHint().empty() || grid_->Rows() > kMostRows || !grid_->IsEmpty()) return;
  QPainter painter(viewport());
  painter.setPen(Colours::Of(palette()).muted);
  const int rows = (grid_->Rows() - 1) * verticalHeader()->defaultSectionSize();
  const QRect room = viewport()->rect().adjusted(kHintMargin, rows + kHintMargin, -kHintMargin, -kHintMargin);
  painter.drawText(room, Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, ToQt(grid_->EmptyHint()));
}

void GridView::updateGeometries() {
  QTableView::updateGeometries();
  ReportVisibleRows();
}

void GridView::scrollContentsBy(int dx, int dy) {
  QTableView::scrollContentsBy(dx, dy);
  if (grid_) editor_->Place(CurrentCell());
}

void GridView::focusInEvent(QFocusEvent* event) {
  QTableView::focusInEvent(event);
  AcceptInputMethods();
  // A press on a heading, or of another mouse button, ends no edit.
  if (grid_) editor_->TakeKeyboard();
  viewport()->update();
}

void GridView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QTableView::currentChanged(current, previous);
  AcceptInputMethods();
}

/// The toolkit turns input methods off for a view that edits nothing itself; an accented letter may begin an edit, too.
void GridView::AcceptInputMethods() {
  setAttribute(Qt::WA_InputMethodEnabled);
}

void GridView::focusOutEvent(QFocusEvent* event) {
  QTableView::focusOutEvent(event);
  if (event->reason() != Qt::PopupFocusReason) typed_->Forget();
  viewport()->update();
}

bool GridView::viewportEvent(QEvent* event) {
  const bool needsRows = event->type() == QEvent::Paint || event->type() == QEvent::MouseButtonPress ||
                         event->type() == QEvent::MouseButtonDblClick || event->type() == QEvent::Wheel;
  if (waiting_ && needsRows) Sync();
  if (event->type() == QEvent::ToolTip) {
    const auto* help = static_cast<QHelpEvent*>(event);
    if (ShowCutOffText(help->pos(), help->globalPos())) return true;
  }
  return QTableView::viewportEvent(event);
}

bool GridView::ShowCutOffText(const QPoint& at, const QPoint& onScreen) {
  const QModelIndex cell = indexAt(at);
  if (!grid_ || !cell.isValid()) return false;
  const QString text = cell.data().toString();
  const int room = columnWidth(cell.column()) - 2 * GridCellPainter::kPadding;
  if (fontMetrics().horizontalAdvance(text) <= room) return false;
  QToolTip::showText(onScreen, text, viewport(), visualRect(cell));
  return true;
}

// The user.

bool GridView::event(QEvent* event) {
  // Tab moves between cells before it moves between controls.
  if (event->type() == QEvent::KeyPress) {
    auto* key = static_cast<QKeyEvent*>(event);
    if (key->key() == Qt::Key_Tab || key->key() == Qt::Key_Backtab) {
      keyPressEvent(key);
      return true;
    }
  }
  return QTableView::event(event);
}

void GridView::keyPressEvent(QKeyEvent* event) {
  if (!grid_) return;
  Form& form = grid_->Parent();
  if (UseListKey(*event) || UseKeyForTyped(*event) || editor_->BeginByKey(*event)) return event->accept();
  GridKeyPress press{};
  if (ToGridKey(*event, press)) {
    if (press.key != Key::Space) typed_->Forget();
    const bool used = grid_->UserKey(press.key, press.modifiers);
    if (!used && grid_ && press.key == Key::Tab) return form.UserTab(press.modifiers.shift);
    const bool opens = press.key == Key::F4 || (press.key == Key::Down && press.modifiers.alt);
    if (used && opens) editor_->OpenList();
    event->setAccepted(used);
    if (press.key == Key::Space) Search(event->text());
    return;
  }
  const bool isText = !event->text().isEmpty() && event->text().at(0).isPrint() &&
                      !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
  event->setAccepted(isText);
  if (!isText || editor_->Refuses(event->text())) return;
  grid_->UserText(FromQt(WithApostrophes(event->text())));
  Search(event->text());
}

void GridView::Search(const QString& letters) {
  if (!grid_ || grid_->Kind() != GridKind::List || grid_->Editing()) return;
  const bool begins = typed_->Begins();
  if (begins && letters.trimmed().isEmpty()) return;
  FindTyped(typed_->Add(letters), begins ? grid_->Row() : grid_->Row() - 1);
}

/// `start` counts from 0. A letter typed again and again goes from row to row.
void GridView::FindTyped(const QString& word, int start) {
  if (waiting_) Sync();
  int found = table_->Find(word, std::max(0, start));
  const bool isOneLetter = word.count(word.front(), Qt::CaseInsensitive) == word.size();
  if (found < 0 && isOneLetter) found = table_->Find(word.first(1), grid_->Row());
  typed_->ShowResult(found >= 0);
  if (found >= 0 && found + 1 != grid_->Row()) grid_->UserFind(found + 1);
}

/// Backspace and Escape correct the word typed. Enter is refused as long as no row matches it: the row marked is not
/// the one that the user means.
bool GridView::UseKeyForTyped(const QKeyEvent& event) {
  if (typed_->IsEmpty()) return false;
  switch (event.key()) {
    case Qt::Key_Backspace:
      if (const QString word = typed_->RemoveLast(); !word.isEmpty()) {
        FindTyped(word, grid_->Row() - 1);
      } else {
        typed_->Forget();
      }
      return true;
    case Qt::Key_Escape:
      typed_->Forget();
      return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return typed_->Missed();
    default:
      return false;
  }
}

void GridView::inputMethodEvent(QInputMethodEvent* event) {
  event->accept();
  if (!grid_ || event->commitString().isEmpty() || editor_->Refuses(event->commitString())) return;
  grid_->UserText(FromQt(WithApostrophes(event->commitString())));
  Search(event->commitString());
}

void GridView::mousePressEvent(QMouseEvent* event) {
  if (!grid_ || event->button() != Qt::LeftButton) return;
  typed_->Forget();
  editor_->FinishSum();
  const QModelIndex cell = indexAt(event->pos());
  if (!cell.isValid()) return ClickBesideRows();
  const int row = cell.row() + 1;
  if (event->modifiers() & Qt::ControlModifier) return grid_->UserToggleMark(row);
  if (event->modifiers() & Qt::ShiftModifier) return grid_->UserMarkTo(row);
  IsOnHelper(event->pos()) ? ClickOnHelper(row, cell.column()) : grid_->UserClick(row, cell.column());
}

void GridView::ClickBesideRows() {
  grid_->SetFocus();
  if (grid_) grid_->CommitEdit();
}

bool GridView::IsOnHelper(const QPoint& at) const {
  const QModelIndex cell = indexAt(at);
  return painter_->ShowsHelper(cell.row() + 1, cell.column()) &&
         GridCellPainter::HelperRect(visualRect(cell)).contains(at);
}

void GridView::ClickOnHelper(int row, int col) {
  if (grid_->Helper(col) == CellHelper::Button) return grid_->PressCellButton(row, col);
  grid_->UserClick(row, col);
  if (!grid_ || grid_->Row() != row || grid_->Col() != col || !grid_->HasFocus()) return;
  grid_->UserKey(Key::F4);
  editor_->OpenList();
}

void GridView::mouseDoubleClickEvent(QMouseEvent* event) {
  if (!grid_ || event->button() != Qt::LeftButton) return;
  const QModelIndex cell = indexAt(event->pos());
  if (!cell.isValid()) return;
  // The first click may have made the helper visible.
  if (IsOnHelper(event->pos())) return ClickOnHelper(cell.row() + 1, cell.column());
  grid_->UserDoubleClick(cell.row() + 1, cell.column());
  editor_->OpenList();
}

// What every list offers.

bool GridView::UseListKey(const QKeyEvent& event) {
  const QKeySequence key(event.keyCombination());
  if (grid_->Editing()) return false;
  if (key == KeyOf(ListKey::Copy)) {
    CopyRows();
    return true;
  }
  if (key != KeyOf(ListKey::MarkAll)) return false;
  grid_->UserMarkAll();
  return true;
}

void GridView::CopyRows() {
  if (!grid_ || grid_->MarkedRows().empty()) return;
  QApplication::clipboard()->setText(ToQt(TabbedText(*grid_, grid_->MarkedRows())));
}

void GridView::SaveList() {
  const QPointer<GridView> self(this);
  const std::string name = grid_->Parent().Caption();
  const QString file = AskForFile({FileRequest::Kind::Save, "Save List as CSV", name, "csv"}, window());
  if (file.isEmpty() || !self || !grid_) return;
  if (!WriteFileAtomically(ToPath(file), CsvText(*grid_, convert_))) {
    Warn(window(), QString("The file %1 could not be written.").arg(file));
  }
}

void GridView::SortBy(int col) {
  if (grid_) grid_->UserSort(col, convert_);
}

void GridView::ShowSortSign() {
  QHeaderView& header = *horizontalHeader();
  header.setSectionsClickable(grid_->Sortable());
  // Headings leave room for the sign only where there may be one.
  if (header.property("sortable").toBool() != grid_->Sortable()) {
    header.setProperty("sortable", grid_->Sortable());
    header.style()->unpolish(&header);
    header.style()->polish(&header);
  }
  const auto& sort = grid_->SortedBy();
  header.setSortIndicatorShown(sort.has_value());
  if (sort) header.setSortIndicator(sort->col, sort->descending ? Qt::DescendingOrder : Qt::AscendingOrder);
}

void GridView::ShowSummary() {
  const bool sumsMarks = grid_->MarkedRows().size() > 1;
  if (!std::exchange(sumsWaiting_, false) && !sumsMarks && !summedMarks_) return;
  summedMarks_ = sumsMarks;
  const QString text = ToQt(SummaryText(*grid_, convert_));
  summary_->setText(text);
  summary_->setVisible(!text.isEmpty());
}

void GridView::contextMenuEvent(QContextMenuEvent* event) {
  event->accept();
  if (!grid_) return;
  typed_->Forget();
  const bool byMouse = event->reason() == QContextMenuEvent::Mouse;
  const QModelIndex cell = byMouse ? indexAt(event->pos()) : QModelIndex();
  if (byMouse && !cell.isValid()) ClickBesideRows();
  if (cell.isValid()) grid_->UserContext(cell.row() + 1, cell.column());
  if (!grid_) return;
  if (waiting_) Sync();
  auto* menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  FillListMenu(*menu, *grid_,
               {.copy = [this] { CopyRows(); },
                .markAll =
                    [this] {
                      if (grid_) grid_->UserMarkAll();
                    },
                .save =
                    [this] {
                      if (grid_) SaveList();
                    },
                .sort = [this](int col) { SortBy(col); }});
  menu->popup(byMouse ? event->globalPos() : viewport()->mapToGlobal(CurrentCell().bottomLeft()));
}

}  // namespace norvane::ui
