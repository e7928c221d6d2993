#include "forms/DatePair.h"

#include "core/Conversions.h"
#include "core/MaskText.h"

namespace norvane {

void WritePickedDate(DatePicker& picker, MaskedBox& box) {
  picker.Change = [&picker, &box] { box.SetText(MaskedDateText(picker.Value())); };
}

// A picker that holds the date already raises no change, and the box may hold another one.
void SetDates(DatePicker& picker, MaskedBox& box, Date date) {
  picker.SetValue(date);
  box.SetText(MaskedDateText(date));
}

layout::Node DateField(std::string label, MaskedBox& box, DatePicker& picker) {
  return layout::Field(std::move(label), layout::Row({box, picker}));
}

}  // namespace norvane
