#include "ui/MailProgram.h"

#include <QDateTime>
#include <QDir>
#include <QProcess>
#include <QStandardPaths>
#include <QWidget>

#include "ui/Convert.h"
#include "ui/PagePdf.h"
#include "ui/Warning.h"

namespace norvane::ui {
namespace {

constexpr const char* kNoMailProgram =
    "No mail program could be opened on this desktop.  Save the document as a PDF and attach it to a letter yourself.";

void RemoveOld(const QDir& folder) {
  const QDateTime yesterday = QDateTime::currentDateTime().addDays(-1);
  for (const QFileInfo& file : folder.entryInfoList(QDir::Files)) {
    if (file.lastModified() < yesterday) QFile::remove(file.filePath());
  }
}

/// Where the PDF of that title is kept; empty if there is no such folder and none can be made.
QString AttachmentFor(QString title) {
  const QDir folder(QStandardPaths::writableLocation(QStandardPaths::CacheLocation) + "/sent");
  if (!folder.mkpath(".")) return {};
  QFile::setPermissions(folder.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
  RemoveOld(folder);
  return folder.filePath(title.replace('/', '-') + ".pdf");
}

QStringList Arguments(const Letter& letter, const QString& attachment) {
  QStringList arguments = {"--utf8", "--subject", ToQt(letter.subject), "--attach", attachment};
  const QString address = ToQt(letter.address).trimmed();
  if (!address.isEmpty() && !address.startsWith('-')) arguments << address;
  return arguments;
}

}  // namespace

void SendPages(const pages::Pages& document, const QString& title, const Letter& letter, QWidget* window) {
  const QString program = QStandardPaths::findExecutable("xdg-email");
  if (program.isEmpty()) return Warn(window, kNoMailProgram);
  const QString attachment = AttachmentFor(title);
  const PdfOutcome outcome = attachment.isEmpty() ? PdfOutcome() : WritePdf(document, title, attachment);
  if (outcome.painted != Painted::All) return Warn(window, "The PDF to attach could not be written: " + outcome.why);
  auto* mail = new QProcess(window);
  QObject::connect(mail, &QProcess::finished, window, [mail, window](int code) {
    mail->deleteLater();
    if (code != 0) Warn(window, kNoMailProgram);
  });
  mail->start(program, Arguments(letter, attachment));
}

}  // namespace norvane::ui
