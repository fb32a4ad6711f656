#include "endtoendtest.h"
#include "sessionbus.h"
#include "waiting.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QSignalSpy>
#include <QTest>

namespace {

QString root()
{
    return QStringLiteral("/org/a11y/atspi/accessible/root");
}

QString interface(const char *name)
{
    return QStringLiteral("org.a11y.atspi.") + QLatin1String(name);
}

/// Where a program asks for the bus that assistive technology is on.
class AccessibilityBus : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.a11y.Bus")

public:
    QString address;

public slots:
    QString GetAddress() const { return address; }
};

} // namespace

/// The program operated by an assistive technology, over a bus of the test's own.
class tst_e2e_accessibility : public EndToEndTest
{
    Q_OBJECT

private slots:
    void toggledFamilyButton_actsAsIfClicked();

private:
    bool startBus();
    QDBusConnection bus() const { return QDBusConnection(QStringLiteral("accessibility")); }
    QDBusMessage ask(const QDBusMessage &request) const;
    QString program() const;
    QVariantList call(const QString &path, const QString &where, const char *method,
                      const QVariantList &arguments = {}) const;
    QString find(const QString &path, const QString &name) const;

    SessionBus m_bus;
    AccessibilityBus m_service;
};

bool tst_e2e_accessibility::startBus()
{
    if (!m_bus.start())
        return false;
    m_service.address = m_bus.address();
    QDBusConnection::connectToBus(m_service.address, QStringLiteral("accessibility"));
    return bus().registerObject(QStringLiteral("/org/a11y/bus"), &m_service,
                                QDBusConnection::ExportAllSlots);
}

/// The answer, while the test goes on serving the program. Qt's own call that handles events waits
/// without an end for an answer that comes just before it does.
QDBusMessage tst_e2e_accessibility::ask(const QDBusMessage &request) const
{
    const QDBusPendingCallWatcher watcher(bus().asyncCall(request));
    QSignalSpy(&watcher, &QDBusPendingCallWatcher::finished).wait(scaledTimeout(10000));
    return watcher.reply();
}

/// The program's name on the bus, the one that has something to show; empty before it is there.
QString tst_e2e_accessibility::program() const
{
    const QStringList names = bus().interface()->registeredServiceNames();
    for (const QString &name : names) {
        const auto request = QDBusMessage::createMethodCall(name, root(), interface("Accessible"),
                                                            QStringLiteral("GetChildren"));
        if (name.startsWith(QLatin1Char(':')) && name != bus().baseService()
            && ask(request).type() == QDBusMessage::ReplyMessage)
            return name;
    }
    return {};
}

QVariantList tst_e2e_accessibility::call(const QString &path, const QString &where,
                                         const char *method, const QVariantList &arguments) const
{
    QDBusMessage message =
        QDBusMessage::createMethodCall(program(), path, where, QLatin1String(method));
    message.setArguments(arguments);
    return ask(message).arguments();
}

/// The path of what has this name, at \a path or below it; empty if nothing has.
QString tst_e2e_accessibility::find(const QString &path, const QString &name) const
{
    const QVariantList found = call(path, QStringLiteral("org.freedesktop.DBus.Properties"), "Get",
                                    {interface("Accessible"), QStringLiteral("Name")});
    if (found.value(0).value<QDBusVariant>().variant().toString() == name)
        return path;
    const QVariant answer = call(path, interface("Accessible"), "GetChildren").value(0);
    if (!answer.canConvert<QDBusArgument>())
        return {}; // it has gone in the meantime
    const auto children = answer.value<QDBusArgument>();
    QStringList below;
    children.beginArray();
    while (!children.atEnd()) {
        QString service;
        QDBusObjectPath child;
        children.beginStructure();
        children >> service >> child;
        children.endStructure();
        below.append(child.path());
    }
    children.endArray();
    QString place;
    for (int i = 0; i < below.size() && place.isEmpty(); ++i)
        place = find(below.at(i), name);
    return place;
}

void tst_e2e_accessibility::toggledFamilyButton_actsAsIfClicked()
{
    QVERIFY2(startBus(), "dbus-daemon is needed");
    tool().setArguments({QStringLiteral("en")});
    tool().setEnvironment(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), m_service.address);
    tool().setEnvironment(QStringLiteral("QT_LINUX_ACCESSIBILITY_ALWAYS_ON"), QStringLiteral("1"));
    tool().writeConfig({{QStringLiteral("/setting/currentTabIndex"), 3}});
    QVERIFY(startTool());
    // Only now: what finds the service while it starts believes in a bus that it has not reached.
    QVERIFY(bus().registerService(QStringLiteral("org.a11y.Bus")));
    QVERIFY(waitFor([this] { return !program().isEmpty(); }));

    const QString vertical = find(root(), QStringLiteral("Vert."));
    QVERIFY(!vertical.isEmpty());
    call(vertical, interface("Action"), "DoAction", {0});
    // What is clicked is stored.
    QVERIFY(waitFor([&] {
        return tool().configValue(QStringLiteral("/setting/gridVerticalChecked")).toBool();
    }));
}

QTEST_GUILESS_MAIN(tst_e2e_accessibility)
#include "tst_e2e_accessibility.moc"
