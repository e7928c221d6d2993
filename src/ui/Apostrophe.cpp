#include "ui/Apostrophe.h"

#include <QLineEdit>
#include <QValidator>

namespace norvane::ui {
namespace {

class Typographer : public QValidator {
 public:
  using QValidator::QValidator;
  State validate(QString& text, int&) const override {
    text = WithApostrophes(text);
    return Acceptable;
  }
};

}  // namespace

void TypeApostrophes(QLineEdit& field) {
  field.setValidator(new Typographer(&field));
}

void ShowStored(QLineEdit& field, const QString& text) {
  const QValidator* validator = field.validator();
  field.setValidator(nullptr);
  field.setText(text);
  field.setValidator(validator);
}

}  // namespace norvane::ui
