#include "data/NumberText.h"

#include "core/Conversions.h"
#include "core/RuntimeError.h"

namespace norvane {

NumberText& NumberText::operator=(std::int32_t number) {
  text_ = sql::Text(number);
  return *this;
}

NumberText::operator std::int32_t() const {
  if (text_.empty()) Raise(ErrorNumber::TypeMismatch);
  return ValLong(text_);
}

}  // namespace norvane
