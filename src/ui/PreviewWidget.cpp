#include "ui/PreviewWidget.h"

#include <QKeySequence>
#include <QLabel>
#include <QMenu>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QToolButton>
#include <QVBoxLayout>

#include "ui/PageOutput.h"
#include "ui/StripLayout.h"
#include "ui/Theme.h"

namespace norvane::ui {
namespace {

/// In the order of PageFit.
constexpr const char* kZoomChoices = "Whole &Page|Page &Width|&Two Pages|Thumb&nail";
constexpr int kPercentages[] = {50, 75, 100, 125, 150, 200};

QStringList ZoomChoices() {
  return QString(kZoomChoices).split('|');
}

}  // namespace

PreviewWidget::PreviewWidget(QWidget* parent) : QFrame(parent), canvas_(new PageCanvas(this)), bar_(new QFrame(this)) {
  setProperty("preview", true);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(1, 1, 1, 1);
  column->setSpacing(0);
  column->addWidget(bar_);
  column->addWidget(canvas_, 1);
  setFocusProxy(canvas_);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  BuildBar();
  canvas_->changed = [this] { FollowCanvas(); };
  FollowCanvas();
}

QToolButton* PreviewWidget::AddTool(const char* icon, const QString& name, const std::function<void()>& action) {
  auto* tool = new QToolButton(bar_);
  tool->setIcon(NamedIcon(icon));
  tool->setIconSize({18, 18});
  tool->setAutoRaise(true);
  tool->setToolTip(name);
  tool->setAccessibleName(name);
  connect(tool, &QToolButton::clicked, this, action);
  bar_->layout()->addWidget(tool);
  return tool;
}

void PreviewWidget::BuildBar() {
  bar_->setProperty("strip", "top");
  auto* strip = new StripLayout(bar_);
  strip->setContentsMargins(6, 3, 6, 3);
  first_ = AddTool("first", "First Page", [this] { canvas_->GoToPage(1); });
  previous_ = AddTool("previous", "Previous Page", [this] { canvas_->GoToPage(canvas_->CurrentPage() - 1); });
  page_ = new QSpinBox(bar_);
  page_->setButtonSymbols(QSpinBox::NoButtons);
  page_->setAlignment(Qt::AlignCenter);
  page_->setFixedWidth(46);
  page_->setAccessibleName("Page");
  page_->setKeyboardTracking(false);
  connect(page_, &QSpinBox::valueChanged, this, [this](int page) { canvas_->GoToPage(page); });
  strip->addWidget(page_);
  count_ = new QLabel(bar_);
  strip->addWidget(count_);
  next_ = AddTool("next", "Next Page", [this] { canvas_->GoToPage(canvas_->CurrentPage() + 1); });
  last_ = AddTool("last", "Last Page", [this] { canvas_->GoToPage(canvas_->PageCount()); });
  zoom_ = AddTool("zoom-in", "Zoom", [] {});
  zoom_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  zoom_->setPopupMode(QToolButton::InstantPopup);
  zoom_->setMenu(BuildZoomMenu());
  strip->AddStretch();
  print_ = AddTool("print", "Print", [this] { PrintPages(canvas_->Document(), title_, window()); });
  print_->setShortcut(QKeySequence::Print);
  save_ = AddTool("pdf", "Save as PDF", [this] { SavePagesAsPdf(canvas_->Document(), title_, window()); });
  save_->setShortcut(QKeySequence::Save);
}

QMenu* PreviewWidget::BuildZoomMenu() {
  auto* menu = new QMenu(zoom_);
  int fit = 0;
  for (const auto& choice : ZoomChoices()) {
    menu->addAction(choice, this, [this, way = static_cast<PageFit>(fit++)] { canvas_->SetFit(way); });
  }
  menu->addSeparator();
  for (const int percent : kPercentages) {
    menu->addAction(QString("%1 %").arg(percent), this,
                    [this, percent] { canvas_->SetFit(PageFit::Percent, percent); });
  }
  return menu;
}

void PreviewWidget::ShowPages(pages::Pages pages, const QString& title, int percent) {
  title_ = title;
  canvas_->SetFit(PageFit::Percent, percent);
  canvas_->SetPages(std::move(pages));
}

QString PreviewWidget::ZoomText() const {
  if (canvas_->Fit() == PageFit::Percent) return QString("%1 %").arg(canvas_->Percent());
  QString choice = ZoomChoices().at(static_cast<int>(canvas_->Fit()));
  return choice.remove('&');
}

void PreviewWidget::FollowCanvas() {
  const int count = canvas_->PageCount();
  const int current = canvas_->CurrentPage();
  const QSignalBlocker quiet(page_);
  page_->setRange(count > 0 ? 1 : 0, count);
  page_->setValue(current);
  count_->setText(QString("of %1").arg(count));
  zoom_->setText(ZoomText());
  first_->setEnabled(current > 1);
  previous_->setEnabled(current > 1);
  next_->setEnabled(current < count);
  last_->setEnabled(current < count);
  print_->setEnabled(count > 0);
  save_->setEnabled(count > 0);
}

}  // namespace norvane::ui
