#include "screens/start/About.h"

namespace norvane {

About::About(Program& host) : Splash(host, kName, {.caption = "About Norvanes", .resizable = false}) {
  SetLayout(layout::Column({Picture1, lblVersion, layout::Row({layout::Space(), Command1})}));
  SetExitButton(Command1);
  Command1.Click = [this] { Unload(); };
}

}  // namespace norvane
