#pragma once

#include <QLayout>
#include <QList>

namespace norvane::ui {

/// Places widgets side by side at natural size and continues on a new line where the width ends, so that a narrow
/// window cuts no button off. An expanding spacer pushes what follows to the right edge of its line.
class FlowLayout : public QLayout {
 public:
  explicit FlowLayout(QWidget* parent);
  ~FlowLayout() override;

  void AddWidget(QWidget* widget) { addWidget(widget); }
  void AddLayout(QLayout* layout);
  void AddStretch();
  /// The one widget that takes the room left over in its line.
  void AddStretched(QWidget* widget);

  void addItem(QLayoutItem* item) override { items_.append(item); }
  int count() const override { return static_cast<int>(items_.size()); }
  QLayoutItem* itemAt(int index) const override { return items_.value(index); }
  QLayoutItem* takeAt(int index) override;
  Qt::Orientations expandingDirections() const override { return {}; }
  /// The height of the lines that the width makes, which is its owner's to provide.
  int HeightFor(int width) const;
  QSize sizeHint() const override;
  QSize minimumSize() const override;
  void setGeometry(const QRect& rect) override;

 private:
  using Line = QList<QLayoutItem*>;
  QList<Line> LinesFor(int width) const;
  int WidthOf(const Line& line) const;
  void Place(const Line& line, const QRect& rect) const;

  QList<QLayoutItem*> items_;
  QWidget* stretched_ = nullptr;
};

}  // namespace norvane::ui
