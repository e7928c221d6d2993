#include <algorithm>

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>

#include "ui/Convert.h"
#include "ui/EventFilter.h"
#include "ui/StandardWidgets.h"
#include "ui/Theme.h"

namespace norvane::ui {
namespace {

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

}  // namespace

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

Binding* MakeMaskedBox(MaskedBox& box, QWidget* parent) {
  auto* widget = new QLineEdit(parent);
  widget->setInputMask("99/99/99;_");
  widget->setFixedWidth(WidthOf(*widget, 8));
  auto* binding = new Binding(box, *widget, [&box, widget](Aspect) {
    if (widget->displayText() != ToQt(box.Text())) widget->setText(ToQt(box.Text()));
  });
  QObject::connect(widget, &QLineEdit::textEdited, binding,
                   [&box, widget] { box.UserType(FromQt(widget->displayText())); });
  new EventFilter(*widget, [&box, widget, bound = QPointer<Binding>(binding)](QEvent& event) {
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

}  // namespace norvane::ui
