#pragma once

#include <QByteArray>
#include <QtGlobal>

namespace quillet::test {

/// Nothing of the session in which the tests are started reaches them from here on: not its screen,
/// its bus, its theme and scale, nor the files of its user. To be called before the application is
/// made.
inline void leaveSession() {
    for (const char* variable :
         {"DISPLAY", "WAYLAND_DISPLAY", "XDG_CURRENT_DESKTOP", "DESKTOP_SESSION",
          "KDE_FULL_SESSION", "QT_QPA_PLATFORMTHEME", "QT_STYLE_OVERRIDE", "QT_SCALE_FACTOR",
          "QT_SCREEN_SCALE_FACTORS", "QT_ENABLE_HIGHDPI_SCALING", "QT_USE_PHYSICAL_DPI",
          "QT_FONT_DPI", "QT_LOGGING_RULES", "LANGUAGE"}) {
        qunsetenv(variable);
    }
    // Not the cache, without which every test would look through all fonts anew.
    for (const char* home : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME"}) {
        // Where not even the system's administrator can make a folder.
        qputenv(home, "/proc/nonexistent");
    }
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent");
    qputenv("QT_QPA_PLATFORM", "offscreen");
}

} // namespace quillet::test
