#include <algorithm>

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QStyle>

#include "core/MaskText.h"
#include "core/Trap.h"
#include "ui/Apostrophe.h"
#include "ui/Convert.h"
#include "ui/EventFilter.h"
#include "ui/StandardWidgets.h"

namespace norvane::ui {
namespace {

constexpr int kDigits = 6;  // of a masked date

/// A slash typed after a lone digit gives it a leading zero and goes on to the next place.
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

/// The day that the box shows, today unless it shows one.
Date DayOf(const MaskedBox& box, const Clock& clock) {
  constexpr int kLastOfThisCentury = 49;
  const QStringList parts = ToQt(box.Text()).split('/');
  const int year = parts.value(2).toInt();
  const QDate day((year > kLastOfThisCentury ? 1900 : 2000) + year, parts.value(0).toInt(), parts.value(1).toInt());
  return day.isValid() ? FromQt(day) : clock.Today();
}

/// A slash closes a place; "t" is today, "+" and "-" are the day after and before.
bool UseDateKey(const QString& key, MaskedBox& box, QLineEdit& widget, const Clock& clock) {
  if (key == "/") {
    CloseMaskPlace(box, widget);
    return true;
  }
  const bool isToday = key.compare("t", Qt::CaseInsensitive) == 0;
  if (!isToday && key != "+" && key != "-") return false;
  const Date day = isToday ? clock.Today() : Date(DayOf(box, clock).Day() + (key == "+" ? 1 : -1));
  box.UserType(MaskedDateText(day));
  return true;
}

/// A box above a list leaves it the keys that move by rows.
bool UseListKey(const QKeyEvent& event, TextBox& box) {
  switch (event.key()) {
    case Qt::Key_Up:
      return box.UserKey(Key::Up);
    case Qt::Key_Down:
      return box.UserKey(Key::Down);
    case Qt::Key_PageUp:
      return box.UserKey(Key::PageUp);
    case Qt::Key_PageDown:
      return box.UserKey(Key::PageDown);
    default:
      return false;
  }
}

bool CanBeRead(const MaskedBox& box, const Conversions& convert) {
  if (ToQt(box.Text()).count('_') == kDigits) return true;
  bool isDate = false;
  IgnoringErrors([&] {
    convert.ToDateFromMask(box.Text());
    isDate = true;
  });
  return isDate;
}

}  // namespace

Binding* MakeLabel(Label& label, QWidget* parent) {
  auto* widget = new QLabel(parent);
  widget->setTextFormat(Qt::PlainText);
  return new Binding(label, *widget, [&label, widget](Aspect) {
    widget->setText(ToQt(label.Caption()));
    widget->setProperty("red", label.ForeColor() == Colour::Red);
    widget->setProperty("muted", label.ForeColor() == Colour::Grey);
    widget->style()->unpolish(widget);
    widget->style()->polish(widget);
  });
}

Binding* MakeTextBox(TextBox& box, QWidget* parent) {
  auto* widget = new QLineEdit(parent);
  widget->setMinimumWidth(WidthOf(*widget, box.Style().characters));
  TypeApostrophes(*widget);
  if (box.Style().rightAligned) widget->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  auto* binding = new Binding(box, *widget, [&box, widget](Aspect) {
    if (widget->text() == ToQt(box.Text())) return;
    ShowStored(*widget, ToQt(box.Text()));
    if (!widget->hasFocus()) widget->setCursorPosition(0);
  });
  QObject::connect(widget, &QLineEdit::textEdited, binding,
                   [&box](const QString& text) { box.UserType(FromQt(text)); });
  new EventFilter(*widget, [&box, bound = QPointer<Binding>(binding)](QEvent& event) {
    return bound && event.type() == QEvent::KeyPress && UseListKey(static_cast<QKeyEvent&>(event), box);
  });
  return binding;
}

Binding* MakeMaskedBox(MaskedBox& box, QWidget* parent, const WidgetServices& services) {
  auto* widget = new QLineEdit(parent);
  widget->setInputMask("99/99/99;_");
  widget->setFixedWidth(WidthOf(*widget, 8));
  auto* binding = new Binding(box, *widget, [&box, widget](Aspect) {
    if (widget->displayText() != ToQt(box.Text())) widget->setText(ToQt(box.Text()));
    MarkUnreadable(*widget, false);
  });
  QObject::connect(widget, &QLineEdit::textEdited, binding,
                   [&box, widget] { box.UserType(FromQt(widget->displayText())); });
  new EventFilter(*widget, [&box, services, widget, bound = QPointer<Binding>(binding)](QEvent& event) {
    if (event.type() == QEvent::FocusOut && bound) MarkUnreadable(*widget, !CanBeRead(box, services.convert));
    if (event.type() == QEvent::FocusIn) {
      QMetaObject::invokeMethod(
          widget, [widget] { widget->home(false); }, Qt::QueuedConnection);
    }
    if (event.type() != QEvent::KeyPress || !bound) return false;
    return UseDateKey(static_cast<QKeyEvent&>(event).text(), box, *widget, services.clock);
  });
  return binding;
}

}  // namespace norvane::ui
