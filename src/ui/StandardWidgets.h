#pragma once

#include "forms/Controls.h"
#include "ui/Binding.h"

class QString;

/// The makers that RegisterStandardWidgets enters into the factory, and what they share.
namespace norvane::ui {

Binding* MakeLabel(Label& label, QWidget* parent);
Binding* MakeTextBox(TextBox& box, QWidget* parent);
Binding* MakeMaskedBox(MaskedBox& box, QWidget* parent);
Binding* MakeButton(Button& button, QWidget* parent);
Binding* MakeOptionButton(OptionButton& option, QWidget* parent);
Binding* MakeComboBox(ComboBox& combo, QWidget* parent);
/// `format` is the region's short date.
Binding* MakeDatePicker(DatePicker& picker, QWidget* parent, const QString& format);
Binding* MakeMonthView(MonthView& month, QWidget* parent);

inline constexpr int kInputPadding = 20;  ///< border and padding of the style sheet, both sides

/// What a field for so many characters takes, in pixels.
int WidthOf(const QWidget& widget, int characters);

/// A wheel turned over a field without the focus scrolls what is around it and changes no value.
void IgnoreStrayWheel(QWidget& widget);

}  // namespace norvane::ui
