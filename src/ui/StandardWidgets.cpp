#include <algorithm>
#include <map>

#include <QApplication>
#include <QButtonGroup>
#include <QCalendarWidget>
#include <QComboBox>
#include <QDateEdit>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QStatusBar>
#include <QTabWidget>
#include <QTableView>
#include <QTextCharFormat>
#include <QToolButton>

#include "forms/Controls.h"
#include "forms/Form.h"
#include "ui/Convert.h"
#include "ui/GridView.h"
#include "ui/Theme.h"
#include "ui/WidgetFactory.h"

namespace norvane::ui {
namespace {

constexpr int kIconSize = 22;
constexpr int kButtonWidth = 84;   // buttons of short captions are alike
constexpr int kInputPadding = 20;  // border and padding of the style sheet, both sides

int WidthOf(const QWidget& widget, int characters) {
  return widget.fontMetrics().averageCharWidth() * characters + kInputPadding;
}

/// Lets an event through to `see` first; true from there keeps it from the widget.
class Sieve : public QObject {
 public:
  Sieve(QObject& watched, std::function<bool(QEvent&)> see) : QObject(&watched), see_(std::move(see)) {
    watched.installEventFilter(this);
  }
  bool eventFilter(QObject*, QEvent* event) override { return see_(*event); }

