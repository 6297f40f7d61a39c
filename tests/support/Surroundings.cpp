#include <support/Surroundings.h>

#include <QByteArray>

#include <cstdio>

namespace Zenvora::Test {

void LeaveMark() {
  const QByteArray mark = qgetenv("LUMIDEX_TEST_BEGAN");
  if (mark.isEmpty()) {
    return;
  }
  if (std::FILE* file = std::fopen(mark.constData(), "wb")) {
    std::fclose(file);
  }
}

void KeepDesktopOut() {
#ifndef _WIN32
  for (const char* name :
       {"QT_PLUGIN_PATH", "QT_QPA_PLATFORM_PLUGIN_PATH", "QT_QPA_PLATFORMTHEME", "QT_STYLE_OVERRIDE",
        "QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS", "QT_FONT_DPI", "QT_IM_MODULE", "DESKTOP_SESSION",
        "GNOME_DESKTOP_SESSION_ID", "KDE_FULL_SESSION", "XDG_CURRENT_DESKTOP"}) {
    qunsetenv(name);
  }
#endif
}

}  // namespace Zenvora::Test
