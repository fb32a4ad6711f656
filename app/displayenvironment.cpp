#include "displayenvironment.h"

#include "desktopscale.h"

#include <QCoreApplication>
#include <QtGlobal>

namespace DisplayEnvironment {
namespace {

// The attribute that disables scaling leaves these in force, so they have to go.
constexpr const char *scalingVariables[] = {
    "QT_SCALE_FACTOR",           "QT_SCREEN_SCALE_FACTORS",         "QT_AUTO_SCREEN_SCALE_FACTOR",
    "QT_ENABLE_HIGHDPI_SCALING", "QT_SCALE_FACTOR_ROUNDING_POLICY", "QT_USE_PHYSICAL_DPI",
    "QT_DEVICE_PIXEL_RATIO",
};

constexpr const char *platformVariable = "QT_QPA_PLATFORM";
// What Qt's X11 platform loads OpenGL by.
constexpr const char *openGlVariable = "QT_XCB_GL_INTEGRATION";

bool isWaylandSession()
{
    return !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")
           || qgetenv("XDG_SESSION_TYPE") == "wayland";
}

} // namespace

void prepare()
{
    DesktopScale::request(qEnvironmentVariable("QT_SCALE_FACTOR"));
    for (const char *variable : scalingVariables)
        qunsetenv(variable);
    QCoreApplication::setAttribute(Qt::AA_DisableHighDpiScaling);

    if (isWaylandSession() && qEnvironmentVariableIsEmpty(platformVariable))
        qputenv(platformVariable, "xcb;wayland");
    if (qEnvironmentVariableIsEmpty(openGlVariable))
        qputenv(openGlVariable, "none");
}

} // namespace DisplayEnvironment
