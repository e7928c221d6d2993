#include <fstream>

#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QTextBrowser>
#include <QTimer>

#include "core/RuntimeError.h"
#include "support/OwnPath.h"
#include "ui/HelpViewer.h"
#include "ui/WindowTest.h"

namespace norvane::ui {
namespace {

using InDesktop = WindowTest;

/// Its timer stops itself at its first tick.
struct Ticking : Form {
  static constexpr const char* kName = "Ticking";
  explicit Ticking(Program& owner) : Form(owner, kName, {}) {
    tmrOnce.Tick = [this] {
      ++ticks;
      tmrOnce.SetRunning(false);
    };
  }
  Timer tmrOnce{*this, "tmrOnce", 5, true};
  int ticks = 0;
};

TEST_F(InDesktop, AMessageBoxHasItsTextTitleIconAndPreselectedButton) {
  QString seen;
  QTimer::singleShot(0, &Window(), [&] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    seen = box->windowTitle() + "|" + box->text() + "|" + box->defaultButton()->text().remove('&');
    seen += box->icon() == QMessageBox::Question ? "|?" : "|";
    QTest::mouseClick(box->button(QMessageBox::Yes), Qt::LeftButton);
  });
  const Answer answer =
      desktop.Ask({"Save <b>all</b>?", "Save Client Pofile?", Buttons::YesNoCancel, Icon::Question, Answer::No});
  EXPECT_EQ(answer, Answer::Yes);
  EXPECT_EQ(seen, "Save Client Pofile?|Save <b>all</b>?|No|?");
}

TEST_F(InDesktop, AWindowsInnerSizeFollowsTheModelAndTheModelFollowsTheWindow) {
  Demo().SetWidth(12120);
  Demo().SetHeight(12000 + 405 + 285);
  const int menu = Window().menuBar()->sizeHint().height();
  EXPECT_EQ(Window().size(), QSize(800, 800 + menu));
  Window().resize(700, 720 + menu);
  Settle();
  EXPECT_EQ(Demo().Width(), 700 * 15 + 120);
  EXPECT_EQ(Demo().Height(), 720 * 15 + 405 + 285);
}

TEST_F(InDesktop, ASizeThatIsNoWholePixelStaysAsItWasStored) {
  Demo().SetWidth(11001);
  Settle();
  EXPECT_EQ(Demo().Width(), 11001);
}

TEST_F(InDesktop, AFormWithoutSizeTakesWhatItNeeds) {
  program.screens.Show(CalendarForm::kName);
  Settle();
  auto& calendar = program.screens.Touch<CalendarForm>();
  const auto* window = desktop.WindowOf(calendar);
  EXPECT_EQ(calendar.Width(), window->width() * 15 + 120);
  EXPECT_EQ(window->size(), window->sizeHint());
}

TEST_F(InDesktop, TheUpperLeftCornerIsAPlace) {
  auto& placed = program.screens.Touch<CalendarForm>();
  placed.SetLeft(0);
  placed.SetTop(0);
  program.screens.Show(CalendarForm::kName);
  EXPECT_EQ(desktop.WindowOf(placed)->pos(), QPoint(0, 0));
}

TEST_F(InDesktop, AFormIsNoLargerThanTheScreenAllows) {
  auto& large = program.screens.Touch<CalendarForm>();
  large.SetWidth(90'000);
  program.screens.Show(CalendarForm::kName);
  const QWidget& window = *desktop.WindowOf(large);
  EXPECT_LE(window.width(), window.screen()->availableSize().width());
  EXPECT_EQ(large.Width(), window.width() * 15 + 120);
}

TEST_F(InDesktop, TheFramesCloseButtonPressesTheExitButton) {
  Demo().txtFirst.SetFocus();
  Log();
  std::string log;
  Demo().btnExit.Click.Replace([&] { log = Demo().TakeLog(); });
  Window().close();
  EXPECT_EQ(log, "-txtFirst +btnExit");
  EXPECT_TRUE(Window().isVisible()) << "the handler did not unload it";
}

TEST_F(InDesktop, AModalFormIsWaitedForAndBlocksTheRest) {
  bool blocked = false;
  QTimer::singleShot(50, &Window(), [&] {
    blocked = QApplication::activeModalWidget() == desktop.WindowOf(program.screens.Touch<CalendarForm>());
    QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape);
  });
  program.screens.Show(CalendarForm::kName, {.owner = &Demo(), .modal = true});
  EXPECT_TRUE(blocked);
  EXPECT_FALSE(program.screens.Find(CalendarForm::kName));
}

TEST_F(InDesktop, AWindowOutlivesAHandlerThatUnloadsItsForm) {
  const QPointer<QWidget> window = &Window();
  program.screens.Show(CalendarForm::kName);  // keeps the program running
  Demo().btnSave.Click.Replace([this] {
    auto& form = Demo();
    form.Unload();
    form.txtFirst.SetText("still there");
  });
  Click(Demo().btnSave);
  EXPECT_FALSE(program.screens.Find(DemoForm::kName));
  EXPECT_FALSE(window->isVisible());
}

TEST_F(InDesktop, TheLastWindowEndsTheProgram) {
  QTimer::singleShot(20, &Window(), [this] { Demo().Unload(); });
  desktop.Run();
  EXPECT_TRUE(program.screens.Loaded().empty());
}

TEST_F(InDesktop, TimersTickWhileTheyRun) {
  program.screens.Add<Ticking>();
  auto& ticking = program.screens.Touch<Ticking>();
  desktop.Wait(0.06);
  EXPECT_EQ(ticking.ticks, 1);
}

TEST_F(InDesktop, HelpShowsItsPagesAndReportsThatTheyAreMissing) {
  const auto folder = test::OwnPath("help");
  std::filesystem::create_directory(folder);
  std::filesystem::remove(folder / HelpViewer::kFirstPage);
  EXPECT_THROW(desktop.ShowHelp(folder), RuntimeError);
  std::ofstream(folder / HelpViewer::kFirstPage) << "<title>Start</title><p>Welcome</p>";
  desktop.ShowHelp(folder);
  const auto windows = QApplication::topLevelWidgets();
  const auto isHelp = [](const QWidget* widget) { return dynamic_cast<const HelpViewer*>(widget) != nullptr; };
  const auto help = std::find_if(windows.begin(), windows.end(), isHelp);
  ASSERT_NE(help, windows.end());
  EXPECT_EQ((*help)->findChild<QTextBrowser*>()->toPlainText(), "Welcome");
  std::filesystem::remove_all(folder);
}

}  // namespace
}  // namespace norvane::ui
