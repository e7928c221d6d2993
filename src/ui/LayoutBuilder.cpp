#include "ui/LayoutBuilder.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include <QBoxLayout>
#include <QFrame>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QStatusBar>
#include <QTabWidget>

#include "forms/Controls.h"
#include "forms/Preview.h"
#include "ui/Convert.h"
#include "ui/PreviewWidget.h"
#include "ui/StandardWidgets.h"
#include "ui/Strip.h"

namespace norvane::ui {
namespace {

using layout::Kind;
using layout::Node;

constexpr int kMargin = 8;
constexpr int kSpacing = 8;
constexpr int kBetweenPairs = 14;
constexpr int kFrame = 11;  // a group's border, padding and margin

/// A group without caption is no more than its content.
bool IsPlain(const Node& group) {
  const auto* frame = dynamic_cast<const Frame*>(group.control);
  return group.caption.empty() && (!frame || frame->Caption().empty());
}

bool IsBand(const Node& node) {
  if (node.kind == Kind::Strip) return true;
  return node.kind == Kind::Group && IsPlain(node) && node.children.size() == 1 &&
         node.children.front().kind == Kind::Strip;
}

bool HasPreview(const Node& root) {
  const auto controls = layout::ControlsOf(root);
  return std::any_of(controls.begin(), controls.end(),
                     [](Control* control) { return dynamic_cast<Preview*>(control); });
}

/// The only content of a strip, if that is a button: it takes its place in the preview's bar and spares the strip.
const Node* LoneButton(const Node& strip) {
  if (strip.kind != Kind::Strip) return nullptr;
  const Node* button = nullptr;
  for (const Node& child : strip.children) {
    if (child.kind == Kind::Space) continue;
    if (button || !dynamic_cast<Button*>(child.control)) return nullptr;
    button = &child;
  }
  return button;
}

/// The width in characters of a text box, with or without its label; 0 for anything else.
int LengthOf(const Node& node) {
  if (node.kind == Kind::Field) return LengthOf(node.children.front());
  const auto* box = node.kind == Kind::Control ? dynamic_cast<const TextBox*>(node.control) : nullptr;
  return box ? box->Style().characters : 0;
}

/// A row of nothing but text boxes is divided by their lengths: a state takes less than a city.
bool SharesRoomByLength(const Node& row) {
  const auto isPlainText = [](const Node& child) { return LengthOf(child) > 0 && child.stretch == 0; };
  return std::all_of(row.children.begin(), row.children.end(), isPlainText);
}

/// A group with a frame, or a row that has one.
bool IsFramed(const Node& node) {
  if (node.kind == Kind::Group) return !IsPlain(node);
  return node.kind == Kind::Row && std::any_of(node.children.begin(), node.children.end(), IsFramed);
}

bool HasIcon(const Node& node, std::string_view icon) {
  const auto* button = node.kind == Kind::Control ? dynamic_cast<const Button*>(node.control) : nullptr;
  return button && button->Style().icon == icon;
}

/// A line between buttons of a strip.
QWidget* Rule(QWidget& strip) {
  constexpr int kHeight = 22;
  auto* rule = new QFrame(&strip);
  rule->setProperty("rule", true);
  rule->setFixedSize(1, kHeight);
  return rule;
}

QString WithoutMnemonic(QString caption) {
  return caption.remove('&');
}

/// The first widget in it that takes the keyboard.
QWidget* FirstFocusable(QWidget* widget, QLayout* layout) {
  if (widget) return widget->focusPolicy() != Qt::NoFocus ? widget : nullptr;
  for (int i = 0; layout && i < layout->count(); ++i) {
    if (QWidget* found = FirstFocusable(layout->itemAt(i)->widget(), layout->itemAt(i)->layout())) return found;
  }
  return nullptr;
}

QWidget* FirstWidget(QWidget* widget, QLayout* layout) {
  if (widget || !layout || layout->count() == 0) return widget;
  return FirstWidget(layout->itemAt(0)->widget(), layout->itemAt(0)->layout());
}

}  // namespace

void LayoutBuilder::Fill(QWidget& page, const Node& root) {
  auto* outer = new QVBoxLayout(&page);
  outer->setContentsMargins(0, 0, 0, 0);
  outer->setSpacing(0);
  QVBoxLayout* inner = nullptr;
  const auto addInner = [&](const Node& node) {
    if (!inner) {
      inner = new QVBoxLayout;
      inner->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
      inner->setSpacing(kSpacing);
      outer->addLayout(inner, 1);
    }
    AddToBox(*inner, node, page, node.stretch);
  };
  if (root.kind != Kind::Column) {
    addInner(root);
    return;
  }
  const Node* forBar = nullptr;
  for (const auto& child : root.children) {
    const bool isPreviews = HasPreview(root) && LoneButton(child) != nullptr;
    if (isPreviews) {
      forBar = LoneButton(child);
    } else if (IsBand(child)) {
      outer->addWidget(BuildBand(child, page, outer->count() == 0 ? "top" : "bottom"));
      inner = nullptr;
    } else if (dynamic_cast<StatusBar*>(child.control)) {
      Build(child, page);
    } else {
      addInner(child);
    }
  }
  if (forBar && preview_) preview_->AddToBar(*Build(*forBar, page).widget);
  if (inner && !(inner->expandingDirections() & Qt::Vertical)) inner->addStretch();
}

QWidget* LayoutBuilder::BuildBand(const Node& node, QWidget& page, const char* edge) {
  QWidget* band = Build(node, page).widget;
  band->setProperty("strip", edge);
  band->layout()->setContentsMargins(kMargin - 2, 5, kMargin - 2, 5);
  band->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
  return band;
}

LayoutBuilder::Piece LayoutBuilder::Build(const Node& node, QWidget& page) {
  switch (node.kind) {
    case Kind::Control:
      return BuildControl(node, page);
    case Kind::Row:
      return BuildBox(node, page, Qt::Horizontal);
    case Kind::Column:
    case Kind::Tab:
      return BuildBox(node, page, Qt::Vertical);
    case Kind::Strip:
      return BuildStrip(node, page);
    case Kind::Fields:
      return BuildFields(node, page);
    case Kind::Field:
      return BuildField(node, page);
    case Kind::Group:
      return BuildGroup(node, page);
    case Kind::Tabs:
      return BuildTabs(node, page);
    case Kind::Space:
      return {};
  }
  return {};
}

LayoutBuilder::Piece LayoutBuilder::BuildControl(const Node& node, QWidget& page) {
  Binding* binding = factory_.Make(*node.control, &page);
  if (!binding) return {};
  made_(*node.control, *binding);
  if (dynamic_cast<Preview*>(node.control)) preview_ = static_cast<PreviewWidget*>(&binding->Widget());
  QWidget* const masked = std::exchange(masked_, nullptr);
  if (dynamic_cast<MaskedBox*>(node.control)) masked_ = &binding->Widget();
  if (masked && dynamic_cast<DatePicker*>(node.control)) {
    PutIntoField(*masked, binding->Widget());
    return {};
  }
  if (auto* bar = qobject_cast<QStatusBar*>(&binding->Widget())) {
    statusBar_ = bar;
    return {};
  }
  if (!binding->Below()) return {&binding->Widget(), nullptr};
  auto* both = new QVBoxLayout;
  both->setSpacing(2);
  both->addWidget(&binding->Widget(), 1);
  both->addWidget(binding->Below());
  return {nullptr, both};
}

LayoutBuilder::Piece LayoutBuilder::BuildBox(const Node& node, QWidget& page, Qt::Orientation orientation) {
  const bool across = orientation == Qt::Horizontal;
  auto* box = new QBoxLayout(across ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
  box->setSpacing(kSpacing);
  const bool sharesRoom = across && SharesRoomByLength(node);
  const bool hasFrames = !across && std::any_of(node.children.begin(), node.children.end(), IsFramed);
  for (const auto& child : node.children) {
    AddToBox(*box, child, page, sharesRoom ? LengthOf(child) : child.stretch);
    QLayout* inner = box->count() > 0 ? box->itemAt(box->count() - 1)->layout() : nullptr;
    const bool isLine = child.kind == Kind::Fields || child.kind == Kind::Row;
    // Labels outside of frames are in line with those inside.
    if (hasFrames && inner && isLine && !IsFramed(child)) inner->setContentsMargins(kFrame, 0, kFrame, 0);
  }
  if (!(box->expandingDirections() & orientation)) box->addStretch();
  return {nullptr, box};
}

void LayoutBuilder::AddToBox(QBoxLayout& box, const Node& node, QWidget& page, int stretch) {
  if (node.kind == Kind::Space) return box.addStretch(std::max(1, node.stretch));
  const bool across = box.direction() == QBoxLayout::LeftToRight;
  if (across && node.kind == Kind::Field && box.count() > 0) box.addSpacing(kBetweenPairs - kSpacing);
  const Piece piece = Build(node, page);
  if (piece.widget) box.addWidget(piece.widget, stretch);
  if (piece.layout) box.addLayout(piece.layout, stretch);
}

/// What deletes a record is set apart from what saves it.
LayoutBuilder::Piece LayoutBuilder::BuildStrip(const Node& node, QWidget& page) {
  auto* strip = new Strip(&page);
  FlowLayout& flow = strip->Flow();
  flow.setContentsMargins(0, 0, 0, 0);
  const bool saves =
      std::any_of(node.children.begin(), node.children.end(), [](const Node& child) { return HasIcon(child, "save"); });
  for (const auto& child : node.children) {
    if (child.kind == Kind::Space) {
      flow.AddStretch();
      continue;
    }
    const bool isApart = saves && HasIcon(child, "delete");
    if (isApart) flow.AddWidget(Rule(*strip));
    const Piece piece = Build(child, *strip);
    if (piece.widget) child.stretch > 0 ? flow.AddStretched(piece.widget) : flow.AddWidget(piece.widget);
    if (piece.layout) flow.AddLayout(piece.layout);
    if (isApart) flow.AddWidget(Rule(*strip));
  }
  return {strip, nullptr};
}

LayoutBuilder::Piece LayoutBuilder::BuildFields(const Node& node, QWidget& page) {
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(kSpacing);
  grid->setVerticalSpacing(kSpacing - 2);
  const int columns = std::max(1, node.columns);
  int index = 0;
  for (const auto& child : node.children) {
    AddToGrid(*grid, child, page, index / columns, index % columns * 2);
    ++index;
  }
  for (int column = 0; column < columns; ++column) grid->setColumnStretch(column * 2 + 1, 1);
  return {nullptr, grid};
}

void LayoutBuilder::AddToGrid(QGridLayout& grid, const Node& node, QWidget& page, int row, int column) {
  const bool isField = node.kind == Kind::Field;
  const Piece content = isField ? Build(node.children.front(), page) : Build(node, page);
  const int first = isField ? column + 1 : column;
  if (content.widget) grid.addWidget(content.widget, row, first, 1, column + 2 - first);
  if (content.layout) grid.addLayout(content.layout, row, first, 1, column + 2 - first);
  if (!isField) return;
  QWidget* label = LabelFor(node, page, content);
  if (column > 0) label->setContentsMargins(kBetweenPairs, 0, 0, 0);
  const bool tall = content.widget && content.widget->sizePolicy().verticalPolicy() == QSizePolicy::Expanding;
  grid.addWidget(label, row, column, tall ? Qt::AlignTop : Qt::Alignment());
}

LayoutBuilder::Piece LayoutBuilder::BuildField(const Node& node, QWidget& page) {
  auto* box = new QHBoxLayout;
  box->setSpacing(kSpacing);
  const Piece content = Build(node.children.front(), page);
  box->addWidget(LabelFor(node, page, content));
  if (content.widget) box->addWidget(content.widget);
  if (content.layout) box->addLayout(content.layout);
  return {nullptr, box};
}

QWidget* LayoutBuilder::LabelFor(const Node& field, QWidget& page, const Piece& content) {
  auto* label = new QLabel(&page);
  const QString caption = ToQt(field.caption);
  QWidget* buddy = FirstFocusable(content.widget, content.layout);
  label->setText(buddy ? caption : WithoutMnemonic(caption));
  label->setBuddy(buddy);
  if (buddy) buddy->setAccessibleName(WithoutMnemonic(caption).remove(':'));
  QWidget* companion = FirstWidget(content.widget, content.layout);
  if (Binding* binding = Binding::Of(companion); binding && &binding->Widget() == companion) {
    binding->SetCompanion(label);
  }
  return label;
}

LayoutBuilder::Piece LayoutBuilder::BuildGroup(const Node& node, QWidget& page) {
  const bool plain = IsPlain(node);
  QWidget* holder = nullptr;
  if (plain && node.children.front().kind == Kind::Strip) {
    holder = BuildStrip(node.children.front(), page).widget;
  } else {
    holder = plain ? static_cast<QWidget*>(new QFrame(&page)) : new QGroupBox(&page);
    const Piece content = Build(node.children.front(), *holder);
    auto* inner = new QVBoxLayout(holder);
    const int margin = plain ? 0 : kSpacing;
    inner->setContentsMargins(margin, margin, margin, margin);
    if (content.widget) inner->addWidget(content.widget);
    if (content.layout) inner->addLayout(content.layout);
    if (!(inner->expandingDirections() & Qt::Vertical)) inner->addStretch();
  }
  if (auto* box = qobject_cast<QGroupBox*>(holder)) box->setTitle(ToQt(node.caption));
  BindFrame(node, *holder);
  return {holder, nullptr};
}

Binding* LayoutBuilder::BindFrame(const Node& group, QWidget& widget) {
  auto* frame = dynamic_cast<Frame*>(group.control);
  if (!frame) return nullptr;
  auto* binding = new Binding(*frame, widget, nullptr);
  if (auto* box = qobject_cast<QGroupBox*>(&widget)) box->setTitle(ToQt(frame->Caption()));
  made_(*frame, *binding);
  return binding;
}

LayoutBuilder::Piece LayoutBuilder::BuildTabs(const Node& node, QWidget& page) {
  Binding* binding = factory_.Make(*node.control, &page);
  made_(*node.control, *binding);
  auto* tabs = static_cast<QTabWidget*>(&binding->Widget());
  for (const auto& tab : node.children) {
    auto* leaf = new QWidget(tabs);
    auto* box = new QVBoxLayout(leaf);
    box->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    box->setSpacing(kSpacing);
    for (const auto& child : tab.children) AddToBox(*box, child, *leaf, child.stretch);
    if (!(box->expandingDirections() & Qt::Vertical)) box->addStretch();
    const QSignalBlocker quiet(tabs);
    tabs->addTab(leaf, ToQt(tab.caption));
  }
  binding->Refresh();
  return {tabs, nullptr};
}

}  // namespace norvane::ui
