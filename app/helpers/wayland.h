#pragma once

#include <QGuiApplication>

// Whether the program's windows are a Wayland compositor's, not an X server's. Then the desktop
// alone decides where they are, and tells nobody.
inline bool isOnWayland()
{
    return QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}