 private:
  std::function<bool(QEvent&)> see_;
};

/// An accelerator presses its button at once: the toolkit would show it going down first, and what is typed meanwhile
/// would go astray.
void PressAtOnce(QPushButton& button) {
  new Sieve(button, [&button](QEvent& event) {
    if (event.type() != QEvent::Shortcut || static_cast<QShortcutEvent&>(event).isAmbiguous()) return false;
    button.click();
    return true;
  });
}

/// A wheel turned over a field that has no focus scrolls what is around it and changes no value.
void IgnoreStrayWheel(QWidget& widget) {
  new Sieve(widget, [&widget](QEvent& event) {
    if (event.type() != QEvent::Wheel || widget.hasFocus()) return false;
    event.ignore();
    return true;
  });
}

/// Tab leaves a field at once instead of going from part to part of a date.
void LeaveByTab(QWidget& widget, Form& form) {
  new Sieve(widget, [&form](QEvent& event) {
    if (event.type() != QEvent::KeyPress) return false;
    const int key = static_cast<QKeyEvent&>(event).key();
    if (key != Qt::Key_Tab && key != Qt::Key_Backtab) return false;
    form.UserTab(key == Qt::Key_Backtab);
    return true;
  });
}

Binding* MakeLabel(Label& label, QWidget* parent) {
  auto* widget = new QLabel(parent);
  widget->setTextFormat(Qt::PlainText);
  return new Binding(label, *widget, [&label, widget](Aspect) {
    widget->setText(ToQt(label.Caption()));
    QPalette palette = QApplication::palette();
    palette.setColor(QPalette::WindowText, Colours::Of(palette).Map(label.ForeColor()));
    widget->setPalette(palette);
  });
}

Binding* MakeTextBox(TextBox& box, QWidget* parent) {
  if (box.Style().lines > 1) {
    auto* widget = new QPlainTextEdit(parent);
    widget->setTabChangesFocus(true);
    widget->setMinimumSize(WidthOf(*widget, box.Style().characters),
                           widget->fontMetrics().lineSpacing() * box.Style().lines + kInputPadding);
    auto* binding = new Binding(box, *widget, [&box, widget](Aspect) {
      const QSignalBlocker quiet(widget);
      if (widget->toPlainText() != ToQt(box.Text())) widget->setPlainText(ToQt(box.Text()));
    });
    QObject::connect(widget, &QPlainTextEdit::textChanged, binding,
                     [&box, widget] { box.UserType(FromQt(widget->toPlainText())); });
    return binding;
  }
  auto* widget = new QLineEdit(parent);
  widget->setMinimumWidth(WidthOf(*widget, box.Style().characters));
  if (box.Style().rightAligned) widget->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  auto* binding = new Binding(box, *widget, [&box, widget](Aspect) {
    if (widget->text() == ToQt(box.Text())) return;
    widget->setText(ToQt(box.Text()));
    if (!widget->hasFocus()) widget->setCursorPosition(0);
  });
  QObject::connect(widget, &QLineEdit::textEdited, binding,
                   [&box](const QString& text) { box.UserType(FromQt(text)); });
  return binding;
}

/// A slash typed behind a lone digit gives that its zero and goes on with the next place.
void CloseMaskPlace(MaskedBox& box, QLineEdit& widget) {
  constexpr int kPlace = 3;  // two digits and the slash
  const int place = std::min(widget.cursorPosition() / kPlace, 2);
  QStringList places = widget.displayText().split('/');
  const QString digits = QString(places[place]).remove('_');
  if (digits.isEmpty()) return;
  if (digits.size() == 1) places[place] = "0" + digits;
  box.UserType(FromQt(places.join('/')));
  widget.setCursorPosition((place + 1) * kPlace);
}

Binding* MakeMaskedBox(MaskedBox& box, QWidget* parent) {
  auto* widget = new QLineEdit(parent);
  widget->setInputMask("99/99/99;_");
  widget->setFixedWidth(WidthOf(*widget, 8));
  auto* binding = new Binding(box, *widget, [&box, widget](Aspect) {
    if (widget->displayText() != ToQt(box.Text())) widget->setText(ToQt(box.Text()));
  });
  QObject::connect(widget, &QLineEdit::textEdited, binding,
                   [&box, widget] { box.UserType(FromQt(widget->displayText())); });
  new Sieve(*widget, [&box, widget, bound = QPointer<Binding>(binding)](QEvent& event) {
    if (event.type() == QEvent::FocusIn) {
      QMetaObject::invokeMethod(
          widget, [widget] { widget->home(false); }, Qt::QueuedConnection);
    }
    if (event.type() != QEvent::KeyPress || !bound || static_cast<QKeyEvent&>(event).text() != "/") return false;
    CloseMaskPlace(box, *widget);
    return true;
  });
  return binding;
}

Binding* MakeButton(Button& button, QWidget* parent) {
  auto* widget = new QPushButton(parent);
  widget->setFocusPolicy(Qt::StrongFocus);
  widget->setAutoDefault(true);
  widget->setDefault(button.Style().isDefault);
  widget->setIcon(NamedIcon(button.Style().icon));
  widget->setIconSize({kIconSize, kIconSize});
  widget->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  const bool isPicture = button.Caption().empty();
  widget->setProperty("picture", isPicture);
  if (isPicture) widget->setAccessibleName(ToQt(button.ToolTip()));
  if (!isPicture) widget->setIconSize({kIconSize - 6, kIconSize - 6});
  widget->ensurePolished();
  auto* binding = new Binding(button, *widget, [&button, widget](Aspect) {
    widget->setText(ToQt(button.Caption()));
    if (!button.Caption().empty()) widget->setMinimumWidth(std::max(kButtonWidth, widget->sizeHint().width()));
  });
  QObject::connect(widget, &QPushButton::clicked, binding, [&button] { button.Press(); });
  PressAtOnce(*widget);
  return binding;
}

/// The options of one group name within a parent exclude each other, so that the arrow keys go from one to the next.
QButtonGroup& GroupOf(QWidget& parent, const std::string& name) {
  const QString key = "options:" + ToQt(name);
  if (auto* found = parent.window()->findChild<QButtonGroup*>(key)) return *found;
  auto* group = new QButtonGroup(parent.window());
  group->setObjectName(key);
  return *group;
}

Binding* MakeOptionButton(OptionButton& option, QWidget* parent) {
  auto* widget = new QRadioButton(parent);
  QButtonGroup& group = GroupOf(*parent, option.Group());
  group.addButton(widget);
  auto* binding = new Binding(option, *widget, [&option, widget, &group](Aspect) {
    widget->setText(ToQt(option.Caption()));
    group.setExclusive(false);
    widget->setChecked(option.Value());
    group.setExclusive(true);
  });
  QObject::connect(widget, &QRadioButton::clicked, binding, [&option] { option.Press(); });
  return binding;
}

void FillCombo(QComboBox& widget, const ComboBox& combo) {
  const QSignalBlocker quiet(&widget);
  widget.clear();
  for (const auto& item : combo.Items()) widget.addItem(ToQt(item));
}

void ShowComboText(QComboBox& widget, const ComboBox& combo) {
  const QSignalBlocker quiet(&widget);
  widget.setCurrentIndex(combo.ListIndex());
  if (widget.isEditable() && widget.currentText() != ToQt(combo.Text())) widget.setEditText(ToQt(combo.Text()));
}

Binding* MakeComboBox(ComboBox& combo, QWidget* parent) {
  auto* widget = new QComboBox(parent);
  widget->setEditable(combo.Style() == ComboStyle::AnyText);
  widget->setInsertPolicy(QComboBox::NoInsert);
  if (widget->isEditable()) widget->setCompleter(nullptr);
  widget->setFocusPolicy(Qt::StrongFocus);
  widget->setMinimumWidth(WidthOf(*widget, combo.Characters()) + kInputPadding);
  IgnoreStrayWheel(*widget);
  auto* binding = new Binding(combo, *widget, [&combo, widget](Aspect aspect) {
    if (aspect == Aspect::Items) FillCombo(*widget, combo);
    ShowComboText(*widget, combo);
  });
  QObject::connect(widget, &QComboBox::activated, binding, [&combo](int index) { combo.UserPick(index); });
  if (QLineEdit* edit = widget->lineEdit()) {
    QObject::connect(edit, &QLineEdit::textEdited, binding,
                     [&combo](const QString& text) { combo.UserType(FromQt(text)); });
  }
  return binding;
}

/// The calendar of the theme: its own arrows, plain weekends, weeks that begin as the machine's do, all six in sight.
void DressCalendar(QCalendarWidget& calendar) {
  constexpr int kHeadingRows = 3;  // the month, the days' names and some air
  constexpr int kWeeks = 6;
  constexpr int kDayPadding = 10;
  const QLocale machine = QLocale::system();
  calendar.setFirstDayOfWeek(machine.language() == QLocale::C ? Qt::Sunday : machine.firstDayOfWeek());
  calendar.setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
  calendar.setGridVisible(false);
  for (const auto day : {Qt::Saturday, Qt::Sunday}) calendar.setWeekdayTextFormat(day, QTextCharFormat());
  for (auto [name, icon] :
       {std::pair("qt_calendar_prevmonth", "previous"), std::pair("qt_calendar_nextmonth", "next")}) {
    if (auto* arrow = calendar.findChild<QToolButton*>(name)) arrow->setIcon(NamedIcon(icon));
  }
  calendar.setMinimumHeight((kHeadingRows + kWeeks) * (calendar.fontMetrics().height() + kDayPadding));
}

Binding* MakeDatePicker(DatePicker& picker, QWidget* parent, const QString& format) {
  auto* widget = new QDateEdit(parent);
  widget->setCalendarPopup(true);
  DressCalendar(*widget->calendarWidget());
  widget->setDisplayFormat(format);
  widget->setFocusPolicy(Qt::StrongFocus);
  widget->setMinimumWidth(WidthOf(*widget, 10) + kInputPadding);
  IgnoreStrayWheel(*widget);
  LeaveByTab(*widget, picker.Parent());
  auto* binding = new Binding(picker, *widget, [&picker, widget](Aspect) {
    const QSignalBlocker quiet(widget);
    widget->setDate(ToQt(picker.Value()));
  });
  QObject::connect(widget, &QDateEdit::dateChanged, binding, [&picker](QDate date) { picker.UserPick(FromQt(date)); });
  return binding;
}

int KeyCodeOf(const QKeyEvent& event) {
  static const std::map<int, Key> codes = {
      {Qt::Key_Left, Key::Left},     {Qt::Key_Right, Key::Right},       {Qt::Key_Up, Key::Up},
      {Qt::Key_Down, Key::Down},     {Qt::Key_Return, Key::Enter},      {Qt::Key_Enter, Key::Enter},
      {Qt::Key_PageUp, Key::PageUp}, {Qt::Key_PageDown, Key::PageDown}, {Qt::Key_Home, Key::Home},
      {Qt::Key_End, Key::End},       {Qt::Key_Escape, Key::Escape},     {Qt::Key_Space, Key::Space}};
  const auto found = codes.find(event.key());
  if (found != codes.end()) return static_cast<int>(found->second);
  return event.key() >= Qt::Key_0 && event.key() <= Qt::Key_Z ? event.key() : 0;
}

Binding* MakeMonthView(MonthView& month, QWidget* parent) {
  auto* widget = new QCalendarWidget(parent);
  DressCalendar(*widget);
  auto* binding = new Binding(month, *widget, [&month, widget](Aspect) {
    const QSignalBlocker quiet(widget);
    widget->setSelectedDate(ToQt(month.Value()));
  });
  QObject::connect(widget, &QCalendarWidget::clicked, binding, [&month](QDate date) { month.UserClick(FromQt(date)); });
  auto* days = widget->findChild<QTableView*>();
  widget->setFocusProxy(days);
  // Every key is the model's, except Tab, which travels on.
  new Sieve(*days, [&month, binding = QPointer<Binding>(binding)](QEvent& event) {
    if (event.type() != QEvent::KeyPress || !binding) return false;
    const int code = KeyCodeOf(static_cast<QKeyEvent&>(event));
    if (code == 0 || static_cast<QKeyEvent&>(event).modifiers() & Qt::AltModifier) return false;
    month.UserKey(code);
    return true;
  });
  return binding;
}

Binding* MakePicture(Picture& picture, QWidget* parent) {
  auto* widget = new QLabel(parent);
  widget->setAlignment(Qt::AlignCenter);
  widget->setPixmap(NamedPicture(picture.Source(), parent->devicePixelRatioF()));
  return new Binding(picture, *widget, nullptr);
}

void FillPanels(QStatusBar& widget, const StatusBar& bar) {
  auto panels = widget.findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly);
  while (panels.size() > static_cast<qsizetype>(bar.Panels().size())) delete panels.takeLast();
  while (panels.size() < static_cast<qsizetype>(bar.Panels().size())) {
    panels.push_back(new QLabel(&widget));
    panels.back()->setTextFormat(Qt::PlainText);
    widget.addWidget(panels.back());
  }
  for (qsizetype i = 0; i < panels.size(); ++i) {
    const auto& panel = bar.Panels()[static_cast<std::size_t>(i)];
    panels[i]->setText(ToQt(panel.text));
    panels[i]->setMinimumWidth(std::max(ToPixels(panel.width), panels[i]->sizeHint().width()));
  }
}

Binding* MakeStatusBar(StatusBar& bar, QWidget* parent) {
  auto* widget = new QStatusBar(parent);
  widget->setSizeGripEnabled(false);
  return new Binding(bar, *widget, [&bar, widget](Aspect) { FillPanels(*widget, bar); });
}

Binding* MakeTabs(TabControl& tabs, QWidget* parent) {
  auto* widget = new QTabWidget(parent);
  widget->setDocumentMode(false);
  auto* binding = new Binding(tabs, *widget, [&tabs, widget](Aspect) {
    const QSignalBlocker quiet(widget);
    widget->setCurrentIndex(tabs.Tab());
  });
  QObject::connect(widget, &QTabWidget::currentChanged, binding, [&tabs](int index) { tabs.SetTab(index); });
  return binding;
}

}  // namespace

void RegisterStandardWidgets(WidgetFactory& factory, const RegionalSettings& settings) {
  factory.Register<Label>(MakeLabel);
  factory.Register<TextBox>(MakeTextBox);
  factory.Register<MaskedBox>(MakeMaskedBox);
  factory.Register<Button>(MakeButton);
  factory.Register<OptionButton>(MakeOptionButton);
  factory.Register<ComboBox>(MakeComboBox);
  factory.Register<DatePicker>([format = ToQt(settings.shortDate)](DatePicker& picker, QWidget* parent) {
    return MakeDatePicker(picker, parent, format);
  });
  factory.Register<MonthView>(MakeMonthView);
  factory.Register<Picture>(MakePicture);
  factory.Register<StatusBar>(MakeStatusBar);
  factory.Register<TabControl>(MakeTabs);
  factory.Register<Grid>(
      [settings](Grid& grid, QWidget* parent) { return (new GridView(grid, parent, settings))->Bound(); });
}

}  // namespace norvane::ui
