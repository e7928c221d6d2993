#include "ui/HelpViewer.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QRegularExpression>
#include <QSignalBlocker>
#include <QSplitter>
#include <QStyle>
#include <QToolBar>

#include "ui/Convert.h"
#include "ui/HelpPage.h"
#include "ui/Theme.h"

namespace norvane::ui {
namespace {

constexpr auto kAnyCase = QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption;

QString Read(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// The title of a page, or its file name if it has none.
QString TitleOf(const QString& html, const QString& path) {
  static const QRegularExpression title("<title>\\s*(.*?)\\s*</title>", kAnyCase);
  const auto match = title.match(html);
  return match.hasMatch() ? match.captured(1) : QFileInfo(path).completeBaseName();
}

QStringList ScreensOf(const QString& html) {
  static const QRegularExpression screens("<meta name=\"screens\" content=\"(.*?)\"", kAnyCase);
  return screens.match(html).captured(1).split(' ', Qt::SkipEmptyParts);
}

/// The pages that a page links to, in its order.
QStringList LinksOf(const QString& html) {
  static const QRegularExpression link("href=\"([^\"#/:]+\\.html)", kAnyCase);
  QStringList names;
  for (auto match = link.globalMatch(html); match.hasNext();) names.append(match.next().captured(1));
  names.removeDuplicates();
  return names;
}

}  // namespace

HelpViewer::HelpViewer(const std::filesystem::path& folder)
    : contents_(new QListWidget(this)), page_(new HelpPage(this)), find_(new QLineEdit(this)) {
  setAttribute(Qt::WA_DeleteOnClose);
  setWindowTitle(tr("Norvanes Help"));
  auto* splitter = new QSplitter(this);
  splitter->addWidget(contents_);
  splitter->addWidget(page_);
  splitter->setStretchFactor(1, 1);
  splitter->setSizes({240, 720});
  splitter->setContentsMargins(12, 12, 12, 12);
  setCentralWidget(splitter);
  contents_->setAccessibleName(tr("Contents"));
  BuildTools();
  const QDir files(FromPath(folder));
  AddPage(files.filePath(kFirstPage));
  for (const auto& name : LinksOf(Read(files.filePath(kFirstPage)))) {
    if (name != kFirstPage && files.exists(name)) AddPage(files.filePath(name));
  }
  connect(contents_, &QListWidget::currentItemChanged, this, [this](const QListWidgetItem* item) {
    if (item) page_->setSource(item->data(Qt::UserRole).toUrl());
  });
  connect(page_, &QTextBrowser::sourceChanged, this, &HelpViewer::MarkPage);
  page_->setSource(QUrl::fromLocalFile(files.filePath(kFirstPage)));
  page_->setFocus();
  resize(980, 680);
}

void HelpViewer::BuildTools() {
  auto* tools = addToolBar(tr("Navigation"));
  tools->setMovable(false);
  tools->setIconSize({kIconSize, kIconSize});
  auto* back = tools->addAction(NamedIcon("back"), tr("Back"), QKeySequence::Back, page_, &QTextBrowser::backward);
  auto* forward =
      tools->addAction(NamedIcon("forward"), tr("Forward"), QKeySequence::Forward, page_, &QTextBrowser::forward);
  tools->addAction(NamedIcon("home"), tr("First Page"), page_, &QTextBrowser::home);
  back->setEnabled(false);
  forward->setEnabled(false);
  connect(page_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
  connect(page_, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
  find_->setPlaceholderText(tr("Find on all pages"));
  find_->setAccessibleName(tr("Find on all pages"));
  find_->setMaximumWidth(280);
  find_->setClearButtonEnabled(true);
  tools->addWidget(find_);
  connect(find_, &QLineEdit::textChanged, this, &HelpViewer::Find);
  connect(find_, &QLineEdit::returnPressed, this, &HelpViewer::GoToNext);
  const auto addKey = [this](const QKeySequence& key, auto action) {
    auto* entry = new QAction(this);
    entry->setShortcut(key);
    connect(entry, &QAction::triggered, this, action);
    addAction(entry);
  };
  addKey(QKeySequence::Find, [this] { find_->setFocus(Qt::ShortcutFocusReason); });
  addKey(Qt::Key_Escape, [this] { close(); });
}

void HelpViewer::AddPage(const QString& path) {
  const QString html = Read(path);
  auto* item = new QListWidgetItem(TitleOf(html, path), contents_);
  item->setData(Qt::UserRole, QUrl::fromLocalFile(path));
  pages_.push_back({PlainTextOf(html), ScreensOf(html)});
}

void HelpViewer::GoToPageOf(const QString& screen) {
  for (std::size_t row = 0; row < pages_.size(); ++row) {
    if (pages_[row].screens.contains(screen)) return contents_->setCurrentRow(static_cast<int>(row));
  }
}

void HelpViewer::MarkPage(const QUrl& page) {
  const QSignalBlocker quiet(contents_);
  for (int row = 0; row < contents_->count(); ++row) {
    const QUrl listed = contents_->item(row)->data(Qt::UserRole).toUrl();
    if (listed.path() == page.path()) contents_->setCurrentRow(row);
  }
  page_->Mark(find_->text());
}

/// Lists the pages that have the words, and opens the first one unless the page read is among them.
void HelpViewer::Find(const QString& words) {
  for (int row = 0; row < contents_->count(); ++row) {
    contents_->item(row)->setHidden(!pages_[static_cast<std::size_t>(row)].text.contains(words, Qt::CaseInsensitive));
  }
  const int first = NextListed(-1);
  find_->setProperty("missed", first < 0);
  find_->style()->unpolish(find_);
  find_->style()->polish(find_);
  page_->Mark(words);
  const QListWidgetItem* current = contents_->currentItem();
  if (first >= 0 && current && current->isHidden()) contents_->setCurrentRow(first);
}

/// The next place on the page, or on the next page listed.
void HelpViewer::GoToNext() {
  const QString words = find_->text();
  if (words.isEmpty() || page_->find(words)) return;
  const int below = NextListed(contents_->currentRow());
  const int next = below >= 0 ? below : NextListed(-1);
  if (next < 0) return;
  contents_->setCurrentRow(next);
  page_->moveCursor(QTextCursor::Start);
  page_->find(words);
}

/// The first page listed below the row, -1 if there is none.
int HelpViewer::NextListed(int row) const {
  for (++row; row < contents_->count(); ++row) {
    if (!contents_->item(row)->isHidden()) return row;
  }
  return -1;
}

}  // namespace norvane::ui
