#include "virtualdesktop.h"

#include "compositorserver.h"
#include "waiting.h"

#include <QFile>
#include <QProcessEnvironment>

#include <utility>

namespace {

/// What runs on the desktop, "openbox" if the environment names nothing else.
QString windowManager()
{
    return qEnvironmentVariable("TARN_WINDOW_MANAGER", QStringLiteral("openbox"));
}

QStringList windowManagerOptions(const QString &configDirectory)
{
    const QString name = windowManager();
    // Without a file of its own this one asks its user questions.
    if (name == QLatin1String("i3")) {
        const QString path = configDirectory + QStringLiteral("/i3.conf");
        QFile file(path);
        if (file.open(QIODevice::WriteOnly))
            file.write("# i3 config file (v4)\nfont pango:monospace 8\nfloating_modifier Mod1\n");
        return {QStringLiteral("-c"), path};
    }
    if (name == QLatin1String("openbox"))
        return {QStringLiteral("--sm-disable")};
    if (name == QLatin1String("mutter"))
        return {QStringLiteral("--x11")};
    return {};
}

std::unique_ptr<XServer> server(const QSize &size)
{
    if (windowManager().endsWith(QLatin1String("_wayland")))
        return std::make_unique<CompositorServer>(windowManager(), size);
    return std::make_unique<XvfbServer>(size);
}

} // namespace

VirtualDesktop::VirtualDesktop(const QSize &size)
    : VirtualDesktop(server(size))
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
    if (!m_bus.start()) {
        m_problem = QStringLiteral("No session bus");
        return false;
    }
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), m_bus.address());
    // Its own defaults, not those of whoever runs the test.
    for (const char *folder : {"HOME", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR"})
        environment.insert(QLatin1String(folder), m_configDirectory.path());
    if (!m_server->start(environment)) {
        m_problem = m_server->problem();
        return false;
    }
    m_connection = std::make_unique<XConnection>(m_server->displayName());
    if (!m_connection->isOpen()) {
        m_problem = QStringLiteral("No connection to the display ") + m_server->displayName();
        return false;
    }
    m_keyboard = std::make_unique<Keyboard>(*m_connection);
    m_screen = std::make_unique<ScreenPixels>(*m_connection, m_server->isCompositor());
    m_windows = std::make_unique<WindowTree>(*m_connection);
    m_mouse = std::make_unique<Mouse>(*m_connection, *m_windows);
    return m_server->isCompositor() || startWindowManager(environment);
}

bool VirtualDesktop::startWindowManager(QProcessEnvironment environment)
{
    environment.insert(QStringLiteral("DISPLAY"), m_server->displayName());
    m_windowManager.setProcessEnvironment(environment);
    m_windowManager.setProcessChannelMode(QProcess::MergedChannels);
    m_windowManager.start(windowManager(), windowManagerOptions(m_configDirectory.path()),
                          QIODevice::ReadOnly);
    if (!waitFor([this] { return m_windows->hasWindowManager(); }, 30000)) {
        m_problem = QStringLiteral("No window manager: ")
                    + QString::fromLocal8Bit(m_windowManager.readAll());
        return false;
    }
    return true;
}
