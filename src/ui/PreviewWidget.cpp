#include "ui/PreviewWidget.h"

#include <cmath>

#include <QDesktopServices>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QKeySequence>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QUrl>
#include <QVBoxLayout>

#include "ui/Convert.h"
#include "ui/MailProgram.h"
#include "ui/PagePdf.h"
#include "ui/PagePrinter.h"
#include "ui/Shortcuts.h"
#include "ui/Strip.h"
#include "ui/Theme.h"
#include "ui/WidgetFactory.h"

namespace norvane::ui {
namespace {

constexpr int kPercentages[] = {50, 75, 100, 125, 150, 200};

QStringList ZoomTexts() {
  return QString(kZoomChoices).split('|');
}

/// The choices follow Percent in the order of their texts.
ZoomChoice ChoiceOfText(int index) {
  return static_cast<ZoomChoice>(index + 1);
}

}  // namespace

PreviewWidget::PreviewWidget(Preview& preview, QWidget* parent)
    : QFrame(parent), preview_(&preview), bar_(new Strip(this)), canvas_(new PageCanvas(this)) {
  setProperty("preview", true);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(1, 1, 1, 1);
  column->setSpacing(0);
  column->addWidget(bar_);
  column->addWidget(canvas_, 1);
  setFocusPolicy(Qt::StrongFocus);
  setFocusProxy(canvas_);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  BuildBar();
  preview.SetFontMetrics(&metrics_);
  binding_ = new Binding(preview, *this, [this](Aspect aspect) { Follow(aspect); });
  connect(binding_, &QObject::destroyed, this, [this] {
    canvas_->Show(nullptr);
    preview_->SetFontMetrics(nullptr);
    preview_ = nullptr;
  });
  canvas_->turned = [this] {
    Act([this](Preview& turned) {
      if (turned.CurrentPage() != canvas_->CurrentPage()) turned.SetCurrentPage(canvas_->CurrentPage());
    });
  };
  canvas_->followed = [this](const std::string& target) {
    Act([&](Preview& followed) { followed.UserFollow(target); });
  };
  canvas_->zoomed = [this](double factor) {
    Act([&](Preview& zoomed) { zoomed.SetZoom(std::round(canvas_->Percent() * factor)); });
  };
  Follow(Aspect::Pages);
}

void PreviewWidget::Act(const std::function<void(Preview&)>& action) {
  if (preview_) action(*preview_);
}

QPushButton* PreviewWidget::AddTool(const char* icon, const QString& name,
                                    const std::function<void(Preview&)>& action) {
  auto* tool = new QPushButton(bar_);
  tool->setIcon(NamedIcon(icon));
  tool->setIconSize({kIconSize, kIconSize});
  tool->setProperty("picture", true);
  tool->setFocusPolicy(Qt::TabFocus);
  tool->setToolTip(name);
  tool->setAccessibleName(name);
  connect(tool, &QPushButton::clicked, this, [this, action] { Act(action); });
  bar_->layout()->addWidget(tool);
  return tool;
}

void PreviewWidget::BuildBar() {
  bar_->setProperty("strip", "top");
  FlowLayout& strip = bar_->Flow();
  strip.setContentsMargins(4, 2, 4, 2);
  const auto turn = [](int step) { return [step](Preview& p) { p.SetCurrentPage(p.CurrentPage() + step); }; };
  first_ = AddTool("first", "First Page", [](Preview& p) { p.SetCurrentPage(1); });
  previous_ = AddTool("previous", "Previous Page", turn(-1));
  page_ = new QSpinBox(bar_);
  page_->setButtonSymbols(QSpinBox::NoButtons);
  page_->setAlignment(Qt::AlignCenter);
  page_->setFixedWidth(46);
  page_->setAccessibleName("Page");
  page_->setKeyboardTracking(false);
  connect(page_, &QSpinBox::valueChanged, this, [this](int page) { Act([&](Preview& p) { p.SetCurrentPage(page); }); });
  strip.addWidget(page_);
  count_ = new QLabel(bar_);
  strip.addWidget(count_);
  next_ = AddTool("next", "Next Page", turn(1));
  last_ = AddTool("last", "Last Page", [](Preview& p) { p.SetCurrentPage(p.PageCount()); });
  BuildZoomButton();
  surplus_ = new QLabel(bar_);
  surplus_->setProperty("red", true);
  strip.AddWidget(surplus_);
  strip.AddStretch();
  print_ = AddTool("print", "Print",
                   [this](Preview& p) { PrintPages(p.Pages(), ToQt(p.Title()), p.CurrentPage(), window()); });
  print_->setShortcut(QKeySequence::Print);
  save_ = AddTool("pdf", "Save as PDF",
                  [this](Preview& p) { ShowSaved(SavePagesAsPdf(p.Pages(), ToQt(p.Title()), window())); });
  save_->setShortcut(QKeySequence::Save);
  for (QPushButton* tool : {print_, save_}) tool->setToolTip(WithKey(tool->toolTip(), tool->shortcut()));
  send_ = AddTool("mail", "Send by Mail", [this](Preview& p) {
    if (p.SentAs()) SendPages(p.Pages(), ToQt(p.Title()), *p.SentAs(), window());
  });
  BuildSaved();
}

/// What can be done with a file just saved.
void PreviewWidget::BuildSaved() {
  saved_ = new QWidget(bar_);
  auto* box = new QHBoxLayout(saved_);
  box->setContentsMargins(8, 0, 0, 0);
  savedAs_ = new QLabel(saved_);
  savedAs_->setTextFormat(Qt::PlainText);
  box->addWidget(savedAs_);
  const auto add = [&](const QString& caption, auto urlOf) {
    auto* button = new QPushButton(caption, saved_);
    button->setFocusPolicy(Qt::TabFocus);
    box->addWidget(button);
    connect(button, &QPushButton::clicked, this, [this, urlOf] { QDesktopServices::openUrl(urlOf(QFileInfo(file_))); });
  };
  add("&Open", [](const QFileInfo& file) { return QUrl::fromLocalFile(file.filePath()); });
  add("Show &Folder", [](const QFileInfo& file) { return QUrl::fromLocalFile(file.path()); });
  saved_->hide();
  bar_->Flow().AddWidget(saved_);
}

void PreviewWidget::ShowSaved(const QString& file) {
  if (!file.isEmpty()) file_ = file;
  constexpr int kLongestName = 260;
  const QString name = QFileInfo(file_).fileName();
  savedAs_->setText("Saved as " + savedAs_->fontMetrics().elidedText(name, Qt::ElideMiddle, kLongestName));
  if (!file.isEmpty()) saved_->show();
}

void PreviewWidget::AddToBar(QWidget& widget) {
  bar_->Flow().AddWidget(&widget);
}

void PreviewWidget::BuildZoomButton() {
  zoom_ = new QPushButton(bar_);
  zoom_->setFocusPolicy(Qt::TabFocus);  // a click leaves the focus on the pages
  zoom_->setToolTip("Zoom");
  zoom_->setAccessibleName("Zoom");
  auto* menu = new QMenu(zoom_);
  int index = 0;
  for (const auto& text : ZoomTexts()) {
    const ZoomChoice choice = ChoiceOfText(index++);
    menu->addAction(text, this, [this, choice] { Act([&](Preview& p) { p.SetChoice(choice); }); });
  }
  menu->addSeparator();
  for (const int percent : kPercentages) {
    const QString text = QString("%1 %").arg(percent);
    menu->addAction(text, this, [this, percent] { Act([&](Preview& p) { p.SetZoom(percent); }); });
  }
  zoom_->setMenu(menu);
  zoom_->setMinimumWidth(124);
  bar_->layout()->addWidget(zoom_);
}

void PreviewWidget::Follow(Aspect aspect) {
  if (aspect == Aspect::Pages) {
    canvas_->Show(&preview_->Pages());
    saved_->hide();
  }
  if (aspect == Aspect::Pages || aspect == Aspect::State) {
    canvas_->SetZoom(preview_->Choice(), preview_->Zoom());
    if (canvas_->CurrentPage() != preview_->CurrentPage()) canvas_->GoToPage(preview_->CurrentPage());
  }
  FollowBar();
}

QString PreviewWidget::ZoomText() const {
  if (preview_->Choice() == ZoomChoice::Percent) return QString("%1 %").arg(preview_->Zoom());
  QString text = ZoomTexts().at(static_cast<int>(preview_->Choice()) - 1);
  return text.remove('&');
}

void PreviewWidget::FollowBar() {
  const int count = canvas_->PageCount();
  const int current = canvas_->CurrentPage();
  const QSignalBlocker quiet(page_);
  page_->setRange(count > 0 ? 1 : 0, count);
  page_->setValue(current);
  count_->setText(QString("of %1").arg(count));
  const int surplus = preview_->SurplusRows();
  surplus_->setText(surplus == 1 ? QString("1 row has no room on the form")
                                 : QString("%1 rows have no room on the form").arg(surplus));
  surplus_->setVisible(surplus > 0);
  zoom_->setText(ZoomText());
  first_->setEnabled(current > 1);
  previous_->setEnabled(current > 1);
  next_->setEnabled(current < count);
  last_->setEnabled(current < count);
  print_->setEnabled(count > 0);
  save_->setEnabled(count > 0);
  send_->setEnabled(count > 0);
  send_->setVisible(preview_->SentAs().has_value());
}

void RegisterPreview(WidgetFactory& factory) {
  factory.Register<Preview>(
      [](Preview& preview, QWidget* parent) { return (new PreviewWidget(preview, parent))->Bound(); });
}

}  // namespace norvane::ui
