#include <QApplication>
#include <QIcon>

#include "app/ApplicationFolder.h"
#include "app/Composition.h"
#include "core/SystemRegion.h"
#include "forms/Program.h"
#include "ui/QtDesktop.h"

int main(int argc, char** argv) {
  const char* const startedAs = argv[0];
  QApplication application(argc, argv);
  QApplication::setApplicationName("norvanes");
  QApplication::setDesktopFileName("norvanes");
  QApplication::setWindowIcon(QIcon(":/norvanes/pictures/norvanes.svg"));

  const norvane::RegionalSettings settings = norvane::SystemRegionalSettings();
  norvane::ui::QtDesktop desktop(settings);
  norvane::Program program(desktop, settings, norvane::ApplicationFolder(startedAs));
  norvane::Compose(program, desktop);
  program.Start("Customer");
  desktop.Run();
  return 0;
}
