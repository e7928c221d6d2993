#include "ui/TypeAhead.h"

#include <QApplication>
#include <QStyle>

namespace norvane::ui {
namespace {

constexpr int kShownMilliseconds = 1500;
constexpr int kMargin = 8;
constexpr int kPadding = 4;
constexpr int kScrollBar = 11;  // as wide as the style sheet makes it

}  // namespace

TypeAhead::TypeAhead(QWidget* list) : QLabel(list) {
  setTextFormat(Qt::PlainText);
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setAccessibleName("Search");
  setMargin(kPadding);
  setIndent(kPadding);
  away_.setSingleShot(true);
  connect(&away_, &QTimer::timeout, this, &TypeAhead::Forget);
  hide();
}

bool TypeAhead::Begins() const {
  return word_.isEmpty() || sinceLetter_.elapsed() > QApplication::keyboardInputInterval();
}

QString TypeAhead::Add(const QString& letters) {
  if (Begins()) word_.clear();
  sinceLetter_.start();
  return word_ += letters;
}

QString TypeAhead::RemoveLast() {
  word_.chop(1);
  sinceLetter_.start();
  return word_;
}

void TypeAhead::ShowResult(bool found) {
  missed_ = !found;
  found ? away_.start(kShownMilliseconds) : away_.stop();
  setAccessibleDescription(found ? QString() : "No row matches");
  setProperty("typed", found ? "found" : "missed");
  style()->unpolish(this);
  style()->polish(this);
  setText(found ? word_ : word_ + "  ?");
  Place();
  show();
}

void TypeAhead::Forget() {
  word_.clear();
  missed_ = false;
  hide();
}

void TypeAhead::Place() {
  adjustSize();
  const QSize list = parentWidget()->size();
  move(list.width() - width() - kScrollBar - kMargin, list.height() - height() - kMargin);
  raise();
}

}  // namespace norvane::ui
