#include <functional>
#include <map>

#include <QCalendarWidget>
#include <QFrame>
#include <QKeyEvent>
#include <QLineEdit>
#include <QLocale>
#include <QPointer>
#include <QScreen>
#include <QSignalBlocker>
#include <QTableView>
#include <QTextCharFormat>
#include <QToolButton>
#include <QVBoxLayout>

#include "forms/Form.h"
#include "ui/Convert.h"
#include "ui/EventFilter.h"
#include "ui/StandardWidgets.h"
#include "ui/Theme.h"

namespace norvane::ui {
namespace {

constexpr int kCalendarIcon = 16;

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
  const auto style = [&](const char* name, const char* icon, const char* spoken) {
    auto* arrow = calendar.findChild<QToolButton*>(name);
    if (!arrow) return;
    arrow->setIcon(NamedIcon(icon));
    arrow->setAccessibleName(spoken);
  };
  style("qt_calendar_prevmonth", "previous", "Previous Month");
  style("qt_calendar_nextmonth", "next", "Next Month");
  if (auto* days = calendar.findChild<QTableView*>()) days->setAccessibleName("Days");
  calendar.setMinimumHeight((kHeadingRows + kWeeks) * (calendar.fontMetrics().height() + kDayPadding));
}

}  // namespace

void OpenCalendar(QWidget& button, QDate day, Binding& binding, const std::function<void(QDate)>& picked) {
  auto* popup = new QFrame(&button, Qt::Popup);
  popup->setAttribute(Qt::WA_DeleteOnClose);
  popup->setFrameShape(QFrame::StyledPanel);
  auto* calendar = new QCalendarWidget(popup);
  StyleCalendar(*calendar);
  calendar->setSelectedDate(day);
  auto* box = new QVBoxLayout(popup);
  box->setContentsMargins(1, 1, 1, 1);
  box->addWidget(calendar);
  const auto take = [popup, picked, &button, bound = QPointer<Binding>(&binding)](QDate chosen) {
    popup->close();
    if (!bound) return;
    button.window()->activateWindow();
    picked(chosen);
  };
  QObject::connect(calendar, &QCalendarWidget::clicked, popup, take);
  QObject::connect(calendar, &QCalendarWidget::activated, popup, take);
  popup->adjustSize();
  const QRect room = button.screen()->availableGeometry();
  QRect place(button.mapToGlobal(QPoint(0, button.height())), popup->size());
  if (place.right() > room.right()) place.moveRight(room.right());
  if (place.bottom() > room.bottom()) place.moveBottom(button.mapToGlobal(QPoint()).y());
  popup->move(place.topLeft());
  popup->show();
  calendar->setFocus();
}

namespace {

/// Up and Down change the day, F4 and Alt+Down open the calendar, and Tab leaves.
bool UseKey(const QKeyEvent& event, DatePicker& picker, QToolButton& widget) {
  switch (event.key()) {
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
      picker.Parent().UserTab(event.key() == Qt::Key_Backtab);
      return true;
    case Qt::Key_F4:
      widget.click();
      return true;
    case Qt::Key_Up:
    case Qt::Key_Down:
      if (event.modifiers() & Qt::AltModifier) {
        widget.click();
      } else {
        picker.UserPick(FromQt(ToQt(picker.Value()).addDays(event.key() == Qt::Key_Up ? 1 : -1)));
      }
      return true;
    default:
      return false;
  }
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

Binding* MakeDatePicker(DatePicker& picker, QWidget* parent) {
  auto* widget = new QToolButton(parent);
  widget->setIcon(NamedIcon("calendar"));
  widget->setIconSize({kCalendarIcon, kCalendarIcon});
  widget->setFocusPolicy(Qt::StrongFocus);
  widget->setCursor(Qt::ArrowCursor);
  widget->setAccessibleName("Calendar");
  auto* binding = new Binding(picker, *widget, [&picker, widget](Aspect) {
    widget->setAccessibleDescription(ToQt(picker.Value()).toString(Qt::ISODate));
  });
  QObject::connect(widget, &QToolButton::clicked, binding, [&picker, widget, binding] {
    picker.SetFocus();
    OpenCalendar(*widget, ToQt(picker.Value()), *binding, [&picker](QDate day) { picker.UserPick(FromQt(day)); });
  });
  new EventFilter(*widget, [&picker, widget, bound = QPointer<Binding>(binding)](QEvent& event) {
    return event.type() == QEvent::KeyPress && bound && UseKey(static_cast<QKeyEvent&>(event), picker, *widget);
  });
  return binding;
}

void PutIntoField(QWidget& field, QWidget& button) {
  const int width = button.sizeHint().width();
  field.setFixedWidth(field.width() + width);
  if (auto* line = qobject_cast<QLineEdit*>(&field)) line->setTextMargins(0, 0, width, 0);
  button.setParent(&field);
  const auto place = [&field, &button, width] {
    button.setGeometry(field.width() - width - 1, 1, width, field.height() - 2);
  };
  new EventFilter(field, [place](QEvent& event) {
    if (event.type() == QEvent::Resize || event.type() == QEvent::Show) place();
    return false;
  });
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
