#pragma once

#include "core/Clock.h"
#include "forms/Controls.h"
#include "ui/Binding.h"

/// The makers that RegisterStandardWidgets enters into the factory, and what they share.
namespace norvane::ui {

Binding* MakeLabel(Label& label, QWidget* parent);
Binding* MakeTextBox(TextBox& box, QWidget* parent);
Binding* MakeMaskedBox(MaskedBox& box, QWidget* parent, const Clock& clock);
Binding* MakeButton(Button& button, QWidget* parent);
Binding* MakeOptionButton(OptionButton& option, QWidget* parent);
Binding* MakeComboBox(ComboBox& combo, QWidget* parent);
/// A button that opens a calendar.
Binding* MakeDatePicker(DatePicker& picker, QWidget* parent);
Binding* MakeMonthView(MonthView& month, QWidget* parent);

inline constexpr int kInputPadding = 20;  ///< border and padding of the style sheet, both sides

/// What a field for so many characters takes, in pixels.
int WidthOf(const QWidget& widget, int characters);

/// Makes a masked box and the calendar button that belongs to it one field.
void PutIntoField(QWidget& field, QWidget& button);

/// A wheel turned over a field without the focus scrolls what is around it and changes no value.
void IgnoreStrayWheel(QWidget& widget);

}  // namespace norvane::ui
