#include "screens/start/intro.h"

namespace norvane {

intro::intro(Program& host)
    : Splash(host, kName, {.caption = "Loading...", .resizable = false, .goesWithOwner = true, .bare = true}) {
  SetLayout(layout::Column({Picture1, lblVersion, lblProcess}));
}

}  // namespace norvane
