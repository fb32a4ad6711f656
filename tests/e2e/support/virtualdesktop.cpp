#include "virtualdesktop.h"

#include "waiting.h"

#include <QProcessEnvironment>

#include <utility>

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
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), m_configDirectory.path());
    m_windowManager.setProcessEnvironment(environment);
    m_windowManager.setProcessChannelMode(QProcess::MergedChannels);
    m_windowManager.start(QStringLiteral("openbox"), {QStringLiteral("--sm-disable")},
                          QIODevice::ReadOnly);
    if (!waitFor([this] { return m_windows->hasWindowManager(); }, 30000)) {
        m_problem = QStringLiteral("No window manager: ")
                    + QString::fromLocal8Bit(m_windowManager.readAll());
        return false;
    }
    return true;
}
