#pragma once

#include "childprocess.h"
#include "keyboard.h"
#include "mouse.h"
#include "screenpixels.h"
#include "sessionbus.h"
#include "windowtree.h"
#include "xconnection.h"
#include "xserver.h"

#include <QTemporaryDir>

#include <memory>

/// A desktop of the test's own: an X server with a window manager, a keyboard,
/// a mouse and a screen to look at.
class VirtualDesktop
{
public:
    static constexpr QSize DefaultSize = QSize(1280, 800);

    /// A desktop on a virtual frame buffer of this size, or on a Wayland compositor if the
    /// environment asks for one.
    explicit VirtualDesktop(const QSize &size = DefaultSize);
    /// A desktop on any other kind of server.
    explicit VirtualDesktop(std::unique_ptr<XServer> server);
    ~VirtualDesktop();
    Q_DISABLE_COPY(VirtualDesktop)

    /// Starts the server and the window manager and waits for both. False, with
    /// problem() set, if one of them does not come up.
    bool start();
    QString problem() const { return m_problem; }

    QString displayName() const { return m_server->displayName(); }

    /// The XDG_RUNTIME_DIR of the server and the window manager.
    QString runtimeDirectory() const { return m_configDirectory.path(); }

    // The rest may be used once start() returned true.
    XConnection &connection() { return *m_connection; }
    Keyboard &keyboard() { return *m_keyboard; }
    Mouse &mouse() { return *m_mouse; }
    ScreenPixels &screen() { return *m_screen; }
    WindowTree &windows() { return *m_windows; }

private:
    bool startWindowManager(QProcessEnvironment environment);

    QTemporaryDir m_configDirectory;
    SessionBus m_bus;
    std::unique_ptr<XServer> m_server;
    ChildProcess m_windowManager;
    std::unique_ptr<XConnection> m_connection;
    std::unique_ptr<Keyboard> m_keyboard;
    std::unique_ptr<ScreenPixels> m_screen;
    std::unique_ptr<WindowTree> m_windows;
    std::unique_ptr<Mouse> m_mouse;
    QString m_problem;
};
