#include "virtualdesktop.h"

#include "waiting.h"

#include <QFile>
#include <QProcessEnvironment>

#include <utility>

namespace {

/// How to start a window manager, "openbox" if the environment names no other one.
QStringList windowManagerCommand(const QString &configDirectory)
{
    const QString name = qEnvironmentVariable("TARN_WINDOW_MANAGER", QStringLiteral("openbox"));
    // Without a file of its own this one asks its user questions.
    if (name == QLatin1String("i3")) {
        const QString path = configDirectory + QStringLiteral("/i3.conf");
        QFile file(path);
        if (file.open(QIODevice::WriteOnly))
            file.write("# i3 config file (v4)\nfont pango:monospace 8\nfloating_modifier Mod1\n");
        return {name, QStringLiteral("-c"), path};
    }
    if (name == QLatin1String("openbox"))
        return {name, QStringLiteral("--sm-disable")};
    const QStringList withSessionBus = {QStringLiteral("dbus-run-session"), QStringLiteral("--")};
    if (name == QLatin1String("mutter"))
        return withSessionBus + QStringList{name, QStringLiteral("--x11")};
    if (name == QLatin1String("kwin_x11") || name == QLatin1String("xfwm4"))
        return withSessionBus + QStringList{name};
    return {name};
}

} // namespace

VirtualDesktop::VirtualDesktop(const QSize &size)
    : VirtualDesktop(std::make_unique<XvfbServer>(size))
{ }

VirtualDesktop::VirtualDesktop(std::unique_ptr<XServer> server)
    : m_server(std::move(server))
{ }

VirtualDesktop::~VirtualDesktop()
{
    // The window manager first: it has nothing to say about a lost server then.
    m_windowManager.end();
}

bool VirtualDesktop::start()
{
    if (!m_server->start()) {
        m_problem = m_server->problem();
        return false;
    }
    m_connection = std::make_unique<XConnection>(m_server->displayName());
    if (!m_connection->isOpen()) {
        m_problem = QStringLiteral("No connection to the display ") + m_server->displayName();
        return false;
    }
    m_keyboard = std::make_unique<Keyboard>(*m_connection);
    m_screen = std::make_unique<ScreenPixels>(*m_connection);
    m_windows = std::make_unique<WindowTree>(*m_connection);
    m_mouse = std::make_unique<Mouse>(*m_connection, *m_windows);
    return startWindowManager();
}

bool VirtualDesktop::startWindowManager()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DISPLAY"), m_server->displayName());
    // Its own defaults, not those of whoever runs the test.
    for (const char *folder : {"HOME", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR"})
        environment.insert(QLatin1String(folder), m_configDirectory.path());
    m_windowManager.setProcessEnvironment(environment);
    m_windowManager.setProcessChannelMode(QProcess::MergedChannels);
    const QStringList command = windowManagerCommand(m_configDirectory.path());
    m_windowManager.start(command.first(), command.mid(1), QIODevice::ReadOnly);
    if (!waitFor([this] { return m_windows->hasWindowManager(); }, 30000)) {
        m_problem = QStringLiteral("No window manager: ")
                    + QString::fromLocal8Bit(m_windowManager.readAll());
        return false;
    }
    return true;
}
