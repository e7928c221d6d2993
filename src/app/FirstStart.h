#pragma once

namespace norvane {

enum class FirstStart { Empty, Sample, Quit };

/// Asks a user who has no business yet what to open.
FirstStart AskForFirstStart();

}  // namespace norvane
