#pragma once

#include <string>

#include "core/Date.h"
#include "forms/Controls.h"
#include "forms/Layout.h"

namespace norvane {

// A masked date box with a drop-down picker over it. The picker writes into the box and never the other way round, so
// after typing the two hold different dates; each report says which half it reads.

/// A change of the picker is written into the box as "mm/dd/yy". That is all that happens.
void WritePickedDate(DatePicker& picker, MaskedBox& box);
/// Puts a date into both halves.
void SetDates(DatePicker& picker, MaskedBox& box, Date date);
/// Both, after one label.
layout::Node DateField(std::string label, MaskedBox& box, DatePicker& picker);

}  // namespace norvane
