#include "data/KeyText.h"

#include "core/Conversions.h"
#include "core/RuntimeError.h"
#include "core/SqlText.h"
#include "core/Val.h"

namespace norvane {

KeyText& KeyText::operator=(std::int32_t number) {
  text_ = sql::Text(number);
  return *this;
}

KeyText::operator std::int32_t() const {
  if (text_.empty()) Raise(ErrorNumber::TypeMismatch);
  return ValLong(text_);
}

}  // namespace norvane
