#include "app/FirstStart.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

#include "forms/Desktop.h"
#include "ui/FormWindow.h"
#include "ui/Theme.h"

namespace norvane {

FirstStart AskForFirstStart() {
  constexpr int kPicture = 64;
  ui::ApplyTheme(*qApp, ui::IsDark(*qApp));
  QMessageBox box(QMessageBox::NoIcon, kApplicationTitle, "Welcome to Norvanes.");
  box.setInformativeText(
      "Start with an empty business of your own, or look around in the sample business, a bicycle shop. It is kept "
      "apart from yours, and you are asked again until you have one.");
  box.setIconPixmap(QApplication::windowIcon().pixmap(kPicture));
  box.setWindowFlags(ui::kDialogFrame);
  QPushButton* empty = box.addButton("Start &empty", QMessageBox::AcceptRole);
  QPushButton* sample = box.addButton("&Open the sample business", QMessageBox::ActionRole);
  box.setEscapeButton(box.addButton("&Quit", QMessageBox::RejectRole));
  box.setDefaultButton(empty);
  for (QAbstractButton* button : box.buttons()) {
    button->ensurePolished();
    button->setMinimumWidth(button->sizeHint().width());
  }
  box.exec();
  if (box.clickedButton() == empty) return FirstStart::Empty;
  return box.clickedButton() == sample ? FirstStart::Sample : FirstStart::Quit;
}

}  // namespace norvane
