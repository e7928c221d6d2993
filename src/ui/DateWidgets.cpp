#include <map>

#include <QCalendarWidget>
#include <QDateEdit>
#include <QKeyEvent>
#include <QLocale>
#include <QPointer>
#include <QSignalBlocker>
#include <QTableView>
#include <QTextCharFormat>
#include <QToolButton>

#include "forms/Form.h"
#include "ui/Convert.h"
#include "ui/EventFilter.h"
#include "ui/StandardWidgets.h"
#include "ui/Theme.h"

namespace norvane::ui {
namespace {

/// Gives a calendar the theme's arrows, plain weekends, the machine's first day of the week and room for six weeks.
void StyleCalendar(QCalendarWidget& calendar) {
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

/// Tab leaves a field at once instead of going from part to part of a date.
void LeaveByTab(QWidget& widget, Form& form) {
  new EventFilter(widget, [&form](QEvent& event) {
    if (event.type() != QEvent::KeyPress) return false;
    const int key = static_cast<QKeyEvent&>(event).key();
    if (key != Qt::Key_Tab && key != Qt::Key_Backtab) return false;
    form.UserTab(key == Qt::Key_Backtab);
    return true;
  });
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

}  // namespace

Binding* MakeDatePicker(DatePicker& picker, QWidget* parent, const QString& format) {
  auto* widget = new QDateEdit(parent);
  widget->setCalendarPopup(true);
  StyleCalendar(*widget->calendarWidget());
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

Binding* MakeMonthView(MonthView& month, QWidget* parent) {
  auto* widget = new QCalendarWidget(parent);
  StyleCalendar(*widget);
  auto* binding = new Binding(month, *widget, [&month, widget](Aspect) {
    const QSignalBlocker quiet(widget);
    widget->setSelectedDate(ToQt(month.Value()));
  });
  QObject::connect(widget, &QCalendarWidget::clicked, binding, [&month](QDate date) { month.UserClick(FromQt(date)); });
  auto* days = widget->findChild<QTableView*>();
  widget->setFocusProxy(days);
  // Every key goes to the model, except Tab.
  new EventFilter(*days, [&month, binding = QPointer<Binding>(binding)](QEvent& event) {
    if (event.type() != QEvent::KeyPress || !binding) return false;
    const int code = KeyCodeOf(static_cast<QKeyEvent&>(event));
    if (code == 0 || static_cast<QKeyEvent&>(event).modifiers() & Qt::AltModifier) return false;
    month.UserKey(code);
    return true;
  });
  return binding;
}

}  // namespace norvane::ui
