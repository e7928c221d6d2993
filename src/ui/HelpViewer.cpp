#include "ui/HelpViewer.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QRegularExpression>
#include <QSignalBlocker>
#include <QSplitter>
#include <QTextBrowser>
#include <QToolBar>

#include "ui/Convert.h"
#include "ui/Theme.h"

namespace norvane::ui {
namespace {

/// The title of a page, or its file name if it has none.
QString TitleOf(const QString& path) {
  QFile file(path);
  static const QRegularExpression title(
      "<title>\\s*(.*?)\\s*</title>",
      QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption);
  const QString text = file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
  const auto match = title.match(text);
  return match.hasMatch() ? match.captured(1) : QFileInfo(path).completeBaseName();
}

/// The pages that a page links to, in its order.
QStringList LinksOf(const QString& path) {
  QFile file(path);
  static const QRegularExpression link("href=\"([^\"#/:]+\\.html)", QRegularExpression::CaseInsensitiveOption);
  QStringList names;
  if (!file.open(QIODevice::ReadOnly)) return names;
  for (auto match = link.globalMatch(QString::fromUtf8(file.readAll())); match.hasNext();) {
    names.append(match.next().captured(1));
  }
  names.removeDuplicates();
  return names;
}

}  // namespace

HelpViewer::HelpViewer(const std::filesystem::path& folder)
    : contents_(new QListWidget(this)), page_(new QTextBrowser(this)) {
  setAttribute(Qt::WA_DeleteOnClose);
  setWindowTitle(tr("Norvanes Help"));
  auto* splitter = new QSplitter(this);
  splitter->addWidget(contents_);
  splitter->addWidget(page_);
  splitter->setStretchFactor(1, 1);
  splitter->setSizes({240, 720});
  splitter->setContentsMargins(12, 12, 12, 12);
  setCentralWidget(splitter);
  page_->document()->setDocumentMargin(16);
  page_->setOpenExternalLinks(true);
  contents_->setAccessibleName(tr("Contents"));
  BuildTools();
  const QString path = FromPath(folder);
  ListPages(path);
  connect(contents_, &QListWidget::currentItemChanged, this, [this](const QListWidgetItem* item) {
    if (item) page_->setSource(item->data(Qt::UserRole).toUrl());
  });
  connect(page_, &QTextBrowser::sourceChanged, this, &HelpViewer::MarkPage);
  page_->setSource(QUrl::fromLocalFile(QDir(path).filePath(kFirstPage)));
  page_->setFocus();
  resize(980, 680);
}

void HelpViewer::BuildTools() {
  auto* tools = addToolBar(tr("Navigation"));
  tools->setMovable(false);
  tools->setIconSize({20, 20});
  auto* back = tools->addAction(NamedIcon("back"), tr("Back"), QKeySequence::Back, page_, &QTextBrowser::backward);
  auto* forward =
      tools->addAction(NamedIcon("forward"), tr("Forward"), QKeySequence::Forward, page_, &QTextBrowser::forward);
  tools->addAction(NamedIcon("home"), tr("First Page"), page_, &QTextBrowser::home);
  back->setEnabled(false);
  forward->setEnabled(false);
  connect(page_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
  connect(page_, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
  auto* find = new QLineEdit(tools);
  find->setPlaceholderText(tr("Find on this page"));
  find->setMaximumWidth(240);
  find->setClearButtonEnabled(true);
  tools->addWidget(find);
  connect(find, &QLineEdit::returnPressed, this, [this, find] { Find(find->text()); });
  auto* close = new QAction(this);
  close->setShortcut(Qt::Key_Escape);
  connect(close, &QAction::triggered, this, &QWidget::close);
  addAction(close);
}

void HelpViewer::ListPages(const QString& folder) {
  const QDir pages(folder);
  const auto add = [&](const QString& name) {
    const QString path = pages.filePath(name);
    auto* item = new QListWidgetItem(TitleOf(path), contents_);
    item->setData(Qt::UserRole, QUrl::fromLocalFile(path));
  };
  add(kFirstPage);
  for (const auto& name : LinksOf(pages.filePath(kFirstPage))) {
    if (pages.exists(name)) add(name);
  }
}

void HelpViewer::MarkPage(const QUrl& page) {
  const QSignalBlocker quiet(contents_);
  for (int row = 0; row < contents_->count(); ++row) {
    const QUrl listed = contents_->item(row)->data(Qt::UserRole).toUrl();
    if (listed.path() == page.path()) contents_->setCurrentRow(row);
  }
}

void HelpViewer::Find(const QString& words) {
  if (page_->find(words)) return;
  page_->moveCursor(QTextCursor::Start);  // from the top again
  page_->find(words);
}

}  // namespace norvane::ui
