#include "screenwakelock.h"

#include <QEvent>
#include <QWidget>

#if defined(Q_OS_MACOS)
#include <IOKit/pwr_mgt/IOPMLib.h>
#elif defined(Q_OS_WIN)
#include <qt_windows.h>
#else
#include "desktopinhibition.h"
#ifdef TARN_X11
#include <QX11Info>

#include <xcb/screensaver.h>
#endif
#endif

// Takes and gives back what keeps the screen awake on this system.
class ScreenWakeLock::Platform
{
public:
    void setHeld(bool held);

private:
#if defined(Q_OS_MACOS)
    IOPMAssertionID m_assertion = kIOPMNullAssertionID;
#elif !defined(Q_OS_WIN)
    DesktopInhibition m_desktop;
#endif
};

#if defined(Q_OS_MACOS)

void ScreenWakeLock::Platform::setHeld(bool held)
{
    if (m_assertion != kIOPMNullAssertionID)
        IOPMAssertionRelease(m_assertion);
    m_assertion = kIOPMNullAssertionID;
    if (held)
        IOPMAssertionCreateWithName(kIOPMAssertionTypePreventUserIdleDisplaySleep,
                                    kIOPMAssertionLevelOn, CFSTR("A test pattern is shown"),
                                    &m_assertion);
}

#elif defined(Q_OS_WIN)

void ScreenWakeLock::Platform::setHeld(bool held)
{
    SetThreadExecutionState(held ? ES_CONTINUOUS | ES_DISPLAY_REQUIRED | ES_SYSTEM_REQUIRED
                                 : ES_CONTINUOUS);
}

#else

namespace {

// The server's own screen saver and its power saving; it resumes them when the program is gone.
void suspendServersOwn(bool suspended)
{
#ifdef TARN_X11
    if (!QX11Info::isPlatformX11())
        return;
    xcb_connection_t *const connection = QX11Info::connection();
    if (!xcb_get_extension_data(connection, &xcb_screensaver_id)->present)
        return;
    xcb_screensaver_suspend(connection, suspended);
    xcb_flush(connection);
#else
    Q_UNUSED(suspended)
#endif
}

} // namespace

void ScreenWakeLock::Platform::setHeld(bool held)
{
    m_desktop.setHeld(held);
    suspendServersOwn(held);
}

#endif

ScreenWakeLock::ScreenWakeLock(QWidget *window)
    : QObject(window)
    , m_platform(std::make_unique<Platform>())
{
    window->installEventFilter(this);
    if (window->isVisible())
        m_platform->setHeld(true);
}

ScreenWakeLock::~ScreenWakeLock()
{
    m_platform->setHeld(false);
}

bool ScreenWakeLock::eventFilter(QObject *watched, QEvent *event)
{
    // Not those of a window that the window manager only minimises and brings back.
    if (!event->spontaneous() && (event->type() == QEvent::Show || event->type() == QEvent::Hide))
        m_platform->setHeld(event->type() == QEvent::Show);
    return QObject::eventFilter(watched, event);
}
