#include <QIcon>

#include "app/Application.h"
#include "app/ApplicationFolder.h"
#include "app/Composition.h"
#include "core/SystemRegion.h"
#include "forms/Program.h"
#include "forms/ScreenNames.h"
#include "maintenance/Maintenance.h"
#include "ui/QtDesktop.h"

namespace {

std::optional<std::filesystem::path> FolderToOpen(const char* executable) {
  const QStringList options = QApplication::arguments();
  if (options.contains("--sample")) return norvane::SampleFolder();
  return norvane::ApplicationFolder(executable, [&] {
    return options.contains("--empty") ? norvane::FirstStart::Empty : norvane::AskForFirstStart();
  });
}

}  // namespace

int main(int argc, char** argv) {
  const char* const startedAs = argv[0];
  norvane::Application application(argc, argv);
  QApplication::setApplicationName("norvanes");
  QApplication::setDesktopFileName("norvanes");
  QApplication::setWindowIcon(QIcon(":/norvanes/pictures/norvanes.svg"));

  const norvane::RegionalSettings settings = norvane::SystemRegionalSettings();
  const auto folder = FolderToOpen(startedAs);
  if (!folder) return 0;
  norvane::ui::QtDesktop desktop(settings, norvane::ui::Theme::System, *folder);
  norvane::Program program(desktop, settings, *folder);
  application.ReportTo(desktop);
  norvane::Compose(program);
  program.Start(norvane::screen::kCustomer);
  norvane::KeepDailyCopy(program);
  desktop.Run();
  return 0;
}
