#pragma once

#include <QElapsedTimer>
#include <QLabel>
#include <QTimer>

namespace norvane::ui {

/// The word typed to find a row of a list, shown in a small field at the list's foot. It is red while no row matches.
class TypeAhead : public QLabel {
 public:
  explicit TypeAhead(QWidget* list);

  /// Adds letters to the word; after a pause they begin a new one. Returns the word.
  QString Add(const QString& letters);
  /// Takes the last letter away and returns what is left.
  QString RemoveLast();
  bool IsEmpty() const { return word_.isEmpty(); }
  /// Whether letters typed now begin a new word.
  bool Begins() const;
  /// Shows the word and whether a row matches. A hit disappears after a while, a miss stays.
  void ShowResult(bool found);
  bool Missed() const { return missed_; }
  void Forget();
  /// Takes its place at the foot of the list.
  void Place();

 private:
  QString word_;
  QElapsedTimer sinceLetter_;
  QTimer away_;
  bool missed_ = false;
};

}  // namespace norvane::ui
