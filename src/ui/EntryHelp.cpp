#include <QAction>
#include <QCompleter>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>
#include <QStringListModel>
#include <QStyle>

#include "core/Conversions.h"
#include "ui/CellEntry.h"
#include "ui/Convert.h"
#include "ui/EventFilter.h"
#include "ui/StandardWidgets.h"
#include "ui/Theme.h"

namespace norvane::ui {
namespace {

/// An empty box says nothing that could be wrong.
bool CanBeRead(const TextBox& box, const Conversions& convert) {
  if (box.Text().empty()) return true;
  switch (box.Style().content) {
    case TextContent::Text:
      return true;
    case TextContent::Number:
      return convert.IsNumeric(box.Text());
    case TextContent::Date:
      return convert.IsDate(box.Text());
  }
  return true;
}

/// Texts are marked as the box is left and not while they grow, but a mark goes as soon as the text is in order.
void FollowReading(QLineEdit& widget, TextBox& box, Binding& binding, const Conversions& convert) {
  if (box.Style().content == TextContent::Text) return;
  const auto look = [&widget, &box, &convert] {
    const bool isUnreadable = !CanBeRead(box, convert);
    if (!isUnreadable || !widget.hasFocus()) MarkUnreadable(widget, isUnreadable);
  };
  QObject::connect(&widget, &QLineEdit::textChanged, &binding, look);
  new EventFilter(widget, [look, bound = QPointer<Binding>(&binding)](QEvent& event) {
    // The widget has the focus until the event is through.
    if (event.type() == QEvent::FocusOut && bound) QMetaObject::invokeMethod(bound, look, Qt::QueuedConnection);
    return false;
  });
}

QDate DayOf(const TextBox& box, const WidgetServices& services) {
  const bool isDate = services.convert.IsDate(box.Text());
  return ToQt(isDate ? services.convert.ToDate(box.Text()) : services.clock.Today());
}

/// "t" is today, "+" and "-" are the day after and before; F4 opens the calendar. A separator typed within a date is no
/// step to another day.
void GiveCalendar(QLineEdit& widget, TextBox& box, Binding& binding, const WidgetServices& services) {
  const auto pick = [&box, services](QDate day) { box.UserType(services.convert.ToText(FromQt(day))); };
  const auto open = [&widget, &box, &binding, services, pick] {
    OpenCalendar(widget, DayOf(box, services), binding, pick);
  };
  QAction* calendar = widget.addAction(NamedIcon("calendar"), QLineEdit::TrailingPosition);
  calendar->setText("Calendar");
  QObject::connect(calendar, &QAction::triggered, &binding, open);
  new EventFilter(widget, [=, &widget, &box, bound = QPointer<Binding>(&binding)](QEvent& event) {
    if (event.type() != QEvent::KeyPress || !bound) return false;
    const auto& key = static_cast<QKeyEvent&>(event);
    if (key.key() == Qt::Key_F4) return open(), true;
    const bool isWhole = widget.selectedText() == widget.text() || key.text() == "+";
    const CellEntry entry(services.convert, services.clock);
    const auto date = isWhole ? entry.DateByKey(key.text(), widget.text()) : std::nullopt;
    if (!date) return false;
    box.UserType(FromQt(*date));
    widget.selectAll();
    return true;
  });
}

/// A text picked or passed over in the list is what the user has typed.
void OfferSuggestions(QLineEdit& widget, TextBox& box, Binding& binding) {
  if (!widget.completer()) {
    auto* completer = new QCompleter(new QStringListModel(&widget), &widget);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    widget.setCompleter(completer);
    const auto take = [&box](const QString& text) { box.UserType(FromQt(text)); };
    QObject::connect(completer, qOverload<const QString&>(&QCompleter::activated), &binding, take);
    QObject::connect(completer, qOverload<const QString&>(&QCompleter::highlighted), &binding, take);
  }
  QStringList texts;
  for (const std::string& text : box.Suggestions()) texts.append(ToQt(text));
  static_cast<QStringListModel*>(widget.completer()->model())->setStringList(texts);
}

}  // namespace

void MarkUnreadable(QWidget& field, bool isUnreadable) {
  if (field.property("unreadable").toBool() == isUnreadable) return;
  field.setProperty("unreadable", isUnreadable);
  field.setAccessibleDescription(isUnreadable ? "This can't be read" : "");
  field.style()->unpolish(&field);
  field.style()->polish(&field);
}

Binding* HelpWithEntry(Binding& binding, TextBox& box, const WidgetServices& services) {
  auto& widget = static_cast<QLineEdit&>(binding.Widget());
  if (box.Style().content == TextContent::Date) GiveCalendar(widget, box, binding, services);
  FollowReading(widget, box, binding, services.convert);
  box.observer = [&widget, &box, &binding, follow = std::move(box.observer)](Aspect aspect) {
    if (aspect == Aspect::Items) return OfferSuggestions(widget, box, binding);
    follow(aspect);
  };
  return &binding;
}

}  // namespace norvane::ui
