#pragma once

namespace norvane {

class ScreenTable;

/// Adds the small screens that a routine shows while it works.
void RegisterNotices(ScreenTable& screens);

}  // namespace norvane
