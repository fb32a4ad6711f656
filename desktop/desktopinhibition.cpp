#include "desktopinhibition.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusServiceWatcher>
#include <QFile>
#include <QVariantMap>

namespace {

constexpr uint portalIdle = 8; // the portal's flag against the session becoming idle

// libdbus would start a bus of its own where there is none.
bool hasSessionBus()
{
    return !qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS")
           || QFile::exists(QFile::decodeName(qgetenv("XDG_RUNTIME_DIR")) + QStringLiteral("/bus"));
}

QString reason()
{
    return QStringLiteral("A test pattern is shown");
}

QString screenSaverService()
{
    return QStringLiteral("org.freedesktop.ScreenSaver");
}

QString portalService()
{
    return QStringLiteral("org.freedesktop.portal.Desktop");
}

QDBusMessage screenSaver(const QString &method)
{
    return QDBusMessage::createMethodCall(screenSaverService(),
                                          QStringLiteral("/org/freedesktop/ScreenSaver"),
                                          screenSaverService(), method);
}

QDBusMessage portal(const QString &path, const QString &interface, const QString &method)
{
    return QDBusMessage::createMethodCall(
        portalService(), path, QStringLiteral("org.freedesktop.portal.") + interface, method);
}

} // namespace

DesktopInhibition::~DesktopInhibition()
{
    if (m_release.type() == QDBusMessage::MethodCallMessage)
        QDBusConnection::sessionBus().send(m_release);
}

void DesktopInhibition::setHeld(bool held)
{
    m_held = held && hasSessionBus();
    m_asksAgain = m_held && !m_asked.isEmpty();
    if (m_held && !m_watcher)
        watchServices();
    settle();
}

// What a service had granted went with it.
void DesktopInhibition::watchServices()
{
    m_watcher = new QDBusServiceWatcher(this);
    m_watcher->setConnection(QDBusConnection::sessionBus());
    m_watcher->setWatchedServices({screenSaverService(), portalService()});
    connect(m_watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString &name, const QString & /*before*/, const QString &now) {
                if (m_release.service() == name)
                    m_release = {};
                if (now.isEmpty())
                    return;
                if (name != m_asked)
                    m_asksAgain = m_held && !m_asked.isEmpty();
                settle();
            });
}

// While a service has not answered nothing is asked or given back.
void DesktopInhibition::settle()
{
    const bool granted = m_release.type() == QDBusMessage::MethodCallMessage;
    if (!m_asked.isEmpty() || m_held == granted)
        return;
    if (m_held) {
        askScreenSaver();
    } else {
        QDBusConnection::sessionBus().send(m_release);
        m_release = {};
    }
}

void DesktopInhibition::askScreenSaver()
{
    QDBusMessage request = screenSaver(QStringLiteral("Inhibit"));
    request << QCoreApplication::applicationName() << reason();
    call(request, [this](const QDBusMessage &reply) {
        if (reply.type() != QDBusMessage::ReplyMessage) {
            askPortal();
            return;
        }
        QDBusMessage release = screenSaver(QStringLiteral("UnInhibit"));
        release << reply.arguments().value(0);
        answered(release);
    });
}

void DesktopInhibition::askPortal()
{
    QDBusMessage request = portal(QStringLiteral("/org/freedesktop/portal/desktop"),
                                  QStringLiteral("Inhibit"), QStringLiteral("Inhibit"));
    request << QString() << portalIdle << QVariantMap{{QStringLiteral("reason"), reason()}};
    call(request, [this](const QDBusMessage &reply) {
        if (reply.type() != QDBusMessage::ReplyMessage) {
            m_asked.clear();
            if (m_asksAgain)
                setHeld(true);
            return;
        }
        const auto handle = reply.arguments().value(0).value<QDBusObjectPath>();
        answered(portal(handle.path(), QStringLiteral("Request"), QStringLiteral("Close")));
    });
}

template<typename Answer>
void DesktopInhibition::call(const QDBusMessage &request, Answer answer)
{
    m_asked = request.service();
    auto *watcher =
        new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(request), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [watcher, answer] {
        watcher->deleteLater();
        answer(watcher->reply());
    });
}

// The owner may have given up in the meantime.
void DesktopInhibition::answered(const QDBusMessage &release)
{
    m_asked.clear();
    m_release = release;
    settle();
}
