#include "ui/FileDialogs.h"

#include <QDir>
#include <QFileDialog>
#include <QStandardPaths>

#include "ui/Convert.h"

namespace norvane::ui {
namespace {

/// The user's documents folder, or the home folder if there is none.
QString SuggestedFolder() {
  const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  return QDir(documents).exists() ? documents : QDir::homePath();
}

QString FilterOf(const QString& ending) {
  return ending.isEmpty() ? QString() : QString("%1 (*.%2)").arg(ending.toUpper(), ending);
}

}  // namespace

QString AskForFile(const FileRequest& request, QWidget* parent) {
  QFileDialog dialog(parent, ToQt(request.title), SuggestedFolder(), FilterOf(ToQt(request.ending)));
  if (request.kind == FileRequest::Kind::Folder) {
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
  } else if (request.kind == FileRequest::Kind::Open) {
    dialog.setFileMode(QFileDialog::ExistingFile);
  } else {
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(ToQt(request.ending));
    if (!request.name.empty()) dialog.selectFile(ToQt(request.name).replace('/', '-') + "." + ToQt(request.ending));
  }
  return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

}  // namespace norvane::ui
