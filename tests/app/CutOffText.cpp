#include "app/CutOffText.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QMenuBar>
#include <QTabBar>

namespace norvane::test {
namespace {

constexpr int kArrow = 26;          // of a drop-down, with its padding
constexpr int kHeadingPadding = 9;  // and its border

class Search {
 public:
  explicit Search(const QWidget& window) {
    for (const auto* widget : window.findChildren<QWidget*>()) {
      if (widget->isVisible()) Look(*widget);
    }
  }
  std::vector<std::string> found;

 private:
  void Look(const QWidget& widget) {
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) return Fits(*label, label->text());
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) return LookAtButton(*button);
    if (const auto* group = qobject_cast<const QGroupBox*>(&widget)) return Fits(*group, group->title());
    if (const auto* combo = qobject_cast<const QComboBox*>(&widget)) return LookAtCombo(*combo);
    if (const auto* tabs = qobject_cast<const QTabBar*>(&widget)) return LookAtTabs(*tabs);
    if (const auto* menu = qobject_cast<const QMenuBar*>(&widget)) return LookAtMenu(*menu);
    if (const auto* header = qobject_cast<const QHeaderView*>(&widget)) return LookAtHeadings(*header);
  }

  void Note(bool fits, const QString& text) {
    if (!fits && !text.isEmpty()) found.push_back(text.toStdString());
  }
  /// It has the size it needs, and all of that can be seen.
  void Fits(const QWidget& widget, const QString& text) {
    const QSize need = qobject_cast<const QGroupBox*>(&widget) ? widget.minimumSizeHint() : widget.sizeHint();
    const QSize seen = widget.visibleRegion().boundingRect().size();
    const bool fits = seen.width() >= need.width() && seen.height() >= need.height();
    Note(fits, text.isEmpty() ? text
                              : QString("%1 (%2x%3 of %4x%5)")
                                    .arg(text)
                                    .arg(seen.width())
                                    .arg(seen.height())
                                    .arg(need.width())
                                    .arg(need.height()));
  }
  void LookAtButton(const QAbstractButton& button) {
    const bool isOurs = button.inherits("QPushButton") || button.inherits("QRadioButton");
    if (isOurs) Fits(button, button.text().isEmpty() ? button.toolTip() : button.text());
  }
  void LookAtCombo(const QComboBox& combo) {
    if (combo.isEditable()) return;
    Note(combo.fontMetrics().horizontalAdvance(combo.currentText()) + kArrow <= combo.width(), combo.currentText());
  }
  void LookAtTabs(const QTabBar& tabs) { Note(tabs.width() >= tabs.sizeHint().width(), "tabs " + tabs.tabText(0)); }
  void LookAtMenu(const QMenuBar& menu) {
    for (const QAction* entry : menu.actions())
      Note(menu.rect().contains(menu.actionGeometry(const_cast<QAction*>(entry))), entry->text());
  }
  void LookAtHeadings(const QHeaderView& header) {
    for (int section = 0; header.orientation() == Qt::Horizontal && section < header.count(); ++section) {
      const QString text = header.model()->headerData(section, Qt::Horizontal).toString();
      const int need = header.fontMetrics().horizontalAdvance(text) + kHeadingPadding;
      Note(header.isSectionHidden(section) || header.sectionSize(section) >= need, text);
    }
  }
};

}  // namespace

std::vector<std::string> CutOffTexts(const QWidget& window) {
  return Search(window).found;
}

}  // namespace norvane::test
