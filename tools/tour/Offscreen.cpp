#include "tour/Offscreen.h"

namespace norvane::tour {
namespace {

constexpr const char* kPlatform = "QT_QPA_PLATFORM";
constexpr const char* kScreens =
    R"({"screens":[{"name":"screen","x":0,"y":0,"width":1600,"height":1200,"logicalDpi":96,"dpr":1}]})";

}  // namespace

Offscreen::Offscreen() {
  if (qEnvironmentVariable(kPlatform, "offscreen") != "offscreen" || !screens_.open()) return;
  screens_.write(kScreens);
  screens_.flush();
  qputenv(kPlatform, "offscreen:configfile=" + screens_.fileName().toUtf8());
}

}  // namespace norvane::tour
