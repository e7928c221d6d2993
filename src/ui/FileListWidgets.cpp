#include "ui/FileListWidgets.h"

#include <QComboBox>
#include <QCompleter>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QSignalBlocker>
#include <QStringListModel>
#include <QStyledItemDelegate>

#include "forms/FileLists.h"
#include "ui/Convert.h"
#include "ui/StandardWidgets.h"
#include "ui/Theme.h"
#include "ui/WidgetFactory.h"

namespace norvane::ui {
namespace {

constexpr int kIndent = 14;
constexpr int kFileRows = 3;
constexpr int kRowHeight = 26;

const char* IconOf(DriveKind kind) {
  switch (kind) {
    case DriveKind::Home:
      return "home";
    case DriveKind::System:
      return "drive";
    case DriveKind::Medium:
      return "medium";
  }
  return "drive";
}

/// Reads the drives when it opens.
class DriveBox : public QComboBox {
 public:
  DriveBox(DriveList& drives, QWidget* parent) : QComboBox(parent), drives_(drives) {
    setFocusPolicy(Qt::StrongFocus);
    IgnoreStrayWheel(*this);
  }
  void showPopup() override {
    drives_.Refresh();
    QComboBox::showPopup();
  }

 private:
  DriveList& drives_;
};

/// The name that a user knows, and where it is: two sticks may have one name.
QString CaptionOf(const Drive& drive) {
  const QString root = FromPath(drive.root);
  const QString caption = ToQt(drive.Caption());
  return caption == root ? root : QString("%1 (%2)").arg(caption, root);
}

void FillDrives(QComboBox& widget, const DriveList& drives) {
  widget.clear();
  for (const Drive& drive : drives.Drives()) widget.addItem(NamedIcon(IconOf(drive.kind)), CaptionOf(drive));
}

Binding* MakeDriveList(DriveList& drives, QWidget* parent) {
  auto* widget = new DriveBox(drives, parent);
  auto* binding = new Binding(drives, *widget, [&drives, widget](Aspect aspect) {
    const QSignalBlocker quiet(widget);
    if (aspect == Aspect::Items) FillDrives(*widget, drives);
    widget->setCurrentIndex(drives.ListIndex());
  });
  QObject::connect(widget, &QComboBox::activated, binding, [&drives](int index) { drives.UserPick(index); });
  return binding;
}

/// Of a height that doesn't depend on whether the list has its style yet.
void AddRow(QListWidget& list, const char* icon, const std::string& name) {
  auto* row = new QListWidgetItem(NamedIcon(icon), ToQt(name), &list);
  row->setSizeHint({0, kRowHeight});
}

/// Each folder is drawn to the right of the one that it is in.
class IndentedRows : public QStyledItemDelegate {
 public:
  IndentedRows(const FolderList& folders, QObject* parent) : QStyledItemDelegate(parent), folders_(folders) {}
  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    QStyleOptionViewItem indented = option;
    const auto row = static_cast<std::size_t>(index.row());
    if (row < folders_.Folders().size()) indented.rect.adjust(folders_.Folders()[row].depth * kIndent, 0, 0, 0);
    QStyledItemDelegate::paint(painter, indented, index);
  }

 private:
  const FolderList& folders_;
};

/// Enter opens the marked folder, and Backspace the one that the folder shown is in; letters search.
class FolderRows : public QListWidget {
 public:
  FolderRows(FolderList& folders, QWidget* parent) : QListWidget(parent), folders_(folders) {
    setItemDelegate(new IndentedRows(folders, this));
  }

  void Fill() {
    clear();
    for (const auto& folder : folders_.Folders()) {
      const bool isOpen = count() <= folders_.Current();
      AddRow(*this, isOpen ? "folder-open" : "folder", folder.name);
    }
    scrollToItem(item(folders_.Current()), PositionAtCenter);
  }

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    switch (event->key()) {
      case Qt::Key_Return:
      case Qt::Key_Enter:
        return folders_.UserOpen(currentRow());
      case Qt::Key_Backspace:
        return folders_.UserOpenParent();
      default:
        QListWidget::keyPressEvent(event);
    }
  }

 private:
  FolderList& folders_;
};

Binding* MakeFolderList(FolderList& folders, QWidget* parent) {
  auto* widget = new FolderRows(folders, parent);
  auto* binding = new Binding(folders, *widget, [&folders, widget](Aspect aspect) {
    const QSignalBlocker quiet(widget);
    if (aspect == Aspect::Items) widget->Fill();
    widget->setCurrentRow(folders.ListIndex());
  });
  QObject::connect(widget, &QListWidget::currentRowChanged, binding, [&folders](int row) { folders.UserMark(row); });
  QObject::connect(widget, &QListWidget::doubleClicked, binding,
                   [&folders](const QModelIndex& index) { folders.UserOpen(index.row()); });
  return binding;
}

Binding* MakeFileList(FileList& files, QWidget* parent) {
  auto* widget = new QListWidget(parent);
  widget->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  widget->setFixedHeight(kFileRows * kRowHeight);
  auto* binding = new Binding(files, *widget, [&files, widget](Aspect aspect) {
    const QSignalBlocker quiet(widget);
    if (aspect == Aspect::Items) {
      widget->clear();
      for (const std::string& name : files.Files()) {
        AddRow(*widget, "database", name);
      }
    }
    widget->setCurrentRow(files.ListIndex());
  });
  QObject::connect(widget, &QListWidget::currentRowChanged, binding, [&files](int row) { files.UserMark(row); });
  return binding;
}

/// A text box that offers the folders which begin with what is typed.
Binding* MakeFolderBox(FolderBox& box, QWidget* parent) {
  Binding* binding = MakeTextBox(box, parent);
  auto& edit = dynamic_cast<QLineEdit&>(binding->Widget());
  auto* folders = new QStringListModel(&edit);
  auto* completer = new QCompleter(folders, &edit);
  completer->setCaseSensitivity(Qt::CaseInsensitive);
  edit.setCompleter(completer);
  QObject::connect(&edit, &QLineEdit::textEdited, binding, [&box, folders] {
    QStringList names;
    for (const std::string& name : box.Completions()) names.append(ToQt(name));
    folders->setStringList(names);
  });
  QObject::connect(completer, qOverload<const QString&>(&QCompleter::activated), binding,
                   [&box](const QString& text) { box.UserType(FromQt(text)); });
  return binding;
}

}  // namespace

void RegisterFileListWidgets(WidgetFactory& factory) {
  factory.Register<DriveList>(MakeDriveList);
  factory.Register<FolderList>(MakeFolderList);
  factory.Register<FileList>(MakeFileList);
  factory.Register<FolderBox>(MakeFolderBox);
}

}  // namespace norvane::ui
