#include "tour/Paper.h"

#include <algorithm>
#include <stdexcept>

#include <QImage>
#include <QPainter>

#include "forms/Preview.h"
#include "ui/PagePdf.h"

namespace norvane::tour {
namespace {

constexpr double kDotsPerInch = 100;

const Preview* PreviewOf(const Form& form) {
  for (const Control* control : form.Controls())
    if (const auto* preview = dynamic_cast<const Preview*>(control)) return preview;
  return nullptr;
}

QImage Picture(const pages::Pages& document, std::size_t page) {
  const double scale = kDotsPerInch / pages::kPointsPerInch;
  QImage picture(static_cast<int>(pages::kPageWidth * scale), static_cast<int>(pages::kPageHeight * scale),
                 QImage::Format_RGB32);
  picture.fill(Qt::white);
  QPainter painter(&picture);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
  ui::PaintPage(painter, document, page, {}, scale);
  return picture;
}

void Insist(bool written, const QString& file) {
  if (!written) throw std::runtime_error("can't write " + file.toStdString());
}

}  // namespace

std::size_t WritePaper(const Form& form, const std::filesystem::path& folder, const std::string& name) {
  const Preview* preview = PreviewOf(form);
  if (preview == nullptr || preview->PageCount() == 0) return 0;
  const pages::Pages& document = preview->Pages();
  const QString base = QString::fromStdString((folder / name).string());
  const QString title = QString::fromStdString(preview->Title());
  Insist(ui::WritePdf(document, title, base + ".pdf").painted == ui::Painted::All, base + ".pdf");
  const std::size_t pictures = std::min(document.pages.size(), kPicturedPages);
  for (std::size_t page = 0; page < pictures; ++page) {
    const QString file = QString("%1-%2.png").arg(base).arg(page + 1);
    Insist(Picture(document, page).save(file), file);
  }
  return pictures;
}

}  // namespace norvane::tour
