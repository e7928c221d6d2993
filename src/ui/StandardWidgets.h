#pragma once

#include <functional>

#include <QDate>

#include "forms/Controls.h"
#include "ui/Binding.h"
#include "ui/WidgetFactory.h"

/// The makers that RegisterStandardWidgets enters into the factory, and what they share.
namespace norvane::ui {

Binding* MakeLabel(Label& label, QWidget* parent);
Binding* MakeTextBox(TextBox& box, QWidget* parent);
/// Helps the user to fill a text box: offers its suggestions, gives a date its calendar and keys, and marks a text that
/// can't be read as what the box is for.
Binding* HelpWithEntry(Binding& binding, TextBox& box, const WidgetServices& services);
Binding* MakeMaskedBox(MaskedBox& box, QWidget* parent, const WidgetServices& services);
Binding* MakeButton(Button& button, QWidget* parent);
Binding* MakeOptionButton(OptionButton& option, QWidget* parent);
Binding* MakeComboBox(ComboBox& combo, QWidget* parent);
/// A button that opens a calendar.
Binding* MakeDatePicker(DatePicker& picker, QWidget* parent);
Binding* MakeMonthView(MonthView& month, QWidget* parent);

inline constexpr int kInputPadding = 20;  ///< border and padding of the style sheet, both sides

/// What a field for so many characters takes, in pixels.
int WidthOf(const QWidget& widget, int characters);

/// Opens the calendar below a widget; a day picked goes to `picked` as long as the binding exists.
void OpenCalendar(QWidget& widget, QDate day, Binding& binding, const std::function<void(QDate)>& picked);

/// Draws a field red, or no longer, whose text can't be read.
void MarkUnreadable(QWidget& field, bool isUnreadable);

/// Makes a masked box and the calendar button that belongs to it one field.
void PutIntoField(QWidget& field, QWidget& button);

/// A wheel turned over a field without the focus scrolls what is around it and changes no value.
void IgnoreStrayWheel(QWidget& widget);

}  // namespace norvane::ui
