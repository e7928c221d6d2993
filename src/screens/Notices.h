#pragma once

namespace norvane {

class ScreenTable;

/// Adds the small screens that stand while a routine works, shown and unloaded by it.
void RegisterNotices(ScreenTable& screens);

}  // namespace norvane
