#include "ui/GridCellEditor.h"

#include <algorithm>
#include <map>

#include <QAbstractItemView>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QValidator>

#include "forms/Form.h"
#include "ui/Apostrophe.h"
#include "ui/Convert.h"

namespace norvane::ui {
namespace {

constexpr int kRoomAround = 16;  // of the text in its field

auto LettersIn(const QString& text) {
  return std::count_if(text.begin(), text.end(), [](QChar c) { return c.isLetter(); });
}

/// No letters are typed into a number.
class FigureValidator : public QValidator {
 public:
  using QValidator::QValidator;
  State validate(QString& text, int&) const override { return LettersIn(text) > 0 ? Invalid : Acceptable; }
};

}  // namespace

bool ToGridKey(const QKeyEvent& event, GridKeyPress& press) {
  static const std::map<int, Key> keys = {{Qt::Key_Tab, Key::Tab},       {Qt::Key_Backtab, Key::Tab},
                                          {Qt::Key_Return, Key::Enter},  {Qt::Key_Enter, Key::Enter},
                                          {Qt::Key_Escape, Key::Escape}, {Qt::Key_PageUp, Key::PageUp},
                                          {Qt::Key_Home, Key::Home},     {Qt::Key_PageDown, Key::PageDown},
                                          {Qt::Key_End, Key::End},       {Qt::Key_Left, Key::Left},
                                          {Qt::Key_Up, Key::Up},         {Qt::Key_Right, Key::Right},
                                          {Qt::Key_Down, Key::Down},     {Qt::Key_F2, Key::F2},
                                          {Qt::Key_F4, Key::F4},         {Qt::Key_Space, Key::Space}};
  const auto found = keys.find(event.key());
  if (found == keys.end()) return false;
  const auto held = event.modifiers();
  press = {found->second,
           {.shift = held.testFlag(Qt::ShiftModifier),
            .control = held.testFlag(Qt::ControlModifier),
            .alt = held.testFlag(Qt::AltModifier)}};
  return true;
}

GridCellEditor::GridCellEditor(Grid& grid, QWidget* viewport, const CellEntry& entry,
                               std::function<Qt::Alignment(int col)> alignment)
    : QObject(viewport),
      grid_(&grid),
      entry_(entry),
      alignment_(std::move(alignment)),
      viewport_(viewport),
      line_(new QLineEdit(viewport)),
      list_(new QComboBox(viewport)),
      figures_(new FigureValidator(line_)) {
  for (QWidget* field : {static_cast<QWidget*>(line_), static_cast<QWidget*>(list_)}) {
    field->hide();
    field->installEventFilter(this);
  }
  list_->setFocusPolicy(Qt::StrongFocus);
  list_->view()->installEventFilter(this);
  TypeApostrophes(*line_);
  texts_ = line_->validator();
  connect(line_, &QLineEdit::textEdited, this, [this](const QString& text) {
    if (grid_) grid_->SetEditText(FromQt(text));
    Place(cell_);
  });
  connect(list_, &QComboBox::activated, this, [this](int index) {
    if (grid_) grid_->PickItem(index);
  });
}

void GridCellEditor::Abandon() {
  grid_ = nullptr;
}

QWidget* GridCellEditor::Field() const {
  const auto helper = grid_->Helper(grid_->Col());
  const bool hasList = helper == CellHelper::DropDown || helper == CellHelper::KeyedDropDown;
  return hasList ? static_cast<QWidget*>(list_) : line_;
}

void GridCellEditor::Follow(const QRect& cell) {
  if (!grid_ || !grid_->Editing()) return Hide();
  const bool begins = !Field()->isVisible();
  Field() == list_ ? ShowList() : ShowLine();
  Place(cell);
  if (!begins) return;
  Field()->show();
  Field()->raise();
  TakeKeyboard();
}

void GridCellEditor::TakeKeyboard() {
  if (grid_ && grid_->Editing() && Field()->isVisible()) Field()->setFocus(Qt::OtherFocusReason);
}

void GridCellEditor::Place(const QRect& cell) {
  if (!grid_ || !grid_->Editing()) return;
  cell_ = cell;
  Field()->setGeometry(Field() == line_ ? Grown(cell.adjusted(0, 0, 0, -1)) : cell.adjusted(0, 0, 0, -1));
}

/// As wide as its text needs, over the neighbours of a narrow cell, but within the grid.
QRect GridCellEditor::Grown(QRect cell) const {
  const int needed = line_->fontMetrics().horizontalAdvance(line_->text()) + kRoomAround;
  const int width = std::clamp(needed, cell.width(), std::max(cell.width(), viewport_->width()));
  if (line_->alignment() & Qt::AlignRight) cell.setLeft(cell.right() - width + 1);
  cell.setWidth(width);
  if (cell.right() >= viewport_->width()) cell.moveRight(viewport_->width() - 1);
  if (cell.left() < 0) cell.moveLeft(0);
  return cell;
}

void GridCellEditor::ShowLine() {
  line_->setAlignment(alignment_(grid_->Col()));
  // Letters that are there already can be taken away one by one.
  const bool isFigure = Type() == ColumnType::Number && LettersIn(ToQt(grid_->EditText())) == 0;
  line_->setValidator(isFigure ? figures_ : texts_);
  if (line_->text() == ToQt(grid_->EditText()) && line_->isVisible()) return;
  ShowStored(*line_, ToQt(grid_->EditText()));
  if (!line_->isVisible()) line_->selectAll();
}

void GridCellEditor::ShowList() {
  const QSignalBlocker quiet(list_);
  if (!list_->isVisible()) {
    list_->clear();
    for (const auto& item : grid_->DropDownItems(grid_->Col())) list_->addItem(ToQt(item));
    // A narrow column cuts no item short.
    list_->view()->setMinimumWidth(list_->sizeHint().width());
  }
  const int item = list_->findText(ToQt(grid_->EditText()), Qt::MatchExactly | Qt::MatchCaseSensitive);
  list_->setCurrentIndex(item);
  list_->setPlaceholderText(item < 0 ? ToQt(grid_->EditText()) : QString());
}

void GridCellEditor::OpenList() {
  if (grid_ && grid_->Editing() && Field() == list_) list_->showPopup();
}

void GridCellEditor::Hide() {
  // The grid takes the focus back before its field is hidden; else the toolkit would pass it on to another control,
  // even in a window that is not active.
  const QWidget* focused = viewport_->window()->focusWidget();
  if (focused == line_ || focused == list_) viewport_->parentWidget()->setFocus(Qt::OtherFocusReason);
  if (list_->isVisible()) list_->hidePopup();
  line_->hide();
  list_->hide();
}

bool GridCellEditor::eventFilter(QObject* watched, QEvent* event) {
  if (grid_ && watched == list_ && event->type() == QEvent::Wheel) {
    event->ignore();  // the grid scrolls
    return true;
  }
  if (watched == line_ && event->type() == QEvent::FocusOut) FinishSum();
  if (!grid_ || event->type() != QEvent::KeyPress) return QObject::eventFilter(watched, event);
  const auto& key = static_cast<QKeyEvent&>(*event);
  return watched == list_->view() ? KeyPressedInList(key) : KeyPressed(key);
}

// In the open list Tab picks the item and moves on, and Escape drops the edit together with the list.
bool GridCellEditor::KeyPressedInList(const QKeyEvent& event) {
  GridKeyPress press{};
  if (!ToGridKey(event, press) || (press.key != Key::Tab && press.key != Key::Escape)) return false;
  const int item = list_->view()->currentIndex().row();
  list_->hidePopup();
  if (press.key == Key::Tab && item >= 0) grid_->PickItem(item);
  if (grid_) UseKey(press);
  return true;
}

bool GridCellEditor::UseKey(const GridKeyPress& press) {
  Form& form = grid_->Parent();
  const bool used = grid_->UserKey(press.key, press.modifiers);
  if (!used && grid_ && press.key == Key::Tab) form.UserTab(press.modifiers.shift);
  return used || press.key == Key::Tab;
}

std::optional<QString> GridCellEditor::ContentByKey(const QKeyEvent& event, const QString& text) const {
  const bool holdsControl = event.modifiers().testFlag(Qt::ControlModifier);
  if (holdsControl && event.key() == Qt::Key_Apostrophe && grid_->Row() > 1) {
    return ToQt(grid_->DisplayText(grid_->Row() - 1, grid_->Col()));
  }
  if (holdsControl || Type() != ColumnType::Date) return std::nullopt;
  return entry_.DateByKey(event.text(), text);
}

bool GridCellEditor::BeginByKey(const QKeyEvent& event) {
  if (!grid_ || grid_->Editing() || grid_->Row() < 1 || !grid_->ColEditable(grid_->Col())) return false;
  const auto content = ContentByKey(event, ToQt(grid_->Cell(grid_->Row(), grid_->Col())));
  if (!content || !grid_->BeginEdit()) return false;
  grid_->SetEditText(FromQt(*content));
  if (grid_) line_->selectAll();
  return true;
}

bool GridCellEditor::Refuses(const QString& text) const {
  return grid_->Kind() == GridKind::Editable && Type() == ColumnType::Number && LettersIn(text) > 0;
}

void GridCellEditor::FinishSum() {
  if (!grid_ || !grid_->Editing() || Field() != line_) return;
  if (Type() != ColumnType::Number && Type() != ColumnType::Currency) return;
  const QString before = ToQt(grid_->Cell(grid_->Row(), grid_->Col()));
  if (const auto value = entry_.ValueOfSum(line_->text(), before)) grid_->SetEditText(FromQt(*value));
}

bool GridCellEditor::KeyPressed(const QKeyEvent& event) {
  GridKeyPress press{};
  const bool isList = Field() == list_;
  // A separator typed within a date is no step to another day.
  const bool isWhole = line_->selectedText() == line_->text() || event.text() == "+";
  if (const auto content =
          isWhole || event.modifiers() & Qt::ControlModifier ? ContentByKey(event, line_->text()) : std::nullopt) {
    grid_->SetEditText(FromQt(*content));
    line_->selectAll();
    return true;
  }
  if (ToGridKey(event, press) && press.key != Key::Space) {
    const bool opens = press.key == Key::F4 || (press.key == Key::Down && press.modifiers.alt);
    if (isList && opens) {
      OpenList();
      return true;
    }
    const bool staysInText = press.key == Key::Left || press.key == Key::Right || press.key == Key::Escape;
    if (!staysInText) FinishSum();
    return UseKey(press) || isList;
  }
  const bool isText = !event.text().isEmpty() && event.text().at(0).isPrint() &&
                      !(event.modifiers() & (Qt::ControlModifier | Qt::AltModifier));
  if (!isList || !isText) return false;
  grid_->UserText(FromQt(event.text()));
  return true;
}

}  // namespace norvane::ui
