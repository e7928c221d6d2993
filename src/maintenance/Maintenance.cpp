#include "maintenance/Maintenance.h"

#include "core/FileNames.h"
#include "forms/Program.h"
#include "forms/ScreenNames.h"
#include "maintenance/Compaction.h"
#include "maintenance/DailyCopy.h"
#include "maintenance/KeptCopies.h"
#include "maintenance/Working.h"
#include "maintenance/frmBackup.h"
#include "maintenance/frmRestore.h"

namespace norvane {

void RegisterMaintenance(Program& program) {
  ScreenTable& screens = program.screens;
  screens.Add<DailyCopy>();
  screens.Add<frmBackup>();
  screens.Add<frmRestore>();
  screens.Add<Working>();
  screens.AddAction(screen::kCompactDatabaseFile, [&program] { CompactDatabaseFile(program, kDatabaseFile); });
  screens.AddAction(screen::kKeepCopyBeforeDeletion, [&program] { KeepCopy(program, kBeforeDeletion); });
}

void KeepDailyCopy(Program& program) {
  program.screens.Touch<DailyCopy>();
}

}  // namespace norvane
